#pragma once

#include "host/SysCarto/labels/LabelIndex.h"
#include "host/SysCarto/labels/LabelSettings.h"
#include "host/SysCarto/layers/FeatureLooks.h"
#include "host/SysCarto/layers/ThinnedFeatures.h"

#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Polygon.h>

#include <QHash>

#include <functional>
#include <map>
#include <optional>

namespace SysCarto {

struct PlacedLabel {
  QString text;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
  double x, y;   ///< map units; the text hangs on it by its symbol's alignment
  double angle;  ///< degrees, counterclockwise
  Ring area;     ///< map units, what the text covers
};

/// A text with the room it needs.
struct LabelText {
  QString text;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;  ///< centred about its position
  QRectF bounds;                                      ///< points, y downwards, about the position
};

/// Places the labels of one layer on one page. Works in points of the page, counted from the lower left corner of what
/// the transformation shows, so that a label is upright, and follows its line, however the map is turned.
class LabelPlacer {
public:
  LabelPlacer(FeatureStore const& store, LabelSettings const& settings, Renderer const& renderer,
              SysDisplay::DisplayTransformation const& transformation);

  /// False for a transformation that shows nothing.
  bool isUsable() const { return unitsPerPoint_ > 0; }

  /// An area in map units that labels keep clear of.
  void addObstacle(SysGeometry::Polygon const& area);

  void place(std::function<bool()> const& isCancelled);
  std::vector<PlacedLabel> const& labels() const { return labels_; }

private:
  std::vector<int> candidates() const;
  Box const& markShapeOf(int feature);
  Box markOf(int feature, QPointF const& point);
  void collectMarks();

  void placeFeature(int feature);
  bool placeBesidePoint(int feature, LabelText& text, QPointF const& point);
  bool placeInPolygon(LabelText const& text, int feature);
  bool placeAlongLine(LabelText const& text, int feature);

  bool isDrawn(int feature) const {
    int const symbolClass = store_.features[feature].symbolClass;
    return symbolClass >= 0 && !looks_.drawing()[symbolClass].empty();
  }

  /// Where a text of that size goes beside a mark; an empty box where it finds no room.
  Box boxFor(Box const& mark, double width, double height) const;
  LabelText textOf(int feature);
  static void measure(LabelText& text);
  std::optional<QPointF> visiblePoint(int feature) const;

  LabelShape shapeAt(LabelText const& text, QPointF const& centre, double angle, double gapPt) const;
  void accept(LabelText const& text, QPointF const& centre, double angle);

  QPointF toPage(double x, double y) const {
    QPointF const turned = turn_.map(QPointF(x, y));
    return {(turned.x() - left_) / unitsPerPoint_, (turned.y() - bottom_) / unitsPerPoint_};
  }
  QPointF fromPage(QPointF const& point) const {
    return turnBack_.map(QPointF(left_ + point.x() * unitsPerPoint_, bottom_ + point.y() * unitsPerPoint_));
  }

  FeatureStore const& store_;
  LabelSettings const& settings_;
  ThinnedFeatures thinned_;
  QTransform turn_, turnBack_;    // of a map that is turned in its frame
  double left_ = 0, bottom_ = 0;  // map units, in the turned world
  QRectF covered_;                // map units
  double unitsPerPoint_ = 0;
  Box frame_;
  LabelIndex index_;
  FeatureLooks const looks_;
  std::map<std::pair<int, FeatureLooks::Look>, Box> markShapes_;  // by class and look, about the position
  std::unique_ptr<MarkIndex> marks_;
  QHash<SysDisplay::TextSymbol const*, SysUtility::_ptr_t<SysDisplay::TextSymbol>> centred_;
  std::vector<PlacedLabel> labels_;
};

/// The places for a text box inside an area, best first: near the place that is farthest from the area's border.
/// `rings` by the even-odd rule.
std::vector<QPointF> placesInside(Rings const& rings, double width, double height);

/// The same text in one, two and three lines of about equal length, as far as it has words.
QStringList wrapped(QString const& text);

/// A straight enough stretch of a line.
struct Stretch {
  QPointF middle;
  double angle;  ///< degrees, within ±90, so that a text along it is upright
  double bend;   ///< how far the line leaves the stretch to either side
};

/// The stretches of a line on which a text of that size can lie, nearest to the line's middle first.
std::vector<Stretch> straightStretches(std::vector<QPointF> const& line, double width, double height);

}  // namespace SysCarto
