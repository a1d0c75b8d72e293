#include "LayerActions.h"

#include "LayerArrangement.h"

#include "host/SysCarto/document/LayerClip.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/LayerHost.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <memory>

using SysCarto::LayerClip;
using SysCarto::LayerEntry;
using SysCarto::LayerGroup;
using SysCarto::LayerPlace;
using SysCarto::LayerRow;
using SysCarto::Map;
using SysUtility::_ptr_t;

namespace {

using Entries = LayerArrangement::Entries;
using Rows = LayerActions::Rows;

QString const mimeType = QStringLiteral("application/x-plotvane-layers+json");

// How many groups lie in each other, the outermost one counted.
int depthOf(Entries const& entries) {
  int depth = 0;
  for (LayerEntry const& entry : entries)
    if (entry.group) depth = std::max(depth, 1 + depthOf(entry.entries));
  return depth;
}

Rows rowsOf(_ptr_t<Map> const& map, Entries const& entries) {
  Rows rows;
  for (LayerEntry const& entry : entries) rows.append({map, entry.group, entry.layer});
  return rows;
}

QSet<QString> namesIn(Entries const& entries) {
  QSet<QString> names;
  for (LayerEntry const& entry : entries) {
    names << (entry.layer ? entry.layer->GetName() : entry.group->name());
    names += namesIn(entry.entries);
  }
  return names;
}

QString unusedName(QString const& name, QSet<QString> const& used) {
  QString unused = name;
  for (int number = 2; used.contains(unused); ++number) unused = QStringLiteral("%1 (%2)").arg(name).arg(number);
  return unused;
}

// Copies are told apart from what is there, since texts of the page and steps know layers by their names.
void giveUnusedNames(Entries& entries, QSet<QString>& used) {
  for (LayerEntry& entry : entries) {
    QString const name = unusedName(entry.layer ? entry.layer->GetName() : entry.group->name(), used);
    used << name;
    if (entry.layer)
      entry.layer->SetName(name);
    else
      entry.group->setName(name);
    giveUnusedNames(entry.entries, used);
  }
}

void insert(Entries& entries, int below, Entries const& inserted) {
  int const place = std::clamp(below, 0, static_cast<int>(entries.size()));
  entries.insert(entries.begin() + place, inserted.begin(), inserted.end());
}

int depthOf(_ptr_t<Map> const& map, LayerGroup const* group) {
  for (auto const& layer : map->GetLayers()) {
    auto const groups = SysCarto::LayerHost::groups(*layer);
    for (int i = 0; i < groups.size(); ++i)
      if (groups[i].get() == group) return i + 1;
  }
  return 0;
}

QString tooDeep() {
  return LayerActions::tr("Groups lie at most %1 deep in each other; ungroup some of them first.")
      .arg(SysCarto::maxLayerGroupDepth);
}

// The entries lie in the arrangement of their new map afterwards, and the step is done.
LayerOutcome put(LayerArrangement& arrangement, LayerPlace const& place, Entries const& entries, QString const& step,
                 QStringList const& warnings = {}) {
  auto* const target = arrangement.entries(place.map, place.group.get());
  if (!target || entries.empty()) return {};
  if (depthOf(place.map, place.group.get()) + depthOf(entries) > SysCarto::maxLayerGroupDepth)
    return {tooDeep(), {}, {}};
  insert(*target, place.below, entries);
  arrangement.change(step);
  return {{}, rowsOf(place.map, entries), warnings};
}

bool isSameSystem(Map const& a, Map const& b) { return a.GetCoordinateSystem() == b.GetCoordinateSystem(); }

// In a list: what is chosen changes places with what is above it. Of a group that is not chosen itself, what is at its
// upper end leaves it.
void raiseIn(Entries& entries, LayerArrangement::Chosen const& chosen) {
  auto const isChosen = [&](LayerEntry const& entry) { return chosen.contains(LayerArrangement::thing(entry)); };
  for (std::size_t i = entries.size(); i-- > 1;)
    if (isChosen(entries[i - 1]) && !isChosen(entries[i])) std::swap(entries[i - 1], entries[i]);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (isChosen(entries[i])) continue;
    Entries& inner = entries[i].entries;
    auto const firstLeaving = std::find_if_not(inner.rbegin(), inner.rend(), isChosen).base();
    Entries const leaving(firstLeaving, inner.end());
    inner.erase(firstLeaving, inner.end());
    raiseIn(inner, chosen);
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(i) + 1, leaving.begin(), leaving.end());
    i += leaving.size();
  }
}

