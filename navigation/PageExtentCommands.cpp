#include "PageExtentCommands.h"

#include <SysFramework/HostAccess.h>

namespace Plugin {

bool PageZoomCommand::IsEnable() {
  enabled_ = static_cast<bool>(SysFramework::activePageLayout(*hook()));
  return enabled_;
}

void PageZoomCommand::OnClick() {
  auto const layout = hook()->GetPageLayout();
  zoom(*layout);
  layout->Refresh(0, false);
}

void PageFullExtent::zoom(SysCarto::PageLayout& layout) { layout.ZoomToWholePage(); }
void PageZoomToOrigin::zoom(SysCarto::PageLayout& layout) { layout.ZoomToRatio(1.0); }

ExtentStepCommand::ExtentStepCommand(Direction direction) : direction_(direction) {}

bool ExtentStepCommand::IsEnable() {
  auto const layout = SysFramework::activePageLayout(*hook());
  return layout && (layout->GetExtentStack().get()->*direction_.canStep)();
}

void ExtentStepCommand::OnClick() {
  auto const view = hook()->GetActiveView();
  (view->GetExtentStack().get()->*direction_.step)();
  view->PartialRefresh(SysCarto::RefreshPhase::Everything, nullptr);
}

ZoomToPreviousExtentCommand::ZoomToPreviousExtentCommand()
    : ExtentStepCommand({&IExtentStack::CanUndo, &IExtentStack::Undo}) {}

ZoomToNextExtentCommand::ZoomToNextExtentCommand() : ExtentStepCommand({&IExtentStack::CanRedo, &IExtentStack::Redo}) {
  enabled_ = true;
}

}  // namespace Plugin
