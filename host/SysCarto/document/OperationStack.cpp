#include "OperationStack.h"

#include <SysCarto/Map.h>

#include <QUndoStack>

namespace SysCarto {

OperationStack::OperationStack(QUndoStack* history, MapDocument const* document)
    : history_(history), document_(document) {}
OperationStack::~OperationStack() = default;

bool OperationStack::CanUndo() const { return history_ && history_->canUndo(); }
bool OperationStack::CanRedo() const { return history_ && history_->canRedo(); }
QString OperationStack::GetUndoName() const { return history_ ? history_->undoText() : QString(); }
QString OperationStack::GetRedoName() const { return history_ ? history_->redoText() : QString(); }

void OperationStack::Undo() {
  if (!CanUndo()) return;
  history_->undo();
  redraw();
}

void OperationStack::Redo() {
  if (!CanRedo()) return;
  history_->redo();
  redraw();
}

void OperationStack::detach() {
  history_ = nullptr;
  document_ = nullptr;
}

// A step may have changed the page's elements or a map's graphics; a view that is not on a screen draws nothing.
void OperationStack::redraw() const {
  auto const layout = document_->GetPageLayout();
  if (!layout) return;
  layout->PartialRefresh(RefreshPhase::Elements, nullptr);
  QList<SysUtility::_ptr_t<Map>> maps;
  document_->GetMaps(maps);
  for (auto const& map : maps) map->PartialRefresh(RefreshPhase::Elements, nullptr);
}

}  // namespace SysCarto
