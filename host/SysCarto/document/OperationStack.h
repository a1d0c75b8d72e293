#pragma once

#include <SysCarto/MapDocument.h>

class QUndoStack;

namespace SysCarto {

/// A document's undo history as the window sees it.
class OperationStack final : public SysUI::IOperationStack {
public:
  /// Both borrowed, until `detach`.
  OperationStack(QUndoStack* history, MapDocument const* document);
  ~OperationStack() override;

  bool CanUndo() const override;
  bool CanRedo() const override;
  QString GetUndoName() const override;
  QString GetRedoName() const override;
  void Undo() override;
  void Redo() override;

  /// The document ends; whoever still holds the stack finds it at the end of its history.
  void detach();

private:
  void redraw() const;

  QUndoStack* history_;
  MapDocument const* document_;
};

}  // namespace SysCarto
