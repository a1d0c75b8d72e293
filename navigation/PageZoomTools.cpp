#include "PageZoomTools.h"

#include <SysDisplay/SimpleLineSymbol.h>
#include <SysFramework/HostAccess.h>
#include <SysGeometry/Polyline.h>
#include <SysUtility/MathUtil.h>

#include <QMouseEvent>
#include <QPixmap>

#include <algorithm>
#include <cmath>

using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::MathUtil;

namespace Plugin {

namespace {

constexpr double clickZoomIn = 0.9;
constexpr double clickZoomOut = 1.1;
constexpr double maxPageScale = 100.0;
constexpr double minPageScale = 0.03451;
constexpr double foldingThreshold = 2.0;

constexpr double sameRatio = 1e-6;  // far less than one pixel of a rectangle makes

constexpr int centreOfImage = -1;

_ptr_t<SimpleLineSymbol> rubberBandLine() {
  auto const line = make<SimpleLineSymbol>();
  line->SetStyle(static_cast<SysDisplay::SimpleLineStyle>(1));
  line->SetColor(QColor(Qt::green));
  line->SetWidth(1.0);
  line->SetCapStyle(static_cast<SysDisplay::LineCapStyle>(1));
  line->SetJoinStyle(static_cast<SysDisplay::LineJoinStyle>(1));
  return line;
}

// The ratio of a rectangle that is a whole part of the view is off by its last digits, to either side of a threshold.
double withoutRounding(double ratio) {
  double const whole = std::round(ratio);
  return std::abs(ratio - whole) <= sameRatio * ratio ? whole : ratio;
}

}  // namespace

PageZoomTool::PageZoomTool(QString const& cursorPath) : cursor_(QPixmap(cursorPath), centreOfImage, centreOfImage) {
  enabled_ = true;
}

bool PageZoomTool::IsEnable() {
  enabled_ = static_cast<bool>(SysFramework::activePageLayout(*hook()));
  return enabled_;
}

void PageZoomTool::OnEnterEvent(QEvent*) { SetCurrentCursor(cursor_); }

void PageZoomTool::OnMouseDown(QMouseEvent* event) {
  start_ = hook()->GetActiveView()->GetDisplayTransformation()->ToMapPoint(event->pos());
  end_ = start_;
}

void PageZoomTool::moveTo(SysCarto::ActiveView const& view, QMouseEvent const& event) {
  end_ = view.GetDisplayTransformation()->ToMapPoint(event.pos());
}

void PageZoomTool::OnMouseUp(QMouseEvent* event) {
  auto const view = hook()->GetActiveView();
  moveTo(*view, *event);
  auto const extent = view->GetExtent();
  auto const* const layout = dynamic_cast<SysCarto::PageLayout*>(view.get());
  if (!layout || !isAtLimit(layout->GetDisplayTransformation()->GetPageScale())) view->SetExtent(zoomed(extent));
  view->Refresh(0, true);  // also takes the rubber band away
}

PageZoomInTool::PageZoomInTool() : PageZoomTool(QStringLiteral(":/res/ZoomIn.cur")) {}

void PageZoomInTool::OnMouseMove(QMouseEvent* event) {
  auto const view = hook()->GetActiveView();
  view->BeginTrackerDraw();
  moveTo(*view, *event);
  auto const outline = make<Polyline>();
  outline->AddPoint(start_->GetX(), start_->GetY());
  outline->AddPoint(end_->GetX(), start_->GetY());
  outline->AddPoint(end_->GetX(), end_->GetY());
  outline->AddPoint(start_->GetX(), end_->GetY());
  outline->AddPoint(start_->GetX(), start_->GetY());
  _ptr_t<SysDisplay::Symbol> symbol = rubberBandLine();
  _ptr_t<Geometry> geometry = outline;
  view->DrawTrackerShape(symbol, geometry);
  view->EndTrackerDraw();
}

bool PageZoomInTool::isAtLimit(double pageScale) const { return pageScale > maxPageScale; }

_ptr_t<Envelope> PageZoomInTool::zoomed(_ptr_t<Envelope> const& extent) const {
  double const xmin = std::min(start_->GetX(), end_->GetX());
  double const ymin = std::min(start_->GetY(), end_->GetY());
  double const xmax = std::max(start_->GetX(), end_->GetX());
  double const ymax = std::max(start_->GetY(), end_->GetY());
  auto const shown = make<Envelope>();
  shown->PutCoords(extent->GetXMin(), extent->GetYMin(), extent->GetXMax(), extent->GetYMax());
  if (MathUtil::IsEqual(xmin, xmax) && MathUtil::IsEqual(ymin, ymax)) {
    shown->Expand(clickZoomIn, clickZoomIn, true);
    shown->CenterAt(xmin, ymin);
  } else {
    shown->SetXMin(xmin);
    shown->SetXMax(xmax);
    shown->SetYMin(ymin);
    shown->SetYMax(ymax);
  }
  return shown;
}

PageZoomOutTool::PageZoomOutTool()
    : PageZoomTool(QStringLiteral(":/res/ZoomOut.cur")),
      rubberBandSymbol_(make<SimpleFillSymbol>()),
      rubberBand_(make<Envelope>()) {
  rubberBandSymbol_->SetColor(QColor(Qt::transparent));
  rubberBandSymbol_->SetOutlineSymbol(rubberBandLine());
}

void PageZoomOutTool::OnMouseMove(QMouseEvent* event) {
  auto const view = hook()->GetActiveView();
  moveTo(*view, *event);
  rubberBand_->PutCoords(start_->GetX(), start_->GetY(), end_->GetX(), end_->GetY());
  _ptr_t<SysDisplay::Symbol> symbol = rubberBandSymbol_;
  _ptr_t<Geometry> geometry = rubberBand_;
  view->BeginTrackerDraw();
  view->DrawTrackerShape(symbol, geometry);
  view->EndTrackerDraw();
}

bool PageZoomOutTool::isAtLimit(double pageScale) const { return pageScale < minPageScale; }

_ptr_t<Envelope> PageZoomOutTool::zoomed(_ptr_t<Envelope> const& extent) const {
  auto const dragged = make<Envelope>(start_, end_);
  auto const anchor = dragged->GetAnchorPoint();
  if (MathUtil::IsEqual(dragged->GetWidth(), 0.0) || MathUtil::IsEqual(dragged->GetHeight(), 0.0)) {
    extent->Expand(clickZoomOut, clickZoomOut, true);
    extent->CenterAt(start_->GetX(), start_->GetY());
    return extent;
  }
  double const widthRatio = std::abs(extent->GetWidth() / dragged->GetWidth());
  double const heightRatio = std::abs(extent->GetHeight() / dragged->GetHeight());
  double factor = withoutRounding(std::min(heightRatio, widthRatio));
  if (factor > foldingThreshold) factor = factor - std::floor(factor) + 1.0;
  extent->Expand(factor, factor, true);
  extent->CenterAt(anchor);
  return extent;
}

}  // namespace Plugin
