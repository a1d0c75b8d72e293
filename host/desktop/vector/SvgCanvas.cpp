#include "SvgCanvas.h"

#include "host/desktop/output/XmlText.h"
#include "host/desktop/output/XmpPacket.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

using SysDisplay::CanvasBlend;
using SysDisplay::PointRuns;
using SysDisplay::ShapedLine;
using SysDisplay::Stroke;
using SysDisplay::TextFormat;
using SysDisplay::Tiling;

namespace {

// The unit of places, so that they are whole numbers, which are short: 1/2540 inch.
constexpr double unitsPerMm = 100;

// Symbols are drawn so many times finer, since a reader may look at them more closely than at a map.
constexpr double symbolFineness = 10;

// The unit of letters' outlines: so many to the font's size.
constexpr int outlineUnits = 1000;

char const* const caps[] = {"butt", "round", "square"};
char const* const joins[] = {"miter", "round", "bevel"};

void appendWhole(QByteArray& to, qint64 number, bool isFirst) {
  if (!isFirst && number >= 0) to += ' ';
  to += QByteArray::number(number);
}

QByteArray opacityOf(char const* name, QColor const& color) {
  return color.alpha() == 255 ? QByteArray() : ' ' + QByteArray(name) + "=\"" + svgNumber(color.alphaF()) + '"';
}

QByteArray colorOf(char const* name, QColor const& color) {
  return ' ' + QByteArray(name) + "=\"" + color.name().toLatin1() + '"' +
         opacityOf(name == QByteArray("fill") ? "fill-opacity" : "stroke-opacity", color);
}

QByteArray numbers(QTransform const& t) {
  return svgNumber(t.m11(), 6) + ' ' + svgNumber(t.m12(), 6) + ' ' + svgNumber(t.m21(), 6) + ' ' +
         svgNumber(t.m22(), 6) + ' ' + svgNumber(t.dx(), 2) + ' ' + svgNumber(t.dy(), 2);
}

QByteArray numbered(char const* name, double value, int decimals = 2) {
  return ' ' + QByteArray(name) + "=\"" + svgNumber(value, decimals) + '"';
}

QByteArray element(char const* tag, QString const& text) {
  if (text.isEmpty()) return {};
  return '<' + QByteArray(tag) + '>' + escapedXml(text) + "</" + tag + ">\n";
}

double scaleOf(QTransform const& t) { return std::sqrt(std::abs(t.determinant())); }

}  // namespace

SvgCanvas::SvgCanvas(QString const& path, Page const& page)
    : VectorCanvas(page.sizePx, page.dpi), writer_(path), textAsShapes_(page.textAsShapes) {
  SysCarto::FileInformation const& about = page.information;
  double const unitsPerPx = page.sizeMm.width() * unitsPerMm / page.sizePx.width();
  states_.push_back({QTransform::fromScale(unitsPerPx, unitsPerPx), 0});
  QByteArray const width = svgNumber(page.sizeMm.width()), height = svgNumber(page.sizeMm.height());
  writer_.write(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" version=\"1.1\" width=\"" +
      width + "mm\" height=\"" + height + "mm\" viewBox=\"0 0 " + width + ' ' + height +
      "\" fill-rule=\"evenodd\" clip-rule=\"evenodd\" xml:space=\"preserve\"" +
      (about.language.isEmpty() ? QByteArray() : svgAttribute("xml:lang", about.language)) + ">\n" +
      element("title", about.title) + element("desc", about.subject) + "<metadata>" + xmpPacket(about, {}) +
      "</metadata>\n");
  beginNamed(about.title, " transform=\"scale(" + svgNumber(1 / unitsPerMm) + ")\"");
}

QString SvgCanvas::finish() {
  writer_.endGroup();
  writer_.write("</svg>\n");
  return writer_.finish();
}

// Each place is told by how far it lies from the one before, whole numbers that never drift.
QByteArray SvgCanvas::path(PointRuns const& runs, bool closed) const {
  QByteArray d;
  qint64 x = 0, y = 0;
  for (int i = 0; i < runs.count(); ++i) {
    qint64 firstX = x, firstY = y;
    bool isDot = true;
    for (int j = 0; j < runs.size(i); ++j) {
      QPointF const place = toUnits().map(runs.run(i)[j]);
      qint64 const nextX = std::llround(place.x()), nextY = std::llround(place.y());
      if (j > 0 && nextX == x && nextY == y) continue;
      if (j == 0) d += 'm';
      appendWhole(d, nextX - x, j == 0);
      appendWhole(d, nextY - y, false);
      x = nextX;
      y = nextY;
      if (j == 0) {
        firstX = x;
        firstY = y;
      } else {
        isDot = false;
      }
    }
    if (isDot) d += "h0";
    if (!closed) continue;
    d += 'z';
    x = firstX;
    y = firstY;
  }
  return d;
}

