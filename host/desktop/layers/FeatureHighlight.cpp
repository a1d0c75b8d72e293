#include "FeatureHighlight.h"

#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysCarto/layers/LayerHost.h"

#include <QPainter>
#include <QPainterPath>

#include <utility>

using SysCarto::Box;
using SysCarto::PartKind;

namespace {

constexpr int flashMs = 160, flashCount = 4;
constexpr double nearPx = 0.7;  // vertices that are nearer to each other are seen as one
constexpr double pointRadiusPx = 6;
constexpr double haloPx = 5, strokePx = 2.5;
constexpr int mostFeatures = 20000;  // are painted; more can't be told apart
QColor const ink(0xff, 0x3d, 0x00), halo(0xff, 0xff, 0xff, 200), fill(0xff, 0x8a, 0x00, 80);

struct Shapes {
  QPainterPath areas, lines, points;
};

QPolygonF runOf(SysCarto::Part const& part, QTransform const& toPx) {
  QPolygonF run;
  for (int i = 0; i < part.count; ++i) {
    QPointF const at = toPx.map(QPointF(part.xy[2 * i], part.xy[2 * i + 1]));
    bool const isLast = i + 1 == part.count;
    if (run.isEmpty() || isLast || (at - run.last()).manhattanLength() >= nearPx) run << at;
  }
  return run;
}

void add(SysCarto::Part const& part, QTransform const& toPx, Shapes& shapes) {
  if (part.kind == PartKind::Point) {
    for (int i = 0; i < part.count; ++i)
      shapes.points.addEllipse(toPx.map(QPointF(part.xy[2 * i], part.xy[2 * i + 1])), pointRadiusPx, pointRadiusPx);
    return;
  }
  QPolygonF const run = runOf(part, toPx);
  if (part.kind == PartKind::Ring || part.kind == PartKind::FilledRing) {
    shapes.areas.addPolygon(run);
    shapes.areas.closeSubpath();
  }
  if (part.kind == PartKind::FilledRing) return;
  shapes.lines.addPolygon(run);
  if (part.kind == PartKind::Ring) shapes.lines.closeSubpath();
}

}  // namespace

QTransform mapToView(SysCarto::Map const& map, QRectF const& placePx) {
  auto const transformation = map.GetDisplayTransformation();
  QRectF const frame = transformation->GetDeviceFrame();
  return transformation->ToDevice() * QTransform::fromTranslate(-frame.left(), -frame.top()) *
         QTransform::fromScale(placePx.width() / frame.width(), placePx.height() / frame.height()) *
         QTransform::fromTranslate(placePx.left(), placePx.top());
}

FeatureHighlight::FeatureHighlight(QObject* parent) : QObject(parent) {
  flashing_.setInterval(flashMs);
  connect(&flashing_, &QTimer::timeout, this, [this] {
    if (--flashes_ <= 0) flashing_.stop();
    emit changed();
  });
}

FeatureHighlight::~FeatureHighlight() = default;

void FeatureHighlight::show(Marked const& marked, bool flashes) {
  marked_ = marked;
  found_.reset();
  flashes_ = flashes && !marked.ids.empty() ? flashCount : 0;
  if (flashes_ > 0)
    flashing_.start();
  else
    flashing_.stop();
  emit changed();
}

void FeatureHighlight::clear() {
  if (marked_.layer) show({});
}

// A layer that was read anew has its features in other places.
FeatureHighlight::Found const& FeatureHighlight::found() const {
  quint64 const look = SysCarto::LayerHost::look(*marked_.layer);
  if (found_ && found_->look == look) return *found_;
  auto const store = marked_.layer->featuresNumbered(marked_.ids);
  found_ = {look, store, SysCarto::featuresOf(*store, marked_.ids)};
  return *found_;
}

void FeatureHighlight::paint(QPainter& painter, SysCarto::Map const& map, QRectF const& placePx) const {
  if (!marked_.layer || marked_.map.get() != &map || flashes_ % 2 == 1 || placePx.isEmpty()) return;
  if (!map.GetLayers().contains(marked_.layer)) return;  // it has gone meanwhile
  QTransform const toPx = mapToView(map, placePx);
  QRectF const shownPx = placePx & QRectF(painter.viewport());
  QRectF const world = toPx.inverted().mapRect(shownPx);
  Box const shown{world.left(), world.top(), world.right(), world.bottom()};
  SysCarto::FeatureStore const& store = *found().store;
  Shapes shapes;
  shapes.areas.setFillRule(Qt::OddEvenFill);
  shapes.points.setFillRule(Qt::WindingFill);
  int left = mostFeatures;
  for (int const number : found().numbers) {
    SysCarto::Feature const& feature = store.features[static_cast<size_t>(number)];
    if (!feature.box.meets(shown)) continue;
    if (--left < 0) break;
    for (int i = feature.firstPart; i < feature.firstPart + feature.partCount; ++i)
      if (store.parts[static_cast<size_t>(i)].box.meets(shown)) add(store.parts[static_cast<size_t>(i)], toPx, shapes);
  }
  painter.save();
  painter.setClipRect(placePx, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(shapes.areas, fill);
  painter.setBrush(Qt::NoBrush);
  for (auto const& [color, width] : {std::make_pair(halo, haloPx), std::make_pair(ink, strokePx)}) {
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shapes.lines);
    painter.drawPath(shapes.points);
  }
  painter.restore();
}

Box FeatureHighlight::boxOf(SysCarto::VectorLayer const& layer, std::vector<qint64> const& ids) {
  Box box;
  auto const store = layer.featuresNumbered(ids);
  for (int const number : SysCarto::featuresOf(*store, ids)) box.add(store->features[static_cast<size_t>(number)].box);
  return box;
}
