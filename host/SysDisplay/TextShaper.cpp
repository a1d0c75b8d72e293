#include "TextShaper.h"

#include "FeatureShaping.h"

#include "host/SysGeometry/QuietOgr.h"

#include <QCache>
#include <QCoreApplication>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <list>
#include <utility>

namespace SysDisplay {

namespace {

// Size at which a font is asked for its outlines and widths: large enough for its roundings not to show.
constexpr int referencePx = 1024;

// Pieces that replace a curve stray from it by at most the inverse of this, in units of the font's size: a twentieth of
// a pixel, for the largest fonts some tenths, in steps so that similar sizes share their outlines.
int finenessFor(double emPx) {
  constexpr double piecesOfPixel = 20;
  return 1 << std::clamp(static_cast<int>(std::ceil(std::log2(piecesOfPixel * emPx))), 6, 14);
}

// Kerning and ligatures draw the letters of a text nearer together, never as near as this.
constexpr double maxCloseness = 0.7;
constexpr double maxFeaturedCloseness = 0.3;  // with letters raised, or joined as one pleases

constexpr int maxKeptGlyphs = 1000000;

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

void addRings(OGRPolygon const& polygon, PointRuns& out) {
  for (OGRLinearRing const* ring : polygon) {
    for (OGRPoint const& point : *ring) out.add({point.getX(), point.getY()});
    out.endRun();
  }
}

// Everything within a distance of the rings, bounded by straight pieces that stray by at most the tolerance.
PointRuns widened(PointRuns const& rings, double distance, double tolerance) {
  OGRMultiLineString lines;
  for (int i = 0; i < rings.count(); ++i) {
    auto line = std::make_unique<OGRLineString>();
    for (int j = 0; j <= rings.size(i); ++j) {
      QPointF const& point = rings.run(i)[j % rings.size(i)];
      line->addPoint(point.x(), point.y());
    }
    lines.addGeometryDirectly(line.release());
  }
  double const step = 2 * std::acos(std::max(1 - tolerance / distance, 0.0));
  int const quarterSteps = std::clamp(static_cast<int>(std::ceil(M_PI_2 / step)), 2, 90);
  SysGeometry::QuietOgr const quiet;
  std::unique_ptr<OGRGeometry> const area(lines.Buffer(distance, quarterSteps));
  PointRuns result;
  if (!area) return result;
  if (wkbFlatten(area->getGeometryType()) == wkbPolygon) addRings(*area->toPolygon(), result);
  if (wkbFlatten(area->getGeometryType()) == wkbMultiPolygon)
    for (OGRPolygon const* polygon : *area->toMultiPolygon()) addRings(*polygon, result);
  return result;
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
    checkLetters(format, letters_[fontKey], text);
    auto const* const known = texts_.object(key);
    auto const shaped = known ? *known : std::make_shared<ShapedText const>(layOut(format, text));
    if (!known) texts_.insert(key, new std::shared_ptr<ShapedText const>(shaped), text.size() + 16);
    // A font that stands in for a missing one need not have them.
    for (QString const& feature : letters_[fontKey].isMissing ? QStringList() : shaped->lackingFeatures) {
      QString const told = QStringLiteral("%1 (%2)").arg(format.family, feature);
      if (!troubles_.lacking.contains(told)) troubles_.lacking << told;
    }
    for (uint const code : shaped->lacking.toUcs4()) {
      QString const letter = QString::fromUcs4(&code, 1);
      if (!troubles_.letters.contains(letter)) troubles_.letters += letter;
    }
    return shaped;
  }

  double minWidth(TextFormat const& format, QString const& fontKey, QString const& text) {
    Letters& letters = letters_[fontKey];
    if (!letters.metrics) letters.metrics = std::make_unique<QFontMetricsF>(fontOf(format));
    double widest = 0, width = 0;
    for (QChar const letter : text) {
      if (letter == QLatin1Char('\n'))
        width = 0;
      else
        width += letters.width(letter);
      widest = std::max(widest, width);
    }
    double const closeness = format.features.isEmpty() ? maxCloseness : maxFeaturedCloseness;
    return std::max(widest - std::max(spacingOf(format), 0.0), 0.0) * closeness / referencePx;
  }

  // Each letter alone is asked for its glyphs, which are found again by their places. Letters of one ligature have the
  // same.
  static std::vector<QString> letters(TextFormat const& format, ShapedLine const& line) {
    if (!line.letters.empty()) return line.letters;
    std::vector<QString> letters(line.glyphs.size());
    Layout const layout(fontOf(format), line.text);
    for (int from = 0, to = 0; from < line.text.size(); from = to) {
      to = layout.text.nextCursorPosition(from);
      if (to <= from) break;
      size_t first = letters.size();
      for (QGlyphRun const& run : layout.text.glyphRuns(from, to - from))
        for (int i = 0; i < run.glyphIndexes().size(); ++i)
          first = std::min(first, indexOf(line, run.glyphIndexes()[i], layout.place(run.positions()[i])));
      if (first < letters.size()) letters[first] += line.text.mid(from, to - from);
    }
    return letters;
  }

