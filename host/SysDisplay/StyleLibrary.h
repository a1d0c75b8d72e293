#pragma once

#include <SysDisplay/Export.h>
#include <SysDisplay/Symbol.h>

#include <QString>
#include <QVector>

#include <optional>

namespace SysUtility {
class Fields;
}

namespace SysDisplay {

struct StyleItem {
  QString name;
  SysUtility::_ptr_t<Symbol> symbol;

  void list(SysUtility::Fields& fields);
};

/// Symbols that a person looks for in one place. A name with slashes ("NorthArrows/Compass roses") is a category within
/// another.
struct StyleCategory {
  QString name;
  QVector<StyleItem> items;

  void list(SysUtility::Fields& fields);
};

/// The content of a `.style` file: named symbols by category, in the order in which they are shown.
struct SYSDISPLAY_EXPORT StyleLibrary {
  QVector<StyleCategory> categories;

  void list(SysUtility::Fields& fields);
};

/// Nothing, with a sentence in `error` that names the file, the field and the fix, where any of the library is wrong: a
/// library comes from a stranger, and half of one is no help to anybody.
SYSDISPLAY_EXPORT std::optional<StyleLibrary> readStyleLibrary(QString const& path, QString& error);

/// Writes the library whole or not at all. A sentence that says why it was not written; empty where it was.
SYSDISPLAY_EXPORT QString writeStyleLibrary(QString const& path, StyleLibrary const& library);

/// Whether a category is the one of that name or lies in it.
SYSDISPLAY_EXPORT bool liesIn(QString const& category, QString const& name);

}  // namespace SysDisplay
