#include <SysFramework/BaseCommand.h>

namespace SysFramework {

BaseCommand::BaseCommand() : hook_(nullptr), enabled_(false) {}
BaseCommand::BaseCommand(BaseCommand const&) = default;
BaseCommand& BaseCommand::operator=(BaseCommand const&) = default;
BaseCommand::~BaseCommand() = default;

QString BaseCommand::GetName() { return QString(); }
QString BaseCommand::GetCaption() { return QString(); }
QString BaseCommand::GetToolTip() { return QString(); }
QString BaseCommand::GetTypeName() { return QString(); }

bool BaseCommand::IsEnable() { return enabled_; }
bool BaseCommand::IsChecked() { return false; }

void BaseCommand::OnCreate(void* hook) { hook_ = hook; }
void BaseCommand::OnClick() {}

}  // namespace SysFramework
