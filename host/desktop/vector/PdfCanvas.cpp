#include "PdfCanvas.h"

#include "host/SysDisplay/TextShaper.h"

#include <cmath>

using SysDisplay::CanvasBlend;
using SysDisplay::LineCapStyle;
using SysDisplay::LineJoinStyle;
using SysDisplay::PointRuns;
using SysDisplay::ShapedLine;
using SysDisplay::Stroke;
using SysDisplay::TextFormat;
using SysDisplay::Tiling;

namespace {

// The unit of contents: so many to a pixel, so that places are whole numbers, which are short. At 300 DPI 1/4800 inch.
constexpr int unitsPerPx = 16;

// The unit of letters' outlines: so many to the font's size.
constexpr int outlineUnits = 2000;

// Letters that are nearer than this to where they would stand by themselves, in thousandths of the font's size, do.
constexpr double nearestPlace = 1;

QByteArray whole(double value) { return QByteArray::number(static_cast<qint64>(std::llround(value))); }

QByteArray colorOf(QColor const& color, char const* verb) {
  return pdfNumber(color.redF()) + ' ' + pdfNumber(color.greenF()) + ' ' + pdfNumber(color.blueF()) + verb;
}

// From pixels to pixels as from pixels to units.
QTransform inUnits(QTransform const& toPage) { return toPage * QTransform::fromScale(unitsPerPx, unitsPerPx); }

QByteArray dashesOf(SysDisplay::Dashes const& dashes) {
  QByteArray lengths;
  for (double const length : dashes.pattern) lengths += pdfNumber(length * unitsPerPx) + ' ';
  return " [" + lengths.trimmed() + "] " + pdfNumber(dashes.start * unitsPerPx) + " d";
}

QColor opaque(QColor color) {
  color.setAlpha(255);
  return color;
}

}  // namespace

PdfCanvas::PdfCanvas(PdfObjects& objects, PdfFonts& fonts, QSize const& size, double dpi, bool textAsShapes,
                     bool hasLayers)
    : VectorCanvas(size, dpi),
      objects_(objects),
      fonts_(fonts),
      textAsShapes_(textAsShapes),
      hasLayers_(hasLayers),
      contents_({Content{{}, {State()}, false}}) {}

QTransform PdfCanvas::toPoints(QSizeF const& pagePt) const {
  double const scale = pagePt.width() / size().width();
  return {scale, 0, 0, -scale, 0, pagePt.height()};
}

// Readers put the pieces together.
QPDFObjectHandle PdfCanvas::content(QSizeF const& pagePt) const {
  QTransform const toPage = toPoints(pagePt);
  QByteArray const scale = pdfNumber(toPage.m11() / unitsPerPx);
  QByteArray const beginning = "q " + scale + " 0 0 -" + scale + " 0 " + pdfNumber(pagePt.height()) + " cm\n";
  QByteArray const end = contents_.front().operators + "Q\n";
  if (pieces_.empty()) return objects_.packed(beginning + end);
  std::vector<QPDFObjectHandle> all{objects_.packed(beginning)};
  all.insert(all.end(), pieces_.begin(), pieces_.end());
  all.push_back(objects_.packed(end));
  return QPDFObjectHandle::newArray(all);
}

// What the page itself has is packed as it grows, between operators: a tenth of the room, and a whole one takes
// seconds.
PdfCanvas::Content& PdfCanvas::out() {
  constexpr int pieceBytes = 1 << 20;
  QByteArray& operators = contents_.front().operators;
  if (contents_.size() == 1 && operators.size() >= pieceBytes && operators.endsWith('\n')) {
    pieces_.push_back(objects_.packed(operators));
    operators.clear();
  }
  return contents_.back();
}

PdfCanvas::Content PdfCanvas::take() {
  Content content = std::move(contents_.back());
  contents_.pop_back();
  return content;
}

void PdfCanvas::point(QPointF const& point, char const* verb) {
  out().operators += whole(point.x() * unitsPerPx) + ' ' + whole(point.y() * unitsPerPx) + verb;
}

void PdfCanvas::path(PointRuns const& runs, bool closed) {
  for (int i = 0; i < runs.count(); ++i) {
    point(runs.run(i)[0], " m\n");
    for (int j = 1; j < runs.size(i); ++j) point(runs.run(i)[j], " l\n");
    if (runs.size(i) == 1) point(runs.run(i)[0], " l\n");  // a dot, by its caps
    if (closed) out().operators += "h\n";
  }
}

