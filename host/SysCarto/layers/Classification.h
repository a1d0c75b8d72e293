#pragma once

#include <SysCarto/Export.h>

#include <vector>

namespace SysCarto {

/// How numbers are cut into classes. A class reaches from its lowest number to the next class.
enum class ClassMethod {
  EqualIntervals,     ///< of the same width
  Quantiles,          ///< of the same count, as far as equal numbers let them (interpolated as in a statistic's type 7)
  NaturalBreaks,      ///< with the least squares within classes: Fisher's exact algorithm, known as Jenks's
  StandardDeviation,  ///< by round multiples of the standard deviation from the mean
  Pretty              ///< at round numbers
};

/// Numbers in order, and how many were left out since they are none.
struct ClassedValues {
  std::vector<double> sorted;
  int missing = 0;
};

/// Sorts, and takes NaN and infinite numbers out.
SYSCARTO_EXPORT ClassedValues sortedValues(std::vector<double> values);

/// The bounds of about so many classes, ascending, each different from the one before: with n + 1 bounds there are n
/// classes, and the last bound is not below the largest value. Equal numbers are never parted, so there may be fewer
/// classes; round methods choose their count themselves. Of no values none; of one value that, twice.
///
/// Of more than `maxExactValues` different numbers, natural breaks lie only between every second, third … of them.
SYSCARTO_EXPORT std::vector<double> classBounds(std::vector<double> const& sorted, ClassMethod method, int count);
constexpr int maxExactValues = 100000;

/// The same classes of these values between rounder bounds: each may move within the gap between two values, by no more
/// than a small part of the classes beside it.
SYSCARTO_EXPORT std::vector<double> roundedBounds(std::vector<double> const& sorted, std::vector<double> bounds);

/// The roundest number in a range: that with the fewest digits.
SYSCARTO_EXPORT double roundestWithin(double lowest, double highest);

/// How many of the values lie in each class, which begin at these numbers; the last class has no end.
SYSCARTO_EXPORT std::vector<int> classCounts(std::vector<double> const& sorted, std::vector<double> const& minima);

}  // namespace SysCarto
