#pragma once

#include <QString>

class OGRSpatialReference;

namespace SysCarto {

/// A coordinate system in the words of PROJ (“+proj=utm +zone=33 …”), as far as they suffice; empty where they don't.
class ProjText {
public:
  explicit ProjText(OGRSpatialReference const& system);

  bool isEmpty() const { return text_.isEmpty(); }

  /// What stands behind a parameter's `=`; empty where there is none.
  QString value(char const* parameter) const;
  double number(char const* parameter, double otherwise) const;

  bool contains(char const* words) const;

private:
  QString text_;
};

}  // namespace SysCarto
