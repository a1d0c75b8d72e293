#pragma once

#include <QString>

/// The order of names in lists, the same in every language and on every machine: letters without their marks and
/// cases (“Åland” is at A), numbers by what they say (“2” before “10”), and only then the characters themselves.
/// Below 0 where `a` comes first, 0 for equal texts.
int compareNames(QString const& a, QString const& b);
