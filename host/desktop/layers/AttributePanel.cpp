#include "AttributePanel.h"

#include "AttributeModel.h"
#include "LayerActions.h"
#include "ReadingProgress.h"

#include "host/SysAdapterUI/FieldText.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"
#include "host/desktop/OwnKeys.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

using SysUtility::_ptr_t;

namespace {

constexpr int mostCopied = 100000;         // rows
constexpr size_t mostChosenAgain = 10000;  // in a new order
constexpr int rowsForWidths = 100, leastWidthPx = 60, mostWidthPx = 320;

}  // namespace

AttributePanel::AttributePanel(DocumentSession& session, DocumentViews& views, QWidget* parent)
    : QDockWidget(tr("Attributes"), parent), session_(session), views_(views), model_(new AttributeModel(this)) {
  setObjectName(QStringLiteral("dockWidget_Attributes"));
  setWidget(build());
  connect(model_, &AttributeModel::progressed, this, &AttributePanel::showProgress);
  connect(model_, &AttributeModel::finished, this, &AttributePanel::settle);
  connect(model_, &AttributeModel::failed, this, &AttributePanel::showProblem, Qt::QueuedConnection);
  connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, &AttributePanel::keepChosen);
  connect(model_, &QAbstractItemModel::rowsInserted, this, &AttributePanel::showState);
  connect(this, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
    if (!isVisible && isHidden()) views_.highlight().clear();
  });
}

AttributePanel::~AttributePanel() = default;

QWidget* AttributePanel::build() {
  auto* const content = new QWidget(this);
  filter_ = new QLineEdit(content);
  filter_->setObjectName(QStringLiteral("lineEdit_AttributeFilter"));
  filter_->setPlaceholderText(tr("Filter, as in population > 1000000 AND name LIKE 'A%'"));
  filter_->setAccessibleName(tr("Filter"));
  filter_->setClearButtonEnabled(true);
  count_ = new QLabel(content);
  count_->setObjectName(QStringLiteral("label_AttributeCount"));
  zoom_ = new QToolButton(content);
  zoom_->setText(tr("Zoom to Chosen"));
  zoom_->setToolTip(tr("Show the chosen features on the map; a double click on a row does so, too"));
  problem_ = new QLabel(content);
  problem_->setObjectName(QStringLiteral("label_AttributeProblem"));
  problem_->setWordWrap(true);
  problem_->setTextFormat(Qt::PlainText);
  QPalette colors = problem_->palette();
  colors.setColor(QPalette::WindowText, SysAdapterUI::problemColor(colors));
  problem_->setPalette(colors);
  problem_->hide();
  table_ = new QTableView(content);
  table_->setObjectName(QStringLiteral("tableView_Attributes"));
  table_->setAccessibleName(tr("Attributes"));
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setWordWrap(false);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
  table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->setSortingEnabled(true);
  table_->installEventFilter(this);
  work_ = new QWidget(content);
  what_ = new QLabel(work_);
  progress_ = new QProgressBar(work_);
  auto* const cancel = new QToolButton(work_);
  cancel->setObjectName(QStringLiteral("toolButton_CancelAttributes"));
  cancel->setText(tr("Cancel"));
  auto* const workRow = new QHBoxLayout(work_);
  workRow->setContentsMargins(0, 0, 0, 0);
  workRow->addWidget(what_);
  workRow->addWidget(progress_, 1);
  workRow->addWidget(cancel);
  work_->hide();
  auto* const top = new QHBoxLayout;
  top->addWidget(filter_, 1);
  top->addWidget(count_);
  top->addWidget(zoom_);
  auto* const column = new QVBoxLayout(content);
  column->setContentsMargins(4, 4, 4, 4);
  column->addLayout(top);
  column->addWidget(problem_);
  column->addWidget(table_, 1);
  column->addWidget(work_);

  connect(filter_, &QLineEdit::returnPressed, this, &AttributePanel::takeFilter);
  connect(filter_, &QLineEdit::textChanged, this, [this](QString const& text) {
    if (text.isEmpty()) takeFilter();
  });
  connect(zoom_, &QToolButton::clicked, this, &AttributePanel::zoomToChosen);
  connect(table_, &QTableView::doubleClicked, this, &AttributePanel::zoomToChosen);
  connect(cancel, &QToolButton::clicked, model_, &AttributeModel::cancel);
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (isSettling_) return;
    chosen_.clear();
    views_.highlight().show({map_, layer_, chosen()});
    showState();
  });
  return content;
}

void AttributePanel::showLayer(_ptr_t<SysCarto::Map> const& map, _ptr_t<SysCarto::VectorLayer> const& layer) {
  show();
  raise();
  table_->setFocus();
  if (layer == layer_) return follow();
  map_ = map;
  layer_ = layer;
  chosen_.clear();
  open();
}

