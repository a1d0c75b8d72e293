#include "BarLength.h"
#include "Pieces.h"
#include "SurroundSettings.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double outlinePt = 0.5;
constexpr double gapPt = 2.5;          // between the numbers and the bar
constexpr double minBetweenPt = 4;     // two numbers
constexpr double minTextFactor = 0.5;  // numbers get no smaller to make room for a bar of a fixed length

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

// Lays a bar out in a rectangle: numbers beside it, the whole in the middle, and less high where it would not fit.
class BarLayout {
public:
  BarLayout(SysGeometry::Envelope const& area, _ptr_t<TextSymbol> const& text, ScaleLineSettings const& settings)
      : area_(area), settings_(settings), text_(text), barCm_(settings.heightPt * SysDisplay::cmPerPoint) {
    double const fits = area.GetHeight() / height();
    if (fits >= 1) return;
    text_ = text->resized(fits);
    barCm_ *= fits;
    gapCm_ *= fits;
  }

  std::optional<Bar> fit(double metresPerCm) {
    // How far the numbers reach beyond the ends depends on the bar, which depends on the room that they leave.
    std::optional<Bar> bar = maxBar(area_.GetWidth(), metresPerCm, settings_);
    for (int i = 0; bar && i < maxTries && bar->lengthCm + overhang(*bar) > area_.GetWidth(); ++i)
      bar = maxBar(std::min(area_.GetWidth() - overhang(*bar), bar->lengthCm * (1 - 1e-9)), metresPerCm, settings_);
    if (bar && bar->lengthCm + overhang(*bar) <= area_.GetWidth()) return bar;
    if (settings_.divisionLength == 0) return std::nullopt;
    bar = shortestBar(metresPerCm, settings_);
    return bar->lengthCm >= minBarCm && makeRoom(*bar) ? bar : std::nullopt;
  }

  /// What the bar takes at least.
  double minWidth(Bar const& bar) const { return bar.lengthCm + minTextFactor * overhang(bar); }

  QList<_ptr_t<Element>> elements(Bar const& bar) {
    left_ = area_.GetXMin() + (area_.GetWidth() - bar.lengthCm - overhang(bar)) / 2 + widthOf(firstNumber(bar)) / 2;
    bottom_ = area_.GetYMin() + (area_.GetHeight() - height()) / 2;
    if (settings_.numbers == BarNumbers::Below) bottom_ += height() - barCm_;
    stepCm_ = bar.lengthCm / bar.divisions;
    pieces_.clear();
    if (settings_.style == BarStyle::Ticks)
      addTicks(bar);
    else
      addBoxes(bar, settings_.style == BarStyle::Double ? 2 : 1);
    addNumbers(bar);
    return pieces_;
  }

private:
  static constexpr int maxTries = maxChosenDivisions + 1;

  bool isDivided() const { return settings_.subdivisions > 0; }
  int divisionOfZero() const { return isDivided() ? 1 : 0; }
  double textHeight() const { return text_->bounds(QStringLiteral("0")).height() * SysDisplay::cmPerPoint; }
  double height() const { return barCm_ + gapCm_ + textHeight(); }
  QString numberAt(Bar const& bar, int steps) const { return grouped(bar.step * steps); }
  QString firstNumber(Bar const& bar) const { return numberAt(bar, divisionOfZero()); }
  QString lastNumber(Bar const& bar) const { return numberAt(bar, bar.divisions - divisionOfZero()); }
  QString unitText(Bar const& bar) const {
    return QLatin1Char(' ') + (settings_.unitText.isEmpty() ? QLatin1String(bar.unit->sign) : settings_.unitText);
  }
  double widthOf(QString const& text) const { return text_->bounds(text).width() * SysDisplay::cmPerPoint; }

  // What the first and the last number and the unit need beside the bar.
  double overhang(Bar const& bar) const {
    QString const last = lastNumber(bar);
    return widthOf(firstNumber(bar)) / 2 + widthOf(last + unitText(bar)) - widthOf(last) / 2;
  }

  // The bar is as long as was asked for; its numbers may be smaller.
  bool makeRoom(Bar const& bar) {
    double const room = area_.GetWidth() - bar.lengthCm, needed = overhang(bar);
    if (needed <= room) return true;
    if (room < minTextFactor * needed) return false;
    text_ = text_->resized(room / needed);
    return true;
  }

  // The places that part the boxes, in divisions; the first division may be divided.
  QVector<double> places(Bar const& bar) const {
    QVector<double> places;
    for (int i = 0; i < settings_.subdivisions; ++i) places << double(i) / settings_.subdivisions;
    for (int i = divisionOfZero(); i <= bar.divisions; ++i) places << i;
    return places;
  }

  void addTicks(Bar const& bar) {
    auto const line = make<SimpleLineSymbol>();
    line->SetColor(settings_.color);
    line->SetWidth(2 * outlinePt);
    line->SetCapStyle(SysDisplay::LineCapStyle::Square);
    line->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
    bool const pointsUp = settings_.numbers == BarNumbers::Above;
    double const right = left_ + bar.lengthCm, base = pointsUp ? bottom_ : bottom_ + barCm_;
    double const top = pointsUp ? bottom_ + barCm_ : bottom_;
    pieces_ << linePiece({{left_, top}, {left_, base}, {right, base}, {right, top}}, line);
    for (double const place : places(bar)) {
      if (place == 0 || place == bar.divisions) continue;
      bool const isWhole = place >= divisionOfZero();
      double const x = left_ + place * stepCm_;
      pieces_ << linePiece({{x, base}, {x, isWhole ? top : (base + top) / 2}}, line);
    }
  }

