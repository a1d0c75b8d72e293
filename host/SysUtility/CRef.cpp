#include <SysUtility/CRef.h>

namespace SysUtility {

CRef::CRef() : count_(1) {}
CRef::CRef(CRef const&) : count_(1) {}
CRef& CRef::operator=(CRef const&) { return *this; }
CRef::~CRef() = default;

unsigned long CRef::AddRef() { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }

unsigned long CRef::Release() {
  // What other threads did to the object before they gave it back must be seen by the one that destroys it.
  unsigned long const left = count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
  if (left == 0) delete this;
  return left;
}

}  // namespace SysUtility
