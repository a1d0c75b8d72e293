#include "StyleBrowser.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QShortcut>
#include <QVBoxLayout>

namespace SysAdapterUI {

using SysDisplay::Symbol;
using SysUtility::_ptr_t;

namespace {

constexpr int categoryWidthPx = 150;

}  // namespace

StyleBrowser::StyleBrowser(QWidget* parent)
    : QWidget(parent),
      model_(new StyleItemModel(this)),
      filter_(new StyleItemFilter(this)),
      search_(new QLineEdit(this)),
      categories_(new QListWidget(this)),
      grid_(new QListView(this)),
      chosen_(new QLabel(this)),
      problems_(new QLabel(this)) {
  filter_->setSourceModel(model_);
  build();
  connectParts();
}

StyleBrowser::~StyleBrowser() = default;

void StyleBrowser::build() {
  search_->setPlaceholderText(tr("Search"));
  search_->setAccessibleName(tr("Search for a symbol"));
  search_->setClearButtonEnabled(true);
  categories_->setObjectName(QStringLiteral("categories"));
  categories_->setAccessibleName(tr("Categories"));
  categories_->setFixedWidth(categoryWidthPx);
  grid_->setObjectName(QStringLiteral("grid"));
  grid_->setAccessibleName(tr("Symbols"));
  grid_->setModel(filter_);
  grid_->setViewMode(QListView::IconMode);
  grid_->setResizeMode(QListView::Adjust);
  grid_->setMovement(QListView::Static);
  grid_->setUniformItemSizes(true);
  grid_->setWordWrap(true);
  grid_->setTextElideMode(Qt::ElideRight);
  problems_->setObjectName(QStringLiteral("problems"));
  problems_->setWordWrap(true);
  problems_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  problems_->hide();
  setFocusProxy(grid_);

  auto* const middle = new QHBoxLayout;
  middle->addWidget(categories_);
  middle->addWidget(grid_, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_);
  layout->addLayout(middle, 1);
  layout->addWidget(problems_);
  layout->addWidget(chosen_);
}

void StyleBrowser::connectParts() {
  connect(search_, &QLineEdit::textChanged, this,
          [this](QString const& text) { narrow([&] { filter_->setWords(text); }); });
  connect(categories_, &QListWidget::currentRowChanged, this, [this](int row) {
    narrow([&] { filter_->setCategory(row > 0 ? categories_->item(row)->text() : QString()); });
  });
  connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
    showChoice();
    if (!isNarrowing_) emit chosen();
  });
  connect(grid_, &QListView::activated, this, &StyleBrowser::accepted);
  auto* const find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, search_, [this] {
    search_->setFocus();
    search_->selectAll();
  });
  search_->installEventFilter(this);
}

// From the search field, the arrow keys lead on into the pictures, and Escape first clears the search.
bool StyleBrowser::eventFilter(QObject* watched, QEvent* event) {
  if (watched != search_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  int const key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Down || key == Qt::Key_Up) {
    grid_->setFocus();
    return true;
  }
  if (key == Qt::Key_Escape && !search_->text().isEmpty()) {
    search_->clear();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void StyleBrowser::show(orvSymbologyStyleClass styleClass, _ptr_t<Symbol> const& first, bool alsoOthers) {
  model_->load(styleClass, styleFiles(), alsoOthers);
  int row = first ? model_->rowLike(*first) : -1;
  if (first && row < 0) {
    model_->addFirst(tr("Current symbol"), first);
    row = 0;
  }
  search_->clear();
  listCategories();
  grid_->setIconSize(model_->pictureSize());
  grid_->setGridSize(model_->cellSize());
  problems_->setText(model_->problems().join(QLatin1Char('\n')));
  problems_->setVisible(!model_->problems().isEmpty());
  if (row >= 0) choose(row);
  showChoice();
  grid_->setFocus();
}

_ptr_t<Symbol> StyleBrowser::current() const {
  return model_->symbol(filter_->mapToSource(grid_->currentIndex()).row());
}

void StyleBrowser::listCategories() {
  QSignalBlocker const blocker(categories_);
  categories_->clear();
  categories_->addItem(tr("All"));
  categories_->addItems(model_->categories());
  categories_->setCurrentRow(0);
  filter_->setCategory(QString());
}

void StyleBrowser::choose(int row) {
  QModelIndex const index = filter_->mapFromSource(model_->index(row, 0));
  grid_->setCurrentIndex(index);
  grid_->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

// A choice that the filter has hidden gives way to the first item that is shown.
void StyleBrowser::narrow(std::function<void()> const& filter) {
  isNarrowing_ = true;
  filter();
  if (!grid_->currentIndex().isValid() && filter_->rowCount() > 0) grid_->setCurrentIndex(filter_->index(0, 0));
  isNarrowing_ = false;
  showChoice();
}

void StyleBrowser::showChoice() {
  QModelIndex const index = grid_->currentIndex();
  chosen_->setText(index.isValid()            ? index.data().toString()
                   : model_->rowCount() == 0  ? tr("The style libraries hold nothing of this kind.")
                   : filter_->rowCount() == 0 ? tr("No name matches.")
                                              : tr("Nothing is chosen."));
}

}  // namespace SysAdapterUI
