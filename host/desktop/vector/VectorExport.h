#pragma once

#include <SysCarto/MapDocument.h>
#include <SysUI/TrackerCancel.h>

#include <QString>

/// Writes the page of a document, which has one, as a PDF. Empty, or why it was not written, as a clause; nothing is
/// said of what was cancelled. What is half written stays where it is.
QString writePdf(SysCarto::MapDocument const& document, QString const& path, int dpi,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
