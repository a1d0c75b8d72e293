#include "SymbolSettings.h"

#include "SymbolFields.h"

namespace SysDisplay {

using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::Unit;

namespace {

constexpr double maxPt = 1000;
constexpr double maxDegrees = 3600;
constexpr SysUtility::Range lengths{0, maxPt, Unit::Point};
constexpr SysUtility::Range anyLengths{-maxPt, maxPt, Unit::Point};
constexpr SysUtility::Range steps{0.5, maxPt, Unit::Point};
constexpr SysUtility::Range angles{-maxDegrees, maxDegrees, Unit::Degree};

constexpr SysUtility::Counts layerCounts{1, 20};
constexpr int maxDepth = 3;  // of layers within layers
constexpr SysUtility::Counts stopCounts{2, 10};

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SymbolFields)
};

// clang-format off
constexpr Choice lineStyles[] = {
    {SimpleLineStyle::Null,       "null",       QT_TRANSLATE_NOOP("Fields", "None")},
    {SimpleLineStyle::Solid,      "solid",      QT_TRANSLATE_NOOP("Fields", "Solid")},
    {SimpleLineStyle::Dash,       "dash",       QT_TRANSLATE_NOOP("Fields", "Dashes")},
    {SimpleLineStyle::Dot,        "dot",        QT_TRANSLATE_NOOP("Fields", "Dots")},
    {SimpleLineStyle::DashDot,    "dashDot",    QT_TRANSLATE_NOOP("Fields", "Dash and dot")},
    {SimpleLineStyle::DashDotDot, "dashDotDot", QT_TRANSLATE_NOOP("Fields", "Dash and two dots")},
};
constexpr Choice caps[] = {
    {LineCapStyle::Butt,   "butt",   QT_TRANSLATE_NOOP("Fields", "Flat")},
    {LineCapStyle::Round,  "round",  QT_TRANSLATE_NOOP("Fields", "Round")},
    {LineCapStyle::Square, "square", QT_TRANSLATE_NOOP("Fields", "Square")},
};
constexpr Choice joins[] = {
    {LineJoinStyle::Miter, "miter", QT_TRANSLATE_NOOP("Fields", "Pointed")},
    {LineJoinStyle::Round, "round", QT_TRANSLATE_NOOP("Fields", "Round")},
    {LineJoinStyle::Bevel, "bevel", QT_TRANSLATE_NOOP("Fields", "Bevelled")},
};
constexpr Choice fillStyles[] = {
    {SimpleFillStyle::Solid,            "solid",            QT_TRANSLATE_NOOP("Fields", "Filled")},
    {SimpleFillStyle::Null,             "null",             QT_TRANSLATE_NOOP("Fields", "None")},
    {SimpleFillStyle::Horizontal,       "horizontal",       QT_TRANSLATE_NOOP("Fields", "Horizontal lines")},
    {SimpleFillStyle::Vertical,         "vertical",         QT_TRANSLATE_NOOP("Fields", "Vertical lines")},
    {SimpleFillStyle::ForwardDiagonal,  "forwardDiagonal",  QT_TRANSLATE_NOOP("Fields", "Forward diagonals")},
    {SimpleFillStyle::BackwardDiagonal, "backwardDiagonal", QT_TRANSLATE_NOOP("Fields", "Backward diagonals")},
    {SimpleFillStyle::Cross,            "cross",            QT_TRANSLATE_NOOP("Fields", "Horizontal and vertical lines")},
    {SimpleFillStyle::DiagonalCross,    "diagonalCross",    QT_TRANSLATE_NOOP("Fields", "Both diagonals")},
};
constexpr Choice gradientShapes[] = {
    {GradientShape::Linear, "linear", QT_TRANSLATE_NOOP("Fields", "Straight")},
    {GradientShape::Radial, "radial", QT_TRANSLATE_NOOP("Fields", "Round")},
};
constexpr Choice markerStyles[] = {
    {SimpleMarkerStyle::Circle,   "circle",   QT_TRANSLATE_NOOP("Fields", "Circle")},
    {SimpleMarkerStyle::Square,   "square",   QT_TRANSLATE_NOOP("Fields", "Square")},
    {SimpleMarkerStyle::Diamond,  "diamond",  QT_TRANSLATE_NOOP("Fields", "Diamond")},
    {SimpleMarkerStyle::Triangle, "triangle", QT_TRANSLATE_NOOP("Fields", "Triangle")},
    {SimpleMarkerStyle::Cross,    "cross",    QT_TRANSLATE_NOOP("Fields", "Cross")},
    {SimpleMarkerStyle::X,        "x",        QT_TRANSLATE_NOOP("Fields", "Diagonal cross")},
    {SimpleMarkerStyle::Star,     "star",     QT_TRANSLATE_NOOP("Fields", "Star")},
};
// clang-format on

