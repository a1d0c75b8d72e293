#include "ElementList.h"

#include "ElementModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

using SysCarto::ElementHandle;

namespace {

constexpr int signWidthPx = 26;

QList<ElementHandle> selectedHandles(SysCarto::PageLayout const& layout) {
  QList<ElementHandle> handles;
  for (auto const& element : layout.GetGraphicsContainer()->GetSelectedElements()) handles << element->GetHandle();
  return handles;
}

}  // namespace

ElementList::ElementList(DocumentSession& session, QWidget* parent)
    : QTreeView(parent), session_(session), model_(new ElementModel(session.document(), this)) {
  setObjectName(QStringLiteral("treeView_Elements"));
  setModel(model_);
  setFrameShape(QFrame::NoFrame);
  setUniformRowHeights(true);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(InternalMove);
  setDragDropOverwriteMode(false);
  setEditTriggers(EditKeyPressed | DoubleClicked);
  setExpandsOnDoubleClick(false);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(signWidthPx);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setSectionResizeMode(ElementModel::NameColumn, QHeaderView::Stretch);
  for (int column : {ElementModel::HiddenColumn, ElementModel::LockedColumn}) setColumnWidth(column, signWidthPx);
  connect(this, &QTreeView::clicked, model_, &ElementModel::toggle);
  connect(model_, &ElementModel::told, this, &ElementList::told);
}

ElementList::~ElementList() = default;

void ElementList::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  follow();
}

void ElementList::follow() {
  if (!isVisible()) return;
  auto const layout = session_.document().GetPageLayout();
  auto const selected = layout ? selectedHandles(*layout) : QList<ElementHandle>();
  isFollowing_ = true;
  bool const isOther = model_->follow();
  if (isOther || selected != shown_) showSelection(selected);
  isFollowing_ = false;
  viewport()->update();  // a lock may be another one without a step
}

// Neighbours are selected together, since thousands of ranges would take long.
void ElementList::showSelection(QList<ElementHandle> const& selected) {
  shown_ = selected;
  std::vector<int> rows;
  for (ElementHandle const handle : selected) rows.push_back(model_->rowOf(handle));
  std::sort(rows.begin(), rows.end());
  QItemSelection selection;
  for (std::size_t first = 0, next; first < rows.size(); first = next) {
    for (next = first + 1; next < rows.size() && rows[next] == rows[next - 1] + 1;) ++next;
    selection.select(model_->index(rows[first], 0), model_->index(rows[next - 1], ElementModel::columns - 1));
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (rows.empty()) return;
  selectionModel()->setCurrentIndex(model_->index(rows.front(), 0), QItemSelectionModel::NoUpdate);
  scrollTo(model_->index(rows.front(), 0));
}

// In the order in which they were selected, since some commands ask for the first or the last one.
void ElementList::selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  auto const layout = session_.document().GetPageLayout();
  if (isFollowing_ || !layout) return;
  QSet<ElementHandle> wanted;
  for (QModelIndex const& index : selectionModel()->selectedRows()) wanted << model_->handleOf(index);
  auto& container = *layout->GetGraphicsContainer();
  for (auto const& element : container.GetSelectedElements())
    if (!wanted.remove(element->GetHandle())) container.UnselectElement(element);
  auto const elements = wanted.isEmpty() ? QList<IElementContainer::ElementPtr>() : container.GetElements();
  for (auto const& element : elements)
    if (wanted.contains(element->GetHandle())) container.SelectElement(element);
  shown_ = selectedHandles(*layout);
  layout->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  emit chosen();
}

// A click on a sign is no choice.
QItemSelectionModel::SelectionFlags ElementList::selectionCommand(QModelIndex const& index, QEvent const* event) const {
  bool const isSign = index.column() > ElementModel::NameColumn && dynamic_cast<QMouseEvent const*>(event);
  return isSign ? QItemSelectionModel::NoUpdate : QTreeView::selectionCommand(index, event);
}

void ElementList::keyPressEvent(QKeyEvent* event) {
  bool const restacks = event->modifiers() == Qt::AltModifier;
  if (restacks && event->key() == Qt::Key_Up)
    return emit commandWanted(QStringLiteral("Plotvane_BringForwardElements"));
  if (restacks && event->key() == Qt::Key_Down)
    return emit commandWanted(QStringLiteral("Plotvane_SendBackwardElements"));
  if (event->key() == Qt::Key_Space && !(event->modifiers() & Qt::ControlModifier))
    return model_->toggle(currentIndex().siblingAtColumn(
        event->modifiers() & Qt::ShiftModifier ? ElementModel::LockedColumn : ElementModel::HiddenColumn));
  QTreeView::keyPressEvent(event);
}
