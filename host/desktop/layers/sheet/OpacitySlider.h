#pragma once

#include <QWidget>

class QLabel;
class QMenu;
class QSlider;

/// How much is seen of something, from 0 to 100 %. A drag tells what was chosen when it ends, and a key or the wheel at
/// once.
class OpacitySlider final : public QWidget {
  Q_OBJECT

public:
  explicit OpacitySlider(QWidget* parent);
  ~OpacitySlider() override;

  /// Adds one to a menu, above what is there. It tells a key's choice when the menu is closed, but not by Escape.
  static OpacitySlider* addTo(QMenu& menu);

  /// Shows it without telling; not while it is dragged.
  void setPercent(double percent);

signals:
  void chosen(double percent);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void take();

  QSlider* const slider_;
  QLabel* const told_;
  bool isSetting_ = false;
  bool isInMenu_ = false;
  int shown_ = -1;  // as it was set or told last
};
