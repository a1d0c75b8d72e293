#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <optional>

class QWidget;

/// A connection as a person opens it in the window: with progress and a way out, and asked for a password where one is
/// wanted.
struct ConnectionAccess {
  /// Its tables, or what is wrong; nothing where the person gave up.
  static std::optional<SysCarto::DataFile> describe(QString const& connection, QWidget& parent);

  /// Keeps it until the program ends. False where the person gave none.
  static bool askForPassword(QString const& connection, QWidget& parent);
};
