#pragma once

#include "Elements.h"
#include "RecordingSurface.h"

#include <SysCarto/Editor.h>
#include <SysFramework/BaseCommand.h>
#include <SysFramework/IApplicationHook.h>

#include <QUndoStack>

/// A host without a window: it shows a layout, a map of it, or nothing, and notes in `calls` what the layout asks of
/// its screen.
class LayoutHook : public IApplicationHook {
public:
  explicit LayoutHook(_ptr_t<SysCarto::PageLayout> const& layout) : layout(layout), view(layout) {
    SysCarto::Editor::Instance()->setHistory(&history);
    layout->setSurface(&surface);
  }
  ~LayoutHook() override {
    SysCarto::Editor::Instance()->setHistory(nullptr);
    layout->setSurface(nullptr);
  }

  _ptr_t<SysCarto::ActiveView> GetActiveView() override { return view; }
  _ptr_t<SysCarto::PageLayout> GetPageLayout() override { return layout; }
  SysCarto::IKdxContents* GetContents() override { return nullptr; }

  /// A command as a host binds it.
  template <class Command>
  _ptr_t<Command> bound() {
    auto const command = make<Command>();
    command->OnCreate(pointer());
    return command;
  }

  /// What `OnCreate` receives.
  void* pointer() { return static_cast<IApplicationHook*>(this); }

  _ptr_t<SysCarto::PageLayout> layout;
  _ptr_t<SysCarto::ActiveView> view;
  QUndoStack history;
  QStringList calls;
  RecordingSurface surface{calls};
};

/// How a row of a test makes its command.
using MakeCommand = _ptr_t<SysFramework::BaseCommand> (*)();

template <class Command>
_ptr_t<SysFramework::BaseCommand> made() {
  return make<Command>();
}

/// A layout with an empty page of its own size, shown whole.
inline _ptr_t<SysCarto::PageLayout> emptyLayout(double widthCm, double heightCm) {
  auto const page = make<SysCarto::Page>();
  SysCarto::Paper::SetCustomSize(widthCm, heightCm);
  page->SetFormID(SysCarto::customPageForm);
  page->SetOrientation(1);
  auto const layout = make<SysCarto::PageLayout>();
  layout->SetPage(page);
  layout->ZoomToWholePage();
  return layout;
}
