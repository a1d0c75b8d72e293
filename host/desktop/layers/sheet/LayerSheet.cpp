#include "LayerSheet.h"

#include "ConditionDialog.h"
#include "FileFacts.h"
#include "JoinDialog.h"
#include "JoinKeys.h"
#include "OpacitySlider.h"
#include "ReturnKeeper.h"
#include "SheetTabs.h"
#include "TestBar.h"

#include "host/SysAdapterUI/EntryTable.h"
#include "host/SysAdapterUI/FieldText.h"
#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysAdapterUI/SymbolChooser.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/raster/RasterLayer.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/MapGround.h"
#include "host/desktop/layers/LayerActions.h"
#include "host/desktop/layers/LayerClasses.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using SysAdapterUI::EntryTable;
using SysAdapterUI::PropertyModel;
using SysAdapterUI::PropertySheet;
using SysCarto::ClassCounts;
using SysCarto::TableJoin;
using SysUtility::SheetField;

namespace {

constexpr QSize firstSize(900, 640);
constexpr int captionPx = 190;

QStringList const filterPath{QStringLiteral("source"), QStringLiteral("filter")};
QStringList const layerPath{QStringLiteral("source"), QStringLiteral("layer")};
QStringList const systemPath{QStringLiteral("source"), QStringLiteral("coordinateSystem")};

QPushButton* button(QString const& text, char const* name, QWidget* parent) {
  auto* const made = new QPushButton(text, parent);
  made->setObjectName(QLatin1String(name));
  made->setAutoDefault(false);
  return made;
}

}  // namespace

