#pragma once

#include "GlobeArea.h"

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layers/FieldValues.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class OGRGeometry;

/// What one pass over the features of a layer tells of a field.
struct FieldSurvey {
  QString name;
  SysCarto::FieldDescription::Kind kind;
  int given = 0;                ///< features that have a value
  QHash<QString, int> values;   ///< and how many features have each; of no more than `maxValues`
  std::vector<double> numbers;  ///< of a field of numbers, those that are given; the first `maxNumbers`
  bool hasMoreValues = false;
  double minimum = 0, maximum = 0;  ///< of numbers
  qint64 letters = 0;               ///< of all texts together, as is `length`
  qint64 length = 0;

  static constexpr int maxValues = 5000, maxNumbers = 1 << 20;

  bool isText() const { return kind == SysCarto::FieldDescription::Kind::Text; }
  bool isNumber() const {
    return kind == SysCarto::FieldDescription::Kind::Integer || kind == SysCarto::FieldDescription::Kind::Real;
  }
  int distinct() const { return values.size(); }

  /// As they would be read anew to make classes of them; nothing where not all numbers are known.
  std::optional<SysCarto::FieldValues> numbersOf(int features) const;
};

/// A layer of a data file, looked at to make a map of it.
struct LayerSurvey {
  SysCarto::SourceSettings source;
  SysCarto::LayerDescription description;
  int count = 0;                             ///< of features that have a geometry and that the filter admits
  QMap<SysCarto::GeometryKind, int> counts;  ///< the same by kind; `Mixed` for collections
  int outliers = 0;                          ///< about so many lie far from the others, and count for neither extent
  GlobeExtent extent;                        ///< in degrees; empty where the coordinate system is not known
  SysGeometry::Box box;                      ///< in the source's coordinate system
  double largestKm2 = 0;                     ///< about the largest feature, as of `DrawingOrder`
  double covered = 1;                        ///< which part of the extent areas cover, about
  double typical = 1;                        ///< which part of the box that about a feature in the middle of all takes
  std::vector<FieldSurvey> fields;

  FieldSurvey const* field(QString const& name) const;

  /// Calls `use` with the geometry of each feature and its text in a field, which may be empty. Few areas are kept
  /// since they were surveyed, of many the file is read again.
  void forEachFeature(QString const& field,
                      std::function<void(OGRGeometry const&, QString const& text)> const& use) const;

  struct Kept;
  std::shared_ptr<Kept const> kept;
};

/// Where some layers are on the globe, together.
struct DataPlace {
  GlobeArea area = {-180, -90, 180, 90};  ///< all of it where that is not known of any layer
  bool isKnown = false;
  bool hasFeatures = false;
  QStringList systems;  ///< of the layers, each once
  int outliers = 0;

  static DataPlace of(std::vector<LayerSurvey> const& layers);

  /// That outliers count for nothing, as a sentence; empty where there are none.
  QString outlierText() const;
};

/// Whether a layer of a file holds the points of tracks or routes, which lines of another layer show already.
bool isPartOfTrack(QString const& layer, SysCarto::DataFile const& file);

/// Reads all features of a layer once. Where they can't be read, or not to their end, `problem` gets a sentence;
/// nothing where there are none then, and where `progress` wanted no more.
std::optional<LayerSurvey> surveyLayer(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer,
                                       SysCarto::ReadProgress const& progress, QString& problem);

/// The features of an area layer by the value of a field, sorted into at most so many groups of which neighbours, as
/// far as possible, are in different ones. Areas are neighbours where they share an edge of their outlines or come
/// close.
std::vector<QStringList> groupsOfNeighbours(LayerSurvey const& survey, QString const& field, int groups);
