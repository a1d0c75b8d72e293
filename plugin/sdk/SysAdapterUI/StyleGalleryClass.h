#pragma once

#include <SysAdapterUI/Export.h>
#include <SysDisplay/StyleGalleryItem.h>

#include <QStringList>
#include <QVector>

namespace SysAdapterUI {

/// Reads style libraries.
class SYSADAPTERUI_EXPORT StyleGalleryClass {
public:
  StyleGalleryClass();
  ~StyleGalleryClass();

  /// Appends the names of the categories in a library. False where the file can't be read.
  bool GetCategorys(QString const& file, QString const& reserved, QStringList& categories);

  /// Appends the items of a category, in the file's order. False where the file can't be read.
  bool GetItems(QString const& file, QString const& category, QString const& reserved,
                QVector<SysUtility::_ptr_t<SysDisplay::StyleGalleryItem>>& items);
};

}  // namespace SysAdapterUI
