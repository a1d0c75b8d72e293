#include "SourceSettings.h"

#include <tuple>

namespace SysCarto {

// Not in the header, which many include: comparing so many at once takes a compiler a while.

bool TableJoin::operator==(TableJoin const& other) const {
  return std::tie(file, layer, key, tableKey, prefix) ==
         std::tie(other.file, other.layer, other.key, other.tableKey, other.prefix);
}

bool SourceSettings::operator==(SourceSettings const& other) const {
  return std::tie(file, layer, filter, coordinateSystem, xField, yField, geometryField, joins, data, connection) ==
         std::tie(other.file, other.layer, other.filter, other.coordinateSystem, other.xField, other.yField,
                  other.geometryField, other.joins, other.data, other.connection);
}

}  // namespace SysCarto
