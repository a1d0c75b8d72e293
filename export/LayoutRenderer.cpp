#include "LayoutRenderer.h"

#include <SysCarto/FeatureLayer.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysDisplay/Units.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

using SysCarto::Element;
using SysCarto::FeatureLayer;
using SysCarto::Layer;
using SysCarto::Map;
using SysCarto::MapFrameElement;
using SysCarto::MapSurroundFrame;
using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace Plugin {

namespace {

constexpr int featurePhase = 1;

QRect frameOfSize(int widthPx, int heightPx) { return {QPoint(0, 0), QPoint(widthPx - 1, heightPx - 1)}; }

bool isOutsideScaleRange(double minScale, double maxScale, double mapScale) {
  return (minScale > 0.0 && mapScale >= maxScale) || (maxScale > 0.0 && minScale >= mapScale);
}

// The pixels of a page rectangle's corners in the whole image, both inclusive.
QRect pixelRectangle(Element const& element, DisplayTransformation const& pageTransform) {
  double xmin, ymin, xmax, ymax;
  element.GetGeometry()->GetEnvelope()->QueryCoords(xmin, ymin, xmax, ymax);
  return {pageTransform.FromMapPoint(xmin, ymax), pageTransform.FromMapPoint(xmax, ymin)};
}

QImage blankImage(QSize const& size, QColor const& color) {
  QImage image(size, QImage::Format_RGBA8888_Premultiplied);
  image.fill(color);
  return image;
}

// The part `clip` of a map, drawn by its layers and then its graphics. Both know no tile: they are given a
// transformation that shows just this part.
QImage mapImage(Map& map, QSize const& clip, _ptr_t<Envelope> const& clipExtent, double pageScale,
                _ptr_t<TrackerCancel> const& cancel) {
  auto const transform = map.GetDisplayTransformation()->Clone();
  transform->SetPaintDevice(nullptr);
  transform->SetDeviceFrame(frameOfSize(clip.width(), clip.height()));
  transform->SetVisibleBounds(clipExtent);
  transform->SetPageScale(pageScale);

  QImage image = blankImage(clip, Qt::transparent);
  QPainter painter(&image);
  for (int i = 0; i < map.GetLayerCount(); ++i) {
    auto const layer = map.GetLayer(i);
    if (!layer->IsVisible()) continue;
    if (isOutsideScaleRange(layer->GetMinScale(), layer->GetMaxScale(), transform->GetMapScale())) continue;
    layer->Draw(painter, transform, featurePhase, cancel);
  }
  if (IElementContainer* graphics = map.GetGraphicsContainer())
    graphics->Draw(painter, transform, featurePhase, cancel);
  return image;
}

// The feature layers of a map, those first whose labels are placed first.
QList<_ptr_t<Layer>> layersByLabelPriority(Map const& map) {
  QList<_ptr_t<Layer>> layers;
  for (auto const& layer : map.GetLayers())
    if (layer->GetType() == SysCarto::LayerType::Feature) layers << layer;
  auto const priority = [](_ptr_t<Layer> const& layer) {
    auto const features = ptr_cast<FeatureLayer>(layer);
    return features ? features->GetAnnotationProperties()->GetPriority() : std::numeric_limits<int>::min();
  };
  // Stable, so that the same map is labelled the same way every time.
  std::stable_sort(layers.begin(), layers.end(),
                   [&](auto const& a, auto const& b) { return priority(a) > priority(b); });
  return layers;
}

bool isLabelled(FeatureLayer const& layer, double mapScale) {
  auto const settings = layer.GetAnnotationProperties();
  return layer.IsAnnotationVisible() && layer.IsVisible() &&
         !isOutsideScaleRange(settings->GetMinScale(), settings->GetMaxScale(), mapScale);
}

// A map laid out as the export shows it: the size of its frame in pixels of the whole image, symbols at its resolution.
_ptr_t<DisplayTransformation> labelTransform(MapFrameElement const& frame, DisplayTransformation const& pageTransform) {
  auto const transform = frame.GetMap()->GetDisplayTransformation()->Clone();
  auto const bounds = transform->GetVisibleBounds();
  QRect const pixels = pixelRectangle(frame, pageTransform);
  transform->SetPaintDevice(nullptr);
  transform->SetDeviceFrame(
      QRect(QPoint(0, 0), QPoint(pixels.right() - pixels.left(), pixels.bottom() - pixels.top())));
  transform->SetVisibleBounds(bounds);
  transform->SetPageScale(pageTransform.GetPageScale());
  return transform;
}

QList<_ptr_t<Element>> placedLabels(MapFrameElement const& frame, DisplayTransformation const& pageTransform) {
  auto const transform = labelTransform(frame, pageTransform);
  QMap<int, QList<_ptr_t<SysGeometry::Polygon>>> obstacles;
  QList<_ptr_t<Element>> labels;
  for (auto const& layer : layersByLabelPriority(*frame.GetMap())) {
    auto const features = ptr_cast<FeatureLayer>(layer);
    if (features && isLabelled(*features, transform->GetMapScale()))
      features->GetAnnotationElements(obstacles, labels, transform, nullptr);
  }
  return labels;
}

}  // namespace

struct LayoutRenderer::Tile {
  QPainter& painter;
  QRect pixels;  // of the whole image
  _ptr_t<Envelope> extent;
  _ptr_t<DisplayTransformation> transform;
  _ptr_t<TrackerCancel> const& cancel;
};

LayoutRenderer::LayoutRenderer(_ptr_t<SysCarto::PageLayout> const& layout, QSize const& imageSize, int dpi)
    : layout_(layout), imageSize_(imageSize) {
  double pageWidthCm;
  layout->GetPage()->QuerySize(pageWidthCm, pageHeightCm_);
  cmPerPixel_ = pageWidthCm / imageSize.width();
  pageTransform_ = layout->GetDisplayTransformation()->Clone();
  pageTransform_->SetPageScale(dpi / SysDisplay::pixelsPerInch);
  pageTransform_->SetDeviceFrame(frameOfSize(imageSize.width(), imageSize.height()));
  pageTransform_->SetVisibleBounds(layout->GetPage()->GetPageEnvelope());
}

QSize LayoutRenderer::imageSize(SysCarto::Page const& page, int dpi) {
  double widthCm, heightCm;
  page.QuerySize(widthCm, heightCm);
  double const width = std::trunc(widthCm / SysDisplay::cmPerInch * dpi);
  double const height = std::trunc(heightCm / SysDisplay::cmPerInch * dpi);
  double const most = std::numeric_limits<int>::max();
  if (!(width >= 1.0 && height >= 1.0 && width <= most && height <= most)) return {};
  return {static_cast<int>(width), static_cast<int>(height)};
}

QSize LayoutRenderer::tileGrid() const {
  auto const count = [](int pixels) { return pixels / tileSize + (pixels % tileSize ? 1 : 0); };
  return {count(imageSize_.width()), count(imageSize_.height())};
}

QRect LayoutRenderer::tile(int column, int row) const {
  int const x0 = column * tileSize;
  int const y0 = row * tileSize;
  return {x0, y0, std::min(tileSize, imageSize_.width() - x0), std::min(tileSize, imageSize_.height() - y0)};
}

QImage LayoutRenderer::tileImage(QRect const& tile, _ptr_t<TrackerCancel> const& cancel) const {
  QImage image = blankImage(tile.size(), Qt::white);
  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter, tile, cancel);
  }
  return image;
}

