#include "LayoutCommand.h"

#include <SysFramework/HostAccess.h>

#include <QWidget>

namespace Plugin {

bool LayoutCommand::IsEnable() {
  enabled_ = static_cast<bool>(SysFramework::activePageLayout(*hook()));
  return enabled_;
}

QWidget* dialogParent(IApplicationHook& hook) { return dynamic_cast<QWidget*>(hook.GetContents()); }

}  // namespace Plugin
