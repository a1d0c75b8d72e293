#include "TextShaper.h"

#include "host/SysDisplay/Stroker.h"

#include <QCache>
#include <QCoreApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <list>

namespace SysDisplay {

namespace {

// Size at which a font is asked for its outlines and widths: large enough for its roundings not to show.
constexpr int referencePx = 1024;

// Pieces that replace a curve stray from it by at most the inverse of this, in units of the font's size.
constexpr int coarse = 1500;
constexpr int fine = 12000;
int finenessFor(double emPx) { return emPx <= 80 ? coarse : fine; }

constexpr int mostKeptGlyphs = 1000000;

void addCurve(QPointF const& a, QPointF const& b, QPointF const& c, QPointF const& d, double tolerance,
              PointRuns& out) {
  QPointF const bend1 = a - 2 * b + c, bend2 = b - 2 * c + d;
  double const bend = std::max(std::hypot(bend1.x(), bend1.y()), std::hypot(bend2.x(), bend2.y()));
  int const steps = std::clamp(static_cast<int>(std::ceil(std::sqrt(0.75 * bend / tolerance))), 1, 200);
  for (int i = 1; i <= steps; ++i) {
    double const t = static_cast<double>(i) / steps, u = 1 - t;
    out.add(u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d);
  }
}

PointRuns flattened(QPainterPath const& path, double tolerance) {
  PointRuns rings;
  for (int i = 0; i < path.elementCount(); ++i) {
    QPainterPath::Element const element = path.elementAt(i);
    if (element.type == QPainterPath::CurveToElement) {
      addCurve(path.elementAt(i - 1), element, path.elementAt(i + 1), path.elementAt(i + 2), tolerance, rings);
      i += 2;
      continue;
    }
    if (element.type == QPainterPath::MoveToElement) rings.endRun();
    rings.add(element);
  }
  rings.endRun();
  return rings;
}

struct TextKey {
  QString font;
  QString text;
  bool operator==(TextKey const& other) const { return text == other.text && font == other.font; }
};
uint qHash(TextKey const& key, uint seed) { return ::qHash(key.text, seed) ^ ::qHash(key.font, seed); }

// Everything here belongs to the thread of the user interface.
class Shaper {
public:
  static Shaper& instance() {
    if (!shaper_) {
      shaper_ = new Shaper;
      qAddPostRoutine([] {  // fonts must be gone before the application is
        delete shaper_;
        shaper_ = nullptr;
      });
    }
    return *shaper_;
  }

  std::shared_ptr<ShapedText const> shape(TextFormat const& format, QString const& fontKey, QString const& text) {
    TextKey const key{fontKey, text};
    if (auto const* known = texts_.object(key)) return *known;
    auto const shaped = std::make_shared<ShapedText const>(layOut(format, text));
    texts_.insert(key, new std::shared_ptr<ShapedText const>(shaped), text.size() + 16);
    return shaped;
  }

private:
  ShapedText layOut(TextFormat const& format, QString const& text) {
    QFont font(format.family);
    font.setPixelSize(referencePx);
    font.setBold(format.bold);
    font.setItalic(format.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferOutline | QFont::ForceOutline));
    double const spacing = format.size > 0 ? format.letterSpacing / format.size * referencePx : 0;
    if (spacing != 0) font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    QFontMetricsF const metrics(font);
    ShapedText shaped;
    shaped.ascent = metrics.ascent() / referencePx;
    shaped.descent = metrics.descent() / referencePx;
    for (QString const& line : text.split(QLatin1Char('\n'))) shaped.lines.push_back(layOutLine(font, spacing, line));
    return shaped;
  }

