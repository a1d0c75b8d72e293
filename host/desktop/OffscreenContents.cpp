#include "OffscreenContents.h"

#include "host/SysCarto/document/MapDocumentHost.h"

using SysCarto::MapDocumentHost;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

// Fixed, so that what depends on the view is the same on every machine.
constexpr QRect viewFrame(0, 0, 1024, 768);

}  // namespace

OffscreenContents::OffscreenContents(SysCarto::MapDocument& document) : document_(document) {
  resize(viewFrame.size());
  showWholePage();
}

OffscreenContents::~OffscreenContents() = default;

_ptr_t<PageLayout> OffscreenContents::GetPageLayout() const { return document_.GetPageLayout(); }

void OffscreenContents::SetPageLayout(_ptr_t<PageLayout> const& layout) {
  MapDocumentHost::setPageLayout(document_, layout);
  showWholePage();
}

void OffscreenContents::showWholePage() {
  auto const layout = document_.GetPageLayout();
  if (!layout) return;
  layout->GetDisplayTransformation()->SetDeviceFrame(viewFrame);
  layout->ZoomToWholePage();
}
