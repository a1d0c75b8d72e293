#include <SysAdapterUI/StyleSelectorDlg.h>

#include "host/SysAdapterUI/StyleItemModel.h"

#include <QDialogButtonBox>
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

struct StyleSelectorDlg::Private {
  StyleItemModel* model;
  StyleItemFilter* filter;
  QLineEdit* search;
  QListWidget* categories;
  QListView* grid;
  QLabel* chosen;
  QLabel* problems;
  QDialogButtonBox* buttons;

  _ptr_t<Symbol> current() const { return model->symbol(filter->mapToSource(grid->currentIndex()).row()); }

  void fitGrid() const {
    grid->setIconSize(model->pictureSize());
    grid->setGridSize(model->cellSize());
  }

  void listCategories() const {
    QSignalBlocker const blocker(categories);
    categories->clear();
    categories->addItem(StyleSelectorDlg::tr("All"));
    categories->addItems(model->categories());
    categories->setCurrentRow(0);
    filter->setCategory(QString());
  }

  void choose(int row) const {
    QModelIndex const index = filter->mapFromSource(model->index(row, 0));
    grid->setCurrentIndex(index);
    grid->scrollTo(index, QAbstractItemView::PositionAtCenter);
  }

  // A choice that the filter has hidden gives way to the first item that is shown.
  void keepChoice() const {
    if (!grid->currentIndex().isValid() && filter->rowCount() > 0) grid->setCurrentIndex(filter->index(0, 0));
    showChoice();
  }

  void showChoice() const {
    QModelIndex const index = grid->currentIndex();
    chosen->setText(index.isValid()           ? index.data().toString()
                    : model->rowCount() == 0  ? StyleSelectorDlg::tr("The style libraries hold nothing of this kind.")
                    : filter->rowCount() == 0 ? StyleSelectorDlg::tr("No name matches.")
                                              : StyleSelectorDlg::tr("Nothing is chosen."));
  }
};

StyleSelectorDlg::StyleSelectorDlg(QWidget* parent) : QDialog(parent), d(std::make_unique<Private>()) {
  d->model = new StyleItemModel(this);
  d->filter = new StyleItemFilter(this);
  d->filter->setSourceModel(d->model);
  build();
  connectParts();
  setWindowTitle(tr("Styles"));
  resize(760, 560);
}

StyleSelectorDlg::~StyleSelectorDlg() = default;

void StyleSelectorDlg::build() {
  d->search = new QLineEdit;
  d->search->setPlaceholderText(tr("Search"));
  d->search->setClearButtonEnabled(true);
  d->categories = new QListWidget;
  d->categories->setObjectName(QStringLiteral("categories"));
  d->categories->setFixedWidth(categoryWidthPx);
  d->grid = new QListView;
  d->grid->setObjectName(QStringLiteral("grid"));
  d->grid->setModel(d->filter);
  d->grid->setViewMode(QListView::IconMode);
  d->grid->setResizeMode(QListView::Adjust);
  d->grid->setMovement(QListView::Static);
  d->grid->setUniformItemSizes(true);
  d->grid->setWordWrap(true);
  d->grid->setTextElideMode(Qt::ElideRight);
  d->chosen = new QLabel;
  d->problems = new QLabel;
  d->problems->setObjectName(QStringLiteral("problems"));
  d->problems->setWordWrap(true);
  d->problems->setTextInteractionFlags(Qt::TextSelectableByMouse);
  d->problems->hide();
  d->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

  auto* const middle = new QHBoxLayout;
  middle->addWidget(d->categories);
  middle->addWidget(d->grid, 1);
  auto* const bottom = new QHBoxLayout;
  bottom->addWidget(d->chosen, 1);
  bottom->addWidget(d->buttons);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(d->search);
  layout->addLayout(middle, 1);
  layout->addWidget(d->problems);
  layout->addLayout(bottom);
}

void StyleSelectorDlg::connectParts() {
  connect(d->search, &QLineEdit::textChanged, this, [this](QString const& text) {
    d->filter->setWords(text);
    d->keepChoice();
  });
  connect(d->categories, &QListWidget::currentRowChanged, this, [this](int row) {
    d->filter->setCategory(row > 0 ? d->categories->item(row)->text() : QString());
    d->keepChoice();
  });
  connect(d->grid->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { d->showChoice(); });
  connect(d->grid, &QListView::activated, this, &QDialog::accept);
  connect(d->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(d->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, d->search, [this] {
    d->search->setFocus();
    d->search->selectAll();
  });
  d->search->installEventFilter(this);
}

// From the search field, the arrow keys lead on into the pictures, and Escape first clears the search.
bool StyleSelectorDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched != d->search || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  int const key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Down || key == Qt::Key_Up) {
    d->grid->setFocus();
    return true;
  }
  if (key == Qt::Key_Escape && !d->search->text().isEmpty()) {
    d->search->clear();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void StyleSelectorDlg::SetStyleItem(orvSymbologyStyleClass styleClass, _ptr_t<SysUtility::CRef> item) {
  d->model->load(styleClass, styleFiles());
  auto const symbol = SysUtility::ptr_cast<Symbol>(item);
  int row = symbol ? d->model->rowLike(*symbol) : -1;
  if (symbol && row < 0) {
    d->model->addFirst(tr("Current symbol"), symbol);
    row = 0;
  }
  d->search->clear();
  d->listCategories();
  d->fitGrid();
  d->problems->setText(d->model->problems().join(QLatin1Char('\n')));
  d->problems->setVisible(!d->model->problems().isEmpty());
  if (row >= 0) d->choose(row);
  d->showChoice();
  d->grid->setFocus();
}

_ptr_t<SysUtility::CRef> StyleSelectorDlg::GetStyleItem() const { return d->current(); }

}  // namespace SysAdapterUI
