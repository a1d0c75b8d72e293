#include "PageExport.h"

#include "ImageFormat.h"

#include "export/ExportCommand.h"
#include "export/LayoutRenderer.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/desktop/OffscreenDesktop.h"
#include "host/desktop/vector/VectorExport.h"

#include <QProgressBar>
#include <QProgressDialog>

#include <gdal_priv.h>

#include <algorithm>

using Plugin::ExportCommand;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

// Where GDAL's block cache does not hold a whole row of tiles, each tile of the row makes it read and write all the
// rows of pixels anew. The fourth part more is for its book-keeping.
void reserveBlockCache(int imageWidthPx) {
  constexpr GIntBig bytesPerColumn = GIntBig{3} * Plugin::LayoutRenderer::tileSize;
  GDALSetCacheMax64(std::max(GDALGetCacheMax64(), bytesPerColumn * imageWidthPx * 5 / 4));
}

}  // namespace

PageExport::PageExport(QString const& path, ImageFormat const& format, ExportOptions const& options)
    : path_(path), format_(format), options_(options), target_(path, format) {}

QString PageExport::checkPlace() const {
  if (!format_.isVector)
    for (char const* driver : {format_.driver, "GTiff"})
      if (!GetGDALDriverManager()->GetDriverByName(driver))
        return tr("%1: this GDAL can't write %2; choose another format, or install a GDAL that can.")
            .arg(path_, QLatin1String(driver));
  return target_.checkPlace();
}

QString PageExport::write(SysCarto::MapDocument& document, _ptr_t<TrackerCancel> const& cancel,
                          Progress const& progress) {
  auto const layout = document.GetPageLayout();
  if (!layout || !layout->GetPage())
    return tr("%1: the document has no page to draw; give it one, such as \"page\": {\"form\": \"A4\"}.")
        .arg(document.GetPath());
  QSize size;
  layout->QueryOutputSize(options_.dpi, size.rwidth(), size.rheight());
  QString problem = target_.checkAgainst(document);
  if (problem.isEmpty()) problem = target_.checkSize(size);
  if (problem.isEmpty()) problem = target_.prepare();
  if (problem.isEmpty())
    problem = format_.isVector ? drawShapes(document, cancel) : drawPixels(document, size, cancel, progress);
  if (problem.isEmpty()) problem = target_.checkResult(size);
  if (problem.isEmpty()) problem = target_.commit();
  return problem;
}

QString PageExport::drawShapes(SysCarto::MapDocument const& document, _ptr_t<TrackerCancel> const& cancel) const {
  QString const problem = writePdf(document, target_.workingPath(), options_.dpi, cancel);
  if (cancel->IsCanced()) return tr("%1 was not written: interrupted.").arg(path_);
  return problem.isEmpty() ? QString() : tr("%1 was not written: %2.").arg(path_, problem);
}

QString PageExport::drawPixels(SysCarto::MapDocument& document, QSize const& size, _ptr_t<TrackerCancel> const& cancel,
                               Progress const& progress) const {
  reserveBlockCache(size.width());
  auto const desktop = SysUtility::make<OffscreenDesktop>(document);
  auto const command = SysUtility::make<ExportCommand>();
  command->OnCreate(desktop->hook());

  QProgressDialog& dialog = *command->GetProgressBar();
  dialog.setRange(0, 100);
  auto* const bar = dialog.findChild<QProgressBar*>();
  if (progress && bar)
    QObject::connect(bar, &QProgressBar::valueChanged, &dialog, [&](int percent) {
      if (percent >= 0) progress(dialog.labelText(), percent);
    });
  SysCarto::GdalErrors const errors;
  bool const reached = command->OutputOtherPicture(target_.workingPath(), options_.dpi, cancel,
                                                   ExportCommand::DrawProgressCallback, command.get());
  if (cancel->IsCanced()) return tr("%1 was not written: interrupted.").arg(path_);
  return reached && !errors.hasFailure() ? QString() : target_.failure(errors);
}
