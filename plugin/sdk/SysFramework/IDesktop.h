#pragma once

#include <SysCarto/IKdxContents.h>
#include <SysFramework/Export.h>

namespace SysCarto {
class MapDocument;
}
namespace SysAdapterUI {
class TOCControl;
}

/// Where the desktop's current contents are installed.
class SYSFRAMEWORK_EXPORT IContentsSite : public virtual SysUtility::CRef {
public:
  ~IContentsSite() override;

  /// Makes these the current contents; borrowed.
  virtual void SetContents(SysCarto::IKdxContents* contents) = 0;
};

/// The desktop behind the hook: the same object, asked for by `dynamic_cast`.
class SYSFRAMEWORK_EXPORT IDesktop : public virtual SysUtility::CRef {
public:
  ~IDesktop() override;

  /// The document being edited, borrowed; null where there is none.
  virtual SysCarto::MapDocument* GetMapDocument() = 0;

  /// The current contents, borrowed.
  virtual SysCarto::IKdxContents* GetActiveContents() = 0;

  /// The table of contents, borrowed; null in a host without one.
  virtual SysAdapterUI::TOCControl* GetTOCControl() = 0;
  virtual SysUtility::_ptr_t<IContentsSite> GetContentsSite() = 0;
};
