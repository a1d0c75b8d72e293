#pragma once

#include <cmath>

/// The next round scale denominator, no more than a tenth above.
inline double roundScale(double denominator) {
  if (!(denominator > 0)) return denominator;
  constexpr double steps[] = {1,    1.1, 1.2, 1.25, 1.3, 1.4, 1.5, 1.6, 1.75, 1.8, 2, 2.2, 2.5, 2.75, 3,
                              3.25, 3.5, 4,   4.5,  5,   5.5, 6,   6.5, 7,    7.5, 8, 8.5, 9,   9.5,  10};
  double const ten = std::pow(10, std::floor(std::log10(denominator)));
  for (double const step : steps)
    if (step * ten >= denominator * (1 - 1e-9)) return step * ten;
  return denominator;
}
