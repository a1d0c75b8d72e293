#pragma once

#include <SysCarto/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

/// The history of the extents that a view has shown. A step changes what the view shows; the caller redraws it.
class SYSCARTO_EXPORT IExtentStack : public SysUtility::CRef {
public:
  ~IExtentStack() override;

  virtual bool CanRedo() const = 0;  ///< there is a later extent
  virtual bool CanUndo() const = 0;  ///< there is an earlier extent

  // At the end of the history these do nothing.
  virtual void Redo() = 0;
  virtual void Undo() = 0;
};
