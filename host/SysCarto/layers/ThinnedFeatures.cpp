#include "ThinnedFeatures.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double cellPx = 1.0 / 4;
constexpr double sameResolution = 1e-6;

// Cells come in steps of a quarter octave, the steps at places where no round resolution lies.
double cellFor(double unitsPerPixel) {
  constexpr double place = 0.37;
  return std::exp2((std::floor(std::log2(unitsPerPixel * cellPx) * 4 + place) - place) / 4);
}

int minVertices(PartKind kind) {
  switch (kind) {
    case PartKind::Ring:
    case PartKind::FilledRing: return 3;
    case PartKind::Outline:
    case PartKind::Line: return 2;
    case PartKind::Point: return 1;
  }
  return 1;
}

}  // namespace

void ThinnedFeatures::setResolution(double unitsPerPixel) {
  if (!places_.empty() && std::abs(unitsPerPixel - resolution_) <= sameResolution * resolution_) return;
  double const cell = unitsPerPixel > 0 && std::isfinite(unitsPerPixel) ? cellFor(unitsPerPixel) : 0;
  resolution_ = unitsPerPixel;
  if (!places_.empty() && cell == cell_) return;
  cell_ = cell;
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
  for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
    Part part = store_.parts[i];
    startsPolygon = startsPolygon || part.startsPolygon;
    double* const room = vertices_.room(part.count);
    part.count = thinInto(room, part);
    if (part.count < minVertices(part.kind)) continue;
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
  place.partCount = static_cast<int>(parts_.size()) - place.firstPart;
}

// Of the vertices of one cell that follow each other the smallest one stays, whatever the direction of the line. The
// ends of an open line stay, too. The answer is how many were kept.
int ThinnedFeatures::thinInto(double* kept, Part const& part) const {
  bool const closed = part.kind == PartKind::Ring || part.kind == PartKind::FilledRing;
  auto const cellOf = [this](double value) { return cell_ > 0 ? std::floor(value / cell_) : value; };
  auto const isEnd = [&](int i) { return !closed && (i == 0 || i + 1 == part.count); };
  double cellX = 0, cellY = 0, x = 0, y = 0;
  bool holds = false;
  double* next = kept;
  auto const keep = [&](double keptX, double keptY) {
    *next++ = keptX;
    *next++ = keptY;
  };
  for (int i = 0; i < part.count; ++i) {
    double const vx = part.xy[2 * i], vy = part.xy[2 * i + 1];
    double const cx = cellOf(vx), cy = cellOf(vy);
    if (!holds || cx != cellX || cy != cellY || isEnd(i)) {
      if (holds) keep(x, y);
      x = vx;
      y = vy;
    } else if (vx < x || (vx == x && vy < y)) {
      x = vx;
      y = vy;
    }
    cellX = cx;
    cellY = cy;
    holds = !isEnd(i);
    if (!holds) keep(vx, vy);
  }
  if (holds) keep(x, y);
  int const count = static_cast<int>(next - kept) / 2;
  bool const tiny = count == 2 && !closed && kept[0] == kept[2] && kept[1] == kept[3];
  return tiny ? 0 : count;
}

}  // namespace SysCarto
