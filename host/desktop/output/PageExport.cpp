#include "PageExport.h"

#include "FontNotes.h"
#include "ImageFormat.h"
#include "PageImage.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/layers/SourceBounds.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/TextShaper.h"
#include "host/desktop/vector/VectorExport.h"

#include <QFileInfo>

#include <gdal_priv.h>

using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr double mmPerCm = 10;

// What a page is worth: some seconds, and about one more for each hundred kilobytes of its document and its data.
constexpr double freePixels = 4e9;
constexpr double timesThePage = 350;
constexpr double pixelsPerByte = 1e4;
constexpr double bytesOfTable = 5e7;  // of a connection, whose server has no size that could be asked for

double worthOf(SysCarto::MapDocument const& document, QSize const& size) {
  double bytes = static_cast<double>(QFileInfo(document.GetPath()).size());
  for (auto const& source : SysCarto::sourcesOf(*document.GetPageLayout()))
    if (source.problem.isEmpty())
      bytes += source.file.isEmpty() ? bytesOfTable : static_cast<double>(SysCarto::dataSizeOf(source.file));
  return freePixels + timesThePage * size.width() * size.height() + pixelsPerByte * bytes;
}

}  // namespace

ExportOptions ExportOptions::of(SysCarto::ExportChoices const& choices) {
  ExportOptions options;
  options.dpi = choices.dpi;
  options.textAsShapes = choices.textAsShapes;
  options.layers = choices.layers;
  options.bleedCm = choices.bleedMm / mmPerCm;
  options.cropMarks = choices.cropMarks;
  return options;
}

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

QString PageExport::checkPage(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  if (layout && layout->GetPage()) return QString();
  return tr("%1: the document has no page to draw; give it one, such as \"page\": {\"form\": \"A4\"}.")
      .arg(document.GetPath());
}

bool PageExport::isWhole(SysCarto::MapDocument& document) const {
  if (!format_.isVector) {
    PageImage image(document, target_, format_, options_);
    return image.plan().isEmpty() && target_.checkResult(image.size(), image.bands()).isEmpty();
  }
  return target_.checkResult(QSize()).isEmpty();
}

QString PageExport::write(SysCarto::MapDocument& document, _ptr_t<TrackerCancel> const& cancel,
                          ExportProgress const& progress) {
  QString problem = checkPage(document);
  if (problem.isEmpty()) problem = target_.checkAgainst(document);
  QStringList const known = known_ ? *known_ : problemsOf(document);
  SysDisplay::takeFontTroubles();
  if (problem.isEmpty())
    problem = format_.isVector ? writeShapes(document, cancel) : writePixels(document, cancel, progress);
  if (problem.isEmpty() && !options_.allowMissing) problem = newProblem(document, known);
  auto const fonts = SysDisplay::takeFontTroubles();
  notes_ = fontNotes(fonts);
  if (problem.isEmpty() && !fonts.unopened.isEmpty())
    problem = tr("%1 was not written: the font %2 can't be opened at the moment; start the program again.")
                  .arg(path_, fonts.unopened.first());
  if (problem.isEmpty()) problem = target_.commit();
  return problem;
}

QStringList PageExport::problemsOf(SysCarto::MapDocument const& document) {
  QStringList problems;
  auto const layout = document.GetPageLayout();
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>())
    if (!source.problem.isEmpty()) problems << source.problem;
  return problems;
}

// What is read only where it is drawn may turn out to be damaged there.
QString PageExport::newProblem(SysCarto::MapDocument const& document, QStringList const& known) const {
  for (QString const& problem : problemsOf(document))
    if (!known.contains(problem)) return tr("%1 was not written: %2").arg(path_, problem);
  return QString();
}

QString PageExport::writeShapes(SysCarto::MapDocument const& document, _ptr_t<TrackerCancel> const& cancel) {
  QSize size;
  document.GetPageLayout()->QueryOutputSize(options_.dpi, size.rwidth(), size.rheight());
  QString problem = target_.checkSize(size);
  if (problem.isEmpty()) problem = target_.prepare();
  if (!problem.isEmpty()) return problem;
  VectorOptions const options{options_.dpi,     options_.textAsShapes, options_.layers,
                              options_.bleedCm, options_.cropMarks,    options_.outputIntent};
  SysCarto::GdalErrors const errors;
  SysDisplay::DrawingBudget budget(worthOf(document, size));
  NextPage next;
  if (next_)
    next = [&] {
      if (budget.isExceeded()) return decltype(next_())();
      budget.renew();
      return next_();
    };
  problem = qstrcmp(format_.driver, "SVG") == 0 ? writeSvg(document, target_.workingPath(), options, cancel)
                                                : writePdf(document, target_.workingPath(), options, cancel, next);
  if (cancel->IsCanced()) return tr("%1 was not written: interrupted.").arg(path_);
  if (budget.isExceeded()) return tooMuch();
  if (errors.hasFailure()) return target_.failure(errors);
  return problem.isEmpty() ? target_.checkResult(size) : tr("%1 was not written: %2.").arg(path_, problem);
}

QString PageExport::writePixels(SysCarto::MapDocument& document, _ptr_t<TrackerCancel> const& cancel,
                                ExportProgress const& progress) {
  PageImage image(document, target_, format_, options_);
  QString problem = image.plan();
  if (problem.isEmpty()) problem = target_.checkSize(image.size(), image.bands());
  if (problem.isEmpty()) problem = target_.prepare();
  if (problem.isEmpty()) problem = putBeside(image, document);
  SysDisplay::DrawingBudget const budget(worthOf(document, image.size()));
  if (problem.isEmpty()) problem = image.write(cancel, progress);
  if (cancel->IsCanced()) return tr("%1 was not written: interrupted.").arg(path_);
  if (budget.isExceeded()) return tooMuch();
  return problem.isEmpty() ? target_.checkResult(image.size(), image.bands()) : problem;
}

QString PageExport::tooMuch() const {
  return tr("%1 was not written: drawing its page takes far more than its size and its data are worth; simplify lines "
            "and "
            "areas with many vertices or crossings, make symbols smaller, fewer or less dense, or give less DPI.")
      .arg(path_);
}

// World files are known by the first and the last letter of the image's suffix.
QString PageExport::putBeside(PageImage const& image, SysCarto::MapDocument const& document) {
  QFileInfo const file(target_.path());
  QString suffix = file.suffix();
  if (suffix.isEmpty()) suffix = format_.suffixList().first();
  QString const world = file.completeBaseName() + QLatin1Char('.') + suffix.front() + suffix.back() + QLatin1Char('w');
  QString const problem = target_.putBeside(world, image.worldFile(), document);
  return problem.isEmpty()
             ? target_.putBeside(file.fileName() + QStringLiteral(".aux.xml"), image.systemFile(), document)
             : problem;
}