void PdfCanvas::matrix(QTransform const& t, char const* verb) {
  out().operators += pdfMatrix({t.m11(), t.m12(), t.m21(), t.m22(), t.dx() * unitsPerPx, t.dy() * unitsPerPx}) + verb;
}

void PdfCanvas::setOpacity(int opacity) {
  if (opacity == state().opacity) return;
  state().opacity = opacity;
  out().operators += objects_.state(opacity / 255.0, CanvasBlend::Normal) + " gs\n";
}

void PdfCanvas::setFill(QColor const& color) {
  setOpacity(color.alpha());
  if (opaque(color) == state().fill) return;
  state().fill = opaque(color);
  out().operators += colorOf(color, " rg\n");
}

void PdfCanvas::setStroke(QColor const& color, Stroke const& stroke) {
  setOpacity(color.alpha());
  if (opaque(color) != state().stroke) out().operators += colorOf(color, " RG\n");
  state().stroke = opaque(color);
  // The numbers of caps and joins are PDF's.
  QByteArray const line = pdfNumber(stroke.width * unitsPerPx) + " w " +
                          QByteArray::number(static_cast<int>(stroke.cap)) + " J " +
                          QByteArray::number(static_cast<int>(stroke.join)) + " j " +
                          pdfNumber(std::max(1.0, 2 * stroke.miterLimit)) + " M" + dashesOf(stroke.dashes) + '\n';
  if (line == state().line) return;
  state().line = line;
  out().operators += line;
}

void PdfCanvas::fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (rings.isEmpty() || color.alpha() == 0) return;
  setFill(color);
  path(rings, false);
  out().operators += rule == Qt::OddEvenFill ? "f*\n" : "f\n";
}

void PdfCanvas::fill(PointRuns const& rings, QGradient const& gradient, QTransform const& toPage, Qt::FillRule rule) {
  if (rings.isEmpty() || gradient.stops().isEmpty() || !toPage.isInvertible()) return;
  setOpacity(255);
  auto const names = objects_.shading(gradient, toPage.inverted().mapRect(rings.bounds()));
  out().operators += "q\n";
  path(rings, true);
  out().operators += (rule == Qt::OddEvenFill ? "W* n " : "W n ") + pdfMatrix(inUnits(toPage)) + " cm " +
                     (names.second.isEmpty() ? QByteArray() : names.second + " gs ") + names.first + " sh Q\n";
}

// In a form of its own, since a pattern hangs on the coordinates that its content begins with.
void PdfCanvas::fill(PointRuns const& rings, Tiling const& tiling) {
  QByteArray const& form = symbols_[static_cast<size_t>(tiling.symbol)];
  if (rings.isEmpty() || form.isEmpty()) return;
  setOpacity(255);
  QByteArray const tiles =
      objects_.tiles(form, tiling.size * unitsPerPx,
                     QTransform(tiling.toPage.m11(), tiling.toPage.m12(), tiling.toPage.m21(), tiling.toPage.m22(),
                                tiling.toPage.dx() * unitsPerPx, tiling.toPage.dy() * unitsPerPx));
  contents_.push_back({"/Pattern cs " + tiles + " scn\n", {State()}, false});
  path(rings, false);
  out().operators += "f*\n";
  QRectF const bounds = rings.bounds();
  QRectF const box(bounds.topLeft() * unitsPerPx, bounds.bottomRight() * unitsPerPx);
  QByteArray const filled = objects_.form(take().operators, box);
  out().operators += filled + " Do\n";
}

void PdfCanvas::stroke(PointRuns const& lines, bool closed, Stroke const& stroke) {
  setStroke(stroke.color, stroke);
  path(lines, closed);
  out().operators += "S\n";
}

