#include "VectorPage.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <SysCarto/Map.h>
#include <SysDisplay/Units.h>

#include <QLineF>
#include <QPainter>

#include <ogr_spatialref.h>

#include <optional>

using SysCarto::Element;
using SysCarto::MapFrameElement;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

constexpr double pointsPerInch = 72;

// Of a data frame, as parts of its sides: the rectangle about its middle whose corners are looked for on the globe gets
// smaller by these steps, down to the least.
constexpr double partStep = 0.05;
constexpr double leastPart = 0.2;

// As more readers know it, or else as it can be written at all.
QString textOf(OGRSpatialReference const& system) {
  QString const wkt = SysCarto::wktOf(system, "WKT1_GDAL");
  return wkt.isEmpty() ? SysCarto::wktOf(system, "WKT2_2019") : wkt;
}

int epsgOf(OGRSpatialReference const& system) {
  char const* const authority = system.GetAuthorityName(nullptr);
  return authority && qstrcmp(authority, "EPSG") == 0 ? std::max(0, atoi(system.GetAuthorityCode(nullptr))) : 0;
}

_ptr_t<SysGeometry::Envelope> envelopeOf(QRectF const& areaCm, double pageHeightCm) {
  return SysUtility::make<SysGeometry::Envelope>(areaCm.left(), pageHeightCm - areaCm.bottom(), areaCm.right(),
                                                 pageHeightCm - areaCm.top());
}

// What a figure shows, for who can't see it.
QString descriptionOf(Element const& element) {
  if (auto const* const frame = dynamic_cast<MapFrameElement const*>(&element)) return frame->GetMap()->GetName();
  return element.GetName();
}

QString beginningOf(SysCarto::TextElement const& text) {
  constexpr int enough = 40;
  QString const words = text.text().simplified();
  return words.size() <= enough ? words : words.left(enough - 1) + QChar(0x2026);
}

}  // namespace

VectorPage::VectorPage(_ptr_t<SysCarto::PageLayout> layout, int dpi, QRectF const& areaCm)
    : layout_(std::move(layout)), dpi_(dpi), areaCm_(areaCm) {
  auto const page = layout_->GetPage()->GetPageEnvelope();
  if (areaCm.isEmpty()) {
    areaCm_ = QRectF(0, 0, page->GetWidth(), page->GetHeight());
    layout_->QueryOutputSize(dpi, size_.rwidth(), size_.rheight());
  } else {
    size_ = (areaCm.size() / SysDisplay::cmPerInch * dpi).toSize().expandedTo({1, 1});
  }
  transformation_ = layout_->GetDisplayTransformation()->Clone();
  transformation_->SetPaintDevice(nullptr);
  transformation_->SetPageScale(dpi / SysDisplay::pixelsPerInch);
  transformation_->SetDeviceFrame(QRect(QPoint(0, 0), size_));
  transformation_->SetVisibleBounds(envelopeOf(areaCm_, page->GetHeight()));
}

QSizeF VectorPage::sizePt() const { return areaCm_.size() / SysDisplay::cmPerInch * pointsPerInch; }

void VectorPage::draw(SysDisplay::VectorCanvas& canvas, _ptr_t<SysUI::TrackerCancel> const& cancel) const {
  SysDisplay::VectorDevice device(canvas);
  QPainter painter(&device);
  auto const page = layout_->GetPage()->GetPageEnvelope();
  QRectF const ground = areaCm_ | QRectF(0, 0, page->GetWidth(), page->GetHeight());
  if (auto const background = layout_->GetPage()->GetBackground())
    background->Draw(painter, transformation_, envelopeOf(ground, page->GetHeight()));
  layout_->GetPage()->DrawBorder(painter, transformation_);
  for (_ptr_t<Element> const& element : layout_->GetGraphicsContainer()->GetElements()) {
    if (cancel && cancel->IsCanced()) return;
    if (!element->IsVisible()) continue;
    if (auto const text = ptr_cast<SysCarto::TextElement>(element))
      canvas.beginText(beginningOf(*text));
    else
      canvas.beginFigure(descriptionOf(*element));
    drawElement(painter, element, cancel);
    canvas.endPart();
  }
}

void VectorPage::drawElement(QPainter& painter, _ptr_t<Element> const& element,
                             _ptr_t<SysUI::TrackerCancel> const& cancel) const {
  auto const frame = ptr_cast<MapFrameElement>(element);
  if (!frame) return element->Draw(painter, transformation_, cancel);
  frame->DrawShadow(painter, transformation_);
  frame->DrawBackground(painter, transformation_);
  SysCarto::drawMapShapes(painter, *frame, *transformation_, SysCarto::placeLabels(*frame, dpi_, cancel), cancel);
  frame->DrawBorder(painter, transformation_);
  for (int i = 0; i < frame->GetMapGridCount(); ++i)
    frame->GetMapGrid(i)->Draw(painter, cancel, transformation_, frame);
}

std::vector<GeoreferencedFrame> VectorPage::frames() const {
  std::vector<GeoreferencedFrame> frames;
  for (_ptr_t<Element> const& element : layout_->GetGraphicsContainer()->GetElements()) {
    auto const frame = ptr_cast<MapFrameElement>(element);
    if (!frame || !frame->IsVisible()) continue;
    auto const map = frame->GetMap();
    auto const system = SysCarto::makeCoordinateSystem(map->GetCoordinateSystem());
    auto const globe = system ? SysCarto::globeOf(*system) : nullptr;
    auto const [pixels, transformation] = SysCarto::mapPixels(*frame, *transformation_);
    QString error;
    auto const toGlobe = globe ? SysCarto::PointTransform::create(*system, *globe, error) : nullptr;
    auto const back = globe ? SysCarto::PointTransform::create(*globe, *system, error) : nullptr;
    if (!toGlobe || !back || pixels.isEmpty()) continue;
    GeoreferencedFrame found{map->GetName(), {}, {}, {}, textOf(*system), epsgOf(*system), bool(system->IsProjected())};
    QTransform const toMap = transformation->ToDevice().inverted();
    double const unitsPerPx = QLineF(toMap.map(QPointF(0, 0)), toMap.map(QPointF(1, 0))).length();
    // Beyond the edge of a world some projections answer places from which there is no way back.
    auto const placeOf = [&](QPointF const& pixel) -> std::optional<QPointF> {
      QPointF const onMap = toMap.map(pixel);
      double x = onMap.x(), y = onMap.y();
      if (!toGlobe->apply(x, y)) return std::nullopt;
      QPointF const place(x, y);
      bool const isOnGlobe = back->apply(x, y) && QLineF({x, y}, onMap).length() < unitsPerPx;
      return isOnGlobe ? std::optional(place) : std::nullopt;
    };
    QRectF const whole(QPointF(0, 0), pixels.size());
    found.frame = whole.translated(pixels.topLeft());
    for (double part = 1; part >= leastPart && found.corners.size() < 4; part -= partStep) {
      QRectF const inner(whole.center() - whole.bottomRight() * part / 2, whole.size() * part);
      found.corners.clear();
      found.places.clear();
      for (QPointF const& corner : {inner.bottomLeft(), inner.topLeft(), inner.topRight(), inner.bottomRight()}) {
        auto const place = placeOf(corner);
        if (!place) break;
        found.corners << corner + pixels.topLeft();
        found.places << *place;
      }
    }
    if (found.corners.size() == 4) frames.push_back(found);
  }
  return frames;
}
