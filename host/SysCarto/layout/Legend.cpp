#include <SysCarto/MapSurround.h>

namespace SysCarto {

using SysUtility::_ptr_t;

Legend::Legend() : MapSurround(1) {}
Legend::Legend(Legend const&) = default;
Legend::~Legend() = default;

// An unbound surround answers none.
QList<_ptr_t<Element>> Legend::GetElements() { return {}; }

_ptr_t<MapSurround> Legend::Clone() const { return SysUtility::make<Legend>(*this); }

}  // namespace SysCarto
