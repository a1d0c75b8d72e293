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

template <class Accept>
bool StyleGalleryClass::appendItems(QString const& file, Accept const& accept,
                                    QVector<_ptr_t<StyleGalleryItem>>& items) {
  error_.clear();
  auto const library = SysDisplay::readStyleLibrary(file, error_);
  if (!library) return false;
  for (StyleCategory const& category : library->categories) {
    if (!accept(category.name)) continue;
    for (StyleItem const& item : category.items)
      items << SysUtility::make<StyleGalleryItem>(item.name, category.name, item.symbol);
  }
  return true;
}

bool StyleGalleryClass::GetItems(QString const& file, QString const& category, QString const&,
                                 QVector<_ptr_t<StyleGalleryItem>>& items) {
  return appendItems(
      file, [&](QString const& name) { return SysDisplay::liesIn(name, category); }, items);
}

bool StyleGalleryClass::GetAllItems(QString const& file, QVector<_ptr_t<StyleGalleryItem>>& items) {
  return appendItems(
      file, [](QString const&) { return true; }, items);
}

QString StyleGalleryClass::lastError() const { return error_; }

}  // namespace SysAdapterUI
