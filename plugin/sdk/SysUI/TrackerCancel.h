#pragma once

#include <SysUI/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <atomic>

namespace SysUI {

/// A flag that a long drawing asks from time to time. An empty pointer in its place means: never cancelled.
class SYSUI_EXPORT TrackerCancel : public SysUtility::CRef {
public:
  TrackerCancel();
  ~TrackerCancel() override;

  /// True once the user has asked to stop.
  virtual bool IsCanced() const;

  /// Asks the drawing to stop. May be called from any thread.
  void Cancel();

private:
  std::atomic<bool> cancelled_;
};

}  // namespace SysUI
