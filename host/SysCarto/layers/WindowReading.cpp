#include "WindowReading.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <chrono>
#include <utility>

namespace SysCarto {

namespace {

constexpr qint64 firstShownMs = 250;
constexpr int pauseGrowth = 2;  // so that to show what there is costs no more than to read it

}  // namespace

std::shared_ptr<WindowReading> WindowReading::begin(Read read, WindowQuery query, std::function<void()> news) {
  std::shared_ptr<WindowReading> const reading(new WindowReading(std::move(read), std::move(query), std::move(news)));
  queueReading([reading] { reading->work(); });
  return reading;
}

WindowReading::WindowReading(Read read, WindowQuery query, std::function<void()> news)
    : read_(std::move(read)), query_(std::move(query)), news_(std::move(news)), nextMs_(firstShownMs) {}

void WindowReading::work() {
  clock_.start();
  WindowQuery query = query_;
  query.growing = [this](FeaturePack const& pack) { show(pack); };
  ReadFeatures result = read_(query, [this](qint64 read, qint64 all) {
    readFeatures_ = read;
    allFeatures_ = all;
    return isWanted_.load();
  });
  {
    std::lock_guard const lock(mutex_);
    result_ = std::move(result);
    isDone_ = true;
  }
  ended_.notify_all();
  tell(std::move(read_));
}

void WindowReading::show(FeaturePack const& pack) {
  if (clock_.elapsed() < nextMs_) return;
  auto shown = pack.soFar();
  {
    std::lock_guard const lock(mutex_);
    soFar_ = std::move(shown);
  }
  nextMs_ = clock_.elapsed() * pauseGrowth;
  tell({});
}

// In the end, what is read with, symbols among it, goes with the event, and is let go on the thread that it belongs to.
void WindowReading::tell(Read with) {
  if (QCoreApplication* const application = QCoreApplication::instance())
    QMetaObject::invokeMethod(
        application,
        [self = shared_from_this(), with = std::move(with)] {
          if (self->isWanted_) self->news_();
        },
        Qt::QueuedConnection);
}

std::shared_ptr<FeaturePack const> WindowReading::soFar() const {
  std::lock_guard const lock(mutex_);
  return soFar_;
}

double WindowReading::share() const {
  auto const all = static_cast<double>(allFeatures_.load());
  return all > 0 ? std::clamp(static_cast<double>(readFeatures_.load()) / all, 0.0, 1.0) : 0;
}

bool WindowReading::isDone() const {
  std::lock_guard const lock(mutex_);
  return isDone_;
}

bool WindowReading::wait(int ms) const {
  std::unique_lock lock(mutex_);
  return ended_.wait_for(lock, std::chrono::milliseconds(ms), [this] { return isDone_; });
}

ReadFeatures WindowReading::take() {
  std::lock_guard const lock(mutex_);
  soFar_ = nullptr;
  return std::move(*std::exchange(result_, std::nullopt));
}

}  // namespace SysCarto
