#include <SysCarto/MapSurround.h>

namespace SysCarto {

using SysUtility::_ptr_t;

ScaleLine::ScaleLine() : MapSurround(2) {}
ScaleLine::ScaleLine(ScaleLine const&) = default;
ScaleLine::~ScaleLine() = default;

// An unbound surround answers none.
QList<_ptr_t<Element>> ScaleLine::GetElements() { return {}; }

_ptr_t<MapSurround> ScaleLine::Clone() const { return SysUtility::make<ScaleLine>(*this); }

}  // namespace SysCarto
