#include "LabelPlan.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace SysCarto {

namespace {

constexpr int mostLabels = 20000;  // that are placed against each other
constexpr int stepsALabel = 100;
constexpr int stepsAtOnce = 2000;

}  // namespace

void LabelPlan::add(WantedLabel label, int rank, Room const& room) {
  labels_.push_back({std::move(label), room, search_.candidateCount(), {}});
  search_.addLabel(rank);
  if (count() <= mostLabels) addWays(labels_.back());
}

void LabelPlan::addWays(Label& label) {
  WantedLabel const& wanted = label.wanted;
  for (LabelWay const& way : wanted.ways) {
    Way own{count() - 1, &way, {}, {}, wanted.kept};
    for (LabelPiece const& piece : way.pieces) {
      LabelText const& text = wanted.texts[static_cast<size_t>(piece.text)];
      own.shapes.push_back(LabelPlacer::shapeOf(text, piece.centre, piece.angle, 0));
      own.spaced.push_back(LabelPlacer::shapeOf(text, piece.centre, piece.angle, label.room.gap));
    }
    if (!way.leader.isEmpty()) {
      own.shapes.push_back(LabelShape::area({way.leader}));
      own.spaced.push_back(own.shapes.back());
    }
    for (LabelShape const& shape : own.spaced) own.box.add(shape.box);
    label.box.add(own.box.grown(wanted.repeats.isEmpty() ? 0 : label.room.apart));
    ways_.push_back(std::move(own));
    search_.addCandidate(way.cost);
  }
}

LabelWay const* LabelPlan::chosen(int number) const {
  int const way = search_.chosen(number);
  return way < 0 ? nullptr : ways_[static_cast<size_t>(way)].given;
}

void LabelPlan::place(std::function<bool()> const& isCancelled) {
  findConflicts();
  search_.begin();
  for (int steps = count() * stepsALabel; steps > 0 && !isCancelled(); steps -= stepsAtOnce)
    if (!search_.improve(std::min(steps, stepsAtOnce))) break;
  search_.settle();
}

// Of labels whose ways lie near each other, each way against each.
void LabelPlan::findConflicts() {
  BoxTree tree;
  for (int number = 0; number < count(); ++number) {
    Label const& label = labels_[static_cast<size_t>(number)];
    if (label.box.isEmpty()) continue;
    tree.any(label.box, [&](int other) {
      findConflicts(label, labels_[static_cast<size_t>(other)]);
      return false;
    });
    tree.insert(label.box, number);
  }
}

void LabelPlan::findConflicts(Label const& label, Label const& other) {
  bool const mayRepeat = !label.wanted.repeats.isEmpty() && !other.wanted.repeats.isEmpty();
  double const apart = mayRepeat ? label.room.apart : 0;
  auto const lastOf = [](Label const& one) { return one.first + static_cast<int>(one.wanted.ways.size()); };
  for (int a = label.first; a < lastOf(label); ++a) {
    Way const& way = ways_[static_cast<size_t>(a)];
    Box const near = way.box.grown(apart);
    for (int b = other.first; b < lastOf(other); ++b)
      if (near.meets(ways_[static_cast<size_t>(b)].box) && conflict(way, ways_[static_cast<size_t>(b)]))
        search_.addConflict(a, b);
  }
}

bool LabelPlan::conflict(Way const& a, Way const& b) const {
  Label const &first = labels_[static_cast<size_t>(a.label)], &second = labels_[static_cast<size_t>(b.label)];
  bool const isWider = first.room.gap >= second.room.gap;
  return meet(isWider ? a.spaced : a.shapes, isWider ? b.shapes : b.spaced) || covers(a, second.wanted.kept) ||
         covers(b, first.wanted.kept) || hides(first.wanted, second.wanted) || hides(second.wanted, first.wanted) ||
         repeats(a, b);
}

bool LabelPlan::meet(std::vector<LabelShape> const& a, std::vector<LabelShape> const& b) {
  return std::any_of(a.begin(), a.end(), [&](LabelShape const& own) {
    return std::any_of(b.begin(), b.end(), [&](LabelShape const& other) { return intersects(own, other); });
  });
}

bool LabelPlan::covers(Way const& way, Box const& kept) {
  return !kept.isEmpty() && std::any_of(way.shapes.begin(), way.shapes.end(), [&](LabelShape const& shape) {
    return intersects(shape, LabelShape::upright(kept));
  });
}

// A name beside a mark that is not seen would be read as that of another.
bool LabelPlan::hides(WantedLabel const& upper, WantedLabel const& lower) {
  return !upper.mark.isEmpty() && !lower.core.isEmpty() && upper.mark.meets(lower.core);
}

// Labels of one text along lines that stand closer than they are to.
bool LabelPlan::repeats(Way const& a, Way const& b) const {
  Label const &first = labels_[static_cast<size_t>(a.label)], &second = labels_[static_cast<size_t>(b.label)];
  bool const isSame = first.room.group == second.room.group && first.wanted.repeats == second.wanted.repeats;
  if (!isSame || first.wanted.repeats.isEmpty()) return false;
  QPointF const way = a.given->middle() - b.given->middle();
  return std::hypot(way.x(), way.y()) < first.room.apart;
}

void placeLabels(std::vector<LabelPlacer*> const& layers, std::function<bool()> const& isCancelled) {
  // Wherever a person has put a label, no other one covers it.
  for (LabelPlacer* const layer : layers)
    for (LabelShape const& shape : layer->placePinned())
      for (LabelPlacer* const other : layers) other->addTaken(shape);
  LabelPlan plan;
  std::vector<LabelPlacer*> owners;
  int rank = 0;
  for (LabelPlacer* const layer : layers) {
    ++rank;
    LabelPlan::Room const room{layer->gapPt(), layer->repeatPt(), rank};
    std::optional<double> before;
    for (WantedLabel& wanted : layer->wanted(isCancelled)) {
      double const priority = layer->priority(wanted.feature);
      rank += before && priority < *before;
      before = priority;
      plan.add(std::move(wanted), rank, room);
      owners.push_back(layer);
    }
  }
  plan.place(isCancelled);
  for (int i = 0; i < plan.count(); ++i)
    if (auto const* const way = plan.chosen(i)) owners[static_cast<size_t>(i)]->accept(plan.label(i), *way);
  for (int i = 0; i < plan.count(); ++i)
    if (!plan.chosen(i)) owners[static_cast<size_t>(i)]->leaveOut(plan.label(i));
}

}  // namespace SysCarto
