#pragma once

#include "host/SysUtility/FieldSheet.h"

#include <SysAdapterUI/Export.h>

namespace SysAdapterUI {

/// A value as people read it: with its unit, and choices by their caption.
SYSADAPTERUI_EXPORT QString readable(SysUtility::FieldInfo const& info, QJsonValue const& value);

/// What tells an entry of a list from the others: its first values.
QString summary(SysUtility::SheetField const& entry);

}  // namespace SysAdapterUI
