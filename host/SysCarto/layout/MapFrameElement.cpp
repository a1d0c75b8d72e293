#include "MapFrameHost.h"
#include "MapPicture.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysDisplay/DrawTarget.h"

#include <SysCarto/Map.h>
#include <SysCarto/SymbolFrameParts.h>

#include <QPainter>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

// The pixel of the lower right corner is the last of the map, and half of it may lie beyond the rectangle. A device
// that begins with it has to be told, since the frame would seem to end before it.
_ptr_t<Point> firstPixel(Envelope const& rectangle, DisplayTransformation const& transformation) {
  QPoint const last = transformation.FromMapPoint(rectangle.GetXMax(), rectangle.GetYMin());
  QPoint const first = transformation.GetDeviceFrame().topLeft();
  return last.x() == first.x() || last.y() == first.y() ? transformation.ToMapPoint(last) : nullptr;
}

}  // namespace

struct MapFrameElement::Private {
  _ptr_t<Map> map;
  QList<_ptr_t<IMapGrid>> grids;
  std::shared_ptr<bool> locked = std::make_shared<bool>(false);  // one for all clones with the same handle

  Private() = default;
  Private(Private const& other) : map(other.map), locked(other.locked) {
    for (_ptr_t<IMapGrid> const& grid : other.grids) grids << grid->Clone();
  }
};

MapFrameElement::MapFrameElement() : d(std::make_unique<Private>()) {
  d->map = SysUtility::make<Map>();
  SetBorder(SysUtility::make<SymbolBorder>());
  SetBackGround(SysUtility::make<SymbolBackground>());
}
MapFrameElement::MapFrameElement(MapFrameElement const& other)
    : FrameElementBase(other), d(std::make_unique<Private>(*other.d)) {}
MapFrameElement::~MapFrameElement() = default;

_ptr_t<Map> MapFrameElement::GetMap() const { return d->map; }

void MapFrameElement::SetMap(_ptr_t<Map> const& map) {
  if (!map) return;
  if (ElementHost::isPlaced(*this)) MapHost::countFrame(*d->map, false);
  d->map = map;
  if (ElementHost::isPlaced(*this)) MapHost::countFrame(*d->map, true);
  rectangleChanged();
  changed();
}

int MapFrameElement::GetMapGridCount() const { return d->grids.size(); }
_ptr_t<IMapGrid> MapFrameElement::GetMapGrid(int index) const { return d->grids.value(index); }
void MapFrameElement::AddMapGrid(_ptr_t<IMapGrid> const& grid) {
  if (!grid) return;
  d->grids << grid;
  changed();
}

bool MapFrameElement::IsLocked() const { return *d->locked; }
void MapFrameElement::SetLocked(bool locked) {
  if (locked == *d->locked) return;
  *d->locked = locked;
  changed();
}

void MapFrameHost::shareLock(MapFrameElement& frame, MapFrameElement const& former) {
  frame.d->locked = former.d->locked;
}

int MapFrameElement::GetType() const { return ElementType::DataFrame; }

void MapFrameElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                           _ptr_t<TrackerCancel> const& cancel) {
  if (!transformation) return;
  DrawShadow(painter, transformation);
  DrawBackground(painter, transformation);
  if (SysDisplay::VectorCanvas::of(painter)) {
    drawMapShapes(painter, *this, *transformation, {}, cancel);
  } else {
    MapPicture const picture =
        drawMap(*this, *transformation, SysDisplay::reachableArea(painter).toAlignedRect(), cancel);
    if (!picture.image.isNull()) painter.drawImage(picture.place, picture.image);
  }
  DrawBorder(painter, transformation);
  for (_ptr_t<IMapGrid> const& grid : qAsConst(d->grids))
    grid->Draw(painter, cancel, transformation, SysUtility::retain(this));
}

_ptr_t<Geometry> MapFrameElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  _ptr_t<Envelope> const area = FrameElementBase::GetBoundary(transformation)->GetEnvelope();
  if (!transformation) return area;
  for (_ptr_t<IMapGrid> const& grid : qAsConst(d->grids)) include(*area, grid->GetBoundary(transformation, *this));
  if (auto const pixel = firstPixel(*GetEnvelope(), *transformation)) include(*area, pixel);
  return area;
}

_ptr_t<Element> MapFrameElement::Clone() const { return SysUtility::make<MapFrameElement>(*this); }

void MapFrameElement::handleChanged() { d->locked = std::make_shared<bool>(*d->locked); }

void MapFrameElement::containerChanged() {
  MapHost::countFrame(*d->map, ElementHost::isPlaced(*this));
  rectangleChanged();
}

// A clone that nobody has put on the page yet must not reach through to the map that it shares.
void MapFrameElement::rectangleChanged() {
  if (!ElementHost::isPlaced(*this)) return;
  _ptr_t<Envelope> const rectangle = GetEnvelope();
  MapHost::setFrameSize(*d->map, rectangle->GetWidth(), rectangle->GetHeight());
}

}  // namespace SysCarto
