#pragma once

#include "host/SysCarto/layers/VertexPool.h"
#include "host/SysCarto/projection/PartSink.h"
#include "host/SysDisplay/WorldRun.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QTransform>

#include <map>
#include <memory>
#include <vector>

namespace SysCarto {

class BoxTree;

using SysGeometry::Box;

struct Part {
  double const* xy;  ///< its vertices, owned by what it is a part of
  int count;
  PartKind kind;
  bool startsPolygon;  ///< the first ring of a polygon; its holes and outlines follow
  Box box;
  Box const* stretches = nullptr;  ///< as of a `WorldRun`

  SysDisplay::WorldRun run() const { return {xy, count, stretches}; }
};

struct Feature {
  int firstPart;
  int partCount;
  int symbolClass;  ///< of the renderer, or the number of a set of its rules; −1 is not drawn
  Box box;
};

/// The geometries of a layer in map units, flat, in the order of the source, and what drawing and labelling need of
/// their attributes. Filled once, then only read.
class SYSCARTO_EXPORT FeatureStore final : public PartSink {
public:
  FeatureStore();
  ~FeatureStore() override;
  FeatureStore(FeatureStore const&) = delete;
  FeatureStore& operator=(FeatureStore const&) = delete;

  // Filling. A feature begins, gets its parts and ends; one without parts is dropped. Vertices are x, y pairs.
  /// `id`: its number in the source.
  void beginFeature(qint64 id = -1);
  void startPolygon() override { polygonStarts_ = true; }
  void addPart(PartKind kind, double const* xy, int count) override;
  void addValue(double value) { values.push_back(value); }  ///< as many for each feature
  void endFeature(int symbolClass, QString const& label, double priority, QString const& key = {});

  /// The number of a set of classes that fit a feature, ascending; −1 for none of them.
  int classSetOf(std::vector<int> const& classes);

  /// Takes no features of another store, but what those have besides their geometries, and forgets its own.
  void takeForm(FeatureStore const& other);

  /// Takes over the features of another store that was filled and not finished.
  void append(FeatureStore& other);

  /// Builds the index. Nothing is added afterwards.
  void finish();

  // Reading.
  int size() const { return static_cast<int>(features.size()); }
  Box const& box() const { return box_; }

  /// The numbers of the features whose boxes meet the rectangle, ascending.
  std::vector<int> query(Box const& rectangle) const;

  /// For each of so many classes, whether the geometry of a feature that it draws, turned, meets the rectangle.
  /// `drawing` are the classes that draw features, by their symbol class.
  std::vector<bool> classesWithin(Box const& rectangle, QTransform const& turn,
                                  std::vector<std::vector<int>> const& drawing, int count) const;

  std::vector<Part> parts;
  std::vector<Feature> features;
  std::vector<qint64> ids;         ///< by feature: its number in the source, to ask for its attributes
  std::vector<QString> labels;     ///< by feature; empty where the layer has no labels
  std::vector<double> priorities;  ///< by feature, higher is placed first; as `labels`
  std::vector<QString> keys;       ///< by feature, what its label is known by; as `labels`
  bool keepsLabels = false;
  std::vector<double> values;  ///< `valuesPerFeature` of each feature that its symbols follow; not a number for none
  int valuesPerFeature = 0;
  std::vector<std::vector<int>> classSets;  ///< of rules

  double value(int feature, int number) const {
    return values[static_cast<size_t>(feature) * valuesPerFeature + number];
  }

  /// Of features that are some of many: the largest numbers of all of these, which are part of the form.
  void knowLargest(std::vector<double> numbers);
  std::vector<double> const& knownLargest() const { return known_; }

  /// The largest of these numbers; not a number where no feature has one.
  double largestValue(int number) const;

private:
  VertexPool vertices_;
  std::unique_ptr<BoxTree> index_;
  Box box_;
  std::vector<double> known_, largest_;  // of the values
  std::map<std::vector<int>, int> setNumbers_;
  Feature current_{};
  qint64 currentId_ = -1;
  bool polygonStarts_ = false;
};

}  // namespace SysCarto
