#include "VectorExport.h"

#include "VectorPage.h"

namespace {

void addPage(PdfFile& file, SysCarto::MapDocument const& document, int dpi,
             SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) {
  VectorPage const page(document.GetPageLayout(), dpi);
  PdfCanvas canvas(file.objects(), file.fonts(), page.size(), dpi);
  page.draw(canvas, cancel);
  if (!cancel || !cancel->IsCanced()) file.addPage(canvas, page.sizePt(), page.frames());
}

}  // namespace

QString writePdf(SysCarto::MapDocument const& document, QString const& path, int dpi,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel, NextPage const& next) {
  PdfFile file(SysCarto::FileInformation::of(document));
  auto const isCancelled = [&] { return cancel && cancel->IsCanced(); };
  if (!next) addPage(file, document, dpi, cancel);
  while (next && !isCancelled()) {
    auto const name = next();
    if (!name) break;
    addPage(file, document, dpi, cancel);
    if (!isCancelled()) file.addBookmark(*name);
  }
  return isCancelled() ? QString() : file.write(path);
}
