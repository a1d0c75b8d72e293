#include "ElementModel.h"

#include "Icons.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/ElementFields.h"
#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/elements/TextElement.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysFramework/HostAccess.h>

#include <QBrush>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>
#include <QSet>

#include <algorithm>

using SysCarto::Editable;
using SysCarto::Element;
using SysCarto::ElementHandle;
using SysCarto::GroupElement;
using SysUtility::_ptr_t;

namespace {

namespace ElementType = SysCarto::ElementType;
namespace SurroundKind = SysCarto::SurroundKind;
using Elements = QList<_ptr_t<Element>>;

constexpr int maxShown = 60;  // letters of a text

// The topmost first.
Elements membersOf(Element const& element) {
  auto const* const group = dynamic_cast<GroupElement const*>(&element);
  Elements members = group ? group->GetElements() : Elements();
  std::reverse(members.begin(), members.end());
  return members;
}

Elements elementsOf(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  Elements elements = layout ? layout->GetGraphicsContainer()->GetElements() : Elements();
  std::reverse(elements.begin(), elements.end());
  return elements;
}

struct KindIcon {
  int kind;
  char const* icon;
};
constexpr KindIcon kindIcons[] = {{ElementType::Marker, "insert-marker"},
                                  {ElementType::Line, "insert-line"},
                                  {ElementType::Polygon, "insert-polygon"},
                                  {ElementType::Rectangle, "insert-rectangle"},
                                  {ElementType::Ellipse, "insert-ellipse"},
                                  {ElementType::Text, "insert-text"},
                                  {ElementType::Group, "group"},
                                  {ElementType::DataFrame, "data-frame"},
                                  {ElementType::MapSurroundFrame, "legend"},
                                  {ElementType::Picture, "insert-picture"}};
constexpr KindIcon surroundIcons[] = {{SurroundKind::Legend, "legend"},
                                      {SurroundKind::ScaleLine, "scale-bar"},
                                      {SurroundKind::ScaleText, "scale-text"},
                                      {SurroundKind::NorthArrow, "north-arrow"}};

template <std::size_t count>
QString iconFor(KindIcon const (&table)[count], int kind) {
  for (KindIcon const& row : table)
    if (row.kind == kind) return QLatin1String(row.icon);
  return QString();
}

QString kindIconOf(Element const& element) {
  auto const* const frame = dynamic_cast<SysCarto::MapSurroundFrame const*>(&element);
  auto const surround = frame ? frame->GetMapSurround() : nullptr;
  QString const icon = surround ? iconFor(surroundIcons, surround->kind) : QString();
  return icon.isEmpty() ? iconFor(kindIcons, element.GetType()) : icon;
}

}  // namespace

// Those below are made when they are first asked for.
struct ElementModel::Node {
  _ptr_t<Element> element;
  Node* parent = nullptr;
  int row = 0;
  bool isOpened = false;
  Nodes nodes;

  void add(_ptr_t<Element> const& one) {
    nodes.push_back(std::make_unique<Node>());
    nodes.back()->element = one;
    nodes.back()->parent = this;
    nodes.back()->row = static_cast<int>(nodes.size()) - 1;
  }
  void open() {
    if (isOpened) return;
    isOpened = true;
    for (auto const& member : membersOf(*element)) add(member);
  }
};

ElementModel::ElementModel(SysCarto::MapDocument const& document, QObject* parent)
    : QAbstractItemModel(parent), document_(document), root_(std::make_unique<Node>()) {
  root_->isOpened = true;
}
ElementModel::~ElementModel() = default;

