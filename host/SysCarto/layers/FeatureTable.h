#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <QHash>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

class OGRFeature;

namespace SysCarto {

class DataSource;
class Condition;
class GdalErrors;

/// A field of the features of a source.
struct TableField {
  QString name;
  bool isNumber;
};

/// What the fields of a feature hold, in their order: a text, a whole number, a number, or nothing for NULL.
using TableRow = QVector<QVariant>;

/// The fields of a layer's features, which are read where they are asked for.
class SYSCARTO_EXPORT FeatureTable {
public:
  /// On a failure an empty pointer, and `error` is a sentence.
  static std::unique_ptr<FeatureTable> open(SourceSettings const& source, QString& error);
  ~FeatureTable();

  std::vector<TableField> const& fields() const { return fields_; }

  /// Whether any feature can be read by its number without reading those before it.
  bool isRandom() const;

  /// Of the feature that has this number in the source; empty where there is none.
  TableRow row(qint64 id) const;

  /// Of several features, by their numbers in the source, in one pass where it is not random; without those that are
  /// not there.
  QHash<qint64, TableRow> rows(std::vector<qint64> const& ids) const;

  /// Why not all could be read that was asked for so far, as a sentence; empty where all could.
  QString const& problem() const { return problem_; }

private:
  friend class FeatureScan;
  FeatureTable(std::unique_ptr<DataSource> data, QString const& origin);
  void note(GdalErrors const& errors) const;

  std::unique_ptr<DataSource> const data_;
  QString const origin_;
  std::vector<TableField> fields_;
  mutable QString problem_;
};

/// A pass over the features of a source in their order, a portion at a time, so that a window stays alive meanwhile.
class SYSCARTO_EXPORT FeatureScan {
public:
  /// Which features are wanted, and what of them.
  struct Wanted {
    QString condition;     ///< beside that of the source; empty for all
    int field = -1;        ///< of which values are given; −1 for none
    bool hasRows = false;  ///< all fields instead
  };

  /// On a failure an empty pointer, and `error` is a sentence.
  static std::unique_ptr<FeatureScan> open(SourceSettings const& source, Wanted const& wanted, QString& error);
  ~FeatureScan();

  /// Hands on features for so many milliseconds: `take` gets the number in the source, and the values that were wanted.
  /// False when all have been read.
  bool advance(int ms, std::function<void(qint64 id, TableRow const& values)> const& take);

  /// How far it is, from 0 to 1; negative where that can't be told.
  double progress() const;

  /// As that of a table.
  QString const& problem() const { return table_->problem(); }

private:
  FeatureScan();

  std::unique_ptr<FeatureTable> table_;
  std::unique_ptr<Condition> own_, more_;
  Wanted wanted_;
  qint64 total_ = -1, read_ = 0;
};

}  // namespace SysCarto
