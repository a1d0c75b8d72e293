#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <QElapsedTimer>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace SysCarto {

/// A source, or a window of it, that is read on another thread, and what of a window is there meanwhile. Belongs to one
/// thread, that of whoever wants it.
class WindowReading : public std::enable_shared_from_this<WindowReading> {
public:
  /// Reads what the query says, or all, on the other thread.
  using Read = std::function<ReadFeatures(WindowQuery const& query, ReadProgress const& progress)>;

  /// Begins. `news` is called on the thread of the user interface, where there is one, when more is there, at growing
  /// intervals, and at the end.
  static std::shared_ptr<WindowReading> begin(Read read, WindowQuery query, std::function<void()> news);

  Box const& area() const { return query_.area; }
  double cell() const { return query_.cell; }

  /// What was read so far; empty before there is something to show.
  std::shared_ptr<FeaturePack const> soFar() const;

  /// How much was read, from 0 to 1; 0 where nobody knows.
  double share() const;

  bool isDone() const;

  /// Waits for its end, but no longer than some milliseconds. Answers whether it has ended.
  bool wait(int ms) const;

  /// What was read in the end, once.
  ReadFeatures take();

  /// Nobody wants it any more; it ends soon.
  void giveUp() { isWanted_ = false; }

private:
  WindowReading(Read read, WindowQuery query, std::function<void()> news);
  void work();
  void show(FeaturePack const& pack);
  void tell(Read with);

  Read read_;
  WindowQuery query_;
  std::function<void()> const news_;
  std::atomic<bool> isWanted_{true};
  std::atomic<qint64> readFeatures_{0}, allFeatures_{0};

  // Of the other thread: when features are shown next.
  QElapsedTimer clock_;
  qint64 nextMs_ = 0;

  mutable std::mutex mutex_;
  mutable std::condition_variable ended_;
  std::shared_ptr<FeaturePack const> soFar_;
  std::optional<ReadFeatures> result_;
  bool isDone_ = false;
};

}  // namespace SysCarto
