#include <SysFramework/BaseTool.h>

#include "host/SysCarto/maps/ActiveViewHost.h"

namespace SysFramework {

BaseTool::BaseTool() : current_(false) {}
BaseTool::BaseTool(BaseTool const&) = default;
BaseTool& BaseTool::operator=(BaseTool const&) = default;
BaseTool::~BaseTool() = default;

bool BaseTool::IsChecked() { return current_; }
QCursor BaseTool::GetCursor() { return cursor_; }

bool BaseTool::Activate() {
  current_ = true;
  return true;
}

bool BaseTool::Deactivate() {
  current_ = false;
  return true;
}

void BaseTool::SetCurrentCursor(QCursor const& cursor) {
  cursor_ = cursor;
  auto const view = hook() ? hook()->GetActiveView() : nullptr;
  if (auto* surface = view ? SysCarto::ActiveViewHost::surface(*view) : nullptr) surface->setCursor(cursor);
}

bool BaseTool::OnContextMenu(QContextMenuEvent*) { return false; }
void BaseTool::OnDblClick(QMouseEvent*) {}
void BaseTool::OnKeyDown(QKeyEvent*) {}
void BaseTool::OnKeyUp(QKeyEvent*) {}
void BaseTool::OnMouseDown(QMouseEvent*) {}
void BaseTool::OnMouseMove(QMouseEvent*) {}
void BaseTool::OnMouseUp(QMouseEvent*) {}
void BaseTool::JustMouseMove(QMouseEvent*) {}
void BaseTool::OnEnterEvent(QEvent*) {}
void BaseTool::OnLeaveEvent(QEvent*) {}
bool BaseTool::OnWheelEvent(QWheelEvent*) { return false; }

}  // namespace SysFramework
