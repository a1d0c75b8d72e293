#include "PageOrder.h"

#include "host/SysDisplay/DrawTarget.h"

#include <QPainter>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

// In page units, and what is rounded to pixels of it.
_ptr_t<Envelope> reachedBy(QPainter const& painter, DisplayTransformation const& transformation) {
  QRectF const pixels = SysDisplay::reachableArea(painter).adjusted(-1, -1, 1, 1);
  QRectF const area = transformation.ToDevice().inverted().mapRect(pixels);
  return SysUtility::make<Envelope>(area.left(), area.top(), area.right(), area.bottom());
}

}  // namespace

void drawInPageOrder(PageLayout const& layout, QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                     std::function<void(_ptr_t<Element> const&)> const& draw) {
  if (Page* const page = layout.GetPage()) {
    page->DrawBackground(painter, transformation);
    page->DrawBorder(painter, transformation);
  }
  auto const area = reachedBy(painter, *transformation);
  for (auto const& element : layout.GetGraphicsContainer()->GetElements())
    if (element->IsVisible() && element->GetBoundary(transformation)->GetEnvelope()->Intersects(area)) draw(element);
}

}  // namespace SysCarto
