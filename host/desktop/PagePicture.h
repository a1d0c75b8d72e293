#pragma once

#include "MapTiles.h"

#include <SysCarto/PageLayout.h>

#include <QHash>
#include <QImage>
#include <QRegion>

/// The picture of a page on a screen. Elements are painted whenever they change; maps are painted from tiles that are
/// kept apart and drawn in slices, so that neither arranging nor panning waits for a map.
class PagePicture {
public:
  /// Paints the whole page as the view's transformation shows it. A device pixel ratio of 2 gives a picture of twice
  /// the view's size.
  void compose(SysCarto::PageLayout const& layout, double devicePixelRatio);

  /// Goes with a view that has scrolled: moves the picture by device pixels, and paints what has come into view. For an
  /// extent that differs from the one composed last by just that.
  void scroll(SysCarto::PageLayout const& layout, QPoint const& byPx);

  /// Draws missing tiles of maps for about `budgetMs` milliseconds, one at least, and paints them; or goes on with
  /// placing labels for a moment. Answers what has changed in the picture. The layout must be the one composed last.
  QRegion drawSlice(SysCarto::PageLayout const& layout, int budgetMs);

  /// Whether the maps look as they did when they were painted.
  bool isCurrent(SysCarto::PageLayout const& layout) const;

  /// Whether all maps are drawn.
  bool isComplete() const;

  /// There are more features than when something was drawn without them. Answers whether elements, and not maps alone,
  /// are to be painted anew.
  bool takeNews();

  /// Whether a slice would draw something now (`MapTiles::canGoOn`).
  bool canGoOn() const;

  /// In device pixels; null before something was composed.
  QImage const& image() const { return image_; }

  /// The mapping of the picture; empty before something was composed.
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation() const { return transformation_; }

  /// How many tiles were drawn since the beginning.
  int drawnTiles() const { return drawnTiles_; }

private:
  void followView(SysCarto::PageLayout const& layout);
  void followMaps(SysCarto::PageLayout const& layout);
  void paint(SysCarto::PageLayout const& layout, QRegion const& area);
  void paintSheet(QPainter& painter, SysCarto::Page& page) const;
  void paintElement(QPainter& painter, SysUtility::_ptr_t<SysCarto::Element> const& element) const;
  void paintFrame(QPainter& painter, SysUtility::_ptr_t<SysCarto::MapFrameElement> const& frame) const;
  QPoint cornerOf(SysCarto::MapFrameElement const& frame) const;

  QImage image_;  // in device pixels; its own ratio stays 1
  double devicePixelRatio_ = 1;
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> transformation_;
  QHash<SysCarto::ElementHandle, MapTiles> tiles_;
  int drawnTiles_ = 0;
  bool lacksFeatures_ = false;  // in what elements tell of maps
};
