#pragma once

#include "MapTiles.h"
#include "ViewWidget.h"

#include <SysCarto/PageLayout.h>

#include <optional>

/// The screen of a map alone: what its data frame shows, as large as the window allows. The wheel zooms and a drag
/// moves the map in its frame, unless that is locked.
class MapView final : public ViewWidget {
  Q_OBJECT

public:
  explicit MapView(QWidget* parent);
  ~MapView() override;

  /// Shows the map of the layout's focus data frame; nothing without a layout, or without a frame.
  void setLayout(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout);

  /// Empty where there is none.
  SysUtility::_ptr_t<SysCarto::Map> map() const;
  QVector<ShownMap> shownMaps() const override;
  bool isComplete() const override { return tiles_.isComplete(); }
  void takeNews() override;

signals:
  /// The left button went down and up at one place of the map, in pixels.
  void clicked(QPointF const& positionPx);

protected:
  void composePicture() override;
  bool continuePicture() override;
  bool canGoOn() const override { return tiles_.canGoOn(); }
  QImage const& picture() const override { return picture_; }
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

private:
  QRect placePx() const;
  void paintMap();
  bool isFree() const;
  bool isFreeToZoom() const;
  double unitsPerPx() const;
  void zoomAt(QPointF const& fixedPx, double factor);

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  SysUtility::_ptr_t<SysCarto::Map> shown_;
  MapTiles tiles_;
  QImage picture_;
  QPoint pressed_;
  std::optional<QPoint> grabbed_;  // where a drag began
};
