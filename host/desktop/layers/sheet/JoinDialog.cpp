#include "JoinDialog.h"

#include "ReturnKeeper.h"
#include "TestBar.h"

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layers/FeatureReader.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using SysCarto::SourceSettings;
using SysCarto::TableJoin;

namespace {

constexpr int shownRows = 20, mostColumnPx = 220, rowRoomPx = 6;

QString askForFile(QString const& folder, QWidget* parent) {
  return QFileDialog::getOpenFileName(parent, JoinDialog::tr("Which table is to be joined?"), folder);
}

// What can't be read has no fields, and the dialog says so when it tests.
TableSample sampleOf(SourceSettings const& features) {
  QString unread;
  return TableSample::of(features, JoinKeys::rowsLookedAt, unread);
}

// As joins match, in any case; a name that is not there is shown all the same.
void choose(QComboBox& box, QString const& name) {
  int at = box.findText(name);
  if (at < 0) at = box.findText(name, Qt::MatchFixedString);
  if (at < 0) {
    at = box.count();
    box.addItem(name);
  }
  box.setCurrentIndex(at);
}

}  // namespace

JoinDialog::JoinDialog(SourceSettings features, TableJoin const& join, QString const& folder, QWidget* parent)
    : QDialog(parent), features_(std::move(features)), folder_(folder), sample_(sampleOf(features_)) {
  setWindowTitle(tr("Joined Table"));
  build();
  key_->addItems(sample_.fields);
  SourceSettings bare = features_;
  bare.joins.clear();
  ownFields_ = SysCarto::attributesOf(bare);
  isSettling_ = true;
  file_->setText(QDir::toNativeSeparators(join.file));
  takeFile();
  if (!join.layer.isEmpty()) choose(*layer_, join.layer);
  layer_->setEnabled(layer_->count() > 1);
  takeLayer();
  prefix_->setText(join.prefix);
  if (!join.key.isEmpty()) {
    choose(*key_, join.key);
    choose(*tableKey_, join.tableKey);
  }
  isSettling_ = false;
  connect(file_, &QLineEdit::editingFinished, this, &JoinDialog::takeFile);
  connect(layer_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &JoinDialog::takeLayer);
  for (QComboBox* const box : {key_, tableKey_}) connect(box, &QComboBox::currentTextChanged, this, &JoinDialog::test);
  test();
}

JoinDialog::~JoinDialog() = default;

TableJoin JoinDialog::join() const {
  bool const isOnly = layer_->count() < 2;
  return {path_, isOnly ? QString() : layer_->currentText(), key_->currentText(), tableKey_->currentText(),
          prefix_->text()};
}

void JoinDialog::build() {
  auto const named = [](auto* widget, char const* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
  };
  file_ = named(new QLineEdit(this), "lineEdit_TableFile");
  auto* const choose = named(new QPushButton(tr("&Choose…"), this), "pushButton_TableFile");
  choose->setAutoDefault(false);
  layer_ = named(new QComboBox(this), "comboBox_TableLayer");
  key_ = named(new QComboBox(this), "comboBox_OwnKey");
  tableKey_ = named(new QComboBox(this), "comboBox_TableKey");
  prefix_ = named(new QLineEdit(this), "lineEdit_Prefix");
  prefix_->setToolTip(tr("Stands before the names of the table's fields"));
  rows_ = named(new QTableWidget(this), "tableWidget_Rows");
  rows_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  rows_->setTabKeyNavigation(false);
  rows_->verticalHeader()->setDefaultSectionSize(rows_->fontMetrics().height() + rowRoomPx);
  rows_->setAccessibleName(tr("The first rows of the table"));
  auto const begin = [this](QString& problem) {
    // The tables before have their say only where they bring the key.
    SourceSettings joined = features_;
    if (ownFields_.contains(key_->currentText())) joined.joins.clear();
    joined.joins.push_back(join());
    return SysCarto::ClassCounts::open(joined, QString(), problem);
  };
  auto const tell = [](SysCarto::ClassCounts const& counts) {
    QStringList const notes = counts.notes();
    return notes.isEmpty() ? tr("All %1 features found a row.").arg(QLocale().toString(counts.features()))
                           : notes.join(QLatin1Char('\n'));
  };
  test_ = new TestBar(tr("&Test"), tr("Count the features that find a row"), begin, tell, this);
  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  new ReturnKeeper(*this);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(choose, &QPushButton::clicked, this, &JoinDialog::chooseFile);

  auto* const fileRow = new QHBoxLayout;
  fileRow->addWidget(file_, 1);
  fileRow->addWidget(choose);
  auto* const form = new QFormLayout;
  auto* const fileLabel = new QLabel(tr("&File"), this);
  fileLabel->setBuddy(file_);
  form->addRow(fileLabel, fileRow);
  form->addRow(tr("&Layer of the file"), layer_);
  form->addRow(tr("&Key of the features"), key_);
  form->addRow(tr("K&ey of the table"), tableKey_);
  form->addRow(tr("&Prefix"), prefix_);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(rows_, 1);
  column->addWidget(test_);
  column->addWidget(buttons_);
  resize(620, 560);
}

