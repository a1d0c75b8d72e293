#include "OperationStack.h"

#include <SysCarto/Map.h>

#include <QUndoStack>

namespace SysCarto {

OperationStack::OperationStack(QUndoStack* history, MapDocument const* document)
    : history_(history), document_(document) {
  noting_ =
      QObject::connect(history, &QUndoStack::indexChanged, [this] { page_.note(document_->GetPageLayout().get()); });
}
OperationStack::~OperationStack() = default;

// The history, after it was cleared where the page was rescaled since the last step; null after the document's end.
QUndoStack* OperationStack::history() const {
  if (!history_ || !history_->count()) return history_;
  auto const layout = document_->GetPageLayout();
  if (page_.wasRescaled(layout.get())) history_->clear();
  return history_;
}

bool OperationStack::CanUndo() const { return history() && history()->canUndo(); }
bool OperationStack::CanRedo() const { return history() && history()->canRedo(); }
QString OperationStack::GetUndoName() const { return history() ? history()->undoText() : QString(); }
QString OperationStack::GetRedoName() const { return history() ? history()->redoText() : QString(); }

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
  QObject::disconnect(noting_);
  history_ = nullptr;
  document_ = nullptr;
}

// A step may have changed the page's elements or a map's graphics; a view that is not on a screen draws nothing.
void OperationStack::redraw() const {
  constexpr int elementsChanged = 8;
  auto const layout = document_->GetPageLayout();
  if (!layout) return;
  layout->PartialRefresh(elementsChanged, nullptr);
  QList<SysUtility::_ptr_t<Map>> maps;
  document_->GetMaps(maps);
  for (auto const& map : maps) map->PartialRefresh(elementsChanged, nullptr);
}

}  // namespace SysCarto
