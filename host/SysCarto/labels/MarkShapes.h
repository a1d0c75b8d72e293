#pragma once

#include "host/SysCarto/layers/FeatureLooks.h"

#include <QPointF>

#include <map>

namespace SysCarto {

/// What the uppermost symbols of features cover, in points, y upwards.
class MarkShapes {
public:
  /// Store and renderer must outlive it.
  MarkShapes(FeatureStore const& store, Renderer const& renderer, double mapScale);

  bool isDrawn(int feature) const;

  /// Of a feature that is drawn, at a place; that alone for a symbol that is no marker.
  Box at(int feature, QPointF const& place);

private:
  Box const& shapeOf(int feature);

  FeatureStore const& store_;
  FeatureLooks const looks_;
  std::map<std::pair<int, FeatureLooks::Look>, Box> shapes_;  // by class and look, about the position
};

}  // namespace SysCarto
