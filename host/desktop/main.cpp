#include "Language.h"
#include "MainWindow.h"
#include "Session.h"
#include "Subcommand.h"

#include "host/SysCarto/layers/WatchedReading.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

int run(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QFile::decodeName(argv[i]);
  auto const language = takeLanguage(arguments);
  if (language && !isLanguage(*language)) return WrongArguments;
  bool const opensWindow = asksForWindow(arguments);
  if (opensWindow)
    prepareWindowEnvironment();
  else
    prepareEnvironment();
  QApplication application(argc, argv);
  prepareApplication();
  // The application has taken its own options out.
  arguments = QCoreApplication::arguments().mid(1);
  takeLanguage(arguments);
  installLanguage(language);
  return opensWindow ? runWindow(arguments.value(0)) : runCommandLine(arguments);
}

}  // namespace

// A file whose reading was given up may keep its thread for long; that goes with the process.
int main(int argc, char** argv) {
  int const code = run(argc, argv);
  if (SysCarto::isReading()) {
    std::fflush(nullptr);
    std::_Exit(code);
  }
  return code;
}
