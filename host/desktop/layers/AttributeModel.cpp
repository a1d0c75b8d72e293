#include "AttributeModel.h"

#include "TableOpening.h"

#include <QBrush>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <limits>

using SysCarto::FeatureScan;
using SysCarto::TableRow;

namespace {

constexpr int sliceMs = 12;
constexpr int keptRows = 4096;
constexpr size_t firstRows = 256;  // are shown at once, and then ever more
QString const nullText = QStringLiteral("NULL");

int alignmentOf(SysCarto::TableField const& field) {
  return static_cast<int>(Qt::AlignVCenter | (field.isNumber ? Qt::AlignRight : Qt::AlignLeft));
}

QString shown(QVariant const& value) {
  if (value.type() != QVariant::Double) return value.toString();
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

}  // namespace

AttributeModel::AttributeModel(QObject* parent) : QAbstractTableModel(parent), rows_(keptRows) {
  collator_.setCaseSensitivity(Qt::CaseInsensitive);
  connect(&slices_, &QTimer::timeout, this, &AttributeModel::goOn);
}

AttributeModel::~AttributeModel() = default;

void AttributeModel::close() {
  cancel();
  beginResetModel();
  table_.reset();
  allRows_.reset();
  ids_.clear();
  order_.clear();
  rows_.clear();
  shown_ = 0;
  condition_.clear();
  sortColumn_ = -1;
  endResetModel();
}

QString AttributeModel::open(SysCarto::SourceSettings const& source, SysCarto::ReadProgress const& progress) {
  close();
  QString problem;
  source_ = source;
  auto table = openTable(source, progress, problem);
  beginResetModel();
  table_ = std::move(table);
  if (table_ && !table_->isRandom()) allRows_ = std::make_unique<QHash<qint64, TableRow>>();
  endResetModel();
  return table_ ? startListing(QString(), progress) : problem;
}

QString AttributeModel::setFilter(QString const& condition) {
  if (!table_ || condition.trimmed() == condition_) return QString();
  return startListing(condition.trimmed(), {});
}

QString AttributeModel::startListing(QString const& condition, SysCarto::ReadProgress const& progress) {
  QString problem;
  FeatureScan::Wanted wanted;
  wanted.condition = condition;
  wanted.hasRows = static_cast<bool>(allRows_);
  auto scan = openScan(source_, wanted, progress, problem);
  if (!scan) return problem;
  cancel();
  scan_ = std::move(scan);
  condition_ = condition;
  listed_.clear();
  isFirstList_ = ids_.empty();
  work_ = Work::Listing;
  slices_.start(0);
  return QString();
}

void AttributeModel::sort(int column, Qt::SortOrder order) {
  if (!table_ || (column == sortColumn_ && (column < 0 || order == sortOrder_))) return;
  sortColumn_ = column;
  sortOrder_ = order;
  if (work_ == Work::Listing) return;  // it comes after that
  cancel();
  startKeys();
}

void AttributeModel::startKeys() {
  if (sortColumn_ < 0) {
    showOrder({});
    emit finished();
    return;
  }
  QString problem;
  FeatureScan::Wanted wanted;
  wanted.condition = condition_;
  wanted.field = sortColumn_;
  scan_ = FeatureScan::open(source_, wanted, problem);
  if (!scan_) return;
  keys_ = std::make_shared<Keys>();
  keys_->areNumbers = fields()[static_cast<size_t>(sortColumn_)].isNumber;
  work_ = Work::Keys;
  slices_.start(0);
}

void AttributeModel::goOn() {
  switch (work_) {
    case Work::Listing: return list();
    case Work::Keys: return collect();
    case Work::Sorting: return order();
    case Work::None: slices_.stop();
  }
}

void AttributeModel::list() {
  bool const isMore = scan_->advance(sliceMs, [&](qint64 id, TableRow const& values) {
    (isFirstList_ ? ids_ : listed_).push_back(id);
    if (allRows_) allRows_->insert(id, values);
  });
  if (isFirstList_) showListed(!isMore);
  emit progressed(tr("Reading…"), scan_->progress());
  if (isMore) return;
  tellOf(scan_->problem());
  if (!isFirstList_) {
    beginResetModel();
    ids_.swap(listed_);
    order_.clear();
    shown_ = static_cast<int>(ids_.size());
    endResetModel();
  }
  listed_ = {};
  end();
  if (sortColumn_ >= 0)
    startKeys();
  else
    emit finished();
}

// Views look at each portion, so that portions grow.
void AttributeModel::showListed(bool all) {
  size_t const known = static_cast<size_t>(shown_);
  if (ids_.size() == known || (!all && ids_.size() < std::max(firstRows, 2 * known))) return;
  beginInsertRows({}, shown_, static_cast<int>(ids_.size()) - 1);
  shown_ = static_cast<int>(ids_.size());
  endInsertRows();
}

void AttributeModel::collect() {
  bool const isMore = scan_->advance(sliceMs, [&](qint64, TableRow const& values) {
    if (keys_->isNull.size() == ids_.size()) return;  // the list was cancelled before its end
    QVariant const value = values.value(0);
    keys_->isNull.push_back(value.isNull());
    if (keys_->areNumbers)
      keys_->numbers.push_back(value.toDouble());
    else
      keys_->texts.push_back(value.toString());
  });
  emit progressed(tr("Sorting…"), scan_->progress() < 0 ? -1 : scan_->progress() / 2);
  if (isMore) return;
  tellOf(scan_->problem());
  scan_.reset();
  if (keys_->isNull.size() != ids_.size()) {  // the file has changed meanwhile
    end();
    emit finished();
    return;
  }
  auto const isBefore = [this, keys = keys_, order = sortOrder_](int a, int b) {
    return keys->isBefore(a, b, order, collator_);
  };
  sort_ = std::make_unique<SlicedSort>(static_cast<int>(ids_.size()), isBefore);
  work_ = Work::Sorting;
}

bool AttributeModel::Keys::isBefore(int a, int b, Qt::SortOrder order, QCollator const& collator) const {
  size_t const one = static_cast<size_t>(a), other = static_cast<size_t>(b);
  if (isNull[one] || isNull[other]) return !isNull[one] && isNull[other];
  bool const isUp = order == Qt::AscendingOrder;
  if (!areNumbers) {
    int const way = collator.compare(texts[one], texts[other]);
    return isUp ? way < 0 : way > 0;
  }
  double const x = numbers[one], y = numbers[other];
  if (std::isnan(x) || std::isnan(y)) return !std::isnan(x) && std::isnan(y);
  return isUp ? x < y : x > y;
}

void AttributeModel::order() {
  bool const isMore = sort_->advance(sliceMs);
  emit progressed(tr("Sorting…"), 0.5 + sort_->progress() / 2);
  if (isMore) return;
  auto sorted = sort_->take();
  end();
  showOrder(std::move(sorted));
  emit finished();
}

void AttributeModel::showOrder(std::vector<int> order) {
  beginResetModel();
  order_ = std::move(order);
  endResetModel();
}

void AttributeModel::tellOf(QString const& problem) const {
  if (!problem.isEmpty()) emit failed(problem);
}

void AttributeModel::end() {
  slices_.stop();
  work_ = Work::None;
  scan_.reset();
  sort_.reset();
  keys_.reset();
}

void AttributeModel::cancel() {
  if (!isBusy()) return;
  if (work_ == Work::Listing && isFirstList_) showListed(true);
  end();
  listed_ = {};
  emit finished();
}

size_t AttributeModel::placeOf(int row) const {
  return static_cast<size_t>(order_.empty() ? row : order_[static_cast<size_t>(row)]);
}

std::vector<qint64> AttributeModel::ids(int firstRow, int lastRow) const {
  std::vector<qint64> ids;
  for (int row = firstRow; row <= lastRow && row < shown_; ++row) ids.push_back(ids_[placeOf(row)]);
  return ids;
}

std::vector<int> AttributeModel::rowsOf(std::vector<qint64> ids) const {
  std::sort(ids.begin(), ids.end());
  std::vector<int> rows;
  for (int row = 0; !ids.empty() && row < shown_; ++row)
    if (std::binary_search(ids.begin(), ids.end(), ids_[placeOf(row)])) rows.push_back(row);
  return rows;
}

std::vector<SysCarto::TableField> const& AttributeModel::fields() const {
  static std::vector<SysCarto::TableField> const none;
  return table_ ? table_->fields() : none;
}

TableRow const& AttributeModel::rowAt(int row) const {
  qint64 const id = ids_[placeOf(row)];
  if (allRows_) {
    auto const known = allRows_->constFind(id);
    static TableRow const none;
    return known == allRows_->constEnd() ? none : *known;
  }
  TableRow* kept = rows_.object(id);
  if (!kept) {
    kept = new TableRow(table_->row(id));
    if (kept->isEmpty()) tellOf(table_->problem());
    rows_.insert(id, kept);
  }
  return *kept;
}

int AttributeModel::rowCount(QModelIndex const& parent) const { return parent.isValid() ? 0 : shown_; }
int AttributeModel::columnCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fields().size());
}

QVariant AttributeModel::data(QModelIndex const& index, int role) const {
  if (role == Qt::TextAlignmentRole) return alignmentOf(fields()[static_cast<size_t>(index.column())]);
  if (role != Qt::DisplayRole && role != Qt::ForegroundRole && role != Qt::EditRole) return QVariant();
  QVariant const value = rowAt(index.row()).value(index.column());
  if (role == Qt::EditRole) return value;
  if (role == Qt::ForegroundRole)
    return value.isNull() ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text) : QVariant();
  return value.isNull() ? nullText : shown(value);
}

QVariant AttributeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role == Qt::DisplayRole && orientation == Qt::Vertical) return section + 1;
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return QVariant();
  auto const& field = fields()[static_cast<size_t>(section)];
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return field.name;
  if (role == Qt::TextAlignmentRole) return alignmentOf(field);
  return QVariant();
}
