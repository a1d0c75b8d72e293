#include "MapOverview.h"
#include "OpenedGroup.h"
#include "PageHost.h"
#include "PageLayoutHost.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/Placement.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysDisplay/Units.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace SysCarto {

using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr QRect firstFramePx(0, 0, 1000, 750);
constexpr double spaceAboutPage = 1.04;  // of the page's size, when the whole page is shown

// A rectangle of the page, in fractions of its width and height.
struct PagePart {
  double left, bottom, right, top;
};
// clang-format off
constexpr PagePart dataFramePart = {0.10, 0.22, 0.90, 0.90};
constexpr PagePart legendPart    = {0.10, 0.05, 0.40, 0.19};
constexpr PagePart scaleBarPart  = {0.50, 0.05, 0.90, 0.10};
constexpr PagePart scaleTextPart = {0.50, 0.13, 0.90, 0.17};
// clang-format on
constexpr double arrowRight = 0.88, arrowTop = 0.88, arrowSize = 0.1;  // the size of the page's shorter side

_ptr_t<Envelope> partOf(Page const* page, PagePart const& part) {
  if (!page) return make<Envelope>();
  double width, height;
  page->QuerySize(width, height);
  return make<Envelope>(part.left * width, part.bottom * height, part.right * width, part.top * height);
}

// From the page's origin, at a zoom.
_ptr_t<Envelope> extentAt(double ratio, QRect const& framePx) {
  double const pixelsPerCm = ratio * SysDisplay::pixelsPerInch / SysDisplay::cmPerInch;
  return make<Envelope>(0.0, 0.0, framePx.width() / pixelsPerCm, framePx.height() / pixelsPerCm);
}

int pixelsOf(double cm, int dpi) {
  return static_cast<int>(std::min<double>(cm / SysDisplay::cmPerInch * dpi, std::numeric_limits<int>::max()));
}

}  // namespace

struct PageLayout::Private {
  _ptr_t<Page> page;
  _ptr_t<Map> focus;
  bool alignToMargins = false;
  DocumentInformation information;
  Series series;
  quint64 seriesVersion = 0;
  std::shared_ptr<ShownPage const> shownPage;
  OutputChoices output;
  SysUtility::ChangeMark change;
  ElementContainer elements;
  std::vector<std::unique_ptr<OpenedGroup>> opened;  // each in the one before

  // Of tens of thousands of elements few are one: to list and to cast all of them takes long.
  QList<_ptr_t<MapFrameElement>> frames() const {
    QList<_ptr_t<MapFrameElement>> frames;
    for (auto const& element : elements.order().elements)
      if (element->GetType() == ElementType::DataFrame)
        if (auto const frame = ptr_cast<MapFrameElement>(element)) frames << frame;
    return frames;
  }

  QList<_ptr_t<MapSurround>> surrounds() const {
    QList<_ptr_t<MapSurround>> surrounds;
    for (auto const& element : elements.GetElements()) {
      auto const frame = ptr_cast<MapSurroundFrame>(element);
      if (frame && frame->GetMapSurround()) surrounds << frame->GetMapSurround();
    }
    return surrounds;
  }

  QList<_ptr_t<MapOverview>> overviews() const {
    QList<_ptr_t<MapOverview>> overviews;
    for (auto const& frame : frames())
      for (int i = 0; i < frame->GetMapGridCount(); ++i)
        if (auto const overview = ptr_cast<MapOverview>(frame->GetMapGrid(i))) overviews << overview;
    return overviews;
  }

  _ptr_t<Map> firstWithLayers() const {
    for (auto const& frame : frames())
      if (frame->GetMap()->GetLayerCount() > 0) return frame->GetMap();
    return nullptr;
  }

  bool shows(_ptr_t<Map> const& map) const {
    auto const all = frames();
    return std::any_of(all.begin(), all.end(), [&](auto const& frame) { return frame->GetMap() == map; });
  }
};

// Even without a page it has an extent, so that symbols have their size on paper.
PageLayout::PageLayout() : d(std::make_unique<Private>()) {
  GetDisplayTransformation()->SetDeviceFrame(firstFramePx);
  SysDisplay::DisplayTransformationHost::setFillsWidth(*GetDisplayTransformation(), true);
  show(*extentAt(1, firstFramePx));
}
PageLayout::~PageLayout() = default;

bool PageLayout::GetAlignToMargins() const { return d->alignToMargins; }
void PageLayout::SetAlignToMargins(bool on) { d->change.set(d->alignToMargins, on); }

