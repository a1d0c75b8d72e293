#include "PageComposition.h"

#include "host/desktop/styling/MapColors.h"
#include "host/desktop/styling/Theme.h"

#include <SysDisplay/Units.h>

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PageComposition)
};

constexpr double a4WidthCm = 21;
constexpr double titlePt = 28;
constexpr char const* titleFamily = "EB Garamond";
constexpr char const* textFamily = "Lato";

QJsonArray sides(QRectF const& rectangle) {
  return {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
}

QJsonObject frameLine(double width) {
  QJsonObject line = lineSymbol(MapColors::ink, width);
  line.insert("cap", "square");
  line.insert("join", "miter");
  return line;
}

QJsonObject surround(char const* name, QRectF const& place, QJsonObject const& content) {
  return {{"type", "surround"}, {"name", QLatin1String(name)}, {"rectangle", sides(place)}, {"surround", content}};
}

double widthInEms(QString const& text) {
  QFont font(QString::fromLatin1(titleFamily));
  font.setPixelSize(100);
  return QFontMetricsF(font).horizontalAdvance(text) / 100;
}

}  // namespace

PageComposition::PageComposition(QSizeF const& pageCm)
    : page_(pageCm),
      unit_(std::sqrt(std::min(pageCm.width(), pageCm.height()) / a4WidthCm)),
      margin_(std::min(1.3 * unit_, std::min(pageCm.width(), pageCm.height()) / 10)) {}

QRectF PageComposition::frame(bool hasGraticule) const {
  double const around = hasGraticule ? 0.55 * unit_ : 0, head = 1.6 * unit_, gap = 0.35 * unit_;
  return {QPointF(left() + around, margin_ + footHeight() + gap + around),
          QPointF(right() - around, page_.height() - margin_ - head - around)};
}

QRectF PageComposition::corner(QRectF const& frame, QSizeF const& legend, int which) const {
  double const gap = 0.45 * unit_;
  double const x = which == 0 || which == 3 ? frame.left() + gap : frame.right() - gap - legend.width();
  double const y = which < 2 ? frame.top() + gap : frame.bottom() - gap - legend.height();
  return {QPointF(x, y), legend};
}

QSizeF PageComposition::roomForLegend(bool isGlobe) const {
  if (!isLegendBelow(isGlobe)) return {0.28 * page_.width(), frame(false).height()};
  return {right() - left(), (isGlobe ? 0.12 : 0.22) * page_.height()};
}

QRectF PageComposition::beside(QRectF& frame, QSizeF const& legend, bool isGlobe, bool hasGraticule) const {
  double const gap = (hasGraticule ? 1.1 : 0.6) * unit_;
  if (!isLegendBelow(isGlobe)) {
    frame.setRight(right() - legend.width() - gap);
    return {QPointF(right() - legend.width(), frame.top()), QPointF(right(), frame.bottom())};
  }
  double const lower = margin_ + footHeight() + 0.35 * unit_;
  frame.setTop(lower + legend.height() + gap);
  return {QPointF(left(), lower), QPointF(right(), lower + legend.height())};
}

QJsonObject PageComposition::dataFrame(QRectF const& frame, bool isGlobe, char const* background,
                                       bool hasGraticule) const {
  QJsonObject element{{"type", "dataFrame"}, {"name", Texts::tr("Map")}, {"map", 0}, {"rectangle", sides(frame)}};
  if (!isGlobe) {
    element.insert("border", QJsonObject{{"symbol", frameLine(0.7 * unit_)}});
    element.insert("background", QJsonObject{{"symbol", fillSymbol(background, "", 0)}});
  }
  if (!hasGraticule) return element;
  QJsonObject line = lineSymbol(MapColors::graticule, 0.3 * unit_);
  line.insert("cap", "butt");
  element.insert("grids",
                 QJsonArray{QJsonObject{{"name", Texts::tr("Graticule")},
                                        {"lineSymbol", line},
                                        {"labelSymbol", textSymbol(textFamily, 6 * unit_, MapColors::softInk)}}});
  return element;
}

