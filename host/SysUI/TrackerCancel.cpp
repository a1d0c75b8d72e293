#include <SysUI/TrackerCancel.h>

namespace SysUI {

TrackerCancel::TrackerCancel() : cancelled_(false) {}
TrackerCancel::~TrackerCancel() = default;

bool TrackerCancel::IsCanced() const { return cancelled_; }
void TrackerCancel::Cancel() { cancelled_ = true; }

}  // namespace SysUI
