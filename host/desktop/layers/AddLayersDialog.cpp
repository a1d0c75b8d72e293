#include "AddLayersDialog.h"

#include "DataReport.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

using SysCarto::DataFile;
using SysCarto::GeometryKind;
using SysCarto::LayerDescription;

namespace {

enum Column { NameColumn, KindColumn, CountColumn, SystemColumn, ExtentColumn };
constexpr QSize firstSize(820, 460);
constexpr int columnWidths[] = {230, 90, 80, 170};

bool isTable(DataFile const& file) { return file.format == QLatin1String("CSV"); }

std::array<QString*, 3> columnsOf(LayerDescription& layer) {
  return {&layer.xField, &layer.yField, &layer.geometryField};
}

}  // namespace

AddLayersDialog::AddLayersDialog(QStringList const& files, QWidget* parent)
    : QDialog(parent),
      rows_(new QTreeWidget(this)),
      columns_(new QWidget(this)),
      state_(new QLabel(this)),
      files_(this),
      waiting_(files) {
  setWindowTitle(tr("Add Layers"));
  resize(firstSize);
  rows_->setObjectName(QStringLiteral("treeWidget_Layers"));
  rows_->setAccessibleName(tr("Layers of the files"));
  rows_->setHeaderLabels({tr("Layer"), tr("Kind"), tr("Features"), tr("Coordinate system"), tr("Extent")});
  rows_->setUniformRowHeights(true);
  for (int i = 0; i < SystemColumn + 1; ++i) rows_->setColumnWidth(i, columnWidths[i]);
  state_->setWordWrap(true);
  state_->setTextFormat(Qt::PlainText);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  add_ = buttons->addButton(tr("Add"), QDialogButtonBox::AcceptRole);
  auto* const box = new QVBoxLayout(this);
  box->addWidget(rows_, 1);
  box->addWidget(columns_);
  box->addWidget(state_);
  box->addWidget(buttons);
  buildColumns();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(rows_, &QTreeWidget::currentItemChanged, this, &AddLayersDialog::showColumns);
  connect(rows_, &QTreeWidget::itemChanged, this, &AddLayersDialog::showState);
  connect(&files_, &FileDescriptions::described, this, &AddLayersDialog::addFile);
  connect(&files_, &FileDescriptions::measured, this, &AddLayersDialog::measured);
  connect(&files_, &FileDescriptions::finished, this, &AddLayersDialog::showState);
  files_.describe(files);
  showState();
}

AddLayersDialog::~AddLayersDialog() = default;

void AddLayersDialog::buildColumns() {
  auto* const form = new QFormLayout(columns_);
  form->setContentsMargins(0, 0, 0, 0);
  char const* const names[] = {"comboBox_X", "comboBox_Y", "comboBox_Geometry"};
  QString const captions[] = {tr("Column of &x"), tr("Column of &y"), tr("or column of &geometries")};
  for (size_t i = 0; i < boxes_.size(); ++i) {
    boxes_[i] = new QComboBox(columns_);
    boxes_[i]->setObjectName(QLatin1String(names[i]));
    form->addRow(captions[i], boxes_[i]);
    connect(boxes_[i], QOverload<int>::of(&QComboBox::activated), this, &AddLayersDialog::takeColumns);
  }
  columns_->hide();
}

void AddLayersDialog::addFile(DataFile const& file) {
  waiting_.removeOne(file.path);
  QSignalBlocker quiet(rows_);  // each change of a row would look at all of them
  auto* const top = new QTreeWidgetItem(rows_, {SysCarto::titleOf(file.path), file.format});
  top->setToolTip(NameColumn, file.path);
  if (!file.error.isEmpty()) {
    auto* const problem = new QTreeWidgetItem(top, {file.error});
    problem->setToolTip(NameColumn, file.error);
    problem->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    problem->setFirstColumnSpanned(true);
  }
  for (LayerDescription const& layer : file.layers) {
    auto* const row = new QTreeWidgetItem(top, {layer.name});
    row->setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
    bool const isOneOfMany = !SysCarto::connectionIn(file.path).isEmpty();  // of which nobody wants all
    row->setCheckState(NameColumn, layer.kind == GeometryKind::None || isOneOfMany ? Qt::Unchecked : Qt::Checked);
    entries_.push_back({{file.path, file.format, {}, {}}, file.layers.size() == 1, layer, row});
    show(entries_.back());
  }
  quiet.unblock();
  top->setExpanded(true);
  if (!rows_->currentItem() && top->childCount() > 0) rows_->setCurrentItem(top->child(0));
  showState();
}

