#include "Farewell.h"

#include "DocumentLock.h"
#include "EndSignals.h"
#include "Leftover.h"
#include "recovery/RecoveryCopy.h"

#include <QSocketNotifier>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

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

void die() {
  char signal = 0;
  if (read(readEnd, &signal, 1) != 1) return;
  alarm(0);
  Farewell::leave();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

// Without a pipe the signals end the process as ever.
Farewell::Farewell() {
  int ends[2];
  if (!Leftover::share() || pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  readEnd = ends[0];
  writeEnd = ends[1];
  auto* const notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, die);
  present = this;
  for (int const signal : EndSignals::all) EndSignals::take(signal, note);
}

Farewell::~Farewell() {
  for (int const signal : EndSignals::all) EndSignals::giveBack(signal, note);
  present = nullptr;
  if (readEnd < 0) return;
  close(readEnd);
  close(writeEnd);
}

void Farewell::leave() {
  if (!present || present->thread() != QThread::currentThread()) return;
  present = nullptr;
  RecoveryCopy::leaveAll();
  DocumentLock::releaseAll();
  Leftover::clear();
}
