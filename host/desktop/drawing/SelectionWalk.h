#pragma once

#include <SysCarto/PageLayout.h>

/// Selects the element that is drawn next after the last selected one, or before it, and no other; without a selection
/// the first or the last one. Those out of reach are passed over. The view moves where the element is not seen. Answers
/// false, with nothing changed, where there is none left.
bool selectNeighbour(SysCarto::PageLayout& layout, bool forward);
