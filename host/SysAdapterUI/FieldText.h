#pragma once

#include "host/SysUtility/FieldSheet.h"

#include <SysAdapterUI/Export.h>

#include <QPalette>

namespace SysAdapterUI {

/// A value as people read it: with its unit, and choices by their caption.
SYSADAPTERUI_EXPORT QString readable(SysUtility::FieldInfo const& info, QJsonValue const& value);

/// In which a refused value and its reason are written: a red that is read on the ground of a palette, light or dark.
SYSADAPTERUI_EXPORT QColor problemColor(QPalette const& palette);

/// What tells an entry of a list from the others: its first values.
QString summary(SysUtility::SheetField const& entry);

}  // namespace SysAdapterUI
