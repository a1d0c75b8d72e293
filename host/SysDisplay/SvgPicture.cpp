#include "SvgPicture.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/SvgCheck.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSvgRenderer>

namespace SysDisplay {

struct SvgPicture::Private {
  QByteArray svg;
  QSvgRenderer renderer;
  QImage drawn;
};

SvgPicture::SvgPicture() : d(std::make_unique<Private>()) {}
SvgPicture::~SvgPicture() = default;

std::shared_ptr<SvgPicture> SvgPicture::of(QByteArray const& svg, QString& problem) {
  problem = svgProblem(svg);
  if (!problem.isEmpty()) return nullptr;
  std::shared_ptr<SvgPicture> picture(new SvgPicture);
  picture->d->svg = svg;
  if (picture->d->renderer.load(svg) && !picture->viewBox().isEmpty()) return picture;
  problem = QCoreApplication::translate("SvgPicture", "the SVG can't be drawn: it has no size or no content");
  return nullptr;
}

QByteArray const& SvgPicture::svg() const { return d->svg; }
QRectF SvgPicture::viewBox() const { return d->renderer.viewBoxF(); }
void SvgPicture::render(QPainter& painter, QRectF const& rectangle) {
  spendOnSvg(d->svg.size(), painter);
  if (!DrawingBudget::isSpent()) d->renderer.render(&painter, rectangle);
}

void spendOnSvg(int bytes, QPainter const& painter) {
  constexpr double bytesOfAPart = 50, partsAtLeast = 5;
  QRectF const area = reachableArea(painter);
  DrawingBudget::spend((partsAtLeast + bytes / bytesOfAPart) * area.width() * area.height());
  if (VectorCanvas::of(painter)) DrawingBudget::spendOnVertices(bytes / bytesOfAPart);
}

QImage const& SvgPicture::drawn(QSize const& size) {
  if (d->drawn.size() == size) return d->drawn;
  d->drawn = QImage(size, QImage::Format_ARGB32_Premultiplied);
  d->drawn.fill(Qt::transparent);
  QPainter painter(&d->drawn);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  spendOnSvg(d->svg.size(), painter);
  d->renderer.render(&painter, QRectF(d->drawn.rect()));  // whatever is left to spend: it is kept
  return d->drawn;
}

}  // namespace SysDisplay
