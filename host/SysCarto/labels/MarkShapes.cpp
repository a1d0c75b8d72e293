#include "MarkShapes.h"

#include "host/SysDisplay/MarkerPainter.h"

namespace SysCarto {

namespace {

Box markShape(SysDisplay::Symbol const* symbol) {
  auto const* marker = dynamic_cast<SysDisplay::PreparableMarker const*>(symbol);
  auto const drawing = marker ? marker->prepare(1) : nullptr;
  if (!drawing) return {0, 0, 0, 0};
  QRectF const bounds = drawing->bounds();
  return {bounds.left(), -bounds.bottom(), bounds.right(), -bounds.top()};
}

}  // namespace

MarkShapes::MarkShapes(FeatureStore const& store, Renderer const& renderer, double mapScale)
    : store_(store), looks_(renderer, store, mapScale) {}

bool MarkShapes::isDrawn(int feature) const {
  int const symbolClass = store_.features[feature].symbolClass;
  return symbolClass >= 0 && !looks_.drawing()[symbolClass].empty();
}

Box const& MarkShapes::shapeOf(int feature) {
  int const symbolClass = looks_.drawing()[store_.features[feature].symbolClass].back();
  auto const key = std::make_pair(symbolClass, looks_.lookOf(symbolClass, feature));
  auto known = shapes_.find(key);
  if (known == shapes_.end())
    known = shapes_.emplace(key, markShape(looks_.symbol(symbolClass, key.second).get())).first;
  return known->second;
}

Box MarkShapes::at(int feature, QPointF const& place) {
  Box const& shape = shapeOf(feature);
  return {place.x() + shape.xmin, place.y() + shape.ymin, place.x() + shape.xmax, place.y() + shape.ymax};
}

}  // namespace SysCarto
