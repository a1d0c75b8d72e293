#include "Interrupt.h"

#include "Console.h"

#include <atomic>

namespace {

std::atomic<SysUI::TrackerCancel*> current{nullptr};
static_assert(std::atomic<SysUI::TrackerCancel*>::is_always_lock_free, "used in a signal handler");

// Only atomic loads and stores: nothing else is allowed here. Whoever sends the alarm tells why.
void ask(int signal) {
  if (signal == SIGALRM) Console::silence();
  if (SysUI::TrackerCancel* const cancel = current) cancel->Cancel();
}

}  // namespace

Interrupt::Interrupt() : cancel_(SysUtility::make<SysUI::TrackerCancel>()) {
  current = cancel_.get();
  signals_.emplace(ask, std::initializer_list<int>{SIGALRM});
}

Interrupt::~Interrupt() {
  signals_.reset();
  current = nullptr;
}
