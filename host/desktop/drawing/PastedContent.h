#pragma once

#include <SysCarto/PageLayout.h>

#include <QByteArray>

class QMimeData;

// What other programs put on a clipboard, as elements of a page that are placed later. Each answers an empty pointer,
// with a sentence in `problem`, where it can't be one.

/// The linked picture of a file.
SysUtility::_ptr_t<SysCarto::Element> pictureOfFile(QString const& path, SysCarto::PageLayout const& layout,
                                                    QString& problem);

/// The embedded picture of the picture there; a QImage becomes a PNG.
SysUtility::_ptr_t<SysCarto::Element> pictureOf(QMimeData const& content, SysCarto::PageLayout const& layout,
                                                QString& problem);
SysUtility::_ptr_t<SysCarto::Element> textElementOf(QString const& text, QString& problem);
