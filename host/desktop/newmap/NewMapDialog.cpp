#include "NewMapDialog.h"

#include "host/desktop/layers/DataReport.h"
#include "host/desktop/styling/DataSurvey.h"

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/projection/CoordinateSystem.h"

#include <SysCarto/Paper.h>

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { NameColumn, KindColumn, CountColumn, SystemColumn };
constexpr int pathRole = Qt::UserRole;
constexpr QSize usualSize(560, 520);

}  // namespace

NewMapDialog::NewMapDialog(QStringList const& files, QWidget* parent) : QDialog(parent), files_(this) {
  setObjectName(QStringLiteral("NewMapDialog"));
  setWindowTitle(tr("New Map from Data"));
  setAcceptDrops(true);
  auto* const box = new QVBoxLayout(this);
  buildData();
  box->addWidget(data_, 1);
  auto* const add = new QPushButton(tr("&Add Files…"), this);
  add->setObjectName(QStringLiteral("pushButton_AddFiles"));
  connect(add, &QPushButton::clicked, this, &NewMapDialog::chooseFiles);
  box->addWidget(add, 0, Qt::AlignLeft);

  auto* const form = new QFormLayout;
  auto const line = [this, form](QString const& label, char const* name, QString const& hint) {
    auto* const edit = new QLineEdit(this);
    edit->setObjectName(QLatin1String(name));
    edit->setPlaceholderText(hint);
    form->addRow(label, edit);
    connect(edit, &QLineEdit::textChanged, this, &NewMapDialog::showState);
    return edit;
  };
  title_ = line(tr("&Title"), "lineEdit_Title", tr("the name of the data"));
  paper_ = new QComboBox(this);
  paper_->setObjectName(QStringLiteral("comboBox_Paper"));
  SysCarto::FormInfo info;
  for (SysCarto::PageFormID form = 0; SysCarto::Paper::GetFormInfo(form, info); ++form)
    if (info.key != QLatin1String("Custom")) paper_->addItem(info.displayName, info.key);
  paper_->setCurrentIndex(paper_->findData(QStringLiteral("A4")));
  form->addRow(tr("&Paper"), paper_);
  orientation_ = new QComboBox(this);
  orientation_->setObjectName(QStringLiteral("comboBox_Orientation"));
  orientation_->addItem(tr("As the data need"));
  orientation_->addItem(tr("Portrait"), false);
  orientation_->addItem(tr("Landscape"), true);
  form->addRow(tr("&Orientation"), orientation_);
  system_ = line(tr("&Coordinate system"), "lineEdit_CoordinateSystem", tr("one that suits the data; or EPSG:3035"));
  where_ = line(tr("&Filter"), "lineEdit_Filter", tr("all features; or population > 100000"));
  template_ = line(tr("T&emplate"), "lineEdit_Template", tr("none; or a document whose page is taken"));
  auto* const browse = template_->addAction(style()->standardIcon(QStyle::SP_DirOpenIcon), QLineEdit::TrailingPosition);
  browse->setText(tr("Choose…"));
  connect(browse, &QAction::triggered, this, &NewMapDialog::chooseTemplate);
  box->addLayout(form);

  problem_ = new QLabel(this);
  problem_->setObjectName(QStringLiteral("label_Problem"));
  problem_->setTextFormat(Qt::PlainText);
  problem_->setWordWrap(true);
  box->addWidget(problem_);
  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons_->button(QDialogButtonBox::Ok)->setText(tr("&Make Map"));
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  box->addWidget(buttons_);
  resize(usualSize);
  connect(&files_, &FileDescriptions::described, this, &NewMapDialog::showFile);
  for (QString const& file : files) addFile(file);
  showState();
}

NewMapDialog::~NewMapDialog() = default;

void NewMapDialog::buildData() {
  data_ = new QTreeWidget(this);
  data_->setObjectName(QStringLiteral("treeWidget_Data"));
  data_->setHeaderLabels({tr("Data"), tr("Kind"), tr("Features"), tr("Coordinate system")});
  data_->setColumnWidth(NameColumn, usualSize.width() * 2 / 5);
  data_->setAccessibleName(tr("Data"));
  connect(data_, &QTreeWidget::itemChanged, this, &NewMapDialog::showState);
}

