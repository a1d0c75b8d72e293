#include <SysCarto/MapSurround.h>

namespace SysCarto {

using SysUtility::_ptr_t;

ScaleText::ScaleText() : MapSurround(3) {}
ScaleText::ScaleText(ScaleText const&) = default;
ScaleText::~ScaleText() = default;

// An unbound surround answers none.
QList<_ptr_t<Element>> ScaleText::GetElements() { return {}; }

_ptr_t<MapSurround> ScaleText::Clone() const { return SysUtility::make<ScaleText>(*this); }

}  // namespace SysCarto
