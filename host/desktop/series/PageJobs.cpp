#include "PageJobs.h"

#include "host/desktop/Confinement.h"
#include "host/desktop/IndexCache.h"
#include "host/desktop/Language.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <sys/prctl.h>

#include <csignal>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int betweenLooksMs = 50;
constexpr int patienceMs = 10000;  // of an interrupted process that cleans up behind itself

QString const prefix = QStringLiteral("plotvane: ");

// Asked to end where this process is killed.
class Job final : public QProcess {
protected:
  void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGTERM); }
};

}  // namespace

PageJobs::PageJobs(SysUtility::_ptr_t<SysUI::TrackerCancel> cancel) : cancel_(std::move(cancel)) {}

bool PageJobs::run(QList<QStringList> const& arguments) {
  std::vector<std::unique_ptr<Job>> processes;
  QEventLoop loop;
  int running = 0;
  bool areWhole = true;
  // What every line may have was taken out of the arguments of the subcommand.
  QStringList given = QCoreApplication::arguments();
  auto const language = takeLanguage(given);
  QStringList before = language ? QStringList{QStringLiteral("--language"), *language} : QStringList();
  Confinement confinement;
  confinement.take(given);
  before += confinement.arguments() + IndexCache::arguments();
  auto const ended = [&](bool isWhole) {
    areWhole = areWhole && isWhole;
    if (--running == 0) loop.quit();
  };
  for (QStringList const& own : arguments) {
    processes.push_back(std::make_unique<Job>());
    QProcess& process = *processes.back();
    auto const lines = [&process](QProcess::ProcessChannel channel, std::function<void(QString const&)> const& take) {
      process.setReadChannel(channel);
      while (process.canReadLine()) take(QString::fromLocal8Bit(process.readLine()).trimmed());
    };
    auto const readAll = [this, lines] {
      lines(QProcess::StandardOutput, onWritten);
      lines(QProcess::StandardError,
            [this](QString const& line) { onProblem(line.startsWith(prefix) ? line.mid(prefix.size()) : line); });
    };
    QObject::connect(&process, &QProcess::readyReadStandardOutput, readAll);
    QObject::connect(&process, &QProcess::readyReadStandardError, readAll);
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     [readAll, ended](int status, QProcess::ExitStatus how) {
                       readAll();
                       ended(how == QProcess::NormalExit && status == 0);
                     });
    QObject::connect(&process, &QProcess::errorOccurred, [this, ended, &process](QProcess::ProcessError error) {
      if (error != QProcess::FailedToStart && error != QProcess::Crashed) return;
      onProblem(process.errorString());
      if (error == QProcess::FailedToStart) ended(false);
    });
    ++running;
    process.start(QCoreApplication::applicationFilePath(), before + own, QIODevice::ReadOnly);
  }
  QTimer looks;
  QObject::connect(&looks, &QTimer::timeout, [&] {
    if (!cancel_->IsCanced()) return;
    looks.stop();
    for (auto const& process : processes) process->terminate();
    QTimer::singleShot(patienceMs, &loop, [&] {
      for (auto const& process : processes) process->kill();
    });
  });
  looks.start(betweenLooksMs);
  if (running > 0) loop.exec();
  return areWhole;
}
