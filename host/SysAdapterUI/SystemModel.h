#pragma once

#include "host/SysCarto/projection/SystemCatalogue.h"

#include <QAbstractTableModel>

namespace SysAdapterUI {

/// Coordinate systems to choose from: those that a person is likely to want, and behind them what is found in the
/// catalogue.
class SystemModel final : public QAbstractTableModel {
  Q_OBJECT

public:
  enum Column { NameColumn, CodeColumn, NoteColumn };

  /// One that comes first, with why it does.
  struct Favourite {
    QString definition;
    QString note;
  };

  /// `none` says what an empty definition means.
  SystemModel(QVector<Favourite> favourites, QString none, QObject* parent);

  /// Shows what matches. A query with words waits for the catalogue; without, it is left out as long as it isn't read.
  void search(SysCarto::SystemQuery const& query);

  QString definition(int row) const;

  /// −1 where there is none.
  int rowOf(QString const& definition) const;

  /// How many systems are there that matched.
  int found() const { return static_cast<int>(numbers_.size()); }

  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& = {}) const override { return 3; }
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  struct Row {
    QString definition, name, code, note, area;
    bool fits = false;
  };
  Row rowOfSystem(SysCarto::KnownSystem const& system) const;
  Row rowOfDefinition(Favourite const& favourite) const;
  Row rowAt(int row) const;
  void addFavourites(SysCarto::SystemQuery const& query);

  QVector<Favourite> const favourites_;
  QString const none_;
  SysCarto::GlobeBox extent_;
  QVector<Row> first_;
  std::vector<int> numbers_;  // of systems in the catalogue
};

}  // namespace SysAdapterUI
