#include "VectorLayer.h"

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/ThinnedFeatures.h"
#include "host/SysCarto/layers/WithoutWaiting.h"

namespace SysCarto {

// How a layer comes to its features: at once, later, or when something asks for them.

namespace {

constexpr int betweenQuestionsMs = 20;
constexpr int mostWarnings = 20;

}  // namespace

QString VectorLayer::open(SourceSettings const& source, QString const& mapSystem, QStringList& warnings,
                          ReadProgress const& progress, ReadDepth depth) {
  if (isBeingRead()) ReadingListener::tellSoon();
  giveUpReading();
  planned_ = nullptr;
  source_ = source;
  mapSystem_ = mapSystem;
  warnings_.clear();
  notes_.clear();
  spotlightProblem_.clear();
  problem_.clear();
  if (depth == ReadDepth::Later)
    beginReading();
  else
    problem_ = read(progress, depth);
  warnings += warnings_;
  LayerHost::changeLook(*this);
  return problem_;
}

QString VectorLayer::read(ReadProgress const& progress, ReadDepth depth) const {
  return keep(readFeatures(source_, mapSystem_, *renderer_, labels_.read(), progress, depth), depth);
}

QString VectorLayer::keep(ReadFeatures read, ReadDepth depth) const {
  store_ = std::move(read.store);
  thinned_ = std::make_unique<ThinnedFeatures>(*store_);
  windows_.clear();
  keepWarnings(read);
  hasWindows_ = read.hasWindows;
  extent_ = read.extent;
  count_ = read.count;
  bool const isLeft = depth == ReadDepth::Schema || (depth == ReadDepth::Features && hasWindows_);
  isUnread_ = isLeft && read.error.isEmpty();
  return read.error;
}

void VectorLayer::beginReading() {
  ReadFeatures none;
  none.store = std::make_unique<FeatureStore>();
  keep(std::move(none), ReadDepth::Later);
  auto const read = [source = source_, system = mapSystem_, renderer = renderer_, fields = labels_.read()](
                        WindowQuery const&, ReadProgress const& wanted) {
    return readFeatures(source, system, *renderer, fields, wanted, ReadDepth::Features);
  };
  reading_ = WindowReading::begin(read, {}, [this] {
    endReading();
    ReadingListener::tell(true);
  });
  ReadingListener::tellSoon();
}

// What nobody was without looks as it did.
void VectorLayer::endReading() const {
  auto const ended = std::exchange(reading_, nullptr);
  if (!ended) return;
  problem_ = keep(ended->take(), ReadDepth::Features);
  if (std::exchange(owesFeatures_, false) || !problem_.isEmpty()) LayerHost::changeLook(*this);
}

void VectorLayer::giveUpReading() {
  if (auto const given = std::exchange(reading_, nullptr)) given->giveUp();
}

// It may end while `progress` is asked.
bool VectorLayer::wait(ReadProgress const& progress) const {
  while (auto const reading = reading_) {
    if (reading->wait(betweenQuestionsMs))
      endReading();
    else if (progress && !progress(0, -1))
      return false;
  }
  return true;
}

// To be called before features are: who does not wait is without them until the reading has ended.
void VectorLayer::need() const {
  if (auto* const meanwhile = reading_ ? WithoutWaiting::current() : nullptr)
    owesFeatures_ = meanwhile->isIncomplete = true;
  else
    wait({});
}

bool VectorLayer::hasWindows() const {
  need();
  return isUnread_ && hasWindows_;
}

FeatureStore const& VectorLayer::features() const {
  need();
  if (isUnread_) problem_ = read({}, ReadDepth::All);
  return *store_;
}

ThinnedFeatures& VectorLayer::thinned() const {
  features();
  return *thinned_;
}

// The same is said of many windows.
void VectorLayer::keepWarnings(ReadFeatures const& read) const {
  auto const keep = [](QStringList const& from, QStringList& to) {
    for (QString const& sentence : from)
      if (!to.contains(sentence) && to.size() < mostWarnings) to << sentence;
  };
  keep(read.notes, notes_);
  keep(read.warnings, warnings_);
}

QString VectorLayer::problem() const { return problem_.isEmpty() ? windows_.problem() : problem_; }

QString VectorLayer::failure() const {
  if (!problem_.isEmpty()) return problem_;
  QString const failure = windows_.failure();
  return failure.isEmpty() ? spotlightProblem_ : failure;
}

std::optional<double> VectorLayer::readShare() const { return reading_ ? reading_->share() : windows_.share(); }

}  // namespace SysCarto
