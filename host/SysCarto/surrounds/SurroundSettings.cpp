#include "SurroundSettings.h"

#include "GroundUnits.h"

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
constexpr Choice barNumbers[] = {
    {BarNumbers::Above, "above", QT_TRANSLATE_NOOP("Fields", "Above the bar")},
    {BarNumbers::Below, "below", QT_TRANSLATE_NOOP("Fields", "Below the bar")},
};
constexpr Choice gridSystems[] = {
    {GridSystem::Geographic, "geographic", QT_TRANSLATE_NOOP("Fields", "Longitude and latitude")},
    {GridSystem::Projected,  "projected",  QT_TRANSLATE_NOOP("Fields", "Coordinates of the map")},
};
constexpr Choice gridMarks[] = {
    {GridMarks::Lines,   "lines",   QT_TRANSLATE_NOOP("Fields", "Lines")},
    {GridMarks::Ticks,   "ticks",   QT_TRANSLATE_NOOP("Fields", "Ticks at the frame")},
    {GridMarks::Crosses, "crosses", QT_TRANSLATE_NOOP("Fields", "Crosses where lines would cross")},
};
constexpr Choice degreeFormats[] = {
    {DegreeFormat::Automatic, "automatic", QT_TRANSLATE_NOOP("Fields", "Minutes and seconds as needed")},
    {DegreeFormat::Decimal,   "decimal",   QT_TRANSLATE_NOOP("Fields", "Decimal degrees")},
    {DegreeFormat::Minutes,   "minutes",   QT_TRANSLATE_NOOP("Fields", "Degrees and minutes")},
    {DegreeFormat::Seconds,   "seconds",   QT_TRANSLATE_NOOP("Fields", "Degrees, minutes and seconds")},
};
// clang-format on

constexpr int maxDivisions = 50, maxSubdivisions = 20;
constexpr double maxDivisionLength = 1e9;
constexpr double maxSpacing = 1e12;

QVector<Choice> unitChoices() {
  QVector<Choice> choices{{BarUnit::Automatic, "automatic", QT_TRANSLATE_NOOP("Fields", "Metres or kilometres")}};
  for (GroundUnit const& unit : groundUnits()) choices << Choice(unit.unit, unit.name, unit.caption);
  return choices;
}

void listText(Fields& fields, char const* help, _ptr_t<SysDisplay::TextSymbol>& symbol) {
  listOptionalSymbol(fields, {"symbol", QT_TRANSLATE_NOOP("Fields", "Text"), help}, symbol);
}

}  // namespace

