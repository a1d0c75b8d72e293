#include "TextSymbol.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/TextShaper.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace SysDisplay {

using SysUtility::_ptr_t;

namespace {

// Where the lines of a text stand about its position, in units of the font's size.
class Block {
public:
  Block(TextFormat const& format, ShapedText const& text) : format_(format), text_(text) {
    double const rest = (text.lines.size() - 1) * lineHeight();
    switch (format.vertical) {
      case VerticalAlignment::Top: firstBaseline_ = text.ascent; break;
      case VerticalAlignment::Middle: firstBaseline_ = (text.ascent - text.descent - rest) / 2; break;
      case VerticalAlignment::Baseline: firstBaseline_ = 0; break;
      case VerticalAlignment::Bottom: firstBaseline_ = -text.descent - rest; break;
    }
  }

  QPointF start(size_t line) const {
    double const width = text_.lines[line].width;
    double const x = format_.horizontal == HorizontalAlignment::Left     ? 0
                     : format_.horizontal == HorizontalAlignment::Center ? -width / 2
                                                                         : -width;
    return {x, firstBaseline_ + line * lineHeight()};
  }

  QRectF bounds() const {
    QRectF all;
    for (size_t i = 0; i < text_.lines.size(); ++i) {
      ShapedLine const& line = text_.lines[i];
      if (line.ink.isNull()) continue;
      QRectF const box(0, -text_.ascent, line.width, text_.ascent + text_.descent);
      all |= (box | line.ink).translated(start(i));
    }
    return all;
  }

  template <class Visit>
  void visitGlyphs(Visit const& visit) const {
    for (size_t i = 0; i < text_.lines.size(); ++i)
      for (PlacedGlyph const& placed : text_.lines[i].glyphs)
        if (!placed.glyph->outline().isEmpty()) visit(*placed.glyph, start(i) + placed.place);
  }

private:
  double lineHeight() const { return (text_.ascent + text_.descent) * format_.lineSpacing; }

  TextFormat const& format_;
  ShapedText const& text_;
  double firstBaseline_ = 0;
};

// The radius of a box's corners.
double roundingOf(BoxShape shape, QSizeF const& box) {
  double const shorter = std::min(box.width(), box.height());
  return shape == BoxShape::Capsule ? shorter / 2 : shape == BoxShape::Rounded ? shorter / 5 : 0;
}

// Clockwise as seen, the upper right corner first. `toPixels` maps from points.
void addBox(QRectF const& box, double radius, QTransform const& toPixels, PointRuns& rings) {
  constexpr int steps = 24;  // of a quarter of a circle
  QRectF const middles = box.adjusted(radius, radius, -radius, -radius);
  QPointF const corners[] = {middles.topRight(), middles.bottomRight(), middles.bottomLeft(), middles.topLeft()};
  for (int i = 0; i <= 4 * steps + 3; ++i) {
    int const corner = i / (steps + 1), step = i % (steps + 1);
    double const angle = M_PI_2 * (corner - 1 + static_cast<double>(step) / steps);
    QPointF const edge = radius > 0 ? radius * QPointF(std::cos(angle), std::sin(angle)) : QPointF();
    rings.add(snapped(toPixels.map(corners[corner] + edge)));
  }
  rings.endRun();
}

// The box about a text: its area, and its line as what lies between two boxes.
void drawBox(DrawTarget& target, TextFormat const& format, QRectF const& text, QTransform const& toPixels) {
  PointRuns rings;
  double const padding = format.boxPadding;
  double const radius = roundingOf(format.boxShape, text.adjusted(-padding, -padding, padding, padding).size());
  auto const add = [&](double reach) {
    double const beyond = reach - padding;
    addBox(text.adjusted(-reach, -reach, reach, reach), radius > 0 ? std::max(radius + beyond, 0.0) : 0, toPixels,
           rings);
  };
  add(padding);
  if (format.boxColor.alpha() > 0) target.fill(rings, format.boxColor, Qt::OddEvenFill);
  if (!format.hasBoxLine()) return;
  rings.clear();
  add(padding + format.boxLineWidth / 2);
  add(padding - format.boxLineWidth / 2);
  target.fill(rings, format.boxLineColor, Qt::OddEvenFill);
}

void drawOn(VectorCanvas& canvas, TextFormat const& format, ShapedText const& shaped, QTransform const& toPage) {
  Block const block(format, shaped);
  auto const startOf = [&](size_t line) {
    QPointF const start = block.start(line);
    return QTransform::fromTranslate(start.x(), start.y()) * toPage;
  };
  if (format.hasHalo())
    for (size_t i = 0; i < shaped.lines.size(); ++i) canvas.halo(format, shaped.lines[i], startOf(i));
  for (size_t i = 0; i < shaped.lines.size(); ++i) canvas.text(format, shaped.lines[i], startOf(i));
}

QRectF inPoints(QRectF const& box, TextFormat const& format) {
  if (box.isNull()) return QRectF();
  double const reach = format.reach();
  return QRectF(box.topLeft() * format.size, box.size() * format.size).adjusted(-reach, -reach, reach, reach);
}

}  // namespace

