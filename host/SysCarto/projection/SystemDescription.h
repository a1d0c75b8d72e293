#pragma once

#include "host/SysCarto/projection/GlobeBox.h"

#include <QString>

#include <optional>

namespace SysCarto {

/// What people want to know of a coordinate system; texts that are not known are empty.
struct SystemDescription {
  QString code;  ///< as in "EPSG:3035"
  QString name;
  bool isGeographic = false;
  QString method;  ///< of the projection
  QString datum;
  QString unit;
  QString area;  ///< in which it is meant to be used
  GlobeBox use;  ///< the same in degrees
  QString wkt;   ///< the whole definition as WKT of 2019, on several lines
};

/// Of a definition as in `makeCoordinateSystem`; empty for one that can't be used.
SYSCARTO_EXPORT std::optional<SystemDescription> describeSystem(QString const& definition);

}  // namespace SysCarto
