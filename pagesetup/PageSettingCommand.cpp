#include "PageSettingCommand.h"

#include "PageSettingsDlg.h"

#include <SysFramework/HostAccess.h>

using SysFramework::activePageLayout;

namespace Plugin {

PageSettingCommand::PageSettingCommand() = default;
PageSettingCommand::~PageSettingCommand() = default;

bool PageSettingCommand::IsEnable() {
  enabled_ = static_cast<bool>(activePageLayout(*hook()));
  return enabled_;
}

void PageSettingCommand::OnClick() {
  auto const layout = activePageLayout(*hook());
  if (!layout || !layout->GetPage()) return;
  PageSettingsDlg dialog(layout, dynamic_cast<QWidget*>(hook()->GetContents()));
  if (dialog.exec() != QDialog::Accepted) return;
  layout->ZoomToWholePage();
  layout->Refresh(0, false);
}

}  // namespace Plugin