_ptr_t<Envelope> PageLayout::GetDefaultDataFrameEnvelope() const { return partOf(GetPage(), dataFramePart); }
_ptr_t<Envelope> PageLayout::GetDefaultLegendEnvelope() const { return partOf(GetPage(), legendPart); }
_ptr_t<Envelope> PageLayout::GetDefaultScaleBarEnvelope() const { return partOf(GetPage(), scaleBarPart); }
_ptr_t<Envelope> PageLayout::GetDefaultScaleTextEnvelope() const { return partOf(GetPage(), scaleTextPart); }
_ptr_t<Envelope> PageLayout::GetDefaultNorthArrowEnvelope() const {
  if (!GetPage()) return make<Envelope>();
  double width, height;
  GetPage()->QuerySize(width, height);
  double const side = arrowSize * std::min(width, height);
  return make<Envelope>(arrowRight * width - side, arrowTop * height - side, arrowRight * width, arrowTop * height);
}

_ptr_t<MapFrameElement> PageLayout::GetFocusMapFrameElement() const {
  auto const frames = d->frames();
  for (auto const& frame : frames)
    if (frame->GetMap() == d->focus) return frame;
  return frames.value(0);
}

void PageLayout::GetMaps(QList<_ptr_t<Map>>& maps) const {
  maps.clear();
  for (auto const& frame : d->frames()) maps << frame->GetMap();
}

void PageLayout::QueryOutputSize(int dpi, int& width, int& height) const {
  double widthCm = 0, heightCm = 0;
  if (d->page) d->page->QuerySize(widthCm, heightCm);
  width = pixelsOf(widthCm, dpi);
  height = pixelsOf(heightCm, dpi);
}

Page* PageLayout::GetPage() const { return d->page.get(); }
void PageLayout::SetPage(_ptr_t<Page> const& page) { d->change.set(d->page, page); }

DocumentInformation const& PageLayoutHost::information(PageLayout const& layout) { return layout.d->information; }
void PageLayoutHost::setInformation(PageLayout& layout, DocumentInformation const& information) {
  layout.d->change.set(layout.d->information, information);
}

OutputChoices const& PageLayoutHost::output(PageLayout const& layout) { return layout.d->output; }
void PageLayoutHost::setOutput(PageLayout& layout, OutputChoices const& choices) {
  layout.d->change.set(layout.d->output, choices);
}

quint64 PageLayoutHost::lastChange(PageLayout const& layout) {
  PageLayout::Private const& d = *layout.d;
  return std::max({d.change.time(), d.page ? PageHost::lastChange(*d.page) : 0, d.elements.lastChange()});
}

Series const& PageLayoutHost::series(PageLayout const& layout) { return layout.d->series; }

void PageLayoutHost::setSeries(PageLayout& layout, Series const& series) {
  static quint64 last = 0;
  layout.d->series = series;
  layout.d->seriesVersion = ++last;
  layout.d->change.raise();
}

quint64 PageLayoutHost::seriesVersion(PageLayout const& layout) { return layout.d->seriesVersion; }

std::shared_ptr<ShownPage const> const& PageLayoutHost::shownPage(PageLayout const& layout) {
  return layout.d->shownPage;
}

void PageLayoutHost::setShownPage(PageLayout& layout, std::shared_ptr<ShownPage const> const& page) {
  layout.d->shownPage = page;
  layout.d->elements.setPageFilter(page ? page->isAmong : nullptr);
}

ElementContainer& PageLayoutHost::workplace(PageLayout const& layout) {
  return layout.d->opened.empty() ? layout.d->elements : layout.d->opened.back()->members();
}

ElementContainer& PageLayoutHost::holderOf(PageLayout const& layout, ElementHandle handle) {
  for (auto const& opened : layout.d->opened)
    if (opened->members().find(handle)) return opened->members();
  return layout.d->elements;
}

_ptr_t<Element> PageLayoutHost::find(PageLayout const& layout, ElementHandle handle, int* depth) {
  ElementContainer const& holder = holderOf(layout, handle);
  auto const& opened = layout.d->opened;
  auto const group =
      std::find_if(opened.begin(), opened.end(), [&](auto const& one) { return &one->members() == &holder; });
  if (depth) *depth = group == opened.end() ? 0 : static_cast<int>(group - opened.begin()) + 1;
  return holder.find(handle);
}

QVector<int> PageLayoutHost::openPath(PageLayout const& layout) {
  QVector<int> path;
  ElementContainer const* parent = nullptr;
  for (auto const& opened : layout.d->opened) {
    path << (parent ? parent->GetElements().indexOf(opened->group()) : opened->handle());
    parent = &opened->members();
  }
  return path;
}

void PageLayoutHost::openOnly(PageLayout& layout, QVector<int> const& path) {
  if (path == openPath(layout)) return;
  while (openGroups(layout) > 0) closeGroup(layout);
  workplace(layout).UnselectAllElements();
  for (int const step : path) {
    auto const member = openGroups(layout) > 0 ? workplace(layout).GetElements().value(step) : nullptr;
    openGroup(layout, openGroups(layout) == 0 ? step : member ? member->GetHandle() : 0);
  }
}

