#include "FileDescriptions.h"

#include "host/SysCarto/layers/WatchedReading.h"

#include <QElapsedTimer>

#include <deque>
#include <functional>
#include <mutex>
#include <utility>

using SysCarto::DataFile;
using SysCarto::GeometryKind;
using SysCarto::LayerDescription;
using SysCarto::SourceSettings;

namespace {

constexpr int betweenLooksMs = 40;
constexpr std::chrono::milliseconds patience(3000);  // for a layer, or to open a file again

bool isKnown(LayerDescription const& layer) {
  return layer.count == 0 || (layer.count > 0 && (layer.kind == GeometryKind::None || !layer.extent.isEmpty()));
}

}  // namespace

// What the worker has to do and what it has found; it outlives whoever asks.
struct FileDescriptions::Mailbox {
  using Letter = std::function<void(FileDescriptions&)>;

  std::mutex mutex;
  std::deque<std::function<void()>> tasks;
  std::deque<Letter> letters;
  bool isWorking = false;
  bool isAbandoned = false;

  void put(Letter letter) {
    std::lock_guard<std::mutex> const lock(mutex);
    letters.push_back(std::move(letter));
  }
  void measure(SourceSettings const& source) {
    QString error;
    LayerDescription layer = SysCarto::describeLayer(source, patience, error);
    layer.xField = source.xField;
    layer.yField = source.yField;
    layer.geometryField = source.geometryField;
    put([=](FileDescriptions& to) { emit to.measured(source, layer, error); });
  }
  void describe(QString const& path) {
    QElapsedTimer clock;
    clock.start();
    DataFile const file = SysCarto::describeFile(path);
    put([=](FileDescriptions& to) { emit to.described(file); });
    if (clock.elapsed() > patience.count()) return;  // it would have to be opened once more
    for (LayerDescription const& layer : file.layers)
      if (!isKnown(layer)) measure(SysCarto::sourceOf(file, layer));
  }
  static void work(std::shared_ptr<Mailbox> const& box) {
    while (true) {
      std::function<void()> task;
      {
        std::lock_guard<std::mutex> const lock(box->mutex);
        box->isWorking = !box->tasks.empty() && !box->isAbandoned;
        if (!box->isWorking) return;
        task = std::move(box->tasks.front());
        box->tasks.pop_front();
      }
      task();
    }
  }
  static void start(std::shared_ptr<Mailbox> const& box, std::function<void()> task) {
    std::lock_guard<std::mutex> const lock(box->mutex);
    box->tasks.push_back(std::move(task));
    if (std::exchange(box->isWorking, true)) return;
    SysCarto::startReading([box] { work(box); });
  }
};

FileDescriptions::FileDescriptions(QObject* parent) : QObject(parent), mailbox_(std::make_shared<Mailbox>()) {
  timer_.setInterval(betweenLooksMs);
  connect(&timer_, &QTimer::timeout, this, &FileDescriptions::takeMail);
}

FileDescriptions::~FileDescriptions() {
  std::lock_guard<std::mutex> const lock(mailbox_->mutex);
  mailbox_->isAbandoned = true;
}

void FileDescriptions::describe(QStringList const& files) {
  for (QString const& path : files) Mailbox::start(mailbox_, [box = mailbox_.get(), path] { box->describe(path); });
  timer_.start();
}

void FileDescriptions::measure(SourceSettings const& source) {
  Mailbox::start(mailbox_, [box = mailbox_.get(), source] { box->measure(source); });
  timer_.start();
}

bool FileDescriptions::isBusy() const {
  std::lock_guard<std::mutex> const lock(mailbox_->mutex);
  return mailbox_->isWorking || !mailbox_->letters.empty();
}

void FileDescriptions::takeMail() {
  std::deque<Mailbox::Letter> letters;
  {
    std::lock_guard<std::mutex> const lock(mailbox_->mutex);
    letters.swap(mailbox_->letters);
  }
  for (Mailbox::Letter const& letter : letters) letter(*this);
  if (isBusy()) return;
  timer_.stop();
  emit finished();
}
