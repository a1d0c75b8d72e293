#pragma once

#include "host/SysCarto/layout/OutputChoices.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/Export.h>

#include <QStringList>

namespace SysCarto {

// What a document stores of how its page becomes a file or comes to paper.

struct SYSCARTO_EXPORT ExportSettings {
  ExportChoices choices;

  /// The keys of what other files have nothing of.
  static QStringList ofPdf();

  void list(SysUtility::Fields& fields);
};

struct SYSCARTO_EXPORT PrintSettings {
  PrintChoices choices;
  void list(SysUtility::Fields& fields);
};

struct OutputSettings {
  OutputChoices choices;
  void list(SysUtility::Fields& fields);
};

}  // namespace SysCarto
