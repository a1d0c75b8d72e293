#pragma once

#include "Boxes.h"
#include "Elements.h"
#include "Pictures.h"

#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysUtility/JsonFields.h"

/// A map of a part of the world, in a data frame of a size.
inline _ptr_t<SysCarto::Map> mapShowing(QString const& system, SysGeometry::Envelope const& bounds, double widthCm,
                                        double heightCm) {
  auto const map = make<SysCarto::Map>();
  map->SetCoordinateSystem(system);
  map->setFrameSize(widthCm, heightCm);
  map->SetExtent(make<SysGeometry::Envelope>(bounds));
  return map;
}

template <class Described>
struct SettingsOf;
template <>
struct SettingsOf<SysCarto::Legend> : SysCarto::LegendSettings {};
template <>
struct SettingsOf<SysCarto::ScaleLine> : SysCarto::ScaleLineSettings {};
template <>
struct SettingsOf<SysCarto::ScaleText> : SysCarto::ScaleTextSettings {};
template <>
struct SettingsOf<SysCarto::MarkerNorthArrow> : SysCarto::NorthArrowSettings {};
template <>
struct SettingsOf<SysCarto::Graticule> : SysCarto::GraticuleSettings {};

/// A grid or a surround with stored settings.
template <class Described>
_ptr_t<Described> described(QJsonObject const& stored) {
  SettingsOf<Described> settings;
  QString const problem = SysUtility::readJson(stored, settings);
  if (!problem.isEmpty()) qFatal("%s", qPrintable(problem));
  auto const result = make<Described>();
  settings.applyTo(*result);
  return result;
}

inline Scene sceneOf(_ptr_t<SysCarto::Element> const& element) {
  return [element](QPainter& painter, Transformation const& transformation) {
    painter.setRenderHint(QPainter::Antialiasing);
    element->Draw(painter, transformation, nullptr);
  };
}
