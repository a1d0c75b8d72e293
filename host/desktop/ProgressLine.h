#pragma once

#include <QObject>

class QProgressDialog;

/// Repeats a progress dialog as a line on the terminal; the line is gone when this object is.
class ProgressLine final : public QObject {
public:
  /// `dialog` is borrowed and outlives the line.
  explicit ProgressLine(QProgressDialog& dialog);
  ~ProgressLine() override;

private:
  void show(int percent);

  QProgressDialog& dialog_;
};