void AttributePanel::open() {
  QSignalBlocker const quiet(filter_);
  filter_->clear();
  views_.highlight().clear();
  table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  source_ = layer_ ? layer_->source() : SysCarto::SourceSettings();
  QString problem;
  if (layer_) {
    ReadingProgress progress(*window());
    problem = model_->open(source_, progress.watch());
    if (progress.wasStopped()) layer_ = nullptr;
  }
  if (!layer_) model_->close();
  setWindowTitle(layer_ ? tr("Attributes of “%1”").arg(layer_->GetName()) : tr("Attributes"));
  isSettling_ = false;
  showProblem(problem);
  table_->horizontalHeader()->setProperty("sized", false);
  widget()->setEnabled(static_cast<bool>(layer_));
  showState();
}

// The layer may have gone, with its map or alone, or have its data from elsewhere.
void AttributePanel::follow() {
  if (!layer_) return;
  QList<_ptr_t<SysCarto::Map>> maps;
  session_.document().GetMaps(maps);
  bool const isThere = maps.contains(map_) && map_->GetLayers().contains(layer_);
  if (!isThere) {
    map_ = nullptr;
    layer_ = nullptr;
    chosen_.clear();
    return open();
  }
  setWindowTitle(tr("Attributes of “%1”").arg(layer_->GetName()));
  if (!(source_ == layer_->source())) open();
}

void AttributePanel::takeFilter() {
  QString const problem = model_->setFilter(filter_->text());
  showProblem(problem);
}

void AttributePanel::showProblem(QString const& problem) {
  problem_->setText(problem);
  problem_->setVisible(!problem.isEmpty());
}

void AttributePanel::showProgress(QString const& what, double progress) {
  work_->show();
  what_->setText(what);
  progress_->setRange(0, progress < 0 ? 0 : 1000);
  progress_->setValue(static_cast<int>(1000 * progress));
}

void AttributePanel::keepChosen() {
  if (chosen_.empty()) chosen_ = chosen();
  isSettling_ = true;
}

// What was chosen is chosen again where it is now.
void AttributePanel::settle() {
  work_->hide();
  if (isSettling_ && chosen_.size() <= mostChosenAgain) {
    QItemSelection selection;
    for (int const row : model_->rowsOf(chosen_))
      selection.select(model_->index(row, 0), model_->index(row, model_->columnCount({}) - 1));
    table_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty()) table_->scrollTo(selection.first().topLeft());
  }
  if (isSettling_ && table_->selectionModel()->selection().isEmpty()) views_.highlight().clear();
  isSettling_ = false;
  chosen_.clear();
  showState();
}

void AttributePanel::showState() {
  QLocale const locale;
  size_t const count = chosen().size();
  QString const all = locale.toString(model_->rowCount({}));
  count_->setText(count == 0 ? tr("Features: %1").arg(all) : tr("%1 of %2 chosen").arg(locale.toString(count), all));
  zoom_->setEnabled(count > 0);
  auto* const header = table_->horizontalHeader();
  bool const isNew = header->count() > 0 && !header->property("sized").toBool() && model_->rowCount({}) > 0;
  if (!isNew) return;
  header->setResizeContentsPrecision(rowsForWidths);
  table_->resizeColumnsToContents();
  for (int i = 0; i < header->count(); ++i)
    header->resizeSection(i, qBound(leastWidthPx, header->sectionSize(i), mostWidthPx));
  header->setProperty("sized", true);
}

std::vector<qint64> AttributePanel::chosen() const {
  std::vector<qint64> ids;
  for (QItemSelectionRange const& range : table_->selectionModel()->selection())
    for (qint64 const id : model_->ids(range.top(), range.bottom())) ids.push_back(id);
  return ids;
}

void AttributePanel::zoomToChosen() {
  auto const ids = chosen();
  if (!layer_ || ids.empty()) return;
  auto const box = FeatureHighlight::boxOf(*layer_, ids);
  QString const problem = box.isEmpty() ? tr("The chosen features have no place on the map.")
                                        : LayerActions::zoomTo(*session_.document().GetPageLayout(), *map_, box);
  if (!problem.isEmpty()) emit told(problem);
}

bool AttributePanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
    return QDockWidget::eventFilter(watched, event);
  auto const& key = *static_cast<QKeyEvent*>(event);
  bool const isOverride = event->type() == QEvent::ShortcutOverride, copies = key.matches(QKeySequence::Copy);
  if (isOverride && isForRows(key)) event->accept();
  if (!isOverride && copies) copy();
  return isOverride || copies || QDockWidget::eventFilter(watched, event);
}

// Tabs between values, and a line for each row, as spreadsheets take them.
void AttributePanel::copy() {
  auto const rows = model_->rowsOf(chosen());
  if (rows.empty()) return;
  if (rows.size() > mostCopied)
    return emit told(tr("These are too many rows to be copied; choose no more than %1.").arg(mostCopied));
  QStringList lines;
  auto const clean = [](QString text) { return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).simplified(); };
  QStringList names;
  for (SysCarto::TableField const& field : model_->fields()) names << field.name;
  lines << names.join(QLatin1Char('\t'));
  for (int const row : rows) {
    QStringList cells;
    for (int column = 0; column < names.size(); ++column) {
      QModelIndex const cell = model_->index(row, column);
      cells << (cell.data(Qt::EditRole).isNull() ? QString() : clean(cell.data().toString()));
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
