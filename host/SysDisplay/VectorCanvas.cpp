#include "VectorCanvas.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysDisplay {

namespace {

constexpr double mmPerInch = 25.4;

PointRuns ringsOf(QPainterPath const& path, QTransform const& toPage) {
  PointRuns rings;
  for (QPolygonF const& polygon : path.toSubpathPolygons(toPage)) {
    for (QPointF const& point : polygon) rings.add(point);
    rings.endRun();
  }
  return rings;
}

PointRuns ringsOf(QRectF const& rectangle) {
  PointRuns rings;
  for (QPointF const& corner :
       {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomRight(), rectangle.bottomLeft()})
    rings.add(corner);
  rings.endRun();
  return rings;
}

// Takes what is drawn with a painter alone, as the pictures of SVG files are: shapes that one colour fills, and
// pictures of all else.
class VectorEngine final : public QPaintEngine {
public:
  explicit VectorEngine(VectorCanvas& canvas) : QPaintEngine(AllFeatures), canvas_(canvas) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(QPaintEngineState const&) override {}

  void drawPath(QPainterPath const& path) override {
    withClip([&] {
      QPainter const& now = *painter();
      if (now.brush().style() != Qt::NoBrush) fill(path, now.brush());
      if (now.pen().style() == Qt::NoPen) return;
      QPainterPathStroker stroker(now.pen());
      if (now.pen().widthF() <= 0) stroker.setWidth(1);
      fill(stroker.createStroke(path), now.pen().brush());
    });
  }

  void drawPolygon(QPointF const* points, int count, PolygonDrawMode mode) override {
    QPainterPath path;
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    path.addPolygon(QPolygonF(QVector<QPointF>(points, points + count)));
    if (mode != PolylineMode) path.closeSubpath();
    drawPath(path);
  }

  void drawPixmap(QRectF const& target, QPixmap const& pixmap, QRectF const& source) override {
    drawImage(target, pixmap.toImage(), source, Qt::AutoColor);
  }

  void drawImage(QRectF const& target, QImage const& image, QRectF const& source, Qt::ImageConversionFlags) override {
    withClip([&] {
      QTransform const square = QTransform(target.width(), 0, 0, target.height(), target.x(), target.y());
      canvas_.beginSheet(painter()->opacity(), CanvasBlend::Normal);
      canvas_.picture({image.copy(source.toAlignedRect()), {}}, square * painter()->combinedTransform());
      canvas_.endSheet();
    });
  }

private:
  template <class Draw>
  void withClip(Draw const& draw) {
    bool const clips = painter()->hasClipping();
    if (clips) {
      canvas_.save();
      canvas_.clip(ringsOf(painter()->clipPath(), painter()->combinedTransform()));
    }
    draw();
    if (clips) canvas_.restore();
  }

  void fill(QPainterPath const& path, QBrush const& brush) {
    QTransform const toPage = painter()->combinedTransform();
    if (QGradient const* const gradient = brush.gradient(); gradient && isPlain(*gradient))
      return canvas_.fill(ringsOf(path, toPage), faded(*gradient, painter()->opacity()), ownSpace(path, brush) * toPage,
                          path.fillRule());
    if (brush.style() != Qt::SolidPattern) return fillByPixels(path, brush, toPage);
    QColor color = brush.color();
    color.setAlphaF(color.alphaF() * painter()->opacity());
    canvas_.fill(ringsOf(path, toPage), color, path.fillRule());
  }

  static bool isPlain(QGradient const& gradient) {
    return gradient.spread() == QGradient::PadSpread &&
           (gradient.type() == QGradient::LinearGradient || gradient.type() == QGradient::RadialGradient);
  }

  static QGradient faded(QGradient gradient, double opacity) {
    QGradientStops stops = gradient.stops();
    for (QGradientStop& stop : stops) stop.second.setAlphaF(stop.second.alphaF() * opacity);
    gradient.setStops(stops);
    return gradient;
  }

  // Where the coordinates of a brush's gradient lie: in the shape's own, or from 0 to 1 across what bounds it.
  static QTransform ownSpace(QPainterPath const& path, QBrush const& brush) {
    QGradient::CoordinateMode const mode = brush.gradient()->coordinateMode();
    if (mode == QGradient::LogicalMode) return brush.transform();
    QRectF const box = path.boundingRect();
    QTransform const unit(box.width(), 0, 0, box.height(), box.x(), box.y());
    return mode == QGradient::ObjectMode ? brush.transform() * unit : unit * brush.transform();
  }

