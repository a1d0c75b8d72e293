#include "Classification.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace SysCarto {

namespace {

using Numbers = std::vector<double>;

constexpr double boundsMove = 0.05;  // of the narrower class beside a bound
constexpr double nearlyOne = 1 - 1e-7;

Numbers equalIntervals(Numbers const& sorted, int count) {
  double const first = sorted.front(), last = sorted.back();
  Numbers bounds;
  for (int i = 0; i <= count; ++i) bounds.push_back(i < count ? first + (last - first) / count * i : last);
  return bounds;
}

Numbers quantiles(Numbers const& sorted, int count) {
  Numbers bounds;
  for (int i = 0; i <= count; ++i) {
    double const place = double(sorted.size() - 1) * i / count;
    auto const below = static_cast<size_t>(place), above = std::min(below + 1, sorted.size() - 1);
    bounds.push_back(sorted[below] + (place - double(below)) * (sorted[above] - sorted[below]));
  }
  return bounds;
}

// A step of 1, 2, 5 or 10 times a power of ten, the nearest to what is wanted, larger ones preferred (Becker, Chambers
// and Wilks, The New S Language, 1988).
double roundStep(double wanted) {
  constexpr double bias = 1.5, biasOfFive = 0.5 + 1.5 * bias;
  double const power = std::pow(10, std::floor(std::log10(wanted)));
  double step = power;
  if (2 * power - wanted < bias * (wanted - step)) step = 2 * power;
  if (step > power && 5 * power - wanted < biasOfFive * (wanted - step)) step = 5 * power;
  if (step > 2 * power && 10 * power - wanted < bias * (wanted - step)) step = 10 * power;
  return step;
}

// Round numbers about a range. Where it is so narrow that steps can't be counted from 0, equal intervals.
Numbers pretty(double first, double last, int count) {
  constexpr double nearly = 1e-7, mostSteps = 4503599627370496;  // 2^52: beyond it a step more may be none
  double const step = roundStep((last - first) / count);
  if (std::max(std::abs(first), std::abs(last)) > mostSteps * step) return equalIntervals({first, last}, count);
  double from = std::floor(first / step + nearly), to = std::ceil(last / step - nearly);
  int const fewest = count / 3;
  for (bool below = false; to - from < fewest; below = !below) (below ? from : to) += below ? -1 : 1;
  Numbers bounds;
  for (double i = from; i <= to; ++i) bounds.push_back(i * step);
  return bounds;
}

Numbers deviations(Numbers const& sorted, int count) {
  double const mean = std::accumulate(sorted.begin(), sorted.end(), 0.0L) / sorted.size();
  long double squares = 0;
  for (double const value : sorted) squares += static_cast<long double>(value - mean) * (value - mean);
  double const deviation = std::sqrt(squares / (sorted.size() - 1));
  Numbers bounds = pretty((sorted.front() - mean) / deviation, (sorted.back() - mean) / deviation, count);
  for (double& bound : bounds) bound = mean + bound * deviation;
  return bounds;
}

// Fisher's classes (W. D. Fisher, On Grouping for Maximum Homogeneity, 1958): of all ways to cut the sorted values, the
// one with the least sum of squares within classes. The best last cut moves up with the number of values, so each level
// is solved by divide and conquer in n log n.
class FisherClasses {
public:
  explicit FisherClasses(Numbers const& sorted) {
    int different = 1;
    for (size_t i = 1; i < sorted.size(); ++i) different += sorted[i] != sorted[i - 1];
    int const stride = (different + maxExactValues - 1) / maxExactValues;
    long double const middle = sorted[sorted.size() / 2];
    long double sum = 0, squares = 0;
    int seen = 0;
    for (size_t i = 0; i < sorted.size(); ++i) {
      if ((i == 0 || sorted[i] != sorted[i - 1]) && seen++ % stride == 0) {
        starts_.push_back(i);
        sums_.push_back({sum, squares});
      }
      sum += sorted[i] - middle;
      squares += (sorted[i] - middle) * (sorted[i] - middle);
    }
    starts_.push_back(sorted.size());
    sums_.push_back({sum, squares});
  }

  // Where in the sorted values each class but the first begins.
  std::vector<size_t> cuts(int count) {
    int const places = static_cast<int>(starts_.size()) - 1;
    count = std::min(count, places);
    former_.assign(places + 1, 0);
    for (int end = 1; end <= places; ++end) former_[end] = squaresWithin(0, end);
    best_ = former_;
    for (int level = 1; level < count; ++level) {
      cutAt_.emplace_back(places + 1, 0);
      solve(level + 1, places, level, places - 1);
      former_.swap(best_);
    }
    std::vector<size_t> cuts;
    for (int level = count - 1, end = places; level > 0; --level) {
      end = cutAt_[level - 1][end];
      cuts.insert(cuts.begin(), starts_[end]);
    }
    return cuts;
  }

private:
  struct Sums {
    long double sum, squares;
  };

