#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <SysCarto/Layer.h>
#include <SysDisplay/Symbol.h>

/// A plain symbol for a new layer, in the colour that the fewest of the present layers have.
SysUtility::_ptr_t<SysDisplay::Symbol> plainSymbol(SysCarto::GeometryKind kind,
                                                   QList<SysUtility::_ptr_t<SysCarto::Layer>> const& present);

/// What a symbol of a layer draws.
SysCarto::GeometryKind kindDrawn(SysCarto::Layer const& layer);
