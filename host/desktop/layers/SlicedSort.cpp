#include "SlicedSort.h"

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>

namespace {

constexpr size_t runLength = 4096;  // sorted within some milliseconds
constexpr int betweenLooks = 256;   // numbers, at the clock

size_t endOf(size_t run, size_t count) { return std::min(count, (run + 1) * runLength); }

}  // namespace

SlicedSort::SlicedSort(int count, std::function<bool(int, int)> isBefore)
    : isBefore_(std::move(isBefore)), numbers_(static_cast<size_t>(count)) {
  std::iota(numbers_.begin(), numbers_.end(), 0);
}

// The order of a heap, which has the first of all on top.
bool SlicedSort::comesLater(int runA, int runB) const {
  int const a = numbers_[next_[static_cast<size_t>(runA)]], b = numbers_[next_[static_cast<size_t>(runB)]];
  if (isBefore_(a, b)) return false;
  return isBefore_(b, a) || a > b;
}

void SlicedSort::sortRun() {
  size_t const end = std::min(numbers_.size(), ordered_ + runLength);
  std::stable_sort(numbers_.begin() + static_cast<std::ptrdiff_t>(ordered_),
                   numbers_.begin() + static_cast<std::ptrdiff_t>(end), isBefore_);
  ordered_ = end;
}

void SlicedSort::beginMerge() {
  sorted_.reserve(numbers_.size());
  for (size_t start = 0; start < numbers_.size(); start += runLength) {
    heap_.push_back(static_cast<int>(next_.size()));
    next_.push_back(start);
  }
  std::make_heap(heap_.begin(), heap_.end(), [this](int a, int b) { return comesLater(a, b); });
}

void SlicedSort::mergeOne() {
  auto const later = [this](int a, int b) { return comesLater(a, b); };
  std::pop_heap(heap_.begin(), heap_.end(), later);
  size_t const run = static_cast<size_t>(heap_.back());
  sorted_.push_back(numbers_[next_[run]]);
  if (++next_[run] < endOf(run, numbers_.size()))
    std::push_heap(heap_.begin(), heap_.end(), later);
  else
    heap_.pop_back();
}

bool SlicedSort::advance(int ms) {
  QElapsedTimer clock;
  clock.start();
  while (ordered_ < numbers_.size()) {
    sortRun();
    if (clock.elapsed() >= ms) return true;
  }
  if (next_.empty()) beginMerge();
  for (int untilLook = betweenLooks; !heap_.empty(); --untilLook) {
    if (untilLook == 0) {
      if (clock.elapsed() >= ms) return true;
      untilLook = betweenLooks;
    }
    mergeOne();
  }
  return false;
}

double SlicedSort::progress() const {
  if (numbers_.empty()) return 1;
  return static_cast<double>(ordered_ + sorted_.size()) / (2.0 * static_cast<double>(numbers_.size()));
}
