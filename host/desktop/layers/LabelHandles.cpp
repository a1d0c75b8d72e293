#include "LabelHandles.h"

#include "PinnedLabels.h"

#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/desktop/drawing/VertexHandles.h"

#include <SysCarto/Map.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

using SysCarto::MapFrameElement;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

QColor const colour(0x1a, 0x73, 0xe8);

// Of the first edge of a rectangle, which runs along its text.
double angleOf(QPolygonF const& shape) {
  QPointF const way = shape[1] - shape[0];
  return std::atan2(way.y(), way.x()) * 180 / M_PI;
}

}  // namespace

bool hasParts(SysCarto::Element const& element) {
  return VertexHandles::hasVertices(element) || element.GetType() == SysCarto::ElementType::DataFrame;
}

QPointF ShownLabel::middle() const {
  QPolygonF const& shape = shapes[shapes.size() / 2];
  return (shape[0] + shape[2]) / 2;
}

LabelHandles::LabelHandles(PageLayout const& layout, _ptr_t<MapFrameElement> const& frame)
    : frame_(frame), toPixels_(layout.GetDisplayTransformation()->ToDevice()), toPage_(SysCarto::mapToPage(*frame)) {
  double const scale = frame->GetMap()->scale();
  for (auto const& one : frame->GetMap()->GetLayers()) {
    auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(one);
    if (!layer || !layer->showsAt(scale) || !layer->IsAnnotationVisible()) continue;
    for (SysCarto::PlacedLabel const& placed : layer->placedLabels()) {
      if (labels_.isEmpty() || labels_.last().layer != layer || labels_.last().key != placed.key)
        labels_ << ShownLabel{layer, placed.key, {}};
      labels_.last().shapes << toPage_.map(QPolygonF(placed.area));
    }
  }
}

ShownLabel LabelHandles::at(QPoint const& pixel) const {
  QPointF const point = toPixels_.inverted().map(QPointF(pixel));
  auto const hit = std::find_if(labels_.crbegin(), labels_.crend(), [&](ShownLabel const& label) {
    return std::any_of(label.shapes.begin(), label.shapes.end(),
                       [&](QPolygonF const& shape) { return shape.containsPoint(point, Qt::OddEvenFill); });
  });
  return hit == labels_.crend() ? ShownLabel() : *hit;
}

void LabelHandles::paint(QPainter& painter, ShownLabel const& chosen) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (ShownLabel const& label : labels_) {
    painter.setPen(QPen(colour, label.isSameAs(chosen) ? 2 : 0.5));
    for (QPolygonF const& shape : label.shapes) painter.drawPolygon(toPixels_.map(shape));
  }
  painter.restore();
}

void LabelHandles::move(DocumentViews& views, ShownLabel const& label, QPointF const& middle) const {
  QPointF const place = toPage_.inverted().map(middle);
  give(views, label, {label.key, place.x(), place.y(), angleOf(label.shapes[label.shapes.size() / 2]), false});
}

void LabelHandles::hide(DocumentViews& views, ShownLabel const& label) const {
  give(views, label, {label.key, 0, 0, 0, true});
}

void LabelHandles::give(DocumentViews& views, ShownLabel const& label, SysCarto::PinnedLabel const& pin) const {
  QStringList told;
  QString const problem =
      PinnedLabels{pin, false}.giveTo(views.document(), SysCarto::Editable::layer(frame_->GetMap(), label.layer), told);
  if (!problem.isEmpty()) told << problem;
  if (!told.isEmpty()) emit views.layoutView().told(told.join(QLatin1Char('\n')));
  views.activeView()->PartialRefresh(SysCarto::RefreshPhase::Everything, nullptr);
}

LabelGesture::LabelGesture(DocumentViews& views, PageLayout& layout, QPointF const& press, LabelHandles const& handles,
                           ShownLabel const& label)
    : PageGesture(layout, press), views_(views), handles_(handles), label_(label) {}

PageGesture::Outlines LabelGesture::outlines() const {
  Outlines moved;
  for (QPolygonF shape : label_.shapes) {
    shape.translate(point() - press());
    moved << SysUtility::make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{shape});
  }
  return moved;
}

void LabelGesture::commit() { handles_.move(views_, label_, label_.middle() + point() - press()); }
