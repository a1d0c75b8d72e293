#include "Coverage.h"

#include "NameOrder.h"

#include "host/SysCarto/document/SeriesSettings.h"
#include "host/SysCarto/layout/PageLayoutHost.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

using SysCarto::FeatureScan;
using SysCarto::Placeholders;
using SysCarto::Series;
using SysCarto::TableRow;

namespace {

constexpr int allAtOnce = std::numeric_limits<int>::max();
QString const fieldName = QStringLiteral("field");

QString layersOf(SysCarto::Map const& map) {
  QStringList names;
  for (auto const& layer : map.GetLayers())
    if (SysUtility::ptr_cast<SysCarto::VectorLayer>(layer)) names << layer->GetName();
  return names.join(QStringLiteral(", "));
}

// What has no value comes last either way; equal ones stay in the order of the source.
bool isBefore(QVariant const& a, QVariant const& b, bool areNumbers, bool isDescending) {
  if (a.isNull() || b.isNull()) return !a.isNull() && b.isNull();
  if (!areNumbers) {
    int const way = compareNames(a.toString(), b.toString());
    return isDescending ? way > 0 : way < 0;
  }
  double const x = a.toDouble(), y = b.toDouble();
  if (std::isnan(x) || std::isnan(y)) return !std::isnan(x) && std::isnan(y);
  return isDescending ? x > y : x < y;
}

}  // namespace

QString textOf(QVariant const& value, QLocale locale) {
  if (value.type() != QVariant::Double) return value.toString();
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

Coverage::Coverage() = default;
Coverage::~Coverage() = default;

std::unique_ptr<Coverage> Coverage::read(SysCarto::PageLayout const& layout, QString& problem) {
  std::unique_ptr<Coverage> coverage(new Coverage);
  problem = coverage->open(layout);
  if (problem.isEmpty()) problem = coverage->sort(SysCarto::PageLayoutHost::series(layout));
  return problem.isEmpty() ? std::move(coverage) : nullptr;
}

QString Coverage::open(SysCarto::PageLayout const& layout) {
  Series const& series = SysCarto::PageLayoutHost::series(layout);
  if (!series.isUsed()) return tr("The document has no series of pages; name its layer in “series/layer”.");
  auto const& map = series.frame.map;
  if (!series.layer.isEmpty()) {
    if (!map) return tr("The series names no map that is on the page; give its number in “series/map”.");
    for (auto const& layer : map->GetLayers())
      if (auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer);
          vector && layer->GetName() == series.layer && !layer_)
        layer_ = vector;
    if (!layer_)
      return tr("The map “%1” has no layer “%2” whose features could have pages; name one of these in “series/layer”: "
                "%3.")
          .arg(map->GetName(), series.layer, layersOf(*map));
  }
  source_ = SysCarto::coverageOf(layout);
  filter_ = series.filter;
  QString problem;
  table_ = SysCarto::FeatureTable::open(source_, problem);
  shapes_ = layer_;
  if (!table_ || layer_) return problem;
  shapes_ = SysUtility::make<SysCarto::VectorLayer>(SysCarto::makeRenderer(SysCarto::RendererSettings()));
  QStringList warnings;
  shapes_->open(source_, map ? map->GetCoordinateSystem() : QString(), warnings);  // fails for a table without places
  return QString();
}

SysCarto::FeatureStore const& Coverage::store() const {
  if (!shapes_->hasWindows()) return shapes_->features();
  if (!ofPages_) ofPages_ = shapes_->featuresNumbered(features_);
  return *ofPages_;
}

