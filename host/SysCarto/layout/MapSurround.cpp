#include "MapSurroundHost.h"

#include "host/SysCarto/maps/MapHost.h"

#include <QCoreApplication>

namespace SysCarto {

using SysGeometry::Envelope;
using SysUtility::_ptr_t;

struct MapSurround::Private {
  _ptr_t<Map> map;
  Envelope rectangle;
};

MapSurround::MapSurround(int kind) : kind(kind), d(std::make_unique<Private>()) {}
MapSurround::MapSurround(MapSurround const& other)
    : CRef(other), kind(other.kind), d(std::make_unique<Private>(*other.d)) {}
MapSurround::~MapSurround() = default;

_ptr_t<Map> MapSurround::GetMap() const { return d->map; }
void MapSurround::SetMap(_ptr_t<Map> const& map) { d->map = map; }

void MapSurroundHost::setRectangle(MapSurround& surround, Envelope const& rectangle) {
  surround.d->rectangle = rectangle;
}

Envelope const& MapSurround::rectangle() const { return d->rectangle; }

QString MapSurround::problem() const { return QString(); }
QString MapSurroundHost::problem(MapSurround const& surround) { return surround.problem(); }

QString MapSurround::title() const { return QCoreApplication::translate("MapSurround", "Map surround"); }

bool MapSurround::hasPlace() const {
  return d->map && MapHost::isFramed(*d->map) && d->rectangle.GetWidth() > 0 && d->rectangle.GetHeight() > 0;
}

}  // namespace SysCarto
