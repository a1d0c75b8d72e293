#include "Guides.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/desktop/DocumentViews.h"

#include <SysGeometry/Polyline.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QPainter>

#include <cmath>

using SysCarto::PageAids;
using SysCarto::PageHost;
using SysCarto::PageLayout;
using SysUtility::make;

namespace {

constexpr double guideReachPx = 3;
constexpr double minGridPx = 6;
QColor const guideColour(0x12, 0xa5, 0xa5), marginColour(0xb0, 0x60, 0xc8), gridColour(0x80, 0x90, 0xa8, 90);

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Guides)
};

QVector<double> const& guidesOf(PageAids const& aids, Qt::Orientation orientation) {
  return orientation == Qt::Vertical ? aids.verticalGuides : aids.horizontalGuides;
}

double along(QPointF const& point, Qt::Orientation orientation) {
  return orientation == Qt::Vertical ? point.x() : point.y();
}

// Lines across the page, in pixels of the view.
class AidPainter {
public:
  AidPainter(QPainter& painter, PageLayout const& layout, QSize const& viewPx)
      : painter_(painter), toDevice_(layout.GetDisplayTransformation()->ToDevice()), viewPx_(viewPx) {
    layout.GetPage()->QuerySize(widthCm_, heightCm_);
    pagePx_ = toDevice_.mapRect(QRectF(0, 0, widthCm_, heightCm_));
  }

  void paintGrid(double step) {
    if (step <= 0 || step * toDevice_.m11() < minGridPx) return;
    painter_.setPen(QPen(gridColour, 0));
    QRectF const seen = toDevice_.inverted().mapRect(pagePx_ & QRectF(QPointF(), viewPx_));
    for (double x = std::ceil(seen.left() / step) * step; x <= seen.right(); x += step) paintOnPage(x, Qt::Vertical);
    for (double y = std::ceil(seen.top() / step) * step; y <= seen.bottom(); y += step) paintOnPage(y, Qt::Horizontal);
  }

  void paintMargins(PageAids const& aids) {
    QPen pen(marginColour, 0);
    pen.setDashPattern({4, 3});
    painter_.setPen(pen);
    if (aids.left > 0) paintOnPage(aids.left, Qt::Vertical);
    if (aids.right > 0) paintOnPage(widthCm_ - aids.right, Qt::Vertical);
    if (aids.bottom > 0) paintOnPage(aids.bottom, Qt::Horizontal);
    if (aids.top > 0) paintOnPage(heightCm_ - aids.top, Qt::Horizontal);
  }

  // Guides go on beyond the page.
  void paintGuides(QVector<double> const& places, Qt::Orientation orientation) {
    painter_.setPen(QPen(guideColour, 0));
    for (double const place : places) {
      double const at = px(place, orientation);
      if (at < 0 || at > (orientation == Qt::Vertical ? viewPx_.width() : viewPx_.height())) continue;
      painter_.drawLine(orientation == Qt::Vertical ? QLineF(at, 0, at, viewPx_.height())
                                                    : QLineF(0, at, viewPx_.width(), at));
    }
  }

private:
  // The middle of a pixel, so that a thin line is one pixel wide.
  double px(double cm, Qt::Orientation orientation) const {
    return std::floor(along(toDevice_.map(QPointF(cm, cm)), orientation)) + 0.5;
  }
  void paintOnPage(double cm, Qt::Orientation orientation) {
    double const at = px(cm, orientation);
    painter_.drawLine(orientation == Qt::Vertical ? QLineF(at, pagePx_.top(), at, pagePx_.bottom())
                                                  : QLineF(pagePx_.left(), at, pagePx_.right(), at));
  }

  QPainter& painter_;
  QTransform const toDevice_;
  QSize const viewPx_;
  double widthCm_ = 0, heightCm_ = 0;
  QRectF pagePx_;
};

}  // namespace

std::optional<Guide> guideAt(PageLayout const& layout, QPoint const& pixel) {
  if (!layout.GetPage()) return std::nullopt;
  QTransform const toDevice = layout.GetDisplayTransformation()->ToDevice();
  PageAids const& aids = PageHost::aids(*layout.GetPage());
  for (auto const orientation : {Qt::Vertical, Qt::Horizontal}) {
    auto const& guides = guidesOf(aids, orientation);
    for (int i = 0; i < guides.size(); ++i) {
      double const at = along(toDevice.map(QPointF(guides[i], guides[i])), orientation);
      if (std::abs(at - along(pixel, orientation)) <= guideReachPx) return Guide{orientation, i};
    }
  }
  return std::nullopt;
}

