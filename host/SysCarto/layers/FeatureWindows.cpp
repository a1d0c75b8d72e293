#include "FeatureWindows.h"

#include "host/SysCarto/layers/WithoutWaiting.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <iterator>
#include <utility>

namespace SysCarto {

namespace {

constexpr double marginShare = 1.0 / 32;  // what is read around, for symbols that reach farther and small steps
constexpr double margin = 1.05;           // by which finer cells are read, so that who asks for a little finer has them
constexpr std::size_t maxWindows = 3;
constexpr std::size_t maxOlderBytes = 32 << 20;
constexpr double sameCell = 1 + 1e-9;
constexpr int betweenQuestionsMs = 20;

template <class Window>
bool serves(Window const& window, Box const& needed, double cell) {
  return window.cell() <= cell * sameCell && window.area().contains(needed);
}

}  // namespace

FeatureWindows::FeatureWindows(std::function<void()> changed) : state_(std::make_shared<State>()) {
  state_->changed = std::move(changed);
}

FeatureWindows::~FeatureWindows() { clear(); }

void FeatureWindows::clear() {
  for (Reading& reading : state_->underWay)
    if (auto const given = std::exchange(reading, nullptr)) given->giveUp();
  state_->kept.clear();
  state_->problem.clear();
}

QString const& FeatureWindows::problem() const { return state_->problem; }

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
  if (Pack known = state_->find(wish.needed, cell)) return known;
  Reading const own = reading(wish, cell, read);
  if (auto* const meanwhile = WithoutWaiting::current()) {
    state_->owesMore = meanwhile->isIncomplete = true;
    return state_->standIn(wish.needed, *own);
  }
  while (!own->wait(betweenQuestionsMs))
    if (progress && !progress(0, -1)) return giveUp(own);
  state_->takeAll();
  return state_->find(wish.needed, cell);
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

std::shared_ptr<FeaturePack const> FeatureWindows::State::find(Box const& needed, double cell) {
  auto const known = std::find_if(kept.begin(), kept.end(), [&](Pack const& one) { return serves(*one, needed, cell); });
  if (known == kept.end()) return nullptr;
  kept.splice(kept.begin(), kept, known);
  return kept.front();
}

// What is coarser but whole is better than what is not.
std::shared_ptr<FeaturePack const> FeatureWindows::State::standIn(Box const& needed,
                                                                  WindowReading const& reading) const {
  for (Pack const& one : kept)
    if (one->area().contains(needed)) return one;
  if (auto const growing = reading.soFar()) return growing;
  for (Pack const& one : kept)
    if (one->area().meets(needed)) return one;
  return nullptr;
}

// What could not be read is kept as well, without features, so that it is not tried again and again.
void FeatureWindows::State::take(Reading& reading) {
  auto const ended = std::exchange(reading, nullptr);
  ReadFeatures read = ended->take();
  if (read.wasStopped) return;
  makeRoom();
  if (!read.pack) read.pack = std::make_unique<FeaturePack>(ended->area(), ended->cell());
  kept.push_front(std::move(read.pack));
  problem = read.error;
}

void FeatureWindows::State::takeAll() {
  for (Reading& reading : underWay)
    if (reading && reading->isDone()) take(reading);
}

void FeatureWindows::State::makeRoom() {
  std::size_t older = 0, count = 1;
  for (auto one = kept.begin(); one != kept.end();) {
    older += (*one)->bytes();
    one = ++count > maxWindows || older > maxOlderBytes ? kept.erase(one) : std::next(one);
  }
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
