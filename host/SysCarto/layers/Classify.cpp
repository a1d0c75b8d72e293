#include "Classify.h"

#include "host/SysCarto/layers/ColorRamp.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/SymbolVariation.h"
#include "host/SysUtility/NumberText.h"

#include <QCollator>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using Method = ClassifySettings::Method;
using SysDisplay::Symbol;
using SysUtility::_ptr_t;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Classify)
};

// clang-format off
constexpr struct { Method method; char const* name; } methods[] = {
    {Method::EqualIntervals,    "equal"},
    {Method::Quantiles,         "quantile"},
    {Method::NaturalBreaks,     "natural"},
    {Method::StandardDeviation, "deviation"},
    {Method::Pretty,            "pretty"},
    {Method::OwnBreaks,         "own"},
    {Method::UniqueValues,      "unique"},
    {Method::Proportional,      "proportional"},
};
// clang-format on

constexpr int maxLabel = 200;

ClassMethod methodOfNumbers(Method method) { return static_cast<ClassMethod>(method); }

// What stands for all: the only symbol, or that of the middle class, in the mean size (geometric) where they differ.
_ptr_t<Symbol> symbolOf(RendererSettings const& renderer) {
  std::vector<_ptr_t<Symbol>> symbols;
  for (SymbolClass const& one : renderer.classes)
    if (one.symbol) symbols.push_back(one.symbol);
  if (symbols.empty()) return renderer.others.symbol;
  auto const middle = symbols[symbols.size() / 2];
  double const first = SysDisplay::sizeOf(*symbols.front()), last = SysDisplay::sizeOf(*symbols.back());
  if (first == last || !(first > 0 && last > 0)) return middle;
  auto const mean = middle->Clone();
  setSize(*mean, std::sqrt(first * last));
  return mean;
}

// Around breaks of one's own, all values: a class below the first and one from the last on, be there values or not.
std::vector<double> boundsAround(std::vector<double> const& sorted, std::vector<double> breaks) {
  std::sort(breaks.begin(), breaks.end());
  breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());
  double lowest = sorted.front(), highest = sorted.back(), room = (highest - lowest) / 100;
  if (!breaks.empty()) {
    double const span = std::max(highest, breaks.back()) - std::min(lowest, breaks.front());
    room = (span > 0 ? span : std::max(1.0, std::abs(lowest))) / 100;
    if (lowest >= breaks.front()) lowest = breaks.front() - room;
    if (highest <= breaks.back()) highest = breaks.back() + room;
  }
  breaks.insert(breaks.begin(), roundestWithin(lowest - room, lowest));
  breaks.push_back(roundestWithin(highest, highest + room));
  return breaks;
}

std::vector<double> boundsOf(std::vector<double> const& sorted, ClassifySettings const& wanted) {
  if (sorted.empty()) return {};
  if (wanted.method == Method::OwnBreaks) return boundsAround(sorted, wanted.breaks);
  return roundedBounds(sorted, classBounds(sorted, methodOfNumbers(wanted.method), wanted.classes));
}

void makeProportional(Classes& classes, std::vector<double> const& sorted, Symbol const& base,
                      ClassifySettings const& wanted) {
  classes.renderer.kind = RendererSettings::Kind::Proportional;
  classes.renderer.proportional.smallestPt = std::min(wanted.from, wanted.to);
  bool const isMarker = base.GetType() == SysDisplay::SymbolType::Marker;
  auto const marker = isMarker ? base.Clone() : _ptr_t<Symbol>(new SysDisplay::SimpleMarkerSymbol);
  if (!isMarker) setColor(*marker, SysDisplay::colorOf(base));
  setSize(*marker, std::max(wanted.from, wanted.to));
  classes.renderer.classes = {{{}, {}, 0, marker}};
  classes.counts = {static_cast<int>(sorted.end() - std::upper_bound(sorted.begin(), sorted.end(), 0.0))};
}

// The symbols of so many classes.
std::vector<_ptr_t<Symbol>> symbolsFor(Symbol const& base, int count, ClassifySettings const& wanted) {
  std::vector<_ptr_t<Symbol>> symbols;
  bool const isUnique = wanted.method == Method::UniqueValues;
  ColorRamp const* const named = ColorRamp::named(wanted.ramp);
  ColorRamp const& ramp = named ? *named : ColorRamp::usual(isUnique ? RampKind::Qualitative : RampKind::Sequential);
  QVector<QColor> const colors = ramp.colors(count, wanted.reversed);
  for (int i = 0; i < count; ++i) {
    if (wanted.sized) {
      double const part = count > 1 ? double(i) / (count - 1) : 1;
      symbols.push_back(base.Clone());
      setSize(*symbols.back(), wanted.from + part * (wanted.to - wanted.from));
    } else {
      symbols.push_back(colored(base, colors[i]));
    }
  }
  return symbols;
}

