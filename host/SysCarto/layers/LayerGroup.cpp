#include "LayerGroup.h"

#include "LayerHost.h"

namespace SysCarto {

LayerGroup::~LayerGroup() = default;

void LayerGroup::setVisible(bool visible) {
  if (visible != isVisible_) look_ = LayerHost::nextLook();
  change_.set(isVisible_, visible);
}

}  // namespace SysCarto
