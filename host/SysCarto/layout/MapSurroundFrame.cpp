#include "MapSurroundHost.h"

#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysDisplay/TextWrap.h"

#include <SysCarto/MapSurroundFrame.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>
#include <SysDisplay/Units.h>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

QColor quietColor() { return QColor(150, 150, 155); }

constexpr double textMarginPt = 4, smaller = 0.85;
constexpr int maxTries = 16;

// What stands in a view where a surround has nothing to show, so that it can be seen and selected. The sentence is
// broken into lines, and smaller where it would not fit.
QList<_ptr_t<Element>> placeholder(Envelope const& rectangle, QString const& sentence) {
  auto const outline = SysUtility::make<SysDisplay::SimpleLineSymbol>();
  outline->SetColor(quietColor());
  outline->SetStyle(SysDisplay::SimpleLineStyle::Dash);
  auto const fill = SysUtility::make<SysDisplay::SimpleFillSymbol>();
  fill->SetStyle(SysDisplay::SimpleFillStyle::Null);
  fill->SetOutlineSymbol(outline);
  auto const box = SysUtility::make<RectangleElement>();
  box->setShape(SysUtility::make<Envelope>(rectangle));
  box->setSymbol(fill);

  SysDisplay::TextFormat format;
  format.size = 8;
  format.color = quietColor();
  format.horizontal = SysDisplay::HorizontalAlignment::Center;
  format.vertical = SysDisplay::VerticalAlignment::Middle;
  auto symbol = SysUtility::make<SysDisplay::TextSymbol>(format);
  double const width = rectangle.GetWidth() / SysDisplay::cmPerPoint - 2 * textMarginPt;
  double const height = rectangle.GetHeight() / SysDisplay::cmPerPoint - 2 * textMarginPt;
  QString lines = sentence;
  QRectF covered = symbol->bounds(lines);
  for (int i = 0; i < maxTries && (covered.width() > width || covered.height() > height); ++i) {
    lines = SysDisplay::wrapped(sentence, *symbol, width);
    covered = symbol->bounds(lines);
    if (covered.height() > height || covered.width() > width) symbol = symbol->resized(smaller);
  }
  auto const text = SysUtility::make<TextElement>();
  text->setText(lines);
  text->setSymbol(symbol);
  auto const middle = rectangle.GetAnchorPoint();
  text->setPosition(middle->GetX(), middle->GetY());
  return {box, text};
}

}  // namespace

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
  changed();
}

int MapSurroundFrame::GetType() const { return ElementType::MapSurroundFrame; }

void MapSurroundFrame::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<TrackerCancel> const& cancel) {
  DrawShadow(painter, transformation);
  DrawBackground(painter, transformation);
  DrawBorder(painter, transformation);
  if (!d->surround) return;
  QList<_ptr_t<Element>> elements = d->surround->GetElements();
  if (elements.isEmpty()) {
    QString const problem = MapSurroundHost::problem(*d->surround);
    elements = placeholder(*GetEnvelope(), problem.isEmpty() ? d->surround->title() : problem);
  }
  for (_ptr_t<Element> const& element : qAsConst(elements)) element->Draw(painter, transformation, cancel);
}

_ptr_t<Element> MapSurroundFrame::Clone() const { return SysUtility::make<MapSurroundFrame>(*this); }

void MapSurroundFrame::rectangleChanged() {
  if (d->surround) MapSurroundHost::setRectangle(*d->surround, *GetEnvelope());
}

}  // namespace SysCarto
