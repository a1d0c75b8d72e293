#include "SurroundSettings.h"

#include "host/SysDisplay/SymbolFields.h"

namespace SysCarto {

using SysDisplay::listColor;
using SysDisplay::listOptionalSymbol;
using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

// clang-format off
constexpr Choice barStyles[] = {
    {BarStyle::Alternating, "alternating", QT_TRANSLATE_NOOP("Fields", "Alternating")},
    {BarStyle::Double,      "double",      QT_TRANSLATE_NOOP("Fields", "Two rows")},
    {BarStyle::Ticks,       "ticks",       QT_TRANSLATE_NOOP("Fields", "Line with ticks")},
};
constexpr Choice barUnits[] = {
    {BarUnit::Automatic,     "automatic", QT_TRANSLATE_NOOP("Fields", "Metres or kilometres")},
    {BarUnit::Metres,        "m",         QT_TRANSLATE_NOOP("Fields", "Metres")},
    {BarUnit::Kilometres,    "km",        QT_TRANSLATE_NOOP("Fields", "Kilometres")},
    {BarUnit::Feet,          "ft",        QT_TRANSLATE_NOOP("Fields", "Feet")},
    {BarUnit::Miles,         "mi",        QT_TRANSLATE_NOOP("Fields", "Miles")},
    {BarUnit::NauticalMiles, "nmi",       QT_TRANSLATE_NOOP("Fields", "Nautical miles")},
};
// clang-format on

void listText(Fields& fields, char const* help, _ptr_t<SysDisplay::TextSymbol>& symbol) {
  listOptionalSymbol(fields, {"symbol", QT_TRANSLATE_NOOP("Fields", "Text"), help}, symbol);
}

}  // namespace

QString LegendSettings::usualTitle() { return QCoreApplication::translate("MapSurround", "Legend"); }

void LegendSettings::list(Fields& fields) {
  fields.text({"title", QT_TRANSLATE_NOOP("Fields", "Title"),
               QT_TRANSLATE_NOOP("Fields", "What stands above the legend; it may be empty.")},
              title, TextKind::Line, usualTitle());
  listOptionalSymbol(
      fields,
      {"titleSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the title"),
       QT_TRANSLATE_NOOP("Fields", "How the letters of the title look; without a symbol bold and 12 points high.")},
      titleSymbol);
  listOptionalSymbol(
      fields,
      {"headingSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the headings"),
       QT_TRANSLATE_NOOP(
           "Fields", "How the name of a layer with several classes looks; without a symbol bold and 9 points high.")},
      headingSymbol);
  listOptionalSymbol(
      fields,
      {"labelSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the entries"),
       QT_TRANSLATE_NOOP("Fields", "How the letters of the entries look; without a symbol 8 points high.")},
      labelSymbol);
  fields.texts({"omit", QT_TRANSLATE_NOOP("Fields", "Left out"),
                QT_TRANSLATE_NOOP("Fields", "The names of layers that the legend does not list.")},
               omitted);
}

void ScaleLineSettings::list(Fields& fields) {
  ScaleLineSettings const usual;
  fields.choice<BarStyle>(
      {"style", QT_TRANSLATE_NOOP("Fields", "Style"),
       QT_TRANSLATE_NOOP("Fields", "How the bar is drawn: as one row of boxes, as two, or as a line with ticks.")},
      style, barStyles, usual.style);
  fields.choice<BarUnit>(
      {"unit", QT_TRANSLATE_NOOP("Fields", "Unit"),
       QT_TRANSLATE_NOOP(
           "Fields", "What the bar counts; automatic is metres, or kilometres where each division is one at least.")},
      unit, barUnits, usual.unit);
  fields.number(
      {"height", QT_TRANSLATE_NOOP("Fields", "Height"), QT_TRANSLATE_NOOP("Fields", "The height of the bar.")},
      heightPt, {0.5, 100, Unit::Point}, usual.heightPt);
  listColor(fields,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"),
             QT_TRANSLATE_NOOP("Fields", "The colour of outlines, of ticks and of every second part.")},
            color, usual.color);
  listColor(fields,
            {"secondColor", QT_TRANSLATE_NOOP("Fields", "Second colour"),
             QT_TRANSLATE_NOOP("Fields", "The colour of the other parts.")},
            secondColor, usual.secondColor);
  listText(fields, QT_TRANSLATE_NOOP("Fields", "How the letters look; without a symbol 8 points high."), symbol);
}

void ScaleTextSettings::list(Fields& fields) {
  fields.text({"pattern", QT_TRANSLATE_NOOP("Fields", "Pattern"),
               QT_TRANSLATE_NOOP("Fields", "The text, with %1 where the scale stands.")},
              pattern, TextKind::Line, ScaleTextSettings().pattern);
  if (fields.ok() && !pattern.contains(QLatin1String("%1")))
    fields.fail("pattern",
                QCoreApplication::translate("MapSurround", "must hold %1 where the scale stands, as in “1:%1”"));
  listText(fields, QT_TRANSLATE_NOOP("Fields", "How the letters look; without a symbol 12 points high."), symbol);
}

void NorthArrowSettings::list(Fields& fields) {
  listOptionalSymbol(fields,
                     {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"),
                      QT_TRANSLATE_NOOP("Fields", "The marker that points north; without a symbol a plain arrow.")},
                     symbol);
  fields.flag(
      {"trueNorth", QT_TRANSLATE_NOOP("Fields", "True north"),
       QT_TRANSLATE_NOOP("Fields",
                         "Whether it points to true north at the map's centre, and not to where up on the map is.")},
      trueNorth, false);
}

void GraticuleSettings::list(Fields& fields) {
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"), QT_TRANSLATE_NOOP("Fields", "What the grid is called.")},
              name, TextKind::Line, QString());
  fields.number({"interval", QT_TRANSLATE_NOOP("Fields", "Interval"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "The distance of two lines; 0, or one that would make more than 1,000 lines, "
                                   "chooses one for the map's scale.")},
                interval, {0, 90, Unit::Degree}, 0.0);
  fields.flag(
      {"labels", QT_TRANSLATE_NOOP("Fields", "Labels"),
       QT_TRANSLATE_NOOP("Fields", "Whether the degrees stand outside the frame, or where a parallel ends inside it.")},
      labelled, true);
  listOptionalSymbol(
      fields,
      {"lineSymbol", QT_TRANSLATE_NOOP("Fields", "Line"),
       QT_TRANSLATE_NOOP("Fields",
                         "How the meridians and parallels are drawn; without a symbol grey and 0.3 points wide.")},
      line);
  listOptionalSymbol(
      fields,
      {"labelSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the labels"),
       QT_TRANSLATE_NOOP("Fields", "How the letters of the labels look; without a symbol 6.5 points high.")},
      label);
}

}  // namespace SysCarto
