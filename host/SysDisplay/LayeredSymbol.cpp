#include "LayeredSymbol.h"

#include <cmath>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// What is prepared of the layers, the lowest first.
template <class Drawing>
using Drawings = std::vector<std::unique_ptr<Drawing>>;

class LayeredPath final : public PathDrawing {
public:
  explicit LayeredPath(Drawings<PathDrawing> layers) : layers_(std::move(layers)) {}

  double reachPx() const override {
    double reach = 0;
    for (auto const& layer : layers_) reach = std::max(reach, layer->reachPx());
    return reach;
  }
  void addRing(WorldRun const& run, bool outlined) override {
    for (auto const& layer : layers_) layer->addRing(run, outlined);
  }
  void addLine(WorldRun const& run) override {
    for (auto const& layer : layers_) layer->addLine(run);
  }
  void draw(Box const& shape) override {
    for (auto const& layer : layers_) layer->draw(shape);
  }

private:
  Drawings<PathDrawing> const layers_;
};

class LayeredMarker final : public MarkerDrawing {
public:
  explicit LayeredMarker(Drawings<MarkerDrawing> layers) : layers_(std::move(layers)) {}

  void draw(DrawTarget& target, QPointF const& position) override {
    for (auto const& layer : layers_) layer->drawAt(target, position);
  }
  QRectF bounds() const override {
    QRectF bounds;
    for (auto const& layer : layers_) bounds |= layer->bounds();
    return bounds;
  }

private:
  Drawings<MarkerDrawing> const layers_;
};

// The layers that draw something, as one drawing; an empty pointer where none does.
template <class Layered, class Drawing, class Layers, class Prepare>
std::unique_ptr<Drawing> preparedLayers(Layers const& layers, Prepare const& prepare) {
  Drawings<Drawing> drawings;
  for (auto const& layer : layers)
    if (auto drawing = prepare(*layer)) drawings.push_back(std::move(drawing));
  if (drawings.empty()) return nullptr;
  return std::make_unique<Layered>(std::move(drawings));
}

template <class Layers>
std::unique_ptr<PathDrawing> preparedPaths(DrawTarget& target, Layers const& layers) {
  return preparedLayers<LayeredPath, PathDrawing>(layers, [&](auto const& layer) { return prepared(target, layer); });
}

template <class Layers>
_ptr_t<Envelope> boundaryOf(Layers const& layers, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Geometry> const& geometry) {
  Box covered;
  for (auto const& layer : layers) {
    auto const own = layer->QueryBoundary(transformation, geometry);
    if (own) covered.add({own->GetXMin(), own->GetYMin(), own->GetXMax(), own->GetYMax()});
  }
  return covered.isEmpty() ? nullptr : covered.envelope();
}

}  // namespace

LayeredLineSymbol::LayeredLineSymbol() = default;
LayeredLineSymbol::LayeredLineSymbol(LayeredLineSymbol const&) = default;
LayeredLineSymbol& LayeredLineSymbol::operator=(LayeredLineSymbol const&) = default;
LayeredLineSymbol::~LayeredLineSymbol() = default;

_ptr_t<Symbol> LayeredLineSymbol::Clone() const { return make<LayeredLineSymbol>(*this); }
std::unique_ptr<PathDrawing> LayeredLineSymbol::prepare(DrawTarget& target) const {
  return preparedPaths(target, layers());
}
_ptr_t<Envelope> LayeredLineSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                  _ptr_t<Geometry> const& geometry) const {
  return boundaryOf(layers(), transformation, geometry);
}
void LayeredLineSymbol::resize(double factor) {
  for (auto const& layer : layers()) SysDisplay::resize(*layer, factor);
}
double LayeredLineSymbol::GetWidth() const {
  double widest = 0;
  for (auto const& layer : layers()) widest = std::max(widest, layer->GetWidth() + 2 * std::abs(layer->GetOffset()));
  return widest;
}
void LayeredLineSymbol::SetWidth(double points) {
  double const before = GetWidth();
  if (before > 0 && points > 0) resize(points / before);
}
QColor LayeredLineSymbol::GetColor() const { return layers().isEmpty() ? QColor() : layers().last()->GetColor(); }
void LayeredLineSymbol::SetColor(QColor color) {
  if (!layers().isEmpty()) layers().last()->SetColor(color);
}