// What a picture is until a person chooses one.
constexpr char const* plainPicture =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\"><circle cx=\"5\" cy=\"5\" r=\"4.5\"/></svg>";

void listOutline(Fields& fields, SysUtility::_ptr_t<LineSymbol>& outline) {
  listOptionalSymbol(fields,
                     {"outline", QT_TRANSLATE_NOOP("Fields", "Outline"),
                      QT_TRANSLATE_NOOP("Fields", "The line around the area; without one, none is drawn.")},
                     outline);
}

void listPicture(Fields& fields, char const* help, std::shared_ptr<SvgPicture>& picture) {
  QString svg = picture ? QString::fromUtf8(picture->svg()) : QString();
  if (fields.isReading()) svg = QLatin1String(plainPicture);
  fields.text({"svg", QT_TRANSLATE_NOOP("Fields", "Picture"), help}, svg, SysUtility::TextKind::Svg);
  if (!fields.isReading() || !fields.ok()) return;
  QString problem;
  picture = SvgPicture::of(svg.toUtf8(), problem);
  if (!picture) fields.fail("svg", problem);
}

}  // namespace

LineSettings LineSettings::of(LineSymbol const& symbol) {
  return {symbol.GetColor(),    symbol.GetWidth(),     symbol.GetOffset(),
          symbol.GetCapStyle(), symbol.GetJoinStyle(), symbol.GetMiterLimit()};
}

void LineSettings::list(Fields& fields) {
  LineSettings const usual;
  listColor(fields,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "The colour of the line.")},
            color, usual.color);
  fields.number({"width", QT_TRANSLATE_NOOP("Fields", "Width"),
                 QT_TRANSLATE_NOOP("Fields", "The width of the line; one of width 0 is not drawn.")},
                width, lengths, usual.width);
  fields.number({"offset", QT_TRANSLATE_NOOP("Fields", "Offset"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "How far the line is moved to the left of its direction; to the right "
                                   "where it is negative.")},
                offset, anyLengths, usual.offset);
  fields.choice<LineCapStyle>(
      {"cap", QT_TRANSLATE_NOOP("Fields", "Ends"), QT_TRANSLATE_NOOP("Fields", "How the line and its dashes end.")},
      cap, caps, usual.cap);
  fields.choice<LineJoinStyle>(
      {"join", QT_TRANSLATE_NOOP("Fields", "Corners"), QT_TRANSLATE_NOOP("Fields", "How the line turns at a vertex.")},
      join, joins, usual.join);
  fields.number({"miterLimit", QT_TRANSLATE_NOOP("Fields", "Limit of points"),
                 QT_TRANSLATE_NOOP("Fields", "How far a pointed corner may reach before it is bevelled.")},
                miterLimit, {0, 100, Unit::LineWidth}, usual.miterLimit);
}

void LineSettings::applyTo(LineSymbol& symbol) const {
  symbol.SetColor(color);
  symbol.SetWidth(width);
  symbol.SetOffset(offset);
  symbol.SetCapStyle(cap);
  symbol.SetJoinStyle(join);
  symbol.SetMiterLimit(miterLimit);
}

SimpleLineSettings SimpleLineSettings::of(SimpleLineSymbol const& symbol) {
  return {symbol.GetStyle(), LineSettings::of(symbol)};
}

void SimpleLineSettings::list(Fields& fields) {
  fields.choice<SimpleLineStyle>(
      {"style", QT_TRANSLATE_NOOP("Fields", "Style"),
       QT_TRANSLATE_NOOP("Fields", "Whether the line is solid, dashed or not drawn at all.")},
      style, lineStyles, SimpleLineStyle::Solid);
  line.list(fields);
}

void SimpleLineSettings::applyTo(SimpleLineSymbol& symbol) const {
  symbol.SetStyle(style);
  line.applyTo(symbol);
}