void mirror(Entries& entries) {
  std::reverse(entries.begin(), entries.end());
  for (LayerEntry& entry : entries) mirror(entry.entries);
}

LayerOutcome step(Rows const& rows, bool upwards) {
  LayerArrangement arrangement(rows);
  for (auto const& map : arrangement.maps()) {
    Entries& entries = *arrangement.entries(map);
    if (!upwards) mirror(entries);
    raiseIn(entries, arrangement.chosen());
    if (!upwards) mirror(entries);
  }
  arrangement.change(upwards ? LayerActions::tr("Raise layers") : LayerActions::tr("Lower layers"));
  return {{}, rows, {}};
}

bool isLayerOrGroup(LayerRow const& row) { return row.layer || row.group; }

// The topmost of the rows as the contents show them.
LayerRow topmost(Rows const& rows) {
  LayerArrangement arrangement(rows);
  for (auto const& map : arrangement.maps()) {
    Entries const chosen = arrangement.chosenOf(map, false);
    if (!chosen.empty()) return {map, chosen.back().group, chosen.back().layer};
  }
  return {};
}

// All copies have other names than what the map has.
Entries copiesFor(_ptr_t<Map> const& map, Entries const& entries, QString& problem, QStringList& warnings) {
  Entries copies = LayerClip::copy(entries, *map, problem, warnings);
  QSet<QString> used = namesIn(SysCarto::entriesOf(*map));
  giveUnusedNames(copies, used);
  return copies;
}

LayerOutcome copyAs(QString const& step, Rows const& rows, LayerPlace const& place) {
  LayerArrangement arrangement(rows);
  Entries chosen;
  for (auto const& map : arrangement.maps())
    for (LayerEntry const& entry : arrangement.chosenOf(map, false)) chosen.push_back(entry);
  LayerOutcome outcome;
  Entries const copies = copiesFor(place.map, chosen, outcome.problem, outcome.warnings);
  if (!outcome.problem.isEmpty()) return outcome;
  return put(arrangement, place, copies, step, outcome.warnings);
}

}  // namespace

LayerPlace LayerActions::above(LayerRow const& row) {
  if (!isLayerOrGroup(row)) return {row.map, nullptr, static_cast<int>(SysCarto::entriesOf(*row.map).size())};
  LayerPosition const position = positionOf(row);
  return {row.map, position.group, position.below + 1};
}

LayerPlace LayerActions::inside(LayerRow const& row) {
  if (!row.group || row.layer) return above(row);
  LayerArrangement arrangement({row});
  auto const* const entries = arrangement.entries(row.map, row.group.get());
  return {row.map, row.group, entries ? static_cast<int>(entries->size()) : 0};
}

_ptr_t<SysCarto::Layer> LayerActions::layerBelow(LayerPlace const& place) {
  LayerArrangement arrangement({});
  auto const* entries = arrangement.entries(place.map, place.group.get());
  if (!entries) return nullptr;
  int below = place.below;
  while (below > 0 && below <= static_cast<int>(entries->size())) {
    LayerEntry const& entry = (*entries)[below - 1];
    if (entry.layer) return entry.layer;
    entries = &entry.entries;
    below = static_cast<int>(entries->size());
  }
  return nullptr;
}

