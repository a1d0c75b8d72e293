#include "VectorExport.h"

#include "SvgCanvas.h"
#include "VectorPage.h"

#include <QCoreApplication>

#include <exception>

using SysCarto::FileInformation;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(VectorExport)
};

PageBoxes boxesOf(SysCarto::Page const& page, VectorOptions const& options) {
  double widthCm, heightCm;
  page.QuerySize(widthCm, heightCm);
  return PageBoxes::of({widthCm, heightCm}, options.bleedCm, options.cropMarks);
}

// The page with what lies about it.
void draw(VectorPage const& page, PageBoxes const& boxes, SysDisplay::VectorCanvas& canvas,
          _ptr_t<TrackerCancel> const& cancel) {
  if (boxes.arePlain()) return page.draw(canvas, cancel);
  double const pxPerCm = canvas.size().width() / boxes.media.width();
  canvas.save();
  canvas.clip(QRectF((boxes.bleed.topLeft() - boxes.media.topLeft()) * pxPerCm, boxes.bleed.size() * pxPerCm));
  page.draw(canvas, cancel);
  canvas.restore();
  if (boxes.bleed != boxes.media) boxes.drawMarks(canvas);
}

void addPage(PdfFile& file, SysCarto::MapDocument const& document, VectorOptions const& options,
             _ptr_t<TrackerCancel> const& cancel) {
  auto const layout = document.GetPageLayout();
  PageBoxes const boxes = boxesOf(*layout->GetPage(), options);
  VectorPage const page(layout, options.dpi, boxes.arePlain() ? QRectF() : boxes.media);
  PdfCanvas canvas(file.objects(), file.fonts(), page.size(), options.dpi, options.textAsShapes, options.layers);
  draw(page, boxes, canvas, cancel);
  if (!cancel || !cancel->IsCanced()) file.addPage(canvas, page.sizePt(), page.frames(), boxes);
}

// Empty, or why there is no file, as a clause. Throws what qpdf throws.
QString writePages(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                   _ptr_t<TrackerCancel> const& cancel, NextPage const& next) {
  OutputIntent intent = OutputIntent::sRgb();
  QString const problem = options.outputIntent.isEmpty() ? QString() : OutputIntent::read(options.outputIntent, intent);
  if (!problem.isEmpty()) return problem;
  PdfFile file(FileInformation::of(document), intent);
  auto const isCancelled = [&] { return cancel && cancel->IsCanced(); };
  if (!next) addPage(file, document, options, cancel);
  bool hasPages = !next;
  while (next && !isCancelled()) {
    auto const name = next();
    if (!name) break;
    addPage(file, document, options, cancel);
    if (!isCancelled()) file.addBookmark(*name);
    hasPages = true;
  }
  if (isCancelled()) return QString();
  if (!hasPages) return Texts::tr("no page of the series can be shown");
  file.write(path, cancel);
  return QString();
}

}  // namespace

QString writePdf(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                 _ptr_t<TrackerCancel> const& cancel, NextPage const& next) {
  try {
    return writePages(document, path, options, cancel, next);
  } catch (std::exception const& error) {
    return cancel && cancel->IsCanced() ? QString() : QString::fromLocal8Bit(error.what());
  }
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
