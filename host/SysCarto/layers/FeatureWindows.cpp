#include "FeatureWindows.h"

#include "host/SysCarto/layers/WithoutWaiting.h"

#include <QElapsedTimer>

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
constexpr qint64 failureMs = 10000;  // before what could not be read is tried again

using Pack = std::shared_ptr<FeaturePack const>;

// The cells that features are thinned to when they are read, and the coarsest that will do.
struct Cells {
  double read, most;

  static Cells of(WindowWish const& wish) {
    return {ThinningGrid::forPixels(wish.unitsPerPixel / margin).cell(),
            ThinningGrid::forPixels(wish.unitsPerPixel).cell()};
  }
  bool has(double cell, bool isExact) const { return cell <= most * sameCell && (!isExact || cell * sameCell >= read); }
};

struct Kept {
  void const* layer;
  bool isPart;
  Pack pack;
  QString problem;
  QElapsedTimer age;

  bool isToBeReadAgain() const { return !problem.isEmpty() && age.elapsed() > failureMs; }
};

// Those of all layers, the one that was asked for last first.
class KeptWindows {
public:
  static KeptWindows& ofProcess() {
    static auto* const own = new KeptWindows;  // layers may outlive whatever is taken down at the end
    return *own;
  }

  // Who waits gets what it would read itself, whatever was read before, so that a page is the same each time.
  Pack find(void const* layer, Box const& needed, Cells const& cells, bool isExact) {
    auto const known = std::find_if(all_.begin(), all_.end(), [&](Kept const& one) {
      return one.layer == layer && cells.has(one.pack->cell(), isExact) && one.pack->area().contains(needed) &&
             !one.isToBeReadAgain();
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

  // What failed before has been read again.
  void add(Kept kept) {
    all_.remove_if([&](Kept const& one) { return one.layer == kept.layer && !one.problem.isEmpty(); });
    kept.age.start();
    all_.push_front(std::move(kept));
    makeRoom();
  }

  void forget(void const* layer) {
    all_.remove_if([layer](Kept const& one) { return one.layer == layer; });
  }

  template <class Which>
  QString problem(void const* layer, Which const& which) const {
    for (Kept const& one : all_)
      if (one.layer == layer && !one.problem.isEmpty() && which(one)) return one.problem;
    return QString();
  }

private:
  void makeRoom() {
    std::size_t older = 0;
    std::set<std::pair<void const*, bool>> seen;
    for (auto one = all_.begin(); one != all_.end();) {
      bool const isOlder = !seen.insert({one->layer, one->isPart}).second;
      std::size_t const bytes = isOlder ? one->pack->bytes() : 0;
      bool const isKept = older + bytes <= maxOlderBytes;
      if (isKept) older += bytes;
      one = isKept ? std::next(one) : all_.erase(one);
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

QString FeatureWindows::problem() const {
  return KeptWindows::ofProcess().problem(state_.get(), [](Kept const&) { return true; });
}

QString FeatureWindows::failure() const {
  return KeptWindows::ofProcess().problem(state_.get(), [](Kept const& one) { return !one.isToBeReadAgain(); });
}

int FeatureWindows::news() const { return state_->news; }

std::optional<double> FeatureWindows::share() const {
  std::optional<double> least;
  for (Reading const& reading : state_->underWay)
    if (reading) least = std::min(least.value_or(1), reading->share());
  return least;
}

std::shared_ptr<FeaturePack const> FeatureWindows::window(WindowWish const& wish, WindowReading::Read const& read,
                                                          ReadProgress const& progress) {
  Cells const cells = Cells::of(wish);
  if (!(cells.read > 0) || wish.needed.isEmpty()) return nullptr;
  auto& kept = KeptWindows::ofProcess();
  auto* const meanwhile = WithoutWaiting::current();
  for (;;) {
    state_->takeAll();
    if (Pack known = kept.find(state_.get(), wish.needed, cells, !meanwhile)) return known;
    Reading const own = reading(wish, cells.most, read);
    if (meanwhile) {
      state_->owesMore = meanwhile->isIncomplete = true;
      return kept.standIn(state_.get(), wish.needed, *own);
    }
    while (!own->wait(betweenQuestionsMs))
      if (progress && !progress(0, -1)) {
        giveUp(own);
        return nullptr;
      }
  }
}

// A view may wait for it, too.
void FeatureWindows::giveUp(Reading const& reading) {
  if (state_->owesMore) return;
  reading->giveUp();
  for (Reading& one : state_->underWay)
    if (one == reading) one = nullptr;
}

// One that is under way, or a new one that takes the place of what nobody asks for any more.
FeatureWindows::Reading FeatureWindows::reading(WindowWish const& wish, double cell, WindowReading::Read const& read) {
  for (Reading const& one : state_->underWay)
    if (one && one->cell() <= cell * sameCell && one->area().contains(wish.needed)) return one;
  Reading& own = state_->underWay[wish.isPart];
  if (own) own->giveUp();
  Box const& wanted = wish.wanted;
  double const around = std::max(wanted.xmax - wanted.xmin, wanted.ymax - wanted.ymin) * marginShare;
  auto const news = [state = std::weak_ptr(state_)] {
    if (auto const known = state.lock()) known->tell();
  };
  own = WindowReading::begin(read, {wanted.grown(around), Cells::of(wish).read, {}, wish.labels}, news);
  if (WithoutWaiting::current()) ReadingListener::tellSoon();
  return own;
}

// What could not be read is kept as well, without features, so that it is not tried again for each tile.
void FeatureWindows::State::take(Reading& reading, bool isPart) {
  auto const ended = std::exchange(reading, nullptr);
  ReadFeatures read = ended->take();
  if (read.wasStopped) return;
  taken(read);
  if (!read.pack) read.pack = std::make_unique<FeaturePack>(ended->area(), ended->cell());
  auto& kept = KeptWindows::ofProcess();
  auto const any = [](Kept const&) { return true; };
  QString const before = kept.problem(this, any);
  kept.add({this, isPart, std::move(read.pack), read.error, {}});
  if (kept.problem(this, any) != before) changed();
}

void FeatureWindows::State::takeAll() {
  for (std::size_t i = 0; i < underWay.size(); ++i)
    if (underWay[i] && underWay[i]->isDone()) take(underWay[i], i == 1);
}

void FeatureWindows::State::tell() {
  takeAll();
  if (!owesMore) return;
  owesMore = std::any_of(underWay.begin(), underWay.end(), [](Reading const& one) { return bool(one); });
  ++news;
  ReadingListener::tell(true);
}

}  // namespace SysCarto
