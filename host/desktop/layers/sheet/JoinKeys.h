#pragma once

#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/maps/LayerTree.h"

#include <SysCarto/MapDocument.h>

#include <QString>
#include <QStringList>
#include <QVector>

/// The beginning of a table: names of fields, and rows with their values as texts.
struct TableSample {
  QStringList fields;
  QVector<QStringList> rows;

  /// On a failure without fields, and `problem` is a sentence.
  static TableSample of(SysCarto::SourceSettings const& source, int rows, QString& problem);
};

/// By which fields a table is joined most likely.
struct JoinKeys {
  QString own;    ///< of the features; empty where nothing fits
  QString table;  ///< of the table

  /// Those that share the most values of which each is in one row of the table; of equal ones those of one name, and
  /// where no value is shared, fields of one name.
  static JoinKeys guess(TableSample const& features, TableSample const& table);

  /// Rows that are looked at, of features and of the table.
  static constexpr int rowsLookedAt = 2000;
};

/// A table in a file joined to features by the keys that are guessed. Without a key, and with a sentence in `problem`,
/// where there are none.
SysCarto::TableJoin guessJoin(SysCarto::SourceSettings const& features, QString const& file, QString const& layer,
                              QString& problem);

/// Gives a layer a joined table in place of one of its own, or for −1 one more, as a step of the history. Answers a
/// problem, with nothing changed; what found no partner is added to `warnings`.
QString giveJoin(SysCarto::MapDocument const& document, SysCarto::LayerRow const& layer,
                 SysCarto::TableJoin const& join, int place, QStringList& warnings);
