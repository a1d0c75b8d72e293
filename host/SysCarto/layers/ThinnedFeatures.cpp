#include "ThinnedFeatures.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double cellPx = 1.0 / 8;
constexpr double sameResolution = 1e-6;

// Cells come in steps of a quarter octave, the steps at places where no round resolution lies.
double cellFor(double unitsPerPixel) {
  constexpr double place = 0.37;
  return std::exp2((std::floor(std::log2(unitsPerPixel * cellPx) * 4 + place) - place) / 4);
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
  xy_.clear();
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
    bool const ring = part.kind == PartKind::Ring || part.kind == PartKind::FilledRing;
    double const* const xy = store_.vertices(part);
    part.first = static_cast<int>(xy_.size() / 2);
    if (part.kind == PartKind::Point)
      xy_.insert(xy_.end(), xy, xy + 2);
    else
      part.count = thinInto(xy, part.count, ring);
    if (part.count < (part.kind == PartKind::Point ? 1 : ring ? 3 : 2)) {
      xy_.resize(2 * static_cast<size_t>(part.first));
      continue;
    }
    part.startsPolygon = startsPolygon;
    startsPolygon = false;
    parts_.push_back(part);
  }
  place.partCount = static_cast<int>(parts_.size()) - place.firstPart;
}

// Of the vertices of one cell that follow each other the smallest one stays, whatever the direction of the line. The
// ends of an open line stay, too.
int ThinnedFeatures::thinInto(double const* xy, int count, bool closed) {
  size_t const start = xy_.size();
  auto const cellOf = [this](double value) { return std::floor(value / cell_); };
  auto const end = [&](int i) { return !closed && (i == 0 || i + 1 == count); };
  double cellX = 0, cellY = 0, x = 0, y = 0;
  bool holds = false;
  auto const keep = [this](double keptX, double keptY) {
    xy_.push_back(keptX);
    xy_.push_back(keptY);
  };
  auto const flush = [&] {
    if (holds) keep(x, y);
    holds = false;
  };
  for (int i = 0; i < count; ++i) {
    double const vx = xy[2 * i], vy = xy[2 * i + 1];
    double const cx = cell_ > 0 ? cellOf(vx) : vx, cy = cell_ > 0 ? cellOf(vy) : vy;
    if (!holds || cx != cellX || cy != cellY || end(i)) {
      flush();
      x = vx;
      y = vy;
    } else if (vx < x || (vx == x && vy < y)) {
      x = vx;
      y = vy;
    }
    cellX = cx;
    cellY = cy;
    holds = !end(i);
    if (end(i)) keep(vx, vy);
  }
  flush();
  int const kept = static_cast<int>((xy_.size() - start) / 2);
  bool const tiny = kept == 2 && !closed && xy_[start] == xy_[start + 2] && xy_[start + 1] == xy_[start + 3];
  if (tiny) xy_.resize(start);
  return tiny ? 0 : kept;
}

}  // namespace SysCarto
