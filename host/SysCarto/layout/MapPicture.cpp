#include "MapPicture.h"

#include "host/SysCarto/maps/LabelOrder.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/VectorCanvas.h"

#include <SysCarto/FeatureLayer.h>
#include <SysCarto/Map.h>
#include <SysDisplay/Units.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr int phase = 1;                  // of drawing: features and graphics
constexpr int maxCoordinatePx = 1 << 29;  // beyond it the width of a rectangle may not be an int

// The pixels of a frame, counted so that both corners belong to it.
QRect pixelsOf(MapFrameElement const& frame, DisplayTransformation const& transformation) {
  _ptr_t<Envelope> const rectangle = frame.GetEnvelope();
  QPoint const upperLeft = transformation.FromMapPoint(rectangle->GetXMin(), rectangle->GetYMax());
  QPoint const lowerRight = transformation.FromMapPoint(rectangle->GetXMax(), rectangle->GetYMin());
  for (int side : {upperLeft.x(), upperLeft.y(), lowerRight.x(), lowerRight.y()})
    if (side < -maxCoordinatePx || side > maxCoordinatePx) return {};
  return {upperLeft, lowerRight};
}

// The map's transformation for the part `clipPx` of a frame that has the pixels `framePx`.
_ptr_t<DisplayTransformation> transformationOf(Map const& map, QRect const& framePx, QRect const& clipPx,
                                               double pageScale) {
  auto const transformation = map.GetDisplayTransformation()->Clone();
  _ptr_t<Envelope> const shown = transformation->GetFittedBounds();
  double const unitsPerPx = shown->GetWidth() / framePx.width();
  double const xmin = shown->GetXMin() + (clipPx.left() - framePx.left()) * unitsPerPx;
  double const ymax = shown->GetYMax() - (clipPx.top() - framePx.top()) * unitsPerPx;
  transformation->SetPaintDevice(nullptr);
  transformation->SetDeviceFrame(QRect(QPoint(0, 0), clipPx.size()));
  transformation->SetVisibleBounds(
      SysUtility::make<Envelope>(xmin, ymax - clipPx.height() * unitsPerPx, xmin + clipPx.width() * unitsPerPx, ymax));
  transformation->SetPageScale(pageScale);
  return transformation;
}

// Those first whose labels are placed first.
QList<_ptr_t<FeatureLayer>> labelledLayers(Map const& map, double mapScale) {
  QList<_ptr_t<FeatureLayer>> layers;
  for (auto const& layer : map.GetLayers())
    if (auto const features = SysUtility::ptr_cast<FeatureLayer>(layer)) layers << features;
  return inLabelOrder(layers, mapScale);
}

}  // namespace

MapPicture drawMap(MapFrameElement const& frame, DisplayTransformation const& transformation, QRect const& areaPx,
                   _ptr_t<TrackerCancel> const& cancel) {
  QRect const framePx = pixelsOf(frame, transformation), clipPx = framePx & areaPx;
  if (clipPx.isEmpty()) return {};
  MapPicture picture{QImage(clipPx.size(), QImage::Format_RGBA8888_Premultiplied), clipPx.topLeft()};
  picture.image.fill(Qt::transparent);
  _ptr_t<Map> const map = frame.GetMap();
  auto const mapped = transformationOf(*map, framePx, clipPx, transformation.GetPageScale());
  QPainter painter(&picture.image);
  for (_ptr_t<Layer> const& layer : map->GetLayers()) {
    if (cancel && cancel->IsCanced()) break;
    if (layer->showsAt(mapped->GetMapScale())) layer->Draw(painter, mapped, phase, cancel);
  }
  if (IElementContainer* graphics = map->GetGraphicsContainer()) graphics->Draw(painter, mapped, phase, cancel);
  return picture;
}

MapPixels mapPixels(MapFrameElement const& frame, DisplayTransformation const& transformation) {
  QRect const framePx = pixelsOf(frame, transformation);
  if (framePx.isEmpty()) return {};
  return {framePx, transformationOf(*frame.GetMap(), framePx, framePx, transformation.GetPageScale())};
}

