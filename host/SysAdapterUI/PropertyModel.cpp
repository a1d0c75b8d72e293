#include "PropertyModel.h"

#include "ColorButton.h"
#include "FieldText.h"
#include "SymbolPreview.h"

#include "host/SysDisplay/SymbolFields.h"

#include <QApplication>
#include <QColor>
#include <QFontDatabase>
#include <QIcon>
#include <QJsonArray>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace SysAdapterUI {

using SysUtility::Choice;
using SysUtility::FieldInfo;
using SysUtility::NewValue;
using SysUtility::NumbersKind;
using SysUtility::SheetField;
using SysUtility::TextKind;
using Kind = FieldInfo::Kind;
using Part = PropertyPart;

namespace {

constexpr QSize swatchPx(32, 16);

QString translatedField(char const* text) { return QCoreApplication::translate("Fields", text); }

QIcon symbolIcon(SheetField const& field) {
  auto const symbol = SysDisplay::symbolOf(SysUtility::wholeValue(field).toObject());
  if (!symbol) return QIcon();
  double const ratio = qApp->devicePixelRatio();
  QPixmap picture(swatchPx * ratio);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  drawSymbolPreview(painter, picture.rect(), *symbol, ratio, false);
  painter.end();
  picture.setDevicePixelRatio(ratio);
  return picture;
}

// The row's own symbol, or that of what it holds: of a border, of an entry.
SheetField const* symbolIn(SheetField const& field) {
  if (field.info.kind != Kind::Object || !field.isPresent) return nullptr;
  if (SysDisplay::isSymbol(field.info.field)) return &field;
  for (SheetField const& inner : field.fields)
    if (inner.info.kind == Kind::Object && inner.isPresent && SysDisplay::isSymbol(inner.info.field)) return &inner;
  return nullptr;
}

}  // namespace

struct PropertyModel::Node {
  SheetField field;
  QStringList path;
  Part part = Part::Field;
  bool isEntry = false;
  Node* parent = nullptr;
  int place = 0;
  std::vector<std::unique_ptr<Node>> children;
  QString refused, problem;           // empty where nothing was refused
  mutable std::optional<QIcon> icon;  // of a symbol, once it was asked for

  // One that there is.
  bool isSymbol() const {
    return field.info.kind == Kind::Object && field.isPresent && SysDisplay::isSymbol(field.info.field);
  }

  Node& add(SheetField const& of, QStringList const& at) {
    children.push_back(std::make_unique<Node>());
    Node& child = *children.back();
    child.field = of;
    child.path = at;
    child.parent = this;
    child.place = static_cast<int>(children.size()) - 1;
    return child;
  }

  // The same rows, whatever their values.
  bool isShapedAs(Node const& other) const {
    auto const isSame = [](auto const& a, auto const& b) { return a->isShapedAs(*b); };
    return path == other.path && part == other.part && field.info.kind == other.field.info.kind &&
           field.info.field.caption == other.field.info.field.caption &&
           std::equal(children.begin(), children.end(), other.children.begin(), other.children.end(), isSame);
  }

  // What was refused stays.
  void takeValues(Node const& other) {
    if (icon && SysUtility::wholeValue(field) != SysUtility::wholeValue(other.field)) icon.reset();
    field = other.field;
    for (size_t i = 0; i < children.size(); ++i) children[i]->takeValues(*other.children[i]);
  }
};

QString PropertyModel::nameOf(Node const& node) {
  return QStringLiteral("%1#%2").arg(node.path.join(QLatin1Char('/'))).arg(static_cast<int>(node.part));
}

PropertyModel::PropertyModel(QObject* parent) : QAbstractItemModel(parent), root_(std::make_unique<Node>()) {}
PropertyModel::~PropertyModel() = default;

void PropertyModel::setSource(FieldSource* source) {
  source_ = source;
  beginResetModel();
  root_ = std::make_unique<Node>();
  if (source_) build(*root_, source_->fields());
  endResetModel();
}

void PropertyModel::refresh() {
  isStale_ = false;
  auto fresh = std::make_unique<Node>();
  if (source_) build(*fresh, source_->fields());
  if (fresh->isShapedAs(*root_)) {
    root_->takeValues(*fresh);
    auto const tell = [this](auto const& self, QModelIndex const& parent) -> void {
      int const count = rowCount(parent);
      if (count == 0) return;
      emit dataChanged(index(0, 0, parent), index(count - 1, ValueColumn, parent));
      for (int i = 0; i < count; ++i) self(self, index(i, 0, parent));
    };
    return tell(tell, {});
  }
  beginResetModel();
  root_ = std::move(fresh);
  endResetModel();
}

