#pragma once

#include <QObject>

class QDialog;

/// In a dialog where Return is about what has the focus, as the entry of a list, it presses no button; Ctrl+Return
/// accepts the dialog.
class ReturnKeeper final : public QObject {
  Q_OBJECT

public:
  /// Belongs to the dialog.
  explicit ReturnKeeper(QDialog& dialog);
  ~ReturnKeeper() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