void LayoutRenderer::drawTile(QPainter& painter, QRect const& pixels, _ptr_t<TrackerCancel> const& cancel) const {
  double const xmin = pixels.x() * cmPerPixel_;
  double const xmax = xmin + pixels.width() * cmPerPixel_;
  double const ymax = pageHeightCm_ - pixels.y() * cmPerPixel_;
  double const ymin = ymax - pixels.height() * cmPerPixel_;
  Tile const tile{painter, pixels, make<Envelope>(xmin, ymin, xmax, ymax), pageTransform_->Clone(), cancel};
  tile.transform->SetDeviceFrame(frameOfSize(pixels.width(), pixels.height()));
  tile.transform->SetVisibleBounds(tile.extent);

  layout_->GetPage()->DrawBackground(painter, tile.transform);
  layout_->GetPage()->DrawBorder(painter, tile.transform);
  for (auto const& element : layout_->GetGraphicsContainer()->GetElements())
    if (element->IsVisible() && element->GetBoundary(tile.transform)->GetEnvelope()->Intersects(tile.extent))
      drawElement(tile, element);
}

void LayoutRenderer::drawElement(Tile const& tile, _ptr_t<Element> const& element) const {
  if (element->GetType() == SysCarto::ElementType::DataFrame) {
    if (auto const frame = ptr_cast<MapFrameElement>(element)) return drawMapFrame(tile, frame);
  } else if (element->GetType() == SysCarto::ElementType::MapSurroundFrame) {
    if (auto const frame = ptr_cast<MapSurroundFrame>(element)) return drawSurroundFrame(tile, *frame);
  }
  element->Draw(tile.painter, tile.transform, tile.cancel);
}

