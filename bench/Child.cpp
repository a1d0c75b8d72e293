#include "Child.h"

#include <QElapsedTimer>
#include <QFile>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

namespace {

constexpr double kibibytesPerMegabyte = 1e6 / 1024;

double seconds(timeval const& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

[[noreturn]] void become(QStringList const& command, int output) {
  std::vector<QByteArray> texts;
  std::vector<char*> arguments;
  for (QString const& text : command) texts.push_back(QFile::encodeName(text));
  for (QByteArray& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  dup2(output, STDOUT_FILENO);
  execv(arguments.front(), arguments.data());
  _exit(127);
}

QByteArray readAll(int file) {
  QByteArray all;
  char buffer[4096];
  for (ssize_t count; (count = read(file, buffer, sizeof buffer)) > 0;) all.append(buffer, static_cast<int>(count));
  return all;
}

}  // namespace

ChildRun runChild(QStringList const& command) {
  ChildRun run;
  int ends[2];
  if (pipe(ends) != 0) return run;
  QElapsedTimer timer;
  timer.start();
  pid_t const child = fork();
  if (child == 0) {
    close(ends[0]);
    become(command, ends[1]);
  }
  close(ends[1]);
  run.output = readAll(ends[0]);
  close(ends[0]);

  int status = 0;
  rusage usage = {};
  bool const ended = child > 0 && wait4(child, &status, 0, &usage) == child;
  run.wallSeconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
  run.succeeded = ended && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  run.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
  run.peakMegabytes = static_cast<double>(usage.ru_maxrss) / kibibytesPerMegabyte;
  return run;
}
