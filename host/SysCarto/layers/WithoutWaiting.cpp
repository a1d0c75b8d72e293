#include "WithoutWaiting.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <utility>
#include <vector>

namespace SysCarto {

namespace {

constexpr int momentMs = 8;  // about half of the time between two pictures of a screen

thread_local WithoutWaiting* ofThread = nullptr;

std::vector<ReadingListener const*>& listeners() {
  static std::vector<ReadingListener const*> all;
  return all;
}

}  // namespace

WithoutWaiting::WithoutWaiting() : around_(std::exchange(ofThread, this)), clock_(momentMs, Qt::PreciseTimer) {}
WithoutWaiting::~WithoutWaiting() { ofThread = around_; }
WithoutWaiting* WithoutWaiting::current() { return ofThread; }

ReadingListener::ReadingListener(std::function<void(bool)> told) : told_(std::move(told)) {
  listeners().push_back(this);
}

ReadingListener::~ReadingListener() {
  listeners().erase(std::remove(listeners().begin(), listeners().end(), this), listeners().end());
}

// One may end while it is told.
void ReadingListener::tell(bool hasMore) {
  std::vector<ReadingListener const*> const now = listeners();
  for (auto const* const one : now)
    if (std::find(listeners().begin(), listeners().end(), one) != listeners().end()) one->told_(hasMore);
}

// Of many at a time once.
void ReadingListener::tellSoon() {
  static bool isComing = false;
  QCoreApplication* const application = QCoreApplication::instance();
  if (!application || std::exchange(isComing, true)) return;
  QMetaObject::invokeMethod(
      application,
      [] {
        isComing = false;
        tell(false);
      },
      Qt::QueuedConnection);
}

}  // namespace SysCarto
