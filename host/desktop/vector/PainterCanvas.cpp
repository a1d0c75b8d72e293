#include "PainterCanvas.h"

#include "host/SysDisplay/TextShaper.h"

#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

using SysDisplay::CanvasBlend;
using SysDisplay::PointRuns;
using SysDisplay::ShapedLine;
using SysDisplay::Stroke;
using SysDisplay::TextFormat;
using SysDisplay::Tiling;

namespace {

constexpr double mostPictureArea = 64e6;  // pixels; 256 MB
constexpr size_t betweenLooks = 64;

// A tenth of a pixel is finer than paper, and a file of such numbers half as long as one of exact ones.
QPointF rounded(QPointF const& point) { return {std::round(point.x() * 10) / 10, std::round(point.y() * 10) / 10}; }

QPainterPath pathOf(PointRuns const& runs, bool closed, Qt::FillRule rule = Qt::OddEvenFill) {
  QPainterPath path;
  path.setFillRule(rule);
  for (int i = 0; i < runs.count(); ++i) {
    path.moveTo(rounded(runs.run(i)[0]));
    for (int j = 1; j < runs.size(i); ++j) path.lineTo(rounded(runs.run(i)[j]));
    if (runs.size(i) == 1) path.lineTo(rounded(runs.run(i)[0]));  // a dot, by its caps
    if (closed) path.closeSubpath();
  }
  return path;
}

Qt::PenCapStyle capOf(SysDisplay::LineCapStyle cap) {
  switch (cap) {
    case SysDisplay::LineCapStyle::Butt: return Qt::FlatCap;
    case SysDisplay::LineCapStyle::Round: return Qt::RoundCap;
    case SysDisplay::LineCapStyle::Square: return Qt::SquareCap;
  }
  return Qt::FlatCap;
}

Qt::PenJoinStyle joinOf(SysDisplay::LineJoinStyle join) {
  switch (join) {
    case SysDisplay::LineJoinStyle::Miter: return Qt::SvgMiterJoin;
    case SysDisplay::LineJoinStyle::Round: return Qt::RoundJoin;
    case SysDisplay::LineJoinStyle::Bevel: return Qt::BevelJoin;
  }
  return Qt::SvgMiterJoin;
}

QPainter::CompositionMode modeOf(CanvasBlend blend) {
  switch (blend) {
    case CanvasBlend::Normal: return QPainter::CompositionMode_SourceOver;
    case CanvasBlend::Multiply: return QPainter::CompositionMode_Multiply;
    case CanvasBlend::Screen: return QPainter::CompositionMode_Screen;
  }
  return QPainter::CompositionMode_SourceOver;
}

// A picture or a preview keeps the letters of a text, but not its glyphs.
bool hasGlyphs(QPainter const& painter) { return painter.paintEngine()->type() == QPaintEngine::Pdf; }

QPainterPath outlineOf(ShapedLine const& line) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (SysDisplay::PlacedGlyph const& placed : line.glyphs)
    path.addPath(placed.glyph->outline().translated(placed.place));
  return path;
}

// The glyphs of a line by their fonts, in pixels of these.
std::vector<QGlyphRun> glyphsOf(ShapedLine const& line) {
  std::vector<QGlyphRun> runs;
  QVector<quint32> glyphs;
  QVector<QPointF> places;
  for (size_t i = 0; i < line.glyphs.size(); ++i) {
    QRawFont const& font = line.glyphs[i].glyph->font();
    glyphs << line.glyphs[i].glyph->index();
    places << line.glyphs[i].place * font.pixelSize();
    if (i + 1 < line.glyphs.size() && line.glyphs[i + 1].glyph->font() == font) continue;
    QGlyphRun& run = runs.emplace_back();
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    glyphs.clear();
    places.clear();
  }
  return runs;
}

}  // namespace

void PainterCanvas::run(std::vector<Action> const& actions, QPainter& painter) {
  for (Action const& action : actions) action(painter);
}

