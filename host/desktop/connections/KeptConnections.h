#pragma once

#include "host/SysCarto/layers/Connections.h"

#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <vector>

/// The connections of the person who runs the program, kept with the program's settings. No password is among them.
struct KeptConnections {
  std::vector<SysCarto::Connection> connections;
  QJsonArray notUnderstood = {};  ///< entries that are kept as they are
  QStringList problems = {};      ///< a sentence for each of them, or one where nothing at all was understood
  bool isReadable = true;         ///< false where nothing at all was

  static KeptConnections kept();

  /// Keeps them for good, and has this process know them, unless that would write over settings that were not
  /// understood at all. Answers a sentence, or an empty text.
  QString keep();

  SysCarto::Connection* find(QString const& name);

  /// Of those that were not understood, too.
  bool has(QString const& name);
  void remove(QString const& name);

  /// Has this process know those that are kept.
  static void begin();

  /// From now on, documents of this process use only what is open to them, or has been chosen in it.
  static void confine();

  /// Opens a connection to documents for good.
  static QString openToDocuments(QString const& name);
};
