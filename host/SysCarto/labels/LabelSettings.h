#pragma once

#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <vector>

namespace SysUtility {
class Fields;
}

namespace SysCarto {

class AnnotationProperties;

/// A text symbol of its own for features whose priority value is at least `minimum`.
struct LabelClass {
  double minimum = 0;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
};

/// How a label lies along its line: straight along it, bent with it, or level on a place of it, as the shields of
/// roads.
enum class LinePlace { Above, On, Curved, Level };

/// How a name lies in its area: level, along the area's length, or along it with letters apart, to tell how far it
/// reaches.
enum class AreaText { Level, Curved, Spread };

/// Where the label of an area goes that does not fit into it: nowhere, beyond its border, or beside it.
enum class AreaPlace { Inside, Across, Outside };

/// What labels of other layers keep off.
enum class LabelObstacle { None, Marks, Areas };

/// A place beside a mark: across, −1 to the left and 1 to the right of it, and up.
struct PointPlace {
  char const* name;
  int across, up;
};

/// All of them in the order in which a label is wanted; the last one, on the mark itself, only where it is asked for.
constexpr PointPlace pointPlaces[] = {
    {"upperRight", 1, 1}, {"upperLeft", -1, 1}, {"lowerRight", 1, -1}, {"lowerLeft", -1, -1}, {"right", 1, 0},
    {"left", -1, 0},      {"above", 0, 1},      {"below", 0, -1},      {"centre", 0, 0},
};

/// Where a person has put the label of a feature, whatever else is there.
struct PinnedLabel {
  QString key;          ///< of the feature
  double x = 0, y = 0;  ///< map units, the middle of the text
  double angle = 0;     ///< degrees on the page, counterclockwise
  bool hidden = false;  ///< it has none; the rest then says nothing
};

/// What the labels of a layer say, how they look and where they stand.
struct LabelSettings {
  bool visible = false;
  QString field;       ///< its value is the text; empty for no labels
  QString expression;  ///< what the text is made of instead, where it has a value
  QString language;    ///< a code, as in `name:de`
  bool groupsNumbers = false;
  QString priorityField;  ///< numeric, higher is more important; empty where all are equally important
  double gapPt = 1.5;     ///< kept free around a label
  double offsetPt = 1;    ///< from a mark or a line
  double wrapPt = 0;      ///< at which labels of points are broken; 0 breaks none
  QStringList places;     ///< names of `pointPlaces`, the most wanted first; empty for the usual ones
  LinePlace linePlace = LinePlace::Above;
  double repeatCm = 0;  ///< on paper, between labels of one text along lines; 0 for one label a line
  AreaText areaText = AreaText::Level;
  AreaPlace areaPlace = AreaPlace::Inside;
  double minSizeCm = 0;  ///< on paper, of lines and areas that are labelled
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
  std::vector<LabelClass> classes;  ///< by minimum, ascending
  QString keyField;                 ///< whose value tells features apart; empty for the number that the file gives them
  std::vector<PinnedLabel> pinned;

  bool isUsed() const { return !field.isEmpty(); }
  SysUtility::_ptr_t<SysDisplay::TextSymbol> const& symbolFor(double priority) const;

  /// What is read with the features.
  LabelFields read() const { return {field, priorityField, expression, language, groupsNumbers, keyField}; }

  void list(SysUtility::Fields& fields);
};

/// When the labels of a layer show, and before which other layers they are placed.
struct AnnotationSettings {
  int priority = 0;
  double minScale = 0, maxScale = 0;  ///< scale denominators; 0 is no limit

  static AnnotationSettings of(AnnotationProperties const& properties);
  void list(SysUtility::Fields& fields);
  void applyTo(AnnotationProperties& properties) const;
};

}  // namespace SysCarto