LayerOutcome LayerActions::move(Rows const& rows, LayerPlace const& place) {
  LayerArrangement arrangement(rows);
  auto const* const siblings = arrangement.entries(place.map, place.group.get());
  if (!siblings) return {};
  int below = 0;
  for (int i = 0; i < place.below && i < static_cast<int>(siblings->size()); ++i)
    below += arrangement.chosen().contains(LayerArrangement::thing((*siblings)[i])) ? 0 : 1;
  Entries moved;
  LayerOutcome outcome;
  for (auto const& map : arrangement.maps()) {
    Entries own = arrangement.chosenOf(map, true);
    if (!isSameSystem(*map, *place.map)) own = LayerClip::copy(own, *place.map, outcome.problem, outcome.warnings);
    if (!outcome.problem.isEmpty()) return outcome;
    moved.insert(moved.end(), own.begin(), own.end());
  }
  if (!arrangement.entries(place.map, place.group.get())) return {tr("A group can't lie in itself."), {}, {}};
  return put(arrangement, {place.map, place.group, below}, moved, tr("Move layers"), outcome.warnings);
}

LayerOutcome LayerActions::copy(Rows const& rows, LayerPlace const& place) {
  return copyAs(tr("Copy layers"), rows, place);
}

LayerOutcome LayerActions::duplicate(Rows const& rows) {
  LayerRow const top = topmost(rows);
  return top.map ? copyAs(tr("Duplicate layers"), rows, above(top)) : LayerOutcome();
}

LayerOutcome LayerActions::remove(Rows const& rows) {
  LayerArrangement arrangement(rows);
  for (auto const& map : arrangement.maps()) arrangement.chosenOf(map, true);
  arrangement.change(tr("Remove layers"));
  return {};
}

LayerOutcome LayerActions::setOrder(LayerRow const& row, int fromTop) {
  LayerPosition const position = positionOf(row);
  if (position.below < 0) return {};
  if (fromTop > position.count)
    return {tr("There are %1 places there; give one from 1 to %1.").arg(position.count), {}, {}};
  int const wanted = position.count - fromTop;
  return move({row}, {row.map, position.group, wanted > position.below ? wanted + 1 : wanted});
}

LayerOutcome LayerActions::raise(Rows const& rows) { return step(rows, true); }
LayerOutcome LayerActions::lower(Rows const& rows) { return step(rows, false); }

namespace {

// On top of the group below the rows or, where none is, at the bottom of the one above them; without a map where there
// is no group beside them.
LayerPlace placeInGroupBeside(Rows const& rows) {
  LayerRow const top = topmost(rows);
  if (!top.map) return {};
  LayerPosition const position = positionOf(top);
  LayerArrangement arrangement(rows);
  auto const& siblings = *arrangement.entries(top.map, position.group.get());
  auto const groupAt = [&](int place) -> LayerEntry const* {
    bool const isThere = place >= 0 && place < static_cast<int>(siblings.size()) && siblings[place].group;
    return isThere && !arrangement.chosen().contains(siblings[place].group.get()) ? &siblings[place] : nullptr;
  };
  int lowest = position.below;
  while (lowest > 0 && arrangement.chosen().contains(LayerArrangement::thing(siblings[lowest - 1]))) --lowest;
  if (auto const* const below = groupAt(lowest - 1))
    return {top.map, below->group, static_cast<int>(below->entries.size())};
  if (auto const* const higher = groupAt(position.below + 1)) return {top.map, higher->group, 0};
  return {};
}

}  // namespace

LayerOutcome LayerActions::enterGroup(Rows const& rows) {
  LayerPlace const place = placeInGroupBeside(rows);
  if (!place.map) return {tr("There is no group next to it; Group makes one."), {}, {}};
  return move(rows, place);
}

bool LayerActions::canEnterGroup(Rows const& rows) { return static_cast<bool>(placeInGroupBeside(rows).map); }

LayerOutcome LayerActions::leaveGroup(Rows const& rows) {
  LayerRow const top = topmost(rows);
  auto const group = top.map ? positionOf(top).group : nullptr;
  if (!group) return {tr("It lies in no group."), {}, {}};
  return move(rows, above({top.map, group, nullptr}));
}

bool LayerActions::canGroup(Rows const& rows) {
  return !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), [&](LayerRow const& row) {
    return isLayerOrGroup(row) && row.map == rows.first().map;
  });
}