QString Coverage::sort(Series const& series) {
  int const sortField = fieldOf(series.sortField);
  if (!series.sortField.isEmpty() && sortField < 0) return noField(series.sortField);
  for (SysCarto::SeriesFrame const& frame : QVector<SysCarto::SeriesFrame>{series.frame} + series.followers)
    if (!frame.rotationField.isEmpty() && fieldOf(frame.rotationField) < 0) return noField(frame.rotationField);
  QString problem;
  auto const scan = FeatureScan::open(source_, {filter_, sortField, false}, problem);
  if (!scan) return problem;
  std::vector<qint64> found;
  std::vector<QVariant> values;
  scan->advance(allAtOnce, [&](qint64 id, TableRow const& row) {
    found.push_back(id);
    if (sortField >= 0) values.push_back(row.first());
  });
  if (found.empty())
    return tr("The series has no pages: no feature of its layer meets its filters; change “series/filter”.");
  std::vector<size_t> order(found.size());
  std::iota(order.begin(), order.end(), size_t{0});
  if (sortField >= 0) {
    bool const areNumbers = fields()[static_cast<size_t>(sortField)].isNumber;
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
      return isBefore(values[a], values[b], areNumbers, series.isDescending);
    });
  }
  for (size_t const place : order) {
    features_.push_back(found[place]);
    pages_[found[place]] = count();
  }
  if (series.name.isEmpty()) {
    for (size_t const place : order) {
      QString const value = sortField >= 0 ? textOf(values[place]) : QString();
      names_.push_back(value.isEmpty() ? QString::number(names_.size() + 1) : value);
    }
    return QString();
  }
  QStringList const names = filled(
      series.name, [](QVariant const& value) { return textOf(value); }, problem);
  names_.assign(names.begin(), names.end());
  return problem;
}

int Coverage::fieldOf(QString const& name) const {
  for (auto const sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
    for (size_t i = 0; i < fields().size(); ++i)
      if (fields()[i].name.compare(name, sensitivity) == 0) return static_cast<int>(i);
  return -1;
}

QString Coverage::noField(QString const& name) const {
  QStringList names;
  for (auto const& field : fields()) names << field.name;
  return tr("The features of the series have no field “%1”; they have: %2.")
      .arg(name, names.join(QStringLiteral(", ")));
}

TableRow Coverage::row(int page) const {
  if (table_->isRandom()) return table_->row(feature(page));
  return table_->rows({feature(page)}).value(feature(page));
}

std::optional<QSet<int>> Coverage::pagesThatMeet(QString const& condition, QString& problem) const {
  auto const scan = FeatureScan::open(source_, {condition, -1, false}, problem);
  if (!scan) return std::nullopt;
  QSet<int> pages;
  scan->advance(allAtOnce, [&](qint64 id, TableRow const&) {
    if (int const page = pageOf(id)) pages << page;
  });
  return pages;
}

QString Coverage::checkFields(QString const& pattern) const {
  QString problem;
  Placeholders([&](QString const& name, QString const& argument) {
    if (name == fieldName && fieldOf(argument) < 0 && problem.isEmpty()) problem = noField(argument);
    return std::optional<QString>();
  }).filled(pattern);
  return problem;
}

QStringList Coverage::filled(QString const& pattern, std::function<QString(QVariant const&)> const& write,
                             QString& problem) const {
  problem = checkFields(pattern);
  if (!problem.isEmpty()) return {};
  std::vector<QString> texts(features_.size());
  auto const scan = FeatureScan::open(source_, {filter_, -1, true}, problem);
  if (!scan) return {};
  int const digits = QString::number(count()).size();
  scan->advance(allAtOnce, [&](qint64 id, TableRow const& row) {
    int const page = pageOf(id);
    if (page == 0) return;
    texts[static_cast<size_t>(page - 1)] =
        Placeholders([&](QString const& name, QString const& argument) -> std::optional<QString> {
          if (name == QLatin1String("page") && argument == QLatin1String("name") && !names_.empty())
            return write(this->name(page));
          if (name == QLatin1String("page") && argument.isEmpty())
            return QStringLiteral("%1").arg(page, digits, 10, QLatin1Char('0'));
          if (name == QLatin1String("pages")) return QString::number(count());
          if (name == fieldName) return write(row.value(fieldOf(argument)));
          return std::nullopt;
        }).filled(pattern);
  });
  return QStringList(texts.begin(), texts.end());
}
