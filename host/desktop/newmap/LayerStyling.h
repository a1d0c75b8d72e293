#pragma once

#include "DataSurvey.h"

#include <QJsonObject>
#include <QStringList>

/// What a layer of data gets on a new map.
struct StyledLayer {
  QString name;
  GlobeExtent extent;
  QJsonObject json;     ///< as a document stores it, its file absolute
  int count;            ///< of features
  int height;           ///< what is drawn later is higher: areas, lines, points
  QString legendText;   ///< what stands above its classes; empty for the name
  bool isLegendWorthy;  ///< whether a legend tells something that the map does not
  bool isLand = false;  ///< areas with the sea around them
  QStringList reasons;  ///< what was chosen and why, as sentences
};

/// Styles layers one after the other, so that each looks different from those before.
class LayerStyling {
public:
  /// For a map of that size on the page, on which what is crowded is drawn finer. `area` is what a map of a small scale
  /// shows of the globe, of nothing for others.
  LayerStyling(double pageCm2, GlobeArea const& area) : pageCm2_(pageCm2), area_(area) {}

  /// One layer for each kind of geometry that there is.
  std::vector<StyledLayer> style(LayerSurvey const& survey);

private:
  StyledLayer styleKind(LayerSurvey const& survey, SysCarto::GeometryKind kind, SysCarto::SourceSettings const& source);

  double const pageCm2_;
  GlobeArea const area_;
  int areaColors_ = 0, markColors_ = 0;  // used so far
};