  // Colours take turns from the 0 on, to both sides.
  void addBoxes(Bar const& bar, int rows) {
    auto const outline = make<SimpleLineSymbol>();
    outline->SetColor(settings_.color);
    outline->SetWidth(outlinePt);
    outline->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
    _ptr_t<SimpleFillSymbol> fills[2];
    for (int i = 0; i < 2; ++i) {
      fills[i] = make<SimpleFillSymbol>();
      fills[i]->SetColor(i == 0 ? settings_.color : settings_.secondColor);
      fills[i]->SetOutlineSymbol(outline);
    }
    double const rowCm = barCm_ / rows;
    QVector<double> const ends = places(bar);
    for (int row = 0; row < rows; ++row)
      for (int i = 0; i + 1 < ends.size(); ++i)
        pieces_ << rectanglePiece(left_ + ends[i] * stepCm_, bottom_ + row * rowCm, left_ + ends[i + 1] * stepCm_,
                                  bottom_ + (row + 1) * rowCm,
                                  fills[(i + settings_.subdivisions + row + rows - 1) % 2]);
  }

  // The 0 and the last place always have their numbers; between them, every one, every second or none, as there is
  // room. The first division has one at its left end where there is room.
  void addNumbers(Bar const& bar) {
    int const zero = divisionOfZero(), count = bar.divisions - zero;
    double const gap = minBetweenPt * SysDisplay::cmPerPoint;
    double widest = 0;
    for (int i = 0; i <= count; ++i) widest = std::max(widest, widthOf(numberAt(bar, i)));
    int every = 1;
    while (every < count && (count % every != 0 || every * stepCm_ < widest + gap)) ++every;
    if (isDivided() && stepCm_ >= (widthOf(numberAt(bar, 1)) + widthOf(numberAt(bar, 0))) / 2 + gap)
      addNumber(numberAt(bar, 1), QString(), 0);
    for (int i = 0; i <= count; i += every)
      addNumber(numberAt(bar, i), i == count ? unitText(bar) : QString(), zero + i);
  }

  void addNumber(QString const& number, QString const& unit, int division) {
    double const below = gapCm_ - text_->bounds(QStringLiteral("0")).top() * SysDisplay::cmPerPoint;
    double const y = settings_.numbers == BarNumbers::Above ? bottom_ + barCm_ + gapCm_ : bottom_ - below;
    pieces_ << textPiece(number + unit, text_, QPointF(left_ + division * stepCm_ - widthOf(number) / 2, y));
  }

  SysGeometry::Envelope const area_;
  ScaleLineSettings const& settings_;
  _ptr_t<TextSymbol> text_;
  double barCm_, gapCm_ = gapPt * SysDisplay::cmPerPoint;
  double left_ = 0, bottom_ = 0, stepCm_ = 0;
  QList<_ptr_t<Element>> pieces_;
};

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapSurround)
};

double metresPerCm(Map const& map) { return map.scale() / 100; }
QString inHundredths(double hundredths) { return grouped(hundredths / 100); }

}  // namespace

ScaleLine::ScaleLine() : MapSurround(SurroundKind::ScaleLine), d(std::make_unique<Private>()) {}
ScaleLine::ScaleLine(ScaleLine const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
ScaleLine::~ScaleLine() = default;

QList<_ptr_t<Element>> ScaleLine::GetElements() {
  if (!hasPlace()) return {};
  BarLayout layout(rectangle(), d->textSymbol(), d->settings);
  auto const bar = layout.fit(metresPerCm(*GetMap()));
  return bar ? layout.elements(*bar) : QList<_ptr_t<Element>>();
}

// A round length that does not fit the frame needs no words: there is one for a wider frame.
QString ScaleLine::problem() const {
  ScaleLineSettings const& settings = d->settings;
  double const ground = hasPlace() ? metresPerCm(*GetMap()) : 0;
  if (settings.divisionLength == 0 || !(ground > 0) || !std::isfinite(ground)) return QString();
  BarLayout layout(rectangle(), d->textSymbol(), settings);
  if (layout.fit(ground)) return QString();
  Bar const bar = shortestBar(ground, settings);
  QString const asked = QStringLiteral("%1 × %2 %3")
                            .arg(QString::number(bar.divisions), grouped(bar.step), QLatin1String(bar.unit->sign));
  if (bar.lengthCm < minBarCm)
    return Texts::tr("%1 is too short to be seen at this scale; enter longer divisions, or 0 to choose their length")
        .arg(asked);
  return Texts::tr(
             "%1 needs %2 cm at this scale, and the frame is %3 cm wide; enter fewer or shorter divisions, or 0 to "
             "choose them, or widen the frame")
      .arg(asked, inHundredths(std::ceil(layout.minWidth(bar) * 100)),
           inHundredths(std::floor(rectangle().GetWidth() * 100)));
}

_ptr_t<MapSurround> ScaleLine::Clone() const { return make<ScaleLine>(*this); }
QString ScaleLine::title() const { return Texts::tr("Scale bar"); }

ScaleLineSettings ScaleLineSettings::of(ScaleLine const& line) { return line.d->settings; }
void ScaleLineSettings::applyTo(ScaleLine& line) const { line.d->settings = *this; }

}  // namespace SysCarto
