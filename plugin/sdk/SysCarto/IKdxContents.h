#pragma once

#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What a map or layout control shows. The control itself is a `QWidget`, reached by `dynamic_cast`; where a Qt parent
/// owns the widget, nobody may hold a reference to its contents for longer.
class SYSCARTO_EXPORT IKdxContents : public virtual SysUtility::CRef {
public:
  ~IKdxContents() override;

  /// The layout that is shown; empty where there is none.
  virtual SysUtility::_ptr_t<PageLayout> GetPageLayout() const = 0;

  /// Installs another layout, which becomes the document's.
  virtual void SetPageLayout(SysUtility::_ptr_t<PageLayout> const& layout) = 0;
};

}  // namespace SysCarto
