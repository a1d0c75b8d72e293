#include "VectorExport.h"

#include "VectorPage.h"

QString writePdf(SysCarto::MapDocument const& document, QString const& path, int dpi,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) {
  VectorPage const page(document.GetPageLayout(), dpi);
  PdfFile file(SysCarto::FileInformation::of(document));
  PdfCanvas canvas(file.objects(), file.fonts(), page.size(), dpi);
  page.draw(canvas, cancel);
  if (cancel && cancel->IsCanced()) return QString();
  file.addPage(canvas, page.sizePt(), page.frames());
  return file.write(path);
}
