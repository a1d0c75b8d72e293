#pragma once

#include "Elements.h"
#include "Pictures.h"
#include "Symbols.h"

#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysUtility/JsonFields.h"

/// A map of a part of the world, in a data frame of a size that is on a page.
inline _ptr_t<SysCarto::Map> mapShowing(QString const& system, SysGeometry::Envelope const& bounds, double widthCm,
                                        double heightCm) {
  auto const map = make<SysCarto::Map>();
  map->SetCoordinateSystem(system);
  SysCarto::MapHost::countFrame(*map, true);
  SysCarto::MapHost::setFrameSize(*map, widthCm, heightCm);
  map->SetExtent(make<SysGeometry::Envelope>(bounds));
  return map;
}

// Which settings belong to what; never called.
SysCarto::LegendSettings settingsOf(SysCarto::Legend const&);
SysCarto::ScaleLineSettings settingsOf(SysCarto::ScaleLine const&);
SysCarto::ScaleTextSettings settingsOf(SysCarto::ScaleText const&);
SysCarto::NorthArrowSettings settingsOf(SysCarto::MarkerNorthArrow const&);
SysCarto::GraticuleSettings settingsOf(SysCarto::Graticule const&);

/// A grid or a surround with stored settings.
template <class Described>
_ptr_t<Described> described(QJsonObject const& stored) {
  auto const result = make<Described>();
  decltype(settingsOf(*result)) settings;
  QString const problem = SysUtility::readJson(stored, settings);
  if (!problem.isEmpty()) qFatal("%s", qPrintable(problem));
  settings.applyTo(*result);
  return result;
}

inline Scene sceneOf(_ptr_t<SysCarto::Element> const& element) {
  return [element](QPainter& painter, Transformation const& transformation) {
    painter.setRenderHint(QPainter::Antialiasing);
    element->Draw(painter, transformation, nullptr);
  };
}

constexpr double frameWidthCm = 10, frameHeightCm = 8;  // of a map
inline SysGeometry::Envelope const whole(0, 0, frameWidthCm, frameHeightCm);

inline _ptr_t<SysCarto::Map> mapOf(QString const& system, double x, double y, double unitsPerCm) {
  double const w = frameWidthCm * unitsPerCm / 2, h = frameHeightCm * unitsPerCm / 2;
  return mapShowing(system, SysGeometry::Envelope(x - w, y - h, x + w, y + h), frameWidthCm, frameHeightCm);
}

inline void addLayer(SysCarto::Map& map, QString const& name, _ptr_t<SysDisplay::Symbol> const& symbol,
                     QString const& label = {}) {
  auto const layer = make<SysCarto::VectorLayer>(SysCarto::makeSimpleRenderer(symbol, label));
  layer->SetName(name);
  map.AddLayer(layer);
}

inline _ptr_t<SysCarto::Map> mapWithLayer(QString const& system, double x, double y, double unitsPerCm) {
  auto const map = mapOf(system, x, y, unitsPerCm);
  addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
  return map;
}

template <class Surround>
_ptr_t<SysCarto::MapSurroundFrame> framed(_ptr_t<SysCarto::Map> const& map, SysGeometry::Envelope const& rectangle,
                                          QByteArray const& settings = "{}") {
  auto const surround = described<Surround>(json(settings));
  surround->SetMap(map);
  auto const frame = make<SysCarto::MapSurroundFrame>();
  frame->SetMapSurround(surround);
  frame->SetGeometry(make<SysGeometry::Envelope>(rectangle));
  return frame;
}

inline QStringList textsOf(SysCarto::MapSurroundFrame const& frame) {
  QStringList texts;
  for (auto const& element : frame.GetMapSurround()->GetElements())
    if (auto const text = ptr_cast<SysCarto::TextElement>(element)) texts << text->text();
  return texts;
}
