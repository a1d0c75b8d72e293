#include "PagePicture.h"

#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysCarto/layout/PageOrder.h"

#include <SysCarto/MapSurround.h>
#include <SysCarto/MapSurroundFrame.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QPalette>

#include <algorithm>

using SysCarto::Element;
using SysCarto::MapFrameElement;
using SysCarto::MapSurroundFrame;
using SysCarto::PageLayout;
using SysDisplay::DisplayTransformation;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

constexpr int shadowPx = 3;

QRectF pixelsOf(DisplayTransformation const& transformation, SysGeometry::Envelope const& rectangle) {
  return transformation.ToDevice().mapRect(
      QRectF(rectangle.GetXMin(), rectangle.GetYMin(), rectangle.GetWidth(), rectangle.GetHeight()));
}

QList<_ptr_t<MapFrameElement>> framesOf(PageLayout const& layout) {
  QList<_ptr_t<MapFrameElement>> frames;
  for (auto const& element : layout.GetGraphicsContainer()->GetElements())
    if (auto const frame = ptr_cast<MapFrameElement>(element); frame && frame->IsVisible()) frames << frame;
  return frames;
}

// A frame without a surround draws nothing, and nobody would find it on the page.
void paintPlaceholder(QPainter& painter, QRectF const& place) {
  painter.save();
  QPen pen(QColor(0x90, 0x98, 0xa0), 0, Qt::DashLine);
  painter.setPen(pen);
  painter.drawRect(place);
  painter.drawText(place, Qt::AlignCenter, QCoreApplication::translate("MapSurround", "Map surround"));
  painter.restore();
}

}  // namespace

void PagePicture::compose(PageLayout const& layout, double devicePixelRatio) {
  QSize const size = layout.GetDisplayTransformation()->GetDeviceFrame().size() * devicePixelRatio;
  if (size.isEmpty()) return;
  if (image_.size() != size) image_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
  devicePixelRatio_ = devicePixelRatio;
  followView(layout);
  followMaps(layout);
  lacksFeatures_ = false;
  paint(layout, image_.rect());
}

void PagePicture::followView(PageLayout const& layout) {
  auto const view = layout.GetDisplayTransformation();
  transformation_ = view->Clone();
  transformation_->SetDeviceFrame(image_.rect());
  transformation_->SetPageScale(view->GetPageScale() * devicePixelRatio_);
  transformation_->SetPaintDevice(&image_);
}

void PagePicture::scroll(PageLayout const& layout, QPoint const& byPx) {
  QImage const before = image_.copy();
  QPainter(&image_).drawImage(byPx, before);
  followView(layout);
  followMaps(layout);
  paint(layout, QRegion(image_.rect()) - image_.rect().translated(byPx));
}

QPoint PagePicture::cornerOf(MapFrameElement const& frame) const {
  auto const rectangle = frame.GetEnvelope();
  return transformation_->FromMapPoint(rectangle->GetXMin(), rectangle->GetYMax());
}

void PagePicture::followMaps(PageLayout const& layout) {
  QHash<SysCarto::ElementHandle, MapTiles> kept;
  for (auto const& frame : framesOf(layout)) {
    MapTiles& tiles = kept[frame->GetHandle()] = tiles_.take(frame->GetHandle());
    tiles.follow(*frame, transformation_->ToDevice().m11());
    tiles.setShown(image_.rect().translated(-cornerOf(*frame)));
  }
  tiles_ = kept;
}

QRegion PagePicture::drawSlice(PageLayout const& layout, int budgetMs) {
  QRegion changed;
  if (image_.isNull()) return changed;
  QElapsedTimer clock;
  clock.start();
  for (auto const& frame : framesOf(layout)) {
    auto const tiles = tiles_.find(frame->GetHandle());
    if (tiles == tiles_.end() || !tiles->canGoOn()) continue;
    if (clock.elapsed() >= budgetMs) break;
    while (changed.isEmpty() || clock.elapsed() < budgetMs) {
      QRect const drawn = tiles->drawNext(*frame);
      if (drawn.isNull()) break;  // some labels were placed, or there is nothing to do
      ++drawnTiles_;
      changed += drawn.translated(cornerOf(*frame)) & image_.rect();
    }
  }
  if (changed.isEmpty()) return changed;
  paint(layout, changed);
  return changed;
}

bool PagePicture::isCurrent(PageLayout const& layout) const {
  for (auto const& frame : framesOf(layout)) {
    auto const tiles = tiles_.constFind(frame->GetHandle());
    if (tiles != tiles_.constEnd() && !tiles->isOf(*frame)) return false;
  }
  return true;
}

bool PagePicture::takeNews() {
  for (MapTiles& tiles : tiles_) tiles.takeNews();
  return lacksFeatures_;
}

bool PagePicture::isComplete() const {
  return !lacksFeatures_ &&
         std::all_of(tiles_.begin(), tiles_.end(), [](MapTiles const& one) { return one.isComplete(); });
}

bool PagePicture::canGoOn() const {
  return std::any_of(tiles_.begin(), tiles_.end(), [](MapTiles const& one) { return one.canGoOn(); });
}

void PagePicture::paint(PageLayout const& layout, QRegion const& area) {
  QPainter painter(&image_);
  painter.setClipRegion(area);
  painter.fillRect(image_.rect(), QApplication::palette().color(QPalette::Mid));
  if (SysCarto::Page* const page = layout.GetPage()) paintSheet(painter, *page);
  SysCarto::WithoutWaiting const meanwhile;  // legends ask what is in sight
  SysCarto::drawInPageOrder(layout, painter, transformation_,
                            [&](auto const& element) { paintElement(painter, element); });
  lacksFeatures_ = lacksFeatures_ || meanwhile.isIncomplete;
}

// What an export doesn't have: the sheet of paper on the desk.
void PagePicture::paintSheet(QPainter& painter, SysCarto::Page& page) const {
  QRectF const sheet = pixelsOf(*transformation_, *page.GetPageEnvelope());
  int const spread = qRound(shadowPx * devicePixelRatio_);
  painter.fillRect(sheet.translated(spread, spread), QColor(0, 0, 0, 60));
  if (auto const shadow = page.GetShadow()) shadow->Draw(painter, transformation_, page.GetPageEnvelope());
  painter.fillRect(sheet, Qt::white);
}

void PagePicture::paintElement(QPainter& painter, _ptr_t<Element> const& element) const {
  auto const frame = ptr_cast<MapFrameElement>(element);
  if (frame) return paintFrame(painter, frame);
  element->Draw(painter, transformation_, nullptr);
  auto const surroundFrame = ptr_cast<MapSurroundFrame>(element);
  if (surroundFrame && !surroundFrame->GetMapSurround())
    paintPlaceholder(painter, pixelsOf(*transformation_, *element->GetEnvelope()));
}

// As the frame draws itself, but with the kept tiles for its map.
void PagePicture::paintFrame(QPainter& painter, _ptr_t<MapFrameElement> const& frame) const {
  frame->DrawShadow(painter, transformation_);
  frame->DrawBackground(painter, transformation_);
  auto const tiles = tiles_.constFind(frame->GetHandle());
  if (tiles != tiles_.constEnd()) tiles->paint(painter, cornerOf(*frame));
  frame->DrawBorder(painter, transformation_);
  for (int i = 0; i < frame->GetMapGridCount(); ++i)
    frame->GetMapGrid(i)->Draw(painter, nullptr, transformation_, frame);
}
