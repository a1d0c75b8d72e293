#include "SeriesDialog.h"

#include "PageList.h"

#include "host/SysCarto/document/SeriesSettings.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysAdapterUI/SymbolChooser.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/MapGround.h"
#include "host/desktop/layers/LayerAdding.h"
#include "host/desktop/layers/ReadingProgress.h"
#include "host/desktop/styling/FieldChoice.h"

#include <SysCarto/Layer.h>
#include <SysCarto/Map.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using SysAdapterUI::PropertyModel;
using SysCarto::Editable;

namespace {

constexpr QSize firstSize(820, 560);
constexpr int captionPx = 200;

QStringList const layerPath(QStringLiteral("layer")), sourcePath(QStringLiteral("source"));

SysUtility::NewValue always(QJsonValue const& value) {
  return [value](QJsonValue const&) { return value; };
}

bool isNewSource(SysUtility::NewValue const& value) {
  QJsonValue const made = value(QJsonValue::Undefined);
  return made.isObject() && !made.toObject().contains(QStringLiteral("file"));
}

// The field with the names of features, as it is found for labels of a new map; empty for none.
QString nameFieldOf(SysCarto::SourceSettings const& source, QWidget& parent) {
  SysCarto::DataFile const file = SysCarto::describeFile(source.file);
  for (SysCarto::LayerDescription const& layer : file.layers) {
    if (!source.layer.isEmpty() && layer.name != source.layer) continue;
    QString problem;
    ReadingProgress progress(parent);
    auto const survey = surveyLayer(source, layer, progress.watch(), problem);
    FieldSurvey const* const field = survey ? nameField(*survey) : nullptr;
    return field ? field->name : QString();
  }
  return QString();
}

}  // namespace

SeriesDialog::SeriesDialog(DocumentSession& session, SeriesView& series, QWidget* parent)
    : QDialog(parent),
      session_(session),
      series_(series),
      changes_(session),
      sheet_(new SysAdapterUI::PropertySheet(this)),
      pages_(new QListView(this)),
      note_(new QLabel(this)) {
  setWindowTitle(tr("Series of Pages"));
  resize(firstSize);
  auto* const column = new QVBoxLayout(this);
  auto* const row = new QHBoxLayout;
  auto* const preview = new QVBoxLayout;
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);  // Return takes a value
  column->addLayout(row, 1);
  column->addWidget(buttons);
  row->addWidget(sheet_, 3);
  row->addLayout(preview, 2);
  preview->addWidget(note_);
  preview->addWidget(pages_, 1);
  note_->setWordWrap(true);
  note_->setTextFormat(Qt::PlainText);
  pages_->setUniformItemSizes(true);
  pages_->setModel(new PageList(series, this));
  sheet_->setTitle(tr("A page for each feature"));
  sheet_->view().header()->resizeSection(PropertyModel::CaptionColumn, captionPx);
  sheet_->show(this);
  connect(buttons, &QDialogButtonBox::rejected, this, &SeriesDialog::accept);
  connect(pages_, &QListView::clicked, this, [this](QModelIndex const& index) {
    QString const problem = series_.show(index.row());
    if (!problem.isEmpty()) note_->setText(problem);
  });
  connect(sheet_, &SysAdapterUI::PropertySheet::symbolWanted, this, [this](QModelIndex const& index) {
    SysAdapterUI::chooseSymbol(sheet_->model(), index, groundOfFocusMap(session_.document()), this);
  });
  connect(&series, &SeriesView::replaced, this, &SeriesDialog::follow);
  follow();
}

SeriesDialog::~SeriesDialog() { sheet_->show(nullptr); }

void SeriesDialog::accept() {
  sheet_->finish();
  auto const& model = sheet_->model();
  for (int row = 0; row < model.rowCount(); ++row) {
    QModelIndex const index = model.index(row, PropertyModel::ValueColumn);
    if (!model.data(index, PropertyModel::ProblemRole).toString().isEmpty()) return;
  }
  QDialog::accept();
}

void SeriesDialog::follow() {
  SeriesPages const* const pages = series_.pages();
  note_->setText(pages                         ? tr("%1 pages:").arg(pages->count())
                 : series_.problem().isEmpty() ? tr("Name a layer, and each of its features has a page.")
                                               : series_.problem());
}

QVector<SysUtility::SheetField> SeriesDialog::fields() {
  auto const thing = Editable::series(session_.document());
  return thing ? Editable::fields(session_.document(), {thing}).first() : QVector<SysUtility::SheetField>();
}

QStringList SeriesDialog::attributes() const {
  auto const thing = Editable::series(session_.document());
  return thing ? thing->attributes() : QStringList();
}

QStringList SeriesDialog::namesFor(QStringList const& path) const {
  QStringList names;
  if (path != layerPath) return names;
  QList<SysUtility::_ptr_t<SysCarto::Map>> maps;
  session_.document().GetMaps(maps);
  for (auto const& map : qAsConst(maps))
    for (auto const& layer : map->GetLayers())
      if (!names.contains(layer->GetName())) names << layer->GetName();
  return names;
}

QString SeriesDialog::set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) {
  QStringList warnings;
  auto const thing = Editable::series(session_.document());
  if (!thing) return QString();
  if (path == sourcePath && isNewSource(value)) {
    QTimer::singleShot(0, this, &SeriesDialog::askForSource);  // out of the click on the row
    return QString();
  }
  QString const problem =
      path == layerPath ? setFeatures(path, value, warnings) : changes_.set({thing}, path, value, joining, warnings);
  if (!warnings.isEmpty()) note_->setText(warnings.join(QLatin1Char('\n')));
  return problem;
}

// A layer or a source, and with it what its features are called.
QString SeriesDialog::setFeatures(QStringList const& path, SysUtility::NewValue const& value, QStringList& warnings) {
  auto const& document = session_.document();
  auto const thing = Editable::series(document);
  SysCarto::OneStep const step(tr("Set the features of the series"));
  QString const problem = changes_.set({thing}, path, value, QString(), warnings);
  auto const layout = document.GetPageLayout();
  SysCarto::Series const& series = SysCarto::PageLayoutHost::series(*layout);
  if (!problem.isEmpty() || !series.isUsed()) return problem;
  if (path == sourcePath && !series.layer.isEmpty())
    changes_.set({thing}, layerPath, always(QString()), QString(), warnings);  // it would come before the source
  if (!series.name.isEmpty() || !series.sortField.isEmpty()) return QString();
  auto const source = SysCarto::coverageOf(*layout);
  QString const field = source.file.isEmpty() ? QString() : nameFieldOf(source, *this);
  if (!field.isEmpty())
    changes_.set({thing}, {QStringLiteral("name")}, always(QStringLiteral("[field:%1]").arg(field)), QString(),
                 warnings);
  return QString();
}

void SeriesDialog::askForSource() {
  QString const file = LayerAdding::askForFile(session_, tr("Data of the Series"), this);
  if (file.isEmpty()) return;
  QStringList warnings;
  QString const problem = setFeatures(sourcePath, always(QJsonObject{{QStringLiteral("file"), file}}), warnings);
  sheet_->refresh();
  if (!problem.isEmpty()) warnings.prepend(problem);
  if (!warnings.isEmpty()) note_->setText(warnings.join(QLatin1Char('\n')));
}
