#include "OffscreenDesktop.h"

#include "OffscreenContents.h"

#include <SysCarto/MapDocument.h>

using SysCarto::IKdxContents;
using SysUtility::_ptr_t;

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document)
    : document_(document), ownContents_(SysUtility::make<OffscreenContents>(document)), contents_(ownContents_.get()) {}

OffscreenDesktop::~OffscreenDesktop() = default;

_ptr_t<SysCarto::ActiveView> OffscreenDesktop::GetActiveView() { return GetPageLayout(); }

_ptr_t<SysCarto::PageLayout> OffscreenDesktop::GetPageLayout() { return contents_->GetPageLayout(); }

IKdxContents* OffscreenDesktop::GetContents() { return contents_; }

SysCarto::MapDocument* OffscreenDesktop::GetMapDocument() { return &document_; }

IKdxContents* OffscreenDesktop::GetActiveContents() { return contents_; }

SysAdapterUI::TOCControl* OffscreenDesktop::GetTOCControl() { return nullptr; }

_ptr_t<IContentsSite> OffscreenDesktop::GetContentsSite() { return SysUtility::retain<IContentsSite>(this); }

void OffscreenDesktop::SetContents(IKdxContents* contents) {
  contents_ = contents ? contents : static_cast<IKdxContents*>(ownContents_.get());
}
