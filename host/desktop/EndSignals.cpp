#include "EndSignals.h"

void EndSignals::take(int signal, void (*handler)(int)) {
  struct sigaction action = {}, old = {};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  sigaction(signal, nullptr, &old);
  if (old.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
}

void EndSignals::giveBack(int signal, void (*handler)(int)) {
  struct sigaction old = {};
  sigaction(signal, nullptr, &old);
  if (old.sa_handler == handler) std::signal(signal, SIG_DFL);
}
