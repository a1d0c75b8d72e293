#include "SystemChooser.h"

#include "FieldText.h"
#include "SystemModel.h"
#include "WorldMap.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/SystemDescription.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace SysAdapterUI {

using SysCarto::SystemCatalogue;
using SysCarto::SystemQuery;

namespace {

constexpr int keptRecent = 8;
constexpr int readingMs = 30, restMs = 60;
constexpr int codeWidthPx = 110, noteWidthPx = 150;
QString const recentKey = QStringLiteral("systems/recent");

QVector<SystemModel::Favourite> favouritesOf(SystemChoice const& choice) {
  QVector<SystemModel::Favourite> favourites;
  QStringList known;
  auto const add = [&](QString const& definition, QString const& note) {
    if (definition.isEmpty() || known.contains(definition, Qt::CaseInsensitive)) return;
    known << definition;
    favourites << SystemModel::Favourite{definition, note};
  };
  add(choice.now, SystemChooser::tr("the present one"));
  for (QString const& definition : choice.inUse) add(definition, SystemChooser::tr("in the document"));
  for (QString const& definition : QSettings().value(recentKey).toStringList())
    if (SysCarto::checkCoordinateSystem(definition).isEmpty()) add(definition, SystemChooser::tr("chosen lately"));
  return favourites;
}

void keepRecent(QString const& definition) {
  QSettings settings;
  QStringList recent = settings.value(recentKey).toStringList();
  recent.removeAll(definition);
  recent.prepend(definition);
  settings.setValue(recentKey, QStringList(recent.mid(0, keptRecent)));
}

QString factsOf(SysCarto::SystemDescription const& told) {
  QString const kind = told.isGeographic ? SystemChooser::tr("geographic") : SystemChooser::tr("projected");
  QString rows;
  auto const add = [&rows](QString const& caption, QString const& value) {
    if (!value.isEmpty())
      rows += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(caption, value.toHtmlEscaped());
  };
  add(SystemChooser::tr("Code"), told.code);
  add(SystemChooser::tr("Kind"), kind);
  add(SystemChooser::tr("Method"), told.method);
  add(SystemChooser::tr("Datum"), told.datum);
  add(SystemChooser::tr("Unit"), told.unit);
  add(SystemChooser::tr("Area"), told.area);
  bool const isNamed = !told.code.isEmpty() || told.name != QLatin1String("unknown");  // what PROJ calls a PROJ text
  QString const heading = isNamed ? QStringLiteral("<b>%1</b>").arg(told.name.toHtmlEscaped()) : QString();
  return QStringLiteral("%1<table>%2</table>").arg(heading, rows);
}

}  // namespace

SystemChooser::SystemChooser(SystemChoice const& choice, QWidget* parent)
    : QDialog(parent), choice_(choice), model_(new SystemModel(favouritesOf(choice), choice.none, this)) {
  setWindowTitle(tr("Coordinate System"));
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName(QStringLiteral("tabWidget_Systems"));
  tabs_->addTab(buildSearch(), tr("Find"));
  tabs_->addTab(buildDefinition(), tr("Write"));
  auto* const halves = new QSplitter(this);
  halves->addWidget(tabs_);
  halves->addWidget(buildFacts());
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  halves->setChildrenCollapsible(false);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &SystemChooser::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(halves, 1);
  layout->addWidget(buttons);
  resize(QSize(1240, 680).boundedTo(0.9 * screen()->availableSize()));

  world_->setExtent(choice.extent);
  connect(search_, &QLineEdit::textChanged, this, &SystemChooser::search);
  connect(kind_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &SystemChooser::search);
  connect(deprecated_, &QCheckBox::toggled, this, &SystemChooser::search);
  connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &SystemChooser::takeChosen);
  connect(list_, &QTreeView::doubleClicked, this, &SystemChooser::accept);
  connect(own_, &QPlainTextEdit::textChanged, this, &SystemChooser::takeChosen);
  connect(tabs_, &QTabWidget::currentChanged, this, &SystemChooser::takeChosen);
  connect(&reading_, &QTimer::timeout, this, [this] {
    SystemCatalogue::readAhead();
    if (!SystemCatalogue::isRead()) return;
    reading_.stop();
    search();
  });
  if (!SystemCatalogue::isRead()) reading_.start(readingMs);
  rest_.setSingleShot(true);
  rest_.setInterval(restMs);
  connect(&rest_, &QTimer::timeout, this, &SystemChooser::showFacts);
  search();
  search_->setFocus();
}

SystemChooser::~SystemChooser() = default;