  FontTroubles takeTroubles() { return std::exchange(troubles_, {}); }

private:
  struct Layout {
    Layout(QFont const& font, QString const& words) : text(words, font) {
      QTextOption option;
      option.setUseDesignMetrics(true);
      option.setWrapMode(QTextOption::NoWrap);
      text.setTextOption(option);
      text.beginLayout();
      line = text.createLine();
      if (line.isValid()) line.setLineWidth(1e7);
      text.endLayout();
    }

    // Text from right to left is set against the far end of the line.
    QPointF place(QPointF const& position) const {
      return (position - QPointF(line.naturalTextRect().left(), line.ascent())) / referencePx;
    }

    QTextLayout text;
    QTextLine line;
  };

  static size_t indexOf(ShapedLine const& line, quint32 glyph, QPointF const& place) {
    auto const found = std::find_if(line.glyphs.begin(), line.glyphs.end(), [&](PlacedGlyph const& placed) {
      return placed.glyph->index() == glyph && (placed.place - place).manhattanLength() < 0.001;
    });
    return static_cast<size_t>(found - line.glyphs.begin());
  }

  /// What single letters advance, where a text is at least about as wide as its letters.
  struct Letters {
    std::unique_ptr<QFontMetricsF> metrics;
    QHash<QChar, double> widths;
    QSet<QChar> checked;
    bool isUnopened = false;
    bool isMissing = false;

    double width(QChar letter) {
      auto known = widths.find(letter);
      if (known == widths.end())
        known = widths.insert(letter, standsAlone(letter) ? metrics->horizontalAdvance(letter) : 0);
      return *known;
    }

    static bool standsAlone(QChar letter) {
      QChar::Script const script = letter.script();
      return script == QChar::Script_Latin || script == QChar::Script_Greek || script == QChar::Script_Cyrillic ||
             script == QChar::Script_Common;
    }
  };

  static double spacingOf(TextFormat const& format) {
    return format.size > 0 ? format.letterSpacing / format.size * referencePx : 0;
  }

  // Qt takes another font in silence where the file of one can't be opened, and stays with it. At another size it tries
  // anew. So letters that were not met before are set twice, and have to come from the same fonts.
  void checkLetters(TextFormat const& format, Letters& letters, QString const& text) {
    if (letters.checked.isEmpty()) letters.isMissing = isMissing(format.family);
    QString unmet;
    for (QChar const letter : text)
      if (!letters.checked.contains(letter)) unmet += letter;
    if (!unmet.isEmpty()) {
      for (QChar const letter : unmet) letters.checked.insert(letter);
      if (fontsOf(fontOf(format), text) != fontsOf(fontOf(format, referencePx - 1), text)) letters.isUnopened = true;
    }
    auto const tell = [&](bool isSo, QStringList& families) {
      if (isSo && !families.contains(format.family)) families << format.family;
    };
    tell(letters.isUnopened, troubles_.unopened);
    tell(letters.isMissing, troubles_.missing);
  }

  // The names that stand for whatever there is of a kind are always right. Of several with commas between them, one
  // that is there will do.
  static bool isMissing(QString const& families) {
    static QStringList const kinds{QStringLiteral("sans"),      QStringLiteral("sans serif"),
                                   QStringLiteral("serif"),     QStringLiteral("sans-serif"),
                                   QStringLiteral("monospace"), QStringLiteral("mono"),
                                   QStringLiteral("cursive"),   QStringLiteral("fantasy"),
                                   QStringLiteral("system-ui"), QString()};
    QStringList const all = families.split(QLatin1Char(','));
    return std::none_of(all.begin(), all.end(), [](QString const& family) {
      QString const name = family.trimmed();
      return kinds.contains(name.toLower()) || QFontDatabase().hasFamily(name);
    });
  }

  // A missing letter is the first glyph of a font.
  static QString lackingIn(Layout const& layout, QString const& words) {
    QString lacking;
    for (int from = 0, to = 0; from < words.size(); from = to) {
      to = std::max(layout.text.nextCursorPosition(from), from + 1);
      for (QGlyphRun const& run : layout.text.glyphRuns(from, to - from))
        if (run.glyphIndexes().contains(0)) lacking += words.mid(from, to - from);
    }
    return lacking;
  }

  // By glyphs, in the order of the text.
  static QStringList fontsOf(QFont const& font, QString const& text) {
    QStringList fonts;
    for (QString const& words : text.split(QLatin1Char('\n'))) {
      Layout const layout(font, words);
      if (!layout.line.isValid()) continue;
      for (QGlyphRun const& run : layout.line.glyphRuns())
        for (quint32 const glyph : run.glyphIndexes())
          fonts << QStringLiteral("%1|%2|%3").arg(run.rawFont().familyName(), run.rawFont().styleName()).arg(glyph);
    }
    return fonts;
  }

