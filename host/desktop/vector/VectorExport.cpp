#include "VectorExport.h"

#include "SvgCanvas.h"
#include "VectorPage.h"

using SysCarto::FileInformation;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

void addPage(PdfFile& file, SysCarto::MapDocument const& document, VectorOptions const& options,
             _ptr_t<TrackerCancel> const& cancel) {
  VectorPage const page(document.GetPageLayout(), options.dpi);
  PdfCanvas canvas(file.objects(), file.fonts(), page.size(), options.dpi, options.textAsShapes);
  page.draw(canvas, cancel);
  if (!cancel || !cancel->IsCanced()) file.addPage(canvas, page.sizePt(), page.frames());
}

}  // namespace

QString writePdf(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                 _ptr_t<TrackerCancel> const& cancel, NextPage const& next) {
  PdfFile file(FileInformation::of(document));
  auto const isCancelled = [&] { return cancel && cancel->IsCanced(); };
  if (!next) addPage(file, document, options, cancel);
  while (next && !isCancelled()) {
    auto const name = next();
    if (!name) break;
    addPage(file, document, options, cancel);
    if (!isCancelled()) file.addBookmark(*name);
  }
  return isCancelled() ? QString() : file.write(path);
}

QString writeSvg(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                 _ptr_t<TrackerCancel> const& cancel) {
  constexpr double mmPerPoint = 25.4 / 72;
  VectorPage const page(document.GetPageLayout(), options.dpi);
  SvgCanvas canvas(path, {page.size(), double(options.dpi), page.sizePt() * mmPerPoint, FileInformation::of(document),
                          options.textAsShapes});
  page.draw(canvas, cancel);
  return cancel && cancel->IsCanced() ? QString() : canvas.finish();
}
