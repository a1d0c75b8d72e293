#include "PropertySheet.h"

#include "PropertyDelegate.h"

#include <QHBoxLayout>
#include <QHeaderView>
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
  connect(model_, &QAbstractItemModel::dataChanged, this, &PropertySheet::showCurrent);
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, &PropertySheet::showCurrent);
  connect(view_, &QTreeView::clicked, this, [this](QModelIndex const& index) {
    if (index.flags() & Qt::ItemIsEditable) view_->edit(index);
  });
  connect(view_, &QTreeView::activated, this, [this](QModelIndex const& index) {
    QModelIndex const value = index.siblingAtColumn(PropertyModel::ValueColumn);
    if (value.flags() & Qt::ItemIsEditable) view_->edit(value);
  });
  connect(add_, &QToolButton::clicked, this, [this] { makeCurrent(model_->addEntry(current())); });
  connect(remove_, &QToolButton::clicked, this, [this] { model_->removeEntry(current()); });
  connect(up_, &QToolButton::clicked, this, [this] { makeCurrent(model_->moveEntry(current(), -1)); });
  connect(down_, &QToolButton::clicked, this, [this] { makeCurrent(model_->moveEntry(current(), 1)); });
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
  connect(delegate, &PropertyDelegate::symbolWanted, this, [this](QModelIndex const& index) {
    // Out of the event in which the view asked, and once where a click and what it activates both did.
    wanted_ = model_->row(filter_->mapToSource(index)).path;
    QTimer::singleShot(0, this, &PropertySheet::askForSymbol);
  });
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

void PropertySheet::askForSymbol() {
  if (wanted_.isEmpty()) return;
  QModelIndex const index = model_->indexOf(std::exchange(wanted_, {}));
  if (index.isValid()) emit symbolWanted(index);
}

void PropertySheet::show(FieldSource* source) { model_->setSource(source); }
void PropertySheet::setTitle(QString const& title) { title_->setText(title); }

void PropertySheet::refresh() {
  if (!view_->indexWidget(view_->currentIndex())) model_->refresh();
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
  auto const row =
      index.isValid() ? model_->row(index) : PropertyModel::Row{nullptr, {}, PropertyModel::Row::Part::X, false};
  QString const problem = index.data(PropertyModel::ProblemRole).toString();
  note_->setText(problem.isEmpty() ? index.data(PropertyModel::HelpRole).toString() : problem);
  QPalette colors = palette();
  if (!problem.isEmpty()) colors.setColor(QPalette::WindowText, QColor(0xc0, 0x20, 0x20));
  note_->setPalette(colors);
  bool const isList = index.isValid() && row.isList();
  add_->setEnabled(isList || row.isEntry);
  for (QToolButton* const one : {remove_, up_, down_}) one->setEnabled(row.isEntry);
}

void PropertySheet::keepState() {
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
  showCurrent();
}

}  // namespace SysAdapterUI
