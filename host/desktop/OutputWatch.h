#pragma once

#include "FileStamp.h"
#include "Interrupt.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <QObject>
#include <QTimer>

#include <optional>

class QDialog;

namespace SysCarto {
class MapDocument;
}

/// While it lives, watches a command at work: which image it was told to write, what GDAL reports, and why a document
/// could not be opened. A command itself says little or nothing where it fails, or even that it is complete.
///
/// A dialog that names an image where none may be put, such as in the document's own place, counts as cancelled. An
/// interrupt ends the process at the next step of progress, and takes a half-written image along.
class OutputWatch final : public QObject {
  Q_OBJECT

public:
  /// `document` is the one that the command works on, borrowed.
  explicit OutputWatch(SysCarto::MapDocument const& document);
  ~OutputWatch() override;

  /// Looks at the image now. A sentence that says why it was not written as its name says, or a document not opened, or
  /// empty.
  QString problem() const;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void take(QDialog& dialog, QString const& path);
  void endIfInterrupted() const;
  [[noreturn]] void end() const;

  SysCarto::MapDocument const& document_;
  SysCarto::GdalErrors errors_;
  QString path_;      // empty as long as no dialog has named one
  QString refusal_;   // why nothing may be written there
  FileStamp before_;  // of what was there when it was named
  std::optional<Interrupt> interrupt_;
  QTimer interruptTimer_;
};
