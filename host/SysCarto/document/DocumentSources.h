#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace SysCarto {

class PageLayout;

/// A file that a layout draws from: the data of a layer, or a picture.
struct DocumentSource {
  QString file;     ///< absolute
  QString problem;  ///< why it could not be read, as a sentence that names who draws it; empty where it was
};

/// One for each layer and each picture, in no particular order.
SYSCARTO_EXPORT QVector<DocumentSource> sourcesOf(PageLayout const& layout);

/// Reads these files anew, for all that draw them.
SYSCARTO_EXPORT void readAgain(PageLayout const& layout, QStringList const& files);

}  // namespace SysCarto
