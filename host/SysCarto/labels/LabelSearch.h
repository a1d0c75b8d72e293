#pragma once

#include <SysCarto/Export.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace SysCarto {

/// Chooses one of its candidates for each of many labels, or none, so that no two that are chosen are in each other's
/// way.
///
/// More important labels come first, whatever it costs others: no label is given up for any number of less important
/// ones. Among equally important ones as many as possible are placed; where that is the same, the cheapest candidates
/// are taken. The same input has the same result everywhere.
class SYSCARTO_EXPORT LabelSearch {
public:
  /// `effort` is how many times as long as usual it looks for better, at most.
  explicit LabelSearch(int effort = 1) : effort_(effort) {}

  /// In the order of importance. `rank` is the same for equally important ones, and grows.
  void addLabel(int rank);

  /// Of the label that was added last. Candidates have numbers from 0, in the order in which they were added.
  void addCandidate(double cost);

  /// Two candidates of different labels that can't both be chosen.
  void addConflict(int a, int b);

  std::size_t conflictCount() const { return conflicts_.size(); }

  /// A label that finds no place, whatever is known of its conflicts.
  void giveUp(int label);

  /// Nothing is added afterwards. Goes on towards better, for about so many looks at what is in the way of something,
  /// and answers whether there is more to do. What comes of it in the end is the same however it is divided.
  bool goOn(std::int64_t looks);

  /// The candidate of a label, or −1.
  int chosen(int label) const { return labels_[static_cast<size_t>(label)].chosen; }
  int labelOf(int candidate) const { return candidates_[static_cast<size_t>(candidate)].label; }
  int labelCount() const { return static_cast<int>(labels_.size()); }
  int candidateCount() const { return static_cast<int>(candidates_.size()); }

private:
  struct Label {
    int rank;
    int first, last;  // candidates
    int chosen = -1;
    int place = -1;  // in `waiting_`
    int chain = 0;   // the last one that it was moved in
  };
  struct Candidate {
    int label;
    double cost;
    int first = 0, last = 0;    // in `neighbours_`
    int hits = 0, hitters = 0;  // chosen candidates in its way, and the sum of their labels
    int isBannedUntil = 0;
  };
  // The better, the lower.
  enum class Move { Free, Drops, Pushes, PushesTwo, None };
  struct Choice {
    Move move = Move::None;
    int candidate = -1;
  };

  int below(int count) { return static_cast<int>(chance_() % static_cast<unsigned>(count)); }

  // Each does one step of a stage, and answers whether that has another.
  using Stage = bool (LabelSearch::*)();
  static Stage const stages[];
  bool link();
  bool takeFree();
  bool improve();
  bool insertNext();
  bool cheapenNext();

  int setOf(int label);
  void findActive();
  bool beginSweep();
  void choose(int label, int candidate);
  void set(int label, int candidate);
  void goBack();
  Choice choiceOf(int label, int root);
  Move moveOf(int candidate, int root);
  bool pushOut(int candidate, int rank);
  void insert(int root);
  void takeFreed();
  void stir();
  bool makeCheaper(int label);
  bool swapForCheaper(int label, int candidate);

  std::vector<Label> labels_;
  std::vector<Candidate> candidates_;
  std::deque<std::pair<int, int>> conflicts_;  // many: a vector would be copied as it grows
  std::unique_ptr<int[]> neighbours_;
  std::vector<int> sets_;                  // of labels: the next one on the way to what all have that conflicts join
  std::vector<int> waiting_;               // labels that are not placed
  std::vector<int> active_;                // labels that may make room for these
  std::vector<int> freed_;                 // candidates
  std::vector<int> pushed_;                // labels that need another place
  std::vector<std::pair<int, int>> done_;  // labels and what they had before, to go back
  std::minstd_rand chance_;
  int const effort_;
  int step_ = 0, lastGain_ = 0;
  std::int64_t looks_ = 0;

  // Where it is.
  std::size_t stage_ = 0;
  std::vector<int> left_;  // labels of the sweep that is under way, the first one last
  int sweep_ = 0;
  bool isBetter_ = false;  // by that sweep
  std::int64_t looksBefore_ = 0;
};

}  // namespace SysCarto
