#include "FramePreview.h"

#include <SysDisplay/Units.h>
#include <SysGeometry/Envelope.h>

#include <QPainter>

#include <algorithm>

namespace SysAdapterUI {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int roomForPartsPx = 28;
constexpr int marginPx = 8;

// Like a desk under paper. The same in a dark theme, since the colours to be judged are those on paper.
constexpr QRgb deskColor = 0xffb4b4b4, outlineColor = 0xff808080;

// The given point of the world in the middle of the widget, at a zoom.
_ptr_t<DisplayTransformation> transformAt(QRect const& frame, QPointF const& centreCm, double zoom) {
  double const width = frame.width() / (SysDisplay::pixelsPerCm * zoom),
               height = frame.height() / (SysDisplay::pixelsPerCm * zoom);
  auto const transform = make<DisplayTransformation>();
  transform->SetDeviceFrame(frame);
  transform->SetVisibleBounds(make<Envelope>(centreCm.x() - width / 2, centreCm.y() - height / 2,
                                             centreCm.x() + width / 2, centreCm.y() + height / 2));
  transform->SetPageScale(zoom);
  return transform;
}

int inside(int lengthPx, int bordersPx) { return std::max(1, lengthPx - 2 * bordersPx); }

QRectF rectangleOf(Envelope const& envelope) {
  return {envelope.GetXMin(), envelope.GetYMin(), envelope.GetWidth(), envelope.GetHeight()};
}

}  // namespace

FramePreview::FramePreview(QWidget* parent) : QWidget(parent) {}
FramePreview::~FramePreview() = default;

void FramePreview::setParts(_ptr_t<SysCarto::IShadow> const& shadow, _ptr_t<SysCarto::IBackground> const& background,
                            _ptr_t<SysCarto::IBorder> const& border) {
  parts_[0] = shadow;
  parts_[1] = background;
  parts_[2] = border;
  update();
}

_ptr_t<Envelope> FramePreview::sample() const {
  return make<Envelope>(0.0, 0.0, inside(width(), roomForPartsPx) / SysDisplay::pixelsPerCm,
                        inside(height(), roomForPartsPx) / SysDisplay::pixelsPerCm);
}

_ptr_t<DisplayTransformation> FramePreview::fittedTransform() const {
  // Parts reach a fixed number of points beyond the rectangle, so what they cover does not depend on the zoom.
  auto const trueSize = transformAt(rect(), {0, 0}, 1);
  QRectF covered = rectangleOf(*sample());
  for (auto const& part : parts_) {
    auto const boundary = part ? part->QueryBoundary(trueSize, sample()) : nullptr;
    if (boundary && !boundary->IsEmpty()) covered |= rectangleOf(*boundary);
  }
  double const zoom = std::min({1.0, inside(width(), marginPx) / (covered.width() * SysDisplay::pixelsPerCm),
                                inside(height(), marginPx) / (covered.height() * SysDisplay::pixelsPerCm)});
  return transformAt(rect(), covered.center(), zoom);
}

void FramePreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(deskColor));
  auto const transform = fittedTransform();
  auto const rectangle = sample();

  // The rectangle itself, to be seen where nothing covers it.
  painter.setPen(QPen(QColor(outlineColor), 0, Qt::DotLine));
  painter.drawRect(
      QRect(transform->FromMapPoint(0, rectangle->GetYMax()), transform->FromMapPoint(rectangle->GetXMax(), 0)));

  painter.setRenderHint(QPainter::Antialiasing);
  for (auto const& part : parts_)
    if (part) part->Draw(painter, transform, rectangle);
}

}  // namespace SysAdapterUI
