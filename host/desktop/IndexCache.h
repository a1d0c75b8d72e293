#pragma once

#include <QStringList>

class HostCommands;

/// Whether large sources without an index get one in the user's cache: unless the person has switched that off, or the
/// line says `--no-cache`.
namespace IndexCache {

inline constexpr char option[] = "no-cache";

/// Takes the option out of the arguments, wherever it stands; needs no application. Answers whether it was there.
bool take(QStringList& arguments);

/// As another process takes what this one's line says.
QStringList arguments();

/// From now on.
void begin();

/// The command that switches it on and off, for this process and those to come.
void addTo(HostCommands& host);

}  // namespace IndexCache
