#include "SystemModel.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/SystemDescription.h"

#include <algorithm>
#include <utility>

namespace SysAdapterUI {

using SysCarto::KnownSystem;
using SysCarto::SystemCatalogue;
using SysCarto::SystemQuery;

SystemModel::SystemModel(QVector<Favourite> favourites, QString none, QObject* parent)
    : QAbstractTableModel(parent), favourites_(std::move(favourites)), none_(std::move(none)) {}

SystemModel::Row SystemModel::rowOfSystem(KnownSystem const& system) const {
  return {system.code, system.name, system.code, QString(), system.area, system.use.contains(extent_)};
}

SystemModel::Row SystemModel::rowOfDefinition(Favourite const& favourite) const {
  auto const told = SysCarto::describeSystem(favourite.definition);
  if (!told) return {favourite.definition, favourite.definition, QString(), favourite.note, QString(), false};
  bool const isNamed = !told->code.isEmpty() || told->name != QLatin1String("unknown");  // what PROJ calls a PROJ text
  return {favourite.definition, isNamed ? told->name : favourite.definition.simplified(),
          told->code,           favourite.note,
          told->area,           told->use.contains(extent_)};
}

// Without words all of them stand first; with words, those that match. What is a definition itself can be taken as it
// is.
void SystemModel::addFavourites(SystemQuery const& query) {
  QString const words = query.words.trimmed();
  if (words.isEmpty()) {
    first_ << Row{QString(), none_, QString(), QString(), QString(), false};
    for (Favourite const& favourite : favourites_) first_ << rowOfDefinition(favourite);
    return;
  }
  auto const& systems = SystemCatalogue::instance().systems();
  for (Favourite const& favourite : favourites_) {
    auto const at = std::find_if(numbers_.begin(), numbers_.end(),
                                 [&](int number) { return systems[number].code == favourite.definition; });
    if (at == numbers_.end()) continue;
    first_ << rowOfDefinition(favourite);
    numbers_.erase(at);
  }
  bool const isKnown = SystemCatalogue::instance().find(words);
  if (!isKnown && SysCarto::checkCoordinateSystem(words).isEmpty())
    first_ << rowOfDefinition({words, tr("as it is written")});
}

void SystemModel::search(SystemQuery const& query) {
  beginResetModel();
  extent_ = query.extent;
  first_.clear();
  numbers_.clear();
  bool const waits = !query.words.trimmed().isEmpty();
  if (waits || SystemCatalogue::isRead()) numbers_ = SystemCatalogue::instance().search(query);
  addFavourites(query);
  endResetModel();
}

SystemModel::Row SystemModel::rowAt(int row) const {
  if (row < first_.size()) return first_[row];
  return rowOfSystem(SystemCatalogue::instance().systems()[numbers_[row - first_.size()]]);
}

QString SystemModel::definition(int row) const { return rowAt(row).definition; }

int SystemModel::rowOf(QString const& definition) const {
  for (int row = 0; row < rowCount(); ++row)
    if (rowAt(row).definition.compare(definition, Qt::CaseInsensitive) == 0) return row;
  return -1;
}

int SystemModel::rowCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : first_.size() + static_cast<int>(numbers_.size());
}

QVariant SystemModel::data(QModelIndex const& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return QVariant();
  Row const row = rowAt(index.row());
  if (role == Qt::ToolTipRole) return row.area.isEmpty() ? row.name : row.name + QLatin1Char('\n') + row.area;
  if (index.column() == NameColumn) return row.name;
  if (index.column() == CodeColumn) return row.code;
  if (row.note.isEmpty()) return row.fits ? tr("holds the map") : QString();
  return row.fits ? tr("%1, holds the map").arg(row.note) : row.note;
}

QVariant SystemModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return QVariant();
  return section == NameColumn ? tr("Name") : section == CodeColumn ? tr("Code") : tr("Remark");
}

}  // namespace SysAdapterUI
