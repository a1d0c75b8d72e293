#include "PropertySheet.h"

#include "FieldText.h"
#include "PropertyDelegate.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace SysAdapterUI {

namespace {

constexpr int marginPx = 4;
constexpr int linesOfANote = 3;

QString nameOf(QModelIndex const& index) { return index.data(PropertyModel::NameRole).toString(); }

template <class Use>
void forEach(QAbstractItemModel const& model, QModelIndex const& parent, Use const& use) {
  for (int i = 0; i < model.rowCount(parent); ++i) {
    QModelIndex const index = model.index(i, 0, parent);
    use(index);
    forEach(model, index, use);
  }
}

QToolButton* button(QWidget* parent, QString const& text, QString const& help, char const* name) {
  auto* const made = new QToolButton(parent);
  made->setText(text);
  made->setToolTip(help);
  made->setAccessibleName(help);
  made->setObjectName(QLatin1String(name));
  made->setAutoRaise(true);
  return made;
}

}  // namespace

PropertySheet::PropertySheet(QWidget* parent)
    : QWidget(parent),
      model_(new PropertyModel(this)),
      filter_(new QSortFilterProxyModel(this)),
      title_(new QLabel(this)),
      search_(new QLineEdit(this)),
      view_(new QTreeView(this)),
      note_(new QLabel(this)),
      add_(button(this, QStringLiteral("+"), tr("Add an entry to the list"), "toolButton_Add")),
      remove_(button(this, QStringLiteral("−"), tr("Remove this entry from the list"), "toolButton_Remove")),
      up_(button(this, QStringLiteral("↑"), tr("Move this entry up"), "toolButton_Up")),
      down_(button(this, QStringLiteral("↓"), tr("Move this entry down"), "toolButton_Down")) {
  filter_->setSourceModel(model_);
  filter_->setRecursiveFilteringEnabled(true);
  filter_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  filter_->setFilterKeyColumn(PropertyModel::CaptionColumn);
  build();
  connect(search_, &QLineEdit::textChanged, this, [this](QString const& text) {
    if (!isSearching_) keepState();
    isSearching_ = !text.isEmpty();
    filter_->setFilterFixedString(text);
    restoreState();
  });
  connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, &PropertySheet::keepState);
  connect(model_, &QAbstractItemModel::modelReset, this, &PropertySheet::restoreState);
  // What was not followed while a value was being edited is followed now.
  connect(view_->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
          [this] { QTimer::singleShot(0, this, &PropertySheet::refresh); });
  connect(model_, &QAbstractItemModel::dataChanged, this, &PropertySheet::showCurrent);
  // Keys are about the value of a row, whichever of its two cells was reached.
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](QModelIndex const& index) {
    if (index.isValid() && index.column() != PropertyModel::ValueColumn)
      return view_->setCurrentIndex(index.siblingAtColumn(PropertyModel::ValueColumn));
    showCurrent();
  });
  connect(view_, &QTreeView::clicked, this, [this](QModelIndex const& index) {
    if (index.column() == PropertyModel::ValueColumn) open(index);
  });
  connect(view_, &QTreeView::activated, this, &PropertySheet::open);
  view_->installEventFilter(this);
  connect(add_, &QToolButton::clicked, this, [this] { makeCurrent(model_->addEntry(current())); });
  connect(remove_, &QToolButton::clicked, this, [this] { model_->removeEntry(current()); });
  connect(up_, &QToolButton::clicked, this, [this] { makeCurrent(model_->moveEntry(current(), -1)); });
  connect(down_, &QToolButton::clicked, this, [this] { makeCurrent(model_->moveEntry(current(), 1)); });
  setFocusProxy(view_);
  showCurrent();
}

PropertySheet::~PropertySheet() = default;

void PropertySheet::build() {
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  title_->setTextFormat(Qt::PlainText);
  title_->setObjectName(QStringLiteral("label_Title"));
  search_->setPlaceholderText(tr("Search"));
  search_->setAccessibleName(tr("Search for a property"));
  search_->setClearButtonEnabled(true);
  search_->setObjectName(QStringLiteral("lineEdit_Search"));

  auto* const delegate = new PropertyDelegate(view_);
  connect(delegate, &PropertyDelegate::editing, this, &PropertySheet::editing);
  view_->setObjectName(QStringLiteral("treeView_Properties"));
  view_->setAccessibleName(tr("Properties"));
  view_->setModel(filter_);
  view_->setItemDelegate(delegate);
  view_->setFrameShape(QFrame::NoFrame);
  view_->setAlternatingRowColors(true);
  view_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed |
                         QAbstractItemView::DoubleClicked);
  view_->setUniformRowHeights(true);
  view_->setIndentation(12);
  view_->header()->setSectionResizeMode(PropertyModel::CaptionColumn, QHeaderView::Interactive);
  view_->header()->setStretchLastSection(true);
  view_->header()->resizeSection(PropertyModel::CaptionColumn, 150);

  note_->setObjectName(QStringLiteral("label_Note"));
  note_->setWordWrap(true);
  note_->setTextFormat(Qt::PlainText);
  note_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  note_->setMinimumHeight(linesOfANote * note_->fontMetrics().lineSpacing());

  auto* const buttons = new QHBoxLayout;
  for (QToolButton* const one : {add_, remove_, up_, down_}) buttons->addWidget(one);
  buttons->addStretch(1);
  auto* const box = new QVBoxLayout(this);
  box->setContentsMargins(marginPx, marginPx, marginPx, marginPx);
  box->setSpacing(marginPx);
  box->addWidget(title_);
  box->addWidget(search_);
  box->addWidget(view_, 1);
  box->addLayout(buttons);
  box->addWidget(note_);
}

