#include "MapHost.h"
#include "MapLimits.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/projection/GroundScale.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::retain;

namespace {

constexpr double micrometresPerCm = 10000.0;
constexpr double metresPerMicrometre = 1e-6;
constexpr double micrometresPerInch = 25400.0;
constexpr double pixelsPerInch = 96.0;  // of paper, at page scale 1
constexpr double maxFrameUm = 2e9;
constexpr double scaleStep = 1e-4;  // of the extent's width

bool isShowable(Envelope const& bounds) {
  double const sides[] = {bounds.GetXMin(), bounds.GetYMin(), bounds.GetXMax(), bounds.GetYMax()};
  bool const isNear =
      std::all_of(std::begin(sides), std::end(sides), [](double side) { return std::abs(side) <= maxMapCoordinate; });
  return isNear && bounds.GetWidth() >= minMapExtent && bounds.GetHeight() >= minMapExtent;
}

int micrometres(double cm) { return static_cast<int>(std::clamp(std::round(cm * micrometresPerCm), 1.0, maxFrameUm)); }

}  // namespace

struct Map::Private {
  QString name = QCoreApplication::translate("Map", "New map");
  QString coordinateSystem;
  std::unique_ptr<GroundScale> ground = std::make_unique<GroundScale>(QString());
  QList<_ptr_t<Layer>> layers;
  Envelope bounds{0, 0, 2000, 1500};
  double rotation = 0;
  double lockedScale = 0;
  QRect frame{0, 0, 200000, 150000};
  _ptr_t<DisplayTransformation> transformation = make<DisplayTransformation>();
  ElementContainer graphics;
  int frames = 0;
  int labelEffort = 0;
  bool showsUnplaced = false;
  std::optional<MapHost::Portion> instead;
  SysUtility::ChangeMark change;

  MapHost::Portion shown() const { return instead ? *instead : MapHost::Portion{bounds, rotation, lockedScale}; }
  void fit();
  void setLayers(QList<_ptr_t<Layer>> const& wanted);
};

// A layer that has gone to another map in between has its fellows there.
void Map::Private::setLayers(QList<_ptr_t<Layer>> const& wanted) {
  QList<Layer*> before, now;
  for (auto const& layer : qAsConst(layers)) before << layer.get();
  for (auto const& layer : wanted) now << layer.get();
  for (Layer* const layer : qAsConst(before))
    if (LayerHost::fellows(*layer) == before) LayerHost::setFellows(*layer, {});
  for (Layer* const layer : qAsConst(now)) {
    LayerHost::setFellows(*layer, now);
    LayerHost::setLabelEffort(*layer, labelEffort);
  }
  change.set(layers, wanted);
}

// Centres the bounds and gives them the aspect of the frame. The transformation could fit them itself, but it would
// leave them in the upper left corner.
void Map::Private::fit() {
  MapHost::Portion const part = shown();
  double const x = part.bounds.GetXMin() + part.bounds.GetWidth() / 2;
  double const y = part.bounds.GetYMin() + part.bounds.GetHeight() / 2;
  auto const metresPerUnit = [&](double scale) {
    return ground->metresPerUnit(x, y, frame.width() * scale * scaleStep);
  };
  double scale = std::max(part.bounds.GetWidth() / frame.width(), part.bounds.GetHeight() / frame.height());
  for (int i = 0; i < 2 && part.lockedScale > 0; ++i)  // what is measured depends a little on the width that is shown
    scale = part.lockedScale * metresPerMicrometre / metresPerUnit(scale);
  double const halfWidth = frame.width() * scale / 2, halfHeight = frame.height() * scale / 2;
  transformation->SetDeviceFrame(frame);
  transformation->SetVisibleBounds(make<Envelope>(x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight));
  DisplayTransformationHost::setWhole(
      *transformation, QRectF(QPointF(x - halfWidth, y - halfHeight), QPointF(x + halfWidth, y + halfHeight)));
  DisplayTransformationHost::setTurn(*transformation, part.rotation, {x, y});
  DisplayTransformationHost::setPatternOrigin(*transformation, x - halfWidth, y + halfHeight);
  double const denominator = scale * metresPerUnit(scale) / metresPerMicrometre;
  DisplayTransformationHost::setMapScale(*transformation, part.lockedScale > 0 ? part.lockedScale : denominator);
}

Map::Map() : d(std::make_unique<Private>()) {
  d->transformation->SetPageScale(micrometresPerInch / pixelsPerInch);
  d->fit();
}
Map::~Map() { d->setLayers({}); }

_ptr_t<DisplayTransformation> Map::GetDisplayTransformation() const { return d->transformation; }

QString const& Map::GetName() const { return d->name; }
void Map::SetName(QString const& name) { d->change.set(d->name, name); }

int Map::GetLayerCount() const { return d->layers.size(); }
_ptr_t<Layer> Map::GetLayer(int index) const { return d->layers.value(index); }
QList<_ptr_t<Layer>> const& Map::GetLayers() const { return d->layers; }
void Map::AddLayer(_ptr_t<Layer> const& layer) {
  if (!layer) return;
  auto layers = d->layers;
  d->setLayers(layers << layer);
}