void drawMapShapes(QPainter& painter, MapFrameElement const& frame, DisplayTransformation const& transformation,
                   QList<_ptr_t<Element>> const& labels, _ptr_t<TrackerCancel> const& cancel) {
  auto* const canvas = SysDisplay::VectorCanvas::of(painter);
  if (!canvas) return;
  QRect const framePx = pixelsOf(frame, transformation), clipPx = framePx & canvas->area().toAlignedRect();
  if (clipPx.isEmpty()) return;
  _ptr_t<Map> const map = frame.GetMap();
  auto const mapped = transformationOf(*map, framePx, clipPx, transformation.GetPageScale());
  canvas->save();
  canvas->clip(QRectF(clipPx));
  canvas->transform(QTransform::fromTranslate(clipPx.x(), clipPx.y()));
  canvas->beginLayer(map->GetName());
  canvas->beginSheet(1, SysDisplay::CanvasBlend::Normal);
  for (_ptr_t<Layer> const& layer : map->GetLayers()) {
    if (cancel && cancel->IsCanced()) break;
    if (!layer->showsAt(mapped->GetMapScale())) continue;
    canvas->beginLayer(layer->GetName());
    layer->Draw(painter, mapped, phase, cancel);
    canvas->endLayer();
  }
  if (IElementContainer* graphics = map->GetGraphicsContainer()) graphics->Draw(painter, mapped, phase, cancel);
  for (_ptr_t<Element> const& label : labels) {
    if (cancel && cancel->IsCanced()) break;
    label->Draw(painter, mapped, cancel);
  }
  canvas->endSheet();
  canvas->endLayer();
  canvas->restore();
}

void drawOverMap(MapPicture& picture, IElementContainer& elements, MapFrameElement const& frame,
                 DisplayTransformation const& transformation) {
  if (picture.image.isNull()) return;
  QRect const framePx = pixelsOf(frame, transformation), clipPx(picture.place, picture.image.size());
  QPainter painter(&picture.image);
  elements.Draw(painter, transformationOf(*frame.GetMap(), framePx, clipPx, transformation.GetPageScale()), 1, nullptr);
}

void drawOnFrame(QPainter& painter, MapFrameElement const& frame, DisplayTransformation const& transformation,
                 std::function<void(DisplayTransformation const&)> const& draw) {
  auto const [framePx, mapped] = mapPixels(frame, transformation);
  if (framePx.isEmpty()) return;
  if (auto* const canvas = SysDisplay::VectorCanvas::of(painter)) {
    canvas->save();
    canvas->clip(QRectF(framePx));
    canvas->transform(QTransform::fromTranslate(framePx.x(), framePx.y()));
    draw(*mapped);
    return canvas->restore();
  }
  painter.save();
  painter.setClipRect(framePx, Qt::IntersectClip);
  painter.translate(framePx.topLeft());
  draw(*mapped);
  painter.restore();
}

QTransform mapToPage(MapFrameElement const& frame) {
  auto const transformation = frame.GetMap()->GetDisplayTransformation();
  auto const shown = transformation->GetFittedBounds();
  auto const place = frame.GetEnvelope();
  double const scale = place->GetWidth() / shown->GetWidth();
  QTransform const onPage(scale, 0, 0, scale, place->GetXMin() - shown->GetXMin() * scale,
                          place->GetYMin() - shown->GetYMin() * scale);
  return SysDisplay::DisplayTransformationHost::turn(*transformation) * onPage;
}

QList<_ptr_t<Element>> placeLabels(MapFrameElement const& frame, double dpi, _ptr_t<TrackerCancel> const& cancel) {
  auto const rectangle = frame.GetEnvelope();
  auto const pixels = [dpi](double cm) {
    return static_cast<int>(std::clamp(std::round(cm / SysDisplay::cmPerInch * dpi), 1.0, double(maxCoordinatePx)));
  };
  QRect const framePx(0, 0, pixels(rectangle->GetWidth()), pixels(rectangle->GetHeight()));
  auto const transformation = transformationOf(*frame.GetMap(), framePx, framePx, dpi / SysDisplay::pixelsPerInch);
  QMap<int, QList<_ptr_t<SysGeometry::Polygon>>> obstacles;
  QList<_ptr_t<Element>> labels, unplaced;
  bool const showsUnplaced = MapHost::showsUnplaced(*frame.GetMap());
  for (auto const& layer : labelledLayers(*frame.GetMap(), transformation->GetMapScale())) {
    layer->GetAnnotationElements(obstacles, labels, transformation, cancel);
    auto const vector = showsUnplaced ? SysUtility::ptr_cast<VectorLayer>(layer) : nullptr;
    if (vector) unplaced << vector->unplacedLabels();
  }
  return labels + unplaced;
}

}  // namespace SysCarto