bool TextFormat::operator==(TextFormat const& o) const {
  auto const all = [](TextFormat const& f) {
    return std::make_tuple(f.family, f.size, f.bold, f.italic, f.letterSpacing, f.lineSpacing, f.features,
                           f.color.rgba(), f.haloSize, f.haloColor.rgba(), f.boxColor.rgba(), f.boxLineColor.rgba(),
                           f.boxLineWidth, f.boxPadding, f.boxShape, f.horizontal, f.vertical);
  };
  return all(*this) == all(o);
}

double TextFormat::reach() const {
  return std::max(haloSize, hasBox() ? boxPadding + (hasBoxLine() ? boxLineWidth / 2 : 0) : 0);
}

TextSymbol::TextSymbol() : TextSymbol(TextFormat()) {}
TextSymbol::TextSymbol(TextFormat format) { setFormat(std::move(format)); }
TextSymbol::TextSymbol(TextSymbol const&) = default;
TextSymbol& TextSymbol::operator=(TextSymbol const&) = default;
TextSymbol::~TextSymbol() = default;

void TextSymbol::setFormat(TextFormat format) {
  format_ = std::move(format);
  fontKey_ = fontKeyOf(format_);
}

_ptr_t<TextSymbol> TextSymbol::resized(double factor) const {
  TextFormat format = format_;
  format.size *= factor;
  format.letterSpacing *= factor;
  format.haloSize *= factor;
  format.boxLineWidth *= factor;
  format.boxPadding *= factor;
  return SysUtility::make<TextSymbol>(std::move(format));
}

SymbolType TextSymbol::GetType() const { return SymbolType::Text; }
_ptr_t<Symbol> TextSymbol::Clone() const { return SysUtility::make<TextSymbol>(*this); }

void TextSymbol::Draw(QPainter&, _ptr_t<DisplayTransformation> const&, _ptr_t<SysGeometry::Geometry> const&) const {}
_ptr_t<SysGeometry::Envelope> TextSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const&,
                                                        _ptr_t<SysGeometry::Geometry> const&) const {
  return nullptr;
}

QPainterPath TextSymbol::outline(QString const& text) const {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  auto const shaped = shapedText(format_, fontKey_, text);
  Block(format_, *shaped).visitGlyphs([&](Glyph const& glyph, QPointF const& place) {
    path.addPath(glyph.outline().translated(place));
  });
  return QTransform::fromScale(format_.size, format_.size).map(path);
}

QRectF TextSymbol::bounds(QString const& text) const {
  return inPoints(Block(format_, *shapedText(format_, fontKey_, text)).bounds(), format_);
}

double TextSymbol::minWidth(QString const& text) const {
  return SysDisplay::minWidth(format_, fontKey_, text) * format_.size;
}

void TextSymbol::drawAt(DrawTarget& target, QPointF const& position, double angleDegrees, QString const& text) const {
  double const emPx = format_.size * target.pixelsPerPoint();
  if (DrawingBudget::isSpent() || emPx <= 0 || !std::isfinite(position.x()) || !std::isfinite(position.y())) return;
  auto const shaped = shapedText(format_, fontKey_, text);
  Block const block(format_, *shaped);
  QRectF const box = inPoints(block.bounds(), format_);
  if (box.isNull()) return;
  QTransform const turned = QTransform().rotate(-angleDegrees);
  QTransform const points = QTransform(turned).scale(target.pixelsPerPoint(), target.pixelsPerPoint());
  if (!points.mapRect(box).translated(position).adjusted(-1, -1, 1, 1).intersects(target.area())) return;

  if (format_.hasBox()) {
    double const reach = format_.reach();
    drawBox(target, format_, box.adjusted(reach, reach, -reach, -reach),
            points * QTransform::fromTranslate(position.x(), position.y()));
  }
  QTransform const toPixels = QTransform(turned).scale(emPx, emPx);
  DrawingBudget::spendOnVertices(text.size());
  if (auto* const canvas = target.canvas())
    return drawOn(*canvas, format_, *shaped, toPixels * QTransform::fromTranslate(position.x(), position.y()));
  QPointF const origin = snapped(position);  // by itself, so that the letters' shapes don't depend on it
  PointRuns rings;
  auto const place = [&](PointRuns const& glyph, QPointF const& at) {
    for (int i = 0; i < glyph.count(); ++i) {
      for (int j = 0; j < glyph.size(i); ++j) rings.add(origin + snapped(toPixels.map(glyph.run(i)[j] + at)));
      rings.endRun();
    }
  };
  if (format_.hasHalo()) {
    double const size = format_.haloSize / format_.size;
    block.visitGlyphs([&](Glyph const& glyph, QPointF const& at) { place(glyph.halo(size, emPx), at); });
    target.fill(rings, format_.haloColor, Qt::WindingFill);
    rings.clear();
  }
  block.visitGlyphs([&](Glyph const& glyph, QPointF const& at) { place(glyph.rings(emPx), at); });
  target.fill(rings, format_.color, Qt::WindingFill);
}

void TextSymbol::drawAt(QPainter& painter, QPointF const& position, double pixelsPerPoint, double angleDegrees,
                        QString const& text) const {
  DrawTarget target(painter, QTransform(), pixelsPerPoint);
  drawAt(target, position, angleDegrees, text);
}

}  // namespace SysDisplay
