#include "Language.h"
#include "MainWindow.h"
#include "Session.h"
#include "Subcommand.h"

#include <QApplication>
#include <QFile>

int main(int argc, char** argv) {
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
