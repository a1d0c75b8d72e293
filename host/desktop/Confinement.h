#pragma once

#include <QStringList>

/// What a subcommand may open for a document, for those who serve strangers.
struct Confinement {
  static constexpr char option[] = "confine", folderOption[] = "allow", connectionOption[] = "allow-connection";

  bool isConfined = false;  ///< to the document's folder and these
  QStringList folders, connections;

  /// Takes `--confine`, each `--allow FOLDER` and each `--allow-connection NAME` out of the arguments, wherever they
  /// stand. False where they make no sense, which is then told; needs no application.
  bool take(QStringList& arguments);

  /// As another process takes them.
  QStringList arguments() const;

  /// From now on; the document's folder is allowed by whoever knows it.
  void begin() const;
};
