#include "GroundUnits.h"
#include "Pieces.h"
#include "SurroundSettings.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int digits = 4;  // off by a twentieth of a per cent at most

double roundedTo(double value, int digits) {
  double const unit = std::pow(10.0, std::floor(std::log10(value)) + 1 - digits);
  return std::round(value / unit) * unit;
}

_ptr_t<TextSymbol> usualSymbol() {
  TextFormat format;
  format.size = 12;
  return make<TextSymbol>(format);
}

}  // namespace

struct ScaleText::Private {
  ScaleTextSettings settings;
};

ScaleText::ScaleText() : MapSurround(SurroundKind::ScaleText), d(std::make_unique<Private>()) {}
ScaleText::ScaleText(ScaleText const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
ScaleText::~ScaleText() = default;

// In the middle of the frame, and smaller where it would not fit.
QList<_ptr_t<Element>> ScaleText::GetElements() {
  double const scale = hasPlace() ? GetMap()->scale() : 0;
  if (!(scale > 0) || !std::isfinite(scale)) return {};
  QString text = d->settings.pattern;
  QVector<GroundPlace> const places = groundPlaces(text);
  for (auto place = places.rbegin(); place != places.rend(); ++place)
    if (place->factor > 0) text.replace(place->start, place->length, grouped(roundedTo(scale * place->factor, digits)));
  text.replace(QLatin1String("%1"), grouped(roundedTo(scale, digits)));
  TextFormat format = (d->settings.symbol ? d->settings.symbol : usualSymbol())->format();
  format.horizontal = SysDisplay::HorizontalAlignment::Center;
  format.vertical = SysDisplay::VerticalAlignment::Middle;
  auto symbol = make<TextSymbol>(format);
  QRectF const bounds = symbol->bounds(text);
  double const fits = std::min(rectangle().GetWidth() / (bounds.width() * SysDisplay::cmPerPoint),
                               rectangle().GetHeight() / (bounds.height() * SysDisplay::cmPerPoint));
  if (fits < 1) symbol = symbol->resized(fits);
  auto const middle = rectangle().GetAnchorPoint();
  return {textPiece(text, symbol, QPointF(middle->GetX(), middle->GetY()))};
}

_ptr_t<MapSurround> ScaleText::Clone() const { return make<ScaleText>(*this); }
QString ScaleText::title() const { return QCoreApplication::translate("MapSurround", "Scale text"); }

ScaleTextSettings ScaleTextSettings::of(ScaleText const& text) { return text.d->settings; }
void ScaleTextSettings::applyTo(ScaleText& text) const { text.d->settings = *this; }

}  // namespace SysCarto
