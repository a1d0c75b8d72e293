#pragma once

#include <QCoreApplication>

class HostCommands;
class QMainWindow;
class Workbench;

/// The commands that bring the page to paper.
class PrintCommands {
  Q_DECLARE_TR_FUNCTIONS(PrintCommands)

public:
  /// Both are borrowed; the bench need not be ready before the first command is clicked.
  PrintCommands(Workbench& bench, QMainWindow& window) : bench_(bench), window_(window) {}

  void addTo(HostCommands& host);

private:
  QString print();
  QString preview();

  Workbench& bench_;
  QMainWindow& window_;
};

/// Prints the page of a bench's document by the document's choices: to a printer by its name, or into a PDF file.
/// Empty, or a sentence that says why not.
QString printPage(Workbench& bench, QString const& target);
