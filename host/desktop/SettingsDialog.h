#pragma once

#include <QDialog>

namespace SysAdapterUI {
class FieldSource;
class PropertySheet;
}  // namespace SysAdapterUI
class QDialogButtonBox;
class QVBoxLayout;

/// A dialog about settings: their fields in a sheet, and what a derived one has above or below it.
class SettingsDialog : public QDialog {
  Q_OBJECT

public:
  /// `source` is borrowed. `ok` is what the button is called that takes it all; empty for “OK”.
  SettingsDialog(QString const& title, SysAdapterUI::FieldSource& source, QString const& ok, QWidget* parent);
  ~SettingsDialog() override;

  /// Takes the value that is being edited. Where that is refused, the dialog stays.
  void accept() override;

protected:
  /// The sheet, then the buttons.
  QVBoxLayout& column() { return *column_; }
  SysAdapterUI::PropertySheet& sheet() { return *sheet_; }
  QDialogButtonBox& buttons() { return *buttons_; }

private:
  QVBoxLayout* const column_;
  SysAdapterUI::PropertySheet* const sheet_;
  QDialogButtonBox* const buttons_;
};
