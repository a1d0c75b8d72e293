#pragma once

#include "MapTiles.h"
#include "ViewWidget.h"

#include <SysCarto/PageLayout.h>

/// The screen of a map alone: what its data frame shows, as large as the window allows.
class MapView final : public ViewWidget {
  Q_OBJECT

public:
  explicit MapView(QWidget* parent);
  ~MapView() override;

  /// Shows the map of the layout's focus data frame; nothing without a layout, or without a frame.
  void setLayout(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout);

  /// Empty where there is none.
  SysUtility::_ptr_t<SysCarto::Map> map() const;
  bool isComplete() const override { return tiles_.isComplete(); }

protected:
  void composePicture() override;
  void continuePicture() override;
  QImage const& picture() const override { return picture_; }
  void resizeEvent(QResizeEvent* event) override;

private:
  void paintMap();

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  SysUtility::_ptr_t<SysCarto::Map> shown_;
  MapTiles tiles_;
  QImage picture_;
};
