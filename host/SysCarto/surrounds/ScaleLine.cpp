#include "Pieces.h"
#include "SurroundSettings.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>

namespace SysCarto {

using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

struct UnitRow {
  BarUnit unit;
  char const* sign;
  double metres;
};
// clang-format off
constexpr UnitRow units[] = {
    {BarUnit::Metres,        "m",   1},
    {BarUnit::Kilometres,    "km",  1000},
    {BarUnit::Feet,          "ft",  0.3048},
    {BarUnit::Miles,         "mi",  1609.344},
    {BarUnit::NauticalMiles, "nmi", 1852},
};

// A round length of the whole bar, and into how many round lengths it is divided.
struct RoundLength {
  double length;
  int divisions;
};
constexpr RoundLength roundLengths[] = {{1, 4}, {2, 4}, {3, 3}, {4, 4}, {5, 5}, {6, 3}, {8, 4}};
// clang-format on

constexpr double outlinePt = 0.5;
constexpr double gapPt = 2.5;       // between the numbers and the bar
constexpr double minBetweenPt = 4;  // two numbers
constexpr double minBarCm = 0.3;

UnitRow const& rowOf(BarUnit unit) {
  return *std::find_if(std::begin(units), std::end(units), [=](UnitRow const& row) { return row.unit == unit; });
}

// What is shown: `divisions` steps of `step` units.
struct Bar {
  UnitRow const* unit;
  double step;
  int divisions;
  double lengthCm;
};

// The longest bar of a round length that is not longer than that.
std::optional<Bar> maxBar(double maxCm, double metresPerCm, BarUnit asked) {
  if (!(maxCm > minBarCm) || !(metresPerCm > 0) || !std::isfinite(metresPerCm)) return std::nullopt;
  double const most = maxCm * metresPerCm / (asked == BarUnit::Automatic ? 1 : rowOf(asked).metres);
  double const power = std::pow(10.0, std::floor(std::log10(most)));
  RoundLength const* best = roundLengths;
  for (RoundLength const& one : roundLengths)
    if (one.length * power <= most * (1 + 1e-12)) best = &one;
  double const step = best->length * power / best->divisions;
  // Kilometres as soon as each division is one at least.
  UnitRow const& unit = rowOf(asked != BarUnit::Automatic ? asked
                              : step < 1000               ? BarUnit::Metres
                                                          : BarUnit::Kilometres);
  double const inUnit = asked == BarUnit::Automatic ? step / unit.metres : step;
  return Bar{&unit, inUnit, best->divisions, inUnit * best->divisions * unit.metres / metresPerCm};
}

_ptr_t<TextSymbol> usualSymbol() {
  TextFormat format;
  format.size = 8;
  return make<TextSymbol>(format);
}

}  // namespace

struct ScaleLine::Private {
  ScaleLineSettings settings;

  _ptr_t<TextSymbol> textSymbol() const {
    TextFormat format = (settings.symbol ? settings.symbol : usualSymbol())->format();
    format.horizontal = SysDisplay::HorizontalAlignment::Left;
    format.vertical = SysDisplay::VerticalAlignment::Baseline;
    return make<TextSymbol>(format);
  }
};

namespace {

// Lays a bar out in a rectangle: numbers above it, the whole in the middle, and less high where it would not fit.
class BarLayout {
public:
  BarLayout(SysGeometry::Envelope const& area, _ptr_t<TextSymbol> const& text, double heightPt)
      : area_(area), text_(text), barCm_(heightPt * SysDisplay::cmPerPoint) {
    double const fits = area.GetHeight() / height();
    if (fits >= 1) return;
    text_ = text->resized(fits);
    barCm_ *= fits;
    gapCm_ *= fits;
  }

  std::optional<Bar> fit(double metresPerCm, BarUnit unit) const {
    // How far the numbers reach beyond the ends depends on the bar, which depends on the room that they leave.
    std::optional<Bar> bar = maxBar(area_.GetWidth(), metresPerCm, unit);
    for (int i = 0; bar && i < 8 && bar->lengthCm + overhang(*bar) > area_.GetWidth(); ++i)
      bar = maxBar(std::min(area_.GetWidth() - overhang(*bar), bar->lengthCm * (1 - 1e-9)), metresPerCm, unit);
    return bar && bar->lengthCm + overhang(*bar) <= area_.GetWidth() ? bar : std::nullopt;
  }

