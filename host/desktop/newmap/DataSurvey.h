#pragma once

#include "GlobeArea.h"

#include "host/SysCarto/layers/DataCatalogue.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <optional>
#include <vector>

/// What one pass over the features of a layer tells of a field.
struct FieldSurvey {
  QString name;
  SysCarto::FieldDescription::Kind kind;
  int given = 0;               ///< features that have a value
  QHash<QString, int> values;  ///< and how many features have each; of no more than `maxValues`
  bool hasMoreValues = false;
  double minimum = 0, maximum = 0;  ///< of numbers
  qint64 letters = 0;               ///< of all texts together, as is `length`
  qint64 length = 0;

  static constexpr int maxValues = 5000;

  bool isText() const { return kind == SysCarto::FieldDescription::Kind::Text; }
  bool isNumber() const {
    return kind == SysCarto::FieldDescription::Kind::Integer || kind == SysCarto::FieldDescription::Kind::Real;
  }
  int distinct() const { return values.size(); }
};

/// A layer of a data file, looked at to make a map of it.
struct LayerSurvey {
  SysCarto::SourceSettings source;
  SysCarto::LayerDescription description;
  int count = 0;                             ///< of features that have a geometry and that the filter admits
  QMap<SysCarto::GeometryKind, int> counts;  ///< the same by kind; `Mixed` for collections
  GlobeExtent extent;                        ///< in degrees; empty where the coordinate system is not known
  SysGeometry::Box box;                      ///< in the source's coordinate system
  std::vector<FieldSurvey> fields;

  FieldSurvey const* field(QString const& name) const;
};

/// Whether a layer of a file holds the points of tracks or routes, which lines of another layer show already.
bool isPartOfTrack(QString const& layer, SysCarto::DataFile const& file);

/// Reads all features of a layer once; `problem` gets a sentence where they can't be read.
std::optional<LayerSurvey> surveyLayer(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer,
                                       QString& problem);

/// The features of an area layer by the value of a field, sorted into at most so many groups of which neighbours, as
/// far as possible, are in different ones. Areas are neighbours where they share an edge of their outlines or come
/// close.
std::vector<QStringList> groupsOfNeighbours(SysCarto::SourceSettings const& source, QString const& field, int groups);
