#pragma once

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysFramework/BaseTool.h>
#include <SysGeometry/Envelope.h>
#include <SysGeometry/Point.h>

namespace Plugin {

/// Zooms the layout view by a click or a dragged rectangle: the gesture and its rubber band. What the view shows next
/// is the leaf's. Any mouse button zooms. Not an undo step.
class PageZoomTool : public SysFramework::BaseTool {
public:
  bool IsEnable() override;
  void OnMouseDown(QMouseEvent* event) override;
  void OnMouseUp(QMouseEvent* event) override;
  void OnEnterEvent(QEvent* event) override;

protected:
  explicit PageZoomTool(QString const& cursorPath);

  /// Takes the event's position as the end of the drag.
  void moveTo(SysCarto::ActiveView const& view, QMouseEvent const& event);

  /// Whether the layout is shown so large, or so small, that the tool does nothing more.
  virtual bool isAtLimit(double pageScale) const = 0;

  /// What the view, which now shows `extent`, shows after the gesture.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> zoomed(
      SysUtility::_ptr_t<SysGeometry::Envelope> const& extent) const = 0;

  // Page centimetres. Of the press, and of the mouse since.
  SysUtility::_ptr_t<SysGeometry::Point> start_;
  SysUtility::_ptr_t<SysGeometry::Point> end_;

private:
  QCursor cursor_;
};

/// A click shows 0.9 of the extent about the point, a drag the dragged rectangle.
class PageZoomInTool final : public PageZoomTool {
public:
  PageZoomInTool();
  void OnMouseMove(QMouseEvent* event) override;

protected:
  bool isAtLimit(double pageScale) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> zoomed(
      SysUtility::_ptr_t<SysGeometry::Envelope> const& extent) const override;
};

/// A click shows 1.1 of the extent about the point, a drag so much more as the extent is larger than the dragged
/// rectangle; factors above 2 are folded to between 1 and 2.
class PageZoomOutTool final : public PageZoomTool {
public:
  PageZoomOutTool();
  void OnMouseMove(QMouseEvent* event) override;

protected:
  bool isAtLimit(double pageScale) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> zoomed(
      SysUtility::_ptr_t<SysGeometry::Envelope> const& extent) const override;

private:
  SysUtility::_ptr_t<SysDisplay::SimpleFillSymbol> rubberBandSymbol_;
  SysUtility::_ptr_t<SysGeometry::Envelope> rubberBand_;
};

}  // namespace Plugin
