#include "LabelIndex.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <QTransform>

#include <algorithm>

namespace SysCarto {

namespace {

using Rings = QVector<QVector<QPointF>>;

double side(QPointF const& a, QPointF const& b, QPointF const& p) {
  return (b.x() - a.x()) * (p.y() - a.y()) - (b.y() - a.y()) * (p.x() - a.x());
}

bool edgesMeet(QPointF const& a, QPointF const& b, QPointF const& c, QPointF const& d) {
  if (std::max(a.x(), b.x()) < std::min(c.x(), d.x()) || std::max(c.x(), d.x()) < std::min(a.x(), b.x()) ||
      std::max(a.y(), b.y()) < std::min(c.y(), d.y()) || std::max(c.y(), d.y()) < std::min(a.y(), b.y()))
    return false;
  return side(a, b, c) * side(a, b, d) <= 0 && side(c, d, a) * side(c, d, b) <= 0;
}

// Calls `visit` with the ends of each edge until it answers true.
template <class Visit>
bool anyEdge(Rings const& rings, Visit const& visit) {
  for (QVector<QPointF> const& ring : rings)
    for (int i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
      if (visit(ring[j], ring[i])) return true;
  return false;
}

bool anyEdgesMeet(Rings const& a, Rings const& b) {
  return anyEdge(a, [&](QPointF const& p, QPointF const& q) {
    return anyEdge(b, [&](QPointF const& r, QPointF const& s) { return edgesMeet(p, q, r, s); });
  });
}

bool holdsCornerOf(Rings const& a, Rings const& b) {
  for (QVector<QPointF> const& ring : b)
    if (!ring.isEmpty() && contains(a, ring.first())) return true;
  return false;
}

}  // namespace

bool contains(Rings const& rings, QPointF const& point) {
  bool inside = false;
  anyEdge(rings, [&](QPointF const& a, QPointF const& b) {
    if ((a.y() > point.y()) != (b.y() > point.y()) &&
        point.x() < a.x() + (b.x() - a.x()) * (point.y() - a.y()) / (b.y() - a.y()))
      inside = !inside;
    return false;
  });
  return inside;
}

LabelShape LabelShape::turned(QPointF const& centre, double width, double height, double degrees) {
  QTransform turn;
  turn.translate(centre.x(), centre.y());
  turn.rotate(degrees);
  double const w = width / 2, h = height / 2;
  return area(
      {{turn.map(QPointF(-w, -h)), turn.map(QPointF(w, -h)), turn.map(QPointF(w, h)), turn.map(QPointF(-w, h))}});
}

LabelShape LabelShape::area(Rings rings) {
  LabelShape shape{Box(), std::move(rings)};
  for (QVector<QPointF> const& ring : shape.rings)
    for (QPointF const& point : ring) shape.box.add(point.x(), point.y());
  return shape;
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

MarkIndex::MarkIndex(std::vector<Box> const& marks) : tree_(std::make_unique<BoxTree>(marks)) {}
MarkIndex::~MarkIndex() = default;

int MarkIndex::count(Box const& box, int most) const {
  int count = 0;
  tree_->any(box, [&](int) { return ++count >= most; });
  return count;
}

}  // namespace SysCarto
