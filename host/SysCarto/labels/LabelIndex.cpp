#include "LabelIndex.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <QTransform>

#include <algorithm>

namespace SysCarto {

using SysGeometry::anyEdge;

namespace {

bool anyEdgesMeet(Rings const& a, Rings const& b) {
  return anyEdge(a, [&](QPointF const& p, QPointF const& q) {
    return anyEdge(b, [&](QPointF const& r, QPointF const& s) { return SysGeometry::segmentsMeet(p, q, r, s); });
  });
}

bool holdsCornerOf(Rings const& a, Rings const& b) {
  return std::any_of(b.begin(), b.end(), [&](Ring const& ring) {
    return !ring.isEmpty() && SysGeometry::contains(a, ring.first().x(), ring.first().y());
  });
}

}  // namespace

LabelShape LabelShape::turned(QPointF const& centre, double width, double height, double degrees) {
  QTransform turn;
  turn.translate(centre.x(), centre.y());
  turn.rotate(degrees);
  double const w = width / 2, h = height / 2;
  return area(
      {{turn.map(QPointF(-w, -h)), turn.map(QPointF(w, -h)), turn.map(QPointF(w, h)), turn.map(QPointF(-w, h))}});
}

LabelShape LabelShape::area(Rings rings) {
  Box const box = SysGeometry::boxOf(rings);
  return {box, std::move(rings)};
}

Rings LabelShape::outline() const {
  if (!rings.isEmpty()) return rings;
  return {{{box.xmin, box.ymin}, {box.xmax, box.ymin}, {box.xmax, box.ymax}, {box.xmin, box.ymax}}};
}

bool intersects(LabelShape const& a, LabelShape const& b) {
  if (!a.box.meets(b.box)) return false;
  if (a.rings.isEmpty() && b.rings.isEmpty()) return true;
  Rings const first = a.outline(), second = b.outline();
  return anyEdgesMeet(first, second) || holdsCornerOf(first, second) || holdsCornerOf(second, first);
}

LabelIndex::LabelIndex() : tree_(std::make_unique<BoxTree>()) {}
LabelIndex::~LabelIndex() = default;

void LabelIndex::add(LabelShape shape) {
  if (shape.box.isEmpty()) return;
  tree_->insert(shape.box, static_cast<int>(shapes_.size()));
  shapes_.push_back(std::move(shape));
}

bool LabelIndex::isFree(LabelShape const& shape) const {
  return !tree_->any(shape.box, [&](int other) { return intersects(shape, shapes_[other]); });
}

MarkIndex::MarkIndex(Marks const& marks) : tree_(std::make_unique<BoxTree>(marks.boxes)), weights_(marks.weights) {}
MarkIndex::~MarkIndex() = default;

int MarkIndex::count(Box const& box, int most) const {
  int count = 0;
  tree_->any(box, [&](int mark) { return (count += weights_[mark]) >= most; });
  return std::min(count, most);
}

}  // namespace SysCarto
