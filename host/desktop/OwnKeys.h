#pragma once

#include <QObject>

class QAction;
class QKeyEvent;
class QWidget;

/// While a widget has the focus, the keys of its own actions are theirs, whatever else in the window has them. Its own
/// are those with a shortcut of the context `Qt::WidgetShortcut`. One that is disabled does nothing then.
class OwnKeys final : public QObject {
  Q_OBJECT

public:
  /// Of the widget, which owns it.
  explicit OwnKeys(QWidget& widget);
  ~OwnKeys() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QAction* actionFor(QKeyEvent const& event) const;

  QWidget& widget_;
};
