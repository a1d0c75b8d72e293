#pragma once

#include "DataSurvey.h"
#include "DrawingOrder.h"

#include <QJsonObject>
#include <QStringList>

/// What a layer of data gets on a map.
struct StyledLayer {
  QString name;  ///< like that of no other
  GlobeExtent extent;
  QJsonObject json;  ///< as a document stores it, its file absolute
  DrawingOrder order;
  QString legendText;   ///< what stands above its classes; empty for the name
  bool isLegendWorthy;  ///< whether a legend tells something that the map does not
  bool isLand = false;  ///< areas with the sea around them
  int outliers;         ///< as of the survey
  QStringList reasons;  ///< what was chosen and why, as sentences
};

/// Styles layers one after the other, so that each is called and looks unlike those before.
class LayerStyling {
public:
  /// For a map of that size on the page, on which what is crowded is drawn finer. `area` is what a map of a small scale
  /// shows of the globe, of nothing for others.
  LayerStyling(double pageCm2, GlobeArea const& area) : pageCm2_(pageCm2), area_(area) {}

  /// Of a layer that is there already, its name and its colours count as used.
  void notice(SysCarto::Layer const& layer);

  /// Nothing else is called so.
  void reserve(QString const& name) { names_ << name; }

  /// In drawing order, the lowest first. One layer for each kind of geometry that there is, since a symbol draws one.
  std::vector<StyledLayer> style(std::vector<LayerSurvey> const& surveys);

private:
  std::vector<StyledLayer> styleKinds(LayerSurvey const& survey);
  std::vector<StyledLayer> styleRaster(LayerSurvey const& survey);
  StyledLayer styleKind(LayerSurvey const& survey, SysCarto::GeometryKind kind, SysCarto::SourceSettings const& source);
  QString freeName(QString const& wanted, QString const& file);

  double const pageCm2_;
  GlobeArea const area_;
  QHash<QString, int> uses_;  // of colours, as documents write them
  QStringList names_;
};
