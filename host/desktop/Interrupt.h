#pragma once

#include "EndSignals.h"

#include <SysUI/TrackerCancel.h>

#include <optional>

/// While it lives, an interrupt, a termination signal or the alarm of a supervisor asks the work to stop, so that it
/// can clean up behind itself. A second one ends the process at once. One object at a time.
class Interrupt {
public:
  Interrupt();
  ~Interrupt();
  Interrupt(Interrupt const&) = delete;
  Interrupt& operator=(Interrupt const&) = delete;

  SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel() const { return cancel_; }

private:
  SysUtility::_ptr_t<SysUI::TrackerCancel> cancel_;
  std::optional<EndSignals> signals_;
};