ElementModel::Node* ElementModel::nodeOf(QModelIndex const& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

ElementModel::Nodes& ElementModel::below(QModelIndex const& parent) const {
  Node* const node = nodeOf(parent);
  node->open();
  return node->nodes;
}

// Rows at both ends that show the same elements as before stay, so that little moves in the view.
bool ElementModel::follow() {
  Elements const now = elementsOf(document_);
  Nodes const& shown = root_->nodes;
  int const before = static_cast<int>(shown.size());
  auto const isSame = [&](int row, int then) { return shown[row]->element->GetHandle() == now[then]->GetHandle(); };
  int first = 0, same = 0;
  int const shorter = std::min(before, now.size());
  while (first < shorter && isSame(first, first)) ++first;
  while (same < shorter - first && isSame(before - 1 - same, now.size() - 1 - same)) ++same;
  bool isOther = first < before || first < now.size();
  if (isOther) replaceRows(first, before - first - same, now.mid(first, now.size() - first - same));
  for (int row = 0; row < now.size(); ++row) {
    if (shown[row]->element == now[row]) continue;
    isOther = true;
    update(index(row, 0), *shown[row], now[row]);
  }
  return isOther;
}

void ElementModel::replaceRows(int first, int count, Elements const& elements) {
  Nodes& nodes = root_->nodes;
  if (count > 0) {
    beginRemoveRows({}, first, first + count - 1);
    nodes.erase(nodes.begin() + first, nodes.begin() + first + count);
    number();
    endRemoveRows();
  }
  if (elements.isEmpty()) return;
  beginInsertRows({}, first, first + elements.size() - 1);
  int const end = static_cast<int>(nodes.size());
  for (auto const& element : elements) root_->add(element);
  std::rotate(nodes.begin() + first, nodes.begin() + end, nodes.end());
  number();
  endInsertRows();
}

void ElementModel::number() {
  rows_.clear();
  int row = 0;
  for (auto const& node : root_->nodes) {
    rows_.insert(node->element->GetHandle(), row);
    node->row = row++;
  }
}

// Another object in the same place: members keep their rows where there are as many.
void ElementModel::update(QModelIndex const& at, Node& node, _ptr_t<Element> const& element) {
  node.element = element;
  Elements const members = node.isOpened ? membersOf(*element) : Elements();
  if (members.size() == static_cast<int>(node.nodes.size())) {
    for (int i = 0; i < members.size(); ++i) update(index(i, 0, at), *node.nodes[i], members[i]);
  } else {
    if (!node.nodes.empty()) {
      beginRemoveRows(at, 0, static_cast<int>(node.nodes.size()) - 1);
      node.nodes.clear();
      endRemoveRows();
    }
    if (!members.isEmpty()) {
      beginInsertRows(at, 0, members.size() - 1);
      for (auto const& member : members) node.add(member);
      endInsertRows();
    }
  }
  emit dataChanged(at, at.siblingAtColumn(columns - 1));
}

ElementHandle ElementModel::handleOf(QModelIndex const& index) const {
  return index.isValid() ? nodeOf(index)->element->GetHandle() : 0;
}

QVector<int> ElementModel::pathOf(QModelIndex const& group) const {
  QVector<int> path;
  for (Node const* node = nodeOf(group); node != root_.get(); node = node->parent)
    path.prepend(node->parent == root_.get() ? node->element->GetHandle() : placeOf(*node));
  return path;
}

QModelIndex ElementModel::groupAt(QVector<int> const& path) const {
  QModelIndex group;
  for (int const step : path) group = index(group.isValid() ? rowCount(group) - 1 - step : rowOf(step), 0, group);
  return group;
}

// Among the members of its group, from below.
int ElementModel::placeOf(Node const& node) { return static_cast<int>(node.parent->nodes.size()) - 1 - node.row; }

QModelIndex ElementModel::index(int row, int column, QModelIndex const& parent) const {
  auto const& nodes = below(parent);
  if (row < 0 || row >= static_cast<int>(nodes.size()) || column < 0 || column >= columns) return {};
  return createIndex(row, column, nodes[row].get());
}

QModelIndex ElementModel::parent(QModelIndex const& index) const {
  Node* const parent = index.isValid() ? nodeOf(index)->parent : nullptr;
  return parent && parent != root_.get() ? createIndex(parent->row, 0, parent) : QModelIndex();
}

int ElementModel::rowCount(QModelIndex const& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(below(parent).size());
}
int ElementModel::columnCount(QModelIndex const&) const { return columns; }

bool ElementModel::hasChildren(QModelIndex const& parent) const {
  if (!parent.isValid()) return !root_->nodes.empty();
  return parent.column() == 0 && nodeOf(parent)->element->GetType() == ElementType::Group;
}

QString ElementModel::textOf(Node const& node) const {
  Element const& element = *node.element;
  if (!element.GetName().isEmpty()) return element.GetName();
  auto const* const text = dynamic_cast<SysCarto::TextElement const*>(&element);
  QString const words = text ? text->text().left(maxShown).simplified() : QString();
  if (!words.isEmpty()) return words;
  QString const kind = SysCarto::captionOfKind(element);
  return element.GetHandle() > 0 ? QStringLiteral("%1 #%2").arg(kind).arg(element.GetHandle()) : kind;
}

QVariant ElementModel::iconOf(Node const& node, int column) const {
  QString const name = column == HiddenColumn ? (SysCarto::ElementHost::isSwitchedOn(*node.element) ? "eye" : "eye-off")
                       : column == LockedColumn ? (SysCarto::isLocked(*node.element) ? "lock" : "")
                                                : kindIconOf(*node.element);
  if (name.isEmpty()) return {};
  auto const known = icons_.constFind(name);
  return known == icons_.constEnd() ? *icons_.insert(name, loadIcon(name)) : *known;
}

QVariant ElementModel::data(QModelIndex const& index, int role) const {
  if (!index.isValid()) return {};
  Node const& node = *nodeOf(index);
  bool const isName = index.column() == NameColumn;
  bool const isHidden = !SysCarto::ElementHost::isSwitchedOn(*node.element);
  switch (role) {
    case Qt::DisplayRole: return isName ? textOf(node) : QVariant();
    case Qt::EditRole: return isName ? node.element->GetName() : QVariant();
    case Qt::DecorationRole: return iconOf(node, index.column());
    case Qt::ForegroundRole:
      return isHidden ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      if (isName) return textOf(node);
      if (index.column() == HiddenColumn)
        return isHidden ? tr("Hidden; click, or press Space, to show it") : tr("Click, or press Space, to hide it");
      return SysCarto::isLocked(*node.element)
                 ? tr("Locked; click, or press Shift+Space, to unlock it")
                 : tr("Click, or press Shift+Space, to lock it: the mouse then leaves it alone");
    default: return {};
  }
}

QVariant ElementModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole && section == NameColumn) return tr("Elements");
  if (role == Qt::ToolTipRole && section == HiddenColumn) return tr("Hidden");
  if (role == Qt::ToolTipRole && section == LockedColumn) return tr("Locked");
  return {};
}

