#pragma once

#include <QHash>
#include <QObject>
#include <QTimer>

class CommandSet;
struct HostedCommand;
class QAction;
class QMainWindow;
class QMenu;

/// The commands as actions on the menus and toolbars of a window, as the catalogue places them. Whether an action is
/// enabled and checked is the command's own answer.
class ActionTable final : public QObject {
  Q_OBJECT

public:
  /// Builds menus and toolbars. Both are borrowed; the window owns the actions.
  ActionTable(CommandSet& commands, QMainWindow& window);
  ~ActionTable() override;

  /// Null where the window has no such command.
  QAction* find(QString const& identifier) const { return actions_.value(identifier); }

  /// Those whose keys belong to the contents.
  QList<QAction*> ofContents() const;

  /// The menu at a path such as "Arrange/Align"; made where it is missing.
  QMenu* menu(QString const& path);

  /// Asks all commands for their states before the next event is handled, once for many calls.
  void refreshSoon() { soon_.start(); }

public slots:
  /// Asks all commands for their states now.
  void refresh();

signals:
  void refreshed();

private:
  void addAction(HostedCommand const& command);
  void fillMenus();
  void fillToolbars();

  CommandSet& commands_;
  QMainWindow& window_;
  QHash<QString, QAction*> actions_;
  QHash<QString, QMenu*> menus_;
  QTimer soon_;
};
