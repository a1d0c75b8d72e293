#include "WatchedReading.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/layers/ServerSession.h"
#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/layers/WatchedWork.h"

#include <QCoreApplication>
#include <QThread>
#include <QThreadPool>

#include <limits>
#include <utility>

namespace SysCarto {

namespace {

constexpr int betweenQuestionsMs = 50;  // whether the reading goes on
constexpr int patienceAtEndMs = 500;

thread_local ReadWatch* watchOfThread = nullptr;

void waitAtEnd();

// Never taken down, since that would wait for its threads: what was given up may last for ever.
QThreadPool* makePool(int threads) {
  auto* const made = new QThreadPool;
  made->setMaxThreadCount(threads);
  qAddPostRoutine(waitAtEnd);
  return made;
}

// There is a thread for each work at a time.
QThreadPool& readingThreads() {
  static QThreadPool* const pool = makePool(std::numeric_limits<int>::max());
  return *pool;
}

QThreadPool& queueThreads() {
  static QThreadPool* const pool = makePool(QThread::idealThreadCount());
  return *pool;
}

void waitAtEnd() {
  for (QThreadPool* const pool : {&readingThreads(), &queueThreads()}) pool->waitForDone(patienceAtEndMs);
}

}  // namespace

void startReading(std::function<void()> work) { readingThreads().start(std::move(work)); }

void queueReading(std::function<void()> work) { queueThreads().start(std::move(work)); }

bool isReading() {
  finishGivingUp();
  return readingThreads().activeThreadCount() > 0 || queueThreads().activeThreadCount() > 0;
}

std::unique_ptr<DataSource> openWatched(SourceSettings const& source, ReadProgress const& progress, QString& error) {
  struct Opened {
    std::unique_ptr<DataSource> data;
    QString error;
  };
  auto opened = watched(
      [source] {
        Opened own;
        own.data = DataSource::open(source, own.error);
        return own;
      },
      progress);
  error = opened ? opened->error : QString();
  return opened ? std::move(opened->data) : nullptr;
}

ReadWatch::ReadWatch(OGRLayer& layer, ReadProgress const& progress)
    : progress_(progress), count_(progress ? knownCount(layer) : -1), around_(std::exchange(watchOfThread, this)) {
  clock_.start();
}

ReadWatch::~ReadWatch() { watchOfThread = around_; }

bool isStillWanted() { return !watchOfThread || !watchOfThread->progress_ || watchOfThread->ask(); }

bool ReadWatch::ask() {
  if (clock_.elapsed() < betweenQuestionsMs) return !wasStopped_;
  wasStopped_ = wasStopped_ || !progress_(read_, count_);
  clock_.restart();
  return !wasStopped_;
}

}  // namespace SysCarto
