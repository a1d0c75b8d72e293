#pragma once

#include <SysCarto/IKdxContents.h>
#include <SysCarto/PageLayout.h>
#include <SysFramework/Export.h>

/// The host, as a command sees it: the object behind the `void*` of `OnCreate`. A command asks it afresh in every call
/// and keeps nothing of what it answers.
class SYSFRAMEWORK_EXPORT IApplicationHook : public virtual SysUtility::CRef {
public:
  ~IApplicationHook() override;

  /// The view now shown: the page layout or a map; empty when none is shown.
  virtual SysUtility::_ptr_t<SysCarto::ActiveView> GetActiveView() = 0;

  /// The current document's page layout, shown or not; empty when there is none.
  virtual SysUtility::_ptr_t<SysCarto::PageLayout> GetPageLayout() = 0;

  /// The control that shows the current view, borrowed. Its `QWidget` face is the parent of dialogs and message boxes.
  virtual SysCarto::IKdxContents* GetContents() = 0;
};