// Out of the event in which the view asks, and once where a click and what it activates both do.
void PropertySheet::open(QModelIndex const& index) {
  QModelIndex const value = index.siblingAtColumn(PropertyModel::ValueColumn);
  if (value.flags() & Qt::ItemIsEditable) return view_->edit(value);
  if (!model_->isSymbol(filter_->mapToSource(value))) return;
  wanted_ = model_->row(filter_->mapToSource(value)).path;
  QTimer::singleShot(0, this, [this] {
    QModelIndex const symbol = wanted_.isEmpty() ? QModelIndex() : model_->indexOf(std::exchange(wanted_, {}));
    if (symbol.isValid()) emit symbolWanted(symbol);
  });
}

// Keys that mean something here are not those of the window: Del is about an entry, and no element of the page, and a
// letter begins the value of its row.
bool PropertySheet::eventFilter(QObject* watched, QEvent* event) {
  bool const isOverride = event->type() == QEvent::ShortcutOverride;
  if (watched != view_ || (!isOverride && event->type() != QEvent::KeyPress))
    return QWidget::eventFilter(watched, event);
  auto const* const key = static_cast<QKeyEvent*>(event);
  bool const isProblem = !current().data(PropertyModel::ProblemRole).toString().isEmpty();
  bool const isOwn = key->matches(QKeySequence::Delete) || key->matches(QKeySequence::SelectAll) ||
                     key->key() == Qt::Key_F2 || (key->key() == Qt::Key_Escape && isProblem);
  bool const isTyped = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
                       key->text().size() == 1 && key->text()[0].isPrint();
  if (!isOwn && !(isOverride && isTyped && current().flags() & Qt::ItemIsEditable))
    return QWidget::eventFilter(watched, event);
  event->accept();
  if (isOverride) return true;
  if (key->key() == Qt::Key_F2) open(view_->currentIndex());
  if (key->key() == Qt::Key_Escape) model_->forget(current());
  if (key->matches(QKeySequence::Delete)) model_->removeEntry(current());
  return true;
}

bool PropertySheet::isEditing() const { return view_->indexWidget(view_->currentIndex()) != nullptr; }

void PropertySheet::finish() {
  QWidget* const editor = view_->indexWidget(view_->currentIndex());
  if (!editor) return;
  emit view_->itemDelegate()->commitData(editor);
  emit view_->itemDelegate()->closeEditor(editor);
}

void PropertySheet::show(FieldSource* source) { model_->setSource(source); }
void PropertySheet::setTitle(QString const& title) { title_->setText(title); }

void PropertySheet::makePlain() {
  isPlain_ = true;
  for (QWidget* const widget : {static_cast<QWidget*>(title_), static_cast<QWidget*>(search_)}) widget->hide();
  restoreState();
}

void PropertySheet::refresh() {
  if (!isEditing()) model_->refresh();
}

QModelIndex PropertySheet::current() const { return filter_->mapToSource(view_->currentIndex()); }

void PropertySheet::makeCurrent(QModelIndex const& index) {
  QModelIndex const shown = filter_->mapFromSource(index);
  if (!shown.isValid()) return;
  view_->setCurrentIndex(shown);
  view_->expand(shown.siblingAtColumn(0));
  view_->scrollTo(shown);
}

void PropertySheet::showCurrent() {
  QModelIndex const index = current();
  auto const row = index.isValid() ? model_->row(index) : PropertyModel::Row{nullptr, {}, PropertyPart::X, false};
  QString const problem = index.data(PropertyModel::ProblemRole).toString();
  note_->setText(problem.isEmpty() ? index.data(PropertyModel::HelpRole).toString() : problem);
  QPalette colors = palette();
  if (!problem.isEmpty()) colors.setColor(QPalette::WindowText, problemColor(colors));
  note_->setPalette(colors);
  bool const isList = index.isValid() && row.isList();
  add_->setEnabled(isList || row.isEntry);
  remove_->setEnabled(row.isEntry);
  up_->setEnabled(row.isEntry && index.row() > 0);
  down_->setEnabled(row.isEntry && index.row() + 1 < model_->rowCount(index.parent()));
  for (QToolButton* const one : {add_, remove_, up_, down_}) one->setVisible(!isPlain_ || isList || row.isEntry);
}

void PropertySheet::keepState() {
  hadFocus_ = view_->hasFocus() || (isEditing() && view_->indexWidget(view_->currentIndex())->hasFocus());
  if (isSearching_ || filter_->rowCount() == 0) return;
  forEach(*filter_, {}, [this](QModelIndex const& index) {
    if (view_->isExpanded(index))
      open_ << nameOf(index);
    else
      open_.remove(nameOf(index));
  });
  currentName_ = nameOf(view_->currentIndex());
}

void PropertySheet::restoreState() {
  if (isSearching_) view_->expandAll();
  forEach(*filter_, {}, [this](QModelIndex const& index) {
    if (!isSearching_) view_->setExpanded(index, open_.contains(nameOf(index)));
    if (!currentName_.isEmpty() && nameOf(index) == currentName_)
      view_->setCurrentIndex(index.siblingAtColumn(PropertyModel::ValueColumn));
  });
  for (int i = 0; isPlain_ && i < filter_->rowCount(); ++i)
    view_->setRowHidden(i, {}, model_->row(filter_->mapToSource(filter_->index(i, 0))).isList());
  if (std::exchange(hadFocus_, false)) view_->setFocus();
  showCurrent();
}

}  // namespace SysAdapterUI
