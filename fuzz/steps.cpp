// Any lines are steps that are carried out on a small document, or answer a sentence. What writes files, or asks the
// system to show or print one, is left out; what reads them is confined to an empty folder.

#include "Fuzz.h"

#include "host/SysUtility/FileReach.h"
#include "host/desktop/RunSteps.h"
#include "host/desktop/Session.h"

#include <QTemporaryDir>

namespace {

constexpr int mostSteps = 8;

bool isLeftOut(QString const& step) {
  for (char const* const word : {"save=", "export=", "print=", "Plotvane_Export", "Host_Export", "Host_Print"})
    if (step.startsWith(QLatin1String(word), Qt::CaseInsensitive)) return true;
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static QTemporaryDir const home;
  for (char const* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
    qputenv(variable, home.path().toUtf8());
  fuzz::start(*argc, *argv);
  prepareApplication();
  SysUtility::FileReach::confine({home.path(), QStringLiteral(PLOTVANE_FUZZ_FOLDER)});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  QStringList steps;
  for (QString const& line : QString::fromUtf8(reinterpret_cast<char const*>(bytes), static_cast<int>(size))
                                 .split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    if (!isLeftOut(line)) steps << line;
  if (steps.size() > mostSteps) return 0;
  RunSteps run(false);
  if (steps.isEmpty() || !run.check(steps).isEmpty()) return 0;
  fuzz::require(run.open(QStringLiteral(PLOTVANE_FUZZ_FOLDER "/steps.kdx")).isEmpty());
  for (QString const& step : qAsConst(steps))
    if (!run.run(step).isEmpty()) break;
  return 0;
}
