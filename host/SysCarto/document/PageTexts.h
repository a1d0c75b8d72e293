#pragma once

#include "host/SysCarto/elements/Placeholders.h"

#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What the placeholders in the texts of a page stand for. `[map]`, `[scale]` and `[crs]` speak of the focus map, or of
/// the map whose name follows a colon; `[credits]` of all maps, or of that one. The layout is borrowed until they end.
std::shared_ptr<Placeholders> pageTexts(PageLayout const& layout, std::function<QString()> const& documentPath);

}  // namespace SysCarto
