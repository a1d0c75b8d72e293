#include "MapTiles.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/maps/MapHost.h"

#include <SysDisplay/Units.h>

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <cmath>

using SysCarto::MapFrameElement;
using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUtility::make;

namespace {

constexpr double sameScale = 1e-6;  // a view that is panned computes its scale anew
constexpr int maxFramePx = 1 << 28;
constexpr double labelsPerInch = 300;  // the resolution that labels are placed for
constexpr int leastRows = 32;          // at once: what is drawn of markers across the edge is drawn twice
constexpr double longestMs = 12;       // for the rows that are drawn at once
constexpr double forgetting = 0.95;    // of what was slow, with each part that is quicker

int pixels(double cm, double pixelsPerCm) {
  return static_cast<int>(std::clamp(std::round(cm * pixelsPerCm), 1.0, double(maxFramePx)));
}

}  // namespace

bool MapTiles::Look::isSameAs(Look const& other) const {
  return map == other.map && std::abs(pixelsPerCm - other.pixelsPerCm) <= sameScale * pixelsPerCm &&
         sizePx == other.sizePx && SysCarto::haveSameCorners(extent, other.extent) && rotation == other.rotation &&
         showsUnplaced == other.showsUnplaced && layers == other.layers && graphics == other.graphics;
}

bool MapTiles::Look::hasSameLabels(Look const& other) const {
  return map == other.map && sizeCm == other.sizeCm && SysCarto::haveSameCorners(extent, other.extent) &&
         rotation == other.rotation && showsUnplaced == other.showsUnplaced && layers == other.layers;
}

MapTiles::Look MapTiles::lookOf(MapFrameElement const& frame, double pixelsPerCm) {
  auto const rectangle = frame.GetEnvelope();
  Look look;
  look.map = frame.GetMap();
  look.pixelsPerCm = pixelsPerCm;
  // Both corners' pixels belong to a frame, as in an export.
  look.sizePx = {pixels(rectangle->GetWidth(), pixelsPerCm) + 1, pixels(rectangle->GetHeight(), pixelsPerCm) + 1};
  look.sizeCm = {rectangle->GetWidth(), rectangle->GetHeight()};
  look.extent = *look.map->GetExtent();
  look.rotation = look.map->GetRotation();
  look.showsUnplaced = SysCarto::MapHost::showsUnplaced(*look.map);
  for (auto const& layer : look.map->GetLayers()) look.layers << SysCarto::LayerHost::look(*layer);
  if (auto const* container = look.map->GetGraphicsContainer()) look.graphics = container->GetElements();
  return look;
}

void MapTiles::follow(MapFrameElement const& frame, double pixelsPerCm) {
  Look const look = lookOf(frame, pixelsPerCm);
  if (look_.map && look_.isSameAs(look)) return;
  if (look_.map == look.map) {
    keepStandIn();
    standIn_.follow(look_, look);
  }
  if (!look_.hasSameLabels(look)) labels_ = nullptr;
  look_ = look;
  shownPx_ &= QRect(QPoint(0, 0), look_.sizePx);
  tiles_.clear();
  part_.reset();
  rowsAtOnce_ = leastRows;
  slowestMs_ = 0;
  labelsWait_ = false;
}

void MapTiles::takeNews() {
  labelsWait_ = false;
  for (auto& [number, tile] : tiles_) tile.isStale = tile.lacksFeatures;
  if (part_) part_->isStale = part_->lacksFeatures;
}

bool MapTiles::waits() const {
  return labelsWait_ || firstShown([](Tile const& tile) { return tile.lacksFeatures; });
}

// Zooming by steps comes here before a tile was drawn; then the older picture goes on standing in, and so does one that
// was whole.
void MapTiles::keepStandIn() {
  bool const isWhole = isComplete();
  if (standIn_.isWhole && !isWhole) return;
  QRect const area = tiles_.empty() ? QRect() : shownPx_;
  if (area.isEmpty()) return;
  QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  paint(painter, -area.topLeft());
  double const scale = look_.pixelsPerCm;
  standIn_ = {image, {area.x() / scale, area.y() / scale, area.width() / scale, area.height() / scale}, isWhole};
}

