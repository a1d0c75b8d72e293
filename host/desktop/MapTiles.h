#pragma once

#include "host/SysCarto/elements/ElementContainer.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>

#include <QImage>
#include <QRegion>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

/// The kept picture of a data frame's map, in square tiles that are drawn one by one as they come into view, and
/// labelled when all of them are drawn: the labels are those of an export, whatever the view's scale. Pixels are
/// counted from the frame's upper left corner, so that moving the frame, or the view, makes no tile stale.
class MapTiles {
public:
  static constexpr int tilePx = 128;

  /// Takes the frame's size and map as they are now. Where a picture of them is another one, the tiles are dropped, and
  /// what they showed stands in, scaled, until new ones are drawn.
  void follow(SysCarto::MapFrameElement const& frame, double pixelsPerCm);

  /// Whether the tiles are of the frame's size and map as they are now.
  bool isOf(SysCarto::MapFrameElement const& frame) const { return look_.isSameAs(lookOf(frame, look_.pixelsPerCm)); }

  /// The part of the frame that is shown; tiles far away from it are forgotten.
  void setShown(QRect const& shownPx);

  /// Draws or labels one tile that is shown and not complete, and answers its pixels; a null rectangle where there is
  /// none, or where it took a moment of placing labels or of drawing a part of one instead. A map that has changed
  /// meanwhile is followed first.
  QRect drawNext(SysCarto::MapFrameElement const& frame);
  bool isComplete() const { return !next() && !waits(); }

  /// Whether there is something to draw now. Nothing is while features are read that are missing in what there is.
  bool canGoOn() const { return next().has_value(); }

  /// There are more features than when tiles were drawn without them.
  void takeNews();

  /// Paints what there is with the frame's corner at `corner`.
  void paint(QPainter& painter, QPoint const& corner) const;

  QSize sizePx() const { return look_.sizePx; }

private:
  using TileNumber = std::pair<int, int>;  // column and row

  // All that decides how the map looks in the frame.
  struct Look {
    SysUtility::_ptr_t<SysCarto::Map> map;
    double pixelsPerCm = 0;
    QSize sizePx;
    QSizeF sizeCm;
    SysGeometry::Envelope extent;
    double rotation = 0;
    bool showsUnplaced = false;
    QList<quint64> layers;  // `LayerHost::look` of each
    QList<SysUtility::_ptr_t<SysCarto::Element>> graphics;

    bool isSameAs(Look const& other) const;
    bool hasSameLabels(Look const& other) const;
  };

  struct Tile {
    QImage image;
    bool isLabelled = false;
    bool lacksFeatures = false;
    bool isStale = false;  // there are more now

    bool isToBeDrawn() const { return image.isNull() || isStale; }
  };

  // The upper part of a tile, not shown before the rest is there.
  struct Part {
    TileNumber number;
    QImage image;
    int rows = 0;
    bool lacksFeatures = false;
    bool isStale = false;
  };

  // What was shown before, placed in centimetres of the frame. What is not whole stands in for nothing that is drawn.
  struct StandIn {
    QImage image;
    QRectF placeCm;
    bool isWhole = false;

    void follow(Look const& before, Look const& now);
    QRectF place(double pixelsPerCm) const { return {placeCm.topLeft() * pixelsPerCm, placeCm.size() * pixelsPerCm}; }
  };

  static Look lookOf(SysCarto::MapFrameElement const& frame, double pixelsPerCm);
  static QRect areaOf(TileNumber number) { return {number.first * tilePx, number.second * tilePx, tilePx, tilePx}; }
  static SysUtility::_ptr_t<SysDisplay::DisplayTransformation> pageOf(SysCarto::MapFrameElement const& frame,
                                                                      double pixelsPerCm, QSize const& sizePx);
  std::optional<TileNumber> next() const;
  bool waits() const;
  std::optional<TileNumber> firstShown(bool (*isWanted)(Tile const&)) const;
  void placeLabels(SysCarto::MapFrameElement const& frame);
  bool isToBeDrawn(TileNumber number) const;
  bool drawMore(TileNumber number, QRect const& area, SysCarto::MapFrameElement const& frame);
  void label(Tile& tile, QRect const& area, SysCarto::MapFrameElement const& frame) const;
  bool drawnWithoutWaiting(SysCarto::MapFrameElement const& frame, std::function<void()> const& draw) const;
  void keepStandIn();
  void paintStandIn(QPainter& painter, QPoint const& corner, QRegion const& area) const;

  Look look_;
  QRect shownPx_;
  std::map<TileNumber, Tile> tiles_;
  std::optional<Part> part_;
  int rowsAtOnce_ = 0;
  double slowestMs_ = 0;                                // of a row of this picture, while some at once were drawn
  std::shared_ptr<SysCarto::ElementContainer> labels_;  // null until they are placed
  bool labelsWait_ = false;                             // for features of layers
  StandIn standIn_;
};
