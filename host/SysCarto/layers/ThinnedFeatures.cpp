#include "ThinnedFeatures.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SysCarto {

namespace {

constexpr double sameResolution = 1e-6;
constexpr double longestMark = 3;  // cells

}  // namespace

void ThinnedFeatures::setResolution(double unitsPerPixel) {
  if (!places_.empty() && std::abs(unitsPerPixel - resolution_) <= sameResolution * resolution_) return;
  auto const grid = ThinningGrid::forPixels(unitsPerPixel);
  resolution_ = unitsPerPixel;
  if (!places_.empty() && grid.cell() == grid_.cell()) return;
  grid_ = grid;
  places_.assign(store_.features.size(), Place());
  parts_.clear();
  vertices_.clear();
  stretches_.clear();
}

ThinnedFeatures::Range ThinnedFeatures::parts(int feature) {
  if (places_[feature].firstPart < 0) thin(feature);
  Part const* const first = parts_.data() + places_[feature].firstPart;
  return {first, first + places_[feature].partCount};
}

void ThinnedFeatures::thin(int feature) {
  Feature const& given = store_.features[feature];
  Place& place = places_[feature];
  place.firstPart = static_cast<int>(parts_.size());
  bool startsPolygon = false;
  bool const isMark = std::max(given.box.xmax - given.box.xmin, given.box.ymax - given.box.ymin) < grid_.cell();
  for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
    Part part = store_.parts[i];
    if (isMark && (part.kind == PartKind::Ring || part.kind == PartKind::FilledRing)) continue;
    startsPolygon = startsPolygon || part.startsPolygon;
    double* const room = vertices_.room(part.count);
    part.count = grid_.thin(part.kind, part.xy, part.count, room);
    if (part.count < ThinningGrid::minVertices(part.kind)) continue;
    vertices_.keep(part.count);
    part.xy = room;
    std::vector<Box> stretches = SysDisplay::stretchesOf(part.run());
    if (!stretches.empty()) {
      stretches_.push_back(std::move(stretches));
      part.stretches = stretches_.back().data();
    }
    part.startsPolygon = startsPolygon;
    startsPolygon = false;
    parts_.push_back(part);
  }
  auto const isSeen = [](Part const& part) { return part.kind != PartKind::Outline; };
  if (std::none_of(parts_.begin() + place.firstPart, parts_.end(), isSeen)) keepMark(given);
  place.partCount = static_cast<int>(parts_.size()) - place.firstPart;
}

// An area of which no part can be seen keeps the least that can, so that it has its colour and its outline: a square,
// or of a strip its two ends.
void ThinnedFeatures::keepMark(Feature const& feature) {
  for (int i = feature.firstPart; i < feature.firstPart + feature.partCount; ++i) {
    Part part = store_.parts[i];
    bool const isArea = part.kind == PartKind::Ring || part.kind == PartKind::FilledRing;
    if (!isArea || !part.startsPolygon) continue;
    if (std::max(part.box.xmax - part.box.xmin, part.box.ymax - part.box.ymin) > longestMark * grid_.cell()) {
      double* const room = vertices_.room(part.count);
      part.count = grid_.thin(part.kind, part.xy, part.count, room);
      vertices_.keep(part.count);
      part.xy = room;
      parts_.push_back(part);
      return;
    }
    double const x = (part.box.xmin + part.box.xmax) / 2, y = (part.box.ymin + part.box.ymax) / 2;
    double const halfX = std::max(part.box.xmax - part.box.xmin, grid_.cell()) / 2;
    double const halfY = std::max(part.box.ymax - part.box.ymin, grid_.cell()) / 2;
    part.count = 4;
    double* const room = vertices_.room(part.count);
    double const corners[] = {x - halfX, y - halfY, x + halfX, y - halfY, x + halfX, y + halfY, x - halfX, y + halfY};
    std::copy(std::begin(corners), std::end(corners), room);
    vertices_.keep(part.count);
    part.xy = room;
    parts_.push_back(part);
    return;
  }
}

}  // namespace SysCarto
