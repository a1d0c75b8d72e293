#include "AlignToMarginsElement.h"

#include <SysFramework/HostAccess.h>

namespace Plugin {

bool AlignToMarginsElement::IsChecked() {
  auto const layout = SysFramework::activePageLayout(*hook());
  return layout && layout->GetAlignToMargins();
}

bool AlignToMarginsElement::IsEnable() {
  SysFramework::ActiveElements const active(*hook());
  if (!active || !dynamic_cast<SysCarto::PageLayout*>(active.view.get())) return false;
  return active.container->GetSelectedElementCount() > 0;
}

void AlignToMarginsElement::OnClick() {
  if (auto const layout = SysFramework::activePageLayout(*hook()))
    layout->SetAlignToMargins(!layout->GetAlignToMargins());
}

}  // namespace Plugin
