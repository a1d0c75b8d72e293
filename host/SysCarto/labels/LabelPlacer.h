#pragma once

#include "host/SysCarto/labels/LabelIndex.h"
#include "host/SysCarto/labels/LabelSettings.h"
#include "host/SysCarto/labels/LinePlaces.h"
#include "host/SysCarto/labels/MarkShapes.h"
#include "host/SysCarto/layers/ThinnedFeatures.h"

#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Polygon.h>

#include <QHash>

#include <functional>
#include <optional>

namespace SysCarto {

/// A text of a label: all of it, or a letter of one that bends.
struct PlacedLabel {
  QString text;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
  double x, y;   ///< map units; the text hangs on it by its symbol's alignment
  double angle;  ///< degrees, counterclockwise
  Ring area;     ///< map units, what the text covers
  Ring leader;   ///< map units, from the text to what it names; empty for none
  QString key;   ///< of the feature
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

  /// Features of another layer that labels keep off, as drawn by its renderer.
  void addObstacles(FeatureStore const& store, Renderer const& renderer, LabelObstacle kind);

  /// Labels no other feature than the one of that number in the source.
  void keepOnly(qint64 id) { only_ = id; }

  void place(std::function<bool()> const& isCancelled);
  std::vector<PlacedLabel> const& labels() const { return labels_; }

  /// The features that are labelled, and what found no place, at its feature and without an area.
  int placedCount() const { return placedCount_; }
  std::vector<PlacedLabel> const& unplaced() const { return unplaced_; }

private:
  enum class Outcome { Placed, NoRoom, NotWanted };

  // An area on the page, and its size.
  struct PageArea {
    Rings rings;
    double size = 0;
  };

  // A text, or a letter of it, where it might stand.
  struct Piece {
    LabelText text;
    QPointF centre;
    double angle;
  };
  using Pieces = std::vector<Piece>;

  std::vector<int> candidates() const;
  double leastImportant() const;
  void collectMarks();
  void addEdges(Ring const& points);

  PinnedLabel const* pinOf(int feature) const { return pins_.value(store_.keys[feature]); }
  void placePinned(int feature, PinnedLabel const& pin);
  QPointF nearestOf(int feature, QPointF const& place);
  void count(int feature, Outcome outcome, size_t labelsBefore);

  Outcome placeFeature(int feature);
  Outcome placeBesidePoint(int feature, LabelText& text, QPointF const& point);
  Outcome placeAtPolygon(LabelText const& text, int feature);
  bool placeInside(LabelText const& given, std::vector<PageArea> const& areas);
  bool placeOutside(LabelText const& text, PageArea const& area);
  Outcome placeAlongLines(LabelText const& text, int feature);
  bool placeAlongLine(LabelText const& text, MeasuredLine const& line);
  std::vector<Pieces> waysAlong(LabelText const& text, MeasuredLine const& line);
  bool placeAlong(Pieces const& pieces);

  std::vector<PageArea> areasOf(int feature);
  std::vector<std::vector<QPointF>> linesOf(int feature);
  bool isRepeatedTooSoon(QString const& text, QPointF const& middle) const;
  void keepUnplaced(int feature);

  /// Where a text of that size goes beside a mark; an empty box where it finds no room.
  Box boxFor(Box const& mark, double width, double height) const;
  LabelText textOf(int feature);
  static void measure(LabelText& text);
  std::optional<QPointF> visiblePoint(int feature) const;

  LabelShape shapeAt(LabelText const& text, QPointF const& centre, double angle, double gapPt) const;
  bool isFree(LabelText const& text, QPointF const& centre, double angle) const;
  void accept(LabelText const& text, QPointF const& centre, double angle, Ring const& leader = {});

  QPointF toPage(double x, double y) const {
    QPointF const turned = turn_.map(QPointF(x, y));
    return {(turned.x() - left_) / unitsPerPoint_, (turned.y() - bottom_) / unitsPerPoint_};
  }
  QPointF fromPage(QPointF const& point) const {
    return turnBack_.map(QPointF(left_ + point.x() * unitsPerPoint_, bottom_ + point.y() * unitsPerPoint_));
  }

  FeatureStore const& store_;
  LabelSettings const& settings_;
  std::vector<PointPlace> const places_;
  QHash<QString, PinnedLabel const*> pins_;
  double const scale_;  // of the map, as a denominator
  ThinnedFeatures thinned_;
  QTransform turn_, turnBack_;    // of a map that is turned in its frame
  double left_ = 0, bottom_ = 0;  // map units, in the turned world
  QRectF covered_;                // map units
  double unitsPerPoint_ = 0;
  Box frame_;
  LabelIndex index_;
  MarkShapes shapes_;
  std::unique_ptr<MarkIndex> marks_;
  std::optional<qint64> only_;
  QHash<SysDisplay::TextSymbol const*, SysUtility::_ptr_t<SysDisplay::TextSymbol>> centred_;
  QHash<QString, std::vector<QPointF>> along_;  // middles of the labels of lines, by their text
  std::vector<PlacedLabel> labels_;
  int placedCount_ = 0;
  std::vector<PlacedLabel> unplaced_;
};

/// The places for a text box inside an area, best first: near the place that is farthest from the area's border.
/// `rings` by the even-odd rule.
std::vector<QPointF> placesInside(Rings const& rings, double width, double height);

/// The same text in one, two and three lines of about equal length, as far as it has words.
QStringList wrapped(QString const& text);

}  // namespace SysCarto
