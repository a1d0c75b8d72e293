#include "WatchedReading.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/layers/SourceSettings.h"

#include <QThreadPool>

#include <chrono>
#include <future>

namespace SysCarto {

namespace {

constexpr std::chrono::milliseconds betweenQuestions(50);  // whether the reading goes on

}  // namespace

std::unique_ptr<DataSource> openWatched(SourceSettings const& source, ReadProgress const& progress, QString& error) {
  if (!progress) return DataSource::open(source, error);
  struct Opened {
    std::unique_ptr<DataSource> data;
    QString error;
  };
  auto const promise = std::make_shared<std::promise<Opened>>();
  auto opened = promise->get_future();
  QThreadPool::globalInstance()->start([promise, source] {
    Opened own;
    own.data = DataSource::open(source, own.error);
    promise->set_value(std::move(own));
  });
  error.clear();
  while (opened.wait_for(betweenQuestions) != std::future_status::ready)
    if (!progress(0, -1)) return nullptr;
  Opened own = opened.get();
  error = own.error;
  return std::move(own.data);
}

ReadWatch::ReadWatch(OGRLayer& layer, ReadProgress const& progress)
    : progress_(progress), count_(progress ? knownCount(layer) : -1) {
  clock_.start();
}

bool ReadWatch::ask() {
  if (clock_.elapsed() < betweenQuestions.count()) return true;
  bool const isWanted = progress_(read_, count_);
  clock_.restart();
  return isWanted;
}

}  // namespace SysCarto
