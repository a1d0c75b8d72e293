#pragma once

#include "host/desktop/SettingsDialog.h"

class QLineEdit;
struct ImageFormat;

/// Asks for the file that a page is to become, and how. It stays until there is a file that can be written.
class ExportDialog final : public SettingsDialog {
  Q_OBJECT

public:
  ExportDialog(ImageFormat const& format, QString const& proposed, SysAdapterUI::FieldSource& source, QWidget* parent);

  /// Says above the rest what the file will hold.
  void tell(QString const& sentence);

  /// With the format's suffix.
  QString path() const;

  void accept() override;

private:
  void chooseFile();
  bool mayWrite(QString const& path);

  ImageFormat const& format_;
  QLineEdit* const file_;
  QString confirmed_;  // as a file that may be replaced
};
