#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysCarto/layout/Series.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What a document stores of a series: its maps by their numbers, −1 for none.
struct SeriesSettings {
  struct Frame {
    SeriesFrame frame;
    int map = 0;
  };

  Series series;  ///< its frames as below, the file of its source as it is stored
  Frame frame;
  QVector<Frame> followers;
  int lastMap = maxMaps - 1;

  static SeriesSettings of(PageLayout const& layout, DocumentContext const& context);
  void list(SysUtility::Fields& fields);
  void applyTo(PageLayout& layout, DocumentContext const& context) const;

private:
  void listFrame(SysUtility::Fields& fields, Frame& frame) const;
};

/// Where the features of the layout's series come from, with its own condition; what names nothing where there is none.
SYSCARTO_EXPORT SourceSettings coverageOf(PageLayout const& layout);

}  // namespace SysCarto
