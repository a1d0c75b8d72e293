#include "Relief.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double degree = M_PI / 180;

}  // namespace

Gradient Gradient::of(HeightWindow const& h, double metresAcross, double metresDown) {
  return {((h[2] + 2 * h[5] + h[8]) - (h[0] + 2 * h[3] + h[6])) / (8 * metresAcross),
          ((h[0] + 2 * h[1] + h[2]) - (h[6] + 2 * h[7] + h[8])) / (8 * metresDown)};
}

double Gradient::slopeDegrees() const { return std::atan(std::hypot(right, up)) / degree; }

Hillshade::Hillshade(double azimuthDegrees, double altitudeDegrees, bool multidirectional)
    : sinAltitude_(std::sin(altitudeDegrees * degree)), cosAltitude_(std::cos(altitudeDegrees * degree)) {
  std::vector<double> const directions =
      multidirectional ? std::vector<double>{225, 270, 315, 360} : std::vector<double>{azimuthDegrees};
  for (double const direction : directions)
    lights_.push_back({std::sin(direction * degree), std::cos(direction * degree)});
}

double Hillshade::lit(Gradient const& gradient, Light const& light) const {
  double const towards = -(gradient.right * light.right + gradient.up * light.up);
  double const length = std::sqrt(1 + gradient.right * gradient.right + gradient.up * gradient.up);
  return std::max(0.0, (sinAltitude_ + cosAltitude_ * towards) / length);
}

// Of several lights each counts by how much it comes along the slope, as gdaldem has it (after Mark 1992, "A
// multidirectional, oblique-weighted, shaded-relief image"). Two and two at right angles, their weights are two
// together.
double Hillshade::shade(Gradient const& gradient) const {
  double const steepness = gradient.right * gradient.right + gradient.up * gradient.up;
  if (lights_.size() == 1 || steepness == 0) return 1 + 254 * lit(gradient, lights_.front());
  double sum = 0;
  for (Light const& light : lights_) {
    double const along = gradient.right * light.right + gradient.up * light.up;
    sum += along * along / steepness * lit(gradient, light);
  }
  return 1 + 254 * sum / 2;
}

}  // namespace SysCarto