// Goes where the map shows now what it shows. A map that is turned, or of another size, has no such place.
void MapTiles::StandIn::follow(Look const& before, Look const& now) {
  bool const isSame = SysCarto::haveSameCorners(before.extent, now.extent) && before.rotation == now.rotation;
  if (image.isNull() || (isSame && before.sizeCm == now.sizeCm)) return;
  if (before.rotation != 0 || now.rotation != 0 || before.sizeCm != now.sizeCm) {
    isWhole = false;
    return;
  }
  constexpr double largest = 1000;
  double const larger = before.extent.GetWidth() / now.extent.GetWidth();
  if (!(larger < largest && larger > 1 / largest)) {
    *this = {};
    return;
  }
  double const cmPerUnit = now.sizeCm.width() / now.extent.GetWidth();
  QPointF const corner((before.extent.GetXMin() - now.extent.GetXMin()) * cmPerUnit,
                       (now.extent.GetYMax() - before.extent.GetYMax()) * cmPerUnit);
  placeCm = {corner + placeCm.topLeft() * larger, placeCm.size() * larger};
}

void MapTiles::setShown(QRect const& shownPx) {
  shownPx_ = shownPx & QRect(QPoint(0, 0), look_.sizePx);
  QRect const near = shownPx_.adjusted(-shownPx_.width(), -shownPx_.height(), shownPx_.width(), shownPx_.height());
  for (auto tile = tiles_.begin(); tile != tiles_.end();)
    tile = areaOf(tile->first).intersects(near) ? std::next(tile) : tiles_.erase(tile);
}

// First all that is missing, then the labels, unless there turned out to be none. Labels wait for all features.
std::optional<MapTiles::TileNumber> MapTiles::next() const {
  auto const missing = firstShown([](Tile const& tile) { return tile.isToBeDrawn(); });
  if (missing || waits() || (labels_ && labels_->order().elements.isEmpty())) return missing;
  return firstShown([](Tile const& tile) { return !tile.isLabelled; });
}

std::optional<MapTiles::TileNumber> MapTiles::firstShown(bool (*isWanted)(Tile const&)) const {
  if (shownPx_.isEmpty()) return std::nullopt;
  for (int row = shownPx_.top() / tilePx; row <= shownPx_.bottom() / tilePx; ++row)
    for (int column = shownPx_.left() / tilePx; column <= shownPx_.right() / tilePx; ++column) {
      auto const tile = tiles_.find({column, row});
      if (isWanted(tile == tiles_.end() ? Tile() : tile->second)) return TileNumber(column, row);
    }
  return std::nullopt;
}

QRect MapTiles::drawNext(MapFrameElement const& frame) {
  if (!canGoOn()) return {};
  follow(frame, look_.pixelsPerCm);
  auto number = next();
  if (number && !labels_ && !isToBeDrawn(*number)) {
    placeLabels(frame);
    if (!labels_) return {};
    number = next();
  }
  if (!number) return {};
  QRect const area = areaOf(*number) & QRect(QPoint(0, 0), look_.sizePx);
  if (!isToBeDrawn(*number))
    label(tiles_[*number], area, frame);
  else if (!drawMore(*number, area, frame))
    return {};
  if (isComplete()) standIn_ = {};
  return area;
}

// A page on which the frame's upper left corner is the first pixel.
SysUtility::_ptr_t<DisplayTransformation> MapTiles::pageOf(MapFrameElement const& frame, double pixelsPerCm,
                                                           QSize const& sizePx) {
  auto const rectangle = frame.GetEnvelope();
  auto const page = make<DisplayTransformation>();
  page->SetDeviceFrame(QRect(QPoint(0, 0), sizePx));
  page->SetVisibleBounds(make<Envelope>(rectangle->GetXMin(), rectangle->GetYMax() - sizePx.height() / pixelsPerCm,
                                        rectangle->GetXMin() + sizePx.width() / pixelsPerCm, rectangle->GetYMax()));
  page->SetPageScale(pixelsPerCm * SysDisplay::cmPerInch / SysDisplay::pixelsPerInch);
  return page;
}

void MapTiles::placeLabels(MapFrameElement const& frame) {
  QList<SysUtility::_ptr_t<SysCarto::Element>> placed;
  bool isPlaced = false;
  labelsWait_ = !drawnWithoutWaiting(frame, [&] {
    placed = SysCarto::placeLabels(frame, labelsPerInch);
    isPlaced = !SysCarto::WithoutWaiting::current()->hasMoreToDo;
  });
  if (labelsWait_ || !isPlaced) return;
  labels_ = std::make_shared<SysCarto::ElementContainer>();
  labels_->AddElements(placed);
}

