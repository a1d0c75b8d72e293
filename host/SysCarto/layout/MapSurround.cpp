#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>

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

void MapSurround::setRectangle(Envelope const& rectangle) { d->rectangle = rectangle; }
Envelope const& MapSurround::rectangle() const { return d->rectangle; }

}  // namespace SysCarto
