#include <SysAdapterUI/StyleGalleryClass.h>

#include "host/SysDisplay/StyleLibrary.h"

namespace SysAdapterUI {

using SysDisplay::StyleCategory;
using SysDisplay::StyleGalleryItem;
using SysDisplay::StyleItem;
using SysUtility::_ptr_t;

StyleGalleryClass::StyleGalleryClass() = default;
StyleGalleryClass::~StyleGalleryClass() = default;

bool StyleGalleryClass::GetCategorys(QString const& file, QString const&, QStringList& categories) {
  error_.clear();
  auto const library = SysDisplay::readStyleLibrary(file, error_);
  if (!library) return false;
  QStringList names;
  for (StyleCategory const& category : library->categories) names << category.name.section(QLatin1Char('/'), 0, 0);
  names.removeDuplicates();
  categories += names;
  return true;
}

bool StyleGalleryClass::GetItems(QString const& file, QString const& category, QString const&,
                                 QVector<_ptr_t<StyleGalleryItem>>& items) {
  error_.clear();
  auto const library = SysDisplay::readStyleLibrary(file, error_);
  if (!library) return false;
  for (StyleCategory const& part : library->categories) {
    if (!SysDisplay::liesIn(part.name, category)) continue;
    for (StyleItem const& item : part.items)
      items << SysUtility::make<StyleGalleryItem>(item.name, part.name, item.symbol);
  }
  return true;
}

QString StyleGalleryClass::lastError() const { return error_; }

}  // namespace SysAdapterUI
