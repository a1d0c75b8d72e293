#pragma once

#include "Test.h"
#include "Widgets.h"

#include "host/SysDisplay/DisplayTransformationHost.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

/// A white canvas of the format that an export draws on.
inline QImage canvas(QSize const& size) {
  QImage image(size, QImage::Format_RGBA8888_Premultiplied);
  image.fill(Qt::white);
  return image;
}

struct Difference {
  int levels = 0;  // the greatest of any channel
  int pixels = 0;  // that differ at all
  QRect where;

  QString text() const {
    return QString::asprintf("%d pixels from (%d, %d) to (%d, %d) differ by up to %d levels", pixels, where.left(),
                             where.top(), where.right(), where.bottom(), levels);
  }
};

/// Of two pictures of one size and format, four bytes a pixel.
inline Difference difference(QImage const& a, QImage const& b) {
  Difference found;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      int levels = 0;
      for (int i = 4 * x; i < 4 * x + 4; ++i)
        levels = std::max(levels, std::abs(a.constScanLine(y)[i] - b.constScanLine(y)[i]));
      if (levels == 0) continue;
      found.levels = std::max(found.levels, levels);
      ++found.pixels;
      found.where |= QRect(x, y, 1, 1);
    }
  return found;
}

/// What a picture has that is not white.
inline Difference ink(QImage const& image) {
  QImage white = image;
  white.fill(Qt::white);
  return difference(image, white);
}

inline bool isBlank(QImage const& image, QRect const& area) { return ink(image.copy(area)).pixels == 0; }

/// A picture put together from tiles, of which `drawTile` draws the one of a rectangle.
template <class DrawTile>
QImage tiled(QSize const& size, int side, DrawTile const& drawTile) {
  QImage image = canvas(size);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  for (int y = 0; y < size.height(); y += side)
    for (int x = 0; x < size.width(); x += side) {
      QRect const tile = QRect(x, y, side, side) & image.rect();
      painter.drawImage(tile.topLeft(), drawTile(tile));
    }
  return image;
}

using Transformation = _ptr_t<SysDisplay::DisplayTransformation>;
using Scene = std::function<void(QPainter&, Transformation const&)>;

/// A part of a world, shown in pixels. A tile of it is drawn with a transformation of its own, as an export does it.
struct Sheet {
  SysGeometry::Envelope bounds;
  QSize size;
  double pageScale = 1;

  Transformation transformation() const { return showing(bounds, size); }
  Transformation transformation(QRect const& tile) const {
    auto const whole = transformation()->GetFittedBounds();
    double const pixel = whole->GetWidth() / size.width();
    double const xmin = whole->GetXMin() + tile.x() * pixel, ymax = whole->GetYMax() - tile.y() * pixel;
    return showing({xmin, ymax - tile.height() * pixel, xmin + tile.width() * pixel, ymax}, tile.size());
  }

  QImage drawn(Scene const& scene, QRect const& tile) const {
    QImage image = canvas(tile.size());
    QPainter painter(&image);
    scene(painter, transformation(tile));
    return image;
  }
  QImage drawn(Scene const& scene) const { return drawn(scene, QRect(QPoint(0, 0), size)); }

  QImage drawnInTiles(Scene const& scene, int side) const {
    return tiled(size, side, [&](QRect const& tile) { return drawn(scene, tile); });
  }

private:
  Transformation showing(SysGeometry::Envelope const& part, QSize const& sizePx) const {
    auto const transformation = make<SysDisplay::DisplayTransformation>();
    transformation->SetPageScale(pageScale);
    transformation->SetDeviceFrame(QRect(QPoint(0, 0), sizePx));
    transformation->SetVisibleBounds(make<SysGeometry::Envelope>(part));
    SysDisplay::DisplayTransformationHost::setPatternOrigin(*transformation, bounds.GetXMin(), bounds.GetYMax());
    return transformation;
  }
};
