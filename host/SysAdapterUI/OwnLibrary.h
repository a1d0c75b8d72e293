#pragma once

#include <SysAdapterUI/Export.h>
#include <SysDisplay/Symbol.h>

#include <QString>

namespace SysAdapterUI {

/// A person's own style library, beside those that came with the program. It need not be there.
SYSADAPTERUI_EXPORT QString ownStyleFile();

/// Adds a symbol to it, in place of one of the same name that is a line, a fill, a marker or a text like it. A sentence
/// that says why it was not saved, with the library as it was; empty where it was.
SYSADAPTERUI_EXPORT QString saveToOwnLibrary(QString const& name, SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol);

}  // namespace SysAdapterUI
