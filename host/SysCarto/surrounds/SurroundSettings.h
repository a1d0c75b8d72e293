#pragma once

#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/Graticule.h>
#include <SysCarto/MapSurround.h>
#include <SysDisplay/LineSymbol.h>

#include <QStringList>
#include <QVector>

namespace SysCarto {

// What a document stores of each kind of surround and of a graticule, and what such an object holds. `of` takes it from
// an object, `list` names its fields, and `applyTo` gives it to an object. An empty symbol stands for the usual one.

/// What a legend tells of one layer. Classes are named by the texts that stand beside them.
struct LegendEntry {
  QString layer;        ///< name; one that the map does not have shows nothing
  QString text;         ///< instead of the layer's name; empty for that
  QStringList classes;  ///< in the order shown; empty for all as the layer has them
  QStringList omitted;  ///< classes
  QStringList with;     ///< names of layers whose symbols are drawn in the same patches, in the map's order

  void list(SysUtility::Fields& fields);
};

enum class OtherLayers { After, LeftOut };
enum class FillPatch { Rectangle, Rounded, Ellipse };
enum class LinePatch { Straight, Zigzag, Wave };

struct PatchSettings {
  double widthPt = 20, heightPt = 10;
  FillPatch fill = FillPatch::Rectangle;
  LinePatch line = LinePatch::Straight;
};

struct SYSCARTO_EXPORT LegendSettings {
  static QString usualTitle();

  QString title = usualTitle();
  SysUtility::_ptr_t<SysDisplay::TextSymbol> titleSymbol, headingSymbol, labelSymbol;
  QStringList omitted;  ///< names of layers
  QVector<LegendEntry> entries;
  OtherLayers others = OtherLayers::After;  ///< that no entry names
  bool onMapOnly = false;                   ///< classes of which the map shows a feature
  int columns = 0;                          ///< 0 for as many as show it largest
  double wrapPt = 0;                        ///< the width of a text; 0 for any
  PatchSettings patch;

  /// The names of the layers of its map, those first that it has no entry for, each from above.
  static QStringList layersFor(Legend const& legend);

  static LegendSettings of(Legend const& legend);
  void list(SysUtility::Fields& fields);
  void applyTo(Legend& legend) const;
};

enum class BarStyle { Alternating, Double, Ticks };
enum class BarUnit { Automatic, Metres, Kilometres, Feet, Miles, NauticalMiles, Centimetres, Yards, SurveyFeet };
enum class BarNumbers { Above, Below };

struct SYSCARTO_EXPORT ScaleLineSettings {
  BarStyle style = BarStyle::Alternating;
  BarUnit unit = BarUnit::Automatic;
  QString unitText;           ///< empty for the unit's sign
  int divisions = 0;          ///< 0 chooses, and so does a length of 0
  double divisionLength = 0;  ///< in the unit; in metres where that is automatic
  int subdivisions = 0;       ///< of the first division, which then lies before the 0; 0 for none
  double heightPt = 5;
  BarNumbers numbers = BarNumbers::Above;
  QColor color = QColor(0, 0, 0), secondColor = QColor(255, 255, 255);
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;

  static ScaleLineSettings of(ScaleLine const& line);
  void list(SysUtility::Fields& fields);
  void applyTo(ScaleLine& line) const;
};

struct SYSCARTO_EXPORT ScaleTextSettings {
  /// With %1 for the scale denominator, and {km/cm} for the kilometres of ground on a centimetre of paper: any unit of
  /// a scale bar before the slash, cm or in behind it.
  QString pattern = QStringLiteral("1:%1");
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;

  static ScaleTextSettings of(ScaleText const& text);
  void list(SysUtility::Fields& fields);
  void applyTo(ScaleText& text) const;
};

struct SYSCARTO_EXPORT NorthArrowSettings {
  SysUtility::_ptr_t<SysDisplay::MarkerSymbol> symbol;
  bool trueNorth = false;  ///< and not upwards

  static NorthArrowSettings of(MarkerNorthArrow const& arrow);
  void list(SysUtility::Fields& fields);
  void applyTo(MarkerNorthArrow& arrow) const;
};

enum class GridSystem { Geographic, Projected };
enum class GridMarks { Lines, Ticks, Crosses };
enum class DegreeFormat { Automatic, Decimal, Minutes, Seconds };

/// The sides of a data frame.
struct Sides {
  bool left = true, right = true, bottom = true, top = true;
};

struct SYSCARTO_EXPORT GraticuleSettings {
  QString name;
  GridSystem system = GridSystem::Geographic;
  double interval = 0;  ///< degrees; 0 chooses one for the scale
  double spacing = 0;   ///< the same of a projected grid, in map units
  GridMarks marks = GridMarks::Lines;
  double sizePt = 6;  ///< of ticks and crosses
  bool labelled = true;
  Sides labelSides;
  DegreeFormat format = DegreeFormat::Automatic;
  bool signs = false;  ///< and no letters
  SysUtility::_ptr_t<SysDisplay::LineSymbol> line;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> label;

  static GraticuleSettings of(Graticule const& graticule);
  void list(SysUtility::Fields& fields);
  void applyTo(Graticule& graticule) const;

  /// A sentence where the settings of a graticule can't be followed on the map of that frame, and what is done instead;
  /// empty where they can.
  static QString problemOf(Graticule const& graticule, MapFrameElement const& frame);

private:
  void listSides(SysUtility::Fields& fields);
};

}  // namespace SysCarto
