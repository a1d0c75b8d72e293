#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <QJsonObject>
#include <QString>

/// What the name of a layer says that it shows, and how that is drawn on maps.
struct Theme {
  enum class Subject { Unknown, Water, Land, Road, Rail, Building, Green, Boundary, Contour, Settlement, Track };

  Subject subject = Subject::Unknown;

  static Theme of(QString const& layerName, SysCarto::GeometryKind kind);

  /// Empty where the theme has no look of its own for this kind. `fineness` is 1 for what has room, less for what is
  /// crowded.
  QJsonObject symbol(SysCarto::GeometryKind kind, double fineness) const;

  /// Of what a class of roads says, as `motorway`, their weight: 5 for the heaviest, 1 for paths; 0 for what is none.
  static int roadWeight(QString const& value);
  static QJsonObject roadSymbol(int weight, double fineness);
};

// Symbols as documents store them; sizes in points.
QJsonObject fillSymbol(char const* color, char const* outline, double outlineWidth);
QJsonObject lineSymbol(char const* color, double width);
QJsonObject markerSymbol(char const* color, double size, char const* outline, double outlineWidth);
QJsonObject textSymbol(char const* family, double size, char const* color);
