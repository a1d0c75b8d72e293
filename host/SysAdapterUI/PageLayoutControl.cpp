#include <SysAdapterUI/PageLayoutControl.h>

namespace SysAdapterUI {

ICompanion::~ICompanion() = default;
PageLayoutControl::~PageLayoutControl() = default;

}  // namespace SysAdapterUI
