#pragma once

#include <QRawFont>

/// The name by which a font is found where a family has more than one of its weight and slant, as those cut for
/// different sizes; empty where the font has none.
QString ownFamily(QRawFont const& font);

/// What kind of letters a font has, as style sheets call it, for readers that don't have the font.
QString genericFamily(QRawFont const& font);

/// False where Qt makes bold or slanted letters of others, since the family has none; the file's letters are those.
bool drawsAsTheFileDoes(QRawFont const& font);

/// Whether the file's own letters are bold.
bool isBoldInFile(QRawFont const& font);
