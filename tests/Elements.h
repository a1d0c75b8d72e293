#pragma once

#include "Boxes.h"
#include "Widgets.h"

#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysCarto/Page.h>
#include <SysCarto/SymbolFrameParts.h>

/// The element, put into a rectangle.
template <class Element>
_ptr_t<Element> in(_ptr_t<Element> const& element, double xmin, double ymin, double xmax, double ymax) {
  element->SetGeometry(make<SysGeometry::Envelope>(xmin, ymin, xmax, ymax));
  return element;
}

/// A new one in a rectangle.
template <class Element>
_ptr_t<Element> madeIn(double xmin, double ymin, double xmax, double ymax) {
  return in(make<Element>(), xmin, ymin, xmax, ymax);
}

/// A data frame that shows nothing yet, with a named map.
inline _ptr_t<SysCarto::MapFrameElement> frameNamed(QString const& mapName) {
  auto const frame = make<SysCarto::MapFrameElement>();
  frame->GetMap()->SetName(mapName);
  return frame;
}

/// A surround of the map in its frame.
template <class Surround>
_ptr_t<SysCarto::MapSurroundFrame> surroundOf(_ptr_t<SysCarto::Map> const& map) {
  auto const frame = make<SysCarto::MapSurroundFrame>();
  frame->SetMapSurround(make<Surround>());
  frame->GetMapSurround()->SetMap(map);
  return frame;
}

inline QSizeF sizeOf(SysCarto::Page const& page) {
  QSizeF size;
  page.QuerySize(size.rwidth(), size.rheight());
  return size;
}

inline QRectF placeOf(SysCarto::Element const& element) { return rectOf(*element.GetEnvelope()); }
