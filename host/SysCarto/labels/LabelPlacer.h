#pragma once

#include "host/SysCarto/labels/LabelIndex.h"
#include "host/SysCarto/labels/LabelSettings.h"
#include "host/SysCarto/labels/LinePlaces.h"
#include "host/SysCarto/labels/MarkShapes.h"
#include "host/SysCarto/labels/MarkSides.h"
#include "host/SysCarto/layers/ThinnedFeatures.h"

#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Polygon.h>

#include <QHash>
#include <QSet>

#include <map>
#include <optional>
#include <utility>
#include <vector>

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
  QString name;  ///< all of the label, whatever part of it this is
  int label;     ///< counts the labels of a layer
};

/// A text with the room it needs.
struct LabelText {
  QString text;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;  ///< centred about its position
  QRectF bounds;                                      ///< points, y downwards, about the position
};

/// A text of a label, or a letter of it, where it might stand. In points of the page.
struct LabelPiece {
  int text;  ///< of the texts of its label
  QPointF centre;
  double angle;
};

/// One of the ways to label a feature.
struct LabelWay {
  std::vector<LabelPiece> pieces;
  double cost;  ///< the less, the better
  Ring leader = {};

  QPointF const& middle() const { return pieces[pieces.size() / 2].centre; }
};

/// A label that is to be placed, in one of its ways, or not at all.
struct WantedLabel {
  int feature;
  std::vector<LabelText> texts = {};
  std::vector<LabelWay> ways = {};
  Box mark = {}, core = {};  ///< of a point whose mark has a size, and what of it has to be seen
  Box around = {};           ///< where no text of a more important label may lie; empty for nothing
  QString repeats = {};      ///< the text of labels along lines that stand apart; empty for others
};

/// Finds where the labels of one layer may stand on one page; `LabelPlan` chooses. Works in points of the page, counted
/// from the lower left corner of what the transformation shows, so that a label is upright, and follows its line,
/// however the map is turned.
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

  // In this order.

  /// Places what a person has put somewhere. Answers what these take.
  std::vector<LabelShape> placePinned();

  /// What labels keep clear of, as `placePinned` of another layer answered it.
  void addTaken(LabelShape shape) { index_.add(std::move(shape)); }

  /// The marks of points that are in sight; no label covers more of them than it must.
  void addMarks(MarkIndex::Marks& marks);

  /// The marks of all layers, which live as long as this.
  void begin(MarkIndex const& marks);

  /// Adds the labels of the next feature, the most important one first, with the ways that are free of obstacles; one
  /// without a way finds no room. Answers whether there was a feature left.
  bool addNext(std::vector<WantedLabel>& wanted);

  void accept(WantedLabel const& label, LabelWay const& way);

  /// After all that are accepted: this one is not. Its feature, or the text that it repeats, may stand elsewhere.
  void leaveOut(WantedLabel const& label);

  // What came of it.

  std::vector<PlacedLabel> takeLabels() { return std::move(labels_); }

  /// The features that are labelled, and what found no place, at its feature and without an area.
  int placedCount() const { return static_cast<int>(placedFeatures_.size()); }
  std::vector<PlacedLabel> takeUnplaced() { return std::move(unplaced_); }

  double gapPt() const { return settings_.gapPt; }
  double repeatPt() const;
  double priority(int feature) const { return store_.priorities[static_cast<size_t>(feature)]; }

  /// What a piece takes, and so much around it.
  static LabelShape shapeOf(LabelText const& text, QPointF const& centre, double angle, double gapPt);

private:
  // An area on the page, and its size.
  struct PageArea {
    Rings rings;
    double size = 0;
  };

  // Labels of points that begin in a part of the page.
  struct Cell {
    int all = 0;
    int tried = 0, failed = 0;  // so far
  };

  std::vector<int> candidates() const;
  double leastImportant() const;
  void addEdges(Ring const& points);

  PinnedLabel const* pinOf(int feature) const { return pins_.value(store_.keys[feature]); }
  void placePinned(int feature, PinnedLabel const& pin);
  QPointF nearestOf(int feature, QPointF const& place);

  void addWanted(int feature, std::vector<WantedLabel>& wanted);
  void addBesidePoint(WantedLabel label, QPointF const& point, std::vector<WantedLabel>& wanted);
  std::pair<int, int> cellOf(QPointF const& point) const;
  void countCells();
  void addBeside(WantedLabel& label, Box const& mark, Cell const& cell) const;
  void addAtPolygon(WantedLabel label, std::vector<WantedLabel>& wanted);
  void addInside(WantedLabel& label, std::vector<PageArea> const& areas) const;
  void addAlongArea(WantedLabel& label, PageArea const& area) const;
  void addAcross(WantedLabel& label, PageArea const& area) const;
  void addOutside(WantedLabel& label, PageArea const& area) const;
  void addAlongLines(WantedLabel label, std::vector<WantedLabel>& wanted);
  void addAlongLine(WantedLabel& label, MeasuredLine const& line, double cost) const;
  void addRepeated(WantedLabel label, std::vector<WantedLabel>& wanted) const;

  std::vector<PageArea> areasOf(int feature);
  std::vector<std::vector<QPointF>> linesOf(int feature);

  LabelText textOf(int feature);
  static void measure(LabelText& text);
  std::optional<QPointF> visiblePoint(int feature) const;

  bool isFree(LabelText const& text, QPointF const& centre, double angle) const;
  void addIfFree(WantedLabel& label, LabelWay way) const;
  void put(LabelText const& text, QPointF const& centre, double angle, int feature, Ring const& leader,
           QString const& name);

  QPointF toPage(double x, double y) const {
    QPointF const turned = turn_.map(QPointF(x, y));
    return {(turned.x() - left_) / unitsPerPoint_, (turned.y() - bottom_) / unitsPerPoint_};
  }
  Ring toPage(Ring ring) const {
    for (QPointF& point : ring) point = toPage(point.x(), point.y());
    return ring;
  }
  QPointF fromPage(QPointF const& point) const {
    return turnBack_.map(QPointF(left_ + point.x() * unitsPerPoint_, bottom_ + point.y() * unitsPerPoint_));
  }

  FeatureStore const& store_;
  LabelSettings const& settings_;
  std::vector<MarkSide> const sides_;
  QHash<QString, PinnedLabel const*> pins_;
  double const scale_;  // of the map, as a denominator
  ThinnedFeatures thinned_;
  QTransform turn_, turnBack_;    // of a map that is turned in its frame
  double left_ = 0, bottom_ = 0;  // map units, in the turned world
  QRectF covered_;                // map units
  double unitsPerPoint_ = 0;
  Box frame_;
  LabelIndex index_;  // of what labels keep clear of
  MarkShapes shapes_;
  MarkIndex const* marks_ = nullptr;  // of all layers
  std::vector<int> features_;         // to be labelled
  size_t next_ = 0;                   // of these
  std::optional<qint64> only_;
  QHash<SysDisplay::TextSymbol const*, SysUtility::_ptr_t<SysDisplay::TextSymbol>> centred_;
  std::map<std::pair<int, int>, Cell> cells_;
  std::vector<PlacedLabel> labels_;
  int labelCount_ = 0;
  QSet<int> placedFeatures_, leftOut_;
  QSet<QString> repeated_;
  std::vector<PlacedLabel> unplaced_;
};

/// The places for a text box inside an area, best first: near the place that is farthest from the area's border.
/// `rings` by the even-odd rule.
std::vector<QPointF> placesInside(Rings const& rings, double width, double height);

/// The same text in one, two and three lines of about equal length, as far as it has words.
QStringList wrapped(QString const& text);

}  // namespace SysCarto
