#pragma once

#include "host/SysCarto/document/OutputSettings.h"
#include "host/SysCarto/layout/DocumentInformation.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/PageLayout.h>

namespace SysCarto {

struct SYSCARTO_EXPORT InformationSettings {
  DocumentInformation information;

  void list(SysUtility::Fields& fields);
};

/// What a document stores of itself, beside its page and its maps.
struct SYSCARTO_EXPORT DocumentSettings {
  InformationSettings information;
  OutputSettings output;

  static DocumentSettings of(PageLayout const& layout);
  void list(SysUtility::Fields& fields);
  void applyTo(PageLayout& layout) const;
};

}  // namespace SysCarto
