#include "PagePanTool.h"

#include <SysFramework/HostAccess.h>

#include <QMouseEvent>
#include <QPixmap>

namespace Plugin {

PagePanTool::PagePanTool() : cursor_(QPixmap(QStringLiteral(":/res/Pan.cur")), -1, -1) { enabled_ = true; }

bool PagePanTool::IsEnable() {
  enabled_ = static_cast<bool>(SysFramework::activePageLayout(*hook()));
  return enabled_;
}

void PagePanTool::OnEnterEvent(QEvent*) { SetCurrentCursor(cursor_); }

void PagePanTool::OnMouseDown(QMouseEvent* event) {
  SetCurrentCursor(QCursor(Qt::ClosedHandCursor));
  start_ = event->pos();
  current_ = event->pos();
}

void PagePanTool::OnMouseMove(QMouseEvent* event) {
  current_ = event->pos();
  auto const view = hook()->GetActiveView();
  view->BeginTrackerDraw();
  view->DrawTrackerOffset(current_.x() - start_.x(), current_.y() - start_.y());
  view->EndTrackerDraw();
}

void PagePanTool::OnMouseUp(QMouseEvent* event) {
  ResetMapExtent(event->pos());
  SetCurrentCursor(cursor_);
}

void PagePanTool::ResetMapExtent(QPoint releasePosition) {
  current_ = releasePosition;
  auto const view = hook()->GetActiveView();
  auto const transform = view->GetDisplayTransformation();
  auto const from = transform->ToMapPoint(start_);
  auto const to = transform->ToMapPoint(current_);
  double const dx = to->GetX() - from->GetX();
  double const dy = to->GetY() - from->GetY();
  auto const extent = transform->GetFittedBounds();
  extent->PutCoords(extent->GetXMin() - dx, extent->GetYMin() - dy, extent->GetXMax() - dx, extent->GetYMax() - dy);
  view->SetExtent(extent);
  view->RedrawAll(true);
  start_ = current_;
}

}  // namespace Plugin