DashLineSettings DashLineSettings::of(DashLineSymbol const& symbol) {
  return {symbol.pattern(), symbol.start(), LineSettings::of(symbol)};
}

void DashLineSettings::list(Fields& fields) {
  fields.numberList(
      {"pattern", QT_TRANSLATE_NOOP("Fields", "Lengths of dashes"),
       QT_TRANSLATE_NOOP("Fields",
                         "The lengths of dashes and gaps in turn, without their ends; an odd count is run "
                         "through twice.")},
      pattern, {2, 20}, {DashLineSymbol::minLength, DashLineSymbol::maxLength, Unit::Point});
  fields.number({"start", QT_TRANSLATE_NOOP("Fields", "Start"),
                 QT_TRANSLATE_NOOP("Fields", "How far into the dashes and gaps the line begins.")},
                start, anyLengths, 0.0);
  line.list(fields);
}

void DashLineSettings::applyTo(DashLineSymbol& symbol) const {
  symbol.setPattern(pattern);
  symbol.setStart(start);
  line.applyTo(symbol);
}

MarkerLineSettings MarkerLineSettings::of(MarkerLineSymbol const& symbol) {
  return {symbol.marker(), symbol.interval(), symbol.first(), symbol.GetOffset(), symbol.isTurned()};
}

void MarkerLineSettings::list(Fields& fields) {
  MarkerLineSettings const usual;
  listSymbol(
      fields,
      {"marker", QT_TRANSLATE_NOOP("Fields", "Marker"), QT_TRANSLATE_NOOP("Fields", "The marker that is repeated.")},
      marker);
  fields.number({"interval", QT_TRANSLATE_NOOP("Fields", "Interval"),
                 QT_TRANSLATE_NOOP("Fields", "How far it is from one marker to the next, a pixel at least.")},
                interval, {MarkerLineSymbol::minInterval, MarkerLineSymbol::maxInterval, Unit::Point}, usual.interval);
  fields.number({"first", QT_TRANSLATE_NOOP("Fields", "First marker"),
                 QT_TRANSLATE_NOOP("Fields", "How far it is from the beginning of the line to its first marker.")},
                first, lengths, usual.first);
  fields.number({"offset", QT_TRANSLATE_NOOP("Fields", "Offset"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "How far the line is moved to the left of its direction; to the right "
                                   "where it is negative.")},
                offset, anyLengths, usual.offset);
  fields.flag({"turned", QT_TRANSLATE_NOOP("Fields", "Turned"),
               QT_TRANSLATE_NOOP("Fields", "Whether what is the right of a marker points along the line.")},
              turned, usual.turned);
}

void MarkerLineSettings::applyTo(MarkerLineSymbol& symbol) const {
  symbol.setMarker(marker);
  symbol.setInterval(interval);
  symbol.setFirst(first);
  symbol.SetOffset(offset);
  symbol.setTurned(turned);
}

SimpleFillSettings SimpleFillSettings::of(SimpleFillSymbol const& symbol) {
  return {symbol.GetStyle(), symbol.GetColor(), symbol.GetOutlineSymbol()};
}

void SimpleFillSettings::list(Fields& fields) {
  SimpleFillSettings const usual;
  fields.choice<SimpleFillStyle>(
      {"style", QT_TRANSLATE_NOOP("Fields", "Style"),
       QT_TRANSLATE_NOOP("Fields", "Whether the area is filled whole, hatched or not at all.")},
      style, fillStyles, usual.style);
  listColor(fields,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "The colour of the filling.")},
            color, usual.color);
  listOutline(fields, outline);
}

void SimpleFillSettings::applyTo(SimpleFillSymbol& symbol) const {
  symbol.SetStyle(style);
  symbol.SetColor(color);
  symbol.SetOutlineSymbol(outline);
}

PictureFillSettings PictureFillSettings::of(PictureFillSymbol const& symbol) {
  return {symbol.picture(), symbol.width(), symbol.angle(), symbol.GetOutlineSymbol()};
}

