#pragma once

#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>

#include <QImage>

#include <map>
#include <optional>
#include <utility>

/// The kept picture of a data frame's map, in square tiles that are drawn one by one as they come into view. Pixels
/// are counted from the frame's upper left corner, so that moving the frame, or the view, makes no tile stale.
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

  /// Draws one tile that is shown and missing, and answers its pixels; a null rectangle where none is missing. A map
  /// that has changed meanwhile is followed first.
  QRect drawNext(SysCarto::MapFrameElement const& frame);
  bool isComplete() const { return !firstMissing(); }

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
    SysGeometry::Envelope extent;
    QList<bool> visibleLayers;
    QList<SysUtility::_ptr_t<SysCarto::Element>> graphics;

    bool isSameAs(Look const& other) const;
  };

  // What was shown before, placed in centimetres of the frame.
  struct StandIn {
    QImage image;
    QRectF placeCm;
  };

  static Look lookOf(SysCarto::MapFrameElement const& frame, double pixelsPerCm);
  static QRect areaOf(TileNumber number) { return {number.first * tilePx, number.second * tilePx, tilePx, tilePx}; }
  std::optional<TileNumber> firstMissing() const;
  void keepStandIn();

  Look look_;
  QRect shownPx_;
  std::map<TileNumber, QImage> tiles_;
  StandIn standIn_;
};
