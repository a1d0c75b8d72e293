#pragma once

#include <csignal>
#include <initializer_list>
#include <vector>

/// The signals by which somebody asks the process to end, taken by a handler while the object lives.
///
/// Each is taken once; a second one of its kind ends the process. One that is ignored, as under nohup, stays so.
/// What another object had taken before, that has again in the end.
class EndSignals {
public:
  static constexpr int all[] = {SIGINT, SIGTERM, SIGHUP};
  using Handler = void (*)(int);

  explicit EndSignals(Handler handler, std::initializer_list<int> signalsToo = {});
  ~EndSignals();
  EndSignals(EndSignals const&) = delete;
  EndSignals& operator=(EndSignals const&) = delete;

private:
  struct Taken {
    int signal;
    struct sigaction before;
  };

  Handler handler_;
  std::vector<Taken> taken_;
};
