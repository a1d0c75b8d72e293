#include "AdmittedFeatures.h"

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/Renderer.h"
#include "host/SysCarto/projection/GeometryProjector.h"

#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/LineSymbol.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QCoreApplication>

#include <ogr_feature.h>
#include <ogr_geometry.h>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(AdmittedFeatures)
};

using SysDisplay::Symbol;

bool draws(Symbol const& symbol, PartKind kind) {
  if (kind == PartKind::Point) return dynamic_cast<SysDisplay::MarkerSymbol const*>(&symbol);
  bool const isLine = dynamic_cast<SysDisplay::LineSymbol const*>(&symbol);
  return isLine || (kind != PartKind::Line && dynamic_cast<SysDisplay::FillSymbol const*>(&symbol));
}

// Of features that have symbols, how many have parts that these don't draw, and how many have no others. Those without
// one are left out on purpose, or are there for their labels.
struct Undrawn {
  int all = 0, inPart = 0, whole = 0;
};

using DrawnKinds = std::array<bool, static_cast<size_t>(PartKind::Point) + 1>;

// By the classes that features have: each of a renderer, or a set of its rules.
std::vector<std::optional<DrawnKinds>> drawnKinds(Renderer const& renderer, FeatureStore const& store) {
  std::vector<std::vector<int>> sets = store.classSets;
  for (int i = 0; store.classSets.empty() && i < static_cast<int>(renderer.classes().size()); ++i) sets.push_back({i});
  std::vector<std::optional<DrawnKinds>> all(sets.size());
  for (size_t i = 0; i < sets.size(); ++i)
    for (int const number : sets[i]) {
      Symbol const* const symbol = renderer.classes()[static_cast<size_t>(number)].symbol.get();
      if (!symbol) continue;
      if (!all[i]) all[i] = DrawnKinds();
      for (size_t kind = 0; kind < all[i]->size(); ++kind)
        (*all[i])[kind] = (*all[i])[kind] || draws(*symbol, static_cast<PartKind>(kind));
    }
  return all;
}

Undrawn undrawnOf(Renderer const& renderer, FeatureStore const& store) {
  auto const kinds = drawnKinds(renderer, store);
  Undrawn undrawn;
  for (Feature const& feature : store.features) {
    auto const number = static_cast<size_t>(feature.symbolClass);
    if (feature.symbolClass < 0 || number >= kinds.size() || !kinds[number]) continue;
    auto const first = store.parts.begin() + feature.firstPart;
    auto const count = std::count_if(first, first + feature.partCount, [&](Part const& part) {
      return (*kinds[number])[static_cast<size_t>(part.kind)];
    });
    ++undrawn.all;
    undrawn.inPart += count < feature.partCount;
    undrawn.whole += count == 0;
  }
  return undrawn;
}

bool isLineAtOnePlace(OGRGeometry const& geometry) {
  if (geometry.getDimension() != 1) return false;
  OGREnvelope box;
  geometry.getEnvelope(&box);
  return box.MinX == box.MaxX && box.MinY == box.MaxY;
}

}  // namespace

void AdmittedFeatures::add(OGRFeature const& feature) {
  ++count_;
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  if (!geometry || geometry->IsEmpty()) return;
  ++withGeometry_;
  if (projector_.isBeyondGlobe(*geometry)) ++beyondGlobe_;
  if (isLineAtOnePlace(*geometry)) ++atOnePlace_;
}

QString AdmittedFeatures::nowhere(QString const& source) {
  return Texts::
      tr("Nothing of %1 lies where the map's coordinate system shows the globe, so that the layer is empty; give the "
         "map another coordinate system, or the source the one that it has in truth.")
          .arg(source);
}

QStringList AdmittedFeatures::warnings(bool hasFilter, FeatureStore const& store, Renderer const& renderer) const {
  if (count_ == 0 && hasFilter) return {};
  if (count_ == 0) return {Texts::tr("There are no features in %1, so that the layer is empty.").arg(source_)};
  if (withGeometry_ == 0)
    return {Texts::tr("None of the features of %1 has a geometry, so that the layer is empty.").arg(source_)};
  QStringList warnings;
  auto const warnOf = [&](qint64 some, QString const& sentence) {
    if (some > 0) warnings << sentence.arg(source_, QString::number(some), QString::number(withGeometry_));
  };
  warnOf(beyondGlobe_,
         Texts::tr("Of %1, %2 of %3 features lie, at least in part, where there is no globe: beyond a pole or several "
                   "times around. That is left out. Are longitude and latitude exchanged, or is the coordinate system "
                   "another one? Give it in the source's field “coordinateSystem”."));
  warnOf(atOnePlace_, Texts::tr("Of %1, %2 of %3 features are lines from a place to itself, of which nothing shows."));
  if (store.parts.empty()) return warnings.isEmpty() ? QStringList{nowhere(source_)} : warnings;
  auto const undrawn = undrawnOf(renderer, store);
  if (undrawn.all > 0 && undrawn.whole == undrawn.all)
    warnings << Texts::tr(
                    "None of the symbols of the layer draws what %1 has: fills and their outlines draw areas, lines "
                    "draw lines and areas, markers draw points. Give the layer another symbol.")
                    .arg(source_);
  else
    warnOf(undrawn.inPart,
           Texts::tr("Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their "
                     "outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer "
                     "of the same source that has such a symbol."));
  return warnings;
}

}  // namespace SysCarto