// From units of something on the page, given by pixels, to those of the file.
QByteArray SvgCanvas::matrix(char const* name, QTransform const& toPage) const {
  return ' ' + QByteArray(name) + "=\"matrix(" + numbers(toPage * toUnits()) + ")\"";
}

void SvgCanvas::fillBy(QByteArray const& paint, PointRuns const& rings, Qt::FillRule rule) {
  writer_.writePath(paint + (rule == Qt::WindingFill ? " fill-rule=\"nonzero\"" : ""), {}, path(rings, true));
}

void SvgCanvas::fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (!rings.isEmpty() && color.alpha() > 0) fillBy(colorOf("fill", color), rings, rule);
}

void SvgCanvas::fill(PointRuns const& rings, QGradient const& gradient, QTransform const& toPage, Qt::FillRule rule) {
  if (rings.isEmpty() || gradient.stops().isEmpty() || !toPage.isInvertible()) return;
  bool const isLinear = gradient.type() == QGradient::LinearGradient;
  QByteArray course = " gradientUnits=\"userSpaceOnUse\"" + matrix("gradientTransform", toPage);
  if (isLinear) {
    auto const& linear = static_cast<QLinearGradient const&>(gradient);
    course += numbered("x1", linear.start().x(), 4) + numbered("y1", linear.start().y(), 4) +
              numbered("x2", linear.finalStop().x(), 4) + numbered("y2", linear.finalStop().y(), 4);
  } else {
    auto const& radial = static_cast<QRadialGradient const&>(gradient);
    course += numbered("cx", radial.center().x(), 4) + numbered("cy", radial.center().y(), 4) +
              numbered("r", radial.centerRadius(), 4);
    if (radial.focalPoint() != radial.center())
      course += numbered("fx", radial.focalPoint().x(), 4) + numbered("fy", radial.focalPoint().y(), 4);
  }
  QByteArray stops;
  for (QGradientStop const& stop : SysDisplay::straightStops(gradient))
    stops += "<stop" + numbered("offset", stop.first, 6) + " stop-color=\"" + stop.second.name().toLatin1() + '"' +
             opacityOf("stop-opacity", stop.second) + "/>";
  fillBy(" fill=\"url(#" + writer_.define(isLinear ? "linearGradient" : "radialGradient", course, stops) + ")\"", rings,
         rule);
}

void SvgCanvas::fill(PointRuns const& rings, Tiling const& tiling) {
  QByteArray const& symbol = symbols_[static_cast<size_t>(tiling.symbol)];
  if (rings.isEmpty() || symbol.isEmpty()) return;
  // The symbol is in units of the file, the tiling in pixels.
  double const scale = scaleOf(states_.front().toUnits);
  QTransform const placed = QTransform::fromScale(1 / scale, 1 / scale) * tiling.toPage;
  QByteArray const pattern =
      writer_.define("pattern",
                     " patternUnits=\"userSpaceOnUse\"" + numbered("width", tiling.size.width() * scale, 4) +
                         numbered("height", tiling.size.height() * scale, 4) + matrix("patternTransform", placed),
                     "<use xlink:href=\"#" + symbol + "\"/>");
  fillBy(" fill=\"url(#" + pattern + ")\"", rings, Qt::OddEvenFill);
}

void SvgCanvas::stroke(PointRuns const& lines, bool closed, Stroke const& stroke) {
  if (lines.isEmpty()) return;
  QByteArray attributes = colorOf("stroke", stroke.color) + numbered("stroke-width", stroke.width * scaleOf(toUnits()));
  if (stroke.cap != SysDisplay::LineCapStyle::Butt)
    attributes += " stroke-linecap=\"" + QByteArray(caps[static_cast<int>(stroke.cap)]) + '"';
  if (stroke.join != SysDisplay::LineJoinStyle::Miter)
    attributes += " stroke-linejoin=\"" + QByteArray(joins[static_cast<int>(stroke.join)]) + '"';
  else
    attributes += numbered("stroke-miterlimit", std::max(1.0, 2 * stroke.miterLimit));
  QByteArray lengths;
  for (double const length : stroke.dashes.pattern) lengths += svgNumber(length * scaleOf(toUnits()), 2) + ' ';
  if (!lengths.isEmpty()) {
    attributes += " stroke-dasharray=\"" + lengths.trimmed() + '"';
    if (stroke.dashes.start > 0) attributes += numbered("stroke-dashoffset", stroke.dashes.start * scaleOf(toUnits()));
  }
  writer_.writePath({}, attributes, path(lines, closed));
}

