#pragma once

#include <SysCarto/ActiveView.h>
#include <SysCarto/Editor.h>
#include <SysFramework/IApplicationHook.h>

namespace SysFramework {

/// The layout view, where it is the one shown; empty while a map or nothing is shown.
inline SysUtility::_ptr_t<SysCarto::PageLayout> activePageLayout(IApplicationHook& hook) {
  return SysUtility::ptr_cast<SysCarto::PageLayout>(hook.GetActiveView());
}

/// The view now shown with its elements; false where there is no view, or it has no container.
struct ActiveElements {
  explicit ActiveElements(IApplicationHook& hook)
      : view(hook.GetActiveView()), container(view ? view->GetGraphicsContainer() : nullptr) {}
  explicit operator bool() const { return container != nullptr; }

  SysUtility::_ptr_t<SysCarto::ActiveView> view;
  IElementContainer* container;  ///< borrowed
};

/// An editor operation that lasts as long as this object. It ends before the view is redrawn and before the selection
/// changes, so it stands in a block of its own.
class EditorOperation {
public:
  explicit EditorOperation(QString const& name) { SysCarto::Editor::Instance()->StartOperation(name); }
  ~EditorOperation() { SysCarto::Editor::Instance()->StopOperation(); }
  EditorOperation(EditorOperation const&) = delete;
  EditorOperation& operator=(EditorOperation const&) = delete;
};

}  // namespace SysFramework
