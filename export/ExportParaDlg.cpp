#include "ExportParaDlg.h"

#include "PreView.h"
#include "ui_ExportParaDlg.h"

#include <SysDisplay/Units.h>

#include <QFileDialog>
#include <QIntValidator>

#include <algorithm>
#include <cmath>
#include <limits>

using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

constexpr int usualDpi = 96;
constexpr int maxDpi = 3000, maxPixels = 10000;

// Digits alone: what a locale groups by commas would not be read as a number.
void setNumberValidator(QLineEdit* edit, int most) {
  auto* const validator = new QIntValidator(1, most, edit);
  QLocale locale(QLocale::C);
  locale.setNumberOptions(QLocale::RejectGroupSeparator);
  validator->setLocale(locale);
  edit->setValidator(validator);
}

// To the nearest whole number; 0 for what a page without an extent gives.
int rounded(double value) {
  if (!std::isfinite(value)) return 0;
  return static_cast<int>(std::min<double>(value + 0.5, std::numeric_limits<int>::max()));
}

}  // namespace

ExportParaDlg::ExportParaDlg(_ptr_t<PageLayout> const& layout, _ptr_t<IApplicationHook> const& hook, QWidget* parent)
    : QDialog(parent, Qt::WindowFlags()), layout_(layout), hook_(hook), ui_(std::make_unique<Ui::ExportParaDlg>()) {
  ui_->setupUi(this);
  ui_->lineEdit_DPI->setText(QString::number(usualDpi));
  showSize(usualDpi);
  setNumberValidator(ui_->lineEdit_DPI, maxDpi);
  setNumberValidator(ui_->lineEdit_Width, maxPixels);
  setNumberValidator(ui_->lineEdit_Height, maxPixels);
  ui_->lineEdit_OutputPath->setReadOnly(true);
  ui_->pushButton_3->setText(tr("PreView"));
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  connect(ui_->pushButton_3, &QPushButton::clicked, this, &ExportParaDlg::slot_PreView);
}

ExportParaDlg::~ExportParaDlg() = default;

QString ExportParaDlg::outputPath() const { return ui_->lineEdit_OutputPath->text(); }

int ExportParaDlg::dpi() const { return ui_->lineEdit_DPI->text().toInt(); }

void ExportParaDlg::showSize(int dpi) {
  int width = 0, height = 0;
  layout_->QueryOutputSize(dpi, width, height);
  ui_->lineEdit_Width->setText(QString::number(width));
  ui_->lineEdit_Height->setText(QString::number(height));
}

void ExportParaDlg::showResolution(int dpi) { ui_->lineEdit_DPI->setText(QString::number(dpi == 0 ? 1 : dpi)); }

void ExportParaDlg::slotDPIEdited(QString const& text) {
  int dpi = text.toInt();
  if (dpi == 0) {
    dpi = 1;
    showResolution(dpi);
  }
  showSize(dpi);
}

void ExportParaDlg::slotWidthEdited(QString const& text) {
  if (!layout_->GetPage()) return;
  double widthCm, heightCm;
  layout_->GetPage()->QuerySize(widthCm, heightCm);
  int const width = text.toInt();
  ui_->lineEdit_Height->setText(QString::number(rounded((heightCm / widthCm) * width)));
  showResolution(rounded((SysDisplay::cmPerInch / widthCm) * width));
}

void ExportParaDlg::slotHeightEdited(QString const& text) {
  if (!layout_->GetPage()) return;
  double widthCm, heightCm;
  layout_->GetPage()->QuerySize(widthCm, heightCm);
  int const height = text.toInt();
  ui_->lineEdit_Width->setText(QString::number(rounded((widthCm / heightCm) * height)));
  showResolution(rounded((SysDisplay::cmPerInch / heightCm) * height));
}

void ExportParaDlg::slot_PreView() {
  auto* const preview = new PreView(this);
  preview->RenderPreview(dpi(), nullptr, layout_, hook_);
  preview->exec();
}

void ExportParaDlg::slotOutputPath() {
  QString const path =
      QFileDialog::getSaveFileName(this, tr("Save File"), QString(),
                                   QStringLiteral("PNG (*.png);;JPEG (*.jpg);;BMP (*.bmp);;TIFF(*.tif *.tiff *.TIFF)"));
  if (!path.isEmpty()) ui_->lineEdit_OutputPath->setText(path);
}
