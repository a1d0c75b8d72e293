#include "PageGesture.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/maps/ActiveViewHost.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>
#include <SysFramework/HostAccess.h>
#include <SysGeometry/Polyline.h>

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

using SysCarto::Element;
using SysCarto::PageLayout;
using SysGeometry::Envelope;
using SysGeometry::Point;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double dragPx = 3;      // a hand is not still
constexpr double snapPx = 6;      // from what the mouse is drawn to a line
constexpr double minCm = 0.1;     // that a drag makes of a side
constexpr int maxOutlines = 200;  // more of them tell no more than one about them all

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PageGesture)
};

_ptr_t<SysDisplay::LineSymbol> lineIn(QColor const& color) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetStyle(SysDisplay::SimpleLineStyle::Solid);
  line->SetColor(color);
  line->SetWidth(0.75);
  return line;
}

_ptr_t<SysDisplay::LineSymbol> outlineSymbol() { return lineIn(QColor(0x1a, 0x73, 0xe8)); }
_ptr_t<SysDisplay::LineSymbol> snapSymbol() { return lineIn(QColor(0xd8, 0x1b, 0x9c)); }

_ptr_t<SysDisplay::Symbol> filledSymbol() {
  auto const fill = make<SysDisplay::SimpleFillSymbol>();
  fill->SetColor(QColor(0x1a, 0x73, 0xe8, 36));
  fill->SetOutlineSymbol(outlineSymbol());
  return fill;
}

QRectF rectangleOf(Envelope const& envelope) {
  return {envelope.GetXMin(), envelope.GetYMin(), envelope.GetWidth(), envelope.GetHeight()};
}

// What sums and products leave in the last digits is no place that anybody chose.
void tidy(Element& element) {
  auto const box = SysUtility::ptr_cast<Envelope>(element.GetGeometry());
  if (!box) return;
  auto const tidied = [](double cm) { return std::round(cm * 1e9) / 1e9; };
  element.SetGeometry(
      make<Envelope>(tidied(box->GetXMin()), tidied(box->GetYMin()), tidied(box->GetXMax()), tidied(box->GetYMax())));
}

_ptr_t<SysGeometry::Geometry> outlineOf(QRectF const& box) {
  return make<Envelope>(box.left(), box.top(), box.right(), box.bottom());
}

}  // namespace

QVector<QRectF> selectedRectangles(PageLayout const& layout) {
  auto const selection = movableSelection(layout);
  if (selection.size() > maxOutlines) return {SelectionHandles(layout).boundsCm()};
  QVector<QRectF> rectangles;
  for (auto const& element : selection) rectangles << rectangleOf(*element->GetEnvelope());
  return rectangles;
}

