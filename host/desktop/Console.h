#pragma once

#include <QString>

/// Results go to standard output, problems to standard error.
namespace Console {

/// A line, or several, of result.
void print(QString const& text);

/// A sentence about a problem, with the program's name before it.
void complain(QString const& sentence);

/// A sentence about what may matter: as `complain`, but each sentence once.
void remark(QString const& sentence);

/// As if that had been told already: a remark that comes again in other words.
void passOver(QString const& sentence);

/// From now on nothing more is complained about: another process tells. May be called by a signal's handler.
void silence();

/// Writes out what `print` was given; false where standard output did not take it all (a full disk, a closed pipe).
bool finish();

/// Whether a person watches standard error.
bool hasTerminal();

/// Shows a line on that terminal in place of the last one; an empty one clears it.
void showStatus(QString const& line);

}  // namespace Console
