#include "Desktop.h"

#include <SysCarto/MapDocument.h>

using SysCarto::IKdxContents;
using SysUtility::_ptr_t;

Desktop::Desktop(SysCarto::MapDocument& document, IKdxContents& ownContents)
    : document_(document), ownContents_(ownContents), contents_(&ownContents) {}

Desktop::~Desktop() = default;

_ptr_t<SysCarto::PageLayout> Desktop::GetPageLayout() { return contents_->GetPageLayout(); }
IKdxContents* Desktop::GetContents() { return contents_; }
SysCarto::MapDocument* Desktop::GetMapDocument() { return &document_; }
IKdxContents* Desktop::GetActiveContents() { return contents_; }
SysAdapterUI::TOCControl* Desktop::GetTOCControl() { return nullptr; }
_ptr_t<IContentsSite> Desktop::GetContentsSite() { return SysUtility::retain<IContentsSite>(this); }
void Desktop::SetContents(IKdxContents* contents) { contents_ = contents ? contents : &ownContents_; }
