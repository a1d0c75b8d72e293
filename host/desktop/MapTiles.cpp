#include "MapTiles.h"

#include "host/SysCarto/layout/MapPicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using SysCarto::MapFrameElement;
using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUtility::make;

namespace {

constexpr double inchCm = 2.54;
constexpr double pixelsPerInch = 96;
constexpr double sameScale = 1e-6;  // a view that is panned computes its scale anew
constexpr int largestFramePx = 1 << 28;

bool isSameRectangle(Envelope const& a, Envelope const& b) {
  return a.GetXMin() == b.GetXMin() && a.GetYMin() == b.GetYMin() && a.GetXMax() == b.GetXMax() &&
         a.GetYMax() == b.GetYMax();
}

int pixels(double cm, double pixelsPerCm) {
  return static_cast<int>(std::clamp(std::round(cm * pixelsPerCm), 1.0, double(largestFramePx)));
}

}  // namespace

bool MapTiles::Look::isSameAs(Look const& other) const {
  return map == other.map && std::abs(pixelsPerCm - other.pixelsPerCm) <= sameScale * pixelsPerCm &&
         sizePx == other.sizePx && isSameRectangle(extent, other.extent) && visibleLayers == other.visibleLayers &&
         graphics == other.graphics;
}

MapTiles::Look MapTiles::lookOf(MapFrameElement const& frame, double pixelsPerCm) {
  auto const rectangle = frame.GetEnvelope();
  Look look;
  look.map = frame.GetMap();
  look.pixelsPerCm = pixelsPerCm;
  look.sizePx = {pixels(rectangle->GetWidth(), pixelsPerCm), pixels(rectangle->GetHeight(), pixelsPerCm)};
  look.extent = *look.map->GetExtent();
  for (auto const& layer : look.map->GetLayers()) look.visibleLayers << layer->IsVisible();
  if (auto const* container = look.map->GetGraphicsContainer()) look.graphics = container->GetElements();
  return look;
}

void MapTiles::follow(MapFrameElement const& frame, double pixelsPerCm) {
  Look const look = lookOf(frame, pixelsPerCm);
  if (look_.map && look_.isSameAs(look)) return;
  if (look_.map == look.map) keepStandIn();
  look_ = look;
  tiles_.clear();
}

// Zooming by steps comes here before a tile was drawn; then the older picture goes on standing in.
void MapTiles::keepStandIn() {
  QRect area;
  for (auto const& tile : tiles_) area |= areaOf(tile.first) & shownPx_;
  if (area.isEmpty()) return;
  QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  paint(painter, -area.topLeft());
  double const scale = look_.pixelsPerCm;
  standIn_ = {image, {area.x() / scale, area.y() / scale, area.width() / scale, area.height() / scale}};
}

void MapTiles::setShown(QRect const& shownPx) {
  shownPx_ = shownPx & QRect(QPoint(0, 0), look_.sizePx);
  QRect const near = shownPx_.adjusted(-shownPx_.width(), -shownPx_.height(), shownPx_.width(), shownPx_.height());
  for (auto tile = tiles_.begin(); tile != tiles_.end();)
    tile = areaOf(tile->first).intersects(near) ? std::next(tile) : tiles_.erase(tile);
}

std::optional<MapTiles::TileNumber> MapTiles::firstMissing() const {
  if (shownPx_.isEmpty()) return std::nullopt;
  for (int row = shownPx_.top() / tilePx; row <= shownPx_.bottom() / tilePx; ++row)
    for (int column = shownPx_.left() / tilePx; column <= shownPx_.right() / tilePx; ++column)
      if (!tiles_.count({column, row})) return TileNumber(column, row);
  return std::nullopt;
}

QRect MapTiles::drawNext(MapFrameElement const& frame) {
  if (isComplete()) return {};
  follow(frame, look_.pixelsPerCm);
  auto const number = firstMissing();
  if (!number) return {};
  auto const rectangle = frame.GetEnvelope();
  double const scale = look_.pixelsPerCm;
  auto const transformation = make<DisplayTransformation>();
  transformation->SetDeviceFrame(QRect(QPoint(0, 0), look_.sizePx));
  transformation->SetVisibleBounds(
      make<Envelope>(rectangle->GetXMin(), rectangle->GetYMax() - look_.sizePx.height() / scale,
                     rectangle->GetXMin() + look_.sizePx.width() / scale, rectangle->GetYMax()));
  transformation->SetPageScale(scale * inchCm / pixelsPerInch);
  QRect const area = areaOf(*number) & QRect(QPoint(0, 0), look_.sizePx);
  QImage const image = SysCarto::drawMap(frame, *transformation, area, nullptr).image;
  tiles_[*number] = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  if (isComplete()) standIn_ = {};
  return area;
}

void MapTiles::paint(QPainter& painter, QPoint const& corner) const {
  painter.save();
  painter.translate(corner);
  painter.setClipRect(QRect(QPoint(0, 0), look_.sizePx), Qt::IntersectClip);
  if (!standIn_.image.isNull()) {
    QRegion missing(QRect(QPoint(0, 0), look_.sizePx));
    for (auto const& tile : tiles_) missing -= areaOf(tile.first);
    QRectF const place = standIn_.placeCm;
    double const scale = look_.pixelsPerCm;
    painter.save();
    painter.setClipRegion(missing, Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(place.topLeft() * scale, place.size() * scale), standIn_.image);
    painter.restore();
  }
  for (auto const& tile : tiles_) painter.drawImage(areaOf(tile.first).topLeft(), tile.second);
  painter.restore();
}
