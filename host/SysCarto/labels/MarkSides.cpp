#include "MarkSides.h"

#include "LabelSettings.h"

#include <algorithm>
#include <iterator>

namespace SysCarto {

namespace {

constexpr double placeCost = 0.1;
constexpr double slant = 0.35;  // of the height

MarkSide sideOf(PointPlace const& place, double cost) {
  auto const kind = place.across == 0 && place.up != 0 ? MarkSide::Kind::Over : MarkSide::Kind::Beside;
  return {kind, double(place.across), double(place.up), cost};
}

}  // namespace

std::vector<MarkSide> sidesOf(LabelSettings const& settings) {
  std::vector<MarkSide> sides;
  auto const next = [&sides] { return placeCost * static_cast<double>(sides.size()); };
  for (QString const& name : settings.places)
    for (PointPlace const& place : pointPlaces)
      if (name == QLatin1String(place.name)) sides.push_back(sideOf(place, next()));
  if (!sides.empty()) return sides;
  std::for_each(std::begin(pointPlaces), std::prev(std::end(pointPlaces)),
                [&](PointPlace const& place) { sides.push_back(sideOf(place, next())); });
  for (double const up : {0.5, -0.5})
    for (double const across : {1, -1}) sides.push_back({MarkSide::Kind::Beside, across, up, next()});
  for (double const across : {0.5, -0.5, 1.0, -1.0})
    for (double const up : {1, -1}) sides.push_back({MarkSide::Kind::Over, across, up, next()});
  return sides;
}

// On a slant the text stands a little above or below the mark's middle, so that eye and mark
// meet at its height; straight above and below it keeps clear of the mark.
Box boxAt(Box const& mark, MarkSide const& side, double width, double height, double offset) {
  double const x = (mark.xmin + mark.xmax) / 2, y = (mark.ymin + mark.ymax) / 2;
  double left = x + (side.across - 1) * width / 2, bottom = y + (side.up * slant - 0.5) * height;
  if (side.kind == MarkSide::Kind::Over) {
    bottom = side.up > 0 ? mark.ymax + offset : mark.ymin - offset - height;
  } else if (side.across != 0) {
    left = side.across > 0 ? mark.xmax + offset : mark.xmin - offset - width;
  }
  return {left, bottom, left + width, bottom + height};
}

}  // namespace SysCarto
