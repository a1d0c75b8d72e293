#pragma once

#include "SurroundSettings.h"

#include <QString>

namespace SysCarto {

/// A longitude or latitude for people: 30°N, 15°30′E, 0°; with signs 30°, −15°30′.
SYSCARTO_EXPORT QString degreesText(double degrees, bool isLongitude, DegreeFormat format, bool signs);

/// A coordinate of a map, an easting or a northing: 500,000 m E; with signs the number alone. `unit` may be empty.
SYSCARTO_EXPORT QString coordinateText(double coordinate, bool isEasting, QString const& unit, bool signs);

/// How people write what the coordinates of a system count: m, km, ft, °. Metres for plain coordinates, empty for what
/// has no short name.
SYSCARTO_EXPORT QString unitOf(QString const& system);

}  // namespace SysCarto