void JoinDialog::chooseFile() {
  QString const file = askForFile(path_.isEmpty() ? folder_ : QFileInfo(path_).absolutePath(), this);
  if (file.isEmpty()) return;
  file_->setText(QDir::toNativeSeparators(file));
  takeFile();
}

// Relative to the document, as documents have it.
void JoinDialog::takeFile() {
  QString const typed = QDir::fromNativeSeparators(file_->text());
  QString const path = typed.isEmpty() ? QString() : QDir::cleanPath(QDir(folder_).absoluteFilePath(typed));
  if (path == path_) return;
  path_ = path;
  auto const described = SysCarto::describeFile(path);
  QSignalBlocker const quiet(layer_);
  layer_->clear();
  for (auto const& layer : described.layers) layer_->addItem(layer.name);
  layer_->setEnabled(layer_->count() > 1);
  say(described.error);
  if (!isSettling_) takeLayer();
}

// The rows, and the keys that fit best.
void JoinDialog::takeLayer() {
  QString problem;
  TableJoin const now = join();
  TableSample const table = TableSample::of({now.file, now.layer, {}, {}}, JoinKeys::rowsLookedAt, problem);
  bool const wasSettling = isSettling_;
  isSettling_ = true;
  tableKey_->clear();
  tableKey_->addItems(table.fields);
  rows_->clear();
  rows_->setColumnCount(table.fields.size());
  rows_->setHorizontalHeaderLabels(table.fields);
  rows_->setRowCount(std::min(shownRows, table.rows.size()));
  for (int i = 0; i < rows_->rowCount(); ++i)
    for (int j = 0; j < table.rows[i].size(); ++j) rows_->setItem(i, j, new QTableWidgetItem(table.rows[i][j]));
  rows_->resizeColumnsToContents();
  for (int j = 0; j < rows_->columnCount(); ++j)
    rows_->setColumnWidth(j, std::min(rows_->columnWidth(j), mostColumnPx));
  JoinKeys const keys = JoinKeys::guess(sample_, table);
  if (!keys.own.isEmpty()) {
    key_->setCurrentText(keys.own);
    tableKey_->setCurrentText(keys.table);
  }
  isSettling_ = wasSettling;
  say(problem);
  if (problem.isEmpty()) test();
}

void JoinDialog::test() {
  bool const isWhole = buttons_->button(QDialogButtonBox::Ok)->isEnabled() && key_->count() > 0;
  if (!isSettling_ && isWhole) test_->start();
}

void JoinDialog::say(QString const& problem) {
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty() && tableKey_->count() > 0);
  if (!problem.isEmpty()) test_->say(problem, true);
}

std::optional<TableJoin> askForJoin(SourceSettings const& features, QString const& folder, QWidget* parent) {
  QString const file = askForFile(folder, parent);
  if (file.isEmpty()) return std::nullopt;
  JoinDialog dialog(features, {file, {}, {}, {}, {}}, folder, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional<TableJoin>(dialog.join()) : std::nullopt;
}