int PageLayoutHost::openGroups(PageLayout const& layout) { return static_cast<int>(layout.d->opened.size()); }

void PageLayoutHost::openGroup(PageLayout& layout, ElementHandle group) {
  ElementContainer& parent = workplace(layout);
  if (!ptr_cast<GroupElement>(parent.find(group))) return;
  parent.UnselectAllElements();
  layout.d->opened.push_back(std::make_unique<OpenedGroup>(parent, group, openGroups(layout)));
}

void PageLayoutHost::closeGroup(PageLayout& layout) {
  if (layout.d->opened.empty()) return;
  ElementHandle const group = layout.d->opened.back()->handle();
  layout.d->opened.pop_back();
  workplace(layout).UnselectAllElements();
  workplace(layout).SelectElement(workplace(layout).find(group));
}

// A group whose members are read anew takes what is open in it along: those members have other handles now.
void PageLayoutHost::followGroups(PageLayout& layout) {
  auto& opened = layout.d->opened;
  for (std::size_t i = 0; i < opened.size(); ++i) {
    auto const former = &opened[i]->members();
    opened[i]->follow();
    bool const isThere = static_cast<bool>(opened[i]->group());
    if (!isThere || &opened[i]->members() != former) opened.resize(isThere ? i + 1 : i);
  }
}

void PageLayout::ZoomToRatio(double ratio) {
  if (!std::isfinite(ratio) || ratio <= 0 || !d->page) return;
  auto const extent = extentAt(ratio, GetDisplayTransformation()->GetDeviceFrame());
  extent->CenterAt(GetExtent()->GetAnchorPoint());
  SetExtent(extent);
}

void PageLayout::ZoomToWholePage() {
  if (!d->page) return;
  _ptr_t<Envelope> const extent = d->page->GetPageEnvelope();
  extent->Expand(spaceAboutPage, spaceAboutPage, true);
  SetExtent(extent);
}

void PageLayout::ReplaceMaps(QList<_ptr_t<Map>> const& maps) {
  auto const frames = d->frames();
  QList<_ptr_t<Map>> left;
  for (auto const& map : maps)
    if (map && !left.contains(map)) left << map;
  QVector<std::pair<_ptr_t<Map>, _ptr_t<Map>>> replaced;
  for (auto const& frame : frames) {
    _ptr_t<Map> const former = frame->GetMap(), present = left.isEmpty() ? make<Map>() : left.takeFirst();
    frame->SetMap(present);
    replaced.append({former, present});
  }
  for (auto const& map : qAsConst(left)) {
    auto const frame = make<MapFrameElement>();
    frame->SetMap(map);
    if (d->page) frame->SetGeometry(GetDefaultDataFrameEnvelope());
    d->elements.AddElement(frame);
  }
  auto const presentOf = [&](_ptr_t<Map> const& map) {
    for (auto const& [former, present] : qAsConst(replaced))
      if (former == map) return present;
    return d->shows(map) ? map : nullptr;
  };
  for (auto const& surround : d->surrounds()) surround->SetMap(presentOf(surround->GetMap()));
  for (auto const& overview : d->overviews()) overview->setMap(presentOf(overview->map()));
  _ptr_t<Map> const focus = presentOf(d->focus);
  SetFocusMap(!focus || maps.contains(focus) ? focus : d->firstWithLayers());
}

void PageLayoutHost::succeed(PageLayout& layout, PageLayout const& former) {
  PageLayout::Private const& d = *layout.d;
  layout.d->information = former.d->information;
  if (!layout.d->series.isUsed()) setSeries(layout, former.d->series);
  layout.d->output = former.d->output;
  if (!d.shows(d.focus)) layout.SetFocusMap(former.GetFocusMap());
  for (auto const& surround : d.surrounds())
    if (!d.shows(surround->GetMap())) surround->SetMap(layout.GetFocusMap());
  for (auto const& overview : d.overviews())
    if (!d.shows(overview->map())) overview->setMap(nullptr);
}

_ptr_t<Map> PageLayout::GetFocusMap() const {
  auto const frame = GetFocusMapFrameElement();
  return frame ? frame->GetMap() : nullptr;
}

void PageLayout::SetFocusMap(_ptr_t<Map> const& map) { d->focus = map; }

IElementContainer* PageLayout::GetGraphicsContainer() const { return &d->elements; }

void PageLayout::applyExtent(Envelope const& extent) {
  ActiveView::applyExtent(extent);
  auto const transformation = GetDisplayTransformation();
  double const pixelsPerCm = transformation->ToDevice().m11();
  transformation->SetPageScale(pixelsPerCm * SysDisplay::cmPerInch / SysDisplay::pixelsPerInch);
}

}  // namespace SysCarto
