#pragma once

#include <array>
#include <vector>

namespace SysCarto {

/// Heights about a place, row by row from its upper left neighbour.
using HeightWindow = std::array<double, 9>;

/// How steep the ground is along both sides of a picture: to the right, and upwards, as rise on a metre.
struct Gradient {
  double right = 0, up = 0;

  /// Horn's third-order difference; metres on a pixel across and down.
  static Gradient of(HeightWindow const& heights, double metresAcross, double metresDown);

  double slopeDegrees() const;
};

/// Lambert's shading of the ground, from 1 for what the light does not reach to 255.
class Hillshade {
public:
  Hillshade(double azimuthDegrees, double altitudeDegrees, bool multidirectional);
  double shade(Gradient const& gradient) const;

private:
  struct Light {
    double right, up;  // unit length, in the plane
  };
  double lit(Gradient const& gradient, Light const& light) const;

  double sinAltitude_, cosAltitude_;
  std::vector<Light> lights_;
};

}  // namespace SysCarto