void PdfCanvas::text(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  if (line.ink.isNull() || format.color.alpha() == 0) return;
  setFill(format.color);
  std::vector<QString> const letters = SysDisplay::lettersOf(format, line);
  bool isPlain = !textAsShapes_;
  for (size_t i = 0; !textAsShapes_ && i < line.glyphs.size(); ++i) {
    SysDisplay::Glyph const& glyph = *line.glyphs[i].glyph;
    PdfFonts::Font& font = fonts_.font(glyph.font());
    isPlain = font.isEmbeddable && PdfFonts::use(font, glyph.index(), letters[i]) && isPlain;
  }
  if (!isPlain)
    out().operators += "/Span<</ActualText" + QByteArray::fromStdString(pdfText(line.text).unparse()) + ">>BDC\n";
  for (size_t first = 0, last; first < line.glyphs.size(); first = last) {
    auto& font = fonts_.font(line.glyphs[first].glyph->font());
    for (last = first + 1; last < line.glyphs.size(); ++last)
      if (&fonts_.font(line.glyphs[last].glyph->font()) != &font) break;
    if (font.isEmbeddable && !textAsShapes_)
      glyphs(font, line, first, last, toPage);
    else
      for (size_t i = first; i < last; ++i) placeOutline(line.glyphs[i], 0, toPage);
  }
  if (!isPlain) out().operators += "EMC\n";
}

// A run of glyphs that stand on one line, each moved to where it was shaped.
void PdfCanvas::glyphs(PdfFonts::Font& font, ShapedLine const& line, size_t first, size_t last,
                       QTransform const& toPage) {
  QByteArray& ops = out().operators;
  ops += "BT " + font.name + " 1 Tf ";
  for (size_t i = first; i < last;) {
    QPointF const start = line.glyphs[i].place;
    QTransform const placed = QTransform::fromTranslate(start.x(), start.y()) * toPage;
    matrix(QTransform(placed.m11() * unitsPerPx, placed.m12() * unitsPerPx, -placed.m21() * unitsPerPx,
                      -placed.m22() * unitsPerPx, placed.dx(), placed.dy()),
           " Tm [<");
    double at = start.x();
    for (; i < last && std::abs(line.glyphs[i].place.y() - start.y()) * 1000 < nearestPlace; ++i) {
      double const off = (at - line.glyphs[i].place.x()) * 1000;
      if (std::abs(off) >= nearestPlace) {
        ops += '>' + whole(off) + '<';
        at -= std::round(off) / 1000;
      }
      quint32 const glyph = line.glyphs[i].glyph->index();
      ops += QByteArray::number(glyph | 0x10000, 16).mid(1);
      at += PdfFonts::advance(font, glyph);
    }
    ops += ">] TJ ";
  }
  ops += "ET\n";
}

void PdfCanvas::placeOutline(SysDisplay::PlacedGlyph const& placed, double haloWidth, QTransform const& toPage) {
  if (placed.glyph->outline().isEmpty()) return;
  constexpr double scale = 1.0 * unitsPerPx / outlineUnits;
  out().operators += "q ";
  matrix(QTransform::fromScale(scale, scale) * QTransform::fromTranslate(placed.place.x(), placed.place.y()) * toPage,
         " cm ");
  out().operators += outline(*placed.glyph, haloWidth) + " Do Q\n";
}

// A letter as a form, filled, or stroked by the line that its halo is.
QByteArray PdfCanvas::outline(SysDisplay::Glyph const& glyph, double haloWidth) {
  QPainterPath const path = QTransform::fromScale(outlineUnits, outlineUnits).map(glyph.outline());
  QByteArray content;
  auto const add = [&](int i, char const* verb) {
    auto const element = path.elementAt(i);
    content += whole(element.x) + ' ' + whole(element.y) + verb;
  };
  for (int i = 0; i < path.elementCount(); ++i) {
    auto const type = path.elementAt(i).type;
    if (type == QPainterPath::CurveToElement) {
      add(i++, " ");
      add(i++, " ");
      add(i, " c\n");
    } else {
      add(i, type == QPainterPath::MoveToElement ? " m\n" : " l\n");
    }
  }
  content += haloWidth > 0 ? "h S\n" : "f\n";
  // Halos of up to a font's size share their forms.
  double const reach = std::max(haloWidth / 2, double(outlineUnits));
  return objects_.form(content, path.boundingRect().adjusted(-reach, -reach, reach, reach));
}

void PdfCanvas::halo(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  bool const isOpaque = format.haloColor.alpha() == 255;
  if (!isOpaque) beginSheet(format.haloColor.alphaF(), CanvasBlend::Normal);
  // Twice the reach, in the units of outlines; the forms are drawn in these.
  double const width = 2 * format.haloSize / format.size * outlineUnits;
  setStroke(opaque(format.haloColor), {{}, width / unitsPerPx, LineCapStyle::Round, LineJoinStyle::Round, 0});
  for (SysDisplay::PlacedGlyph const& placed : line.glyphs) placeOutline(placed, width, toPage);
  if (!isOpaque) endSheet();
}