  ShapedLine layOutLine(QFont const& font, double spacing, QString const& text) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setLineWidth(1e7);
    layout.endLayout();
    ShapedLine shaped;
    if (!line.isValid()) return shaped;
    // The spacing behind the last letter belongs to no gap.
    shaped.width = (line.naturalTextWidth() - (text.isEmpty() ? 0 : spacing)) / referencePx;
    // Text from right to left is set against the far end of the line.
    QPointF const origin(line.naturalTextRect().left(), line.ascent());
    for (QGlyphRun const& run : layout.glyphRuns()) addRun(run, origin, shaped);
    return shaped;
  }

  void addRun(QGlyphRun const& run, QPointF const& origin, ShapedLine& line) {
    QVector<quint32> const glyphs = run.glyphIndexes();
    QVector<QPointF> const positions = run.positions();
    auto& known = glyphsOf(run.rawFont());
    for (int i = 0; i < glyphs.size(); ++i) {
      auto& glyph = known[glyphs[i]];
      if (!glyph) {
        double const scale = 1.0 / referencePx;
        glyph = std::make_unique<Glyph>(QTransform::fromScale(scale, scale).map(run.rawFont().pathForGlyph(glyphs[i])));
      }
      QPointF const place = (positions[i] - origin) / referencePx;
      if (glyph->outline().isEmpty()) continue;
      line.glyphs.push_back({glyph.get(), place});
      line.ink |= glyph->bounds().translated(place);
    }
  }

  using Glyphs = std::map<quint32, std::unique_ptr<Glyph>>;

  Glyphs& glyphsOf(QRawFont const& font) {
    for (auto& known : fonts_)
      if (known.first == font) return known.second;
    fonts_.emplace_back(font, Glyphs());
    return fonts_.back().second;
  }

  static Shaper* shaper_;
  std::list<std::pair<QRawFont, Glyphs>> fonts_;
  QCache<TextKey, std::shared_ptr<ShapedText const>> texts_{mostKeptGlyphs};
};

Shaper* Shaper::shaper_ = nullptr;

}  // namespace

PointRuns const& Glyph::rings(double emPx) const {
  int const fineness = finenessFor(emPx);
  PointRuns& rings = rings_[fineness];
  if (rings.isEmpty()) rings = flattened(outline_, 1.0 / fineness);
  return rings;
}

// Only the border is stroked: what the letter itself covers is drawn over it. A stroke as wide as a halo overlaps
// itself so often that to fill it takes longer than to clean it up once.
PointRuns const& Glyph::halo(double size, double emPx) const {
  int const fineness = finenessFor(emPx) / 6;  // still a third of a pixel at the most
  PointRuns& halo = halos_[{fineness, size}];
  if (!halo.isEmpty()) return halo;
  double const workPx = fineness;
  Stroker stroker(2 * size * workPx, LineCapStyle::Round, LineJoinStyle::Round, 0);
  PointRuns const letter = flattened(outline_, 1.0 / fineness);
  PointRuns stroke;
  std::vector<QPointF> ring;
  for (int i = 0; i < letter.count(); ++i) {
    ring.assign(letter.run(i), letter.run(i) + letter.size(i));
    for (QPointF& point : ring) point *= workPx;
    if (ring.size() > 1 && ring.front() == ring.back()) ring.pop_back();
    stroker.strokeClosed(ring.data(), static_cast<int>(ring.size()), stroke);
  }
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (int i = 0; i < stroke.count(); ++i)
    path.addPolygon(QVector<QPointF>(stroke.run(i), stroke.run(i) + stroke.size(i)));
  halo = flattened(path.simplified(), 1);
  for (QPointF& point : halo.points) point /= workPx;
  return halo;
}

QString fontKeyOf(TextFormat const& format) {
  return QStringLiteral("%1|%2%3|%4")
      .arg(format.family)
      .arg(int(format.bold))
      .arg(int(format.italic))
      .arg(format.size > 0 ? format.letterSpacing / format.size : 0.0);
}

std::shared_ptr<ShapedText const> shapedText(TextFormat const& format, QString const& fontKey, QString const& text) {
  return Shaper::instance().shape(format, fontKey, text);
}

}  // namespace SysDisplay
