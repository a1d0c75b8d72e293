#include <SysDisplay/StyleGalleryItem.h>

namespace SysDisplay {

struct StyleGalleryItem::Private {
  QString name;
  QString category;
  SysUtility::_ptr_t<SysUtility::CRef> item;
};

StyleGalleryItem::StyleGalleryItem(QString name, QString category, SysUtility::_ptr_t<SysUtility::CRef> item)
    : d(std::make_unique<Private>(Private{std::move(name), std::move(category), std::move(item)})) {}
StyleGalleryItem::~StyleGalleryItem() = default;

SysUtility::_ptr_t<SysUtility::CRef> StyleGalleryItem::GetItem() const { return d->item; }
QString StyleGalleryItem::GetName() const { return d->name; }
QString StyleGalleryItem::GetCategory() const { return d->category; }

}  // namespace SysDisplay
