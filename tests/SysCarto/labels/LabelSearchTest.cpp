#include "Test.h"

#include "host/SysCarto/labels/LabelSearch.h"

#include <algorithm>
#include <array>
#include <random>
#include <vector>

using namespace SysCarto;

namespace {

// Some labels of a few candidates each, and which of these are in each other's way.
struct Puzzle {
  static constexpr int labels = 7, candidates = 3;
  std::array<int, labels> ranks;
  std::array<std::array<bool, labels * candidates>, labels * candidates> conflicts{};

  explicit Puzzle(unsigned seed) {
    std::minstd_rand chance(seed);
    for (int& rank : ranks) rank = static_cast<int>(chance() % 3);
    std::sort(ranks.begin(), ranks.end());
    for (int a = 0; a < labels * candidates; ++a)
      for (int b = 0; b < a; ++b)
        conflicts[a][b] = conflicts[b][a] = a / candidates != b / candidates && chance() % 5 == 0;
  }

  // How many of each rank are placed; nothing where two are in each other's way.
  std::vector<int> placed(std::array<int, labels> const& chosen) const {
    std::vector<int> counts(3);
    for (int i = 0; i < labels; ++i) {
      if (chosen[i] < 0) continue;
      ++counts[ranks[i]];
      for (int j = 0; j < i; ++j)
        if (chosen[j] >= 0 && conflicts[i * candidates + chosen[i]][j * candidates + chosen[j]]) return {};
    }
    return counts;
  }

  // By trying all there are.
  std::vector<int> best() const {
    std::vector<int> best;
    std::array<int, labels> chosen;
    chosen.fill(-1);
    for (int digit = 0; digit < labels;) {
      best = std::max(best, placed(chosen));
      for (digit = 0; digit < labels && ++chosen[digit] == candidates; ++digit) chosen[digit] = -1;
    }
    return best;
  }

  std::array<int, labels> solved(int givenUp = -1, int looksAtOnce = 1000, int effort = 1) const {
    LabelSearch search(effort);
    for (int const rank : ranks) {
      search.addLabel(rank);
      for (int i = 0; i < candidates; ++i) search.addCandidate(i);
    }
    for (int a = 0; a < labels * candidates; ++a)
      for (int b = 0; b < a; ++b)
        if (conflicts[a][b]) search.addConflict(a, b);
    if (givenUp >= 0) search.giveUp(givenUp);
    while (search.goOn(looksAtOnce)) continue;
    std::array<int, labels> chosen;
    for (int i = 0; i < labels; ++i) chosen[i] = std::max(search.chosen(i) - i * candidates, -1);
    return chosen;
  }
};

}  // namespace

class LabelSearchTest : public QObject {
  Q_OBJECT

private slots:
  void hardlyEverCouldMoreLabelsBePlaced() {
    int missed = 0, missedWithEffort = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
      Puzzle const puzzle(seed);
      auto const placed = puzzle.placed(puzzle.solved());
      QVERIFY2(!placed.empty(), "two are in each other's way");
      auto const placedWithEffort = puzzle.placed(puzzle.solved(-1, 1000, 10)), best = puzzle.best();
      QVERIFY(placedWithEffort >= placed);
      missed += placed != best;
      missedWithEffort += placedWithEffort != best;
      QVERIFY(puzzle.solved(-1, 1) == puzzle.solved());
      int const givenUp = static_cast<int>(seed) % Puzzle::labels;
      QCOMPARE(puzzle.solved(givenUp)[givenUp], -1);
    }
    QVERIFY2(missed <= 12, qPrintable(QString::number(missed)));
    QVERIFY2(missedWithEffort < missed, qPrintable(QString::number(missedWithEffort)));
  }
};

QTEST_MAIN(LabelSearchTest)
#include "LabelSearchTest.moc"