void addValues(Classes& classes, std::vector<FieldValues::Text> texts, ClassifySettings const& wanted) {
  texts.resize(std::min(texts.size(), size_t(std::min(wanted.classes, ClassifySettings::maxValues))));
  QCollator order;
  order.setNumericMode(true);
  if (wanted.inOrder)
    std::sort(texts.begin(), texts.end(), [&](auto const& a, auto const& b) {
      int const way = order.compare(a.text, b.text);
      return way != 0 ? way < 0 : a.text < b.text;
    });
  for (FieldValues::Text const& text : texts) {
    QString const label = text.text.simplified().left(maxLabel);
    classes.renderer.classes.push_back({label.isEmpty() ? Texts::tr("(empty)") : label, {text.text}, 0, nullptr});
    classes.counts.push_back(text.count);
  }
}

void addRanges(Classes& classes, std::vector<double> const& sorted, ClassifySettings const& wanted) {
  classes.bounds = boundsOf(sorted, wanted);
  std::vector<double> const& bounds = classes.bounds;
  for (size_t i = 0; i + 1 < bounds.size(); ++i) {
    QString const label = bounds[i] == bounds[i + 1]
                              ? boundText(bounds[i])
                              : QStringLiteral("%1 – %2").arg(boundText(bounds[i]), boundText(bounds[i + 1]));
    classes.renderer.classes.push_back({label, {}, bounds[i], nullptr});
  }
  if (!bounds.empty()) classes.counts = classCounts(sorted, {bounds.begin(), bounds.end() - 1});
}

QString problemOf(FieldValues const& values, Symbol const* base, ClassifySettings const& wanted) {
  bool const isUnique = wanted.method == Method::UniqueValues;
  if (!values.error.isEmpty()) return values.error;
  if (!isUnique && !values.isNumeric)
    return Texts::tr("The field “%1” holds no numbers; take the method “unique”, or a field of numbers.")
        .arg(wanted.field);
  if (values.texts.empty()) return Texts::tr("No feature has a value in the field “%1”.").arg(wanted.field);
  int const most = isUnique ? ClassifySettings::maxValues : ClassifySettings::maxClasses;
  if (wanted.classes < 1 || wanted.classes > most)
    return Texts::tr("The number of classes is %1; give one from 1 to %2.").arg(wanted.classes).arg(most);
  if (!wanted.ramp.isEmpty() && !ColorRamp::named(wanted.ramp)) {
    QStringList names;
    for (ColorRamp const& ramp : ColorRamp::all()) names << QLatin1String(ramp.name);
    return Texts::tr("There is no colour ramp “%1”; there are: %2.").arg(wanted.ramp, names.join(QStringLiteral(", ")));
  }
  if (!base) return Texts::tr("The layer has no symbol that could be given other colours; give it one first.");
  if (wanted.sized && SysDisplay::sizeOf(*base) <= 0)
    return Texts::tr("Only markers and lines have sizes; take colours for the layer's areas.");
  return QString();
}

}  // namespace

std::optional<Method> ClassifySettings::methodOf(QString const& name) {
  for (auto const& one : methods)
    if (name == QLatin1String(one.name)) return one.method;
  return std::nullopt;
}

QStringList ClassifySettings::methodNames() {
  QStringList names;
  for (auto const& one : methods) names << QLatin1String(one.name);
  return names;
}

QString boundText(double bound) {
  constexpr int significantDigits = 6;
  return SysUtility::grouped(bound, significantDigits);
}

Classes classify(FieldValues const& values, RendererSettings const& now, ClassifySettings const& wanted) {
  Classes classes;
  auto const base = symbolOf(now);
  classes.problem = problemOf(values, base.get(), wanted);
  if (!classes.problem.isEmpty()) return classes;
  bool const isUnique = wanted.method == Method::UniqueValues;
  classes.renderer.kind = isUnique ? RendererSettings::Kind::UniqueValues : RendererSettings::Kind::Graduated;
  classes.renderer.field = wanted.field;
  classes.renderer.others = now.others;
  classes.missing = values.missing;
  auto const sorted = sortedValues(values.numbers).sorted;
  if (wanted.method == Method::Proportional) {
    makeProportional(classes, sorted, *base, wanted);
    return classes;
  }
  if (isUnique)
    addValues(classes, values.texts, wanted);
  else
    addRanges(classes, sorted, wanted);
  auto const symbols = symbolsFor(*base, static_cast<int>(classes.renderer.classes.size()), wanted);
  for (size_t i = 0; i < symbols.size(); ++i) classes.renderer.classes[i].symbol = symbols[i];
  return classes;
}

}  // namespace SysCarto
