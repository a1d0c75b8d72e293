#pragma once

#include "host/SysCarto/layers/Connections.h"

#include <QString>

#include <vector>

/// The connections of the person who runs the program, kept with the program's settings. No password is among them.
struct KeptConnections {
  std::vector<SysCarto::Connection> connections;

  static KeptConnections kept();
  void list(SysUtility::Fields& fields);

  /// Keeps them for good, and has this process know them. Answers a sentence, or an empty text.
  QString keep();

  SysCarto::Connection* find(QString const& name);

  /// Has this process know those that are kept.
  static void begin();

  /// From now on, documents of this process use only what is open to them, or has been chosen in it.
  static void confine();

  /// Opens a connection to documents for good.
  static QString openToDocuments(QString const& name);
};
