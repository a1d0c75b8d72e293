#include "EndSignals.h"

#include <iterator>

EndSignals::EndSignals(Handler handler, std::initializer_list<int> signalsToo) : handler_(handler) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  std::vector<int> wanted(std::begin(all), std::end(all));
  wanted.insert(wanted.end(), signalsToo.begin(), signalsToo.end());
  for (int const signal : wanted) {
    Taken taken{signal, {}};
    sigaction(signal, nullptr, &taken.before);
    if (taken.before.sa_handler == SIG_IGN) continue;
    sigaction(signal, &action, nullptr);
    taken_.push_back(taken);
  }
}

EndSignals::~EndSignals() {
  for (Taken const& taken : taken_) {
    struct sigaction now = {};
    sigaction(taken.signal, nullptr, &now);
    bool const isOurs = now.sa_handler == handler_ || now.sa_handler == SIG_DFL;  // it has come
    if (isOurs) sigaction(taken.signal, &taken.before, nullptr);
  }
}
