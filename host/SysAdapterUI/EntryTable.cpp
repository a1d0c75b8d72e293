#include "EntryTable.h"

#include "FieldText.h"
#include "PropertyDelegate.h"
#include "PropertySheet.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace SysAdapterUI {

namespace {

constexpr int leastWidthPx = 70, mostWidthPx = 260, rowsForWidths = 100;

}  // namespace

EntryTable::EntryTable(PropertySheet& sheet, Ways const& ways, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      ways_(ways),
      entries_(new EntryModel(sheet.model(), this)),
      view_(new QTableView(this)),
      told_(new QLabel(this)) {
  struct Face {
    QString text;
    char const* name;
  };
  Face const faces[] = {{tr("&Add"), "pushButton_AddEntry"},        {tr("&Change…"), "pushButton_ChangeEntry"},
                        {tr("&Duplicate"), "pushButton_CopyEntry"}, {tr("&Remove"), "pushButton_RemoveEntry"},
                        {tr("&Up"), "pushButton_RaiseEntry"},       {tr("Do&wn"), "pushButton_LowerEntry"}};
  auto* const buttons = new QHBoxLayout;
  for (int i = 0; i < count; ++i) {
    press_[i] = new QPushButton(ways.add && i == Add ? tr("&Add…") : faces[i].text, this);
    press_[i]->setObjectName(QLatin1String(faces[i].name));
    press_[i]->setAutoDefault(false);
    connect(press_[i], &QPushButton::clicked, this, [this, i] { press(static_cast<Button>(i)); });
    buttons->addWidget(press_[i]);
  }
  press_[Change]->setVisible(static_cast<bool>(ways.change));
  press_[Duplicate]->setVisible(!ways.add);
  buttons->addStretch(1);

  view_->setObjectName(QStringLiteral("tableView_Entries"));
  view_->setModel(entries_);
  auto* const delegate = new PropertyDelegate(view_);
  connect(delegate, &PropertyDelegate::editing, &sheet, &PropertySheet::editing);
  view_->setItemDelegate(delegate);
  view_->setSelectionMode(QAbstractItemView::SingleSelection);
  view_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed |
                         QAbstractItemView::DoubleClicked);
  view_->setTabKeyNavigation(false);
  view_->setWordWrap(false);
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->verticalHeader()->setDefaultSectionSize(QComboBox().sizeHint().height());
  view_->horizontalHeader()->setHighlightSections(false);
  told_->setWordWrap(true);
  told_->setTextFormat(Qt::PlainText);
  told_->setObjectName(QStringLiteral("label_EntryProblem"));
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(view_, 1);
  column->addWidget(told_);
  column->addLayout(buttons);

  auto* const removal = new QShortcut(QKeySequence::Delete, view_);
  removal->setContext(Qt::WidgetShortcut);
  connect(removal, &QShortcut::activated, this, [this] { press(Remove); });
  connect(view_, &QTableView::activated, this, [this](QModelIndex const& index) {
    QModelIndex const field = entries_->mapToSource(index);
    if (field.isValid() && entries_->fields().isSymbol(field)) emit sheet_.symbolWanted(field);
  });
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, &EntryTable::showState);
  connect(entries_, &QAbstractItemModel::dataChanged, this, &EntryTable::showState);
  connect(entries_, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
    row_ = currentRow();
    column_ = std::max(0, view_->currentIndex().column());
  });
  connect(entries_, &QAbstractItemModel::modelReset, this, &EntryTable::settle);
  connect(entries_, &QAbstractItemModel::columnsInserted, this, &EntryTable::fitColumns);
  // What was not followed while a value was being edited is followed now.
  connect(delegate, &QAbstractItemDelegate::closeEditor, this,
          [this] { QTimer::singleShot(0, &sheet_, &PropertySheet::refresh); });
  settle();
}

EntryTable::~EntryTable() = default;

int EntryTable::currentRow() const { return view_->currentIndex().row(); }

bool EntryTable::isEditing() const { return view_->indexWidget(view_->currentIndex()) != nullptr; }

void EntryTable::finish() {
  QWidget* const editor = view_->indexWidget(view_->currentIndex());
  if (!editor) return;
  emit view_->itemDelegate()->commitData(editor);
  emit view_->itemDelegate()->closeEditor(editor);
}

// The row that was chosen is chosen again where there are enough, and the first one at the beginning.
void EntryTable::settle() {
  setVisible(entries_->list().isValid());
  int const rows = entries_->rowCount();
  if (rows > 0) view_->setCurrentIndex(entries_->index(std::clamp(row_, 0, rows - 1), column_));
  fitColumns();
  showState();
}

void EntryTable::fitColumns() {
  auto* const header = view_->horizontalHeader();
  header->setResizeContentsPrecision(rowsForWidths);
  view_->resizeColumnsToContents();
  for (int i = 0; i < header->count(); ++i) header->moveSection(header->visualIndex(i), i);
  // Beside the symbol, where they are seen.
  if (entries_->hasCounts()) header->moveSection(header->count() - 1, 1);
  for (int i = 0; i < header->count(); ++i)
    header->resizeSection(i, std::clamp(header->sectionSize(i), leastWidthPx, mostWidthPx));
}

void EntryTable::showState() {
  int const row = currentRow(), rows = entries_->rowCount();
  QModelIndex const list = entries_->list(), field = entries_->mapToSource(view_->currentIndex());
  QString problem = list.isValid() ? list.data(PropertyModel::ProblemRole).toString() : QString();
  if (problem.isEmpty() && row >= 0) problem = entries_->entry(row).data(PropertyModel::ProblemRole).toString();
  if (problem.isEmpty()) problem = field.data(PropertyModel::ProblemRole).toString();
  bool const isProblem = !problem.isEmpty();
  if (!isProblem && rows == 0) problem = list.data(PropertyModel::HelpRole).toString();
  QPalette colors = palette();
  if (isProblem) colors.setColor(QPalette::WindowText, problemColor(colors));
  told_->setPalette(colors);
  told_->setText(problem);
  told_->setVisible(!problem.isEmpty());
  for (Button const button : {Change, Duplicate, Remove}) press_[button]->setEnabled(row >= 0);
  press_[Up]->setEnabled(row > 0);
  press_[Down]->setEnabled(row >= 0 && row + 1 < rows);
}

void EntryTable::press(Button button) {
  PropertyModel& model = entries_->fields();
  int const row = currentRow();
  if (button == Add && ways_.add) return ways_.add();
  if (button != Add && row < 0) return;
  if (button == Change) return ways_.change(row);
  if (button == Remove) return model.removeEntry(entries_->entry(row));
  QModelIndex const now = button == Add         ? model.addEntry(entries_->list())
                          : button == Duplicate ? model.duplicateEntry(entries_->entry(row))
                                                : model.moveEntry(entries_->entry(row), button == Up ? -1 : 1);
  if (now.parent().isValid()) view_->setCurrentIndex(entries_->index(now.row(), column_));
  showState();
}

}  // namespace SysAdapterUI
