#pragma once

#include "SlicedSort.h"

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/layers/WatchedReading.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QCollator>
#include <QTimer>

#include <memory>
#include <optional>

/// The attributes of a layer's features as a table. It holds the numbers of the features and reads the rows that are
/// looked at. What needs a pass over all features, the list itself, a filter, an order, is done in slices of the event
/// loop; until it is done the table shows what it showed.
class AttributeModel final : public QAbstractTableModel {
  Q_OBJECT

public:
  explicit AttributeModel(QObject* parent);
  ~AttributeModel() override;

  /// Shows the features of a source. Answers a sentence where it can't be read; the table is empty then, as it is where
  /// `progress` wanted no more.
  QString open(SysCarto::SourceSettings const& source, SysCarto::ReadProgress const& progress = {});
  void close();

  /// Shows the features that meet a condition, as in the filter of a source; an empty one shows all. Answers a
  /// sentence, with nothing changed, where it is not understood.
  QString setFilter(QString const& condition);

  /// By the values of a column; NULL comes last in either order. −1 for the order of the source.
  void sort(int column, Qt::SortOrder order) override;

  bool isBusy() const { return work_ != Work::None; }

  /// Ends what is being done; the rows that are there stay.
  void cancel();

  /// The numbers in the source of the features in a range of rows, and of a feature the row; −1 where it has none.
  std::vector<qint64> ids(int firstRow, int lastRow) const;
  std::vector<int> rowsOf(std::vector<qint64> ids) const;

  std::vector<SysCarto::TableField> const& fields() const;

  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
  /// From 0 to 1, negative where nobody knows; `what` is done is told for people.
  void progressed(QString const& what, double progress);

  /// Not all could be read; a sentence. It may come while a view paints.
  void failed(QString const& problem) const;

  /// Nothing is being done any more.
  void finished();

private:
  enum class Work { None, Listing, Keys, Sorting };

  // What rows are sorted by, by their place in `ids_`.
  struct Keys {
    bool areNumbers = false;
    std::vector<double> numbers;
    std::vector<QString> texts;
    std::vector<bool> isNull;

    bool isBefore(int a, int b, Qt::SortOrder order, QCollator const& collator) const;
  };

  QString startListing(QString const& condition, SysCarto::ReadProgress const& progress);
  void startKeys();
  void goOn();
  void list();
  void collect();
  void order();
  void end();
  void tellOf(QString const& problem) const;
  void showListed(bool all);
  void showOrder(std::vector<int> order);
  size_t placeOf(int row) const;
  SysCarto::TableRow const& rowAt(int row) const;

  SysCarto::SourceSettings source_;
  std::unique_ptr<SysCarto::FeatureTable> table_;
  QString condition_;
  std::vector<qint64> ids_;  // in the order of the source
  std::vector<int> order_;   // of the rows, places in `ids_`; empty for that of the source
  int shown_ = 0;            // of the rows that are listed, how many the views know
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;

  Work work_ = Work::None;
  QTimer slices_;
  std::unique_ptr<SysCarto::FeatureScan> scan_;
  std::vector<qint64> listed_;
  bool isFirstList_ = false;  // rows come as they are found
  std::shared_ptr<Keys> keys_;
  std::unique_ptr<SlicedSort> sort_;
  QCollator collator_;
  mutable QCache<qint64, SysCarto::TableRow> rows_;
  std::unique_ptr<QHash<qint64, SysCarto::TableRow>> allRows_;  // of a source that can only be read in turn
};
