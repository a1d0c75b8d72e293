#include "DataFrameLock.h"

#include <SysCarto/MapFrameElement.h>
#include <SysFramework/HostAccess.h>

namespace {

void setLocked(IApplicationHook& hook, bool locked) {
  SysFramework::ActiveElements const active(hook);
  if (!active) return;
  for (auto const& element : active.container->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
    if (!frame) continue;
    if (locked) active.container->UnselectElement(element);
    frame->SetLocked(locked);
  }
  hook.GetActiveView()->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

}  // namespace

LockDataFrame::LockDataFrame() { enabled_ = true; }
bool LockDataFrame::IsEnable() { return static_cast<bool>(hook()->GetPageLayout()); }
void LockDataFrame::OnClick() { setLocked(*hook(), true); }

UnlockDataFrame::UnlockDataFrame() { enabled_ = true; }
bool UnlockDataFrame::IsEnable() { return static_cast<bool>(hook()->GetPageLayout()); }
void UnlockDataFrame::OnClick() { setLocked(*hook(), false); }
