#include "DataSurvey.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <QSet>

#include <ogr_geometry.h>

namespace {

using SysCarto::Box;

// Outlines of neighbours have common vertices where they were made with care; parts whose boxes meet may be neighbours,
// too, or islands that belong together.
struct Outlines {
  QHash<QString, int> numbers;
  QStringList names;
  QHash<QPair<double, double>, QSet<int>> atVertex;
  std::vector<Box> parts;
  std::vector<int> ownerOf;

  int number(QString const& name) {
    auto const known = numbers.constFind(name);
    if (known != numbers.constEnd()) return *known;
    names << name;
    return numbers[name] = names.size() - 1;
  }

  void add(OGRGeometry const& geometry, int owner) {
    if (auto const* const polygon = dynamic_cast<OGRPolygon const*>(&geometry)) {
      auto const* const ring = polygon->getExteriorRing();
      if (!ring) return;
      for (auto const& point : *ring) atVertex[{point.getX(), point.getY()}] << owner;
      OGREnvelope box;
      polygon->getEnvelope(&box);
      parts.push_back({box.MinX, box.MinY, box.MaxX, box.MaxY});
      ownerOf.push_back(owner);
    } else if (auto const* const collection = dynamic_cast<OGRGeometryCollection const*>(&geometry)) {
      for (auto const* const member : *collection) add(*member, owner);
    }
  }
};

// How much two areas want to be in different groups.
using Wishes = std::vector<QHash<int, double>>;

Wishes wishesOf(Outlines const& outlines) {
  constexpr double border = 100, near = 1;
  Wishes wishes(outlines.names.size());
  auto const wish = [&wishes](int one, int other, double strength) {
    if (one == other) return;
    wishes[one][other] += strength;
    wishes[other][one] += strength;
  };
  for (auto const& owners : outlines.atVertex) {
    QList<int> const all = owners.values();
    for (int i = 0; i < all.size(); ++i)
      for (int j = 0; j < i; ++j) wish(all.at(i), all.at(j), border);
  }
  SysCarto::BoxTree const tree(outlines.parts);
  for (size_t i = 0; i < outlines.parts.size(); ++i)
    tree.any(outlines.parts[i], [&](int other) {
      if (other < static_cast<int>(i)) wish(outlines.ownerOf[i], outlines.ownerOf[other], near);
      return false;
    });
  return wishes;
}

}  // namespace

// The most constrained first (Brélaz 1979): of what has neighbours in the most groups already, what has the most
// neighbours. It goes where it disturbs least, and among those where there is least.
std::vector<QStringList> groupsOfNeighbours(LayerSurvey const& survey, QString const& field, int groups) {
  std::vector<QStringList> sorted(groups);
  Outlines outlines;
  survey.forEachFeature(field, [&](OGRGeometry const& geometry, QString const& text) {
    if (!text.isNull()) outlines.add(geometry, outlines.number(text));
  });

  Wishes const wishes = wishesOf(outlines);
  std::vector<int> groupOf(outlines.names.size(), -1);
  for (int placed = 0; placed < outlines.names.size(); ++placed) {
    int next = -1, mostGroups = -1;
    for (int one = 0; one < outlines.names.size(); ++one) {
      if (groupOf[one] >= 0) continue;
      QSet<int> taken;
      for (auto it = wishes[one].cbegin(); it != wishes[one].cend(); ++it)
        if (groupOf[it.key()] >= 0) taken << groupOf[it.key()];
      bool const isMore =
          taken.size() > mostGroups || (taken.size() == mostGroups && wishes[one].size() > wishes[next].size());
      if (isMore) next = one, mostGroups = taken.size();
    }
    std::vector<double> disturbance(groups, 0);
    for (auto it = wishes[next].cbegin(); it != wishes[next].cend(); ++it)
      if (groupOf[it.key()] >= 0) disturbance[groupOf[it.key()]] += it.value();
    int best = 0;
    for (int group = 1; group < groups; ++group)
      if (disturbance[group] < disturbance[best] ||
          (disturbance[group] == disturbance[best] && sorted[group].size() < sorted[best].size()))
        best = group;
    groupOf[next] = best;
    sorted[best] << outlines.names.at(next);
  }
  for (QStringList& names : sorted) names.sort();
  return sorted;
}
