#pragma once

#include <SysAdapterUI/Export.h>
#include <SysCarto/IKdxContents.h>

#include <QWidget>

namespace SysAdapterUI {

/// Something beside a layout control that follows the contents which the control shows.
class SYSADAPTERUI_EXPORT ICompanion {
public:
  virtual void SetBuddy(SysCarto::IKdxContents* contents) = 0;

protected:
  virtual ~ICompanion();
};

/// The control that shows a page layout. Contents that are such a control also are a widget.
class SYSADAPTERUI_EXPORT PageLayoutControl : public SysCarto::IKdxContents {
public:
  /// The control's companion, borrowed; null where it has none.
  virtual ICompanion* GetCompanion() = 0;
  ~PageLayoutControl() override;
};

}  // namespace SysAdapterUI
