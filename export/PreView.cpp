#include "PreView.h"

#include "LayoutRenderer.h"
#include "ui_PreView.h"

#include <QPainter>
#include <QPixmap>

using Plugin::LayoutRenderer;
using Plugin::PlacedLabels;
using SysCarto::PageLayout;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr int canvasWidth = 250, canvasHeight = 355;

QPixmap drawnPage(LayoutRenderer const& renderer, QSize const& size, _ptr_t<TrackerCancel> const& cancel) {
  QPixmap picture(size);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.drawTile(painter, picture.rect(), cancel);
  return picture;
}

}  // namespace

PreView::PreView(QWidget* parent) : QDialog(parent, Qt::WindowFlags()), ui_(std::make_unique<Ui::PreView>()) {
  ui_->setupUi(this);
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  ui_->horizontalSlider->setRange(20, 200);
  ui_->horizontalSlider->setValue(100);
  connect(ui_->horizontalSlider, &QSlider::valueChanged, this, &PreView::slot_Scaled);
}

PreView::~PreView() = default;

void PreView::RenderPreview(int dpi, _ptr_t<TrackerCancel> const& cancel, _ptr_t<PageLayout> const& layout,
                            _ptr_t<IApplicationHook> const& hook) {
  applicationHook_ = hook;
  if (!layout || !layout->GetPage()) return;
  QSize const canvas(canvasWidth, canvasHeight);
  LayoutRenderer const renderer(layout, canvas, dpi);
  PlacedLabels const labels(*applicationHook_, renderer.pageTransform());
  if (cancel && cancel->IsCanced()) return;
  pictureWidth_ = canvas.width();
  pictureHeight_ = canvas.height();
  unscaled_ = std::make_unique<QPixmap>(drawnPage(renderer, canvas, cancel));
  ui_->label->setAlignment(Qt::AlignCenter);
  ui_->label->setPixmap(*unscaled_);
}

void PreView::slot_Scaled(int value) {
  if (!unscaled_) return;
  QSize const size(pictureWidth_ * value / 100, pictureHeight_ * value / 100);
  ui_->label->setPixmap(unscaled_->scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation));
}
