#include "LabelPlan.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace SysCarto {

namespace {

// What is placed against each other; less important labels find no place then.
constexpr int mostLabels = 20000;
constexpr std::int64_t mostLooks = 100000000;
constexpr std::size_t mostConflicts = 12000000;

constexpr int stepsALabel = 150, stepsAtOnce = 20;

}  // namespace

void LabelPlan::add(WantedLabel label, int rank, Room const& room) {
  labels_.push_back({std::move(label), room, search_.candidateCount(), {}});
  search_.addLabel(rank);
  if (labels_.back().wanted.ways.empty()) return;
  if (++withWays_ <= mostLabels)
    addWays(labels_.back());
  else
    labels_.back().wanted.ways.clear();
}

void LabelPlan::addWays(Label& label) {
  WantedLabel const& wanted = label.wanted;
  label.box.add(wanted.mark);
  label.box.add(wanted.around);
  for (LabelWay const& way : wanted.ways) {
    Way own{count() - 1, &way, {}, {}, {}};
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
  findConflicts(isCancelled);
  if (isCancelled()) return;
  search_.begin();
  for (int steps = stepsALabel; steps > 0 && !isCancelled(); steps -= stepsAtOnce)
    if (!search_.improve(stepsAtOnce)) break;
  search_.settle();
}

// Of labels that lie near each other, each way against each.
void LabelPlan::findConflicts(std::function<bool()> const& isCancelled) {
  BoxTree tree;
  auto const isTooMuch = [this] { return looks_ > mostLooks || search_.conflictCount() > mostConflicts; };
  for (int number = 0; number < count(); ++number) {
    Label const& label = labels_[static_cast<size_t>(number)];
    if (label.wanted.ways.empty()) continue;
    if (number % 64 == 0 && isCancelled()) return;
    bool const isLeftOut = isTooMuch() || tree.any(label.box, [&](int other) {
      findConflicts(labels_[static_cast<size_t>(other)], label);
      return isTooMuch();
    });
    if (isLeftOut)
      search_.giveUp(number);
    else
      tree.insert(label.box, number);
  }
}

void LabelPlan::findConflicts(Label const& upper, Label const& lower) {
  auto const lastOf = [](Label const& one) { return one.first + static_cast<int>(one.wanted.ways.size()); };
  bool const isEither = upper.room.group == lower.room.group && hide(upper.wanted, lower.wanted);
  looks_ += static_cast<std::int64_t>(upper.wanted.ways.size()) * static_cast<std::int64_t>(lower.wanted.ways.size());
  for (int a = upper.first; a < lastOf(upper); ++a)
    for (int b = lower.first; b < lastOf(lower); ++b)
      if (isEither || conflict(ways_[static_cast<size_t>(a)], ways_[static_cast<size_t>(b)])) search_.addConflict(a, b);
}

bool LabelPlan::conflict(Way const& upper, Way const& lower) const {
  Label const& first = labels_[static_cast<size_t>(upper.label)];
  Label const& second = labels_[static_cast<size_t>(lower.label)];
  bool const isOneLayer = first.room.group == second.room.group;  // marks of others cost, and forbid nothing
  if (isOneLayer && (covers(upper, second.wanted.mark) || covers(upper, second.wanted.around) ||
                     covers(lower, first.wanted.mark) || repeats(upper, lower)))
    return true;
  if (!upper.box.meets(lower.box)) return false;
  bool const isWider = first.room.gap >= second.room.gap;
  return meet(isWider ? upper.spaced : upper.shapes, isWider ? lower.shapes : lower.spaced);
}

bool LabelPlan::meet(std::vector<LabelShape> const& a, std::vector<LabelShape> const& b) {
  return std::any_of(a.begin(), a.end(), [&](LabelShape const& own) {
    return std::any_of(b.begin(), b.end(), [&](LabelShape const& other) { return intersects(own, other); });
  });
}

bool LabelPlan::covers(Way const& way, Box const& box) {
  return !box.isEmpty() && box.meets(way.box) &&
         std::any_of(way.shapes.begin(), way.shapes.end(),
                     [&](LabelShape const& shape) { return intersects(shape, LabelShape::upright(box)); });
}

// A name beside a mark that is not seen would be read as that of another.
bool LabelPlan::hide(WantedLabel const& a, WantedLabel const& b) {
  auto const isHidden = [](Box const& core, Box const& mark) {
    return !core.isEmpty() && !mark.isEmpty() && core.meets(mark);
  };
  return isHidden(a.core, b.mark) || isHidden(b.core, a.mark);
}

// Labels of one text along lines that stand closer than they are to.
bool LabelPlan::repeats(Way const& a, Way const& b) const {
  Label const &first = labels_[static_cast<size_t>(a.label)], &second = labels_[static_cast<size_t>(b.label)];
  if (first.wanted.repeats.isEmpty() || first.wanted.repeats != second.wanted.repeats) return false;
  QPointF const between = a.given->middle() - b.given->middle();
  return std::hypot(between.x(), between.y()) < first.room.apart;
}

void placeLabels(std::vector<LabelPlacer*> const& layers, std::function<bool()> const& isCancelled) {
  // Wherever a person has put a label, no other one covers it.
  for (LabelPlacer* const layer : layers)
    for (LabelShape const& shape : layer->placePinned())
      for (LabelPlacer* const other : layers) other->addTaken(shape);
  MarkIndex::Marks given;
  for (LabelPlacer* const layer : layers) layer->addMarks(given);
  MarkIndex const marks(given);
  LabelPlan plan;
  std::vector<LabelPlacer*> owners;
  int rank = 0;
  for (LabelPlacer* const layer : layers) {
    ++rank;
    LabelPlan::Room const room{layer->gapPt(), layer->repeatPt(), rank};
    std::optional<double> before;
    for (WantedLabel& wanted : layer->wanted(marks, isCancelled)) {
      double const priority = layer->priority(wanted.feature);
      rank += before && priority < *before;
      before = priority;
      plan.add(std::move(wanted), rank, room);
      owners.push_back(layer);
    }
  }
  if (isCancelled()) return;
  plan.place(isCancelled);
  for (int i = 0; i < plan.count(); ++i)
    if (auto const* const way = plan.chosen(i)) owners[static_cast<size_t>(i)]->accept(plan.label(i), *way);
  for (int i = 0; i < plan.count(); ++i)
    if (!plan.chosen(i)) owners[static_cast<size_t>(i)]->leaveOut(plan.label(i));
}

}  // namespace SysCarto
