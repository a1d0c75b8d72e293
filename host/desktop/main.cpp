#include "Session.h"
#include "Subcommand.h"

#include <QApplication>

int main(int argc, char** argv) {
  prepareEnvironment();
  QApplication application(argc, argv);
  prepareApplication();
  return runCommandLine(QCoreApplication::arguments().mid(1));
}
