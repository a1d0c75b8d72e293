#include "Bulk.h"

#include <algorithm>

using SysGeometry::Box;

namespace {

constexpr size_t fewest = 30, oneIn = 100;
constexpr double farther = 3;

// What is left of some numbers when so many are taken away at either end.
std::pair<double, double> within(std::vector<double> numbers, size_t apart) {
  auto const low = numbers.begin() + static_cast<std::ptrdiff_t>(apart);
  auto const high = numbers.end() - 1 - static_cast<std::ptrdiff_t>(apart);
  std::nth_element(numbers.begin(), low, numbers.end());
  double const least = *low;
  std::nth_element(numbers.begin(), high, numbers.end());
  return {least, *high};
}

}  // namespace

Bulk Bulk::of(BoxSample const& sample) {
  std::vector<Box> const& boxes = sample.boxes();
  Bulk const all{sample.all(), 0, boxes};
  if (boxes.size() < fewest) return all;
  std::vector<double> xs, ys;
  for (Box const& box : boxes) {
    xs.push_back((box.xmin + box.xmax) / 2);
    ys.push_back((box.ymin + box.ymax) / 2);
  }
  size_t const most = std::max<size_t>(1, boxes.size() / oneIn);
  auto const [west, east] = within(xs, most);
  auto const [south, north] = within(ys, most);
  double const far = farther * std::max(east - west, north - south);
  Box const near = Box{west, south, east, north}.grown(far);
  if (!(far > 0) || near.contains(sample.all())) return all;
  Bulk bulk;
  for (size_t i = 0; i < boxes.size(); ++i)
    if (near.contains(xs[i], ys[i]))
      bulk.boxes.push_back(boxes[i]);
    else
      ++bulk.outliers;
  // What a sample has passed over may be one, too.
  bool const isWhole = sample.step() == 1;
  if (bulk.outliers > static_cast<int>(most) || (isWhole && bulk.outliers == 0)) return all;
  for (Box const& box : bulk.boxes) bulk.box.add(box);
  bulk.outliers = std::max(1, bulk.outliers * sample.step());
  return bulk;
}
