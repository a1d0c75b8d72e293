#include <SysFramework/IDesktop.h>

IContentsSite::~IContentsSite() = default;
IDesktop::~IDesktop() = default;
