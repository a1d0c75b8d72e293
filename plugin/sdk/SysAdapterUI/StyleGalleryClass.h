#pragma once

#include <SysAdapterUI/Export.h>
#include <SysDisplay/StyleGalleryItem.h>

#include <QStringList>
#include <QVector>

namespace SysAdapterUI {

/// Reads style libraries. One that is missing, broken or unsafe to draw is passed over as a whole.
class SYSADAPTERUI_EXPORT StyleGalleryClass {
public:
  StyleGalleryClass();
  ~StyleGalleryClass();

  /// Appends the names of the outermost categories in a library. False where the file can't be read.
  bool GetCategorys(QString const& file, QString const& reserved, QStringList& categories);

  /// Appends the items of a category and of those within it ("NorthArrows/Compass roses" lies in "NorthArrows"), in the
  /// file's order. False where the file can't be read.
  bool GetItems(QString const& file, QString const& category, QString const& reserved,
                QVector<SysUtility::_ptr_t<SysDisplay::StyleGalleryItem>>& items);

  /// Appends the items of all categories. False where the file can't be read.
  bool GetAllItems(QString const& file, QVector<SysUtility::_ptr_t<SysDisplay::StyleGalleryItem>>& items);

  /// Why the last call answered false: a sentence that names the file, the field and the fix. Empty after a success.
  QString lastError() const;

private:
  template <class Accept>
  bool appendItems(QString const& file, Accept const& accept,
                   QVector<SysUtility::_ptr_t<SysDisplay::StyleGalleryItem>>& items);

  QString error_;
};

}  // namespace SysAdapterUI
