#include "FeatureLooks.h"

#include "host/SysCarto/layers/Classification.h"
#include "host/SysDisplay/SymbolVariation.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <functional>

namespace SysCarto {

using SysDisplay::Symbol;
using SysUtility::_ptr_t;
using Property = VariedProperty::Kind;

namespace {

constexpr double none = -1e308;           // of a look: the symbol's own; unlike a NaN it can be compared
constexpr double sizeStepsPerPoint = 20;  // sizes that nobody can tell apart are one
constexpr double maxSizePt = 1000;

bool isProportional(Renderer const& renderer) {
  return renderer.settings().kind == RendererSettings::Kind::Proportional;
}

std::vector<int> drawnOf(std::vector<int> const& fitting, Renderer const& renderer, double scale) {
  std::vector<int> drawn;
  for (int const one : fitting)
    if (renderer.classes()[one].scales.contains(scale) && (drawn.empty() || renderer.settings().allMatch))
      drawn.push_back(one);
  return drawn;
}

}  // namespace

FeatureLooks::FeatureLooks(Renderer const& renderer, FeatureStore const& store, double scaleDenominator)
    : renderer_(renderer), store_(store) {
  if (renderer.settings().kind == RendererSettings::Kind::Rules)
    for (auto const& fitting : store.classSets) drawing_.push_back(drawnOf(fitting, renderer, scaleDenominator));
  else
    for (int i = 0; i < static_cast<int>(renderer.classes().size()); ++i) drawing_.push_back({i});
  if (!isProportional(renderer)) return;
  reference_ = renderer.settings().proportional.reference;
  if (reference_ <= 0) reference_ = store.largestValue(0);
}

bool FeatureLooks::varies(int symbolClass) const {
  auto const& varied = renderer_.varied();
  return std::any_of(varied.begin(), varied.end(),
                     [&](VariedProperty const& one) { return one.symbolClass == symbolClass; });
}

double FeatureLooks::adjusted(VariedProperty const& property, double value) const {
  if (!std::isfinite(value)) return none;
  if (property.kind == Property::Color) return value;
  if (property.kind == Property::Angle) return std::round(std::remainder(value, 360));
  Symbol const* const symbol = renderer_.classes()[property.symbolClass].symbol.get();
  if (isProportional(renderer_) && symbol)
    value = renderer_.settings().proportional.sizeOf(value, reference_, SysDisplay::sizeOf(*symbol));
  return std::round(std::clamp(value, 0.0, maxSizePt) * sizeStepsPerPoint) / sizeStepsPerPoint;
}

FeatureLooks::Look FeatureLooks::lookOf(int symbolClass, int feature) const {
  Look look;
  auto const& varied = renderer_.varied();
  for (size_t i = 0; i < varied.size(); ++i)
    if (varied[i].symbolClass == symbolClass)
      look.push_back(adjusted(varied[i], store_.value(feature, static_cast<int>(i))));
  return look;
}

FeatureLooks::Look FeatureLooks::largest(int symbolClass) const {
  Look look;
  auto const& varied = renderer_.varied();
  for (size_t i = 0; i < varied.size(); ++i) {
    if (varied[i].symbolClass != symbolClass) continue;
    bool const isSize = varied[i].kind == Property::Size;
    Symbol const* const symbol = renderer_.classes()[symbolClass].symbol.get();
    double const largest = isSize ? adjusted(varied[i], store_.largestValue(static_cast<int>(i))) : none;
    look.push_back(isSize && symbol ? std::max(largest, SysDisplay::sizeOf(*symbol)) : none);
  }
  return look;
}

_ptr_t<Symbol> FeatureLooks::symbol(int symbolClass, Look const& look) const {
  auto const& own = renderer_.classes()[symbolClass].symbol;
  if (look.empty() || !own) return own;
  auto symbol = own->Clone();
  auto value = look.begin();
  for (VariedProperty const& property : renderer_.varied()) {
    if (property.symbolClass != symbolClass) continue;
    double const given = *value++;
    if (given == none) continue;
    switch (property.kind) {
      case Property::Size: setSize(*symbol, given); break;
      case Property::Color: setColor(*symbol, QColor::fromRgba(static_cast<QRgb>(given))); break;
      case Property::Angle: setAngle(*symbol, given); break;
    }
  }
  return symbol;
}

bool FeatureLooks::isSorted() const { return isProportional(renderer_); }

double FeatureLooks::rankOf(int feature) const {
  double const value = store_.value(feature, 0);
  return std::isnan(value) ? none : value;
}

void FeatureLooks::sort(std::vector<int>& features) const {
  if (!isSorted()) return;
  std::stable_sort(features.begin(), features.end(), [this](int a, int b) { return rankOf(a) > rankOf(b); });
}

_ptr_t<Symbol> FeatureLooks::markerFor(double number) const {
  return symbol(0, {adjusted(renderer_.varied().front(), number)});
}

// Of diameters about a half and a quarter of the largest.
std::vector<double> FeatureLooks::toldNumbers() const {
  auto const& given = renderer_.settings().proportional.told;
  std::vector<double> numbers(given.begin(), given.end());
  double const largest = store_.largestValue(0) > 0 ? store_.largestValue(0) : reference_;
  if (numbers.empty() && largest > 0)
    for (double const part : {1.0, 0.25, 0.05}) numbers.push_back(roundestWithin(largest * part * 0.7, largest * part));
  std::sort(numbers.begin(), numbers.end(), std::greater<>());
  return numbers;
}

}  // namespace SysCarto