void PictureFillSettings::list(Fields& fields) {
  PictureFillSettings const usual;
  listPicture(fields,
              QT_TRANSLATE_NOOP("Fields",
                                "The picture as SVG, which refers to nothing outside itself; its view box is a tile."),
              picture);
  fields.number({"width", QT_TRANSLATE_NOOP("Fields", "Width"),
                 QT_TRANSLATE_NOOP("Fields", "The width of a tile; its height follows from the picture.")},
                width, steps, usual.width);
  fields.number({"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
                 QT_TRANSLATE_NOOP("Fields", "How far tiles and pictures are turned counterclockwise.")},
                angle, angles, usual.angle);
  listOutline(fields, outline);
}

void PictureFillSettings::applyTo(PictureFillSymbol& symbol) const {
  symbol.setPicture(picture);
  symbol.setWidth(width);
  symbol.setAngle(angle);
  symbol.SetOutlineSymbol(outline);
}

PointPatternFillSettings PointPatternFillSettings::of(PointPatternFillSymbol const& symbol) {
  return {symbol.marker(), symbol.grid(), symbol.GetOutlineSymbol()};
}

void PointPatternFillSettings::list(Fields& fields) {
  PointPatternFillSymbol::Grid const usual;
  listSymbol(
      fields,
      {"marker", QT_TRANSLATE_NOOP("Fields", "Marker"), QT_TRANSLATE_NOOP("Fields", "The marker that is repeated.")},
      marker);
  fields.number({"dx", QT_TRANSLATE_NOOP("Fields", "Column width"),
                 QT_TRANSLATE_NOOP("Fields", "How far it is from one marker of a row to the next.")},
                grid.dx, steps, usual.dx);
  fields.number({"dy", QT_TRANSLATE_NOOP("Fields", "Row height"),
                 QT_TRANSLATE_NOOP("Fields", "How far it is from one row to the next.")},
                grid.dy, steps, usual.dy);
  fields.flag({"staggered", QT_TRANSLATE_NOOP("Fields", "Staggered"),
               QT_TRANSLATE_NOOP("Fields", "Whether every second row is moved by half a column.")},
              grid.staggered, usual.staggered);
  fields.number(
      {"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
       QT_TRANSLATE_NOOP("Fields", "How far the rows are turned counterclockwise; the markers stay upright.")},
      grid.angle, angles, usual.angle);
  listOutline(fields, outline);
}

void PointPatternFillSettings::applyTo(PointPatternFillSymbol& symbol) const {
  symbol.setMarker(marker);
  symbol.setGrid(grid);
  symbol.SetOutlineSymbol(outline);
}

GradientFillSettings GradientFillSettings::of(GradientFillSymbol const& symbol) {
  return {symbol.gradient(), symbol.GetOutlineSymbol()};
}

void GradientFillSettings::list(Fields& fields) {
  GradientFillSymbol::Gradient const usual;
  fields.choice<GradientShape>({"shape", QT_TRANSLATE_NOOP("Fields", "Shape"),
                                QT_TRANSLATE_NOOP("Fields",
                                                  "Whether the colours run across the area's rectangle, or from its "
                                                  "middle outwards.")},
                               gradient.shape, gradientShapes, usual.shape);
  fields.number(
      {"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
       QT_TRANSLATE_NOOP("Fields", "Where a straight gradient runs to, counterclockwise from the right; −90 is down.")},
      gradient.angle, angles, usual.angle);
  double before = 0;
  fields.list(
      {"stops", QT_TRANSLATE_NOOP("Fields", "Colours"),
       QT_TRANSLATE_NOOP("Fields", "The colours of the gradient, from its beginning to its end."), "stop"},
      gradient.stops, stopCounts, [&](Fields& own, GradientStop& stop, int index) {
        if (own.isReading()) stop = GradientFillSymbol().gradient().stops.value(std::min(index, 1));
        own.number(
            {"position", QT_TRANSLATE_NOOP("Fields", "Position"),
             QT_TRANSLATE_NOOP("Fields",
                               "Where the colour stands between the beginning and the end, not before the last one.")},
            stop.percent, {0, 100, Unit::Percent});
        if (own.ok() && stop.percent < before)
          own.fail("position", Texts::tr("is smaller than that of the colour before; sort them"));
        before = stop.percent;
        listColor(
            own,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "The colour at this place.")},
            stop.color, SymbolDefaults::fillColor());
      });
  listOutline(fields, outline);
}

void GradientFillSettings::applyTo(GradientFillSymbol& symbol) const {
  symbol.setGradient(gradient);
  symbol.SetOutlineSymbol(outline);
}