  void fillByPixels(QPainterPath const& path, QBrush const& brush, QTransform const& toPage) {
    QRect const area = (toPage.map(path).boundingRect() & canvas_.area()).toAlignedRect();
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return;
    image.fill(Qt::transparent);
    QPainter own(&image);
    own.setRenderHint(QPainter::Antialiasing);
    own.setOpacity(painter()->opacity());
    own.translate(-area.topLeft());
    own.setTransform(toPage, true);
    own.fillPath(path, brush);
    own.end();
    canvas_.picture({image, {}}, QTransform(area.width(), 0, 0, area.height(), area.x(), area.y()));
  }

  VectorCanvas& canvas_;
};

}  // namespace

QGradientStops straightStops(QGradient const& gradient) {
  QGradientStops const stops = gradient.stops();
  if (gradient.interpolationMode() == QGradient::ComponentInterpolation) return stops;
  QGradientStops result;
  constexpr int pieces = 16;
  for (int i = 0; i < stops.size(); ++i) {
    double const to = stops[i].second.alphaF();
    double const from = i > 0 ? stops[i - 1].second.alphaF() : to;
    for (int piece = from == to ? pieces : 1; piece <= pieces; ++piece) {
      double const part = double(piece) / pieces, alpha = from + (to - from) * part;
      if (piece == pieces || alpha <= 0) {
        result << stops[i];
        break;
      }
      QColor const &a = stops[i - 1].second, &b = stops[i].second;
      double const share = to * part / alpha;  // of the later colour: colours count as much as they cover
      auto const mixed = [share](double x, double y) { return std::clamp(x + (y - x) * share, 0.0, 1.0); };
      result << QGradientStop(stops[i - 1].first + (stops[i].first - stops[i - 1].first) * part,
                              QColor::fromRgbF(mixed(a.redF(), b.redF()), mixed(a.greenF(), b.greenF()),
                                               mixed(a.blueF(), b.blueF()), alpha));
    }
  }
  return result;
}

VectorCanvas::VectorCanvas(QSize const& size, double dpi)
    : size_(size), dpi_(dpi), areas_({QRectF(QPointF(0, 0), size)}) {}
VectorCanvas::~VectorCanvas() = default;

VectorCanvas* VectorCanvas::of(QPainter const& painter) {
  auto* const device = dynamic_cast<VectorDevice*>(painter.device());
  return device ? &device->canvas() : nullptr;
}

void VectorCanvas::save() {
  areas_.push_back(areas_.back());
  saved();
}

void VectorCanvas::restore() {
  areas_.pop_back();
  restored();
}

void VectorCanvas::clip(PointRuns const& rings) {
  areas_.back() &= rings.bounds();
  clipped(rings);
}

void VectorCanvas::clip(QRectF const& rectangle) { clip(ringsOf(rectangle)); }

void VectorCanvas::transform(QTransform const& transformation) {
  areas_.back() = transformation.inverted().mapRect(areas_.back());
  transformed(transformation);
}

void VectorCanvas::beginSymbol(QRectF const& bounds) {
  areas_.push_back(bounds);
  symbolBegun(bounds);
}

int VectorCanvas::endSymbol() {
  areas_.pop_back();
  return symbolEnded();
}

void VectorCanvas::beginText(QString const&) {}
void VectorCanvas::beginFigure(QString const&) {}
void VectorCanvas::endPart() {}

VectorDevice::VectorDevice(VectorCanvas& canvas) : canvas_(canvas), engine_(std::make_unique<VectorEngine>(canvas)) {}
VectorDevice::~VectorDevice() = default;

QPaintEngine* VectorDevice::paintEngine() const { return engine_.get(); }

int VectorDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth: return canvas_.size().width();
    case PdmHeight: return canvas_.size().height();
    case PdmWidthMM: return static_cast<int>(std::round(canvas_.size().width() / canvas_.dpi() * mmPerInch));
    case PdmHeightMM: return static_cast<int>(std::round(canvas_.size().height() / canvas_.dpi() * mmPerInch));
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return static_cast<int>(std::round(canvas_.dpi()));
    case PdmNumColors: return std::numeric_limits<int>::max();
    case PdmDepth: return 32;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
  }
  return 0;
}

}  // namespace SysDisplay
