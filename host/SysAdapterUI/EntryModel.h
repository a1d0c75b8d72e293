#pragma once

#include "host/SysAdapterUI/PropertyModel.h"

#include <QAbstractProxyModel>
#include <QVector>

namespace SysAdapterUI {

/// The first list of a property model that is no part of anything else, as a table: a row for each entry, a column for
/// each field of the entries, symbols first. Beside them stands how many features each entry takes, where that is
/// known.
class SYSADAPTERUI_EXPORT EntryModel final : public QAbstractProxyModel {
  Q_OBJECT

public:
  /// Borrowed.
  EntryModel(PropertyModel& model, QObject* parent);
  ~EntryModel() override;

  PropertyModel& fields() const { return model_; }

  /// Of the list in the property model; invalid where there is none.
  QModelIndex list() const;

  /// Of an entry in the property model.
  QModelIndex entry(int row) const;

  /// By entry; empty where they are not known.
  void setCounts(QVector<qint64> const& counts);
  bool hasCounts() const { return !counts_.isEmpty(); }  ///< in the last column

  QModelIndex mapToSource(QModelIndex const& index) const override;
  QModelIndex mapFromSource(QModelIndex const& index) const override;
  QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
  QModelIndex parent(QModelIndex const&) const override { return {}; }
  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  Qt::ItemFlags flags(QModelIndex const& index) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  void findFields();

  PropertyModel& model_;
  QVector<int> places_;  // of the columns' fields within an entry
  QVector<qint64> counts_;
};

}  // namespace SysAdapterUI