void paintAids(QPainter& painter, PageLayout const& layout, QSize const& viewPx) {
  if (!layout.GetPage()) return;
  PageAids const& aids = PageHost::aids(*layout.GetPage());
  painter.save();
  AidPainter aid(painter, layout, viewPx);
  aid.paintGrid(aids.grid);
  aid.paintMargins(aids);
  for (auto const orientation : {Qt::Vertical, Qt::Horizontal})
    aid.paintGuides(guidesOf(aids, orientation), orientation);
  painter.restore();
}

GuideGesture::GuideGesture(DocumentViews& views, PageLayout& layout, QPointF const& press, Guide const& guide)
    : PageGesture(layout, press), views_(views), guide_(guide) {}

double GuideGesture::place() const { return along(point(), guide_.orientation); }

bool GuideGesture::isOnPage() const {
  double width, height;
  layout().GetPage()->QuerySize(width, height);
  return place() >= 0 && place() <= (guide_.orientation == Qt::Vertical ? width : height);
}

// Not to the place that it leaves.
PageAids GuideGesture::aids() const {
  PageAids others = PageGesture::aids();
  auto& guides = guide_.orientation == Qt::Vertical ? others.verticalGuides : others.horizontalGuides;
  if (guide_.index >= 0 && guide_.index < guides.size()) guides.remove(guide_.index);
  return others;
}

// Where no line is near, to whole millimetres.
Snapper::Result GuideGesture::snapped(QPointF const& point) const {
  bool const isVertical = guide_.orientation == Qt::Vertical;
  auto snap = lines().ofPoint(point, snapReachCm(), isVertical, !isVertical);
  if (!snap.lines.isEmpty()) return snap;
  QPointF const millimetre(std::round(point.x() * 10) / 10, std::round(point.y() * 10) / 10);
  QPointF const by = millimetre - point;
  if (std::abs(along(by, guide_.orientation)) <= snapReachCm())
    snap.by = isVertical ? QPointF(by.x(), 0) : QPointF(0, by.y());
  return snap;
}

QString GuideGesture::numbers() const {
  return guide_.orientation == Qt::Vertical ? Texts::tr("x %1 cm").arg(inCm(place()))
                                            : Texts::tr("y %1 cm").arg(inCm(place()));
}

PageGesture::Outlines GuideGesture::outlines() const {
  auto const view = layout().GetExtent();
  QPointF const low(guide_.orientation == Qt::Vertical ? place() : view->GetXMin(),
                    guide_.orientation == Qt::Vertical ? view->GetYMin() : place());
  QPointF const high(guide_.orientation == Qt::Vertical ? place() : view->GetXMax(),
                     guide_.orientation == Qt::Vertical ? view->GetYMax() : place());
  return {make<SysGeometry::Polyline>(QVector<QPointF>{low, high})};
}

// As the properties of the page change it. A new one that was let go beside the page is none.
void GuideGesture::commit() {
  bool const isNew = guide_.index < 0;
  if (isNew && !isOnPage()) return;
  auto places = guidesOf(PageHost::aids(*layout().GetPage()), guide_.orientation);
  if (guide_.index >= places.size()) return;  // it has gone meanwhile
  if (isNew)
    places << place();
  else if (isOnPage())
    places[guide_.index] = place();
  else
    places.remove(guide_.index);
  QJsonArray list;
  for (double const one : qAsConst(places)) list.append(one);
  QStringList warnings;
  QString const problem = SysCarto::Editable::set(
      views_.document(), {SysCarto::Editable::page(views_.document())},
      {guide_.orientation == Qt::Vertical ? QStringLiteral("verticalGuides") : QStringLiteral("horizontalGuides")},
      [&](QJsonValue const&) { return QJsonValue(list); }, warnings);
  if (!problem.isEmpty()) emit views_.layoutView().told(problem + QLatin1Char('.'));
  views_.layoutView().update();
}
