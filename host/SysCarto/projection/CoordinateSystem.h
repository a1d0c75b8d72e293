#pragma once

#include <SysCarto/Export.h>

#include <QString>

#include <memory>

class OGRSpatialReference;

namespace SysCarto {

/// A sentence that says what is wrong with the definition of a map's coordinate system; empty where it can be used.
///
/// Right are an authority's code ("EPSG:8857", or its URN), WKT, a PROJ text, and an empty text for plain coordinates.
/// The system must be geographic or projected; heights that it has besides are left out. Nothing that would make PROJ
/// or GDAL open a file or an address is let through: documents come from strangers.
SYSCARTO_EXPORT QString checkCoordinateSystem(QString const& definition);

/// Whether a system that data have names a grid or a file by a path of its own, which PROJ would open wherever it
/// leads. One by its bare name lies among PROJ's own.
SYSCARTO_EXPORT bool namesPath(OGRSpatialReference const& system);

/// The coordinate system of a definition, with x (easting, longitude) before y; null for plain coordinates and for what
/// `checkCoordinateSystem` refuses.
SYSCARTO_EXPORT std::unique_ptr<OGRSpatialReference> makeCoordinateSystem(QString const& definition);

/// Whether a system counts X, Y and Z from the middle of the Earth; it is none for a map.
SYSCARTO_EXPORT bool isGeocentric(QString const& definition);

/// The geographic system on whose globe a system lies: degrees from its prime meridian, longitude before latitude; null
/// where it has none.
SYSCARTO_EXPORT std::unique_ptr<OGRSpatialReference> globeOf(OGRSpatialReference const& system);

/// A system in a notation of WKT as GDAL calls it, "WKT1_GDAL" or "WKT2_2019"; empty where that lacks what the system
/// is.
SYSCARTO_EXPORT QString wktOf(OGRSpatialReference const& system, char const* notation);

}  // namespace SysCarto
