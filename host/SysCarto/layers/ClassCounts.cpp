#include "ClassCounts.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/layers/Expression.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLocale>

#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

namespace {

constexpr int betweenLooks = 64;  // features, at the clock
constexpr int featuresForResults = 1000;
constexpr int maxShown = 100;  // characters of a condition in a message

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ClassCounts)
};

bool covers(ScaleRange const& outer, ScaleRange const& inner) {
  bool const isLowEnough = outer.min == 0 || (inner.min > 0 && outer.min <= inner.min);
  return isLowEnough && (outer.max == 0 || (inner.max > 0 && outer.max >= inner.max));
}

}  // namespace

ClassCounts::ClassCounts(std::unique_ptr<DataSource> data, QString const& file) : data_(std::move(data)), file_(file) {}
ClassCounts::~ClassCounts() = default;

std::unique_ptr<ClassCounts> ClassCounts::open(SourceSettings const& source, RendererSettings const& renderer,
                                               QString& error) {
  auto data = DataSource::open(source, error);
  if (!data) return nullptr;
  GdalErrors const quiet;
  std::unique_ptr<ClassCounts> counts(new ClassCounts(std::move(data), source.origin()));
  error = counts->compile(source, renderer);
  if (!error.isEmpty()) return nullptr;
  counts->total_ = knownCount(counts->data_->layer());
  QStringList needed = counts->own_->fields() + QStringList(renderer.field);
  for (Condition const& rule : counts->rules_) needed += rule.fields();
  counts->own_->narrow(counts->data_->layer(), Condition::Narrowed::Servers);
  readOnly(counts->data_->layer(), needed);
  counts->data_->layer().ResetReading();
  return counts;
}

std::unique_ptr<ClassCounts> ClassCounts::open(SourceSettings const& source, QString const& condition, QString& error) {
  RendererSettings rule;
  rule.kind = RendererSettings::Kind::Rules;
  rule.classes.push_back({});
  rule.classes.back().filter = condition;
  return open(source, rule, error);
}

QString ClassCounts::compile(SourceSettings const& source, RendererSettings const& renderer) {
  OGRLayer& layer = data_->layer();
  auto const compiled = [&](Condition& condition, QString const& text) {
    QString reason;
    if (condition.compile(layer, text, reason)) return QString();
    return Texts::tr("The condition “%1” is not understood: %2.").arg(text.left(maxShown), reason);
  };
  own_ = std::make_unique<Condition>();
  QString error = compiled(*own_, source.filter);
  renderer_ = makeRenderer(renderer);
  counts_.resize(renderer.classes.size());
  if (!renderer.field.isEmpty()) field_ = fieldIndex(layer, renderer.field);
  if (renderer.kind != RendererSettings::Kind::Rules) return error;
  fits_.resize(renderer.classes.size());
  for (SymbolClass const& rule : renderer.classes) {
    rules_.emplace_back();
    if (error.isEmpty()) error = compiled(rules_.back(), rule.filter);
    before_.emplace_back();
    for (size_t i = 0; i + 1 < rules_.size() && !renderer.allMatch; ++i)
      if (covers(renderer.classes[i].scales, rule.scales)) before_.back().push_back(i);
  }
  return error;
}

void ClassCounts::count(OGRFeature& feature) {
  if (rules_.empty()) {
    bool const isGiven = field_ >= 0 && feature.IsFieldSetAndNotNull(field_);
    int const one = renderer_->classOf(isGiven ? QString::fromUtf8(feature.GetFieldAsString(field_)) : QString(),
                                       isGiven ? feature.GetFieldAsDouble(field_) : std::nan(""));
    bool const isIn = one >= 0 && one < static_cast<int>(counts_.size());
    ++(isIn ? counts_[static_cast<size_t>(one)] : others_);
    return;
  }
  bool isTaken = false;
  for (size_t i = 0; i < rules_.size(); ++i) {
    fits_[i] = rules_[i].admits(feature);
    isTaken = isTaken || fits_[i];
    bool const isFirst =
        std::none_of(before_[i].begin(), before_[i].end(), [this](size_t earlier) { return fits_[earlier]; });
    if (fits_[i] && isFirst) ++counts_[i];
  }
  if (!isTaken) ++others_;
}

bool ClassCounts::advance(int ms) {
  GdalErrors const errors;
  QElapsedTimer clock;
  clock.start();
  bool isMore = true;
  for (int untilLook = betweenLooks; untilLook > 0 || clock.elapsed() < ms; --untilLook) {
    if (untilLook <= 0) untilLook = betweenLooks;
    OGRFeatureUniquePtr const feature(data_->layer().GetNextFeature());
    isMore = static_cast<bool>(feature);
    if (!feature) break;
    ++read_;
    if (!own_->admits(*feature)) continue;
    ++features_;
    count(*feature);
  }
  // A format may read on behind what is broken.
  if (errors.hasFailure() && problem_.isEmpty())
    problem_ = Texts::tr("Not all of %1 could be read: %2.").arg(QDir::toNativeSeparators(file_), errors.reason());
  return isMore;
}

double ClassCounts::progress() const {
  return total_ > 0 ? std::min(1.0, static_cast<double>(read_) / static_cast<double>(total_)) : -1;
}

QStringList ClassCounts::notes() const {
  QString const& problem = data_->joinProblem();
  return problem.isEmpty() ? data_->notes() : QStringList(problem) + data_->notes();
}

QStringList sampleResults(SourceSettings const& source, QString const& expression, int limit, QString& error) {
  auto const data = DataSource::open(source, error);
  if (!data) return {};
  GdalErrors const quiet;
  Expression compiled;
  QString reason;
  if (!compiled.compile(data->layer(), expression, reason)) {
    error = Texts::tr("The expression “%1” is not understood: %2.").arg(expression.left(maxShown), reason);
    return {};
  }
  Condition own;
  own.compile(data->layer(), source.filter, reason);
  QStringList results;
  data->layer().ResetReading();
  for (int i = 0; i < featuresForResults && results.size() < limit; ++i) {
    OGRFeatureUniquePtr const feature(data->layer().GetNextFeature());
    if (!feature) break;
    if (!own.admits(*feature)) continue;
    QString result = compiled.text(*feature);
    double const number = result.isNull() ? compiled.number(*feature) : 0;
    if (result.isNull() && !std::isnan(number))
      result = QLocale().toString(number, 'g', QLocale::FloatingPointShortest);
    if (!result.isEmpty()) results << result;
  }
  return results;
}

}  // namespace SysCarto
