#pragma once

#include <QCoreApplication>

class HostCommands;
class QWidget;
class Workbench;

/// What the window's File menu does with the document as a whole: what it says of itself.
class OutputCommands {
  Q_DECLARE_TR_FUNCTIONS(OutputCommands)

public:
  /// Both are borrowed; the bench need not be ready before the first command is clicked.
  OutputCommands(Workbench& bench, QWidget& window) : bench_(bench), window_(window) {}

  void addTo(HostCommands& host);

private:
  QString showProperties();

  Workbench& bench_;
  QWidget& window_;
};