LayerOutcome LayerActions::group(Rows const& rows, QString const& name) {
  if (!canGroup(rows)) return {tr("Layers and groups of one map can be grouped; choose some."), {}, {}};
  LayerRow const top = topmost(rows);
  LayerPosition const position = positionOf(top);
  LayerArrangement arrangement(rows);
  auto const* const siblings = arrangement.entries(top.map, position.group.get());
  int below = 0;
  for (int i = 0; i < position.below; ++i)
    below += arrangement.chosen().contains(LayerArrangement::thing((*siblings)[i])) ? 0 : 1;
  auto const group = SysUtility::make<LayerGroup>();
  group->setName(name.isEmpty() ? unusedName(tr("New group"), namesIn(SysCarto::entriesOf(*top.map))) : name);
  Entries const members = arrangement.chosenOf(top.map, true);
  return put(arrangement, {top.map, position.group, below}, {{nullptr, group, members}}, tr("Group layers"));
}

bool LayerActions::canUngroup(Rows const& rows) {
  return std::any_of(rows.begin(), rows.end(), [](LayerRow const& row) { return row.group && !row.layer; });
}

LayerOutcome LayerActions::ungroup(Rows const& rows) {
  if (!canUngroup(rows)) return {tr("Groups can be taken apart; choose one."), {}, {}};
  SysCarto::OneStep const step(tr("Ungroup layers"));
  Rows freed;
  for (LayerRow const& row : rows) {
    if (!row.group || row.layer) continue;
    LayerArrangement arrangement({row});
    LayerPosition const position = positionOf(row);
    if (position.below < 0) continue;
    Entries const members = *arrangement.entries(row.map, row.group.get());
    auto& siblings = *arrangement.entries(row.map, position.group.get());
    siblings.erase(siblings.begin() + position.below);
    insert(siblings, position.below, members);
    Rows const own = rowsOf(row.map, members);
    if (!row.group->isVisible()) setVisible(own, false);
    arrangement.change(tr("Ungroup layers"));
    freed += own;
  }
  return {{}, freed, {}};
}

LayerOutcome LayerActions::copyToClipboard(Rows const& rows) {
  LayerArrangement arrangement(rows);
  Entries chosen;
  for (auto const& map : arrangement.maps())
    for (LayerEntry const& entry : arrangement.chosenOf(map, false)) chosen.push_back(entry);
  LayerOutcome outcome{{}, rows, {}};
  QByteArray const text = LayerClip::of(chosen, outcome.problem);
  if (!outcome.problem.isEmpty()) return outcome;
  auto content = std::make_unique<QMimeData>();
  content->setData(mimeType, text);
  content->setText(QString::fromUtf8(text));
  QGuiApplication::clipboard()->setMimeData(content.release());  // which takes it over
  return outcome;
}

LayerOutcome LayerActions::cut(Rows const& rows) {
  LayerOutcome outcome = copyToClipboard(rows);
  if (!outcome.problem.isEmpty()) return outcome;
  LayerArrangement arrangement(rows);
  for (auto const& map : arrangement.maps()) arrangement.chosenOf(map, true);
  arrangement.change(tr("Cut layers"));
  return {};
}

LayerOutcome LayerActions::paste(LayerPlace const& place) {
  QMimeData const* const clipboard = QGuiApplication::clipboard()->mimeData();
  QByteArray text = clipboard ? clipboard->data(mimeType) : QByteArray();
  if (text.isEmpty() && clipboard) text = clipboard->text().toUtf8();
  LayerOutcome outcome;
  if (!LayerClip::isOne(text)) return {tr("The clipboard holds no layers; copy some in the contents."), {}, {}};
  Entries pasted = LayerClip::read(text, *place.map, outcome.problem, outcome.warnings);
  if (!outcome.problem.isEmpty()) return outcome;
  QSet<QString> used = namesIn(SysCarto::entriesOf(*place.map));
  giveUnusedNames(pasted, used);
  LayerArrangement arrangement({});
  return put(arrangement, place, pasted, tr("Paste layers"), outcome.warnings);
}
