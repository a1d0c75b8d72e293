#pragma once

#include "DataSurvey.h"

#include <QString>
#include <QStringList>

/// The coordinate system for a map of some part of the globe, and why this one.
struct ProjectionChoice {
  QString definition;  ///< as a document has it
  QString name;        ///< what a person is told: “Albers equal-area conic projection, 40° and 60° N”
  QString reason;      ///< a sentence
  bool isGlobe;        ///< whether all of the globe shows, with an outline of its own

  /// `ownSystems` are those of the data, each once. The rules: the whole world and continents keep areas; regions get a
  /// conic projection where they are broad and an azimuthal one otherwise; towns, and whatever the data's own projected
  /// system shows without a distortion that could be measured on paper, keep that, or get a zone of UTM.
  static ProjectionChoice forArea(GlobeArea const& area, QStringList const& ownSystems);

  /// The same; without a definition where it is not known where on the globe the data are.
  static ProjectionChoice forData(DataPlace const& place);
};
