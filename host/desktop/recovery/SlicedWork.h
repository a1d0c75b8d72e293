#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

/// Work that reads what belongs to one thread, done in slices while that thread waits: never two of them at once, so
/// that nothing needs a lock. Between two slices the owner may change what is read; it then drops the work and begins
/// anew.
class SlicedWork final {
public:
  /// Asked by the work at places where it may rest. False where it is to end as soon as it can, reading no more.
  using MayGoOn = std::function<bool()>;

  /// `work` begins with the first slice.
  explicit SlicedWork(std::function<void(MayGoOn const&)> work);

  /// Waits for the work to end, which it is asked to.
  ~SlicedWork();
  SlicedWork(SlicedWork const&) = delete;
  SlicedWork& operator=(SlicedWork const&) = delete;

  /// Lets it work for about that long. True once it is done. What the work throws is thrown here.
  bool proceed(std::chrono::steady_clock::duration slice);

private:
  enum class Turn { Owner, Work };
  bool rest();
  void handOver(Turn to);

  std::mutex mutex_;
  std::condition_variable handed_;
  Turn turn_ = Turn::Owner;
  bool isDone_ = false, isDropped_ = false;
  std::chrono::steady_clock::time_point until_;
  std::exception_ptr thrown_;
  std::thread thread_;  // last: it uses all the others
};
