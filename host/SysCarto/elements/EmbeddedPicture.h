#pragma once

#include <SysCarto/Export.h>

#include <QByteArray>
#include <QString>

#include <optional>

class QIODevice;

namespace SysCarto {

/// The format of a picture, told by its content ("png", "jpeg", "tiff", "webp" or "svg"); empty for any other. The
/// device is read from its beginning.
QByteArray pictureFormat(QIODevice& file);

// A picture that lies in the document itself: a data URI (RFC 2397) with the bytes of its file in base 64.

/// Empty where the bytes are no picture that can be drawn.
SYSCARTO_EXPORT QString embeddedPicture(QByteArray const& fileContent);

/// Nothing where the text is no picture's data URI.
SYSCARTO_EXPORT std::optional<QByteArray> embeddedBytes(QString const& text);

}  // namespace SysCarto