void AddLayersDialog::show(Entry const& entry) {
  LayerDescription const& layer = entry.layer;
  bool const hasPlaces = layer.kind != GeometryKind::None;
  QString const system =
      layer.coordinateSystemName.isEmpty() && hasPlaces ? tr("not known") : layer.coordinateSystemName;
  entry.row->setText(KindColumn, kindText(layer.kind));
  entry.row->setText(CountColumn, layer.count < 0 ? QString() : QLocale().toString(layer.count));
  entry.row->setText(SystemColumn, system);
  entry.row->setToolTip(SystemColumn, layer.coordinateSystem);
  entry.row->setText(ExtentColumn, extentText(layer.extent));
  entry.row->setFlags(hasPlaces ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                                : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  if (!hasPlaces) {
    entry.row->setCheckState(NameColumn, Qt::Unchecked);
    entry.row->setToolTip(NameColumn,
                          tr("A table without places can be joined to a layer, in the properties of that."));
  }
}

void AddLayersDialog::measured(SysCarto::SourceSettings const& source, LayerDescription const& layer,
                               QString const& error) {
  QSignalBlocker const quiet(rows_);
  for (Entry& entry : entries_) {
    if (entry.file.path != source.origin() || entry.layer.name != source.layer || !error.isEmpty()) continue;
    bool const hadPlaces = entry.layer.kind != GeometryKind::None;
    entry.layer = layer;
    show(entry);
    if (!hadPlaces && layer.kind != GeometryKind::None) entry.row->setCheckState(NameColumn, Qt::Checked);
  }
  showState();
}

AddLayersDialog::Entry* AddLayersDialog::current() {
  auto const found = std::find_if(entries_.begin(), entries_.end(),
                                  [this](Entry const& entry) { return entry.row == rows_->currentItem(); });
  return found == entries_.end() ? nullptr : &*found;
}

void AddLayersDialog::showColumns() {
  Entry* const entry = current();
  columns_->setVisible(entry && isTable(entry->file));
  if (!columns_->isVisibleTo(this)) return;
  auto const columns = columnsOf(entry->layer);
  for (size_t i = 0; i < boxes_.size(); ++i) {
    boxes_[i]->clear();
    boxes_[i]->addItem(QString());
    for (auto const& field : entry->layer.fields) boxes_[i]->addItem(field.name);
    boxes_[i]->setCurrentText(*columns[i]);
  }
}

// A row is placed in one way: a column of geometries stands in for two of coordinates, and the other way round.
void AddLayersDialog::takeColumns() {
  Entry* const entry = current();
  if (!entry) return;
  bool const isGeometry = sender() == boxes_[2] && !boxes_[2]->currentText().isEmpty();
  if (isGeometry)
    for (int i = 0; i < 2; ++i) boxes_[i]->setCurrentIndex(0);
  else if (sender() != boxes_[2])
    boxes_[2]->setCurrentIndex(0);
  auto const columns = columnsOf(entry->layer);
  for (size_t i = 0; i < boxes_.size(); ++i) *columns[i] = boxes_[i]->currentText();
  LayerDescription const& layer = entry->layer;
  if (layer.xField.isEmpty() != layer.yField.isEmpty()) return;
  files_.measure({entry->file.path, layer.name, {}, {}, layer.xField, layer.yField, layer.geometryField});
}

bool AddLayersDialog::isChecked(Entry const& entry) {
  return entry.layer.kind != GeometryKind::None && entry.row->checkState(NameColumn) == Qt::Checked;
}

void AddLayersDialog::showState() {
  add_->setEnabled(std::any_of(entries_.begin(), entries_.end(), isChecked));
  if (!waiting_.isEmpty())
    state_->setText(tr("Reading %1…").arg(SysCarto::titleOf(waiting_.first())));
  else if (files_.isBusy())
    state_->setText(tr("Counting…"));
  else
    state_->setText(add_->isEnabled() ? QString() : tr("No layer is checked that could be drawn."));
}

std::vector<NewLayer> AddLayersDialog::chosen() const {
  std::vector<NewLayer> chosen;
  for (Entry const& entry : entries_) {
    if (!isChecked(entry)) continue;
    DataFile file = entry.file;
    if (entry.isOnlyLayer) file.layers.push_back(entry.layer);  // which is called like the file
    for (NewLayer const& one : NewLayers::of(file, entry.layer)) chosen.push_back(one);
  }
  return chosen;
}
