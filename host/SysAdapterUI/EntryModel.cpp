#include "EntryModel.h"

#include <QLocale>

#include <algorithm>

namespace SysAdapterUI {

EntryModel::EntryModel(PropertyModel& model, QObject* parent) : QAbstractProxyModel(parent), model_(model) {
  setSourceModel(&model);
  findFields();
  connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
  connect(&model, &QAbstractItemModel::modelReset, this, [this] {
    findFields();
    endResetModel();
  });
  connect(&model, &QAbstractItemModel::dataChanged, this, [this] {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  });
}

EntryModel::~EntryModel() = default;

QModelIndex EntryModel::list() const {
  for (int i = 0; i < model_.rowCount(); ++i) {
    QModelIndex const row = model_.index(i, PropertyModel::CaptionColumn);
    if (model_.row(row).isList()) return row;
  }
  return {};
}

QModelIndex EntryModel::entry(int row) const { return model_.index(row, PropertyModel::CaptionColumn, list()); }

// All entries have the fields of the first one.
void EntryModel::findFields() {
  places_.clear();
  counts_.clear();
  QModelIndex const first = list().isValid() ? entry(0) : QModelIndex();
  for (int i = 0; first.isValid() && i < model_.rowCount(first); ++i) places_ << i;
  std::stable_partition(places_.begin(), places_.end(), [&](int place) {
    return model_.isSymbol(model_.index(place, PropertyModel::ValueColumn, first));
  });
}

// What is being edited in another column goes on.
void EntryModel::setCounts(QVector<qint64> const& counts) {
  int const column = places_.size();
  bool const isNew = counts_.isEmpty() && !counts.isEmpty(), isOver = !counts_.isEmpty() && counts.isEmpty();
  if (isNew) beginInsertColumns({}, column, column);
  if (isOver) beginRemoveColumns({}, column, column);
  counts_ = counts;
  if (isNew) endInsertColumns();
  if (isOver) endRemoveColumns();
  if (!isNew && !isOver && hasCounts()) emit dataChanged(index(0, column), index(rowCount() - 1, column));
}

QModelIndex EntryModel::mapToSource(QModelIndex const& index) const {
  if (!index.isValid() || index.column() >= places_.size()) return {};
  return model_.index(places_[index.column()], PropertyModel::ValueColumn, entry(index.row()));
}

QModelIndex EntryModel::mapFromSource(QModelIndex const& index) const {
  QModelIndex const entry = index.parent(), outer = entry.parent();
  bool const isField = entry.isValid() && outer.isValid() && outer == list();
  return isField ? createIndex(entry.row(), places_.indexOf(index.row())) : QModelIndex();
}

QModelIndex EntryModel::index(int row, int column, QModelIndex const& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

int EntryModel::rowCount(QModelIndex const& parent) const {
  QModelIndex const shown = parent.isValid() ? QModelIndex() : list();
  return shown.isValid() ? model_.rowCount(shown) : 0;
}

int EntryModel::columnCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : places_.size() + (counts_.isEmpty() ? 0 : 1);
}

Qt::ItemFlags EntryModel::flags(QModelIndex const& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  QModelIndex const field = mapToSource(index);
  return field.isValid() ? model_.flags(field) : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QVariant EntryModel::data(QModelIndex const& index, int role) const {
  QModelIndex const field = mapToSource(index);
  if (field.isValid()) return model_.data(field, role);
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignRight | Qt::AlignVCenter);
  bool const isCount = role == Qt::DisplayRole && index.isValid() && index.row() < counts_.size();
  return isCount ? QLocale().toString(counts_[index.row()]) : QVariant();
}

QVariant EntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  if (section >= places_.size()) return role == Qt::DisplayRole ? tr("Features") : QVariant();
  QModelIndex const caption = model_.index(places_.value(section), PropertyModel::CaptionColumn, entry(0));
  return role == Qt::DisplayRole || role == Qt::ToolTipRole ? model_.data(caption, role) : QVariant();
}

}  // namespace SysAdapterUI
