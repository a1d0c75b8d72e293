#pragma once

#include <SysFramework/BaseTool.h>

#include <QPoint>

namespace Plugin {

/// Moves the layout view with the mouse: the view's picture follows the hand, and the layout is drawn once when the
/// button is released. Any mouse button pans. Not an undo step.
class PagePanTool final : public SysFramework::BaseTool {
public:
  PagePanTool();

  bool IsEnable() override;
  void OnMouseDown(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;
  void OnMouseUp(QMouseEvent* event) override;
  void OnEnterEvent(QEvent* event) override;

private:
  /// Moves what the view shows by the drag that ends at a position in its pixels.
  void ResetMapExtent(QPoint releasePosition);

  // Device pixels of the view.
  QPoint start_;
  QPoint current_;
  QCursor cursor_;
};

}  // namespace Plugin
