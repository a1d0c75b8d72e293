#pragma once

#include <QString>
#include <QVector>

/// How the desktop shows a command: a plug-in leaves names and places to its host.
struct CommandEntry {
  QString identifier;  ///< what the plug-in, or the host, is asked for
  QString caption;
  QString toolTip;
  QString icon;                ///< name of a file in icons/, without its suffix
  QString shortcut;            ///< portable text, or empty
  QString menu;                ///< path from the menu bar, with slashes
  int section = 1;             ///< of the menu: commands go by it, and a line parts one from the next
  QString toolbar;             ///< empty for a command that is on none
  QString needs;               ///< for people: what must be so before the command is enabled
  bool isForContents = false;  ///< whether the shortcut is for the contents alone, while they have the focus
};

/// The plug-in's commands in the order of their menus, Their texts are English.
QVector<CommandEntry> commandCatalogue();

/// The host's own, in the same shape.
QVector<CommandEntry> hostCatalogue();

/// The same with its caption, tool tip and needs as people are shown them.
CommandEntry translated(CommandEntry entry);

/// The name of a menu or a toolbar as people are shown it; that of a menu of the menu bar has its "&" before it.
QString translatedPlace(QString const& name);
