#include <SysFramework/IApplicationHook.h>

IApplicationHook::~IApplicationHook() = default;
