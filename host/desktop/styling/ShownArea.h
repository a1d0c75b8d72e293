#pragma once

#include "GlobeArea.h"

#include <QRectF>
#include <QString>

// Between a part of the globe and a rectangle of a map. Definitions are those of coordinate systems.

/// The rectangle about an area in map units; not valid where that can't be told.
QRectF mapAreaOf(QString const& definition, GlobeArea const& area);

/// What lies in a rectangle in map units; of nothing where that can't be told.
GlobeArea globeAreaOf(QString const& definition, QRectF const& rectangle);

/// What a frame of a size in centimetres shows.
struct ShownArea {
  GlobeArea area;             ///< of the globe, which is more than that of the data
  bool isSmallScale = false;  ///< whether its meridians and parallels are curved or far apart

  /// Of a map that shows all of a rectangle in map units, with some room about it; of nothing where that is not valid.
  static ShownArea of(QString const& definition, QRectF const& shape, QSizeF const& frameCm, double room);
};
