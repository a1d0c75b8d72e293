#include "FeatureShaping.h"
#include "SymbolFields.h"
#include "SymbolSettings.h"

namespace SysDisplay {

using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::Unit;

namespace {

constexpr SysUtility::Range lengths{0, TextFormat::maxLengthPt, Unit::Point};
constexpr int maxFeatures = 32;
constexpr SysUtility::Range anyLengths{-TextFormat::maxLengthPt, TextFormat::maxLengthPt, Unit::Point};

// clang-format off
constexpr Choice boxShapes[] = {
    {BoxShape::Rectangle, "rectangle", QT_TRANSLATE_NOOP("Fields", "Rectangle")},
    {BoxShape::Rounded,   "rounded",   QT_TRANSLATE_NOOP("Fields", "Round corners")},
    {BoxShape::Capsule,   "capsule",   QT_TRANSLATE_NOOP("Fields", "Round ends")},
};
constexpr Choice horizontals[] = {
    {HorizontalAlignment::Left,   "left",   QT_TRANSLATE_NOOP("Fields", "Left")},
    {HorizontalAlignment::Center, "center", QT_TRANSLATE_NOOP("Fields", "Centre")},
    {HorizontalAlignment::Right,  "right",  QT_TRANSLATE_NOOP("Fields", "Right")},
};
constexpr Choice verticals[] = {
    {VerticalAlignment::Top,      "top",      QT_TRANSLATE_NOOP("Fields", "Top")},
    {VerticalAlignment::Middle,   "middle",   QT_TRANSLATE_NOOP("Fields", "Middle")},
    {VerticalAlignment::Baseline, "baseline", QT_TRANSLATE_NOOP("Fields", "Baseline")},
    {VerticalAlignment::Bottom,   "bottom",   QT_TRANSLATE_NOOP("Fields", "Bottom")},
};
// clang-format on

}  // namespace

TextSettings TextSettings::of(TextSymbol const& symbol) { return {symbol.format()}; }

void TextSettings::list(Fields& fields) {
  TextFormat const usual;
  fields.text({"family", QT_TRANSLATE_NOOP("Fields", "Font"),
               QT_TRANSLATE_NOOP("Fields", "The name of the font's family, as in “DejaVu Sans”.")},
              format.family, SysUtility::TextKind::Line, usual.family);
  fields.number({"size", QT_TRANSLATE_NOOP("Fields", "Size"), QT_TRANSLATE_NOOP("Fields", "The size of the font.")},
                format.size, lengths, usual.size);
  fields.flag(
      {"bold", QT_TRANSLATE_NOOP("Fields", "Bold"), QT_TRANSLATE_NOOP("Fields", "Whether the letters are bold.")},
      format.bold, usual.bold);
  fields.flag({"italic", QT_TRANSLATE_NOOP("Fields", "Italic"),
               QT_TRANSLATE_NOOP("Fields", "Whether the letters are slanted.")},
              format.italic, usual.italic);
  fields.number({"letterSpacing", QT_TRANSLATE_NOOP("Fields", "Letter spacing"),
                 QT_TRANSLATE_NOOP("Fields", "What is added between two letters.")},
                format.letterSpacing, anyLengths, usual.letterSpacing);
  fields.number({"lineSpacing", QT_TRANSLATE_NOOP("Fields", "Line spacing"),
                 QT_TRANSLATE_NOOP("Fields", "The distance of two lines, as a multiple of the font's own.")},
                format.lineSpacing, {0.1, 10}, usual.lineSpacing);
  fields.texts({"features", QT_TRANSLATE_NOOP("Fields", "Features of the font"),
                QT_TRANSLATE_NOOP("Fields",
                                  "OpenType features by their tags, where the font has them: smcp for small capitals, "
                                  "onum for old-style and lnum for lining figures, tnum for figures of one width, dlig "
                                  "for rare ligatures, ss01 for a stylistic set; liga=0 for no ligatures.")},
               format.features);
  if (format.features.size() > maxFeatures)
    fields.fail("features", Fields::tr("holds %1 entries; at most %2").arg(format.features.size()).arg(maxFeatures));
  for (QString const& feature : qAsConst(format.features))
    if (!isFontFeature(feature))
      fields.fail("features",
                  QCoreApplication::translate("SymbolSettings",
                                              "“%1” is no feature of OpenType; write a tag such as smcp, or "
                                              "liga=0")
                      .arg(feature));
  listColor(fields,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "The colour of the letters.")},
            format.color, usual.color);
  fields.number({"haloSize", QT_TRANSLATE_NOOP("Fields", "Halo"),
                 QT_TRANSLATE_NOOP("Fields", "How far the halo reaches beyond the letters; 0 for none.")},
                format.haloSize, lengths, usual.haloSize);
  listColor(fields,
            {"haloColor", QT_TRANSLATE_NOOP("Fields", "Colour of the halo"),
             QT_TRANSLATE_NOOP("Fields", "The colour behind the letters.")},
            format.haloColor, usual.haloColor);
  listColor(fields,
            {"boxColor", QT_TRANSLATE_NOOP("Fields", "Colour of the box"),
             QT_TRANSLATE_NOOP("Fields", "The colour of a box behind the text, as callouts and shields have.")},
            format.boxColor, usual.boxColor);
  listColor(fields,
            {"boxLineColor", QT_TRANSLATE_NOOP("Fields", "Colour of the box's line"),
             QT_TRANSLATE_NOOP("Fields", "The colour of the line about the box.")},
            format.boxLineColor, usual.boxLineColor);
  fields.number({"boxLineWidth", QT_TRANSLATE_NOOP("Fields", "Line of the box"),
                 QT_TRANSLATE_NOOP("Fields", "The width of the line about the box; 0 for none.")},
                format.boxLineWidth, lengths, usual.boxLineWidth);
  fields.number({"boxPadding", QT_TRANSLATE_NOOP("Fields", "Padding of the box"),
                 QT_TRANSLATE_NOOP("Fields", "From the text to the edge of its box.")},
                format.boxPadding, lengths, usual.boxPadding);
  fields.choice<BoxShape>({"boxShape", QT_TRANSLATE_NOOP("Fields", "Shape of the box"),
                           QT_TRANSLATE_NOOP("Fields", "Whether the box has corners, round corners or round ends.")},
                          format.boxShape, boxShapes, usual.boxShape);
  fields.choice<HorizontalAlignment>({"horizontal", QT_TRANSLATE_NOOP("Fields", "Horizontal alignment"),
                                      QT_TRANSLATE_NOOP("Fields", "Which part of a line stands at the position.")},
                                     format.horizontal, horizontals, usual.horizontal);
  fields.choice<VerticalAlignment>(
      {"vertical", QT_TRANSLATE_NOOP("Fields", "Vertical alignment"),
       QT_TRANSLATE_NOOP("Fields", "Which part of the text's height stands at the position.")},
      format.vertical, verticals, usual.vertical);
}

void TextSettings::applyTo(TextSymbol& symbol) const { symbol.setFormat(format); }

}  // namespace SysDisplay
