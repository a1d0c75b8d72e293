#pragma once

#include "Elements.h"
#include "Pictures.h"

#include "host/SysCarto/maps/MapHost.h"
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
