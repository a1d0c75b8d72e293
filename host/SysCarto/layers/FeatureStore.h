#pragma once

#include "host/SysCarto/layers/VertexPool.h"
#include "host/SysCarto/projection/PartSink.h"
#include "host/SysDisplay/WorldRun.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QTransform>

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
  int symbolClass;  ///< of the renderer; −1 is not drawn
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
  void beginFeature();
  void startPolygon() override { polygonStarts_ = true; }
  void addPart(PartKind kind, double const* xy, int count) override;
  void endFeature(int symbolClass, QString const& label, double priority);

  /// Takes over the features of another store that was filled and not finished.
  void append(FeatureStore& other);

  /// Builds the index. Nothing is added afterwards.
  void finish();

  // Reading.
  int size() const { return static_cast<int>(features.size()); }
  Box const& box() const { return box_; }

  /// The numbers of the features whose boxes meet the rectangle, ascending.
  std::vector<int> query(Box const& rectangle) const;

  /// For each of so many classes, whether the geometry of one of its features, turned, meets the rectangle.
  std::vector<bool> classesWithin(Box const& rectangle, QTransform const& turn, int count) const;

  std::vector<Part> parts;
  std::vector<Feature> features;
  std::vector<QString> labels;     ///< by feature; empty where the layer has no labels
  std::vector<double> priorities;  ///< by feature, higher is placed first; as `labels`
  bool keepsLabels = false;

private:
  VertexPool vertices_;
  std::unique_ptr<BoxTree> index_;
  Box box_;
  Feature current_{};
  bool polygonStarts_ = false;
};

}  // namespace SysCarto
