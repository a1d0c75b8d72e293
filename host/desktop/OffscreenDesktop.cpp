#include "OffscreenDesktop.h"

#include "OffscreenContents.h"

#include "host/SysCarto/elements/EditorHost.h"

#include <SysCarto/MapDocument.h>

using SysCarto::EditorHost;
using SysUtility::_ptr_t;

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document)
    : OffscreenDesktop(document, SysUtility::make<OffscreenContents>(document)) {}

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document, _ptr_t<OffscreenContents> const& contents)
    : Desktop(document, *contents), contents_(contents) {
  EditorHost::setHistory(document.history());
}

OffscreenDesktop::~OffscreenDesktop() { EditorHost::setHistory(nullptr); }

_ptr_t<SysCarto::ActiveView> OffscreenDesktop::GetActiveView() { return GetPageLayout(); }
