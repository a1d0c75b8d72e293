#pragma once

#include "Boxes.h"
#include "Elements.h"
#include "Pictures.h"

#include "host/SysUtility/Archive.h"

/// A map of a part of the world, in a data frame of a size.
inline _ptr_t<SysCarto::Map> mapShowing(QString const& system, SysGeometry::Envelope const& bounds, double widthCm,
                                        double heightCm) {
  auto const map = make<SysCarto::Map>();
  map->SetCoordinateSystem(system);
  map->setFrameSize(widthCm, heightCm);
  map->SetExtent(make<SysGeometry::Envelope>(bounds));
  return map;
}

/// A grid or a surround with stored settings.
template <class Described>
_ptr_t<Described> described(QJsonObject const& settings) {
  auto const result = make<Described>();
  SysUtility::Archive archive(settings);
  result->describe(archive);
  if (!archive.ok()) qFatal("%s", qPrintable(archive.error()));
  return result;
}

inline Scene sceneOf(_ptr_t<SysCarto::Element> const& element) {
  return [element](QPainter& painter, Transformation const& transformation) {
    painter.setRenderHint(QPainter::Antialiasing);
    element->Draw(painter, transformation, nullptr);
  };
}
