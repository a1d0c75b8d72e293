#pragma once

#include <SysUI/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QString>

namespace SysUI {

/// The undo history of a document.
class SYSUI_EXPORT IOperationStack : public SysUtility::CRef {
public:
  ~IOperationStack() override;

  virtual bool CanUndo() const = 0;
  virtual bool CanRedo() const = 0;

  /// Names of the operations that the next `Undo` and `Redo` would take; empty where there is none.
  virtual QString GetUndoName() const = 0;
  virtual QString GetRedoName() const = 0;

  /// Steps back or forth by one operation and redraws; does nothing at the end of the history.
  virtual void Undo() = 0;
  virtual void Redo() = 0;
};

}  // namespace SysUI