void PainterCanvas::runAsPicture(Sheet const& sheet, QRectF const& area, QPainter& painter) {
  QRect const box = area.toAlignedRect();
  double const scale = std::min(1.0, std::sqrt(mostPictureArea / (double(box.width()) * box.height())));
  QImage image((QSizeF(box.size()) * scale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
  if (box.isEmpty() || image.isNull()) return;
  image.fill(Qt::transparent);
  QPainter own(&image);
  own.setRenderHint(QPainter::Antialiasing);
  own.scale(double(image.width()) / box.width(), double(image.height()) / box.height());
  own.translate(-box.topLeft());
  run(sheet.actions, own);
  own.end();
  painter.save();
  painter.setOpacity(sheet.opacity);
  painter.setCompositionMode(modeOf(sheet.blend));
  painter.drawImage(QRectF(box), image);
  painter.restore();
}

void PainterCanvas::paint(QPainter& painter, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const {
  Sheet const& whole = sheets_.front();
  if (whole.isBlended) return runAsPicture(whole, QRectF({0, 0}, size()), painter);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (size_t i = 0; i < whole.actions.size(); ++i) {
    if (i % betweenLooks == 0 && cancel && cancel->IsCanced()) break;
    whole.actions[i](painter);
  }
  painter.restore();
}

void PainterCanvas::draw(QRectF const& bounds, Action action) {
  sheets_.back().bounds |= toCanvas_.back().mapRect(bounds);
  add(std::move(action));
}

void PainterCanvas::fillPath(QPainterPath const& path, QBrush const& brush) {
  draw(path.controlPointRect(), [path, brush](QPainter& painter) { painter.fillPath(path, brush); });
}

void PainterCanvas::fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (!rings.isEmpty() && color.alpha() > 0) fillPath(pathOf(rings, true, rule), color);
}

void PainterCanvas::fill(PointRuns const& rings, QGradient const& gradient, QTransform const& toPage,
                         Qt::FillRule rule) {
  if (rings.isEmpty() || !toPage.isInvertible()) return;
  QBrush brush(gradient);
  brush.setTransform(toPage);
  fillPath(pathOf(rings, true, rule), brush);
}

void PainterCanvas::fill(PointRuns const& rings, Tiling const& tiling) {
  auto const symbol = symbols_[static_cast<size_t>(tiling.symbol)].actions;
  QRectF const seen = rings.bounds() & area();
  if (symbol->empty() || seen.isEmpty() || tiling.size.isEmpty() || !tiling.toPage.isInvertible()) return;
  draw(seen, [path = pathOf(rings, true), symbol, tiling, seen](QPainter& painter) {
    QRectF const tiles = tiling.toPage.inverted().mapRect(seen);
    QSizeF const size = tiling.size;
    painter.save();
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setTransform(tiling.toPage, true);
    QTransform const first = painter.transform();
    for (double y = std::floor(tiles.top() / size.height()); y * size.height() < tiles.bottom(); ++y)
      for (double x = std::floor(tiles.left() / size.width()); x * size.width() < tiles.right(); ++x) {
        painter.setTransform(QTransform::fromTranslate(x * size.width(), y * size.height()) * first);
        run(*symbol, painter);
      }
    painter.restore();
  });
}

void PainterCanvas::stroke(PointRuns const& lines, bool closed, Stroke const& stroke) {
  QPen pen(stroke.color, stroke.width, Qt::SolidLine, capOf(stroke.cap), joinOf(stroke.join));
  pen.setMiterLimit(stroke.miterLimit);
  if (!stroke.dashes.pattern.empty() && stroke.width > 0) {
    QVector<qreal> inWidths;
    for (double const length : stroke.dashes.pattern) inWidths << length / stroke.width;
    pen.setDashPattern(inWidths);
    pen.setDashOffset(stroke.dashes.start / stroke.width);
  }
  double const reach = stroke.width * std::max(1.0, stroke.miterLimit);
  QRectF const bounds = lines.bounds().adjusted(-reach, -reach, reach, reach);
  draw(bounds, [path = pathOf(lines, closed), pen](QPainter& painter) { painter.strokePath(path, pen); });
}

void PainterCanvas::text(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  if (line.ink.isNull() || format.color.alpha() == 0) return;
  QPainterPath const outline = outlineOf(line);
  draw(toPage.mapRect(outline.controlPointRect()),
       [color = format.color, outline, runs = glyphsOf(line), toPage](QPainter& painter) {
         painter.save();
         painter.setTransform(toPage, true);
         if (!hasGlyphs(painter)) painter.fillPath(outline, color);
         painter.setPen(color);
         QTransform const units = painter.transform();
         for (QGlyphRun const& run : runs) {
           if (!hasGlyphs(painter)) break;
           double const scale = 1 / run.rawFont().pixelSize();
           painter.setTransform(QTransform::fromScale(scale, scale) * units);
           painter.drawGlyphRun({}, run);
         }
         painter.restore();
       });
}

void PainterCanvas::halo(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) {
  // The letters of a line as one path, which a color that can be seen through darkens once.
  double const width = 2 * format.haloSize / format.size;
  QPen const pen(format.haloColor, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  QPainterPath const outline = outlineOf(line);
  QRectF const bounds = toPage.mapRect(outline.controlPointRect().adjusted(-width, -width, width, width));
  draw(bounds, [outline, pen, toPage](QPainter& painter) {
    painter.save();
    painter.setTransform(toPage, true);
    painter.strokePath(outline, pen);
    painter.restore();
  });
}

void PainterCanvas::picture(SysDisplay::PictureData const& picture, QTransform const& toPage) {
  if (picture.image.isNull()) return;
  draw(toPage.mapRect(QRectF(0, 0, 1, 1)), [image = picture.image, toPage](QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(toPage, true);
    painter.drawImage(QRectF(0, 0, 1, 1), image);
    painter.restore();
  });
}

void PainterCanvas::symbolBegun(QRectF const& bounds) {
  sheets_.emplace_back();
  begun_.push_back(bounds);
}

int PainterCanvas::symbolEnded() {
  symbols_.push_back({std::make_shared<std::vector<Action> const>(std::move(sheets_.back().actions)), begun_.back()});
  sheets_.pop_back();
  begun_.pop_back();
  return static_cast<int>(symbols_.size()) - 1;
}

void PainterCanvas::place(int symbol, QPointF const& origin) {
  Symbol const& placed = symbols_[static_cast<size_t>(symbol)];
  if (placed.actions->empty()) return;
  draw(placed.bounds.translated(origin), [actions = placed.actions, origin](QPainter& painter) {
    painter.save();
    painter.translate(origin);
    run(*actions, painter);
    painter.restore();
  });
}

void PainterCanvas::beginSheet(double opacity, CanvasBlend blend) {
  Sheet& sheet = sheets_.emplace_back();
  sheet.opacity = opacity;
  sheet.blend = blend;
}

// A sheet that is put on the page as it is, with nothing mixed in it, needs none.
void PainterCanvas::endSheet() {
  auto const ended = std::make_shared<Sheet>(std::move(sheets_.back()));
  sheets_.pop_back();
  if (ended->actions.empty()) return;
  sheets_.back().bounds |= ended->bounds;
  bool const isMixed = ended->blend != CanvasBlend::Normal;
  sheets_.back().isBlended = sheets_.back().isBlended || isMixed;
  if (ended->opacity < 1 || isMixed || ended->isBlended)
    add([ended, area = area() & toCanvas_.back().inverted().mapRect(ended->bounds)](QPainter& painter) {
      runAsPicture(*ended, area, painter);
    });
  else
    std::move(ended->actions.begin(), ended->actions.end(), std::back_inserter(sheets_.back().actions));
}

void PainterCanvas::saved() {
  toCanvas_.push_back(toCanvas_.back());
  add([](QPainter& painter) { painter.save(); });
}

void PainterCanvas::restored() {
  toCanvas_.pop_back();
  add([](QPainter& painter) { painter.restore(); });
}

void PainterCanvas::clipped(PointRuns const& rings) {
  add([path = pathOf(rings, true)](QPainter& painter) { painter.setClipPath(path, Qt::IntersectClip); });
}

void PainterCanvas::transformed(QTransform const& transformation) {
  toCanvas_.back() = transformation * toCanvas_.back();
  add([transformation](QPainter& painter) { painter.setTransform(transformation, true); });
}
