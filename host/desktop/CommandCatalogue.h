#pragma once

#include <QString>
#include <QVector>

/// How the desktop shows a command: the plug-in leaves names and places to its host.
struct CommandEntry {
  QString identifier;  ///< what the plug-in is asked for
  QString caption;
  QString toolTip;
  QString shortcut;  ///< portable text, or empty
  QString menu;
  QString toolbar;  ///< empty for a command that is on none
  QString needs;    ///< for people: what must be so before the command is enabled
};

/// The commands in the order of their menus, from the configuration that is built in.
QVector<CommandEntry> commandCatalogue();