QByteArray SvgCanvas::glyph(SysDisplay::Glyph const& glyph) {
  QByteArray& known = glyphs_[&glyph];
  if (!known.isEmpty()) return known;
  QPainterPath const outline = QTransform::fromScale(outlineUnits, outlineUnits).map(glyph.outline());
  QByteArray d;
  qint64 x = 0, y = 0;
  // Of a curve, all three points are told from where it begins.
  auto const add = [&](QPainterPath::Element const& to, bool isFirst) {
    appendWhole(d, std::llround(to.x) - x, isFirst);
    appendWhole(d, std::llround(to.y) - y, false);
  };
  for (int i = 0; i < outline.elementCount(); ++i) {
    auto const type = outline.elementAt(i).type;
    if (type == QPainterPath::MoveToElement) {
      if (i > 0) d += 'z';
      d += 'M' + QByteArray::number(std::llround(outline.elementAt(i).x));
      appendWhole(d, std::llround(outline.elementAt(i).y), false);
    } else if (type == QPainterPath::CurveToElement) {
      d += 'c';
      for (int j = 0; j < 3; ++j) add(outline.elementAt(i + j), j == 0);
      i += 2;
    } else {
      d += 'l';
      add(outline.elementAt(i), true);
    }
    x = std::llround(outline.elementAt(i).x);
    y = std::llround(outline.elementAt(i).y);
  }
  return known = writer_.define("path", " fill-rule=\"nonzero\" d=\"" + d + "z\"", {});
}

void SvgCanvas::outlines(ShapedLine const& line, QByteArray const& attributes, QTransform const& toPage) {
  constexpr double scale = 1.0 / outlineUnits;
  QByteArray markup = "<g" + attributes + matrix("transform", QTransform::fromScale(scale, scale) * toPage) + '>';
  for (SysDisplay::PlacedGlyph const& placed : line.glyphs) {
    if (placed.glyph->outline().isEmpty()) continue;
    QPointF const place = placed.place * outlineUnits;
    markup += "<use xlink:href=\"#" + glyph(*placed.glyph) + '"';
    if (std::abs(place.x()) >= 0.5) markup += numbered("x", place.x(), 0);
    if (std::abs(place.y()) >= 0.5) markup += numbered("y", place.y(), 0);
    markup += "/>";
  }
  writer_.write(markup + "</g>\n");
}

void SvgCanvas::text(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  if (line.ink.isNull() || format.color.alpha() == 0) return;
  QByteArray const paint = colorOf("fill", format.color);
  if (textAsShapes_) return outlines(line, paint + svgAttribute("aria-label", line.text), toPage);
  QTransform const placed = toPage * toUnits();
  double const em = scaleOf(placed), degrees = std::atan2(placed.m12(), placed.m11()) * 180 / M_PI;
  bool const isTurned = std::abs(degrees) > 1e-6;
  QByteArray turn;
  if (isTurned)
    turn = " transform=\"translate(" + svgNumber(placed.dx(), 1) + ' ' + svgNumber(placed.dy(), 1) + ")rotate(" +
           svgNumber(degrees, 4) + ")\"";
  QPointF const start = isTurned ? QPointF() : QPointF(placed.dx(), placed.dy());
  writer_.write("<text" + paint + turn + svgText(fonts_, format, line, em, start) + "</text>\n");
}

void SvgCanvas::halo(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  if (line.ink.isNull()) return;
  QColor color = format.haloColor;
  bool const isOpaque = color.alpha() == 255;
  if (!isOpaque) beginSheet(color.alphaF(), CanvasBlend::Normal);
  color.setAlpha(255);
  outlines(line,
           " fill=\"none\"" + colorOf("stroke", color) +
               numbered("stroke-width", 2 * format.haloSize / format.size * outlineUnits, 0) +
               " stroke-linejoin=\"round\"",
           toPage);
  if (!isOpaque) endSheet();
}