void PropertyModel::build(Node& parent, QVector<SheetField> const& fields) {
  bool const isList = parent.parent && parent.field.info.kind == Kind::List;
  for (int i = 0; i < fields.size(); ++i) {
    QStringList const inner(isList ? QString::number(i) : fields[i].key());
    Node& node = parent.add(fields[i], parent.parent ? parent.path + inner : source_->placeOf(fields[i]));
    node.isEntry = isList;
    build(node, fields[i].fields);
    addParts(node);
  }
}

void PropertyModel::addParts(Node& node) {
  if (node.field.info.kind != Kind::Numbers) return;
  bool const isRectangle = node.field.info.rules.numbersKind == NumbersKind::Rectangle;
  for (Part const part : {Part::X, Part::Y, Part::Width, Part::Height, Part::Anchor}) {
    if (!isRectangle && part == Part::Width) break;
    Node& own = node.add(node.field, node.path);
    own.part = part;
    own.field.info.field.caption = textOf(part).caption;
    own.field.info.field.help = textOf(part).help;
    own.field.info.kind = part == Part::Anchor ? Kind::Choice : Kind::Number;
    if (part == Part::Anchor)
      for (Choice const& anchor : anchorChoices()) own.field.info.choices << anchor;
  }
}

PropertyModel::Node& PropertyModel::nodeAt(QModelIndex const& index) const {
  return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *root_;
}

QModelIndex PropertyModel::indexOf(Node const& node, int column) const {
  if (!node.parent) return {};
  return createIndex(node.place, column, const_cast<Node*>(&node));
}

PropertyModel::Row PropertyModel::row(QModelIndex const& index) const {
  Node const& node = nodeAt(index);
  return {&node.field, node.path, node.part, node.isEntry};
}

QModelIndex PropertyModel::indexOf(QStringList const& path) const {
  Node const* node = root_.get();
  while (node->path != path) {
    auto const& children = node->children;
    auto const next = std::find_if(children.begin(), children.end(), [&](auto const& child) {
      return child->part == Part::Field && path.mid(0, child->path.size()) == child->path;
    });
    if (next == children.end()) return {};
    node = next->get();
  }
  return indexOf(*node, ValueColumn);
}

QModelIndex PropertyModel::index(int row, int column, QModelIndex const& parent) const {
  Node const& node = nodeAt(parent);
  if (row < 0 || row >= static_cast<int>(node.children.size()) || column < 0 || column > ValueColumn) return {};
  return indexOf(*node.children[row], column);
}

QModelIndex PropertyModel::parent(QModelIndex const& index) const {
  return index.isValid() ? indexOf(*nodeAt(index).parent, CaptionColumn) : QModelIndex();
}

int PropertyModel::rowCount(QModelIndex const& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent).children.size());
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == CaptionColumn ? tr("Property") : tr("Value");
}

Qt::ItemFlags PropertyModel::flags(QModelIndex const& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Node const& node = nodeAt(index);
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.column() != ValueColumn) return flags;
  if (check(node).isValid()) flags |= Qt::ItemIsUserCheckable;
  Kind const kind = node.field.info.kind;
  // A symbol is chosen in a dialog, which no Tab key may open.
  bool const isInside = kind == Kind::List || kind == Kind::Flag || kind == Kind::Object ||
                        (kind == Kind::Numbers && node.part == Part::Field);
  // What kind of thing it is decides on nearly all other fields.
  bool const isFixed = node.path == QStringList(QStringLiteral("handle")) ||
                       node.path == QStringList(QStringLiteral("type")) ||
                       (kind == Kind::Variant && node.field.info.choices.size() == 1);
  if (!isInside && !isFixed) flags |= Qt::ItemIsEditable;
  return flags;
}

QJsonValue PropertyModel::valueOf(Node const& node) const {
  if (node.part == Part::Field) return SysUtility::wholeValue(node.field);
  if (node.part == Part::Anchor) return anchor_;
  return partOf(node.field.value.toArray(), node.part, anchor_);
}

bool PropertyModel::isMixed(Node const& node) const {
  if (node.part == Part::Anchor) return false;
  QJsonValue const first = valueOf(node);
  return std::any_of(node.field.others.begin(), node.field.others.end(), [&](QJsonValue const& other) {
    return node.part == Part::Field ? other != first : partOf(other.toArray(), node.part, anchor_) != first.toDouble();
  });
}

QVariant PropertyModel::check(Node const& node) const {
  bool const isObject = node.field.info.kind == Kind::Object && !node.field.info.rules.isRequired && !node.isEntry;
  if (node.part != Part::Field || (!isObject && node.field.info.kind != Kind::Flag)) return {};
  auto const isOn = [&](QJsonValue const& value) { return isObject ? value.isObject() : value.toBool(); };
  QJsonValue const own = valueOf(node);
  for (QJsonValue const& other : node.field.others)
    if (isOn(other) != isOn(own)) return Qt::PartiallyChecked;
  return isOn(own) ? Qt::Checked : Qt::Unchecked;
}

