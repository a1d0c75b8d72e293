#include "SvgText.h"

#include "FontFile.h"
#include "SvgWriter.h"

#include "host/desktop/output/XmlText.h"

#include <QStringList>

using SysDisplay::PlacedGlyph;
using SysDisplay::ShapedLine;
using SysDisplay::TextFormat;

namespace {

// The families that the letters are of, the one that was asked for, and the like.
QString families(SvgFonts& fonts, TextFormat const& format, ShapedLine const& line) {
  QStringList names;
  for (PlacedGlyph const& placed : line.glyphs)
    for (QString const& family : fonts.font(placed.glyph->font()).families)
      if (!names.contains(family)) names << family;
  if (!names.contains(format.family)) names << format.family;
  for (QString& name : names) name = QLatin1Char('\'') + name.remove(QLatin1Char('\'')) + QLatin1Char('\'');
  return names.join(QLatin1Char(',')) + QLatin1Char(',') + fonts.font(line.glyphs.front().glyph->font()).generic;
}

// "smcp" and "liga=0" as style sheets say it.
QString featureSettings(QStringList const& features) {
  QStringList settings;
  for (QString const& feature : features)
    settings << QLatin1Char('\'') + feature.left(4) + QLatin1Char('\'') +
                    feature.mid(4).replace(QLatin1Char('='), QLatin1Char(' '));
  return settings.join(QStringLiteral(", "));
}

struct Word {
  QString letters;  // with the blanks behind it
  double from;
};

// Words that begin at a letter of their own. None where the order of letters is not that of their places.
std::vector<Word> wordsOf(TextFormat const& format, ShapedLine const& line) {
  std::vector<QString> const letters = lettersOf(format, line);
  std::vector<Word> words;
  QString all;
  bool afterBlank = true;
  for (size_t i = 0; i < letters.size(); ++i) {
    QString const& here = letters[i];
    all += here;
    bool const isBlank = !here.isEmpty() && here.trimmed().isEmpty();
    if (words.empty() || (afterBlank && !isBlank && !here.isEmpty())) words.push_back({{}, line.glyphs[i].place.x()});
    words.back().letters += here;
    if (!here.isEmpty()) afterBlank = isBlank;
  }
  if (all != line.text || line.text.isRightToLeft()) return {};
  return words;
}

QByteArray length(double units) {
  return " textLength=\"" + svgNumber(units, 1) + "\" lengthAdjust=\"spacingAndGlyphs\"";
}

}  // namespace

SvgFonts::Font const& SvgFonts::font(QRawFont const& font) {
  auto const known = fonts_.find(&font);
  if (known != fonts_.end()) return known->second;
  QStringList families{ownFamily(font), font.familyName()};
  families.removeAll(QString());
  families.removeDuplicates();
  bool const isBold = isBoldInFile(font) || !drawsAsTheFileDoes(font);
  return fonts_.emplace(&font, Font{families, genericFamily(font), isBold}).first->second;
}

QByteArray svgText(SvgFonts& fonts, TextFormat const& format, ShapedLine const& line, double em, QPointF const& start) {
  QByteArray attributes = svgAttribute("font-family", families(fonts, format, line));
  attributes += " font-size=\"" + svgNumber(em, 2) + '"';
  // Of a family without bold letters, those that are there may stand for them.
  if (format.bold && fonts.font(line.glyphs.front().glyph->font()).isBold) attributes += " font-weight=\"bold\"";
  if (format.italic) attributes += " font-style=\"italic\"";
  if (!line.letters.empty())  // where they were set
    attributes += svgAttribute("style", QStringLiteral("font-feature-settings: ") + featureSettings(format.features));
  if (format.letterSpacing != 0 && format.size > 0)
    attributes += " letter-spacing=\"" + svgNumber(format.letterSpacing / format.size * em, 2) + '"';
  std::vector<Word> const words = wordsOf(format, line);
  bool const isBackwards = line.text.isRightToLeft();
  auto const at = [&](double place) { return " x=\"" + svgNumber(start.x() + place * em, 1) + '"'; };
  QByteArray const y = " y=\"" + svgNumber(start.y(), 1) + '"';
  if (words.size() < 2)
    return (isBackwards ? at(line.width) + y + " direction=\"rtl\"" : at(0) + y) + attributes +
           length(line.width * em) + '>' + escapedXml(line.text);
  QByteArray spans;
  for (size_t i = 0; i < words.size(); ++i) {
    double const to = i + 1 < words.size() ? words[i + 1].from : line.width;
    spans += "<tspan" + at(words[i].from) + length((to - words[i].from) * em) + '>' + escapedXml(words[i].letters) +
             "</tspan>";
  }
  return y + attributes + '>' + spans;
}
