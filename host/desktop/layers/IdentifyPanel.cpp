#include "IdentifyPanel.h"

#include "FeatureHighlight.h"
#include "LayerActions.h"

#include "host/SysCarto/maps/LayerData.h"

#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"
#include "host/desktop/OwnKeys.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QTreeWidget>

#include <algorithm>

namespace {

constexpr int openFeatures = 3;  // more would push each other away
constexpr int nameWidthPx = 120;

QString degreesText(double degrees, char const* positive, char const* negative) {
  return QLocale().toString(std::abs(degrees), 'f', 5) + QStringLiteral("° ") +
         IdentifyPanel::tr(degrees < 0 ? negative : positive);
}

QString shown(QVariant const& value) {
  if (value.isNull()) return QStringLiteral("NULL");
  if (value.type() != QVariant::Double) return value.toString();
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

}  // namespace

IdentifyPanel::IdentifyPanel(DocumentSession& session, DocumentViews& views, QWidget* parent)
    : QDockWidget(tr("Features"), parent), session_(session), views_(views), tree_(new QTreeWidget(this)) {
  setObjectName(QStringLiteral("dockWidget_Identify"));
  tree_->setObjectName(QStringLiteral("treeWidget_Identify"));
  tree_->setAccessibleName(tr("Features at a place of the map"));
  tree_->setColumnCount(2);
  tree_->setHeaderLabels({tr("Field"), tr("Value")});
  tree_->setFrameShape(QFrame::NoFrame);
  tree_->setAlternatingRowColors(true);
  tree_->header()->resizeSection(0, nameWidthPx);
  tree_->installEventFilter(this);
  setWidget(tree_);
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this] { mark(false); });
  connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    auto const* const feature = featureOf(item);
    if (feature && !item->parent()) zoomTo(*feature);
  });
  connect(this, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
    if (!isVisible && isHidden() && found_.map) clear();
  });
}

IdentifyPanel::~IdentifyPanel() = default;

void IdentifyPanel::clear() {
  found_ = {};
  tree_->clear();
  views_.highlight().clear();
}

void IdentifyPanel::follow() {
  if (!found_.map) return;
  QList<SysUtility::_ptr_t<SysCarto::Map>> maps;
  session_.document().GetMaps(maps);
  auto const layers = found_.map->GetLayers();
  bool const isThere = maps.contains(found_.map) &&
                       std::all_of(found_.features.begin(), found_.features.end(),
                                   [&](Identified::Feature const& feature) { return layers.contains(feature.layer); });
  if (!isThere) clear();
}

void IdentifyPanel::zoomTo(Identified::Feature const& feature) {
  auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(feature.layer);
  auto const box = vector ? FeatureHighlight::boxOf(*vector, {feature.id}) : SysCarto::boxOf(*feature.layer);
  QString const problem = LayerActions::zoomTo(*session_.document().GetPageLayout(), *found_.map, box);
  if (!problem.isEmpty()) emit told(problem);
}

void IdentifyPanel::show(Identified const& found) {
  QSignalBlocker const quiet(tree_);
  tree_->clear();
  found_ = found;
  addPlace();
  for (QString const& problem : qAsConst(found_.problems)) {
    auto* const row = new QTreeWidgetItem(tree_, {problem});
    row->setFirstColumnSpanned(true);
    row->setToolTip(0, problem);
    emit told(problem);
  }
  for (int i = 0; i < found_.features.size(); ++i) addFeature(i);
  if (!found_.isAll) new QTreeWidgetItem(tree_, {tr("There are more features here.")});
  QDockWidget::show();
  raise();
  auto* const first = tree_->topLevelItem(found_.features.isEmpty() ? 0 : 1 + found_.problems.size());
  tree_->setCurrentItem(first);
  tree_->scrollToItem(first, QAbstractItemView::PositionAtTop);
  mark(true);
}

void IdentifyPanel::addPlace() {
  QLocale const locale;
  auto* const place = new QTreeWidgetItem(tree_, {tr("Place"), found_.map->GetName()});
  new QTreeWidgetItem(place, {QStringLiteral("x"), locale.toString(found_.place.x(), 'f', 2)});
  new QTreeWidgetItem(place, {QStringLiteral("y"), locale.toString(found_.place.y(), 'f', 2)});
  if (found_.degrees) {
    new QTreeWidgetItem(place, {tr("Longitude"), degreesText(found_.degrees->x(), QT_TR_NOOP("E"), QT_TR_NOOP("W"))});
    new QTreeWidgetItem(place, {tr("Latitude"), degreesText(found_.degrees->y(), QT_TR_NOOP("N"), QT_TR_NOOP("S"))});
  }
  place->setExpanded(true);
  if (found_.features.isEmpty() && found_.problems.isEmpty()) new QTreeWidgetItem(tree_, {tr("No features here")});
}

void IdentifyPanel::addFeature(int number) {
  Identified::Feature const& feature = found_.features[number];
  auto* const item = new QTreeWidgetItem(tree_, {feature.layer->GetName(), feature.label});
  QFont bold = item->font(0);
  bold.setBold(true);
  item->setFont(0, bold);
  item->setFont(1, bold);
  item->setData(0, Qt::UserRole, number);
  for (auto const& field : feature.fields) {
    auto* const row = new QTreeWidgetItem(item, {field.first, shown(field.second)});
    row->setToolTip(1, row->text(1));
    if (field.second.isNull()) row->setForeground(1, palette().brush(QPalette::Disabled, QPalette::Text));
  }
  item->setExpanded(number < openFeatures);
}

Identified::Feature const* IdentifyPanel::featureOf(QTreeWidgetItem const* item) const {
  while (item && item->parent()) item = item->parent();
  QVariant const number = item ? item->data(0, Qt::UserRole) : QVariant();
  return number.isValid() && number.toInt() < found_.features.size() ? &found_.features[number.toInt()] : nullptr;
}

void IdentifyPanel::mark(bool flashes) {
  auto const* const feature = featureOf(tree_->currentItem());
  auto const vector = feature ? SysUtility::ptr_cast<SysCarto::VectorLayer>(feature->layer) : nullptr;
  if (vector)
    views_.highlight().show({found_.map, vector, {feature->id}}, flashes);
  else
    views_.highlight().clear();
}

bool IdentifyPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
    return QDockWidget::eventFilter(watched, event);
  auto const& key = *static_cast<QKeyEvent*>(event);
  bool const isOverride = event->type() == QEvent::ShortcutOverride, copies = key.matches(QKeySequence::Copy);
  if (isOverride && isForRows(key)) event->accept();
  if (!isOverride && copies && tree_->currentItem()) QApplication::clipboard()->setText(tree_->currentItem()->text(1));
  return isOverride || copies || QDockWidget::eventFilter(watched, event);
}
