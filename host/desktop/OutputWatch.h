#pragma once

#include "FileStamp.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <QObject>

/// While it lives, watches a command at work: which image it was told to write, what GDAL reports, and why a document
/// could not be opened. A command itself says little or nothing where it fails, or even that it is complete.
class OutputWatch final : public QObject {
  Q_OBJECT

public:
  OutputWatch();
  ~OutputWatch() override;

  /// Looks at the image now. A sentence that says why it was not written, or a document not opened, or empty.
  QString problem() const;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  SysCarto::GdalErrors errors_;
  QString path_;      // empty as long as no dialog has named one
  FileStamp before_;  // of what was there when it was named
};
