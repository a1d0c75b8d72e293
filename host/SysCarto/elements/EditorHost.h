#pragma once

#include <SysCarto/Editor.h>

class QUndoStack;

namespace SysCarto {

/// The history that takes the editor's operations, borrowed: that of the document being edited. Null drops them.
struct SYSCARTO_EXPORT EditorHost {
  static void setHistory(QUndoStack* history);
  static QUndoStack* history();
};

}  // namespace SysCarto
