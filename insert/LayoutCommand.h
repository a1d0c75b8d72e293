#pragma once

#include <SysFramework/BaseCommand.h>

class QWidget;
class IApplicationHook;

namespace Plugin {

/// A command that is enabled while the page layout is shown.
class LayoutCommand : public SysFramework::BaseCommand {
public:
  bool IsEnable() override;
};

/// The parent of a command's dialogs: the host's contents where these are a widget, null where not.
QWidget* dialogParent(IApplicationHook& hook);

}  // namespace Plugin
