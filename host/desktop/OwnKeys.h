#pragma once

#include <QObject>

class QAction;
class QKeyEvent;
class QWidget;

/// Whether a key pressed in a table or tree is meant for its rows, and not for the page, which has the same: letters,
/// those that edit, and those that choose all, copy, cut and paste.
bool isForRows(QKeyEvent const& key);

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