QVector<LineSymbol const*> linesOf(LineSymbol const& symbol) {
  auto const* layered = dynamic_cast<LayeredLineSymbol const*>(&symbol);
  if (!layered) return {&symbol};
  QVector<LineSymbol const*> lines;
  for (auto const& layer : layered->layers()) lines += linesOf(*layer);
  return lines;
}

LayeredFillSymbol::LayeredFillSymbol() = default;
LayeredFillSymbol::LayeredFillSymbol(LayeredFillSymbol const&) = default;
LayeredFillSymbol& LayeredFillSymbol::operator=(LayeredFillSymbol const&) = default;
LayeredFillSymbol::~LayeredFillSymbol() = default;

_ptr_t<Symbol> LayeredFillSymbol::Clone() const { return make<LayeredFillSymbol>(*this); }
std::unique_ptr<PathDrawing> LayeredFillSymbol::prepare(DrawTarget& target) const {
  return preparedPaths(target, layers());
}
_ptr_t<Envelope> LayeredFillSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                  _ptr_t<Geometry> const& geometry) const {
  return boundaryOf(layers(), transformation, geometry);
}
void LayeredFillSymbol::resizeOutlines(double factor) {
  for (auto const& layer : layers()) SysDisplay::resize(*layer, factor);
}
QColor LayeredFillSymbol::GetColor() const { return layers().isEmpty() ? QColor() : layers().first()->GetColor(); }
void LayeredFillSymbol::SetColor(QColor color) {
  if (!layers().isEmpty()) layers().first()->SetColor(color);
}
_ptr_t<LineSymbol> LayeredFillSymbol::GetOutlineSymbol() const {
  return layers().isEmpty() ? nullptr : layers().last()->GetOutlineSymbol();
}
void LayeredFillSymbol::SetOutlineSymbol(_ptr_t<LineSymbol> const& outline) {
  if (!layers().isEmpty()) layers().last()->SetOutlineSymbol(outline);
}

LayeredMarkerSymbol::LayeredMarkerSymbol() = default;
LayeredMarkerSymbol::LayeredMarkerSymbol(LayeredMarkerSymbol const&) = default;
LayeredMarkerSymbol& LayeredMarkerSymbol::operator=(LayeredMarkerSymbol const&) = default;
LayeredMarkerSymbol::~LayeredMarkerSymbol() = default;

_ptr_t<Symbol> LayeredMarkerSymbol::Clone() const { return make<LayeredMarkerSymbol>(*this); }
std::unique_ptr<MarkerDrawing> LayeredMarkerSymbol::prepare(double pixelsPerPoint) const {
  return preparedLayers<LayeredMarker, MarkerDrawing>(layers(), [&](MarkerSymbol const& layer) {
    auto const* own = dynamic_cast<PreparableMarker const*>(&layer);
    return own ? own->prepare(pixelsPerPoint) : nullptr;
  });
}
double LayeredMarkerSymbol::GetSize() const {
  double largest = 0;
  for (auto const& layer : layers()) largest = std::max(largest, layer->GetSize());
  return largest;
}
void LayeredMarkerSymbol::SetSize(double points) {
  double const before = GetSize();
  if (before > 0 && points > 0)
    for (auto const& layer : layers()) layer->SetSize(layer->GetSize() * points / before);
}
double LayeredMarkerSymbol::GetAngle() const { return layers().isEmpty() ? 0 : layers().first()->GetAngle(); }
void LayeredMarkerSymbol::SetAngle(double degrees) {
  double const turn = degrees - GetAngle();
  for (auto const& layer : layers()) layer->SetAngle(layer->GetAngle() + turn);
}

}  // namespace SysDisplay