  static QFont fontOf(TextFormat const& format, int sizePx = referencePx) {
    QFont font(format.family);
    font.setPixelSize(sizePx);
    font.setBold(format.bold);
    font.setItalic(format.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferOutline | QFont::ForceOutline));
    double const spacing = spacingOf(format);
    if (spacing != 0) font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return font;
  }

  ShapedText layOut(TextFormat const& format, QString const& text) {
    QFont const font = fontOf(format);
    double const spacing = spacingOf(format);
    QFontMetricsF const metrics(font);
    ShapedText shaped;
    shaped.ascent = metrics.ascent() / referencePx;
    shaped.descent = metrics.descent() / referencePx;
    for (QString const& line : text.split(QLatin1Char('\n'))) {
      shaped.lines.push_back(layOutLine(font, spacing, line, shaped.lacking));
      if (!format.features.isEmpty() && !line.isEmpty())
        addFeatures(font, spacing / referencePx, format.features, shaped.lines.back(), shaped.lackingFeatures);
    }
    return shaped;
  }

  ShapedLine layOutLine(QFont const& font, double spacing, QString const& text, QString& lacking) {
    Layout const layout(font, text);
    ShapedLine shaped;
    shaped.text = text;
    if (!layout.line.isValid()) return shaped;
    // The spacing behind the last letter belongs to no gap.
    shaped.width = (layout.line.naturalTextWidth() - (text.isEmpty() ? 0 : spacing)) / referencePx;
    // Those of the line stand in order. The text's are gathered by their fonts, in an order that changes.
    for (QGlyphRun const& run : layout.line.glyphRuns()) addRun(run, layout, shaped);
    bool const isLacking = std::any_of(shaped.glyphs.begin(), shaped.glyphs.end(),
                                       [](PlacedGlyph const& placed) { return placed.glyph->index() == 0; });
    if (isLacking) lacking += lackingIn(layout, text);
    return shaped;
  }

  // A part of a line that one font draws, of letters of one script; or a gap that none draws, as that of a tab.
  struct Stretch {
    QRawFont font;
    QChar::Script script;
    int from, to;
    double gap;  // in units of the font's size
  };

  static bool isGap(QChar letter) {
    return letter.category() == QChar::Other_Control || letter == QChar::LineSeparator ||
           letter == QChar::ParagraphSeparator;
  }

  // Marks, digits and the like go with the letters before them.
  static QChar::Script scriptAt(QString const& text, int place) {
    uint const code = text[place].isHighSurrogate() && place + 1 < text.size()
                          ? QChar::surrogateToUcs4(text[place], text[place + 1])
                          : text[place].unicode();
    QChar::Script const script = QChar::script(code);
    return std::max(script, QChar::Script_Common);  // what is before that in their order is of any, too
  }

  // None where some of it runs from right to left.
  static std::vector<Stretch> stretchesOf(Layout const& layout, QString const& text) {
    std::vector<Stretch> stretches;
    int begin = 0;  // of what belongs to the next stretch
    for (int from = 0, to = 0; from < text.size(); from = to) {
      to = std::max(layout.text.nextCursorPosition(from), from + 1);
      if (isGap(text[from])) {
        double const gap = layout.line.cursorToX(to) - layout.line.cursorToX(from);
        stretches.push_back({QRawFont(), QChar::Script_Common, from, to, gap / referencePx});
        begin = to;
        continue;
      }
      auto const runs = layout.text.glyphRuns(from, to - from);
      if (std::any_of(runs.begin(), runs.end(), [](QGlyphRun const& run) { return run.isRightToLeft(); })) return {};
      QChar::Script const script = scriptAt(text, from);
      Stretch* const last = stretches.empty() || !stretches.back().font.isValid() ? nullptr : &stretches.back();
      bool const isOfAny = script == QChar::Script_Common || (last && last->script == QChar::Script_Common);
      if (last && (runs.isEmpty() || ((isOfAny || script == last->script) && runs[0].rawFont() == last->font))) {
        last->to = to;
        if (last->script == QChar::Script_Common) last->script = script;
      } else if (!runs.isEmpty()) {
        stretches.push_back({runs[0].rawFont(), script, begin, to, 0});
      } else {
        continue;  // what shows nothing goes with what follows
      }
      begin = to;
    }
    return stretches;
  }

