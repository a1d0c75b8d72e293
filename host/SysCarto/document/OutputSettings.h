#pragma once

#include "host/SysCarto/layout/OutputChoices.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/Export.h>

namespace SysCarto {

// What a document stores of how its page becomes a file or comes to paper.

struct SYSCARTO_EXPORT ExportSettings {
  ExportChoices choices;
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
