#pragma once

#include <SysCarto/MapDocument.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>

class HostCommands;
class QMainWindow;
class Workbench;
struct ImageFormat;

/// What the window's File menu does with the document as a whole: what it says of itself, and its page as a file.
class OutputCommands {
  Q_DECLARE_TR_FUNCTIONS(OutputCommands)

public:
  /// Both are borrowed; the bench need not be ready before the first command is clicked.
  OutputCommands(Workbench& bench, QMainWindow& window) : bench_(bench), window_(window) {}

  void addTo(HostCommands& host);

  /// Whether the command of that name draws the page for elsewhere, so that what is missing there is to be told first.
  static bool draws(QString const& identifier);

  /// Whether the document has a page, and all that it draws could be read. Empty, or a sentence that says what is
  /// missing.
  static QString checkWhole(SysCarto::MapDocument const& document);

  /// Gives the document settings at a path, in one step of the history, or none where they are as they were. Empty, or
  /// a sentence that says why not.
  static QString keep(SysCarto::MapDocument const& document, QStringList const& path, QJsonObject const& settings);

private:
  QString showProperties();
  QString exportAs(ImageFormat const& format);
  QString proposedPath(ImageFormat const& format) const;
  void tell(QString const& sentence);

  Workbench& bench_;
  QMainWindow& window_;
  QHash<QString, QString> lastPaths_;  // of files that were written, by document and format
};

/// Makes the page of a bench's document a file in the format that its suffix names, by the document's choices. Empty,
/// or a sentence that says why not.
QString exportPage(Workbench& bench, QString const& path, QStringList& notes);