QVariant PropertyModel::display(Node const& node) const {
  if (!node.problem.isEmpty() && !node.refused.isEmpty()) return node.refused;
  Kind const kind = node.field.info.kind;
  if (isMixed(node) && kind != Kind::Flag) return tr("mixed");
  if (node.part == Part::Anchor) return tr(anchorChoices().begin()[anchor_].caption);
  if (kind == Kind::List) return QString::number(node.children.size());
  if (node.isEntry) return summary(node.field);
  if (kind == Kind::Object && !node.field.isPresent) return tr("none");
  if (node.isSymbol()) return readable(node.field.fields.first().info, node.field.fields.first().value);
  return readable(node.field.info, valueOf(node));
}

QVariant PropertyModel::data(QModelIndex const& index, int role) const {
  if (!index.isValid()) return {};
  Node const& node = nodeAt(index);
  if (role == ProblemRole) return node.problem;
  if (role == PathRole) return node.path;
  if (role == NameRole) return nameOf(node);
  bool const isPart = node.part != Part::Field;
  if (role == HelpRole || role == Qt::WhatsThisRole) {
    QString const help = isPart ? tr(node.field.info.field.help) : translatedField(node.field.info.field.help);
    return node.field.remark.isEmpty() ? help : node.field.remark + QLatin1Char('\n') + help;
  }
  if (role == Qt::ToolTipRole) return node.problem.isEmpty() ? data(index, HelpRole) : node.problem;
  if (index.column() == CaptionColumn) {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    if (node.isEntry) return tr("Entry %1").arg(node.place + 1);
    return isPart ? tr(node.field.info.field.caption) : translatedField(node.field.info.field.caption);
  }
  switch (role) {
    case Qt::DisplayRole: return display(node);
    case Qt::EditRole: return node.refused.isEmpty() ? valueOf(node).toVariant() : node.refused;
    case Qt::CheckStateRole: return check(node);
    case Qt::ForegroundRole:
      if (!node.problem.isEmpty()) return problemColor(qApp->palette());
      return isMixed(node) ? qApp->palette().color(QPalette::Disabled, QPalette::Text) : QVariant();
    case Qt::DecorationRole:
      if (isMixed(node)) return {};
      if (!node.field.remark.isEmpty()) return qApp->style()->standardIcon(QStyle::SP_MessageBoxWarning);
      if (node.field.info.kind == Kind::Text && node.field.info.rules.textKind == TextKind::Color)
        return colorIcon(QColor(node.field.value.toString()), qApp->palette().color(QPalette::Mid), {14, 14});
      if (!symbolIn(node.field)) return {};
      if (!node.icon) node.icon = symbolIcon(*symbolIn(node.field));
      return *node.icon;
    default: return {};
  }
}

namespace {

// The field of a sentence is the row, where it is that very one.
QString withoutPath(QString const& problem, QStringList const& path) {
  QString name;
  for (QString const& step : path) {
    bool const isNumber = !step.isEmpty() && step[0].isDigit();
    name += isNumber ? QLatin1Char('[') + step + QLatin1Char(']') : (name.isEmpty() ? step : QLatin1Char('.') + step);
  }
  QString const prefix = name + QStringLiteral(": ");
  return problem.startsWith(prefix) ? problem.mid(prefix.size()) : problem;
}

}  // namespace

bool PropertyModel::change(Node& node, NewValue const& value, QString const& shown, QString const& joining) {
  if (!source_) return false;
  node.problem = withoutPath(source_->set(node.path, value, joining), node.path);
  node.refused = node.problem.isEmpty() ? QString() : shown;
  QModelIndex const index = indexOf(node, ValueColumn);
  emit dataChanged(index, index);
  if (node.problem.isEmpty()) refreshSoon();
  return node.problem.isEmpty();
}

// A view asks for a change in the middle of what it does with the index.
void PropertyModel::refreshSoon() {
  if (std::exchange(isStale_, true)) return;
  QTimer::singleShot(0, this, [this] {
    if (isStale_) refresh();
  });
}

QStringList PropertyModel::suggestions(QModelIndex const& index) const {
  Node const& node = nodeAt(index);
  FieldInfo const& info = node.field.info;
  if (info.kind != Kind::Text || !source_) return {};
  if (QLatin1String(info.field.key) == QLatin1String("family")) return QFontDatabase().families();
  return info.rules.textKind == TextKind::Attribute ? source_->attributes() : source_->namesFor(node.path);
}

