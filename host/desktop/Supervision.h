#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What a subcommand may take at most, for those who serve strangers; 0 for no limit.
struct ResourceLimits {
  static constexpr char secondsOption[] = "max-seconds", memoryOption[] = "max-memory";

  int seconds = 0;    ///< of the clock
  int megabytes = 0;  ///< of memory that belongs to the process alone

  /// Takes both options out of the arguments, wherever they stand. False where one makes no sense, which is then told;
  /// needs no application.
  bool take(QStringList& arguments);
};

/// How work in a process of its own came to its end.
struct ProcessEnding {
  enum class Reason { Itself, Signal, Time, Memory };

  Reason reason = Reason::Itself;  ///< for the last two it was ended by us
  int status = 0;                  ///< that of the process, where it ended by itself
  int signal = 0;                  ///< of which it died; else 0
  QString unfinished;              ///< what it was about to write and did not; nothing of that is left
};

/// Runs the work in a process of its own, in the same group. Signals that ask this one to end are handed on, and if it
/// is killed the other one is asked to end. To be called before there are threads or an application; only the other
/// process has one. Processes that it has begun have ended, too, when this comes back.
ProcessEnding supervised(ResourceLimits const& limits, std::function<int()> const& work);