QWidget* SystemChooser::buildSearch() {
  auto* const page = new QWidget(this);
  search_ = new QLineEdit(page);
  search_->setObjectName(QStringLiteral("lineEdit_Search"));
  search_->setPlaceholderText(tr("Name, code or area, as in “utm 33” or “germany”"));
  search_->setAccessibleName(tr("Search for a coordinate system"));
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  kind_ = new QComboBox(page);
  kind_->setObjectName(QStringLiteral("comboBox_Kind"));
  kind_->setAccessibleName(tr("Kind"));
  kind_->addItems({tr("All kinds"), tr("Projected"), tr("Geographic")});
  deprecated_ = new QCheckBox(tr("Deprecated, too"), page);
  deprecated_->setObjectName(QStringLiteral("checkBox_Deprecated"));
  count_ = new QLabel(page);
  list_ = new QTreeView(page);
  list_->setObjectName(QStringLiteral("treeView_Systems"));
  list_->setAccessibleName(tr("Coordinate systems"));
  list_->setModel(model_);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setTextElideMode(Qt::ElideMiddle);  // many names differ in their ends alone
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(SystemModel::NameColumn, QHeaderView::Stretch);
  list_->header()->resizeSection(SystemModel::CodeColumn, codeWidthPx);
  list_->header()->resizeSection(SystemModel::NoteColumn, noteWidthPx);
  auto* const filters = new QHBoxLayout;
  filters->addWidget(kind_);
  filters->addWidget(deprecated_);
  filters->addStretch(1);
  filters->addWidget(count_);
  auto* const column = new QVBoxLayout(page);
  column->addWidget(search_);
  column->addLayout(filters);
  column->addWidget(list_, 1);
  return page;
}

QWidget* SystemChooser::buildDefinition() {
  auto* const page = new QWidget(this);
  own_ = new QPlainTextEdit(choice_.now, page);
  own_->setObjectName(QStringLiteral("plainTextEdit_Definition"));
  own_->setAccessibleName(tr("Definition"));
  own_->setPlaceholderText(QStringLiteral("+proj=laea +lat_0=52 +lon_0=10 +datum=WGS84"));
  own_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  own_->setTabChangesFocus(true);
  problem_ = new QLabel(page);
  problem_->setObjectName(QStringLiteral("label_Problem"));
  problem_->setWordWrap(true);
  problem_->setTextFormat(Qt::PlainText);
  QPalette colors = problem_->palette();
  colors.setColor(QPalette::WindowText, problemColor(colors));
  problem_->setPalette(colors);
  auto* const column = new QVBoxLayout(page);
  column->addWidget(new QLabel(tr("A PROJ text, WKT or a code:"), page));
  column->addWidget(own_, 1);
  column->addWidget(problem_);
  return page;
}

QWidget* SystemChooser::buildFacts() {
  auto* const side = new QWidget(this);
  world_ = new WorldMap(side);
  facts_ = new QLabel(side);
  facts_->setObjectName(QStringLiteral("label_Facts"));
  facts_->setWordWrap(true);
  facts_->setTextFormat(Qt::RichText);
  facts_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  wkt_ = new QPlainTextEdit(side);
  wkt_->setAccessibleName(tr("Definition as WKT"));
  wkt_->setReadOnly(true);
  wkt_->setLineWrapMode(QPlainTextEdit::NoWrap);
  wkt_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(world_);
  column->addWidget(facts_);
  column->addWidget(wkt_, 1);
  return side;
}

void SystemChooser::search() {
  SystemQuery const query{search_->text(), static_cast<SystemQuery::Kind>(kind_->currentIndex()),
                          deprecated_->isChecked(), choice_.extent};
  model_->search(query);
  count_->setText(SystemCatalogue::isRead() ? tr("%1 found").arg(model_->found()) : tr("Reading…"));
  bool const isUnasked = search_->text().trimmed().isEmpty();
  select(isUnasked ? std::max(0, model_->rowOf(choice_.now)) : 0);
}

void SystemChooser::select(int row) {
  list_->setCurrentIndex(model_->index(row, 0));
  takeChosen();
}

QString SystemChooser::definition() const {
  if (tabs_->currentIndex() == 1) return own_->toPlainText().trimmed();
  QModelIndex const current = list_->currentIndex();
  return current.isValid() ? model_->definition(current.row()) : QString();
}

// Whether it can be taken is known at once; what it is follows when nobody types any more.
void SystemChooser::takeChosen() {
  QString const problem = SysCarto::checkCoordinateSystem(definition());
  bool const isThere = tabs_->currentIndex() == 1 || list_->currentIndex().isValid();
  problem_->setText(problem.isEmpty() ? problem : tr("This %1.").arg(problem));
  ok_->setEnabled(isThere && problem.isEmpty());
  rest_.start();
}

void SystemChooser::showFacts() {
  auto const told = SysCarto::describeSystem(definition());
  world_->setUse(told ? told->use : SysCarto::GlobeBox());
  facts_->setText(told ? factsOf(*told) : ok_->isEnabled() ? choice_.none.toHtmlEscaped() : QString());
  wkt_->setPlainText(told ? told->wkt : QString());
}

// The list goes along while one types.
bool SystemChooser::eventFilter(QObject* watched, QEvent* event) {
  auto const* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
  int const step = !key ? 0 : key->key() == Qt::Key_Down ? 1 : key->key() == Qt::Key_Up ? -1 : 0;
  if (step == 0) return QDialog::eventFilter(watched, event);
  int const row = list_->currentIndex().row() + step;
  if (row >= 0 && row < model_->rowCount()) select(row);
  return true;
}

void SystemChooser::accept() {
  if (!ok_->isEnabled()) return;
  if (!definition().isEmpty()) keepRecent(definition());
  QDialog::accept();
}

std::optional<QString> SystemChooser::choose(SystemChoice const& choice, QWidget* parent) {
  SystemChooser dialog(choice, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.definition();
}

}  // namespace SysAdapterUI
