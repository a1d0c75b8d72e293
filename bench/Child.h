#pragma once

#include <QByteArray>
#include <QStringList>

/// What a process that has ended cost.
struct ChildRun {
  bool succeeded = false;
  double wallSeconds = 0;
  double cpuSeconds = 0;  ///< user and system, of all threads
  double peakMegabytes = 0;
  QByteArray output;  ///< what it wrote to standard output
};

/// Runs a program to its end; its standard error is ours. Keep this process small: the peak that the system reports for
/// a child is never below its parent's.
ChildRun runChild(QStringList const& command);
