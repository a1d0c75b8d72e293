#include "TurnGesture.h"

#include "host/SysCarto/elements/Turning.h"

#include <SysGeometry/Polygon.h>

#include <QCoreApplication>
#include <QLineF>
#include <QLocale>

#include <algorithm>
#include <cmath>

using SysCarto::Element;
using SysCarto::PageLayout;

namespace {

constexpr double shiftStepDegrees = 15;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(TurnGesture)
};

void turnAbout(PageLayout& layout, QPointF const& middle, double degrees) {
  changeSelection(layout, Texts::tr("Turn the selected elements"), [&](Element& element) {
    SysCarto::turn(element, middle, degrees);
    return true;
  });
}

}  // namespace

TurnGesture::TurnGesture(PageLayout& layout, QPointF const& press)
    : PageGesture(layout, press), middle_(SelectionHandles(layout).boundsCm().center()) {}

// To whole tenths, which is finer than a hand.
double TurnGesture::degrees() const {
  double const turned = -QLineF(middle_, point()).angle() + QLineF(middle_, press()).angle();
  double const step = modifiers().testFlag(Qt::ShiftModifier) ? shiftStepDegrees : 0.1;
  return std::remainder(std::round(turned / step) * step, 360);
}

PageGesture::Outlines TurnGesture::outlines() const {
  QTransform const turning =
      QTransform().translate(middle_.x(), middle_.y()).rotate(degrees()).translate(-middle_.x(), -middle_.y());
  Outlines turned;
  for (QRectF const& box : selectedRectangles(layout())) {
    QPolygonF ring = turning.map(QPolygonF(box));
    ring.removeLast();
    turned << SysUtility::make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{ring});
  }
  return turned;
}

QString TurnGesture::numbers() const { return Texts::tr("%1°").arg(QLocale().toString(degrees(), 'f', 1)); }

void TurnGesture::commit() {
  if (degrees() != 0) turnAbout(layout(), middle_, degrees());
}

bool turnSelection(PageLayout& layout, double degrees) {
  auto const selection = movableSelection(layout);
  bool const any =
      std::any_of(selection.begin(), selection.end(), [](auto const& element) { return SysCarto::canTurn(*element); });
  if (any) turnAbout(layout, SelectionHandles(layout).boundsCm().center(), degrees);
  return any;
}