void LayoutRenderer::drawMapFrame(Tile const& tile, _ptr_t<MapFrameElement> const& frame) const {
  QRect const whole = pixelRectangle(*frame, *pageTransform_);
  QRect const clip = whole.intersected(tile.pixels);

  // From whole pixels, so that the parts of neighbouring tiles meet exactly.
  auto const bounds = frame->GetMap()->GetDisplayTransformation()->GetFittedBounds();
  double const unitsPerPixel = bounds->GetWidth() / (whole.right() - whole.left() + 1);
  auto const clipExtent = ptr_cast<Envelope>(bounds->Clone());
  clipExtent->PutCoords(bounds->GetXMin() + (clip.left() - whole.left()) * unitsPerPixel,
                        bounds->GetYMax() - (clip.bottom() - whole.top() + 1) * unitsPerPixel,
                        bounds->GetXMin() + (clip.right() - whole.left() + 1) * unitsPerPixel,
                        bounds->GetYMax() - (clip.top() - whole.top()) * unitsPerPixel);
  MapFrameElementOutput(tile.painter, clip.translated(-tile.pixels.topLeft()), clipExtent, frame, tile.transform,
                        tile.cancel);
}

void LayoutRenderer::drawSurroundFrame(Tile const& tile, MapSurroundFrame& frame) {
  auto const surround = frame.GetMapSurround();
  if (!surround || !SysCarto::SurroundKind::isMadeOfElements(surround->kind))
    return frame.Draw(tile.painter, tile.transform, tile.cancel);
  frame.DrawShadow(tile.painter, tile.transform);
  frame.DrawBackground(tile.painter, tile.transform);
  frame.DrawBorder(tile.painter, tile.transform);
  for (auto const& element : surround->GetElements()) element->Draw(tile.painter, tile.transform, tile.cancel);
}

void MapFrameElementOutput(QPainter& painter, QRect const& clip, _ptr_t<Envelope> const& clipExtent,
                           _ptr_t<MapFrameElement> const& frame, _ptr_t<DisplayTransformation> const& tileTransform,
                           _ptr_t<TrackerCancel> const& cancel) {
  // A frame may touch a tile with its shadow, its border or the labels of its grids alone.
  QImage const map = clip.isEmpty()
                         ? QImage()
                         : mapImage(*frame->GetMap(), clip.size(), clipExtent, tileTransform->GetPageScale(), cancel);
  frame->DrawShadow(painter, tileTransform);
  frame->DrawBackground(painter, tileTransform);
  if (!map.isNull()) painter.drawImage(clip.left(), clip.top(), map);
  frame->DrawBorder(painter, tileTransform);
  for (int i = 0; i < frame->GetMapGridCount(); ++i) frame->GetMapGrid(i)->Draw(painter, cancel, tileTransform, frame);
}

PlacedLabels::PlacedLabels(IApplicationHook& hook, _ptr_t<DisplayTransformation> const& pageTransform) {
  CreateAnnotationElement(hook, maps_, labels_, pageTransform);
}

PlacedLabels::~PlacedLabels() { ClearAnnotationElement(maps_, labels_); }

void PlacedLabels::CreateAnnotationElement(IApplicationHook& hook, Maps& maps, Labels& labels,
                                           _ptr_t<DisplayTransformation> const& pageTransform) {
  auto const view = hook.GetActiveView();
  IElementContainer* elements = view ? view->GetGraphicsContainer() : nullptr;
  if (!elements) return;
  for (auto const& element : elements->GetElements()) {
    if (element->GetType() != SysCarto::ElementType::DataFrame || !element->IsVisible()) continue;
    auto const frame = ptr_cast<MapFrameElement>(element);
    if (!frame) continue;
    maps << frame->GetMap();
    labels << placedLabels(*frame, *pageTransform);
    if (IElementContainer* graphics = maps.last()->GetGraphicsContainer()) graphics->AddElements(labels.last());
  }
}

void PlacedLabels::ClearAnnotationElement(Maps const& maps, Labels const& labels) {
  for (int i = 0; i < maps.size(); ++i)
    if (IElementContainer* graphics = maps[i]->GetGraphicsContainer())
      for (auto const& label : labels[i]) graphics->DeleteElement(label);
}

}  // namespace Plugin