  // Lays a line out anew that Qt has found the fonts of.
  void addFeatures(QFont const& font, double spacing, QStringList const& features, ShapedLine& line,
                   QStringList& lacking) {
    ShapedLine featured;
    featured.text = line.text;
    std::vector<int> starts;  // of each glyph's letters
    double x = 0;
    QStringList lackingAll = features;  // what another font lacks, that stands in for some letters, is not missed
    for (Stretch const& stretch : stretchesOf(Layout(font, line.text), line.text)) {
      x += stretch.gap;
      if (!stretch.font.isValid()) continue;
      double advance = 0;
      QStringList lackingHere;
      for (FeaturedGlyph const& one : featureShaper_.shape(stretch.font, features, line.text, stretch.from, stretch.to,
                                                           spacing, advance, lackingHere)) {
        addGlyph(face(stretch.font), one.index, QPointF(x, 0) + one.place, featured);
        starts.push_back(one.letter);
      }
      x += advance;
      for (QString const& feature : features)
        if (!lackingHere.contains(feature)) lackingAll.removeAll(feature);
    }
    if (starts.empty()) return;
    lacking += lackingAll;
    featured.width = x - spacing;
    for (size_t i = 0; i < starts.size(); ++i) {
      bool const isFirst = i == 0 || starts[i] != starts[i - 1];
      auto const next = std::find_if(starts.begin() + static_cast<ptrdiff_t>(i), starts.end(),
                                     [&](int start) { return start != starts[i]; });
      int const begin = i == 0 ? 0 : starts[i], end = next == starts.end() ? line.text.size() : *next;
      featured.letters.push_back(isFirst ? line.text.mid(begin, end - begin) : QString());
    }
    line = std::move(featured);
  }

  void addRun(QGlyphRun const& run, Layout const& layout, ShapedLine& line) {
    QVector<quint32> const glyphs = run.glyphIndexes();
    QVector<QPointF> const positions = run.positions();
    Face& face = this->face(run.rawFont());
    for (int n = 0; n < glyphs.size(); ++n) {
      int const i = run.isRightToLeft() ? glyphs.size() - 1 - n : n;
      addGlyph(face, glyphs[i], layout.place(positions[i]), line);
    }
  }

  using Face = std::pair<QRawFont const, std::map<quint32, std::unique_ptr<Glyph>>>;

  static void addGlyph(Face& face, quint32 index, QPointF const& place, ShapedLine& line) {
    auto& [font, known] = face;
    auto& glyph = known[index];
    if (!glyph) {
      double const scale = 1.0 / referencePx;
      glyph = std::make_unique<Glyph>(font, index, QTransform::fromScale(scale, scale).map(font.pathForGlyph(index)));
    }
    line.glyphs.push_back({glyph.get(), place});
    if (!glyph->outline().isEmpty()) line.ink |= glyph->bounds().translated(place);
  }

  Face& face(QRawFont const& font) {
    for (Face& known : faces_)
      if (known.first == font) return known;
    return faces_.emplace_back(std::piecewise_construct, std::forward_as_tuple(font), std::forward_as_tuple());
  }

  static Shaper* shaper_;
  std::list<Face> faces_;
  FeatureShaper featureShaper_;
  std::map<QString, Letters> letters_;  // by font key
  FontTroubles troubles_;
  QCache<TextKey, std::shared_ptr<ShapedText const>> texts_{maxKeptGlyphs};
};

Shaper* Shaper::shaper_ = nullptr;

}  // namespace

PointRuns const& Glyph::rings(double emPx) const {
  int const fineness = finenessFor(emPx);
  PointRuns& rings = rings_[fineness];
  if (rings.isEmpty()) rings = flattened(outline_, 1.0 / fineness);
  return rings;
}

// Only the border is widened: what the letter itself covers is drawn over it.
PointRuns const& Glyph::halo(double size, double emPx) const {
  int const fineness = finenessFor(emPx) / 4;  // a fifth of a pixel
  PointRuns& halo = halos_[{fineness, size}];
  if (halo.isEmpty()) halo = widened(flattened(outline_, 1.0 / fineness), size, 1.0 / fineness);
  return halo;
}

QString fontKeyOf(TextFormat const& format) {
  return QStringLiteral("%1|%2%3|%4|%5")
      .arg(format.family)
      .arg(int(format.bold))
      .arg(int(format.italic))
      .arg(format.size > 0 ? format.letterSpacing / format.size : 0.0)
      .arg(format.features.join(QLatin1Char(',')));
}

std::shared_ptr<ShapedText const> shapedText(TextFormat const& format, QString const& fontKey, QString const& text) {
  return Shaper::instance().shape(format, fontKey, text);
}

std::vector<QString> lettersOf(TextFormat const& format, ShapedLine const& line) {
  return Shaper::letters(format, line);
}

double minWidth(TextFormat const& format, QString const& fontKey, QString const& text) {
  return Shaper::instance().minWidth(format, fontKey, text);
}

FontTroubles takeFontTroubles() { return Shaper::instance().takeTroubles(); }

}  // namespace SysDisplay
