#pragma once

#include <SysDisplay/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QString>

#include <memory>

namespace SysDisplay {

/// A named object of a style library: a symbol with the name and the category under which a person finds it.
class SYSDISPLAY_EXPORT StyleGalleryItem final : public SysUtility::CRef {
public:
  StyleGalleryItem(QString name, QString category, SysUtility::_ptr_t<SysUtility::CRef> item);
  ~StyleGalleryItem() override;

  /// The symbol object itself, shared; empty where the item holds none.
  SysUtility::_ptr_t<SysUtility::CRef> GetItem() const;
  QString GetName() const;
  QString GetCategory() const;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
