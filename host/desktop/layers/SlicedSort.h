#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

/// Sorts the numbers from 0 on in slices, so that a window stays alive meanwhile: short runs first, which are then
/// merged.
class SlicedSort {
public:
  /// `isBefore` is a strict order; numbers that are equal in it stay in theirs.
  SlicedSort(int count, std::function<bool(int, int)> isBefore);

  /// Goes on for so many milliseconds; false when all is sorted.
  bool advance(int ms);

  /// How far it is, from 0 to 1.
  double progress() const;

  /// The numbers in their order, once all is sorted.
  std::vector<int> take() { return std::move(sorted_); }

private:
  bool comesLater(int runA, int runB) const;
  void sortRun();
  void beginMerge();
  void mergeOne();

  std::function<bool(int, int)> const isBefore_;
  std::vector<int> numbers_, sorted_;
  std::vector<size_t> next_;  // of each run, in `numbers_`
  std::vector<int> heap_;     // of the runs that have something left
  size_t ordered_ = 0;        // in runs
};
