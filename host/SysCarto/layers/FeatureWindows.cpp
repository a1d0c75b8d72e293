#include "FeatureWindows.h"

#include "host/SysCarto/layers/WithoutWaiting.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <iterator>
#include <list>
#include <set>
#include <utility>

namespace SysCarto {

namespace {

constexpr double marginShare = 1.0 / 32;  // what is read around, for symbols that reach farther and small steps
constexpr double margin = 1.05;           // by which finer cells are read, so that who asks for a little finer has them
constexpr std::size_t maxOlderBytes = 64 << 20;  // of all layers together
constexpr double sameCell = 1 + 1e-9;
constexpr int betweenQuestionsMs = 20;

template <class Window>
bool serves(Window const& window, Box const& needed, double cell) {
  return window.cell() <= cell * sameCell && window.area().contains(needed);
}

using Pack = std::shared_ptr<FeaturePack const>;

struct Kept {
  void const* layer;
  Pack pack;
};

// Those of all layers, the one that was asked for last first.
class KeptWindows {
public:
  static KeptWindows& ofProcess() {
    static auto* const own = new KeptWindows;  // layers may outlive whatever is taken down at the end
    return *own;
  }

  Pack find(void const* layer, Box const& needed, double cell) {
    auto const known = std::find_if(all_.begin(), all_.end(), [&](Kept const& one) {
      return one.layer == layer && serves(*one.pack, needed, cell);
    });
    if (known == all_.end()) return nullptr;
    all_.splice(all_.begin(), all_, known);
    return known->pack;
  }

  // What is coarser but whole is better than what is not.
  Pack standIn(void const* layer, Box const& needed, WindowReading const& reading) const {
    Pack partly = reading.soFar();
    for (Kept const& one : all_) {
      if (one.layer != layer) continue;
      if (one.pack->area().contains(needed)) return one.pack;
      if (!partly && one.pack->area().meets(needed)) partly = one.pack;
    }
    return partly;
  }

  void add(void const* layer, Pack pack) {
    makeRoom(layer);
    all_.push_front({layer, std::move(pack)});
  }

  void forget(void const* layer) {
    all_.remove_if([layer](Kept const& one) { return one.layer == layer; });
  }

private:
  // For the next one of a layer.
  void makeRoom(void const* layer) {
    std::size_t older = 0;
    std::set<void const*> seen{layer};
    for (auto one = all_.begin(); one != all_.end();) {
      bool const isOlder = !seen.insert(one->layer).second;
      if (isOlder) older += one->pack->bytes();
      one = isOlder && older > maxOlderBytes ? all_.erase(one) : std::next(one);
    }
  }

  std::list<Kept> all_;
};

}  // namespace

FeatureWindows::FeatureWindows(std::function<void()> changed, Taken taken) : state_(std::make_shared<State>()) {
  state_->changed = std::move(changed);
  state_->taken = std::move(taken);
}

FeatureWindows::~FeatureWindows() { clear(); }

void FeatureWindows::clear() {
  for (Reading& reading : state_->underWay)
    if (auto const given = std::exchange(reading, nullptr)) given->giveUp();
  KeptWindows::ofProcess().forget(state_.get());
}

std::optional<double> FeatureWindows::share() const {
  std::optional<double> least;
  for (Reading const& reading : state_->underWay)
    if (reading) least = std::min(least.value_or(1), reading->share());
  return least;
}

std::shared_ptr<FeaturePack const> FeatureWindows::window(WindowWish const& wish, WindowReading::Read const& read,
                                                          ReadProgress const& progress) {
  double const cell = ThinningGrid::forPixels(wish.unitsPerPixel).cell();
  if (!(cell > 0) || wish.needed.isEmpty()) return nullptr;
  state_->takeAll();
  auto& kept = KeptWindows::ofProcess();
  if (Pack known = kept.find(state_.get(), wish.needed, cell)) return known;
  Reading const own = reading(wish, cell, read);
  if (auto* const meanwhile = WithoutWaiting::current()) {
    state_->owesMore = meanwhile->isIncomplete = true;
    return kept.standIn(state_.get(), wish.needed, *own);
  }
  while (!own->wait(betweenQuestionsMs))
    if (progress && !progress(0, -1)) return giveUp(own);
  state_->takeAll();
  return kept.find(state_.get(), wish.needed, cell);
}

std::nullptr_t FeatureWindows::giveUp(Reading const& reading) {
  reading->giveUp();
  for (Reading& one : state_->underWay)
    if (one == reading) one = nullptr;
  return nullptr;
}

// One that is under way, or a new one that takes the place of what nobody asks for any more.
FeatureWindows::Reading const& FeatureWindows::reading(WindowWish const& wish, double cell,
                                                       WindowReading::Read const& read) {
  for (Reading const& one : state_->underWay)
    if (one && serves(*one, wish.needed, cell)) return one;
  Reading& own = state_->underWay[wish.isPart];
  if (own) own->giveUp();
  Box const& wanted = wish.wanted;
  double const around = std::max(wanted.xmax - wanted.xmin, wanted.ymax - wanted.ymin) * marginShare;
  double const finer = ThinningGrid::forPixels(wish.unitsPerPixel / margin).cell();
  auto const news = [state = std::weak_ptr(state_)] {
    if (auto const known = state.lock()) known->tell();
  };
  own = WindowReading::begin(read, {wanted.grown(around), finer, {}, wish.labels}, news);
  if (WithoutWaiting::current())
    QMetaObject::invokeMethod(QCoreApplication::instance(), &ReadingListener::tell, Qt::QueuedConnection);
  return own;
}

// What could not be read is kept as well, without features, so that it is not tried again and again.
void FeatureWindows::State::take(Reading& reading) {
  auto const ended = std::exchange(reading, nullptr);
  ReadFeatures read = ended->take();
  if (read.wasStopped) return;
  taken(read);
  if (!read.pack) read.pack = std::make_unique<FeaturePack>(ended->area(), ended->cell());
  KeptWindows::ofProcess().add(this, std::move(read.pack));
}

void FeatureWindows::State::takeAll() {
  for (Reading& reading : underWay)
    if (reading && reading->isDone()) take(reading);
}

void FeatureWindows::State::tell() {
  takeAll();
  bool const isWhole = std::none_of(underWay.begin(), underWay.end(), [](Reading const& one) { return bool(one); });
  if (!owesMore) return;
  owesMore = !isWhole;
  changed();
  ReadingListener::tell();
}

}  // namespace SysCarto