Qt::ItemFlags ElementModel::flags(QModelIndex const& index) const {
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.column() == NameColumn) flags |= Qt::ItemIsEditable;
  if (handleOf(index) > 0) flags |= Qt::ItemIsDragEnabled;
  return flags;
}

// A member is a field of its group.
bool ElementModel::set(Node const& node, char const* key, QJsonValue const& value) {
  QStringList path{QLatin1String(key)};
  Node const* outermost = &node;
  for (; outermost->parent != root_.get(); outermost = outermost->parent)
    path = QStringList{QStringLiteral("members"), QString::number(placeOf(*outermost))} + path;
  QStringList warnings;
  QString const problem = Editable::set(
      document_, {Editable::element(document_, outermost->element->GetHandle())}, path,
      [&](QJsonValue const&) { return value; }, warnings);
  if (!problem.isEmpty()) emit told(problem);
  return problem.isEmpty();
}

bool ElementModel::setData(QModelIndex const& index, QVariant const& value, int role) {
  if (role != Qt::EditRole || !index.isValid() || index.column() != NameColumn) return false;
  if (value.toString() == nodeOf(index)->element->GetName()) return true;
  return set(*nodeOf(index), "name", value.toString());
}

void ElementModel::toggle(QModelIndex const& index) {
  if (!index.isValid()) return;
  Node const& node = *nodeOf(index);
  if (index.column() == HiddenColumn) set(node, "hidden", SysCarto::ElementHost::isSwitchedOn(*node.element));
  if (index.column() == LockedColumn) set(node, "locked", !SysCarto::isLocked(*node.element));
}

QMimeData* ElementModel::mimeData(QModelIndexList const& indexes) const {
  QByteArrayList handles;
  for (QModelIndex const& index : indexes)
    if (index.column() == NameColumn) handles << QByteArray::number(handleOf(index));
  auto* const data = new QMimeData;
  data->setData(dragType(), handles.join(' '));
  return data;
}

bool ElementModel::canDropMimeData(QMimeData const* data, Qt::DropAction action, int, int,
                                   QModelIndex const& parent) const {
  return action == Qt::MoveAction && !parent.isValid() && data->hasFormat(dragType());
}

// The rows follow the elements when the step is done, so that the view has nothing to move.
bool ElementModel::dropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                                QModelIndex const& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) return false;
  QSet<ElementHandle> dragged;
  for (QByteArray const& handle : data->data(dragType()).split(' ')) dragged << handle.toInt();
  Elements const now = elementsOf(document_);
  Elements above, moved, beneath;
  for (int i = 0; i < now.size(); ++i)
    (dragged.contains(now[i]->GetHandle()) ? moved : row < 0 || i < row ? above : beneath) << now[i];
  Elements order = above + moved + beneath;
  if (moved.isEmpty() || order == now) return false;
  std::reverse(order.begin(), order.end());
  auto const layout = document_.GetPageLayout();
  {
    SysFramework::EditorOperation const operation(tr("Restack the selected elements"));
    static_cast<SysCarto::ElementContainer*>(layout->GetGraphicsContainer())->setElements(order);
  }
  layout->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  return false;
}
