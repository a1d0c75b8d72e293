#include "SelectionWalk.h"

#include "SelectionHandles.h"

#include <algorithm>

using SysCarto::Element;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

// What is larger than the view is seen where any of it is.
void bringIntoView(PageLayout& layout, Element const& element) {
  auto const view = layout.GetExtent();
  auto const place = element.GetEnvelope();
  bool const fits = place->GetWidth() <= view->GetWidth() && place->GetHeight() <= view->GetHeight();
  if (fits ? view->Contains(place) : view->Intersects(place)) return;
  if (auto const centre = place->GetAnchorPoint()) view->CenterAt(centre);
  layout.SetExtent(view);
  layout.RedrawAll(true);
}

}  // namespace

bool selectNeighbour(PageLayout& layout, bool forward) {
  auto& container = workplace(layout);
  auto elements = container.GetElements();
  if (!forward) std::reverse(elements.begin(), elements.end());
  auto const selected = container.GetSelectedElements();
  auto next = elements.cbegin();
  if (!selected.isEmpty())
    next = std::find_if(
               elements.cbegin(), elements.cend(),
               [&](_ptr_t<Element> const& element) { return element->GetHandle() == selected.last()->GetHandle(); }) +
           1;
  next = std::find_if(next, elements.cend(), [](_ptr_t<Element> const& element) { return isInReach(*element); });
  if (next == elements.cend()) return false;
  container.UnselectAllElements();
  container.SelectElement(*next);
  bringIntoView(layout, **next);
  layout.BeginTrackerDraw();  // an empty pass paints the selection as it is now
  layout.EndTrackerDraw();
  return true;
}
