#include "VertexHandles.h"

#include "host/SysCarto/elements/GraphicElements.h"

#include <SysFramework/HostAccess.h>
#include <SysGeometry/MultiPolyline.h>

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

using SysCarto::Element;
using SysCarto::LineElement;
using SysCarto::PageLayout;
using SysCarto::PolygonElement;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr double handlePx = 8, middlePx = 6;
constexpr double reachPx = 7;
QColor const colour(0x1a, 0x73, 0xe8);

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(VertexHandles)
};

double distancePx(QPointF const& a, QPointF const& b) { return QLineF(a, b).length(); }

}  // namespace

bool VertexHandles::hasVertices(Element const& element) {
  return element.GetType() == SysCarto::ElementType::Line || element.GetType() == SysCarto::ElementType::Polygon;
}

VertexHandles::VertexHandles(PageLayout const& layout, _ptr_t<Element> const& element)
    : element_(element), toDevice_(layout.GetDisplayTransformation()->ToDevice()) {
  if (auto const line = ptr_cast<LineElement>(element)) rings_ = {line->shape()->GetPoints()};
  if (auto const polygon = ptr_cast<PolygonElement>(element)) {
    isClosed_ = true;
    rings_ = polygon->shape()->GetRings();
    for (auto& ring : rings_)
      if (ring.size() > 3 && ring.first() == ring.last()) ring.removeLast();
  }
}

QPointF VertexHandles::place(Vertex const& vertex) const {
  auto const& ring = rings_[vertex.ring];
  if (!vertex.isNew) return ring[vertex.index];
  return (ring[vertex.index - 1] + ring[vertex.index % ring.size()]) / 2;
}

Vertex VertexHandles::at(QPoint const& pixel) const {
  Vertex nearest;
  double distance = reachPx;
  for (bool const isNew : {false, true}) {
    for (int ring = 0; ring < rings_.size(); ++ring) {
      int const first = isNew ? 1 : 0, end = rings_[ring].size() + (isNew && isClosed_ ? 1 : 0);
      for (int i = first; i < end; ++i) {
        Vertex const vertex{ring, i, isNew};
        double const away = distancePx(toDevice_.map(place(vertex)), pixel);
        if (away >= distance) continue;
        nearest = vertex;
        distance = away;
      }
    }
    if (!nearest.isNone()) break;
  }
  return nearest;
}

Vertex VertexHandles::next(Vertex const& vertex, bool forward) const {
  QVector<Vertex> all;
  int present = -1;
  for (int ring = 0; ring < rings_.size(); ++ring)
    for (int i = 0; i < rings_[ring].size(); ++i) {
      if (vertex.ring == ring && vertex.index == i) present = all.size();
      all << Vertex{ring, i, false};
    }
  if (all.isEmpty()) return {};
  if (present < 0) return forward ? all.first() : all.last();
  return all[(present + (forward ? 1 : all.size() - 1)) % all.size()];
}

VertexHandles::Rings VertexHandles::moved(Vertex const& vertex, QPointF const& to) const {
  Rings rings = rings_;
  if (vertex.isNew)
    rings[vertex.ring].insert(vertex.index, to);
  else
    rings[vertex.ring][vertex.index] = to;
  return rings;
}

VertexHandles::Rings VertexHandles::without(Vertex const& vertex) const {
  Rings rings = rings_;
  auto& ring = rings[vertex.ring];
  ring.remove(vertex.index);
  if (ring.size() < (isClosed_ ? 3 : 2)) rings.remove(vertex.ring);
  return rings;
}

void VertexHandles::replace(PageLayout& layout, QString const& stepName, Rings const& rings) const {
  auto const selected = workplace(layout).find(element_->GetHandle());
  if (selected != element_) return;  // it has changed or gone meanwhile
  auto const clone = element_->Clone();
  if (auto const line = ptr_cast<LineElement>(clone)) line->setShape(make<SysGeometry::Polyline>(rings.first()));
  if (auto const polygon = ptr_cast<PolygonElement>(clone)) polygon->setShape(make<SysGeometry::Polygon>(rings));
  if (VertexHandles(layout, clone).rings_ == rings_) return;  // it lies as far as it may
  {
    SysFramework::EditorOperation const operation(stepName);
    workplace(layout).ReplaceElement(element_->GetHandle(), clone);
  }
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

void VertexHandles::paint(QPainter& painter, Vertex const& chosen) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (int ring = 0; ring < rings_.size(); ++ring) {
    QPolygonF const line = toDevice_.map(QPolygonF(rings_[ring]));
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    isClosed_ ? painter.drawPolygon(line) : painter.drawPolyline(line);
    painter.setBrush(QColor(255, 255, 255, 200));
    for (int i = 1; i < line.size() + (isClosed_ ? 1 : 0); ++i)
      painter.drawEllipse(toDevice_.map(place({ring, i, true})), middlePx / 2, middlePx / 2);
    painter.setPen(QPen(colour, 1.25));
    for (int i = 0; i < line.size(); ++i) {
      bool const isChosen = chosen.ring == ring && chosen.index == i && !chosen.isNew;
      painter.setBrush(isChosen ? colour : QColor(Qt::white));
      painter.drawRect(QRectF(line[i].x() - handlePx / 2, line[i].y() - handlePx / 2, handlePx, handlePx));
    }
  }
  painter.restore();
}

VertexGesture::VertexGesture(PageLayout& layout, QPointF const& press, _ptr_t<Element> const& element,
                             Vertex const& vertex)
    : PageGesture(layout, press),
      handles_(layout, element),
      handle_(element->GetHandle()),
      vertex_(vertex),
      start_(handles_.place(vertex)) {}

Snapper::Result VertexGesture::snapped(QPointF const& point) const {
  return lines().ofPoint(start_ + point - press(), snapReachCm());
}

QString VertexGesture::numbers() const {
  return Texts::tr("x %1  y %2 cm").arg(inCm(target().x()), inCm(target().y()));
}

PageGesture::Outlines VertexGesture::outlines() const {
  Outlines lines;
  for (auto ring : handles_.moved(vertex_, target())) {
    if (handles_.isClosed()) ring << ring.first();
    lines << make<SysGeometry::Polyline>(ring);
  }
  return lines;
}

void VertexGesture::commit() {
  handles_.replace(layout(), vertex_.isNew ? Texts::tr("Add a vertex") : Texts::tr("Move the vertex"),
                   handles_.moved(vertex_, target()));
}
