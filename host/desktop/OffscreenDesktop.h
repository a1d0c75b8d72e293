#pragma once

#include "Desktop.h"

class OffscreenContents;

/// The host of commands where nothing is shown: a document, its page layout for the view, and contents that nobody
/// sees. As long as the desktop lives, the editor records into the document's history.
class OffscreenDesktop final : public Desktop {
public:
  /// `document` is borrowed and outlives the desktop.
  explicit OffscreenDesktop(SysCarto::MapDocument& document);
  ~OffscreenDesktop() override;

  SysUtility::_ptr_t<SysCarto::ActiveView> GetActiveView() override;

private:
  OffscreenDesktop(SysCarto::MapDocument& document, SysUtility::_ptr_t<OffscreenContents> const& contents);

  SysUtility::_ptr_t<OffscreenContents> contents_;
};
