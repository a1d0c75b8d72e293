#pragma once

#include "host/SysCarto/layers/WatchedReading.h"

#include <chrono>
#include <future>
#include <memory>
#include <optional>

namespace SysCarto {

/// What `work` answers, which is done on another thread while `progress` is asked, before and meanwhile; nothing where
/// that wants no more, and then the work is finished there for nobody. Without a progress it is done here.
template <class Work>
auto watched(Work work, ReadProgress const& progress) -> std::optional<decltype(work())> {
  constexpr std::chrono::milliseconds betweenQuestions(50);
  if (!progress) return work();
  if (!progress(0, -1)) return std::nullopt;
  auto const promise = std::make_shared<std::promise<decltype(work())>>();
  auto done = promise->get_future();
  startReading([promise, work] { promise->set_value(work()); });
  while (done.wait_for(betweenQuestions) != std::future_status::ready)
    if (!progress(0, -1)) return std::nullopt;
  return done.get();
}

}  // namespace SysCarto