void changeSelection(PageLayout& layout, QString const& name, std::function<bool(Element&)> const& change) {
  QVector<QPair<SysCarto::ElementHandle, _ptr_t<Element>>> changed;
  for (auto const& element : movableSelection(layout)) {
    auto const clone = element->Clone();
    if (!change(*clone)) continue;
    tidy(*clone);
    changed << qMakePair(element->GetHandle(), clone);
  }
  if (changed.isEmpty()) return;
  {
    SysFramework::EditorOperation const operation(name);
    for (auto const& [handle, clone] : qAsConst(changed)) workplace(layout).ReplaceElement(handle, clone);
  }
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

void moveSelection(PageLayout& layout, QString const& name, QPointF const& by) {
  changeSelection(layout, name, [&](Element& element) {
    auto const before = element.GetEnvelope();
    element.Move(by.x(), by.y());
    return !SysCarto::haveSameCorners(*before, *element.GetEnvelope());
  });
}

QPointF pagePoint(PageLayout const& layout, QPoint const& pixel) {
  QTransform const toDevice = layout.GetDisplayTransformation()->ToDevice();
  QPointF const point = toDevice.inverted().map(QPointF(pixel));
  double const decimals = std::pow(10.0, std::ceil(std::log10(toDevice.m11())));  // in a centimetre
  return {std::round(point.x() * decimals) / decimals, std::round(point.y() * decimals) / decimals};
}

PageGesture::PageGesture(PageLayout& layout, QPointF const& press) : layout_(layout), press_(press), point_(press) {}
PageGesture::~PageGesture() = default;

Snapper const& PageGesture::lines() const {
  if (!snapper_) snapper_ = std::make_unique<Snapper>(layout_, dragged(), usesAids_ ? aids() : SysCarto::PageAids());
  return *snapper_;
}

SysCarto::PageAids PageGesture::aids() const {
  return layout_.GetPage() ? SysCarto::PageHost::aids(*layout_.GetPage()) : SysCarto::PageAids();
}

double PageGesture::snapReachCm() const { return snapPx / layout_.GetDisplayTransformation()->ToDevice().m11(); }
Snapper::Result PageGesture::snapped(QPointF const&) const { return {}; }
QString PageGesture::numbers() const { return QString(); }

void PageGesture::moveTo(QPointF const& point, Qt::KeyboardModifiers modifiers) {
  modifiers_ = modifiers;
  QPointF const way = (point - press_) * layout_.GetDisplayTransformation()->ToDevice().m11();
  hasMoved_ = hasMoved_ || std::max(std::abs(way.x()), std::abs(way.y())) >= dragPx;
  point_ = point;
  if (!hasMoved_) return;
  auto const snap = modifiers.testFlag(Qt::AltModifier) ? Snapper::Result() : snapped(point);
  point_ += snap.by;
  showOverlay(snap.lines);
}

void PageGesture::showOverlay(QVector<QLineF> const& snapLines) {
  layout_.BeginTrackerDraw();
  _ptr_t<SysDisplay::Symbol> const line = outlineSymbol(), area = filledSymbol();
  for (_ptr_t<SysGeometry::Geometry> shape : outlines()) {
    auto symbol = SysUtility::ptr_cast<SysGeometry::Polyline>(shape) ? line : area;
    layout_.DrawTrackerShape(symbol, shape);
  }
  _ptr_t<SysDisplay::Symbol> snap = snapSymbol();
  for (QLineF const& one : snapLines) {
    _ptr_t<SysGeometry::Geometry> shape = make<SysGeometry::Polyline>(QVector<QPointF>{one.p1(), one.p2()});
    layout_.DrawTrackerShape(snap, shape);
  }
  auto* const surface = SysCarto::ActiveViewHost::surface(layout_);
  QString const text = numbers();
  if (surface && !text.isEmpty())
    surface->trackerText(text, layout_.GetDisplayTransformation()->ToDevice().map(point_));
  layout_.EndTrackerDraw();
}

void PageGesture::finish() {
  cancel();
  if (hasMoved_) commit();
}

void PageGesture::cancel() {
  layout_.BeginTrackerDraw();
  layout_.EndTrackerDraw();
}

QSet<SysCarto::ElementHandle> selectedHandles(PageLayout const& layout) {
  QSet<SysCarto::ElementHandle> handles;
  for (auto const& element : movableSelection(layout)) handles << element->GetHandle();
  return handles;
}

QString inCm(double length) { return QLocale().toString(length, 'f', 2); }

MoveGesture::MoveGesture(PageLayout& layout, QPointF const& press)
    : PageGesture(layout, press), bounds_(SelectionHandles(layout).boundsCm()) {}

Snapper::Result MoveGesture::snapped(QPointF const& point) const {
  return lines().ofBox(bounds_.translated(point - press()), snapReachCm());
}

// The lower left corner, which the rectangle of the properties begins with.
QString MoveGesture::numbers() const {
  QPointF const corner = bounds_.topLeft() + offset();
  return Texts::tr("x %1  y %2 cm").arg(inCm(corner.x()), inCm(corner.y()));
}

PageGesture::Outlines MoveGesture::outlines() const {
  Outlines moved;
  for (QRectF const& rectangle : selectedRectangles(layout())) moved << outlineOf(rectangle.translated(offset()));
  return moved;
}

void MoveGesture::commit() {
  QPointF const by = offset();
  if (by.isNull()) return;
  moveSelection(layout(), Texts::tr("Move the selected elements"), by);
}

ResizeGesture::ResizeGesture(PageLayout& layout, QPointF const& press, Handle const& handle)
    : PageGesture(layout, press), handle_(handle), bounds_(SelectionHandles(layout).boundsCm()) {}

// Texts alone can't be stretched.
bool ResizeGesture::keepsRatio() const {
  if (modifiers() & Qt::ShiftModifier) return true;
  auto const selection = movableSelection(layout());
  return std::all_of(selection.begin(), selection.end(),
                     [](_ptr_t<Element> const& element) { return element->GetType() == SysCarto::ElementType::Text; });
}

// A rectangle is not turned over, and a side without a length is not scaled.
ResizeGesture::Scaling ResizeGesture::scaling() const {
  QPointF const way = point() - press();
  auto const factor = [](double length, int side, double by) {
    return side == 0 || length <= 0 ? 1.0 : std::max(length + side * by, std::min(minCm, length)) / length;
  };
  Scaling scaling;
  scaling.x = factor(bounds_.width(), handle_.x, way.x());
  scaling.y = factor(bounds_.height(), handle_.y, way.y());
  if (keepsRatio()) {
    bool const followsX = handle_.y == 0 || (handle_.x != 0 && std::abs(scaling.x - 1) > std::abs(scaling.y - 1));
    scaling.x = scaling.y = followsX ? scaling.x : scaling.y;
  }
  // The rectangle's top is the page's bottom: y goes upwards there.
  scaling.origin = {handle_.x > 0   ? bounds_.left()
                    : handle_.x < 0 ? bounds_.right()
                                    : bounds_.center().x(),
                    handle_.y > 0   ? bounds_.top()
                    : handle_.y < 0 ? bounds_.bottom()
                                    : bounds_.center().y()};
  return scaling;
}

// The side or corner that is pulled, from where it was.
Snapper::Result ResizeGesture::snapped(QPointF const& point) const {
  QPointF const side(handle_.x < 0 ? bounds_.left() : bounds_.right(),
                     handle_.y < 0 ? bounds_.top() : bounds_.bottom());
  return lines().ofPoint(side + point - press(), snapReachCm(), handle_.x != 0, handle_.y != 0);
}

QString ResizeGesture::numbers() const {
  Scaling const by = scaling();
  return Texts::tr("%1 × %2 cm").arg(inCm(bounds_.width() * by.x), inCm(bounds_.height() * by.y));
}

void ResizeGesture::Scaling::apply(Element& element) const {
  SysCarto::scaleInWhole(element, make<Point>(origin.x(), origin.y(), 0.0), x, y);
}

// Of clones, since not every element becomes what its rectangle would.
PageGesture::Outlines ResizeGesture::outlines() const {
  Scaling const by = scaling();
  auto const selection = movableSelection(layout());
  if (selection.size() > maxOutlines)
    return {outlineOf(QRectF(by.origin + by.scaled(bounds_.topLeft() - by.origin),
                             by.origin + by.scaled(bounds_.bottomRight() - by.origin)))};
  Outlines rectangles;
  for (auto const& element : selection) {
    auto const clone = element->Clone();
    by.apply(*clone);
    rectangles << clone->GetEnvelope();
  }
  return rectangles;
}

void ResizeGesture::commit() {
  Scaling const by = scaling();
  if (by.x == 1 && by.y == 1) return;
  changeSelection(layout(), Texts::tr("Resize the selected elements"), [&](Element& element) {
    by.apply(element);
    return true;
  });
}

PageGesture::Outlines RubberBandGesture::outlines() const { return {outlineOf(band())}; }

void RubberBandGesture::commit() {
  auto* const container = &workplace(layout());
  if (!(modifiers() & Qt::ShiftModifier)) container->UnselectAllElements();
  QRectF const area = band();
  for (auto const& element : container->GetElements()) {
    QRectF const rectangle = rectangleOf(*element->GetEnvelope());
    bool const isInside = rectangle.left() >= area.left() && rectangle.right() <= area.right() &&
                          rectangle.top() >= area.top() && rectangle.bottom() <= area.bottom();
    if (isInside && isInReach(*element)) container->SelectElement(element);
  }
}
