#pragma once

#include <QString>

namespace SysCarto {

/// How many entities a DXF drawing has once its blocks stand wherever they are inserted, which GDAL does when it reads
/// it; infinite where a block holds itself.
double entitiesOf(QString const& drawing);

}  // namespace SysCarto
