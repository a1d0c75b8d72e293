#pragma once

#include "host/SysCarto/layers/ConditionSql.h"

namespace SysCarto {

/// The rows of a table or view of a GeoPackage. A column may hold values of any kind; they are compared as what OGR
/// makes of them.
class GeoPackageRows final : public Narrowing {
public:
  /// Borrows the layer, which is one of a GeoPackage.
  explicit GeoPackageRows(OGRLayer& layer) : layer_(layer) {}

  static bool areThoseOf(OGRLayer& layer);

  SqlColumn column(int field) const override;
  QByteArray quoted(QByteArray const& text) const override;
  void narrow(QByteArray const& sql) override;

private:
  OGRLayer& layer_;
};

}  // namespace SysCarto