template <class Layered>
LayeredSettings<Layered> LayeredSettings<Layered>::of(Layered const& symbol) {
  return {symbol.layers()};
}

template <class Layered>
void LayeredSettings<Layered>::list(Fields& fields) {
  using Wanted = std::remove_reference_t<decltype(*layers[0])>;
  fields.list({"layers", QT_TRANSLATE_NOOP("Fields", "Layers"),
               QT_TRANSLATE_NOOP("Fields", "Symbols that are drawn one over the other, the first one at the bottom."),
               typeOfSymbols<Wanted>},
              layers, layerCounts,
              [](Fields& own, SysUtility::_ptr_t<Wanted>& layer, int) { listOwnSymbol(own, layer); });
  if (!fields.ok()) return;
  Layered nested;
  nested.setLayers(layers);
  if (nested.depth() > maxDepth)
    fields.fail("layers",
                Texts::tr("layers lie within layers more than %1 deep; put them into one list").arg(maxDepth));
}

template <class Layered>
void LayeredSettings<Layered>::applyTo(Layered& symbol) const {
  symbol.setLayers(layers);
}

template struct LayeredSettings<LayeredLineSymbol>;
template struct LayeredSettings<LayeredFillSymbol>;
template struct LayeredSettings<LayeredMarkerSymbol>;

MarkerSettings MarkerSettings::of(MarkerSymbol const& symbol) { return {symbol.GetSize(), symbol.GetAngle()}; }

void MarkerSettings::list(Fields& fields) {
  MarkerSettings const usual;
  fields.number({"size", QT_TRANSLATE_NOOP("Fields", "Size"),
                 QT_TRANSLATE_NOOP("Fields", "The longer side of the marker; one of size 0 is not drawn.")},
                size, lengths, usual.size);
  fields.number({"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
                 QT_TRANSLATE_NOOP("Fields", "How far the marker is turned counterclockwise.")},
                angle, angles, usual.angle);
}

void MarkerSettings::applyTo(MarkerSymbol& symbol) const {
  symbol.SetSize(size);
  symbol.SetAngle(angle);
}

SimpleMarkerSettings SimpleMarkerSettings::of(SimpleMarkerSymbol const& symbol) {
  return {symbol.style(), MarkerSettings::of(symbol), symbol.color(), symbol.outlineColor(), symbol.outlineWidth()};
}

void SimpleMarkerSettings::list(Fields& fields) {
  SimpleMarkerSettings const usual;
  fields.choice<SimpleMarkerStyle>(
      {"style", QT_TRANSLATE_NOOP("Fields", "Style"), QT_TRANSLATE_NOOP("Fields", "The shape of the marker.")}, style,
      markerStyles, usual.style);
  marker.list(fields);
  listColor(fields,
            {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "The colour of the marker.")},
            color, usual.color);
  listColor(fields,
            {"outlineColor", QT_TRANSLATE_NOOP("Fields", "Colour of the outline"),
             QT_TRANSLATE_NOOP("Fields", "The colour of the line around the marker.")},
            outlineColor, usual.outlineColor);
  fields.number({"outlineWidth", QT_TRANSLATE_NOOP("Fields", "Width of the outline"),
                 QT_TRANSLATE_NOOP("Fields", "The width of the line around the marker; 0 for none.")},
                outlineWidth, lengths, usual.outlineWidth);
}

void SimpleMarkerSettings::applyTo(SimpleMarkerSymbol& symbol) const {
  symbol.setStyle(style);
  marker.applyTo(symbol);
  symbol.setColor(color);
  symbol.setOutlineColor(outlineColor);
  symbol.setOutlineWidth(outlineWidth);
}

SvgMarkerSettings SvgMarkerSettings::of(SvgMarkerSymbol const& symbol) {
  return {MarkerSettings::of(symbol), symbol.picture()};
}

void SvgMarkerSettings::list(Fields& fields) {
  marker.list(fields);
  listPicture(fields,
              QT_TRANSLATE_NOOP(
                  "Fields", "The picture as SVG, which refers to nothing outside itself; its view box is the marker."),
              picture);
}

void SvgMarkerSettings::applyTo(SvgMarkerSymbol& symbol) const {
  marker.applyTo(symbol);
  symbol.setPicture(picture);
}

}  // namespace SysDisplay
