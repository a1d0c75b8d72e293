#include "Farewell.h"

#include "DocumentLock.h"
#include "Leftover.h"
#include "recovery/RecoveryCopy.h"

#include <QSocketNotifier>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace {

constexpr unsigned patienceSeconds = 5;

int readEnd = -1, writeEnd = -1;  // of a pipe that leads from a signal to the events
Farewell* present = nullptr;

// Only what is allowed in a signal handler.
void note(int signal) {
  int const error = errno;
  char const byte = static_cast<char>(signal);
  if (write(writeEnd, &byte, 1) == 1) alarm(patienceSeconds);
  errno = error;
}

}  // namespace

// Without a pipe the signals end the process as ever.
Farewell::Farewell() {
  int ends[2];
  if (!Leftover::share() || pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  readEnd = ends[0];
  writeEnd = ends[1];
  auto* const notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &Farewell::die);
  present = this;
  signals_.emplace(note);
}

Farewell::~Farewell() {
  present = nullptr;
  if (!signals_) return;
  signals_.reset();
  alarm(0);
  close(readEnd);
  close(writeEnd);
}

// Whatever signal comes now ends the process at once; the alarm of the first one does not.
void Farewell::die() {
  char signal = 0;
  if (read(readEnd, &signal, 1) != 1) return;
  for (int const each : EndSignals::all) std::signal(each, SIG_DFL);
  alarm(0);
  leave();
  std::raise(signal);
  std::_Exit(128 + signal);  // the first process of a container outlives that
}

void Farewell::leave() {
  if (!present || present->thread() != QThread::currentThread()) return;
  present = nullptr;
  RecoveryCopy::leaveAll();
  DocumentLock::releaseAll();
  Leftover::clear();
}
