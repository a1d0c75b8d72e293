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

// Also where it has no symbols, as one that is there for its labels.
bool drawsAny(RendererSettings const& settings, std::vector<Part> const& parts) {
  auto const symbols = symbolsOf(settings);
  return symbols.empty() || std::any_of(parts.begin(), parts.end(), [&](Part const& part) {
           return std::any_of(symbols.begin(), symbols.end(),
                              [&](Symbol const* symbol) { return draws(*symbol, part.kind); });
         });
}

}  // namespace

void AdmittedFeatures::add(OGRFeature const& feature) {
  ++count_;
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  if (!geometry || geometry->IsEmpty()) return;
  ++withGeometry_;
  if (projector_.isBeyondGlobe(*geometry)) ++beyondGlobe_;
}

QString AdmittedFeatures::nowhere(QString const& source) {
  return Texts::
      tr("Nothing of %1 lies where the map's coordinate system shows the globe, so that the layer is empty; give the "
         "map another coordinate system, or the source the one that it has in truth.")
          .arg(source);
}

QStringList AdmittedFeatures::warnings(bool hasFilter, FeatureStore const& store, Renderer const& renderer) const {
  QStringList warnings;
  if (count_ == 0) {
    if (!hasFilter) warnings << Texts::tr("There are no features in %1, so that the layer is empty.").arg(source_);
  } else if (withGeometry_ == 0) {
    warnings << Texts::tr("None of the features of %1 has a geometry, so that the layer is empty.").arg(source_);
  } else if (beyondGlobe_ > 0) {
    warnings << Texts::tr(
                    "Of %1, %2 of %3 features lie, at least in part, where there is no globe: beyond a pole or several "
                    "times around. That is left out. Are longitude and latitude exchanged, or is the coordinate system "
                    "another one? Give it in the source's field “coordinateSystem”.")
                    .arg(source_)
                    .arg(beyondGlobe_)
                    .arg(withGeometry_);
  } else if (store.parts.empty()) {
    warnings << nowhere(source_);
  } else if (!drawsAny(renderer.settings(), store.parts)) {
    warnings << Texts::tr(
                    "None of the symbols of the layer draws what %1 has: fills and their outlines draw areas, lines "
                    "draw lines and areas, markers draw points. Give the layer another symbol.")
                    .arg(source_);
  }
  return warnings;
}

}  // namespace SysCarto
