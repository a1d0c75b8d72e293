#pragma once

#include <SysCarto/Map.h>
#include <SysCarto/PageLayout.h>
#include <SysFramework/IApplicationHook.h>

#include <QImage>
#include <QList>
#include <QRect>
#include <QSize>
#include <QVector>

namespace SysCarto {
class MapSurroundFrame;
}

namespace Plugin {

/// Draws a page of a layout into an image of a given size, all at once or in pieces that meet without a seam.
///
/// The page's width fills the image's width; what is drawn at a place depends on the place alone and not on the piece.
/// Nothing of the document changes: every transformation that is set here is a clone. Labels come from `PlacedLabels`.
class LayoutRenderer {
public:
  /// The side of a tile of the export, in pixels.
  static constexpr int tileSize = 512;

  /// `layout` has a page. `dpi` gives symbols and texts their size in pixels; `imageSize` may differ from the page's
  /// size at that resolution.
  LayoutRenderer(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout, QSize const& imageSize, int dpi);

  /// A page's size in pixels at a resolution, cut down to whole pixels; empty where it is not a positive int.
  static QSize imageSize(SysCarto::Page const& page, int dpi);

  /// The image cut into tiles, row by row from the top: `column` and `row` count from 0.
  QSize tileGrid() const;
  QRect tile(int column, int row) const;

  /// Between the pixels of the whole image and the page.
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& pageTransform() const { return pageTransform_; }

  /// Draws the part `tile` of the image, given in its pixels, with a painter whose (0, 0) is the tile's upper left
  /// corner.
  void drawTile(QPainter& painter, QRect const& tile, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  /// That part as an image of its own on opaque white, bytes R, G, B, A, rows without padding.
  QImage tileImage(QRect const& tile, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

private:
  struct Tile;
  void drawElement(Tile const& tile, SysUtility::_ptr_t<SysCarto::Element> const& element) const;
  void drawMapFrame(Tile const& tile, SysUtility::_ptr_t<SysCarto::MapFrameElement> const& frame) const;
  static void drawSurroundFrame(Tile const& tile, SysCarto::MapSurroundFrame& frame);

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  QSize imageSize_;
  double pageHeightCm_ = 0.0;
  double cmPerPixel_ = 0.0;
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> pageTransform_;
};

/// Draws a part of one data frame: shadow and background, the map, border and grids. `clip` is that part in the pixels
/// of the tile, `clipExtent` the map rectangle that it shows; with an empty clip everything but the map is drawn.
void MapFrameElementOutput(QPainter& painter, QRect const& clip,
                           SysUtility::_ptr_t<SysGeometry::Envelope> const& clipExtent,
                           SysUtility::_ptr_t<SysCarto::MapFrameElement> const& frame,
                           SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& tileTransform,
                           SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);

/// The labels of a page's maps, placed once for the whole image and drawn by every tile as graphics of the maps. They
/// are taken out again when this object goes.
class PlacedLabels {
public:
  PlacedLabels(IApplicationHook& hook, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& pageTransform);
  ~PlacedLabels();
  PlacedLabels(PlacedLabels const&) = delete;
  PlacedLabels& operator=(PlacedLabels const&) = delete;

private:
  using Maps = QVector<SysUtility::_ptr_t<SysCarto::Map>>;
  using Labels = QVector<QList<SysUtility::_ptr_t<SysCarto::Element>>>;

  static void CreateAnnotationElement(IApplicationHook& hook, Maps& maps, Labels& labels,
                                      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& pageTransform);
  static void ClearAnnotationElement(Maps const& maps, Labels const& labels);

  // One entry for each data frame, in the order of the page's elements.
  Maps maps_;
  Labels labels_;
};

}  // namespace Plugin
