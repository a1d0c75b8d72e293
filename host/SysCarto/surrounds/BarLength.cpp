#include "BarLength.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

// A round length of the whole bar, and into how many round lengths it is divided.
struct RoundLength {
  double length;
  int divisions;
};
constexpr RoundLength roundLengths[] = {{1, 4}, {2, 4}, {3, 3}, {4, 4}, {5, 5}, {6, 3}, {8, 4}};
constexpr double roundSteps[] = {1, 2, 2.5, 5};

double metresOf(BarUnit unit) { return unit == BarUnit::Automatic ? 1 : groundUnit(unit).metres; }

double powerBelow(double value) { return std::pow(10.0, std::floor(std::log10(value))); }

bool isWithin(double value, double most) { return value <= most * (1 + 1e-12); }

// Kilometres as soon as each division is one at least.
Bar barOf(double step, int divisions, double metresPerCm, BarUnit asked) {
  GroundUnit const& unit = groundUnit(asked != BarUnit::Automatic ? asked
                                      : step < 1000               ? BarUnit::Metres
                                                                  : BarUnit::Kilometres);
  double const inUnit = asked == BarUnit::Automatic ? step / unit.metres : step;
  return {&unit, inUnit, divisions, inUnit * divisions * unit.metres / metresPerCm};
}

}  // namespace

std::optional<Bar> maxBar(double maxCm, double metresPerCm, ScaleLineSettings const& settings) {
  if (!(maxCm > minBarCm) || !(metresPerCm > 0) || !std::isfinite(metresPerCm)) return std::nullopt;
  double const most = maxCm * metresPerCm / metresOf(settings.unit);
  double step = settings.divisionLength;
  int divisions = settings.divisions;
  if (step > 0 && divisions == 0) {
    divisions = static_cast<int>(std::clamp(std::floor(most / step * (1 + 1e-12)), 0.0, double(maxChosenDivisions)));
    if (divisions == 0) return std::nullopt;
  } else if (divisions > 0 && step == 0) {
    double const power = powerBelow(most / divisions);
    for (double const one : roundSteps)
      if (step == 0 || isWithin(one * power * divisions, most)) step = one * power;
  } else if (divisions == 0) {
    double const power = powerBelow(most);
    RoundLength const* best = roundLengths;
    for (RoundLength const& one : roundLengths)
      if (isWithin(one.length * power, most)) best = &one;
    step = best->length * power / best->divisions;
    divisions = best->divisions;
  }
  Bar const bar = barOf(step, divisions, metresPerCm, settings.unit);
  if (settings.divisionLength > 0 && bar.lengthCm < minBarCm) return std::nullopt;
  return bar;
}

Bar shortestBar(double metresPerCm, ScaleLineSettings const& settings) {
  return barOf(settings.divisionLength, std::max(1, settings.divisions), metresPerCm, settings.unit);
}

}  // namespace SysCarto