void ScaleLineSettings::list(Fields& fields) {
  static QVector<Choice> const units = unitChoices();
  ScaleLineSettings const usual;
  fields.choice<BarStyle>(
      {"style", QT_TRANSLATE_NOOP("Fields", "Style"),
       QT_TRANSLATE_NOOP("Fields", "How the bar is drawn: as one row of boxes, as two, or as a line with ticks.")},
      style, barStyles, usual.style);
  fields.choice<BarUnit>(
      {"unit", QT_TRANSLATE_NOOP("Fields", "Unit"),
       QT_TRANSLATE_NOOP(
           "Fields", "What the bar counts; automatic is metres, or kilometres where each division is one at least.")},
      unit, units, usual.unit);
  fields.text({"unitText", QT_TRANSLATE_NOOP("Fields", "Text of the unit"),
               QT_TRANSLATE_NOOP("Fields", "What stands behind the last number; empty for the sign of the unit.")},
              unitText, TextKind::Line, QString());
  fields.integer({"divisions", QT_TRANSLATE_NOOP("Fields", "Divisions"),
                  QT_TRANSLATE_NOOP("Fields", "How many parts the bar has; 0 chooses.")},
                 divisions, 0, maxDivisions, usual.divisions);
  fields.number(
      {"divisionLength", QT_TRANSLATE_NOOP("Fields", "Length of a division"),
       QT_TRANSLATE_NOOP("Fields",
                         "The ground that a part of the bar stands for, in the unit, or in metres where that is "
                         "automatic; 0 chooses a round length. A bar that is then too long for its frame is not "
                         "drawn; its place tells why.")},
      divisionLength, {0, maxDivisionLength}, usual.divisionLength);
  fields.integer({"subdivisions", QT_TRANSLATE_NOOP("Fields", "Subdivisions"),
                  QT_TRANSLATE_NOOP("Fields",
                                    "Into how many parts the first division is divided. It then lies to the left of "
                                    "the 0, as on topographic maps, and the numbers are counted from its right end: "
                                    "four divisions of 250 m are numbered 250, 0, 250, 500 and 750 m. 0 divides "
                                    "nothing, and the bar begins with 0.")},
                 subdivisions, 0, maxSubdivisions, usual.subdivisions);
  fields.number(
      {"height", QT_TRANSLATE_NOOP("Fields", "Height"), QT_TRANSLATE_NOOP("Fields", "The height of the bar.")},
      heightPt, {0.5, 100, Unit::Point}, usual.heightPt);
  fields.choice<BarNumbers>({"numbers", QT_TRANSLATE_NOOP("Fields", "Numbers"),
                             QT_TRANSLATE_NOOP("Fields", "On which side of the bar its numbers stand.")},
                            numbers, barNumbers, usual.numbers);
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

namespace {

QString problemOfPattern(QString const& pattern) {
  auto const places = groundPlaces(pattern);
  bool const isFilled =
      pattern.contains(QLatin1String("%1")) ||
      std::any_of(places.begin(), places.end(), [](GroundPlace const& place) { return place.factor > 0; });
  if (isFilled) return QString();
  return QCoreApplication::translate("MapSurround",
                                     "must hold %1 where the scale stands, as in “1:%1”, or a length of ground, as in "
                                     "“1 cm = {km/cm} km”");
}

// What looks like a length of ground and is none stands as written.
QString remarkOnPattern(QString const& pattern) {
  for (GroundPlace const& place : groundPlaces(pattern)) {
    if (place.factor > 0) continue;
    QStringList names;
    for (GroundUnit const& unit : groundUnits()) names << QLatin1String(unit.name);
    return QCoreApplication::translate("MapSurround",
                                       "“%1” is no place-holder; write a unit of ground (%2), a slash and cm or in, "
                                       "as in “1 cm = {km/cm} km”")
        .arg(place.text, names.join(QStringLiteral(", ")));
  }
  return QString();
}

}  // namespace

void ScaleTextSettings::list(Fields& fields) {
  fields.text(
      {"pattern", QT_TRANSLATE_NOOP("Fields", "Pattern"),
       QT_TRANSLATE_NOOP("Fields",
                         "The text, with %1 where the scale stands, and {km/cm} for the kilometres of ground on "
                         "a centimetre of paper. Before the slash may stand m, km, ft, mi, nmi, cm, yd or "
                         "ftUS, behind it cm or in.")},
      pattern, TextKind::Line, ScaleTextSettings().pattern);
  QString const problem = fields.ok() ? problemOfPattern(pattern) : QString();
  if (!problem.isEmpty()) fields.fail("pattern", problem);
  QString const remark = remarkOnPattern(pattern);
  if (!remark.isEmpty()) fields.remark("pattern", remark + QLatin1Char('.'));
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

void GraticuleSettings::listSides(Fields& fields) {
  fields.flag({"labelsLeft", QT_TRANSLATE_NOOP("Fields", "Labels on the left"),
               QT_TRANSLATE_NOOP("Fields", "Whether lines that end there have their labels to the left of the frame.")},
              labelSides.left, true);
  fields.flag(
      {"labelsRight", QT_TRANSLATE_NOOP("Fields", "Labels on the right"),
       QT_TRANSLATE_NOOP("Fields", "Whether lines that end there have their labels to the right of the frame.")},
      labelSides.right, true);
  fields.flag({"labelsTop", QT_TRANSLATE_NOOP("Fields", "Labels above"),
               QT_TRANSLATE_NOOP("Fields", "Whether lines that end there have their labels above the frame.")},
              labelSides.top, true);
  fields.flag({"labelsBottom", QT_TRANSLATE_NOOP("Fields", "Labels below"),
               QT_TRANSLATE_NOOP("Fields", "Whether lines that end there have their labels below the frame.")},
              labelSides.bottom, true);
}

void GraticuleSettings::list(Fields& fields) {
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"), QT_TRANSLATE_NOOP("Fields", "What the grid is called.")},
              name, TextKind::Line, QString());
  fields.choice<GridSystem>(
      {"system", QT_TRANSLATE_NOOP("Fields", "Grid"),
       QT_TRANSLATE_NOOP("Fields",
                         "What is constant along a line: longitude or latitude, or a coordinate of the map, as of a "
                         "grid in metres.")},
      system, gridSystems, GridSystem::Geographic);
  fields.number({"interval", QT_TRANSLATE_NOOP("Fields", "Interval"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "The distance of two lines; 0, or one that would make more than 1,000 lines, "
                                   "chooses one for the map's scale.")},
                interval, {0, 90, Unit::Degree}, 0.0);
  fields.number({"spacing", QT_TRANSLATE_NOOP("Fields", "Spacing"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "The distance of two lines of a grid in coordinates of the map, in place of the "
                                   "interval; 0 chooses one.")},
                spacing, {0, maxSpacing, Unit::MapUnit}, 0.0);
  fields.choice<GridMarks>({"kind", QT_TRANSLATE_NOOP("Fields", "Kind"),
                            QT_TRANSLATE_NOOP("Fields", "Whether all of the lines, or only a part of them is drawn.")},
                           marks, gridMarks, GridMarks::Lines);
  fields.number({"size", QT_TRANSLATE_NOOP("Fields", "Size of the marks"),
                 QT_TRANSLATE_NOOP("Fields", "How long ticks are, or the arms of a cross from end to end.")},
                sizePt, {0.1, 1000, Unit::Point}, GraticuleSettings().sizePt);
  fields.flag(
      {"labels", QT_TRANSLATE_NOOP("Fields", "Labels"),
       QT_TRANSLATE_NOOP("Fields", "Whether the degrees stand outside the frame, or where a parallel ends inside it.")},
      labelled, true);
  listSides(fields);
  fields.choice<DegreeFormat>({"format", QT_TRANSLATE_NOOP("Fields", "Format of degrees"),
                               QT_TRANSLATE_NOOP("Fields", "How longitudes and latitudes are written.")},
                              format, degreeFormats, DegreeFormat::Automatic);
  fields.flag({"signs", QT_TRANSLATE_NOOP("Fields", "Signs"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether west and south are told by a minus, and not by letters; coordinates of the "
                                 "map are then numbers alone.")},
              signs, false);
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
