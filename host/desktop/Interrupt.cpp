#include "Interrupt.h"

#include "Console.h"

#include <atomic>
#include <csignal>

namespace {

constexpr int endSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGALRM};

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
  struct sigaction action = {};
  action.sa_handler = ask;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  for (int const signal : endSignals) {
    struct sigaction old = {};
    sigaction(signal, nullptr, &old);
    if (old.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
}

Interrupt::~Interrupt() {
  for (int const signal : endSignals) {
    struct sigaction old = {};
    sigaction(signal, nullptr, &old);
    if (old.sa_handler == ask) std::signal(signal, SIG_DFL);
  }
  current = nullptr;
}
