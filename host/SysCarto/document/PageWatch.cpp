#include "PageWatch.h"

#include <SysCarto/IElementContainer.h>

namespace SysCarto {

namespace {

QSizeF sizeOf(PageLayout const* layout) {
  double width = 0, height = 0;
  Page* const page = layout ? layout->GetPage() : nullptr;
  if (page) page->QuerySize(width, height);
  return {width, height};
}

QVector<double> placesIn(PageLayout const* layout) {
  QVector<double> places;
  if (!layout) return places;
  for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
    auto const rectangle = element->GetEnvelope();
    places << rectangle->GetXMin() << rectangle->GetYMin() << rectangle->GetXMax() << rectangle->GetYMax();
  }
  return places;
}

}  // namespace

void PageWatch::note(PageLayout const* layout) {
  sizeCm_ = sizeOf(layout);
  places_ = placesIn(layout);
}

bool PageWatch::wasRescaled(PageLayout const* layout) const {
  return sizeOf(layout) != sizeCm_ && placesIn(layout) != places_;
}

}  // namespace SysCarto
