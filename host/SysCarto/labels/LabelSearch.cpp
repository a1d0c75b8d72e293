#include "LabelSearch.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

namespace SysCarto {

namespace {

constexpr int longestChain = 8;
constexpr int bannedSteps = 5, bannedAtRandom = 10;  // until what was placed may be pushed out again
constexpr int oneIn = 4;                             // of candidates that several have to leave is looked at
constexpr int sweeps = 8;
constexpr int stepsALabel = 160;  // for each label that may make room
constexpr int patience = 20;      // of these without a gain
constexpr std::int64_t mostLooks = 50000000;
constexpr int mostTimesLooks = 8;  // whatever the effort
constexpr int linkedAtOnce = 500;  // conflicts

}  // namespace

void LabelSearch::addLabel(int rank) { labels_.push_back({rank, candidateCount(), candidateCount()}); }

void LabelSearch::addCandidate(double cost) {
  candidates_.push_back({labelCount() - 1, cost});
  labels_.back().last = candidateCount();
}

void LabelSearch::addConflict(int a, int b) {
  conflicts_.emplace_back(a, b);
  ++candidates_[a].last;
  ++candidates_[b].last;
}

// Its candidates never become free.
void LabelSearch::giveUp(int label) {
  Label& own = labels_[static_cast<size_t>(label)];
  for (int one = own.first; one < own.last; ++one) candidates_[one].hits = 1;
  own.last = own.first;
}

LabelSearch::Stage const LabelSearch::stages[] = {&LabelSearch::link,        &LabelSearch::takeFree,
                                                  &LabelSearch::improve,     &LabelSearch::insertNext,
                                                  &LabelSearch::cheapenNext, &LabelSearch::insertNext};

bool LabelSearch::goOn(std::int64_t looks) {
  std::int64_t const most = looks_ + looks;
  for (; stage_ < std::size(stages); ++stage_) {
    while ((this->*stages[stage_])())
      if (++looks_ >= most) return true;
    left_.clear();
    sweep_ = 0;
    looksBefore_ = looks_;
  }
  return false;
}

// Some of what is in the way of each at a time, as a stretch of one list, which is not cleared before.
bool LabelSearch::link() {
  if (!neighbours_) {
    int next = 0;
    for (Candidate& one : candidates_) {
      one.first = next;
      next += std::exchange(one.last, next);
    }
    neighbours_.reset(new int[static_cast<size_t>(next)]);
    sets_.resize(labels_.size());
    std::iota(sets_.begin(), sets_.end(), 0);
  }
  for (int i = 0; i < linkedAtOnce && !conflicts_.empty(); ++i) {
    auto const [a, b] = conflicts_.back();
    conflicts_.pop_back();
    neighbours_[candidates_[a].last++] = b;
    neighbours_[candidates_[b].last++] = a;
    sets_[setOf(labelOf(a))] = setOf(labelOf(b));
  }
  looks_ += 10 * linkedAtOnce;  // what it touches first has to be cleared by the system
  return !conflicts_.empty();
}

int LabelSearch::setOf(int label) {
  while (sets_[label] != label) label = sets_[label] = sets_[sets_[label]];
  return label;
}

// A sweep goes through all labels in their order.
bool LabelSearch::beginSweep() {
  if (sweep_ == sweeps || (sweep_ > 0 && !isBetter_)) return false;
  ++sweep_;
  isBetter_ = false;
  left_.resize(labels_.size());
  std::iota(left_.rbegin(), left_.rend(), 0);
  return !left_.empty();
}

// What was done before there was a search: for each label in turn the cheapest candidate that is free.
bool LabelSearch::takeFree() {
  if (left_.empty() && (sweep_ > 0 || !beginSweep())) {
    freed_.clear();
    findActive();
    return false;
  }
  int const label = left_.back();
  left_.pop_back();
  Label& own = labels_[label];
  if (own.first == own.last) return true;
  own.place = static_cast<int>(waiting_.size());
  waiting_.push_back(label);
  int best = -1;
  for (int one = own.first; one < own.last; ++one)
    if (candidates_[one].hits == 0 && (best < 0 || candidates_[one].cost < candidates_[best].cost)) best = one;
  if (best >= 0) choose(label, best);
  return true;
}

void LabelSearch::findActive() {
  std::vector<char> waits(labels_.size());
  for (int const label : waiting_) waits[setOf(label)] = 1;
  for (int label = 0; label < labelCount(); ++label)
    if (waits[setOf(label)] && labels_[label].last - labels_[label].first > 1) active_.push_back(label);
}

void LabelSearch::choose(int label, int candidate) {
  Label& own = labels_[label];
  for (int const one : {own.chosen, candidate})
    if (one >= 0) looks_ += candidates_[one].last - candidates_[one].first;
  if (own.chosen >= 0) {
    Candidate const& left = candidates_[own.chosen];
    for (int i = left.first; i < left.last; ++i) {
      Candidate& other = candidates_[neighbours_[i]];
      other.hitters -= label;
      if (--other.hits == 0 && labels_[other.label].chosen < 0) freed_.push_back(neighbours_[i]);
    }
  }
  if (candidate >= 0) {
    Candidate const& taken = candidates_[candidate];
    for (int i = taken.first; i < taken.last; ++i) {
      ++candidates_[neighbours_[i]].hits;
      candidates_[neighbours_[i]].hitters += label;
    }
  }
  if (own.chosen < 0 && candidate >= 0) {
    labels_[waiting_.back()].place = own.place;
    waiting_[own.place] = waiting_.back();
    waiting_.pop_back();
  } else if (own.chosen >= 0 && candidate < 0) {
    own.place = static_cast<int>(waiting_.size());
    waiting_.push_back(label);
  }
  own.chosen = candidate;
}

void LabelSearch::set(int label, int candidate) {
  done_.emplace_back(label, labels_[label].chosen);
  choose(label, candidate);
}

void LabelSearch::goBack() {
  for (; !done_.empty(); done_.pop_back()) choose(done_.back().first, done_.back().second);
}

// What it means for the label that is to be placed in the end: whether what has to go may go without another place.
LabelSearch::Move LabelSearch::moveOf(int candidate, int root) {
  Candidate const& own = candidates_[candidate];
  int const rank = labels_[root].rank;
  if (own.hits == 0) return Move::Free;
  int pushed = 0;
  auto const push = [&](Label const& label) {
    if (label.rank > rank) return true;
    bool const mayMove = label.chain != step_ && candidates_[label.chosen].isBannedUntil <= step_;
    return mayMove && ++pushed <= 2;
  };
  bool isPossible = true;
  if (own.hits == 1) {
    isPossible = push(labels_[own.hitters]);
  } else {
    looks_ += own.last - own.first;
    for (int i = own.first; i < own.last && isPossible; ++i)
      if (Label const& label = labels_[labelOf(neighbours_[i])]; label.chosen == neighbours_[i])
        isPossible = push(label);
  }
  if (!isPossible) return Move::None;
  return pushed == 0 ? Move::Drops : pushed == 1 ? Move::Pushes : Move::PushesTwo;
}

// By chance one of those that are equally good.
LabelSearch::Choice LabelSearch::choiceOf(int label, int root) {
  Choice best;
  int equal = 0;
  for (int one = labels_[label].first; one < labels_[label].last; ++one) {
    bool const isWorthALook =
        candidates_[one].hits < 2 || best.move == Move::None || best.move > Move::Pushes || below(oneIn) == 0;
    Move const move = isWorthALook ? moveOf(one, root) : Move::None;
    if (move == Move::None || move > best.move) continue;
    equal = move < best.move ? 1 : equal + 1;
    if (equal == 1 || below(equal) == 0) best = {move, one};
  }
  return best;
}

// Answers whether a less important one had to go.
bool LabelSearch::pushOut(int candidate, int rank) {
  Candidate const& own = candidates_[candidate];
  bool drops = false;
  for (int i = own.first; i < own.last && own.hits > 0; ++i) {
    int const other = neighbours_[i], label = labelOf(other);
    if (labels_[label].chosen != other) continue;
    labels_[label].chain = step_;
    if (labels_[label].rank <= rank)
      pushed_.push_back(label);
    else
      drops = true;
    set(label, -1);
  }
  return drops;
}

// Places a label where less important ones have to go, or others make room in turn. Where one is left over that is
// equally important, it waits in its stead.
void LabelSearch::insert(int root) {
  done_.clear();
  pushed_.assign(1, root);
  labels_[root].chain = step_;
  int const rank = labels_[root].rank;
  bool drops = false;
  for (int length = 0; length < longestChain && !pushed_.empty(); ++length) {
    int const label = pushed_.back();
    auto const [move, candidate] = choiceOf(label, root);
    if (move == Move::None) break;
    pushed_.pop_back();
    drops |= pushOut(candidate, rank);
    set(label, candidate);
    candidates_[candidate].isBannedUntil = step_ + bannedSteps + below(bannedAtRandom);
  }
  if (pushed_.empty()) {
    if (drops) lastGain_ = step_;
    return;
  }
  bool const isSwap = !drops && pushed_.size() == 1 && pushed_[0] != root && labels_[pushed_[0]].rank == rank;
  if (isSwap) return;
  goBack();
  freed_.clear();
}

// The more important ones first. To place what was not placed frees nothing.
void LabelSearch::takeFreed() {
  auto const isOfNoUse = [this](int candidate) {
    return candidates_[candidate].hits > 0 || labels_[labelOf(candidate)].chosen >= 0;
  };
  freed_.erase(std::remove_if(freed_.begin(), freed_.end(), isOfNoUse), freed_.end());
  std::sort(freed_.begin(), freed_.end(), [this](int a, int b) {
    return std::make_tuple(labelOf(a), candidates_[a].cost, a) < std::make_tuple(labelOf(b), candidates_[b].cost, b);
  });
  for (int const candidate : freed_)
    if (!isOfNoUse(candidate)) choose(labelOf(candidate), candidate);
  freed_.clear();
}

// One moves to another place that is free, so that things come about that were not there before.
void LabelSearch::stir() {
  int const label = active_[below(static_cast<int>(active_.size()))];
  Label const& own = labels_[label];
  int const candidate = own.first + below(own.last - own.first);
  if (own.chosen >= 0 && candidate != own.chosen && candidates_[candidate].hits == 0) choose(label, candidate);
}

bool LabelSearch::improve() {
  int const active = static_cast<int>(active_.size());
  bool const isWorthIt = !waiting_.empty() && step_ < effort_ * stepsALabel * active &&
                         step_ - lastGain_ < effort_ * patience * active &&
                         looks_ - looksBefore_ <= std::min(effort_, mostTimesLooks) * mostLooks;
  if (!isWorthIt) return false;
  ++step_;
  size_t const waited = waiting_.size();
  if (step_ % 2 == 0)
    stir();
  else
    insert(waiting_[below(static_cast<int>(waited))]);
  takeFreed();
  if (waiting_.size() < waited) lastGain_ = step_;
  return true;
}

// Until no label waits for whose sake only less important ones would have to go, as far as that is bearable.
bool LabelSearch::insertNext() {
  if (left_.empty() && !beginSweep()) return false;
  int const label = left_.back();
  left_.pop_back();
  if (labels_[label].place < 0 || labels_[label].chosen >= 0) return true;
  if (looks_ - looksBefore_ > mostLooks / 2) return false;
  size_t const waited = waiting_.size();
  ++step_;
  insert(label);
  takeFreed();
  isBetter_ |= lastGain_ == step_ || waiting_.size() < waited;
  return true;
}

bool LabelSearch::cheapenNext() {
  if (left_.empty()) {
    takeFreed();
    if (!beginSweep()) return false;
  }
  int const label = left_.back();
  left_.pop_back();
  if (labels_[label].chosen >= 0) isBetter_ |= makeCheaper(label);
  return true;
}

bool LabelSearch::makeCheaper(int label) {
  Label const& own = labels_[label];
  int best = own.chosen;
  for (int one = own.first; one < own.last; ++one)
    if (candidates_[one].hits == 0 && candidates_[one].cost < candidates_[best].cost) best = one;
  bool const isBetter = best != own.chosen;
  if (isBetter) choose(label, best);
  for (int one = own.first; one < own.last; ++one)
    if (candidates_[one].hits == 1 && candidates_[one].cost < candidates_[own.chosen].cost &&
        swapForCheaper(label, one))
      return true;
  return isBetter;
}

// The one in its way may have another place that costs less than is won.
bool LabelSearch::swapForCheaper(int label, int candidate) {
  int const other = candidates_[candidate].hitters, left = labels_[label].chosen, otherLeft = labels_[other].chosen;
  double const won = candidates_[left].cost - candidates_[candidate].cost + candidates_[otherLeft].cost;
  choose(other, -1);
  choose(label, candidate);
  int best = -1;
  for (int one = labels_[other].first; one < labels_[other].last; ++one)
    if (candidates_[one].hits == 0 && candidates_[one].cost < won - 1e-9 &&
        (best < 0 || candidates_[one].cost < candidates_[best].cost))
      best = one;
  if (best < 0) {
    choose(label, left);
    best = otherLeft;
  }
  choose(other, best);
  return best != otherLeft;
}

}  // namespace SysCarto
