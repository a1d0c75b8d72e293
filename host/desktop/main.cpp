#include "Confinement.h"
#include "Console.h"
#include "EndSignals.h"
#include "Farewell.h"
#include "IndexCache.h"
#include "Language.h"
#include "Leftover.h"
#include "MainWindow.h"
#include "Session.h"
#include "Subcommand.h"
#include "Supervision.h"
#include "recovery/RecoveryCopy.h"

#include "host/SysCarto/layers/WatchedReading.h"

#include <QApplication>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

namespace {

// A file whose reading was given up may keep its thread for long; that goes with the process.
int finished(int code) {
  if (!SysCarto::isReading()) return code;
  std::fflush(nullptr);
  std::_Exit(code);
}

QByteArray lastWords;             // made while there is memory
std::unique_ptr<char[]> reserve;  // of the window, to save in what was not saved

QString memoryRanOut() {
  return QCoreApplication::translate(
      "main", "there is not enough memory for it; take less DPI or fewer layers, or give it more.");
}

// Without the options that every line may have, and those of Qt's own, which the application has taken out.
QStringList ownArguments() {
  QStringList arguments = QCoreApplication::arguments().mid(1);
  takeLanguage(arguments);
  ResourceLimits().take(arguments);
  Confinement().take(arguments);
  IndexCache::take(arguments);
  return arguments;
}

// Where no code is left that could catch it: in Qt, or on a thread. What was begun is removed by the other process.
[[noreturn]] void endWithoutMemory() {
  try {
    if (std::current_exception()) std::rethrow_exception(std::current_exception());
  } catch (std::bad_alloc const&) {
    bool const isOwnThread = QThread::currentThread() == qApp->thread();
    if (std::exchange(reserve, nullptr) && isOwnThread) RecoveryCopy::keepAll();
    std::fputs(lastWords.constData(), stderr);
    std::_Exit(WorkFailed);
  } catch (...) {
  }
  std::abort();
}

int runSubcommand(int argc, char** argv, std::optional<QString> const& language, Confinement const& confinement) {
  QApplication application(argc, argv);
  prepareApplication();
  installLanguage(language);
  confinement.begin();
  if (!confinement.isConfined) IndexCache::begin();  // else nothing is written but what the line names
  QStringList const arguments = ownArguments();
  lastWords = ("plotvane: " + arguments.value(0) + ": " + memoryRanOut() + '\n').toLocal8Bit();
  std::set_terminate(endWithoutMemory);
  try {
    return finished(runCommandLine(arguments));
  } catch (std::bad_alloc const&) {
    Console::complain(arguments.value(0) + QStringLiteral(": ") + memoryRanOut());
    return WorkFailed;
  }
}

// In English: nothing is translated yet.
int tellWindowIsFree(bool isConfined) {
  Console::complain(
      isConfined ? QStringLiteral(
                       "--confine is for subcommands; leave it out, since the window tells which folders a document "
                       "reaches.")
                 : QStringLiteral("--max-seconds and --max-memory are for subcommands; leave them out."));
  return WrongArguments;
}

int runWindow(int argc, char** argv, std::optional<QString> const& language) {
  constexpr std::size_t reserveBytes = 64 * 1024 * 1024;
  QApplication application(argc, argv);
  prepareApplication();
  installLanguage(language);
  IndexCache::begin();
  Leftover::sweep();
  reserve.reset(new char[reserveBytes]);  // addresses alone, until somebody writes there
  lastWords = ("plotvane: " +
               QCoreApplication::translate("main",
                                           "there is no memory left to go on; what was not saved is offered "
                                           "at the next start.") +
               '\n')
                  .toLocal8Bit();
  std::set_terminate(endWithoutMemory);
  Farewell const farewell;
  return finished(runWindow(ownArguments().value(0)));
}

// Of these a process dies because somebody wants it so.
bool isWanted(int signal) {
  return std::find(std::begin(EndSignals::all), std::end(EndSignals::all), signal) != std::end(EndSignals::all);
}

// What the other process can't tell any more.
int tellEnding(int argc, char** argv, ProcessEnding const& ending, ResourceLimits const& limits,
               std::optional<QString> const& language) {
  QCoreApplication const application(argc, argv);
  installLanguage(language);
  QString const subcommand = ownArguments().value(0);
  using Reason = ProcessEnding::Reason;
  QString const what = ending.unfinished.isEmpty()
                           ? subcommand + QStringLiteral(": ")
                           : QCoreApplication::translate("main", "%1 was not written: ").arg(ending.unfinished);
  QString why;
  if (ending.reason == Reason::Signal && isWanted(ending.signal))
    why = QCoreApplication::translate("main", "interrupted.");
  else if (ending.reason == Reason::Time)
    why = QCoreApplication::translate("main", "it took more than the %1 s of --max-seconds.").arg(limits.seconds);
  else if (ending.reason == Reason::Memory)
    why = QCoreApplication::translate("main", "it took more than the %1 MB of --max-memory.").arg(limits.megabytes);
  else
    why = QCoreApplication::translate("main", "the program ended by a fault of its own (signal %1). Please report it.")
              .arg(ending.signal);
  Console::complain(what + why);
  return WorkFailed;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QFile::decodeName(argv[i]);
  auto const language = takeLanguage(arguments);
  if (language && !isLanguage(*language)) return WrongArguments;
  ResourceLimits limits;
  if (!limits.take(arguments)) return WrongArguments;
  Confinement confinement;
  if (!confinement.take(arguments)) return WrongArguments;
  IndexCache::take(arguments);
  if (asksForWindow(arguments)) {
    bool const isLimited = limits.seconds > 0 || limits.megabytes > 0;
    if (confinement.isConfined || isLimited) return tellWindowIsFree(confinement.isConfined);
    prepareWindowEnvironment();
    return runWindow(argc, argv, language);
  }
  prepareEnvironment();
  ProcessEnding const ending = supervised(limits, [&] { return runSubcommand(argc, argv, language, confinement); });
  if (ending.reason == ProcessEnding::Reason::Itself) return ending.status;
  if (ending.signal == SIGPIPE) {
    std::signal(SIGPIPE, SIG_DFL);
    std::raise(SIGPIPE);
  }
  return tellEnding(argc, argv, ending, limits, language);
}
