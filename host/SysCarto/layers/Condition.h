#pragma once

#include "host/SysCarto/layers/PatternBounds.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class OGRFeature;
class OGRFeatureQuery;
class OGRLayer;

namespace SysCarto {

/// A condition on the attributes of features. It is evaluated by OGR itself. A database is only asked for what it
/// implies, in words of our own: a document must not reach the functions that a database offers.
class SYSCARTO_EXPORT Condition {
public:
  Condition();
  Condition(Condition&&) noexcept;
  ~Condition();

  /// Where it is not understood it answers false, and `reason` says why. An empty text admits all.
  bool compile(OGRLayer& layer, QString const& text, QString& reason);

  bool admits(OGRFeature& feature) const;

  /// A layer of a GeoPackage that leaves out features looks for the next however long that takes: that is nothing for
  /// who looks at the time between two of them.
  enum class Narrowed { Servers, All };

  /// Has the layer that it was compiled for leave out features that it does not admit, where it can; not all of them.
  void narrow(OGRLayer& layer, Narrowed which) const;

  /// The names of the fields that it asks for; of the geometry, names that begin with OGR_.
  QStringList fields() const;

private:
  std::unique_ptr<OGRFeatureQuery> query_;
  mutable PatternBounds patterns_;
  bool namesDates_ = false;
};

}  // namespace SysCarto
