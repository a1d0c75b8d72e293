#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysUtility/Archive.h"

#include <SysCarto/Layer.h>

namespace SysCarto {

/// Describes a layer in the archive's own object. Reading makes a new layer and reads its data, projected to the map's
/// coordinate system, which must be known by then; the layer is not added to the map. A source that can't be read
/// leaves an empty layer, a sentence in the context's warnings, and the same source when the layer is written again.
SYSCARTO_EXPORT void describeLayer(SysUtility::Archive& archive, SysUtility::_ptr_t<Layer>& layer, Map& map,
                                   DocumentContext& context);

}  // namespace SysCarto
