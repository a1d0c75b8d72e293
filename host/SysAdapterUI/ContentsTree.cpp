#include "ContentsTree.h"

#include "Swatch.h"

#include <SysAdapterUI/TOCControl.h>

#include <QContextMenuEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QUrl>

#include <algorithm>

using SysCarto::LayerPlace;
using SysCarto::LayerRow;

namespace SysAdapterUI {

namespace {

constexpr int betweenSharesMs = 150;

using Rows = QVector<LayerRow>;

// What the window opens as a whole is not for the tree.
bool isDocument(QMimeData const& data) {
  auto const urls = data.urls();
  return urls.size() == 1 && urls.first().path().endsWith(QLatin1String(".kdx"), Qt::CaseInsensitive);
}

// What stands aside lies at the right of a row; the name gives way to it.
class ContentsDelegate final : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override {
    QString const aside = index.data(ContentsModel::AsideRole).toString();
    if (aside.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem whole(option);
    initStyleOption(&whole, index);
    option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, option.widget);
    QRect const room = option.rect.adjusted(0, 0, -marginPx, 0);
    QStyleOptionViewItem name(option);
    name.rect.setRight(room.right() - option.fontMetrics.horizontalAdvance(aside) - 2 * marginPx);
    QStyledItemDelegate::paint(painter, name, index);
    bool const isSelected = option.state & QStyle::State_Selected;
    painter->setPen(isSelected ? option.palette.color(QPalette::HighlightedText)
                               : option.palette.color(QPalette::Disabled, QPalette::Text));
    painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, aside);
  }

private:
  static constexpr int marginPx = 4;
};

// All that have rows below them, from above.
template <class Use>
void forEachParent(QAbstractItemModel const& model, QTreeView const& view, Use const& use, QModelIndex const& at = {}) {
  for (int i = 0; i < model.rowCount(at); ++i) {
    QModelIndex const index = model.index(i, 0, at);
    if (!model.hasChildren(index)) continue;
    use(index);
    if (view.isExpanded(index)) forEachParent(model, view, use, index);
  }
}

}  // namespace

ContentsTree::ContentsTree(QWidget* parent)
    : QTreeView(parent),
      model_(new ContentsModel(this)),
      shares_(new QTimer(this)),
      listener_([this](bool) { followReading(); }) {
  setObjectName(QStringLiteral("treeView_Contents"));
  setAccessibleName(tr("Maps and layers"));
  setModel(model_);
  setHeaderHidden(true);
  setIconSize(swatchPx);
  setFrameShape(QFrame::NoFrame);
  setUniformRowHeights(true);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setDragDropOverwriteMode(false);
  setEditTriggers(NoEditTriggers);  // a double click opens and closes, and F2 is a command
  setItemDelegate(new ContentsDelegate(this));
  model_->setDevicePixelRatio(devicePixelRatioF());
  shares_->setSingleShot(true);
  connect(shares_, &QTimer::timeout, this, &ContentsTree::followReading);
  // The rows may not change while the view is in the middle of an edit or a drop.
  connect(model_, &ContentsModel::renameWanted, this, [this](LayerRow const& row, QString const& name) {
    QTimer::singleShot(0, this, [this, row, name] { emit renameWanted(row, name); });
  });
  connect(model_, &ContentsModel::rowsDropped, this, [this](Rows const& rows, LayerPlace const& place, bool copies) {
    QTimer::singleShot(0, this, [this, rows, place, copies] { emit rowsDropped(rows, place, copies); });
  });
  connect(model_, &ContentsModel::filesDropped, this, [this](QStringList const& files, LayerPlace const& place) {
    QTimer::singleShot(0, this, [this, files, place] { emit filesDropped(files, place); });
  });
  for (auto const chosen : {&QTreeView::clicked, &QTreeView::activated})
    connect(this, chosen, this, [this](QModelIndex const& index) {
      LayerRow const row = model_->rowAt(index);
      if (row.map && !row.group && !row.layer) emit mapChosen(row.map);
      tell();
    });
}

ContentsTree::~ContentsTree() = default;

// A name that is being written stays as it is.
void ContentsTree::followReading() {
  viewport()->update();
  if (state() != EditingState) follow();
  if (model_->isReading()) shares_->start(betweenSharesMs);
}

ContentsTree& ContentsTree::of(TOCControl const& control) { return *control.findChild<ContentsTree*>(); }