_ptr_t<Envelope> Map::GetExtent() const { return d->transformation->GetVisibleBounds(); }
_ptr_t<Map> Map::GetFocusMap() const { return retain(const_cast<Map*>(this)); }
IElementContainer* Map::GetGraphicsContainer() const { return &d->graphics; }

QString Map::GetCoordinateSystem() const { return d->coordinateSystem; }

void Map::SetCoordinateSystem(QString const& definition) {
  QString const trimmed = definition.trimmed();
  if (trimmed == d->coordinateSystem) return;
  d->change.set(d->coordinateSystem, trimmed);
  d->ground = std::make_unique<GroundScale>(trimmed);
  d->fit();
}

double Map::scale() const { return d->layers.isEmpty() ? 0 : d->transformation->GetMapScale(); }

double Map::GetNorthAngle() const {
  auto const centre = GetExtent()->GetAnchorPoint();
  return d->ground->northAngle(centre->GetX(), centre->GetY()) + d->shown().rotation;
}

double Map::GetRotation() const { return d->shown().rotation; }

Envelope MapHost::storedBounds(Map const& map) { return map.d->bounds; }

void MapHost::showInstead(Map& map, std::optional<Portion> const& portion) {
  map.d->instead = portion && isShowable(portion->bounds) ? portion : std::nullopt;
  map.d->fit();
}

bool MapHost::isShownInstead(Map const& map) { return map.d->instead.has_value(); }

double MapHost::storedScale(Map const& map) {
  auto const shown = std::exchange(map.d->instead, std::nullopt);
  if (shown) map.d->fit();
  double const scale = map.d->transformation->GetMapScale();
  map.d->instead = shown;
  if (shown) map.d->fit();
  return scale;
}

double MapHost::storedRotation(Map const& map) { return map.d->rotation; }

void MapHost::setRotation(Map& map, double degrees) {
  double const rotation = std::isfinite(degrees) ? std::fmod(degrees, 360) : 0;
  if (rotation == map.d->rotation) return;
  map.d->change.set(map.d->rotation, rotation);
  map.d->instead.reset();
  map.d->fit();
}

void MapHost::setLayers(Map& map, QList<_ptr_t<Layer>> const& layers) { map.d->setLayers(layers); }

double MapHost::lockedScale(Map const& map) { return map.d->lockedScale; }

void MapHost::lockScale(Map& map, double denominator) {
  double const scale = std::isfinite(denominator) && denominator > 0 ? denominator : 0;
  if (scale == map.d->lockedScale) return;
  map.d->change.set(map.d->lockedScale, scale);
  map.d->instead.reset();
  map.d->fit();
}

Envelope MapHost::turnedBack(Map const& map, Envelope const& extent) {
  if (map.GetRotation() == 0) return extent;
  auto const at = extent.GetAnchorPoint();
  QPointF const centre =
      DisplayTransformationHost::turn(*map.d->transformation).inverted().map(QPointF(at->GetX(), at->GetY()));
  Envelope turned(extent);
  turned.CenterAt(centre.x(), centre.y());
  return turned;
}

int MapHost::labelEffort(Map const& map) { return map.d->labelEffort; }
void MapHost::setLabelEffort(Map& map, int effort) {
  map.d->change.set(map.d->labelEffort, effort);
  for (auto const& layer : qAsConst(map.d->layers)) LayerHost::setLabelEffort(*layer, effort);
}

bool MapHost::showsUnplaced(Map const& map) { return map.d->showsUnplaced; }
void MapHost::setShowsUnplaced(Map& map, bool shows) { map.d->showsUnplaced = shows; }

void MapHost::setFrameSize(Map& map, double widthCm, double heightCm) {
  if (!(std::isfinite(widthCm) && std::isfinite(heightCm) && widthCm > 0 && heightCm > 0)) return;
  QRect const frame(0, 0, micrometres(widthCm), micrometres(heightCm));
  if (frame == map.d->frame) return;
  map.d->frame = frame;
  map.d->fit();
}

void MapHost::countFrame(Map& map, bool comes) { map.d->frames += comes ? 1 : -1; }
bool MapHost::isFramed(Map const& map) { return map.d->frames > 0; }

void Map::applyExtent(Envelope const& extent) {
  auto const bounds = extent.GetEnvelope();
  if (!isShowable(*bounds)) return;
  bool const isOther = !haveSameCorners(*bounds, d->bounds);
  if (isOther) d->change.raise();
  d->bounds = *bounds;
  if (isOther) d->instead.reset();
  d->fit();
}

quint64 MapHost::lastChange(Map const& map) {
  quint64 last = std::max(map.d->change.time(), map.d->graphics.lastChange());
  for (auto const& layer : qAsConst(map.d->layers)) last = std::max(last, LayerHost::lastChange(*layer));
  return last;
}

}  // namespace SysCarto