  QList<_ptr_t<Element>> elements(Bar const& bar, BarStyle style, QColor const& color, QColor const& second) {
    left_ = area_.GetXMin() + (area_.GetWidth() - bar.lengthCm - overhang(bar)) / 2 + widthOf(numberAt(bar, 0)) / 2;
    bottom_ = area_.GetYMin() + (area_.GetHeight() - height()) / 2;
    stepCm_ = bar.lengthCm / bar.divisions;
    pieces_.clear();
    if (style == BarStyle::Ticks)
      addTicks(bar, color);
    else
      addBoxes(bar, style == BarStyle::Double ? 2 : 1, color, second);
    addNumbers(bar);
    return pieces_;
  }

private:
  double height() const {
    return barCm_ + gapCm_ + text_->bounds(QStringLiteral("0")).height() * SysDisplay::cmPerPoint;
  }
  QString numberAt(Bar const& bar, int division) const { return grouped(bar.step * division); }
  QString unitText(Bar const& bar) const { return QStringLiteral(" ") + QLatin1String(bar.unit->sign); }
  double widthOf(QString const& text) const { return text_->bounds(text).width() * SysDisplay::cmPerPoint; }

  // What the first and the last number and the unit need beside the bar.
  double overhang(Bar const& bar) const {
    QString const last = numberAt(bar, bar.divisions);
    return widthOf(numberAt(bar, 0)) / 2 + widthOf(last + unitText(bar)) - widthOf(last) / 2;
  }

  void addTicks(Bar const& bar, QColor const& color) {
    auto const line = make<SimpleLineSymbol>();
    line->SetColor(color);
    line->SetWidth(2 * outlinePt);
    line->SetCapStyle(SysDisplay::LineCapStyle::Square);
    line->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
    double const right = left_ + bar.lengthCm;
    pieces_ << linePiece({{left_, bottom_ + barCm_}, {left_, bottom_}, {right, bottom_}, {right, bottom_ + barCm_}},
                         line);
    for (int i = 1; i < bar.divisions; ++i)
      pieces_ << linePiece({{left_ + i * stepCm_, bottom_}, {left_ + i * stepCm_, bottom_ + barCm_}}, line);
  }

  void addBoxes(Bar const& bar, int rows, QColor const& color, QColor const& second) {
    auto const outline = make<SimpleLineSymbol>();
    outline->SetColor(color);
    outline->SetWidth(outlinePt);
    outline->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
    _ptr_t<SimpleFillSymbol> fills[2];
    for (int i = 0; i < 2; ++i) {
      fills[i] = make<SimpleFillSymbol>();
      fills[i]->SetColor(i == 0 ? color : second);
      fills[i]->SetOutlineSymbol(outline);
    }
    double const rowCm = barCm_ / rows;
    for (int row = 0; row < rows; ++row)
      for (int i = 0; i < bar.divisions; ++i)
        pieces_ << rectanglePiece(left_ + i * stepCm_, bottom_ + row * rowCm, left_ + (i + 1) * stepCm_,
                                  bottom_ + (row + 1) * rowCm, fills[(i + row + rows - 1) % 2]);
  }

  // The ends always have their numbers; between them, every one, every second or none, as there is room.
  void addNumbers(Bar const& bar) {
    double widest = 0;
    for (int i = 0; i <= bar.divisions; ++i) widest = std::max(widest, widthOf(numberAt(bar, i)));
    int every = 1;
    while (every < bar.divisions &&
           (bar.divisions % every != 0 || every * stepCm_ < widest + minBetweenPt * SysDisplay::cmPerPoint))
      ++every;
    for (int i = 0; i <= bar.divisions; i += every) {
      QString const number = numberAt(bar, i);
      QPointF const position(left_ + i * stepCm_ - widthOf(number) / 2, bottom_ + barCm_ + gapCm_);
      pieces_ << textPiece(i == bar.divisions ? number + unitText(bar) : number, text_, position);
    }
  }

  SysGeometry::Envelope const area_;
  _ptr_t<TextSymbol> text_;
  double barCm_, gapCm_ = gapPt * SysDisplay::cmPerPoint;
  double left_ = 0, bottom_ = 0, stepCm_ = 0;
  QList<_ptr_t<Element>> pieces_;
};

}  // namespace

ScaleLine::ScaleLine() : MapSurround(SurroundKind::ScaleLine), d(std::make_unique<Private>()) {}
ScaleLine::ScaleLine(ScaleLine const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
ScaleLine::~ScaleLine() = default;

QList<_ptr_t<Element>> ScaleLine::GetElements() {
  if (!hasPlace()) return {};
  double const metresPerCm = GetMap()->scale() / 100;
  BarLayout layout(rectangle(), d->textSymbol(), d->settings.heightPt);
  auto const bar = layout.fit(metresPerCm, d->settings.unit);
  if (!bar) return {};
  return layout.elements(*bar, d->settings.style, d->settings.color, d->settings.secondColor);
}

_ptr_t<MapSurround> ScaleLine::Clone() const { return make<ScaleLine>(*this); }
QString ScaleLine::title() const { return QCoreApplication::translate("MapSurround", "Scale bar"); }

ScaleLineSettings ScaleLineSettings::of(ScaleLine const& line) { return line.d->settings; }
void ScaleLineSettings::applyTo(ScaleLine& line) const { line.d->settings = *this; }

}  // namespace SysCarto
