#include "LayerData.h"

#include "VectorLayer.h"

#include "host/SysCarto/layers/raster/RasterLayer.h"

#include <type_traits>

namespace SysCarto {

namespace {

// The kinds of layers that have data, for all that is asked of them; of another kind the answer is empty.
template <class AnyLayer, class Ask>
auto ofData(AnyLayer& layer, Ask const& ask) {
  using Vector = std::conditional_t<std::is_const_v<AnyLayer>, VectorLayer const, VectorLayer>;
  using Raster = std::conditional_t<std::is_const_v<AnyLayer>, RasterLayer const, RasterLayer>;
  if (auto* const vector = dynamic_cast<Vector*>(&layer)) return ask(*vector);
  auto* const raster = dynamic_cast<Raster*>(&layer);
  return raster ? ask(*raster) : decltype(ask(*raster))();
}

template <class... Asks>
struct EachKind : Asks... {
  using Asks::operator()...;
};
template <class... Asks>
EachKind(Asks...) -> EachKind<Asks...>;

QStringList filesIn(SourceSettings const& source) {
  QStringList files;
  if (source.data != SourceSettings::Data::File) return files;
  if (source.connection.isEmpty()) files << source.file;
  for (TableJoin const& join : source.joins) files << join.file;
  return files;
}

}  // namespace

SysGeometry::Box boxOf(Layer const& layer) {
  return ofData(layer, EachKind{[](VectorLayer const& vector) { return vector.extent(); },
                                [](RasterLayer const& raster) { return raster.box(); }});
}

QString problemOf(Layer const& layer) {
  return ofData(layer, [](auto const& data) { return QString(data.problem()); });
}

std::optional<double> readShareOf(Layer const& layer) {
  return ofData(layer, EachKind{[](VectorLayer const& vector) { return vector.readShare(); },
                                [](RasterLayer const&) { return std::optional<double>(); }});
}

QString failureOf(Layer const& layer) {
  return ofData(layer, EachKind{[](VectorLayer const& vector) { return QString(vector.failure()); },
                                [](RasterLayer const& raster) { return QString(raster.problem()); }});
}

QStringList warningsOf(Layer const& layer) {
  return ofData(layer,
                EachKind{[](VectorLayer const& vector) { return QStringList(vector.warnings() + vector.notes()); },
                         [](RasterLayer const&) { return QStringList(); }});
}

QStringList filesOf(Layer const& layer) {
  return ofData(layer, EachKind{[](VectorLayer const& vector) { return filesIn(vector.source()); },
                                [](RasterLayer const& raster) { return QStringList(raster.source().file); }});
}

QString readAgain(Layer& layer, QString const& mapSystem, QStringList& warnings) {
  return ofData(layer, EachKind{[&](VectorLayer& vector) { return vector.open(vector.source(), mapSystem, warnings); },
                                [&](RasterLayer& raster) { return raster.open(raster.source(), mapSystem); }});
}

}  // namespace SysCarto