void PdfCanvas::picture(SysDisplay::PictureData const& picture, QTransform const& toPage) {
  if (picture.image.isNull()) return;
  setOpacity(255);
  QTransform const upward(1, 0, 0, -1, 0, 1);
  QTransform const placed = upward * toPage;
  out().operators += "q ";
  matrix(QTransform(placed.m11() * unitsPerPx, placed.m12() * unitsPerPx, placed.m21() * unitsPerPx,
                    placed.m22() * unitsPerPx, placed.dx(), placed.dy()),
         " cm ");
  out().operators += objects_.picture(picture) + " Do Q\n";
}

void PdfCanvas::symbolBegun(QRectF const& bounds) {
  contents_.push_back({{}, {State()}, false});
  contents_.back().states.back().opacity = -1;  // whatever holds where it is placed
  contents_.back().states.back().fill = contents_.back().states.back().stroke = QColor();
  symbolBounds_.push_back(bounds);
}

int PdfCanvas::symbolEnded() {
  QRectF const bounds = symbolBounds_.back();
  symbolBounds_.pop_back();
  Content const content = take();
  QRectF const inUnits(bounds.topLeft() * unitsPerPx, bounds.bottomRight() * unitsPerPx);
  symbols_.push_back(content.operators.isEmpty() ? QByteArray() : objects_.form(content.operators, inUnits));
  return static_cast<int>(symbols_.size()) - 1;
}

void PdfCanvas::place(int symbol, QPointF const& origin) {
  QByteArray const& name = symbols_[static_cast<size_t>(symbol)];
  if (name.isEmpty()) return;
  out().operators += "q 1 0 0 1 ";
  point(origin, " cm ");
  out().operators += name + " Do Q\n";
}

void PdfCanvas::beginSheet(double opacity, CanvasBlend blend) {
  sheets_.push_back({opacity, blend});
  contents_.push_back({{}, {State()}, false});
}

// A sheet that is put on the page as it is, with nothing mixed in it, needs none.
void PdfCanvas::endSheet() {
  Sheet const sheet = sheets_.back();
  sheets_.pop_back();
  Content const content = take();
  if (content.operators.isEmpty()) return;
  bool const isPlain = sheet.opacity >= 1 && sheet.blend == CanvasBlend::Normal;
  if (sheet.blend != CanvasBlend::Normal) out().isBlended = true;
  if (isPlain && !content.isBlended) {
    out().operators += "q " +
                       (state().opacity == 255 ? QByteArray() : objects_.state(1, CanvasBlend::Normal) + " gs ") +
                       "0 g 0 G\n" + content.operators + "Q\n";
    return;
  }
  QRectF const inUnits(area().topLeft() * unitsPerPx, area().bottomRight() * unitsPerPx);
  out().operators += "q " + objects_.state(sheet.opacity, sheet.blend) + " gs " +
                     objects_.form("0 g 0 G\n" + content.operators, inUnits, PdfObjects::Sheet::Colors) + " Do Q\n";
}

void PdfCanvas::beginText(QString const&) {
  out().operators += "/P<</MCID " + QByteArray::number(static_cast<int>(parts_.size())) + ">>BDC\n";
  parts_.push_back({false, {}});
}

void PdfCanvas::beginFigure(QString const& description) {
  out().operators += "/Figure<</MCID " + QByteArray::number(static_cast<int>(parts_.size())) + ">>BDC\n";
  parts_.push_back({true, description});
}

void PdfCanvas::endPart() { out().operators += "EMC\n"; }

void PdfCanvas::beginLayer(QString const& name) {
  if (!hasLayers_) return;
  layers_.push_back(objects_.layer(name, layers_.empty() ? -1 : layers_.back()));
  out().operators += "/OC" + PdfObjects::layerName(layers_.back()) + " BDC\n";
}

void PdfCanvas::endLayer() {
  if (!hasLayers_) return;
  layers_.pop_back();
  out().operators += "EMC\n";
}

void PdfCanvas::saved() {
  out().operators += "q\n";
  out().states.push_back(state());
}

void PdfCanvas::restored() {
  out().operators += "Q\n";
  out().states.pop_back();
}

void PdfCanvas::clipped(PointRuns const& rings) {
  path(rings, true);
  out().operators += "W* n\n";
}

void PdfCanvas::transformed(QTransform const& transformation) { matrix(transformation, " cm\n"); }
