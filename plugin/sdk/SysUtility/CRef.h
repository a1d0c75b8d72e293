#pragma once

#include <SysUtility/Export.h>

#include <atomic>

namespace SysUtility {

/// Intrusive reference count of every host object and of every command.
///
/// A new object carries one reference, which belongs to its creator; `_ptr_t` takes it over. A copy of an object is an
/// object of its own: it starts at one reference, and assignment leaves the count of the target alone. Counting is
/// atomic; nothing else about an object may be used from another thread.
///
/// Where a class inherits several faces that are each counted, the faces inherit CRef virtually, so that an object has
/// one count.
class SYSUTILITY_EXPORT CRef {
public:
  CRef();
  CRef(CRef const&);
  CRef& operator=(CRef const&);
  virtual ~CRef();

  /// Adds a reference and answers the new count.
  unsigned long AddRef();

  /// Gives a reference back and answers the new count; at zero the object is destroyed.
  unsigned long Release();

private:
  std::atomic<unsigned long> count_;
};

}  // namespace SysUtility
