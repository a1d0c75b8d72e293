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
#include <vector>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(AdmittedFeatures)
};

using SysDisplay::Symbol;

std::vector<Symbol const*> symbolsOf(RendererSettings const& settings) {
  std::vector<Symbol const*> symbols{settings.others.symbol.get()};
  for (SymbolClass const& one : settings.classes) symbols.push_back(one.symbol.get());
  symbols.erase(std::remove(symbols.begin(), symbols.end(), nullptr), symbols.end());
  return symbols;
}

bool draws(Symbol const& symbol, PartKind kind) {
  if (kind == PartKind::Point) return dynamic_cast<SysDisplay::MarkerSymbol const*>(&symbol);
  bool const isLine = dynamic_cast<SysDisplay::LineSymbol const*>(&symbol);
  return isLine || (kind != PartKind::Line && dynamic_cast<SysDisplay::FillSymbol const*>(&symbol));
}

// How many features have parts that no symbol draws, and how many have no others. All is drawn where there are no
// symbols, as of a layer that is there for its labels.
struct Undrawn {
  int inPart = 0, whole = 0;
};

Undrawn undrawnOf(RendererSettings const& settings, FeatureStore const& store) {
  auto const symbols = symbolsOf(settings);
  std::array<bool, static_cast<size_t>(PartKind::Point) + 1> isDrawn{};
  for (size_t kind = 0; kind < isDrawn.size(); ++kind)
    isDrawn[kind] = symbols.empty() || std::any_of(symbols.begin(), symbols.end(), [=](Symbol const* symbol) {
                      return draws(*symbol, static_cast<PartKind>(kind));
                    });
  Undrawn undrawn;
  for (Feature const& feature : store.features) {
    auto const first = store.parts.begin() + feature.firstPart;
    auto const count = std::count_if(first, first + feature.partCount,
                                     [&](Part const& part) { return isDrawn[static_cast<size_t>(part.kind)]; });
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
  auto const undrawn = undrawnOf(renderer.settings(), store);
  if (undrawn.whole == store.size())
    warnings << Texts::tr(
                    "None of the symbols of the layer draws what %1 has: fills and their outlines draw areas, lines "
                    "draw lines and areas, markers draw points. Give the layer another symbol.")
                    .arg(source_);
  else
    warnOf(undrawn.inPart,
           Texts::tr("Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their "
                     "outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer "
                     "of the same source."));
  return warnings;
}

}  // namespace SysCarto
