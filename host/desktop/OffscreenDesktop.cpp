#include "OffscreenDesktop.h"

#include "OffscreenContents.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/EditorHost.h"

using SysCarto::EditorHost;
using SysCarto::MapDocumentHost;
using SysUtility::_ptr_t;

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document)
    : OffscreenDesktop(document, SysUtility::make<OffscreenContents>(document)) {}

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document, _ptr_t<OffscreenContents> const& contents)
    : Desktop(document, *contents), contents_(contents) {
  EditorHost::setHistory(MapDocumentHost::history(document));
}

OffscreenDesktop::~OffscreenDesktop() { EditorHost::setHistory(nullptr); }

_ptr_t<SysCarto::ActiveView> OffscreenDesktop::GetActiveView() { return GetPageLayout(); }
