#include "ActiveViewHost.h"
#include "ExtentHistory.h"

#include "host/SysCarto/elements/Placement.h"

#include <SysCarto/ActiveView.h>
#include <SysCarto/Map.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::Symbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

double aspectOf(QRect const& frame) { return double(std::max(1, frame.width())) / std::max(1, frame.height()); }

// Corners ordered, a flat side widened to the aspect; nothing for what can't be shown.
std::optional<Envelope> shownFrom(_ptr_t<Envelope> const& asked, double aspect) {
  if (!isFinite(asked)) return std::nullopt;
  _ptr_t<Envelope> const extent = asked->GetEnvelope();
  double const width = extent->GetWidth(), height = extent->GetHeight();
  if (!std::isfinite(width) || !std::isfinite(height) || (width <= 0 && height <= 0)) return std::nullopt;
  if (width <= 0) extent->Expand(height * aspect / 2, 0, false);
  if (height <= 0) extent->Expand(0, width / aspect / 2, false);
  return *extent;
}

bool isSame(Envelope const& a, Envelope const& b) {
  double const tolerance = 1e-9 * std::max(std::abs(a.GetWidth()), std::abs(a.GetHeight()));
  auto const isNear = [&](double x, double y) { return std::abs(x - y) <= tolerance; };
  return isNear(a.GetXMin(), b.GetXMin()) && isNear(a.GetYMin(), b.GetYMin()) && isNear(a.GetXMax(), b.GetXMax()) &&
         isNear(a.GetYMax(), b.GetYMax());
}

}  // namespace

ViewSurface::~ViewSurface() = default;

struct ActiveView::Private {
  _ptr_t<DisplayTransformation> transformation = SysUtility::make<DisplayTransformation>();
  _ptr_t<ExtentHistory> history;
  ViewSurface* surface = nullptr;
  std::optional<Envelope> asked;  // the extent that is shown, as it was asked for
  QRect frame;                    // for which it was applied
};

ActiveView::ActiveView() : d(std::make_unique<Private>()) { d->history = SysUtility::make<ExtentHistory>(*this); }
ActiveView::~ActiveView() { d->history->detach(); }

_ptr_t<Envelope> ActiveView::GetExtent() const { return GetDisplayTransformation()->GetFittedBounds(); }

void ActiveView::SetExtent(_ptr_t<Envelope> const& asked) {
  auto const extent = shownFrom(asked, aspectOf(GetDisplayTransformation()->GetDeviceFrame()));
  if (!extent) return;
  _ptr_t<Envelope> const before = GetExtent();
  show(*extent);
  if (d->history->isEmpty() || !isSame(*before, *GetExtent())) d->history->enter(*extent);
}

void ActiveView::show(Envelope const& extent) {
  d->asked = extent;
  d->frame = GetDisplayTransformation()->GetDeviceFrame();
  applyExtent(extent);
}

void ActiveView::applyExtent(Envelope const& extent) {
  auto const transformation = GetDisplayTransformation();
  double const aspect = aspectOf(transformation->GetDeviceFrame());
  Envelope fitted(extent);
  double const width = std::max(extent.GetWidth(), extent.GetHeight() * aspect);
  fitted.Expand((width - extent.GetWidth()) / 2, (width / aspect - extent.GetHeight()) / 2, false);
  transformation->SetVisibleBounds(SysUtility::make<Envelope>(fitted));
}

_ptr_t<IExtentStack> ActiveView::GetExtentStack() const { return d->history; }

_ptr_t<Map> ActiveView::GetFocusMap() const { return {}; }
void ActiveView::SetFocusMap(_ptr_t<Map> const&) {}
IElementContainer* ActiveView::GetGraphicsContainer() const { return nullptr; }
_ptr_t<DisplayTransformation> ActiveView::GetDisplayTransformation() const { return d->transformation; }

void ActiveView::BeginTrackerDraw() {
  if (d->surface) d->surface->beginTracker();
}

void ActiveView::EndTrackerDraw() {
  if (d->surface) d->surface->endTracker();
}

void ActiveView::DrawTrackerOffset(double dx, double dy) {
  if (d->surface) d->surface->trackerOffset(dx, dy);
}

void ActiveView::DrawTrackerShape(_ptr_t<Symbol>& symbol, _ptr_t<Geometry>& geometry) {
  if (!d->surface || !symbol || !geometry) return;
  auto const transformation = GetDisplayTransformation()->Clone();
  transformation->SetPageScale(1);
  d->surface->trackerShape(*symbol, geometry, transformation);
}

// A window that has changed its size has only set the device frame; the extent has to follow it.
void ActiveView::followFrame() {
  if (d->asked && d->frame != GetDisplayTransformation()->GetDeviceFrame()) show(Envelope(*d->asked));
}

void ActiveView::PartialRefresh(int phase, _ptr_t<SysUtility::CRef> const&) {
  followFrame();
  if (d->surface) d->surface->refresh(phase);
}

void ActiveView::Refresh(int, bool overlay) { RedrawAll(overlay); }

void ActiveView::RedrawAll(bool overlay) {
  followFrame();
  if (!d->surface) return;
  if (overlay) d->surface->clearOverlay();
  d->surface->refresh(RefreshPhase::Everything);
}

void ActiveView::Deactivate() {
  if (d->surface) d->surface->clearOverlay();
}

void ActiveViewHost::setSurface(ActiveView& view, ViewSurface* surface) { view.d->surface = surface; }
ViewSurface* ActiveViewHost::surface(ActiveView const& view) { return view.d->surface; }

}  // namespace SysCarto
