#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

class OGRSpatialReference;

namespace SysCarto {

/// All that tells a system from others, and the epoch of its coordinates; empty where it can't be written so.
std::string textOf(OGRSpatialReference const& system);

/// Ways from one system into another that were made once. To find one takes longer than to read a small file, to copy
/// it takes next to nothing. Belongs to no thread, and is never destroyed: threads that made something may have gone,
/// and PROJ itself at the end.
template <class Way>
class RememberedWays {
public:
  /// A copy of the way between these two, which `make` makes where it is new. An empty pointer is not remembered. May
  /// be called by any thread; two that ask at once may each make one.
  template <class Make>
  std::unique_ptr<Way> between(OGRSpatialReference const& from, OGRSpatialReference const& to, Make const& make) {
    std::pair<std::string, std::string> key(textOf(from), textOf(to));
    if (key.first.empty() || key.second.empty()) return make();
    {
      std::lock_guard<std::mutex> const lock(mutex_);
      auto const place = known_.find(key);
      std::unique_ptr<Way> copy = place != known_.end() ? place->second->clone() : nullptr;
      if (copy) return copy;
    }
    std::unique_ptr<Way> made = make();
    std::unique_ptr<Way> kept = made ? made->clone() : nullptr;
    if (!kept) return made;
    std::lock_guard<std::mutex> const lock(mutex_);
    if (known_.size() >= mostKept) known_.clear();
    known_[std::move(key)] = std::move(kept);
    return made;
  }

private:
  static constexpr std::size_t mostKept = 64;

  std::mutex mutex_;
  std::map<std::pair<std::string, std::string>, std::unique_ptr<Way>> known_;
};

}  // namespace SysCarto
