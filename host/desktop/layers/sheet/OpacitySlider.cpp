#include "OpacitySlider.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QWidgetAction>

#include <cmath>

namespace {

constexpr int widthPx = 160, marginPx = 8, keyStep = 5, pageStep = 25;

}  // namespace

OpacitySlider::OpacitySlider(QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal, this)), told_(new QLabel(this)) {
  slider_->setObjectName(QStringLiteral("slider_Opacity"));
  slider_->setRange(0, 100);
  slider_->setSingleStep(keyStep);
  slider_->setPageStep(pageStep);
  slider_->setMinimumWidth(widthPx);
  slider_->setAccessibleName(tr("Opacity"));
  told_->setMinimumWidth(told_->fontMetrics().horizontalAdvance(tr("%1 %").arg(1000)));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(marginPx, marginPx / 2, marginPx, marginPx / 2);
  row->addWidget(slider_, 1);
  row->addWidget(told_);
  setFocusProxy(slider_);
  connect(slider_, &QSlider::valueChanged, this, [this](int percent) {
    told_->setText(tr("%1 %").arg(percent));
    if (!isSetting_ && !slider_->isSliderDown() && !isInMenu_) take();
  });
  connect(slider_, &QSlider::sliderReleased, this, &OpacitySlider::take);
}

OpacitySlider::~OpacitySlider() = default;

OpacitySlider* OpacitySlider::addTo(QMenu& menu) {
  auto* const action = new QWidgetAction(&menu);
  auto* const made = new OpacitySlider(&menu);
  action->setDefaultWidget(made);
  menu.insertAction(menu.actions().value(0), action);
  menu.insertSeparator(menu.actions().value(1));
  made->setFocusPolicy(Qt::StrongFocus);
  made->isInMenu_ = true;
  connect(&menu, &QMenu::aboutToHide, made, &OpacitySlider::take);
  menu.installEventFilter(made);
  return made;
}

// Of the menu, before it closes.
bool OpacitySlider::eventFilter(QObject* watched, QEvent* event) {
  bool const isCancel =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
  if (isCancel && shown_ >= 0) setPercent(shown_);
  return QWidget::eventFilter(watched, event);
}

void OpacitySlider::setPercent(double percent) {
  if (slider_->isSliderDown()) return;
  isSetting_ = true;
  slider_->setValue(static_cast<int>(std::lround(percent)));
  isSetting_ = false;
  shown_ = slider_->value();
  told_->setText(tr("%1 %").arg(percent, 0, 'g', 4));
}

void OpacitySlider::take() {
  if (slider_->value() == shown_) return;
  shown_ = slider_->value();
  emit chosen(shown_);
}
