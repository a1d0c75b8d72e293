#include "SlicedWork.h"

#include <utility>

SlicedWork::SlicedWork(std::function<void(MayGoOn const&)> work)
    : thread_([this, work = std::move(work)] {
        {
          std::unique_lock lock(mutex_);
          handed_.wait(lock, [this] { return turn_ == Turn::Work; });
        }
        try {
          if (!isDropped_) work([this] { return rest(); });
        } catch (...) {
          thrown_ = std::current_exception();
        }
        isDone_ = true;
        handOver(Turn::Owner);
      }) {}

SlicedWork::~SlicedWork() {
  isDropped_ = true;
  handOver(Turn::Work);
  thread_.join();
}

void SlicedWork::handOver(Turn to) {
  std::lock_guard const lock(mutex_);
  turn_ = to;
  handed_.notify_all();
}

bool SlicedWork::proceed(std::chrono::steady_clock::duration slice) {
  if (!isDone_) {
    until_ = std::chrono::steady_clock::now() + slice;
    handOver(Turn::Work);
    std::unique_lock lock(mutex_);
    handed_.wait(lock, [this] { return turn_ == Turn::Owner; });
  }
  if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
  return isDone_;
}

bool SlicedWork::rest() {
  if (isDropped_ || std::chrono::steady_clock::now() < until_) return !isDropped_;
  handOver(Turn::Owner);
  std::unique_lock lock(mutex_);
  handed_.wait(lock, [this] { return turn_ == Turn::Work; });
  return !isDropped_;
}
