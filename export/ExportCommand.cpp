#include "ExportCommand.h"

#include "ExportParaDlg.h"
#include "LayoutRenderer.h"
#include "RasterWriter.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <optional>

using SysCarto::PageLayout;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;
using SysUtility::retain;

namespace Plugin {

namespace {

constexpr int progressWidth = 400;

// Draws tile by tile into the writer, row by row. A cancelled drawing ends early and still counts; false is a tile that
// could not be written.
bool drawTiles(LayoutRenderer const& renderer, RasterWriter& writer, _ptr_t<TrackerCancel> const& cancel,
               ExportCommand::Progress progress, void* data) {
  QSize const grid = renderer.tileGrid();
  double const count = static_cast<double>(grid.width()) * grid.height();
  for (int row = 0; row < grid.height(); ++row)
    for (int column = 0; column < grid.width(); ++column) {
      if (cancel && cancel->IsCanced()) break;
      QRect const tile = renderer.tile(column, row);
      if (!writer.write(renderer.tileImage(tile, cancel), tile.topLeft())) return false;
      progress((static_cast<double>(row) * grid.width() + column) / count * 100.0, "", data);
    }
  return true;
}

}  // namespace

ExportCommand::ExportCommand() = default;
ExportCommand::~ExportCommand() = default;

bool ExportCommand::IsEnable() {
  enabled_ = static_cast<bool>(ptr_cast<PageLayout>(hook()->GetActiveView()));
  return enabled_;
}

void ExportCommand::OnCreate(void* hook) { BaseCommand::OnCreate(hook); }

void ExportCommand::OnClick() {
  auto const layout = ptr_cast<PageLayout>(hook()->GetActiveView());
  if (!layout) return;
  auto* const parent = dynamic_cast<QWidget*>(hook()->GetContents());
  ExportParaDlg dialog(layout, retain(hook()), parent);
  if (dialog.exec() != QDialog::Accepted) return;
  if (dialog.outputPath().isEmpty())
    QMessageBox::warning(parent, QCoreApplication::translate("ExportCommand", "Warning"),
                         QCoreApplication::translate("ExportCommand", "Invalid path!"), QMessageBox::Ok);
  else
    exportAs(dialog.outputPath(), dialog.dpi(), parent);
}

void ExportCommand::exportAs(QString const& path, int dpi, QWidget* parent) {
  QProgressDialog& progress = *GetProgressBar();
  progress.resize(progressWidth, progress.height());
  progress.setRange(0, 100);
  progress.show();
  progress.setRange(0, 100);
  bool const done = OutputOtherPicture(path, dpi, nullptr, DrawProgressCallback, this);
  GetProgressBar()->setValue(100);
  if (done)
    QMessageBox::information(parent, QCoreApplication::translate("ExportCommand", "Information"),
                             QCoreApplication::translate("ExportCommand", "Export complete!"), QMessageBox::Ok);
}

QProgressDialog* ExportCommand::GetProgressBar() {
  if (!progressDialog_) {
    progressDialog_ = new QProgressDialog(dynamic_cast<QWidget*>(hook()->GetContents()), Qt::WindowFlags());
    if (!progressDialog_->parent()) ownDialog_.reset(progressDialog_.data());
    progressDialog_->setWindowFlags(progressDialog_->windowFlags() | Qt::FramelessWindowHint);
    progressDialog_->setCancelButton(nullptr);
    progressDialog_->setWindowModality(Qt::WindowModal);
  }
  return progressDialog_;
}

bool ExportCommand::OutputOtherPicture(QString const& path, int dpi, _ptr_t<TrackerCancel> const& cancel,
                                       Progress progress, void* data) {
  auto const layout = hook()->GetPageLayout();
  if (!layout || !layout->GetPage()) return false;
  QSize const size = LayoutRenderer::imageSize(*layout->GetPage(), dpi);
  if (size.isEmpty()) return false;

  LayoutRenderer const renderer(layout, size, dpi);
  std::optional<PlacedLabels> labels;  // outlives the temporary file
  RasterWriter writer(path);
  if (!writer.create(size)) return false;
  labels.emplace(*hook(), renderer.pageTransform());
  setProgressLabel(QCoreApplication::translate("ExportCommand", "Drawing......."));
  progress(0.0, "", data);
  if (!drawTiles(renderer, writer, cancel, progress, data)) return false;
  setProgressLabel(QCoreApplication::translate("ExportCommand", "Processing......."));
  writer.convert(CopyProgressCallback, this);
  return true;
}

void ExportCommand::setProgressLabel(QString const& text) {
  if (progressDialog_) progressDialog_->setLabelText(text);
}

int ExportCommand::DrawProgressCallback(double percent, char const*, void* data) {
  QProgressDialog* const dialog = static_cast<ExportCommand*>(data)->GetProgressBar();
  if (!dialog) return -1;
  if (!dialog->isVisible()) dialog->show();
  dialog->setValue(static_cast<int>(percent));
  return 1;
}

int ExportCommand::CopyProgressCallback(double fraction, char const* message, void* data) {
  return DrawProgressCallback(fraction * 100.0, message, data);
}

}  // namespace Plugin