LayerSheet::LayerSheet(DocumentSession& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      changes_(session),
      pages_(new QTabWidget(this)),
      facts_(new FileFacts(this)),
      told_(new QLabel(this)) {
  setObjectName(QStringLiteral("dialog_LayerSheet"));
  pages_->setObjectName(QStringLiteral("tabWidget_Layer"));
  for (int i = 0; i < SheetTab::all().size(); ++i) addTab(i);
  pages_->addTab(facts_, tr("File"));
  told_->setObjectName(QStringLiteral("label_Told"));
  told_->setWordWrap(true);
  told_->setTextFormat(Qt::PlainText);
  told_->hide();
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  new ReturnKeeper(*this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(pages_, 1);
  column->addWidget(told_);
  column->addWidget(buttons);
  resize(firstSize);
  connect(pages_, &QTabWidget::currentChanged, this, &LayerSheet::refreshTab);
  connect(facts_, &FileFacts::found, this, [this] { fileSystem_->setText(facts_->systemText()); });
  // A row is in the middle of its change.
  soon_.setSingleShot(true);
  connect(&session, &DocumentSession::historyChanged, &soon_, [this] { soon_.start(0); });
  connect(&soon_, &QTimer::timeout, this, &LayerSheet::follow);
  connect(&session, &DocumentSession::replaced, this, &LayerSheet::follow);
}

LayerSheet::~LayerSheet() {
  for (Tab const& tab : tabs_) tab.sheet->show(nullptr);
}

void LayerSheet::addTab(int number) {
  struct More {
    char const* tab;
    void (LayerSheet::*add)(QVBoxLayout& page);
  };
  static constexpr More more[] = {{"General", &LayerSheet::addOpacity},
                                  {"Source", &LayerSheet::addFilterTest},
                                  {"Tables", &LayerSheet::addJoinTest},
                                  {"System", &LayerSheet::addSystem},
                                  {"Symbols", &LayerSheet::addClasses}};
  SheetTab const& tab = SheetTab::all()[number];
  bool const isOfTables = QLatin1String(tab.name) == QLatin1String("Tables");
  EntryTable::Ways const ways{[this] { join(-1); }, [this](int row) { join(row); }};
  auto* const page = new QWidget(pages_);
  auto* const column = new QVBoxLayout(page);
  auto* const parts = new QSplitter(Qt::Vertical, page);
  auto* const sheet = new PropertySheet(parts);
  sheet->makePlain();
  sheet->view().header()->resizeSection(PropertyModel::CaptionColumn, captionPx);
  auto* const table = new EntryTable(*sheet, isOfTables ? ways : EntryTable::Ways(), parts);
  table->view().setAccessibleName(tr(tab.caption));
  parts->setChildrenCollapsible(false);
  parts->setStretchFactor(1, 1);
  column->addWidget(parts, 1);
  connect(sheet, &PropertySheet::editing, this, &LayerSheet::editing);
  connect(sheet, &PropertySheet::symbolWanted, this, [this, sheet](QModelIndex const& index) {
    SysAdapterUI::chooseSymbol(sheet->model(), index, groundOfFocusMap(session_.document()), this);
  });
  tabs_.push_back({std::unique_ptr<TabFields>(new TabFields(*this, number)), sheet, table});
  for (More const& one : more)
    if (QLatin1String(one.tab) == QLatin1String(tab.name)) (this->*one.add)(*column);
  page->setObjectName(QLatin1String(tab.name));
  pages_->addTab(page, tr(tab.caption));
}

void LayerSheet::addOpacity(QVBoxLayout& page) {
  opacity_ = new OpacitySlider(this);
  auto* const form = new QFormLayout;
  form->addRow(tr("&Opacity"), opacity_);
  page.addLayout(form);
  connect(opacity_, &OpacitySlider::chosen, this,
          [this](double percent) { give({QStringLiteral("opacity")}, percent, QStringLiteral("opacity")); });
}

// Of the filter that there is.
void LayerSheet::addFilterTest(QVBoxLayout& page) {
  auto const begin = [this](QString& problem) -> std::unique_ptr<ClassCounts> {
    if (!vector()) return nullptr;
    auto source = vector()->source();
    QString const filter = std::exchange(source.filter, QString());
    return ClassCounts::open(source, filter, problem);
  };
  auto const say = [](ClassCounts const& counts) { return passingText(counts.counts().front(), counts.features()); };
  tests_.push_back(new TestBar(tr("&Test"), tr("Count the features that pass the filter"), begin, say, this));
  auto* const edit = button(tr("Edit &Filter…"), "pushButton_EditFilter", this);
  auto* const row = new QHBoxLayout;
  ofFeatures_.push_back(edit);
  row->addWidget(edit);
  row->addWidget(tests_.back(), 1);
  page.addLayout(row);
  connect(edit, &QPushButton::clicked, this, [this] {
    if (vector()) chooseFor(filterPath, vector()->source().filter);
  });
}

void LayerSheet::addJoinTest(QVBoxLayout& page) {
  auto const begin = [this](QString& problem) -> std::unique_ptr<ClassCounts> {
    if (!vector() || vector()->source().joins.empty()) problem = tr("No table is joined.");
    return problem.isEmpty() ? ClassCounts::open(vector()->source(), QString(), problem) : nullptr;
  };
  auto const say = [](ClassCounts const& counts) {
    QString const all = tr("All %1 features found their rows.").arg(QLocale().toString(counts.features()));
    return counts.notes().isEmpty() ? all : counts.notes().join(QLatin1Char('\n'));
  };
  tests_.push_back(new TestBar(tr("&Test"), tr("Count the features that find a row"), begin, say, this));
  page.addWidget(tests_.back());
}

void LayerSheet::addSystem(QVBoxLayout& page) {
  fileSystem_ = new QLabel(this);
  fileSystem_->setObjectName(QStringLiteral("label_FileSystem"));
  fileSystem_->setWordWrap(true);
  fileSystem_->setTextFormat(Qt::PlainText);
  auto* const other = button(tr("&Choose…"), "pushButton_ChooseSystem", this);
  auto* const own = button(tr("As the &File Says"), "pushButton_SystemOfFile", this);
  auto* const row = new QHBoxLayout;
  row->addWidget(other);
  row->addWidget(own);
  row->addStretch(1);
  page.addWidget(fileSystem_);
  page.addLayout(row);
  connect(other, &QPushButton::clicked, this, [this] {
    if (row_.layer) chooseFor(systemPath, source().coordinateSystem);
  });
  connect(own, &QPushButton::clicked, this, [this] { give(systemPath, QString(), QString()); });
}

void LayerSheet::addClasses(QVBoxLayout& page) {
  auto const begin = [this](QString& problem) -> std::unique_ptr<ClassCounts> {
    return vector() ? ClassCounts::open(vector()->source(), vector()->renderer().settings(), problem) : nullptr;
  };
  auto const say = [&table = *tabs_.back().table](ClassCounts const& counts) { return telling(counts, table); };
  tests_.push_back(new TestBar(tr("&Test"), tr("Count the features that each class takes"), begin, say, this));
  auto* const classes = button(tr("Make C&lasses…"), "pushButton_Classes", this);
  classes->setToolTip(tr("Make classes of the layer by the values of a field"));
  auto* const row = new QHBoxLayout;
  ofFeatures_.push_back(classes);
  row->addWidget(classes);
  row->addWidget(tests_.back(), 1);
  page.addLayout(row);
  connect(classes, &QPushButton::clicked, this, &LayerSheet::classify);
}

// In the table, too.
QString LayerSheet::telling(ClassCounts const& counts, EntryTable& table) {
  QLocale const locale;
  if (table.entries().rowCount() == static_cast<int>(counts.counts().size()))
    table.entries().setCounts(QVector<qint64>(counts.counts().begin(), counts.counts().end()));
  QString const features = tr("Features: %1.").arg(locale.toString(counts.features()));
  if (counts.others() == 0) return features;
  return features + QLatin1Char(' ') + tr("In no class: %1.").arg(locale.toString(counts.others()));
}

// The first row is chosen, and what holds fields is open, but no symbol.
void LayerSheet::begin(PropertySheet& sheet) {
  QAbstractItemModel const& rows = *sheet.view().model();
  for (int i = 0; i < rows.rowCount(); ++i) {
    QModelIndex const row = rows.index(i, PropertyModel::ValueColumn);
    QModelIndex const field = sheet.model().indexOf(row.data(PropertyModel::PathRole).toStringList());
    sheet.view().setExpanded(row.siblingAtColumn(0), !sheet.model().isSymbol(field));
  }
  sheet.view().setCurrentIndex(rows.index(0, PropertyModel::ValueColumn));
}

void LayerSheet::showLayer(SysCarto::LayerRow const& row, QString const& tab) {
  finishTyping();
  if (!(row_ == row)) {
    row_ = row;
    things_ = {SysCarto::Editable::layer(row.map, row.layer)};
    changes_.forget();
    forgetCounts();
    tell({}, false);
    for (Tab const& one : tabs_) {
      one.sheet->show(one.fields.get());
      begin(*one.sheet);
    }
  }
  if (!tab.isEmpty()) pages_->setCurrentWidget(pages_->findChild<QWidget*>(tab));
  follow();
  show();
  raise();
  activateWindow();
}

SysUtility::_ptr_t<SysCarto::VectorLayer> LayerSheet::vector() const {
  return SysUtility::ptr_cast<SysCarto::VectorLayer>(row_.layer);
}

// What a raster has of it, too.
SysCarto::SourceSettings LayerSheet::source() const {
  if (auto const features = vector()) return features->source();
  auto const raster = SysUtility::ptr_cast<SysCarto::RasterLayer>(row_.layer);
  auto const own = raster ? raster->source() : SysCarto::RasterSourceSettings();
  return {own.file, own.layer, {}, own.coordinateSystem};
}

QString LayerSheet::folder() const {
  return QFileInfo(session_.path().isEmpty() ? source().file : session_.path()).absolutePath();
}

QVector<SheetField> LayerSheet::fields() { return SysCarto::Editable::fields(session_.document(), things_).value(0); }

QStringList LayerSheet::attributes() const { return things_.isEmpty() ? QStringList() : things_.first()->attributes(); }

QStringList LayerSheet::namesFor(QStringList const& path) const {
  return path == layerPath ? facts_->layerNames() : QStringList();
}

bool LayerSheet::canChoose(SysUtility::TextKind kind) const {
  return kind == SysUtility::TextKind::CoordinateSystem || kind == SysUtility::TextKind::Condition;
}

std::optional<QString> LayerSheet::choose(QStringList const& path, QString const& now, QWidget* parent) {
  return chooseTextOf(session_.document(), row_, path, now, parent);
}

QString LayerSheet::set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) {
  QStringList warnings;
  QString const problem = changes_.set(things_, path, value, joining, warnings);
  tell(warnings, false);
  return problem;
}

// A raster has no tables and labels, and nothing to count. Ctrl+Tab would also come to what is only hidden.
void LayerSheet::showFitting() {
  bool const areFeatures = static_cast<bool>(vector());
  for (size_t i = 0; i < tabs_.size(); ++i) {
    bool const fits = areFeatures || tabs_[i].sheet->model().rowCount() > 0;
    pages_->setTabVisible(static_cast<int>(i), fits);
    pages_->setTabEnabled(static_cast<int>(i), fits);
  }
  for (QWidget* const widget : ofFeatures_) widget->setVisible(areFeatures);
  for (TestBar* const test : tests_) test->setVisible(areFeatures);
}

// The layer may have gone, and then there is nothing to show.
void LayerSheet::follow() {
  if (!row_.layer) return;
  if (!LayerActions::isThere(session_.document(), row_)) {
    row_ = {};
    things_.clear();
    for (Tab const& tab : tabs_) tab.sheet->show(nullptr);
    return reject();
  }
  setWindowTitle(tr("Layer “%1”").arg(row_.layer->GetName()));
  opacity_->setPercent(SysCarto::LayerHost::effects(*row_.layer).opacityPercent);
  facts_->show(source());
  showFitting();
  QJsonObject const now = SysUtility::wholeObject(fields());
  if (now != tested_) forgetCounts();
  tested_ = now;
  refreshTab();
}

void LayerSheet::forgetCounts() {
  for (TestBar* const test : tests_) test->clear();
  for (Tab const& tab : tabs_) tab.table->entries().setCounts({});
}

void LayerSheet::refreshTab() {
  if (pages_->currentIndex() >= static_cast<int>(tabs_.size()) || !row_.layer) return;
  Tab const& tab = tabs_[static_cast<size_t>(pages_->currentIndex())];
  if (!tab.table->isEditing()) tab.sheet->refresh();
  bool hasRows = false;
  for (int i = 0; i < tab.sheet->model().rowCount(); ++i)
    hasRows = hasRows || !tab.sheet->model().row(tab.sheet->model().index(i, 0)).isList();
  tab.sheet->setVisible(hasRows);
}

bool LayerSheet::isEditing() const {
  return std::any_of(tabs_.begin(), tabs_.end(),
                     [](Tab const& tab) { return tab.sheet->isEditing() || tab.table->isEditing(); });
}

void LayerSheet::finishTyping() {
  for (Tab const& tab : tabs_) {
    tab.sheet->finish();
    tab.table->finish();
  }
}

void LayerSheet::done(int result) {
  if (row_.layer) finishTyping();
  forgetCounts();
  QDialog::done(result);
}

void LayerSheet::chooseFor(QStringList const& path, QString const& now) {
  auto const chosen = choose(path, now, this);
  if (chosen) give(path, *chosen, QString());
}

void LayerSheet::give(QStringList const& path, QJsonValue const& value, QString const& joining) {
  QString const problem = set(
      path, [&](QJsonValue const&) { return value; }, joining);
  if (!problem.isEmpty()) tell({problem}, true);
}

void LayerSheet::classify() {
  QString const told = LayerClasses::ask(session_.document(), things_.value(0), this);
  tell(told.isEmpty() ? QStringList() : QStringList(told), false);
}

// A table, or for −1 another one. Those before it may have the key.
void LayerSheet::join(int row) {
  if (!vector()) return;
  auto source = vector()->source();
  auto const all = source.joins;
  source.joins.resize(row < 0 ? all.size() : static_cast<size_t>(row));
  std::optional<TableJoin> chosen;
  if (row < 0) {
    chosen = askForJoin(source, folder(), this);
  } else {
    JoinDialog dialog(source, all[static_cast<size_t>(row)], folder(), this);
    if (dialog.exec() == QDialog::Accepted) chosen = dialog.join();
  }
  if (!chosen) return;
  QStringList warnings;
  QString const problem = giveJoin(session_.document(), row_, *chosen, row, warnings);
  tell(problem.isEmpty() ? warnings : QStringList(problem), !problem.isEmpty());
}

void LayerSheet::tell(QStringList const& sentences, bool isProblem) {
  QPalette colors = palette();
  if (isProblem) colors.setColor(QPalette::WindowText, SysAdapterUI::problemColor(colors));
  told_->setPalette(colors);
  told_->setText(sentences.join(QLatin1Char('\n')));
  told_->setVisible(!sentences.isEmpty());
}
