#include "GeoPackageRows.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace SysCarto {

namespace {

constexpr struct {
  OGRFieldType read;
  SqlColumn::Kind kind;
  char const *before, *behind;
} comparedAs[] = {
    // Of 32 bits the lower ones are read, the highest as the sign.
    {OFTInteger, SqlColumn::Kind::Integer, "((((CAST(",
     " AS INTEGER) & 4294967295) + 2147483648) & 4294967295) - 2147483648)"},
    {OFTInteger64, SqlColumn::Kind::Integer, "CAST(", " AS INTEGER)"},
    {OFTReal, SqlColumn::Kind::Real, "CAST(", " AS REAL)"},
    {OFTString, SqlColumn::Kind::Text, "CAST(", " AS TEXT) COLLATE NOCASE"},  // which is that of the letters A to Z
};

QByteArray inQuotes(QByteArray text, char quote) {
  return quote + text.replace(QByteArray(1, quote), QByteArray(2, quote)) + quote;
}

}  // namespace

bool GeoPackageRows::areThoseOf(OGRLayer& layer) {
  GDALDataset* const dataset = layer.GetDataset();
  return dataset && dataset->GetDriver() && qstrcmp(dataset->GetDriver()->GetDescription(), "GPKG") == 0;
}

SqlColumn GeoPackageRows::column(int field) const {
  OGRFeatureDefn& definition = *layer_.GetLayerDefn();
  if (field >= definition.GetFieldCount()) return SqlColumn();
  OGRFieldDefn& own = *definition.GetFieldDefn(field);
  for (auto const& one : comparedAs)
    if (one.read == own.GetType() && own.GetSubType() != OFSTBoolean)
      return {one.kind, one.before + inQuotes(own.GetNameRef(), '"') + one.behind};
  return SqlColumn();
}

QByteArray GeoPackageRows::quoted(QByteArray const& text) const { return inQuotes(text, '\''); }

void GeoPackageRows::narrow(QByteArray const& sql) {
  char const* const before = layer_.GetAttrQueryString();
  layer_.SetAttributeFilter((before ? QByteArray(before) + " AND " + sql : sql).constData());
}

}  // namespace SysCarto
