#include "ContentsModel.h"

#include "Swatch.h"

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/PageLayout.h>

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QStyle>
#include <QUrl>

#include <algorithm>

using SysCarto::LayerEntry;
using SysCarto::LayerHost;
using SysCarto::LayerPlace;
using SysCarto::LayerRow;
using SysCarto::Map;
using SysCarto::problemOf;
using SysUtility::_ptr_t;

namespace SysAdapterUI {

namespace {

QList<_ptr_t<Map>> mapsOf(SysCarto::IKdxContents const* contents) {
  QList<_ptr_t<Map>> maps;
  auto const layout = contents ? contents->GetPageLayout() : nullptr;
  if (layout) layout->GetMaps(maps);
  return maps;
}

QString scaleText(double denominator) { return QStringLiteral("1:") + QLocale().toString(denominator, 'f', 0); }

// The denominators alone, rounded: there is little room beside a name.
QString shortText(double denominator) {
  auto const number = [](double value) { return QLocale().toString(value, 'g', 3); };
  if (denominator >= 1e6) return number(denominator / 1e6) + QLatin1Char('M');
  return denominator >= 1e4 ? number(denominator / 1e3) + QLatin1Char('k') : number(denominator);
}

QString shortRangeOf(SysCarto::Layer const& layer) {
  auto const scales = LayerHost::scales(layer);
  if (scales.min == 0 && scales.max == 0) return {};
  if (scales.min == 0) return QStringLiteral("< ") + shortText(scales.max);
  if (scales.max == 0) return QStringLiteral("> ") + shortText(scales.min);
  return QStringLiteral("%1–%2").arg(shortText(scales.min), shortText(scales.max));
}

QString percent(double share) { return QStringLiteral("%1 %").arg(static_cast<int>(share * 100)); }

QString asideOf(SysCarto::Layer const& layer) {
  auto const share = SysCarto::readShareOf(layer);
  if (!share) return shortRangeOf(layer);
  return *share > 0 ? percent(*share) : QStringLiteral("…");
}

// The larger scale first, as people write it.
QString rangeOf(SysCarto::Layer const& layer) {
  auto const scales = LayerHost::scales(layer);
  if (scales.min == 0 && scales.max == 0) return ContentsModel::tr("Shown at every scale");
  if (scales.min == 0) return ContentsModel::tr("Shown at scales larger than %1").arg(scaleText(scales.max));
  if (scales.max == 0) return ContentsModel::tr("Shown at scales smaller than %1").arg(scaleText(scales.min));
  return ContentsModel::tr("Shown between %1 and %2").arg(scaleText(scales.min), scaleText(scales.max));
}

// Whether both lists have the same rows, whatever these show.
bool isSame(LayerRow const& a, LayerRow const& b) { return a == b; }

}  // namespace

// Classes are made when they are first asked for, and each icon when it is first seen.
struct ContentsModel::Node {
  LayerRow row;
  Node* parent = nullptr;
  int place = 0;
  int symbolClass = -1;
  Nodes nodes;
  bool isOpened = true;
  quint64 look = 0;  // of the layer, when its classes and icon were made
  QList<SysCarto::LegendClass> classes;
  QVariant icon;

  Node* add(LayerRow const& of, int classNumber = -1) {
    nodes.push_back(std::make_unique<Node>());
    Node& node = *nodes.back();
    node.row = of;
    node.parent = this;
    node.place = static_cast<int>(nodes.size()) - 1;
    node.symbolClass = classNumber;
    return &node;
  }
  bool isClass() const { return symbolClass >= 0; }
  bool isLayer() const { return row.layer && !isClass(); }
  bool isGroup() const { return row.group && !row.layer; }
  bool isMap() const { return row.map && !row.layer && !row.group; }
  bool hasSwitch() const { return isLayer() || isGroup(); }
  bool isOn() const { return isGroup() ? row.group->isVisible() : LayerHost::isSwitchedOn(*row.layer); }

