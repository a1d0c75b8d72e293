#include "OffscreenDesktop.h"

#include "OffscreenContents.h"

#include <SysCarto/Editor.h>
#include <SysCarto/MapDocument.h>

using SysCarto::Editor;
using SysUtility::_ptr_t;

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document)
    : OffscreenDesktop(document, SysUtility::make<OffscreenContents>(document)) {}

OffscreenDesktop::OffscreenDesktop(SysCarto::MapDocument& document, _ptr_t<OffscreenContents> const& contents)
    : Desktop(document, *contents), contents_(contents) {
  Editor::Instance()->setHistory(document.history());
}

OffscreenDesktop::~OffscreenDesktop() { Editor::Instance()->setHistory(nullptr); }

_ptr_t<SysCarto::ActiveView> OffscreenDesktop::GetActiveView() { return GetPageLayout(); }
