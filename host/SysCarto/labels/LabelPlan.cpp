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

constexpr std::int64_t looksAtOnce = 20000;  // a millisecond or less

}  // namespace

LabelPlan::LabelPlan(int effort) : search_(effort), tree_(std::make_unique<BoxTree>()) {}
LabelPlan::~LabelPlan() = default;

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
    Way own{&way, {}, {}, {}};
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

void LabelPlan::forget(int number) {
  Label& label = labels_[static_cast<size_t>(number)];
  for (size_t i = 0; i < label.wanted.ways.size(); ++i) ways_[static_cast<size_t>(label.first) + i] = Way();
  label.wanted = {};
}

bool LabelPlan::place(std::function<bool()> const& mayGoOn) {
  for (; next_ < count(); ++next_) {
    if (!mayGoOn()) return false;
    findConflicts(next_);
  }
  while (search_.goOn(looksAtOnce))
    if (!mayGoOn()) return false;
  return true;
}

bool LabelPlan::isTooMuch() const { return looks_ > mostLooks || search_.conflictCount() > mostConflicts; }

// With those before that lie near, each way against each.
void LabelPlan::findConflicts(int number) {
  Label const& label = labels_[static_cast<size_t>(number)];
  if (label.wanted.ways.empty()) return;
  bool const isLeftOut = isTooMuch() || tree_->any(label.box, [&](int other) {
    findConflicts(labels_[static_cast<size_t>(other)], label);
    return isTooMuch();
  });
  if (isLeftOut)
    search_.giveUp(number);
  else
    tree_->insert(label.box, number);
}

// What no other way of the same label changes is looked at once.
void LabelPlan::findConflicts(Label const& upper, Label const& lower) {
  size_t const firstOfUpper = static_cast<size_t>(upper.first), firstOfLower = static_cast<size_t>(lower.first);
  size_t const ofUpper = upper.wanted.ways.size(), ofLower = lower.wanted.ways.size();
  looks_ += static_cast<std::int64_t>(ofUpper) * static_cast<std::int64_t>(ofLower);
  bool const isOneLayer = upper.room.group == lower.room.group;  // marks of others cost, and forbid nothing
  bool const isEither = isOneLayer && hide(upper.wanted, lower.wanted);
  bool const isRepeated = isOneLayer && !upper.wanted.repeats.isEmpty() && upper.wanted.repeats == lower.wanted.repeats;
  bool const isWider = upper.room.gap >= lower.room.gap;
  std::vector<char> covers(ofLower);
  for (size_t b = 0; b < ofLower; ++b)
    covers[b] = isEither || (isOneLayer && LabelPlan::covers(ways_[firstOfLower + b], upper.wanted.mark));
  for (size_t a = 0; a < ofUpper; ++a) {
    Way const& one = ways_[firstOfUpper + a];
    bool const isNever =
        isEither ||
        (isOneLayer && (LabelPlan::covers(one, lower.wanted.mark) || LabelPlan::covers(one, lower.wanted.around)));
    for (size_t b = 0; b < ofLower; ++b) {
      Way const& other = ways_[firstOfLower + b];
      if (isNever || covers[b] || (isRepeated && isNear(one, other, upper.room.apart)) ||
          (one.box.meets(other.box) && meet(isWider ? one.spaced : one.shapes, isWider ? other.shapes : other.spaced)))
        search_.addConflict(static_cast<int>(firstOfUpper + a), static_cast<int>(firstOfLower + b));
    }
  }
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

bool LabelPlan::isNear(Way const& a, Way const& b, double distance) {
  QPointF const between = a.given->middle() - b.given->middle();
  return std::hypot(between.x(), between.y()) < distance;
}

MapLabelling::MapLabelling(std::vector<LabelPlacer*> layers, int effort) : layers_(std::move(layers)), plan_(effort) {}

bool MapLabelling::goOn(std::function<bool()> const& mayGoOn) {
  if (!prepare(mayGoOn)) return false;
  while (layer_ < layers_.size()) {
    if (!mayGoOn()) return false;
    if (addLabels()) continue;
    ++layer_;
    ++rank_;
    priority_ = std::nullopt;
  }
  return plan_.place(mayGoOn) && finish(mayGoOn);
}

bool MapLabelling::prepare(std::function<bool()> const& mayGoOn) {
  size_t const count = layers_.size();
  for (; prepared_ < 3 * count; ++prepared_) {
    if (!mayGoOn()) return false;
    LabelPlacer& layer = *layers_[prepared_ % count];
    if (prepared_ < count) {
      // Wherever a person has put a label, no other one covers it.
      for (LabelShape const& shape : layer.placePinned())
        for (LabelPlacer* const other : layers_) other->addTaken(shape);
    } else if (prepared_ < 2 * count) {
      layer.addMarks(given_);
    } else {
      if (!marks_) marks_.emplace(std::exchange(given_, {}));
      layer.begin(*marks_);
    }
  }
  return true;
}

// Those of the next feature of the layer. Answers whether there was one.
bool MapLabelling::addLabels() {
  LabelPlacer& layer = *layers_[layer_];
  std::vector<WantedLabel> wanted;
  if (!layer.addNext(wanted)) return false;
  for (WantedLabel& label : wanted) {
    double const priority = layer.priority(label.feature);
    rank_ += priority_ && priority < *priority_;
    priority_ = priority;
    plan_.add(std::move(label), rank_, {layer.gapPt(), layer.repeatPt(), static_cast<int>(layer_)});
    owners_.push_back(&layer);
  }
  return true;
}

bool MapLabelling::finish(std::function<bool()> const& mayGoOn) {
  for (int const count = plan_.count(); finished_ < 2 * count; ++finished_) {
    if (finished_ % 64 == 0 && !mayGoOn()) return false;
    int const label = finished_ % count;
    LabelPlacer& layer = *owners_[static_cast<size_t>(label)];
    auto const* const way = plan_.chosen(label);
    if (way && finished_ < count) layer.accept(plan_.label(label), *way);
    if (!way && finished_ >= count) layer.leaveOut(plan_.label(label));
    if (finished_ >= count) plan_.forget(label);  // all at once that would take a while
  }
  return true;
}

}  // namespace SysCarto
