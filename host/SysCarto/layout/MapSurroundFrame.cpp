#include <SysCarto/MapSurroundFrame.h>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

struct MapSurroundFrame::Private {
  _ptr_t<MapSurround> surround;

  Private() = default;
  Private(Private const& other) : surround(other.surround ? other.surround->Clone() : nullptr) {}
};

MapSurroundFrame::MapSurroundFrame() : d(std::make_unique<Private>()) {}
MapSurroundFrame::MapSurroundFrame(MapSurroundFrame const& other)
    : FrameElementBase(other), d(std::make_unique<Private>(*other.d)) {}
MapSurroundFrame::~MapSurroundFrame() = default;

_ptr_t<MapSurround> MapSurroundFrame::GetMapSurround() const { return d->surround; }

void MapSurroundFrame::SetMapSurround(_ptr_t<MapSurround> const& surround) {
  d->surround = surround;
  rectangleChanged();
}

int MapSurroundFrame::GetType() const { return 12; }

void MapSurroundFrame::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<TrackerCancel> const& cancel) {
  DrawShadow(painter, transformation);
  DrawBackground(painter, transformation);
  DrawBorder(painter, transformation);
  if (!d->surround) return;
  for (_ptr_t<Element> const& element : d->surround->GetElements()) element->Draw(painter, transformation, cancel);
}

_ptr_t<Element> MapSurroundFrame::Clone() const { return SysUtility::make<MapSurroundFrame>(*this); }

void MapSurroundFrame::rectangleChanged() {
  if (d->surround) d->surround->setRectangle(*GetEnvelope());
}

}  // namespace SysCarto
