#include "FeatureIntake.h"

#include "SourceBounds.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <algorithm>
#include <thread>

namespace SysCarto {

namespace {

// Small enough for the cores to end together, and large enough for a thread to be worth its start.
constexpr size_t batchBytes = 1 << 19;  // of coordinates and texts
constexpr size_t batchFeatures = 4096;

size_t cores() {
  static size_t const count = std::max(1U, std::thread::hardware_concurrency());  // it reads a file
  return count;
}

}  // namespace

FeatureIntake::FeatureIntake(GeometryProjector const& projector, FeatureStore const& form, Place place, Take take)
    : projector_(projector), form_(form), place_(std::move(place)), take_(std::move(take)) {}

void FeatureIntake::add(OGRFeatureUniquePtr feature) {
  waitingBytes_ += bytesOf(*feature);
  waiting_.push_back(std::move(feature));
  if (waitingBytes_ >= batchBytes || waiting_.size() >= batchFeatures) start(std::launch::async);
}

QString FeatureIntake::finish() {
  start(std::launch::deferred);
  while (!running_.empty()) takeOldest();
  return problem_;
}

void FeatureIntake::start(std::launch when) {
  if (idle_.empty() && running_.size() < cores()) idle_.push_back(projector_.clone());
  if (idle_.empty()) takeOldest();
  auto batch = std::make_unique<Batch>();
  batch->projector = std::move(idle_.back());
  idle_.pop_back();
  batch->features.swap(waiting_);
  waitingBytes_ = 0;
  running_.push_back(std::async(when, [this, batch = std::move(batch)]() mutable { return work(std::move(batch)); }));
}

void FeatureIntake::takeOldest() {
  std::unique_ptr<Batch> batch = running_.front().get();
  running_.pop_front();
  take_(*batch->placed);
  if (!batch->problem.isEmpty()) problem_ = batch->problem;
  idle_.push_back(std::move(batch->projector));
}

std::unique_ptr<FeatureIntake::Batch> FeatureIntake::work(std::unique_ptr<Batch> batch) const {
  GdalErrors const errors;  // a place that the map can't show is no damage to the file
  batch->placed = std::make_unique<FeatureStore>();
  batch->placed->keepsLabels = form_.keepsLabels;
  batch->placed->valuesPerFeature = form_.valuesPerFeature;
  for (OGRFeatureUniquePtr& feature : batch->features) {
    place_(*feature, *batch->projector, *batch->placed);
    feature.reset();
  }
  if (errors.hasFailure()) batch->problem = errors.reason();
  return batch;
}

}  // namespace SysCarto
