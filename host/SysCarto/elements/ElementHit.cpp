#include "ElementHit.h"

#include "GraphicElements.h"
#include "PictureElement.h"

#include <SysCarto/GroupElement.h>
#include <SysDisplay/SimpleFillSymbol.h>

#include <algorithm>
#include <optional>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::SimpleFillStyle;
using SysDisplay::SimpleFillSymbol;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

_ptr_t<Envelope> grown(Envelope const& place, double by) {
  return make<Envelope>(place.GetXMin() - by, place.GetYMin() - by, place.GetXMax() + by, place.GetYMax() + by);
}

bool isFilled(LineSymbol const&) { return false; }
bool isFilled(FillSymbol const& symbol) {
  auto const* const simple = dynamic_cast<SimpleFillSymbol const*>(&symbol);
  return symbol.GetColor().alpha() > 0 && (!simple || simple->GetStyle() != SimpleFillStyle::Null);
}

double widthOf(LineSymbol const& symbol) { return symbol.GetWidth(); }
double widthOf(FillSymbol const& symbol) {
  auto const outline = symbol.GetOutlineSymbol();
  return outline ? outline->GetWidth() : 0;
}

// Nothing where the element is none of that kind.
template <class Kind>
std::optional<bool> isDrawnAt(Element const& element, Envelope const& place,
                              DisplayTransformation const& transformation) {
  auto const* const kind = dynamic_cast<Kind const*>(&element);
  if (!kind || !kind->symbol()) return std::nullopt;
  auto const reached = grown(place, worldPerPoint(transformation) * widthOf(*kind->symbol()) / 2);
  if (!element.GetEnvelope()->Intersects(reached)) return false;  // most are elsewhere, and this costs little
  return kind->drawn()->Intersects(reached) && (isFilled(*kind->symbol()) || !kind->drawn()->Contains(reached));
}

// Anywhere in the rectangle as it is turned.
std::optional<bool> isPictureAt(Element const& element, Envelope const& place, DisplayTransformation const&) {
  auto const* const picture = dynamic_cast<PictureElement const*>(&element);
  if (!picture || picture->angle() == 0) return std::nullopt;
  return make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{picture->turnedRectangle()})->Intersects(grown(place, 0));
}

using Question = std::optional<bool> (*)(Element const&, Envelope const&, DisplayTransformation const&);
constexpr Question shapes[] = {isDrawnAt<LineElement>, isDrawnAt<PolygonElement>, isDrawnAt<RectangleElement>,
                               isDrawnAt<EllipseElement>, isPictureAt};

}  // namespace

bool isHit(Element const& element, Envelope const& place, _ptr_t<DisplayTransformation> const& transformation) {
  if (!element.IsVisible()) return false;
  if (auto const* const group = dynamic_cast<GroupElement const*>(&element)) {
    auto const members = group->GetElements();
    return std::any_of(members.begin(), members.end(),
                       [&](auto const& member) { return isHit(*member, place, transformation); });
  }
  for (Question const question : shapes)
    if (auto const answer = question(element, place, *transformation)) return *answer;
  // A marker has no rectangle but that of its symbol.
  auto const box = element.GetType() == ElementType::Marker ? element.GetBoundary(transformation)->GetEnvelope()
                                                            : element.GetEnvelope();
  return box->Intersects(grown(place, 0));
}

}  // namespace SysCarto
