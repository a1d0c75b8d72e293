#include "LabelSearch.h"

#include <algorithm>
#include <numeric>

namespace SysCarto {

namespace {

constexpr int longestChain = 8;
constexpr int bannedSteps = 5, bannedAtRandom = 10;  // until a label may go back to where it was
constexpr int sweeps = 8;

// Sets of labels that can't be told apart by going from conflict to conflict.
class Sets {
public:
  explicit Sets(size_t count) : parents_(count) { std::iota(parents_.begin(), parents_.end(), 0); }
  int of(int one) {
    while (parents_[static_cast<size_t>(one)] != one) {
      int& parent = parents_[static_cast<size_t>(one)];
      one = parent = parents_[static_cast<size_t>(parent)];
    }
    return one;
  }
  void join(int a, int b) { parents_[static_cast<size_t>(of(a))] = of(b); }

private:
  std::vector<int> parents_;
};

}  // namespace

void LabelSearch::addLabel(int rank) {
  labels_.push_back({rank, candidateCount(), candidateCount()});
}

void LabelSearch::addCandidate(double cost) {
  candidates_.push_back({labelCount() - 1, cost});
  labels_.back().last = candidateCount();
}

void LabelSearch::begin() {
  link();
  for (int label = 0; label < labelCount(); ++label) {
    Label& own = labels_[static_cast<size_t>(label)];
    own.place = static_cast<int>(waiting_.size());
    waiting_.push_back(label);
    int best = -1;
    for (int one = own.first; one < own.last; ++one)
      if (candidates_[one].hits == 0 && (best < 0 || candidates_[one].cost < candidates_[best].cost)) best = one;
    if (best >= 0) choose(label, best);
  }
  freed_.clear();
  findActive();
}

// Each knows what is in its way, as a stretch of one list.
void LabelSearch::link() {
  for (auto const& [a, b] : conflicts_) ++candidates_[a].last, ++candidates_[b].last;
  int next = 0;
  for (Candidate& one : candidates_) {
    one.first = next;
    next += std::exchange(one.last, next);
  }
  neighbours_.resize(static_cast<size_t>(next));
  for (auto const& [a, b] : conflicts_) {
    neighbours_[candidates_[a].last++] = b;
    neighbours_[candidates_[b].last++] = a;
  }
  conflicts_ = {};
}

void LabelSearch::findActive() {
  Sets sets(labels_.size());
  for (Candidate const& one : candidates_)
    for (int i = one.first; i < one.last; ++i) sets.join(one.label, labelOf(neighbours_[i]));
  std::vector<char> waits(labels_.size());
  for (int const label : waiting_) waits[sets.of(label)] = 1;
  for (int label = 0; label < labelCount(); ++label)
    if (waits[sets.of(label)] && labels_[label].last - labels_[label].first > 1) active_.push_back(label);
}

void LabelSearch::choose(int label, int candidate) {
  Label& own = labels_[label];
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

void LabelSearch::goBack(size_t to) {
  for (; done_.size() > to; done_.pop_back()) choose(done_.back().first, done_.back().second);
}

bool LabelSearch::dropsOnlyLess(int candidate, int rank) const {
  Candidate const& own = candidates_[candidate];
  return std::all_of(neighbours_.begin() + own.first, neighbours_.begin() + own.last, [&](int other) {
    Label const& label = labels_[labelOf(other)];
    return label.chosen != other || label.rank > rank;
  });
}

// What it means for the label that is to be placed in the end.
LabelSearch::Move LabelSearch::moveOf(int candidate, int root) const {
  Candidate const& own = candidates_[candidate];
  int const rank = labels_[root].rank;
  if (own.hits == 0) return Move::Free;
  if (own.hits > 1) return dropsOnlyLess(candidate, rank) ? Move::DropsMany : Move::None;
  Label const& hitter = labels_[own.hitters];
  if (own.hitters == root) return Move::None;
  if (hitter.rank > rank) return Move::DropsLess;
  if (hitter.rank == rank) return own.isBannedUntil > step_ ? Move::None : Move::Swaps;
  return hitter.chain == step_ ? Move::None : Move::Pushes;
}

// By chance one of those that are equally good.
LabelSearch::Choice LabelSearch::choiceOf(int label, int root) {
  Choice best;
  int equal = 0;
  for (int one = labels_[label].first; one < labels_[label].last; ++one) {
    Move const move = moveOf(one, root);
    if (move == Move::None || move > best.move) continue;
    equal = move < best.move ? 1 : equal + 1;
    if (equal == 1 || below(equal) == 0) best = {move, one};
  }
  return best;
}

void LabelSearch::pushOut(int candidate) {
  Candidate const& own = candidates_[candidate];
  for (int i = own.first; i < own.last && own.hits > 0; ++i) {
    int const other = neighbours_[i], label = labelOf(other);
    if (labels_[label].chosen != other) continue;
    candidates_[other].isBannedUntil = step_ + bannedSteps + below(bannedAtRandom);
    labels_[label].chain = step_;
    set(label, -1);
  }
}

// Places a label where one has to go that is no more important, or after others have made room in turn.
void LabelSearch::insert(int root) {
  done_.clear();
  int label = root;
  labels_[root].chain = step_;
  for (int length = 0; length < longestChain; ++length) {
    auto const [move, candidate] = choiceOf(label, root);
    if (move == Move::None) break;
    int const pushed = move == Move::Free ? -1 : candidates_[candidate].hitters;
    pushOut(candidate);
    set(label, candidate);
    if (move == Move::Free || move == Move::DropsMany) return;
    label = pushed;
    if (move == Move::Pushes) continue;
    Choice const rest = choiceOf(label, label);
    if (rest.move == Move::Free) set(label, rest.candidate);
    return;
  }
  goBack(0);
  freed_.clear();
}

void LabelSearch::takeFreed() {
  while (!freed_.empty()) {
    int const candidate = freed_.back(), label = labelOf(candidate);
    freed_.pop_back();
    if (candidates_[candidate].hits == 0 && labels_[label].chosen < 0) choose(label, candidate);
  }
}

// One moves to another place that is free, so that things come about that were not there before.
void LabelSearch::stir() {
  int const label = active_[below(static_cast<int>(active_.size()))];
  Label const& own = labels_[label];
  int const candidate = own.first + below(own.last - own.first);
  if (own.chosen >= 0 && candidate != own.chosen && candidates_[candidate].hits == 0) choose(label, candidate);
}

bool LabelSearch::improve(int steps) {
  for (int i = 0; i < steps && !waiting_.empty() && !active_.empty(); ++i) {
    ++step_;
    if (step_ % 2 == 0)
      stir();
    else
      insert(waiting_[below(static_cast<int>(waiting_.size()))]);
    takeFreed();
  }
  return !waiting_.empty() && !active_.empty();
}

void LabelSearch::settle() {
  std::vector<int> left = waiting_;
  std::sort(left.begin(), left.end());
  for (int const label : left) {
    ++step_;
    insert(label);
    takeFreed();
  }
  for (int sweep = 0; sweep < sweeps; ++sweep) {
    bool isBetter = false;
    for (int label = 0; label < labelCount(); ++label)
      if (labels_[label].chosen >= 0) isBetter |= makeCheaper(label);
    if (!isBetter) return;
  }
}

bool LabelSearch::makeCheaper(int label) {
  Label const& own = labels_[label];
  int best = own.chosen;
  for (int one = own.first; one < own.last; ++one)
    if (candidates_[one].hits == 0 && candidates_[one].cost < candidates_[best].cost) best = one;
  bool const isBetter = best != own.chosen;
  if (isBetter) choose(label, best);
  for (int one = own.first; one < own.last; ++one)
    if (candidates_[one].hits == 1 && candidates_[one].cost < candidates_[own.chosen].cost && swapForCheaper(label, one))
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
