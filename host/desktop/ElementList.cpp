#include "ElementList.h"

#include "ElementModel.h"
#include "OwnKeys.h"

#include "host/SysCarto/layout/PageLayoutHost.h"

#include <SysFramework/HostAccess.h>

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

using SysCarto::ElementHandle;
using SysCarto::PageLayout;
using SysCarto::PageLayoutHost;

namespace {

using Elements = QList<IElementContainer::ElementPtr>;

constexpr int signWidthPx = 26;

QList<ElementHandle> selectedHandles(PageLayout const& layout) {
  QList<ElementHandle> handles;
  for (auto const& element : PageLayoutHost::workplace(layout).GetSelectedElements()) handles << element->GetHandle();
  return handles;
}

// The topmost is in the first row.
QHash<ElementHandle, int> rowsOf(Elements const& elements) {
  QHash<ElementHandle, int> rows;
  for (int i = 0; i < elements.size(); ++i) rows.insert(elements[i]->GetHandle(), elements.size() - 1 - i);
  return rows;
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
  setEditTriggers(DoubleClicked);
  setExpandsOnDoubleClick(false);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(signWidthPx);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setSectionResizeMode(ElementModel::NameColumn, QHeaderView::Stretch);
  for (int column : {ElementModel::HiddenColumn, ElementModel::LockedColumn}) setColumnWidth(column, signWidthPx);
  auto* const rename = new QAction(this);
  rename->setShortcut(Qt::Key_F2);
  rename->setShortcutContext(Qt::WidgetShortcut);
  addAction(rename);
  connect(rename, &QAction::triggered, this,
          [this] { edit(currentIndex().siblingAtColumn(ElementModel::NameColumn)); });
  new OwnKeys(*this);
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
  if (layout && (isOther || selected != shown_)) showSelection(*layout);
  shown_ = selected;
  isFollowing_ = false;
  viewport()->update();  // a lock may be another one without a step
}

// Neighbours are selected together, since thousands of ranges would take long.
void ElementList::showSelection(PageLayout const& layout) {
  QModelIndex const group = model_->groupAt(PageLayoutHost::openPath(layout));
  auto const known = rowsOf(PageLayoutHost::workplace(layout).GetElements());
  std::vector<int> rows;
  for (auto const& element : PageLayoutHost::workplace(layout).GetSelectedElements())
    rows.push_back(known.value(element->GetHandle()));
  std::sort(rows.begin(), rows.end());
  QItemSelection selection;
  for (std::size_t first = 0, next; first < rows.size(); first = next) {
    for (next = first + 1; next < rows.size() && rows[next] == rows[next - 1] + 1;) ++next;
    selection.select(model_->index(rows[first], 0, group),
                     model_->index(rows[next - 1], ElementModel::columns - 1, group));
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (rows.empty()) return;
  QModelIndex const current = model_->index(rows.front(), 0, group);
  selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  scrollTo(current);
}

// What lies in one group, or in none, is selected together. It is in the order in which it was selected, since some
// commands ask for the first or the last one.
void ElementList::selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  auto const layout = session_.document().GetPageLayout();
  if (isFollowing_ || !layout) return;
  QModelIndexList const rows = selectionModel()->selectedRows();
  QModelIndex const group = selected.isEmpty() ? rows.value(0).parent() : selected.last().parent();
  PageLayoutHost::openOnly(*layout, model_->pathOf(group));
  auto& container = PageLayoutHost::workplace(*layout);
  auto const elements = container.GetElements();
  QSet<ElementHandle> wanted;
  for (QModelIndex const& row : rows)
    if (auto const element = elements.value(elements.size() - 1 - row.row()); element && row.parent() == group)
      wanted << element->GetHandle();
  bool const isAll = wanted.size() == rows.size();
  Elements picked;
  for (auto const& element : container.GetSelectedElements() + elements)
    if (wanted.remove(element->GetHandle())) picked << element;
  container.UnselectAllElements();
  for (auto const& element : qAsConst(picked)) container.SelectElement(element);
  shown_ = isAll ? selectedHandles(*layout) : QList<ElementHandle>{0};  // the others are still to be unselected here
  layout->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  emit chosen();
}

void ElementList::restack(bool upwards) {
  auto const layout = session_.document().GetPageLayout();
  if (!layout) return;
  auto& container = PageLayoutHost::workplace(*layout);
  auto const selected = container.GetSelectedElements(), all = container.GetElements();
  auto const outermost = upwards ? all.mid(all.size() - selected.size()) : all.mid(0, selected.size());
  auto const isSelected = [&](auto const& element) { return selected.contains(element); };
  if (std::all_of(outermost.begin(), outermost.end(), isSelected)) return;  // none goes any farther
  {
    SysFramework::EditorOperation const operation(ElementModel::tr("Restack the selected elements"));
    upwards ? container.BringForward(selected) : container.SendBackward(selected);
  }
  layout->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

// A click on a sign is no choice.
QItemSelectionModel::SelectionFlags ElementList::selectionCommand(QModelIndex const& index, QEvent const* event) const {
  bool const isSign = index.column() > ElementModel::NameColumn && dynamic_cast<QMouseEvent const*>(event);
  return isSign ? QItemSelectionModel::NoUpdate : QTreeView::selectionCommand(index, event);
}

void ElementList::keyPressEvent(QKeyEvent* event) {
  bool const restacks = event->modifiers() == Qt::AltModifier;
  if (restacks && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down))
    return restack(event->key() == Qt::Key_Up);
  if (event->key() == Qt::Key_Space && !(event->modifiers() & Qt::ControlModifier))
    return model_->toggle(currentIndex().siblingAtColumn(
        event->modifiers() & Qt::ShiftModifier ? ElementModel::LockedColumn : ElementModel::HiddenColumn));
  QTreeView::keyPressEvent(event);
}
