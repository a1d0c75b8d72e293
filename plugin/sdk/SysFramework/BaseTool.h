#pragma once

#include <SysFramework/BaseCommand.h>
#include <SysUI/ITool.h>

#include <QCursor>

namespace SysFramework {

/// Base of every tool. Its defaults let every event pass.
class SYSFRAMEWORK_EXPORT BaseTool : public BaseCommand, public SysUI::ITool {
public:
  BaseTool(BaseTool const&);
  BaseTool& operator=(BaseTool const&);
  ~BaseTool() override;

protected:
  BaseTool();

  /// Makes this the view's cursor while the tool is current.
  virtual void SetCurrentCursor(QCursor const& cursor);

public:
  QCursor GetCursor() override;
  bool Activate() override;
  bool Deactivate() override;
  bool OnContextMenu(QContextMenuEvent* event) override;
  void OnDblClick(QMouseEvent* event) override;
  void OnKeyDown(QKeyEvent* event) override;
  void OnKeyUp(QKeyEvent* event) override;
  void OnMouseDown(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;
  void OnMouseUp(QMouseEvent* event) override;
  void JustMouseMove(QMouseEvent* event) override;
  void OnEnterEvent(QEvent* event) override;
  void OnLeaveEvent(QEvent* event) override;
  bool OnWheelEvent(QWheelEvent* event) override;

  /// Whether the tool is the current one.
  bool IsChecked() override;

private:
  QCursor cursor_;
  bool current_;
};

}  // namespace SysFramework