  // Of a layer; answers whether it looks otherwise than before.
  bool takeLook() {
    quint64 const now = LayerHost::look(*row.layer);
    if (now == look) return false;
    look = now;
    icon = {};
    classes.clear();
    if (!problemOf(*row.layer).isEmpty()) return true;
    SysCarto::WithoutWaiting const meanwhile;  // it looks otherwise once it is read
    for (auto const& one : row.layer->legendClasses())
      if (one.symbol) classes << one;
    return true;
  }
  bool hasClasses() const { return isLayer() && classes.size() > 1; }
  void open() {
    if (isOpened) return;
    isOpened = true;
    if (!hasClasses()) return;
    for (int i = 0; i < classes.size(); ++i) add(row, i);
  }
};

ContentsModel::ContentsModel(QObject* parent) : QAbstractItemModel(parent), root_(std::make_unique<Node>()) {}
ContentsModel::~ContentsModel() = default;

void ContentsModel::setContents(SysCarto::IKdxContents* contents) {
  contents_ = contents;
  beginResetModel();
  build();
  endResetModel();
}

void ContentsModel::add(Node& parent, std::vector<LayerEntry> const& entries) {
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {  // what is drawn last lies on top
    Node& node = *parent.add({parent.row.map, entry->group, entry->layer});
    known_.insert(node.row.thing(), &node);
    if (entry->group) add(node, entry->entries);
    if (!entry->layer) continue;
    node.takeLook();
    node.isOpened = false;
  }
}

void ContentsModel::build() {
  known_.clear();
  root_ = std::make_unique<Node>();
  for (auto const& map : mapsOf(contents_)) {
    Node& node = *root_->add({map});
    known_.insert(map.get(), &node);
    add(node, entriesOf(*map));
  }
  if (root_->nodes.empty()) root_->add({});
}

bool ContentsModel::follow() {
  struct Rows {
    QVector<LayerRow> rows;
    QVector<int> depths;
    void add(_ptr_t<Map> const& map, std::vector<LayerEntry> const& entries, int depth) {
      for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        rows.append({map, entry->group, entry->layer});
        depths << depth;
        add(map, entry->entries, depth + 1);
      }
    }
    void add(Node const& node, int depth) {
      for (auto const& inner : node.nodes) {
        if (inner->isClass() || !inner->row.map) continue;
        rows.append(inner->row);
        depths << depth;
        add(*inner, depth + 1);
      }
    }
  };
  Rows wanted, shown;
  for (auto const& map : mapsOf(contents_)) {
    wanted.rows.append({map});
    wanted.depths << 0;
    wanted.add(map, entriesOf(*map), 1);
  }
  shown.add(*root_, 0);
  bool const isOther =
      wanted.depths != shown.depths || !std::equal(wanted.rows.begin(), wanted.rows.end(), shown.rows.begin(), isSame);
  if (isOther) {
    beginResetModel();
    build();
    endResetModel();
    return true;
  }
  for (Node* const node : qAsConst(known_))
    if (node->isLayer()) followClasses(*node);
  tellAllChanged(*root_);
  return false;
}

// A signal is about the rows of one parent.
void ContentsModel::tellAllChanged(Node const& parent) {
  if (parent.nodes.empty()) return;
  Node* const last = parent.nodes.back().get();
  emit dataChanged(createIndex(0, 0, parent.nodes.front().get()), createIndex(last->place, 0, last));
  for (auto const& node : parent.nodes) tellAllChanged(*node);
}

void ContentsModel::followClasses(Node& layer) {
  bool const wasOpened = layer.isOpened;
  int const before = static_cast<int>(layer.nodes.size());
  if (!layer.takeLook()) return;
  QModelIndex const at = createIndex(layer.place, 0, &layer);
  if (before > 0) {
    beginRemoveRows(at, 0, before - 1);
    layer.nodes.clear();
    endRemoveRows();
  }
  layer.isOpened = !layer.hasClasses();
  if (!wasOpened || layer.isOpened) return;
  beginInsertRows(at, 0, layer.classes.size() - 1);
  layer.open();
  endInsertRows();
}

