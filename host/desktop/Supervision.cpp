#include "Supervision.h"

#include "Console.h"
#include "GlobalOption.h"
#include "Leftover.h"

#include <QFile>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>

namespace {

constexpr int graceSeconds = 2;     // to clean up, before it is killed
constexpr int patienceUs = 800000;  // with what was interrupted, which may wait for a disk or for a library

bool takeNumber(QStringList& arguments, char const* option, int& number) {
  auto const text = takeOption(arguments, option);
  if (!text) return true;
  bool isNumber = false;
  number = text->toInt(&isNumber);
  if (isNumber && number > 0) return true;
  // In English: nothing is translated yet.
  Console::complain(
      text->isEmpty()
          ? QStringLiteral("--%1 lacks its number; write --%1 N.").arg(QLatin1String(option))
          : QStringLiteral("--%1 takes a whole number of at least 1, not \"%2\".").arg(QLatin1String(option), *text));
  return false;
}

sigset_t handledSignals() {
  sigset_t set;
  sigemptyset(&set);
  for (int const signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP, SIGALRM}) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    // What nohup ignores would reach one that waits for it all the same.
    bool const isIgnored = action.sa_handler == SIG_IGN && signal != SIGCHLD && signal != SIGALRM;
    if (!isIgnored) sigaddset(&set, signal);
  }
  return set;
}

QByteArray procFile(QString const& path) {
  QFile file(QStringLiteral("/proc/") + path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What a process and those that it has begun share with nobody, in bytes.
qint64 memoryOf(qint64 process) {
  auto const pages = procFile(QStringLiteral("%1/statm").arg(process)).split(' ');
  qint64 bytes = (pages.value(1).toLongLong() - pages.value(2).toLongLong()) * sysconf(_SC_PAGESIZE);
  for (QByteArray const& child : procFile(QStringLiteral("%1/task/%1/children").arg(process)).split(' '))
    if (!child.isEmpty()) bytes += memoryOf(child.toLongLong());
  return bytes;
}

// Jobs of an export end when the process that began them has gone, and may want to clean up. Without it they are this
// one's.
void waitForOthers() {
  constexpr timespec pause = {0, 5'000'000};
  constexpr int pauses = 200;
  QString const own = QStringLiteral("%1/task/%1/children").arg(getpid());
  for (int i = 0;; ++i) {
    pid_t const ended = waitpid(-1, nullptr, WNOHANG);
    if (ended < 0 && errno == ECHILD) return;
    if (ended == 0 && i > pauses)
      for (QByteArray const& child : procFile(own).split(' '))
        if (!child.isEmpty()) kill(child.toInt(), SIGKILL);
    if (ended == 0) nanosleep(&pause, nullptr);
  }
}

// What a terminal sends reaches both processes by itself, and a second one ends the other at once.
bool isToBeHandedOn(siginfo_t const& signal, sigset_t& handedOn) {
  if (signal.si_code > 0 || sigismember(&handedOn, signal.si_signo) == 1) return false;
  sigaddset(&handedOn, signal.si_signo);
  return true;
}

ProcessEnding waitFor(pid_t process, ResourceLimits const& limits, sigset_t const& handled) {
  using Reason = ProcessEnding::Reason;
  constexpr timespec lookAgain = {0, 50'000'000};
  ProcessEnding ending;
  sigset_t handedOn;
  sigemptyset(&handedOn);
  int asked = 0;  // the first signal that asked for an end
  if (limits.seconds > 0) alarm(static_cast<unsigned>(limits.seconds));
  for (;;) {
    siginfo_t told = {};
    int const signal = limits.megabytes > 0 ? sigtimedwait(&handled, &told, &lookAgain) : sigwaitinfo(&handled, &told);
    int status = 0;
    if (signal == SIGALRM && asked != 0) {
      kill(process, SIGKILL);
    } else if (signal == SIGALRM) {
      kill(process, ending.reason == Reason::Itself ? SIGALRM : SIGKILL);
      ending.reason = Reason::Time;
      alarm(graceSeconds);
    } else if (signal == SIGCHLD && waitpid(process, &status, WNOHANG) == process) {
      if (WIFEXITED(status)) ending.status = WEXITSTATUS(status);
      if (WIFSIGNALED(status)) ending.signal = asked != 0 && WTERMSIG(status) == SIGKILL ? asked : WTERMSIG(status);
      if (ending.signal != 0 && ending.reason == Reason::Itself) ending.reason = Reason::Signal;
      if (WIFEXITED(status) && ending.status == 0) ending.reason = Reason::Itself;  // done after all
      return ending;
    } else if (signal > 0 && signal != SIGCHLD) {
      if (isToBeHandedOn(told, handedOn)) kill(process, signal);
      if (asked == 0) ualarm(patienceUs, 0);
      if (asked == 0) asked = signal;
    } else if (limits.megabytes > 0 && memoryOf(process) >> 20 >= limits.megabytes) {
      ending.reason = Reason::Memory;
      kill(process, SIGKILL);
    }
  }
}

}  // namespace

bool ResourceLimits::take(QStringList& arguments) {
  return takeNumber(arguments, secondsOption, seconds) && takeNumber(arguments, memoryOption, megabytes);
}

ProcessEnding supervised(ResourceLimits const& limits, std::function<int()> const& work) {
  bool const isShared = Leftover::share();
  sigset_t const handled = handledSignals();
  sigset_t before;
  sigprocmask(SIG_BLOCK, &handled, &before);
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  std::signal(SIGCHLD, SIG_DFL);  // who ignores it is never told of an end
  pid_t const own = getpid(), process = isShared ? fork() : -1;
  if (process <= 0) sigprocmask(SIG_SETMASK, &before, nullptr);
  if (process < 0) return {ProcessEnding::Reason::Itself, work(), 0, QString()};  // no room for two
  if (process > 0) {
    Leftover::sweep();  // meanwhile
    ProcessEnding ending = waitFor(process, limits, handled);
    waitForOthers();
    QString const unfinished = Leftover::clear();
    if (ending.reason != ProcessEnding::Reason::Itself) Leftover::sweep();  // of jobs that had to be killed
    if (ending.reason != ProcessEnding::Reason::Itself) ending.unfinished = unfinished;
    return ending;  // no signal ends this one before it has told that
  }
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != own) raise(SIGTERM);
  std::exit(work());
}