Rows ContentsTree::chosen() const {
  QModelIndexList selected = selectionModel()->selectedRows();
  if (selected.isEmpty() && currentIndex().isValid()) selected << currentIndex();
  Rows rows;
  QSet<void const*> known;
  for (QModelIndex const& index : qAsConst(selected)) {
    LayerRow const row = model_->rowAt(index);
    if (row.map && !known.contains(row.thing())) rows << row;
    known << row.thing();
  }
  return rows;
}

void ContentsTree::choose(Rows const& rows) {
  QItemSelection selection;
  QModelIndex first;
  for (LayerRow const& row : rows) {
    QModelIndex const index = model_->indexOf(row);
    if (!index.isValid()) continue;
    selection.select(index, index);
    if (!first.isValid()) first = index;
  }
  if (!first.isValid()) return;
  isChoosing_ = true;
  selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  isChoosing_ = false;
  scrollTo(first);
  tell();
}

void ContentsTree::rename() {
  QModelIndex const current = currentIndex();
  if (!current.isValid() || model_->isClass(current)) return;
  scrollTo(current);
  edit(current);
}

// A change of the rows, after which they are as open, as chosen and as far up as before.
template <class Change>
void ContentsTree::keeping(Change const& change) {
  QSet<void const*> known, open;
  forEachParent(*model_, *this, [&](QModelIndex const& index) {
    void const* const thing = model_->rowAt(index).thing();
    known << thing;
    if (isExpanded(index)) open << thing;
  });
  Rows rows;
  for (QModelIndex const& index : selectionModel()->selectedRows()) rows << model_->rowAt(index);
  LayerRow const current = model_->rowAt(currentIndex());
  int const scrolled = verticalScrollBar()->value();
  isFollowing_ = true;
  bool const isOther = change();
  if (isOther) {
    forEachParent(*model_, *this, [&](QModelIndex const& index) {
      LayerRow const row = model_->rowAt(index);
      setExpanded(index, open.contains(row.thing()) || (!known.contains(row.thing()) && !row.layer));
    });
    QItemSelection selection;
    for (LayerRow const& row : qAsConst(rows))
      if (QModelIndex const index = model_->indexOf(row); index.isValid()) selection.select(index, index);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (QModelIndex const index = model_->indexOf(current); index.isValid())
      selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    verticalScrollBar()->setValue(scrolled);
  }
  isFollowing_ = false;
}

void ContentsTree::setContents(SysCarto::IKdxContents* contents) {
  keeping([&] {
    model_->setContents(contents);
    return true;
  });
}

void ContentsTree::follow() {
  keeping([&] { return model_->follow(); });
}

void ContentsTree::tell() {
  if (!isFollowing_ && !isChoosing_) emit rowsChosen(chosen());
}

void ContentsTree::selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  tell();
}

// Rows of classes can be current and not chosen. The first row becomes current when the keys come here, which nobody
// has chosen.
void ContentsTree::currentChanged(QModelIndex const& current, QModelIndex const& previous) {
  QTreeView::currentChanged(current, previous);
  if (previous.isValid() && model_->isClass(current)) tell();
}

// A letter begins to search for a name, and is no key of a tool.
bool ContentsTree::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto const* const key = static_cast<QKeyEvent*>(event);
    bool const isTyped = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
                         key->text().size() == 1 && key->text()[0].isLetterOrNumber();
    if (isTyped) event->accept();
  }
  return QTreeView::event(event);
}

// The current row's, where the menu is asked for by a key.
void ContentsTree::contextMenuEvent(QContextMenuEvent* event) {
  bool const isKey = event->reason() == QContextMenuEvent::Keyboard;
  QRect const row = visualRect(currentIndex());
  emit menuWanted(isKey ? viewport()->mapToGlobal(row.bottomLeft()) : event->globalPos());
}

void ContentsTree::dragEnterEvent(QDragEnterEvent* event) {
  if (isDocument(*event->mimeData())) return event->ignore();
  QTreeView::dragEnterEvent(event);
}

// A click beside the rows chooses none.
void ContentsTree::mousePressEvent(QMouseEvent* event) {
  QTreeView::mousePressEvent(event);
  if (indexAt(event->pos()).isValid()) return;
  clearSelection();
  setCurrentIndex({});
}

}  // namespace SysAdapterUI
