#include "WorldMap.h"

#include <QFile>
#include <QPainter>

namespace SysAdapterUI {

using SysCarto::GlobeBox;

namespace {

constexpr int usualWidthPx = 360;
constexpr int meshDegrees = 30;
constexpr double leastPx = 6;  // a smaller part would not be seen
QColor const useColor(0x1a, 0x73, 0xe8), extentColor(0xe8, 0x71, 0x0a);

// A line for each polygon: longitude and latitude of its vertices in turn.
QPainterPath readLand() {
  QPainterPath land;
  QFile file(QStringLiteral(":/SysAdapterUI/land.txt"));
  if (!file.open(QIODevice::ReadOnly)) return land;
  for (QByteArray const& line : file.readAll().split('\n')) {
    QList<QByteArray> const numbers = line.split(' ');
    QPolygonF ring;
    for (int i = 0; i + 1 < numbers.size(); i += 2) ring << QPointF(numbers[i].toDouble(), numbers[i + 1].toDouble());
    land.addPolygon(ring);
    land.closeSubpath();
  }
  return land;
}

// One across the 180th meridian lies at both ends of the map.
QVector<QRectF> rectanglesOf(GlobeBox const& box) {
  if (box.isEmpty()) return {};
  QRectF const whole(QPointF(box.west, box.south), QPointF(box.west + box.width(), box.north));
  if (whole.right() <= 180) return {whole};
  return {whole, whole.translated(-360, 0)};
}

}  // namespace

WorldMap::WorldMap(QWidget* parent) : QWidget(parent), land_(readLand()) {
  setObjectName(QStringLiteral("worldMap"));
  setAccessibleName(tr("The world, with the area of use and the map's extent"));
  setToolTip(tr("Blue: where the coordinate system is meant to be used. Orange: what the map shows."));
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void WorldMap::setUse(GlobeBox const& use) {
  use_ = use;
  update();
}

void WorldMap::setExtent(GlobeBox const& extent) {
  extent_ = extent;
  update();
}

QSize WorldMap::sizeHint() const { return {usualWidthPx, usualWidthPx / 2}; }

void WorldMap::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  double const pixelsPerDegree = std::min(width() / 360.0, height() / 180.0);
  QSizeF const size(360 * pixelsPerDegree, 180 * pixelsPerDegree);
  QRectF const place(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
  QTransform const toPx = QTransform::fromScale(pixelsPerDegree, -pixelsPerDegree) *
                          QTransform::fromTranslate(place.center().x(), place.center().y());
  painter.setClipRect(place);
  painter.fillRect(place, palette().color(QPalette::Base));
  QColor ink = palette().color(QPalette::Text);
  ink.setAlpha(60);
  painter.fillPath(toPx.map(land_), ink);
  ink.setAlpha(35);
  painter.setPen(QPen(ink, 1));
  for (int degrees = -180; degrees <= 180; degrees += meshDegrees) {
    painter.drawLine(toPx.map(QLineF(degrees, -90, degrees, 90)));
    if (degrees >= -90 && degrees <= 90) painter.drawLine(toPx.map(QLineF(-180, degrees, 180, degrees)));
  }
  auto const draw = [&](GlobeBox const& box, QColor const& color, int opacity) {
    QColor fill = color;
    fill.setAlpha(opacity);
    painter.setPen(QPen(color, 1.5));
    painter.setBrush(fill);
    for (QRectF const& rectangle : rectanglesOf(box)) {
      QRectF shown = toPx.mapRect(rectangle);
      double const growX = std::max(0.0, leastPx - shown.width()) / 2;
      double const growY = std::max(0.0, leastPx - shown.height()) / 2;
      painter.drawRect(shown.adjusted(-growX, -growY, growX, growY));
    }
  };
  draw(use_, useColor, 70);
  draw(extent_, extentColor, 0);
}

}  // namespace SysAdapterUI
