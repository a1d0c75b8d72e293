#include "HostTool.h"

HostTool::~HostTool() = default;