// Whether nothing was missing. Who looks at a part of the frame needs the features of the tiles there.
bool MapTiles::drawnWithoutWaiting(MapFrameElement const& frame, std::function<void()> const& draw) const {
  SysCarto::WithoutWaiting meanwhile;
  auto const whole = SysCarto::mapPixels(frame, *pageOf(frame, look_.pixelsPerCm, look_.sizePx)).transformation;
  if (whole && shownPx_.size() != look_.sizePx) {
    QRectF const tiles = QRectF(shownPx_).adjusted(-tilePx, -tilePx, tilePx, tilePx);
    QRectF const seen = whole->ToDevice().inverted().mapRect(tiles);
    meanwhile.seen = SysGeometry::Box{seen.left(), seen.top(), seen.right(), seen.bottom()};
  }
  draw();
  return !meanwhile.isIncomplete;
}

bool MapTiles::isToBeDrawn(TileNumber number) const {
  auto const tile = tiles_.find(number);
  return tile == tiles_.end() || tile->second.isToBeDrawn();
}

// Draws some rows of a tile, and answers whether they were its last.
bool MapTiles::drawMore(TileNumber number, QRect const& area, MapFrameElement const& frame) {
  if (!part_ || part_->number != number) {
    part_ = Part{number, QImage(area.size(), QImage::Format_ARGB32_Premultiplied)};
    part_->image.fill(Qt::transparent);
  }
  int const left = area.height() - part_->rows, parts = (left + rowsAtOnce_ - 1) / rowsAtOnce_;
  QRect const rows(area.left(), area.top() + part_->rows, area.width(), (left + parts - 1) / parts);
  QElapsedTimer clock;
  clock.start();
  auto const page = pageOf(frame, look_.pixelsPerCm, look_.sizePx);
  // A temporary would be converted in place, and keep a paint engine that takes red for blue (Qt 5.15).
  QImage drawn;
  bool const isWhole =
      drawnWithoutWaiting(frame, [&] { drawn = SysCarto::drawMap(frame, *page, rows, nullptr).image; });
  QPainter painter(&part_->image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawImage(0, part_->rows, drawn.convertToFormat(QImage::Format_ARGB32_Premultiplied));
  painter.end();
  part_->rows += rows.height();
  part_->lacksFeatures = part_->lacksFeatures || !isWhole;
  double const ms = double(clock.nsecsElapsed()) / 1e6 / std::max(rows.height(), leastRows);
  slowestMs_ = std::max(slowestMs_ * forgetting, ms);
  int const most = std::min(2 * rowsAtOnce_, tilePx);
  rowsAtOnce_ = static_cast<int>(std::clamp(longestMs / slowestMs_, double(leastRows), double(most)));
  if (part_->rows < area.height()) return false;
  tiles_[number] = {part_->image, false, part_->lacksFeatures, part_->isStale};
  part_.reset();
  return true;
}

void MapTiles::label(Tile& tile, QRect const& area, MapFrameElement const& frame) const {
  SysCarto::MapPicture picture{std::exchange(tile.image, QImage()), area.topLeft()};
  SysCarto::drawOverMap(picture, *labels_, frame, *pageOf(frame, look_.pixelsPerCm, look_.sizePx));
  tile = {picture.image, true};
}

// What stood there before and is whole shows where tiles lack features.
void MapTiles::paint(QPainter& painter, QPoint const& corner) const {
  painter.save();
  painter.translate(corner);
  QRegion const frame(QRect(QPoint(0, 0), look_.sizePx));
  QRegion lacking, whole;
  for (auto const& [number, tile] : tiles_) (tile.lacksFeatures ? lacking : whole) += areaOf(number);
  QRegion const before = frame & standIn_.place(look_.pixelsPerCm).toRect();
  QRegion const standingIn = frame - whole - (standIn_.isWhole ? QRegion() : lacking);
  painter.setClipRegion(frame - (standIn_.isWhole ? before - whole : QRegion()), Qt::IntersectClip);
  for (auto const& [number, tile] : tiles_) painter.drawImage(areaOf(number).topLeft(), tile.image);
  painter.restore();
  if (!standIn_.image.isNull()) paintStandIn(painter, corner, standingIn & before);
}

void MapTiles::paintStandIn(QPainter& painter, QPoint const& corner, QRegion const& area) const {
  painter.save();
  painter.translate(corner);
  painter.setClipRegion(area, Qt::IntersectClip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(standIn_.place(look_.pixelsPerCm), standIn_.image);
  painter.restore();
}
