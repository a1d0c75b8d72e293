#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

/// A part of the globe in degrees: from `west` eastwards to `east`, which may lie beyond 180, at most 360 from it.
struct GlobeArea {
  double west = 0, south = 0, east = 0, north = 0;

  double width() const { return east - west; }
  double height() const { return north - south; }
  double centreLatitude() const { return (south + north) / 2; }

  /// Within ±180.
  double centreLongitude() const { return std::remainder((west + east) / 2, 360.0); }

  static constexpr double kmPerDegree = 111.2;  // of a meridian
  double heightKm() const { return height() * kmPerDegree; }

  /// Where it is widest.
  double widthKm() const {
    double const nearest = south > 0 ? south : north < 0 ? north : 0;
    return width() * kmPerDegree * std::cos(nearest * M_PI / 180);
  }
};

/// Finds the smallest area that holds places and lines, across the antimeridian where that is shorter.
class GlobeExtent {
public:
  /// In degrees; longitudes of any turn. What is no place on the globe is passed over.
  void addPlace(double longitude, double latitude) {
    constexpr double farthest = 1080;
    if (!(std::abs(longitude) <= farthest && std::abs(latitude) <= 90)) return;
    taken_[bin(longitude)] = true;
    south_ = std::min(south_, latitude);
    north_ = std::max(north_, latitude);
  }

  /// Everything between two places, the shorter way round.
  void addLine(double fromLongitude, double fromLatitude, double toLongitude, double toLatitude) {
    addPlace(fromLongitude, fromLatitude);
    addPlace(toLongitude, toLatitude);
    double const way = toLongitude - fromLongitude;
    if (!(std::abs(way) < 180)) return;  // also of what is no number; and a seam in the data is no line
    for (double at = 0; at < std::abs(way); at += step) taken_[bin(fromLongitude + std::copysign(at, way))] = true;
  }

  void add(GlobeArea const& area) {
    addPlace(area.west, area.south);
    addPlace(area.east, area.north);
    for (double at = area.west; at < area.east; at += step) taken_[bin(at)] = true;
  }

  bool isEmpty() const { return south_ > north_; }

  /// All but the widest gap between longitudes, to a tenth of a degree.
  GlobeArea area() const {
    int const count = static_cast<int>(taken_.size());
    int gapEnd = 0, widest = 0, gap = 0;
    for (int i = 0; i < 2 * count; ++i) {
      gap = taken_[i % count] ? 0 : gap + 1;
      if (gap > widest && gap < count) widest = gap, gapEnd = i + 1;
    }
    double const west = widest == 0 ? -180 : gapEnd % count * step - 180;
    return {west, south_, west + (count - widest) * step, north_};
  }

private:
  static constexpr double step = 0.1;

  int bin(double longitude) const {
    double const turned = longitude - 360 * std::floor((longitude + 180) / 360);
    return std::clamp(static_cast<int>((turned + 180) / step), 0, static_cast<int>(taken_.size()) - 1);
  }

  std::vector<bool> taken_ = std::vector<bool>(3600);
  double south_ = 1e9, north_ = -1e9;
};