// Large, but no wider than the map.
QJsonObject PageComposition::title(QString const& text) const {
  double const availablePt = (right() - left()) / SysDisplay::cmPerInch * 72;
  double const size = std::clamp(availablePt / std::max(widthInEms(text), 1.0), 6.0, titlePt * unit_);
  return {{"type", "text"},
          {"name", Texts::tr("Title")},
          {"text", text},
          {"placeholders", false},
          {"position", QJsonArray{left(), page_.height() - margin_ - 0.85 * unit_}},
          {"symbol", textSymbol(titleFamily, size, MapColors::ink)}};
}

QJsonObject PageComposition::legend(QRectF const& place, QJsonArray const& entries, bool isOverMap) const {
  QJsonObject heading = textSymbol(textFamily, 8 * unit_, MapColors::ink), title = heading;
  heading.insert("bold", true);
  title.insert("family", titleFamily);
  title.insert("italic", true);
  title.insert("size", 11 * unit_);
  QJsonObject content{{"kind", "legend"},
                      {"map", 0},
                      {"title", Texts::tr("Legend")},
                      {"titleSymbol", title},
                      {"headingSymbol", heading},
                      {"labelSymbol", textSymbol(textFamily, 7.5 * unit_, MapColors::ink)},
                      {"patchWidth", 18 * unit_},
                      {"patchHeight", 9 * unit_},
                      {"entries", entries},
                      {"others", "omit"}};
  QJsonObject element = surround("Legend", place, content);
  if (!isOverMap) return element;
  double const gap = 5 * unit_;
  element.insert("background", QJsonObject{{"symbol", fillSymbol("#e6ffffff", "", 0)}, {"gap", gap}});
  element.insert("border", QJsonObject{{"symbol", frameLine(0.4 * unit_)}, {"gap", gap}});
  return element;
}

QJsonArray PageComposition::scale(bool isGlobe) const {
  double const width = 7.5 * unit_;
  QJsonObject const numbers = textSymbol(textFamily, 7 * unit_, MapColors::ink);
  return {surround("Scale", {QPointF(left(), margin_ + 0.95 * unit_), QSizeF(width, 0.5 * unit_)},
                   {{"kind", "scaleText"},
                    {"map", 0},
                    {"pattern", isGlobe ? Texts::tr("1:%1 at the centre of the map") : QStringLiteral("1:%1")},
                    {"symbol", textSymbol(textFamily, 8.5 * unit_, MapColors::ink)}}),
          surround("Scale bar", {QPointF(left(), margin_), QSizeF(width, 0.85 * unit_)},
                   {{"kind", "scaleLine"},
                    {"map", 0},
                    {"height", 3.5 * unit_},
                    {"color", MapColors::ink},
                    {"symbol", numbers}})};
}

QJsonObject PageComposition::northArrow() const {
  QSizeF const size(0.9 * unit_, 1.5 * unit_);
  QString const svg = QStringLiteral(
      "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 40'><path d='M8.2 9V0h1.7l4.2 6.2V0h1.7v9h-1.7L9.9 "
      "2.8V9Z' fill='#3b3a44'/><path d='M12 12 21 39 12 33 3 39Z' fill='#fff' stroke='#3b3a44' "
      "stroke-width='.9'/><path d='M12 12 21 39 12 33Z' fill='#3b3a44'/></svg>");
  return surround("North arrow", {QPointF(right() - size.width(), margin_), size},
                  {{"kind", "northArrow"},
                   {"map", 0},
                   {"trueNorth", true},
                   {"symbol", QJsonObject{{"type", "svgMarker"}, {"size", 40}, {"svg", svg}}}});
}

QJsonObject PageComposition::credits(bool hasArrow) const {
  double const end = right() - (hasArrow ? 1.4 * unit_ : 0);
  QJsonObject symbol = textSymbol(textFamily, 6.5 * unit_, MapColors::softInk);
  symbol.insert("horizontal", "right");
  symbol.insert("vertical", "bottom");
  return {{"type", "text"},
          {"name", Texts::tr("Credits")},
          {"text", Texts::tr("Map data: [credits]") + QStringLiteral("\n[crs]")},
          {"position", QJsonArray{end, margin_}},
          {"width", std::max(1.0, end - left() - 8 * unit_)},
          {"symbol", symbol}};
}