void ContentsModel::setFocus(_ptr_t<Map> const& map) {
  if (focus_ == map) return;
  focus_ = map;
  emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

ContentsModel::Node* ContentsModel::nodeOf(QModelIndex const& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

ContentsModel::Nodes& ContentsModel::below(QModelIndex const& parent) const {
  Node* const node = nodeOf(parent);
  node->open();
  return node->nodes;
}

LayerRow ContentsModel::rowAt(QModelIndex const& index) const {
  return index.isValid() ? nodeOf(index)->row : LayerRow();
}

QModelIndex ContentsModel::indexOf(LayerRow const& row) const {
  Node* const node = known_.value(row.thing());
  return node ? createIndex(node->place, 0, node) : QModelIndex();
}

bool ContentsModel::isClass(QModelIndex const& index) const { return index.isValid() && nodeOf(index)->isClass(); }

QModelIndex ContentsModel::index(int row, int column, QModelIndex const& parent) const {
  auto const& nodes = below(parent);
  if (row < 0 || row >= static_cast<int>(nodes.size()) || column != 0) return {};
  return createIndex(row, column, nodes[row].get());
}

QModelIndex ContentsModel::parent(QModelIndex const& index) const {
  Node* const parent = index.isValid() ? nodeOf(index)->parent : nullptr;
  return parent && parent != root_.get() ? createIndex(parent->place, 0, parent) : QModelIndex();
}

int ContentsModel::rowCount(QModelIndex const& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(below(parent).size());
}
int ContentsModel::columnCount(QModelIndex const&) const { return 1; }

bool ContentsModel::hasChildren(QModelIndex const& parent) const {
  if (parent.column() > 0) return false;
  Node const& node = *nodeOf(parent);
  return node.hasClasses() || !node.nodes.empty();
}

QString ContentsModel::textOf(Node const& node) const {
  if (node.isClass()) {
    QString const label = node.parent->classes.value(node.symbolClass).label;
    return label.isEmpty() ? tr("Other") : label;
  }
  if (node.row.layer) return node.row.layer->GetName();
  if (node.row.group) return node.row.group->name();
  return node.row.map ? node.row.map->GetName() : tr("No maps on this page");
}

// One symbol stands beside the layer's name; several have a row each. A layer that could not be read has a sign.
QVariant ContentsModel::iconOf(Node& node) const {
  if (node.icon.isValid()) return node.icon;
  if (node.isGroup()) return node.icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
  if (node.isLayer() && !problemOf(*node.row.layer).isEmpty())
    return node.icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
  auto const classes = node.isClass() ? node.parent->classes : node.classes;
  bool const isOne = node.isClass() || classes.size() == 1;
  auto const symbol = isOne ? classes.value(std::max(0, node.symbolClass)).symbol : nullptr;
  if (symbol) node.icon = swatch(*symbol, devicePixelRatio_);
  return node.icon;
}

bool ContentsModel::isOutOfScale(Node const& node) {
  return node.row.layer && !LayerHost::scales(*node.row.layer).contains(node.row.map->scale());
}

QString ContentsModel::toolTipOf(Node const& node) const {
  if (node.isMap()) return node.row.map == focus_ ? QString() : tr("Click to work on this map");
  if (!node.isLayer()) return {};
  QString const problem = problemOf(*node.row.layer);
  if (!problem.isEmpty()) return problem;
  if (auto const share = SysCarto::readShareOf(*node.row.layer)) return tr("%1 of it were read").arg(percent(*share));
  if (isOutOfScale(node))
    return tr("%1; the map is at %2").arg(rangeOf(*node.row.layer), scaleText(node.row.map->scale()));
  if (LayerHost::isSwitchedOn(*node.row.layer) && !node.row.layer->IsVisible()) return tr("A group hides it");
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(node.row.layer.get());
  auto const labels = vector && vector->IsAnnotationVisible() ? vector->labelCount() : SysCarto::LabelCount();
  if (labels.placed != labels.wanted)
    return tr("%1 of %2 labels found no place").arg(labels.wanted - labels.placed).arg(labels.wanted);
  QStringList const warnings = SysCarto::warningsOf(*node.row.layer);
  if (!warnings.isEmpty()) return warnings.first();
  auto const scales = LayerHost::scales(*node.row.layer);
  return scales.min > 0 || scales.max > 0 ? rangeOf(*node.row.layer) : QString();
}

// What the row shows by signs.
QString ContentsModel::spokenOf(Node const& node) const {
  QStringList parts{textOf(node)};
  if (node.isMap()) parts << (node.row.map == focus_ ? tr("map with the focus") : tr("map"));
  if (node.isGroup()) parts << tr("group");
  if (node.hasSwitch()) parts << (node.isOn() ? tr("shown") : tr("hidden"));
  QString const more = toolTipOf(node);
  if (node.isLayer() && !more.isEmpty()) parts << more;
  return parts.join(QStringLiteral(", "));
}

bool ContentsModel::isReading() const {
  return std::any_of(known_.begin(), known_.end(),
                     [](Node const* node) { return node->isLayer() && SysCarto::readShareOf(*node->row.layer); });
}

QVariant ContentsModel::data(QModelIndex const& index, int role) const {
  if (!index.isValid()) return {};
  Node& node = *nodeOf(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return textOf(node);
    case AsideRole: return node.isLayer() ? asideOf(*node.row.layer) : QString();
    case Qt::DecorationRole: return iconOf(node);
    case Qt::CheckStateRole:
      if (!node.hasSwitch()) return {};
      return node.isOn() ? Qt::Checked : Qt::Unchecked;
    case Qt::FontRole: {
      QFont font = QApplication::font("QTreeView");
      font.setBold(node.isMap() && node.row.map == focus_);
      return font;
    }
    case Qt::ForegroundRole: {
      bool const isGrey = !node.row.map || isOutOfScale(node) || (node.row.layer && !node.row.layer->IsVisible());
      return isGrey ? QVariant(QApplication::palette().brush(QPalette::Disabled, QPalette::Text)) : QVariant();
    }
    case Qt::ToolTipRole: return toolTipOf(node);
    case Qt::AccessibleTextRole: return spokenOf(node);
    default: return {};
  }
}

bool ContentsModel::setData(QModelIndex const& index, QVariant const& value, int role) {
  if (!index.isValid()) return false;
  Node const& node = *nodeOf(index);
  if (role == Qt::EditRole) {
    QString const name = value.toString();
    if (name != textOf(node)) emit renameWanted(node.row, name);
    return true;
  }
  if (role != Qt::CheckStateRole || !node.hasSwitch()) return false;
  bool const isOn = value.toInt() == Qt::Checked;
  if (node.isGroup())
    SysCarto::MapSteps::setVisible(*node.row.group, isOn);
  else
    SysCarto::MapSteps::setVisible(*node.row.layer, isOn);
  return true;
}

Qt::ItemFlags ContentsModel::flags(QModelIndex const& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Node const& node = *nodeOf(index);
  if (!node.row.map) return Qt::NoItemFlags;
  if (node.isClass()) return Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
  if (node.hasSwitch()) flags |= Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled;
  if (!node.isLayer()) flags |= Qt::ItemIsDropEnabled;
  return flags;
}

QMimeData* ContentsModel::mimeData(QModelIndexList const& indexes) const {
  QByteArrayList things;
  for (QModelIndex const& index : indexes)
    things << QByteArray::number(reinterpret_cast<quintptr>(rowAt(index).thing()));
  auto* const data = new QMimeData;
  data->setData(dragType(), things.join(' '));
  return data;
}

// On a map or a group it lies on top there. Between the classes of a layer there is no place.
LayerPlace ContentsModel::placeAt(int row, QModelIndex const& parent) const {
  Node const& node = *nodeOf(parent);
  if (!parent.isValid()) {  // between the maps: below the one above
    Node const* const map =
        root_->nodes.empty() ? nullptr : root_->nodes[std::max(0, std::min(row, rowCount()) - 1)].get();
    if (!map || !map->row.map) return {};
    return {map->row.map, nullptr, row <= 0 ? static_cast<int>(map->nodes.size()) : 0};
  }
  if (node.row.layer) return {};
  int const count = static_cast<int>(node.nodes.size());
  return {node.row.map, node.row.group, row < 0 ? count : count - row};
}

bool ContentsModel::canDropMimeData(QMimeData const* data, Qt::DropAction, int row, int,
                                    QModelIndex const& parent) const {
  return (data->hasFormat(dragType()) || data->hasUrls()) && placeAt(row, parent).map;
}

// The rows follow when the step is done, so that the view has nothing to move.
bool ContentsModel::dropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                                 QModelIndex const& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) return false;
  LayerPlace const place = placeAt(row, parent);
  if (!data->hasFormat(dragType())) {
    QStringList files;
    for (QUrl const& url : data->urls())
      if (url.isLocalFile()) files << url.toLocalFile();
    if (!files.isEmpty()) emit filesDropped(files, place);
    return false;
  }
  QVector<LayerRow> rows;
  for (QByteArray const& thing : data->data(dragType()).split(' '))
    if (Node const* const node =
            known_.value(reinterpret_cast<void const*>(static_cast<quintptr>(thing.toULongLong()))))
      if (!node->isMap()) rows << node->row;
  if (!rows.isEmpty()) emit rowsDropped(rows, place, action == Qt::CopyAction);
  return false;
}

}  // namespace SysAdapterUI
