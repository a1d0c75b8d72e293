#pragma once

#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/Graticule.h>
#include <SysCarto/MapSurround.h>
#include <SysDisplay/LineSymbol.h>

#include <QStringList>

namespace SysCarto {

// What a document stores of each kind of surround and of a graticule, and what such an object holds. `of` takes it from
// an object, `list` names its fields, and `applyTo` gives it to an object. An empty symbol stands for the usual one.

struct SYSCARTO_EXPORT LegendSettings {
  static QString usualTitle();

  QString title = usualTitle();
  SysUtility::_ptr_t<SysDisplay::TextSymbol> titleSymbol, headingSymbol, labelSymbol;
  QStringList omitted;  ///< names of layers

  static LegendSettings of(Legend const& legend);
  void list(SysUtility::Fields& fields);
  void applyTo(Legend& legend) const;
};

enum class BarStyle { Alternating, Double, Ticks };
enum class BarUnit { Automatic, Metres, Kilometres, Feet, Miles, NauticalMiles };

struct SYSCARTO_EXPORT ScaleLineSettings {
  BarStyle style = BarStyle::Alternating;
  BarUnit unit = BarUnit::Automatic;
  double heightPt = 5;
  QColor color = QColor(0, 0, 0), secondColor = QColor(255, 255, 255);
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;

  static ScaleLineSettings of(ScaleLine const& line);
  void list(SysUtility::Fields& fields);
  void applyTo(ScaleLine& line) const;
};

struct SYSCARTO_EXPORT ScaleTextSettings {
  QString pattern = QStringLiteral("1:%1");  ///< %1 is the scale denominator
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

struct SYSCARTO_EXPORT GraticuleSettings {
  QString name;
  double interval = 0;  ///< degrees; 0 chooses one for the scale
  bool labelled = true;
  SysUtility::_ptr_t<SysDisplay::LineSymbol> line;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> label;

  static GraticuleSettings of(Graticule const& graticule);
  void list(SysUtility::Fields& fields);
  void applyTo(Graticule& graticule) const;

  /// A sentence where the settings of a graticule can't be followed on the map of that frame, and what is done instead;
  /// empty where they can.
  static QString problemOf(Graticule const& graticule, MapFrameElement const& frame);
};

}  // namespace SysCarto
