#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/projection/GeometryProjector.h"

#include <ogr_feature.h>

#include <deque>
#include <functional>
#include <future>

namespace SysCarto {

/// Places features in the order in which they are read. While the next ones are read, those before are
/// projected in batches on the machine's other cores; nothing else of the host runs there.
class FeatureIntake {
public:
  /// Adds one feature to a store. Called on several threads at once, with a projector that is the thread's own.
  using Place = std::function<void(OGRFeature& feature, GeometryProjector const& projector, FeatureStore& store)>;

  /// Takes the features that were added to a store, one batch after the other.
  using Take = std::function<void(FeatureStore& placed)>;

  /// Projector and form must outlive it. The stores of the batches have the form.
  FeatureIntake(GeometryProjector const& projector, FeatureStore const& form, Place place, Take take);

  /// Takes a feature that has a geometry.
  void add(OGRFeatureUniquePtr feature);

  /// Places what is left. Answers why something could not be placed; empty where all could.
  QString finish();

private:
  struct Batch {
    std::unique_ptr<GeometryProjector> projector;
    std::vector<OGRFeatureUniquePtr> features;
    std::unique_ptr<FeatureStore> placed;
    QString problem;
  };

  void start(std::launch when);
  void takeOldest();
  std::unique_ptr<Batch> work(std::unique_ptr<Batch> batch) const;

  GeometryProjector const& projector_;
  FeatureStore const& form_;
  Place place_;
  Take take_;
  QString problem_;
  std::vector<std::unique_ptr<GeometryProjector>> idle_;
  std::vector<OGRFeatureUniquePtr> waiting_;
  size_t waitingBytes_ = 0;
  std::deque<std::future<std::unique_ptr<Batch>>> running_;  // ends before what it works with
};

}  // namespace SysCarto