void SvgCanvas::picture(SysDisplay::PictureData const& picture, QTransform const& toPage) {
  if (picture.image.isNull()) return;
  QSize const size = picture.image.size();
  QByteArray& known = pictures_[picture.image.cacheKey()];
  if (known.isEmpty()) {
    QByteArray bytes = picture.jpeg;
    if (bytes.isEmpty()) {
      QBuffer buffer(&bytes);
      buffer.open(QIODevice::WriteOnly);
      picture.image.save(&buffer, "PNG");
    }
    known = writer_.define("image",
                           numbered("width", size.width()) + numbered("height", size.height()) +
                               " preserveAspectRatio=\"none\" xlink:href=\"data:image/" +
                               (picture.jpeg.isEmpty() ? "png" : "jpeg") + ";base64," + bytes.toBase64() + '"',
                           {});
  }
  QTransform const square = QTransform::fromScale(1.0 / size.width(), 1.0 / size.height());
  writer_.write("<use xlink:href=\"#" + known + '"' + matrix("transform", square * toPage) + "/>\n");
}

void SvgCanvas::symbolBegun(QRectF const&) {
  writer_.beginPart();
  double const scale = scaleOf(states_.front().toUnits) * symbolFineness;
  states_.push_back({QTransform::fromScale(scale, scale), 0});
}

int SvgCanvas::symbolEnded() {
  states_.pop_back();
  QByteArray const markup = writer_.endPart();
  symbols_.push_back(markup.isEmpty()
                         ? QByteArray()
                         : writer_.define("g", " transform=\"scale(" + svgNumber(1 / symbolFineness) + ")\"", markup));
  return static_cast<int>(symbols_.size()) - 1;
}

void SvgCanvas::place(int symbol, QPointF const& origin) {
  QByteArray const& id = symbols_[static_cast<size_t>(symbol)];
  if (id.isEmpty()) return;
  QPointF const at = toUnits().map(origin);
  QByteArray const x = svgNumber(at.x(), 1), y = svgNumber(at.y(), 1);
  // In another symbol the units are those of symbols.
  bool const isInner = scaleOf(toUnits()) > 2 * scaleOf(states_.front().toUnits);
  writer_.write("<use xlink:href=\"#" + id +
                (isInner ? "\" transform=\"translate(" + x + ' ' + y + ")scale(" + svgNumber(symbolFineness) + ")\""
                         : "\" x=\"" + x + "\" y=\"" + y + '"') +
                "/>\n");
}

void SvgCanvas::beginSheet(double opacity, CanvasBlend blend) {
  QByteArray attributes;
  if (opacity < 1) attributes += numbered("opacity", opacity, 3);
  if (blend == CanvasBlend::Normal && opacity >= 1) attributes += " style=\"isolation:isolate\"";
  if (blend == CanvasBlend::Multiply) attributes += " style=\"mix-blend-mode:multiply\"";
  if (blend == CanvasBlend::Screen) attributes += " style=\"mix-blend-mode:screen\"";
  writer_.beginGroup(attributes);
}

void SvgCanvas::endSheet() { writer_.endGroup(); }

// A layer to who edits the file.
void SvgCanvas::beginNamed(QString const& name, QByteArray const& more) {
  QByteArray attributes = " id=\"g" + QByteArray::number(++groups_) + "\" inkscape:groupmode=\"layer\"";
  if (!name.isEmpty()) attributes += svgAttribute("inkscape:label", name);
  writer_.beginGroup(attributes + more, groups_ > 1 ? name : QString());
}

void SvgCanvas::beginText(QString const& beginning) { beginNamed(beginning); }
void SvgCanvas::beginFigure(QString const& description) { beginNamed(description); }
void SvgCanvas::endPart() { writer_.endGroup(); }
void SvgCanvas::beginLayer(QString const& name) { beginNamed(name); }
void SvgCanvas::endLayer() { writer_.endGroup(); }

void SvgCanvas::saved() { states_.push_back({toUnits(), 0}); }

void SvgCanvas::restored() {
  for (int i = 0; i < states_.back().clips; ++i) writer_.endGroup();
  states_.pop_back();
}

void SvgCanvas::clipped(PointRuns const& rings) {
  QByteArray const clip = writer_.define("clipPath", {}, "<path d=\"" + path(rings, false) + "\"/>");
  writer_.beginGroup(" clip-path=\"url(#" + clip + ")\"");
  ++states_.back().clips;
}

void SvgCanvas::transformed(QTransform const& transformation) {
  states_.back().toUnits = transformation * states_.back().toUnits;
}
