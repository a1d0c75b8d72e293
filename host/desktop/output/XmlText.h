#pragma once

#include <QByteArray>
#include <QString>

/// A text without the characters that XML 1.0 has no way to write, which parsers refuse: most control characters,
/// halves of surrogate pairs, U+FFFE and U+FFFF.
QString xmlText(QString const& text);

/// The same as it stands between tags and in the quotes of an attribute.
QByteArray escapedXml(QString const& text);