// Files are described on another thread: some are long.
void NewMapDialog::addFile(QString const& file) {
  QString const path = QFileInfo(file).absoluteFilePath();
  for (int i = 0; i < data_->topLevelItemCount(); ++i)
    if (data_->topLevelItem(i)->data(NameColumn, pathRole) == path) return;
  auto* const row = new QTreeWidgetItem(data_, {QFileInfo(path).fileName(), tr("Reading…")});
  row->setData(NameColumn, pathRole, path);
  row->setToolTip(NameColumn, path);
  waiting_ << path;
  files_.describe({path});
  showState();
}

// A file that can't be read keeps its row, which says why.
void NewMapDialog::showFile(SysCarto::DataFile const& file) {
  waiting_.removeAll(file.path);
  QSignalBlocker quiet(data_);
  for (int i = 0; i < data_->topLevelItemCount(); ++i) {
    auto* const row = data_->topLevelItem(i);
    if (row->data(NameColumn, pathRole) != file.path || row->childCount() > 0) continue;
    row->setText(KindColumn, file.format);
    if (!file.error.isEmpty()) {
      row->setToolTip(NameColumn, file.error);
      row->setIcon(NameColumn, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
    for (SysCarto::LayerDescription const& layer : file.layers) {
      auto* const child = new QTreeWidgetItem(
          row, {layer.name, kindText(layer.kind), layer.count < 0 ? QString() : locale().toString(layer.count),
                layer.coordinateSystemName});
      bool const isShown = layer.kind != SysCarto::GeometryKind::None && !isPartOfTrack(layer.name, file);
      child->setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
      child->setCheckState(NameColumn, isShown ? Qt::Checked : Qt::Unchecked);
    }
    row->setExpanded(true);
  }
  quiet.unblock();
  showState();
}

void NewMapDialog::chooseFiles() {
  for (QString const& file : QFileDialog::getOpenFileNames(this, tr("Data"))) addFile(file);
}

void NewMapDialog::chooseTemplate() {
  QString const file = QFileDialog::getOpenFileName(this, tr("Template"), QString(), tr("Map documents (*.kdx)"));
  if (!file.isEmpty()) template_->setText(file);
}

NewMapRequest NewMapDialog::request() const {
  NewMapRequest request;
  for (int i = 0; i < data_->topLevelItemCount(); ++i) {
    auto const* const file = data_->topLevelItem(i);
    for (int j = 0; j < file->childCount(); ++j)
      if (file->child(j)->checkState(NameColumn) == Qt::Checked)
        request.data.append({file->data(NameColumn, pathRole).toString(), file->child(j)->text(NameColumn)});
  }
  request.title = title_->text();
  request.paper = paper_->currentData().toString();
  if (orientation_->currentData().isValid()) request.isLandscape = orientation_->currentData().toBool();
  request.coordinateSystem = system_->text().trimmed();
  request.templateFile = template_->text();
  request.where = where_->text();
  return request;
}

void NewMapDialog::showState() {
  NewMapRequest const wanted = request();
  QString const wrong = SysCarto::checkCoordinateSystem(wanted.coordinateSystem);
  QString problem;
  if (!waiting_.isEmpty())
    problem = tr("Reading %1…").arg(QFileInfo(waiting_.first()).fileName());
  else if (wanted.data.isEmpty())
    problem = tr("Add files of data, or drop them here, and check what the map is to show.");
  else if (!wrong.isEmpty())
    problem = tr("The coordinate system can't be taken: %1.").arg(wrong);
  problem_->setText(problem);
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

void NewMapDialog::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void NewMapDialog::dropEvent(QDropEvent* event) {
  for (QUrl const& url : event->mimeData()->urls())
    if (url.isLocalFile()) addFile(url.toLocalFile());
  event->acceptProposedAction();
}
