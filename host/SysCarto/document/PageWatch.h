#pragma once

#include <SysCarto/PageLayout.h>

#include <QSizeF>
#include <QVector>

namespace SysCarto {

/// Notices that a page was rescaled: it has another size, and its elements other places. That happens outside the
/// history, whose steps would put the elements back where they were on a page of another size.
class PageWatch {
public:
  void note(PageLayout const* layout);
  bool wasRescaled(PageLayout const* layout) const;

private:
  QSizeF sizeCm_;
  QVector<double> places_;
};

}  // namespace SysCarto