  long double squaresWithin(int from, int to) const {
    long double const sum = sums_[to].sum - sums_[from].sum;
    return sums_[to].squares - sums_[from].squares - sum * sum / (starts_[to] - starts_[from]);
  }

  // Of ends between `first` and `last`, the best last cut, known to lie between `low` and `high`.
  void solve(int first, int last, int low, int high) {
    if (first > last) return;
    int const end = first + (last - first) / 2;
    int cut = low;
    long double least = -1;
    for (int i = low; i <= std::min(high, end - 1); ++i) {
      long double const all = former_[i] + squaresWithin(i, end);
      if (least >= 0 && all >= least) continue;
      least = all;
      cut = i;
    }
    best_[end] = std::max(least, 0.0L);
    cutAt_.back()[end] = cut;
    solve(first, end - 1, low, cut);
    solve(end + 1, last, cut, high);
  }

  std::vector<size_t> starts_;  // of the different values in the sorted ones, and the end
  std::vector<Sums> sums_;      // of the values before each
  std::vector<long double> former_, best_;
  std::vector<std::vector<int>> cutAt_;  // by level and end
};

// A bound lies in the middle between the classes.
Numbers naturalBreaks(Numbers const& sorted, int count) {
  Numbers bounds{sorted.front()};
  for (size_t const cut : FisherClasses(sorted).cuts(count)) bounds.push_back((sorted[cut - 1] + sorted[cut]) / 2);
  bounds.push_back(sorted.back());
  return bounds;
}

}  // namespace

ClassedValues sortedValues(std::vector<double> values) {
  auto const end = std::remove_if(values.begin(), values.end(), [](double value) { return !std::isfinite(value); });
  int const missing = static_cast<int>(values.end() - end);
  values.erase(end, values.end());
  std::sort(values.begin(), values.end());
  return {std::move(values), missing};
}

Numbers classBounds(Numbers const& sorted, ClassMethod method, int count) {
  if (sorted.empty() || count < 1) return {};
  if (sorted.front() == sorted.back()) return {sorted.front(), sorted.back()};
  Numbers bounds;
  switch (method) {
    case ClassMethod::EqualIntervals: bounds = equalIntervals(sorted, count); break;
    case ClassMethod::Quantiles: bounds = quantiles(sorted, count); break;
    case ClassMethod::NaturalBreaks: bounds = naturalBreaks(sorted, count); break;
    case ClassMethod::StandardDeviation: bounds = deviations(sorted, count); break;
    case ClassMethod::Pretty: bounds = pretty(sorted.front(), sorted.back(), count); break;
  }
  bounds.erase(std::unique(bounds.begin(), bounds.end()), bounds.end());
  return bounds;
}

double roundestWithin(double lowest, double highest) {
  if (!(lowest < highest)) return highest;
  if (lowest <= 0 && highest >= 0) return 0;
  double const nearer = lowest > 0 ? lowest : -highest, farther = lowest > 0 ? highest : -lowest;
  for (double step = std::pow(10, std::ceil(std::log10(farther))); step > (farther - nearer) / 20; step /= 10)
    for (double const part : {1.0, 0.5, 0.2, 0.1}) {
      double const unit = step * part, place = std::ceil(nearer / unit * nearlyOne) * unit;
      if (place >= nearer && place <= farther) return lowest > 0 ? place : -place;
    }
  return highest;
}

Numbers roundedBounds(Numbers const& sorted, Numbers bounds) {
  if (sorted.empty() || bounds.size() < 2 || bounds.front() == bounds.back()) return bounds;
  Numbers const exact = bounds;
  size_t const last = exact.size() - 1;
  for (size_t i = 0; i <= last; ++i) {
    double const room = boundsMove * std::min(i > 0 ? exact[i] - exact[i - 1] : exact[1] - exact[0],
                                              i < last ? exact[i + 1] - exact[i] : exact[last] - exact[last - 1]);
    auto const own = std::lower_bound(sorted.begin(), sorted.end(), exact[i]);
    double lowest = exact[i] - room, highest = exact[i] + room;
    if (own != sorted.end()) highest = std::min(highest, *own);
    if (own != sorted.begin()) lowest = std::max(lowest, std::nextafter(*(own - 1), highest));
    if (i == last) lowest = std::max(lowest, sorted.back()), highest = exact[i] + room;
    bounds[i] = roundestWithin(lowest, highest);
  }
  return bounds;
}

std::vector<int> classCounts(Numbers const& sorted, Numbers const& minima) {
  std::vector<int> counts;
  for (size_t i = 0; i < minima.size(); ++i) {
    auto const from = std::lower_bound(sorted.begin(), sorted.end(), minima[i]);
    auto const to = i + 1 < minima.size() ? std::lower_bound(from, sorted.end(), minima[i + 1]) : sorted.end();
    counts.push_back(static_cast<int>(to - from));
  }
  return counts;
}

}  // namespace SysCarto