std::function<std::optional<QString>(QString const&, QWidget*)> PropertyModel::chooserOf(
    QModelIndex const& index) const {
  Node const& node = nodeAt(index);
  if (!source_ || node.field.info.kind != Kind::Text || !source_->canChoose(node.field.info.rules.textKind)) return {};
  return [this, path = node.path](QString const& now, QWidget* parent) {
    return source_ ? source_->choose(path, now, parent) : std::nullopt;
  };
}

bool PropertyModel::take(QModelIndex const& index, QJsonValue const& value, QString const& shown) {
  Node& node = nodeAt(index);
  if (node.part == Part::Field)
    return change(
        node, [&](QJsonValue const&) { return value; }, shown, nameOf(node));
  if (node.part == Part::Anchor) {
    anchor_ = std::clamp(value.toInt(), 0, 8);
    emit dataChanged(indexOf(*node.parent->children.front(), 0), indexOf(*node.parent->children.back(), ValueColumn));
    return true;
  }
  // A text that is no number goes to the reader, which says so.
  return change(
      node,
      [&, part = node.part](QJsonValue const& now) {
        return value.isDouble() ? QJsonValue(withPart(now.toArray(), part, value.toDouble(), anchor_)) : value;
      },
      shown, nameOf(node));
}

bool PropertyModel::setData(QModelIndex const& index, QVariant const& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid()) return false;
  Node& node = nodeAt(index);
  bool const isOn = value.toInt() == Qt::Checked;
  bool const isObject = node.field.info.kind == Kind::Object;
  auto const isSet = [&](QJsonValue const& fresh) {
    return change(
        node,
        [=](QJsonValue const& now) {
          if (!isObject) return QJsonValue(isOn);
          if (!isOn) return QJsonValue(QJsonValue::Null);
          return now.isObject() ? now : fresh;
        },
        QString(), QString());
  };
  // What is drawn with a symbol begins with one, to be seen.
  bool const mayHaveSymbol = isObject && isOn && !SysDisplay::isSymbol(node.field.info.field);
  if (mayHaveSymbol && isSet(QJsonObject{{QStringLiteral("symbol"), QJsonObject()}})) return true;
  return isSet(QJsonObject());
}

bool PropertyModel::isSymbol(QModelIndex const& index) const { return index.isValid() && nodeAt(index).isSymbol(); }

void PropertyModel::forget(QModelIndex const& index) {
  Node& node = nodeAt(index);
  node.problem.clear();
  node.refused.clear();
  emit dataChanged(indexOf(node, ValueColumn), indexOf(node, ValueColumn));
}

QModelIndex PropertyModel::addEntry(QModelIndex const& index) {
  Node& node = nodeAt(index);
  Node& list = node.isEntry ? *node.parent : node;
  QStringList const path = list.path;
  int const count = static_cast<int>(list.children.size());
  list.problem =
      source_ ? source_->set(
                    path + QStringList(QStringLiteral("-")), [](QJsonValue const&) { return QJsonObject(); }, QString())
              : QString();
  refresh();
  QModelIndex const added = indexOf(path + QStringList(QString::number(count)));
  return added.isValid() ? added : indexOf(path);
}

void PropertyModel::removeEntry(QModelIndex const& index) {
  Node& node = nodeAt(index);
  if (!node.isEntry) return;
  if (change(
          node, [](QJsonValue const&) { return QJsonValue(QJsonValue::Null); }, QString(), QString()))
    refresh();
}

// The list as a whole with its entries otherwise; the place is where the one that is meant lies then.
QModelIndex PropertyModel::rearrange(Node& entry, int place, std::function<void(QJsonArray&)> const& change) {
  QStringList const path = entry.parent->path;
  QModelIndex const former = indexOf(entry, ValueColumn);
  auto const changed = [&](QJsonValue const& now) {
    QJsonArray list = now.toArray();
    change(list);
    return QJsonValue(list);
  };
  entry.problem = source_ ? source_->set(path, changed, QString()) : QString();
  if (!entry.problem.isEmpty()) {
    emit dataChanged(former, former);
    return former;
  }
  refresh();
  return indexOf(path + QStringList(QString::number(place)));
}

QModelIndex PropertyModel::moveEntry(QModelIndex const& index, int by) {
  Node& node = nodeAt(index);
  int const from = node.place, to = from + by;
  if (!node.isEntry || to < 0 || to >= static_cast<int>(node.parent->children.size())) return index;
  return rearrange(node, to, [=](QJsonArray& list) { list.insert(to, list.takeAt(from)); });
}

QModelIndex PropertyModel::duplicateEntry(QModelIndex const& index) {
  Node& node = nodeAt(index);
  int const from = node.place;
  if (!node.isEntry) return index;
  return rearrange(node, from + 1, [=](QJsonArray& list) { list.insert(from + 1, list.at(from)); });
}

}  // namespace SysAdapterUI
