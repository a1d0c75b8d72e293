#pragma once

#include <algorithm>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace SysCarto {

/// Tools that each serve one thread at a time: as many as threads can ask for.
template <class Tool>
class ToolPool {
public:
  /// `make` answers the tool of a number, from 0 on.
  template <class Make>
  void fill(Make const& make) {
    unsigned const threads = std::max(1U, std::thread::hardware_concurrency()) + 1;  // and the one that reads
    for (unsigned i = 0; i < threads; ++i) idle_.push_back(make(i));
    isFilled_ = true;
  }
  bool isFilled() const { return isFilled_; }

  template <class Use>
  auto use(Use const& use) const {
    Lent lent(*this);
    return use(*lent.tool);
  }

private:
  struct Lent {
    explicit Lent(ToolPool const& pool) : pool(pool) {
      std::lock_guard const lock(pool.mutex_);
      tool = std::move(pool.idle_.back());
      pool.idle_.pop_back();
    }
    ~Lent() {
      std::lock_guard const lock(pool.mutex_);
      pool.idle_.push_back(std::move(tool));
    }
    ToolPool const& pool;
    std::unique_ptr<Tool> tool;
  };

  bool isFilled_ = false;
  mutable std::mutex mutex_;
  mutable std::vector<std::unique_ptr<Tool>> idle_;
};

}  // namespace SysCarto
