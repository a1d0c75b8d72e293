#include "SymbolArchive.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"
#include "host/SysDisplay/SymbolDefaults.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QCoreApplication>
#include <QJsonDocument>

#include <typeinfo>

namespace SysDisplay {

using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::ChoiceName;

namespace {

constexpr double mostPt = 1000;
constexpr double mostDegrees = 3600;
constexpr int mostSvgCharacters = 2 * 1024 * 1024;

QString translated(char const* text) { return QCoreApplication::translate("SymbolArchive", text); }

template <class Enumeration>
constexpr ChoiceName name(Enumeration value, char const* text) {
  return {static_cast<int>(value), text};
}

void describe(Archive& archive, SimpleLineSymbol& symbol) {
  SimpleLineStyle style = symbol.GetStyle();
  archive.choice("style", style,
                 {name(SimpleLineStyle::Null, "null"), name(SimpleLineStyle::Solid, "solid"),
                  name(SimpleLineStyle::Dash, "dash"), name(SimpleLineStyle::Dot, "dot"),
                  name(SimpleLineStyle::DashDot, "dashDot"), name(SimpleLineStyle::DashDotDot, "dashDotDot")},
                 SimpleLineStyle::Solid);
  QColor color = symbol.GetColor();
  describeColor(archive, "color", color, SymbolDefaults::lineColor());
  double width = symbol.GetWidth(), offset = symbol.GetOffset(), miterLimit = symbol.GetMiterLimit();
  archive.number("width", width, 0, mostPt, SymbolDefaults::lineWidth);
  archive.number("offset", offset, -mostPt, mostPt, 0);
  LineCapStyle cap = symbol.GetCapStyle();
  archive.choice(
      "cap", cap,
      {name(LineCapStyle::Butt, "butt"), name(LineCapStyle::Round, "round"), name(LineCapStyle::Square, "square")},
      SymbolDefaults::cap);
  LineJoinStyle join = symbol.GetJoinStyle();
  archive.choice(
      "join", join,
      {name(LineJoinStyle::Miter, "miter"), name(LineJoinStyle::Round, "round"), name(LineJoinStyle::Bevel, "bevel")},
      SymbolDefaults::join);
  archive.number("miterLimit", miterLimit, 0, 100, SymbolDefaults::miterLimit);
  symbol.SetStyle(style);
  symbol.SetColor(color);
  symbol.SetWidth(width);
  symbol.SetOffset(offset);
  symbol.SetCapStyle(cap);
  symbol.SetJoinStyle(join);
  symbol.SetMiterLimit(miterLimit);
}

void describe(Archive& archive, SimpleFillSymbol& symbol) {
  SimpleFillStyle style = symbol.GetStyle();
  archive.choice("style", style,
                 {name(SimpleFillStyle::Solid, "solid"), name(SimpleFillStyle::Null, "null"),
                  name(SimpleFillStyle::Horizontal, "horizontal"), name(SimpleFillStyle::Vertical, "vertical"),
                  name(SimpleFillStyle::ForwardDiagonal, "forwardDiagonal"),
                  name(SimpleFillStyle::BackwardDiagonal, "backwardDiagonal"), name(SimpleFillStyle::Cross, "cross"),
                  name(SimpleFillStyle::DiagonalCross, "diagonalCross")},
                 SimpleFillStyle::Solid);
  QColor color = symbol.GetColor();
  describeColor(archive, "color", color, SymbolDefaults::fillColor());
  _ptr_t<LineSymbol> outline = symbol.GetOutlineSymbol();
  describeOptionalSymbol(archive, "outline", outline);
  symbol.SetStyle(style);
  symbol.SetColor(color);
  symbol.SetOutlineSymbol(outline);
}

void describePlacement(Archive& archive, MarkerSymbol& symbol) {
  double size = symbol.GetSize(), angle = symbol.GetAngle();
  archive.number("size", size, 0, mostPt, SymbolDefaults::markerSize);
  archive.number("angle", angle, -mostDegrees, mostDegrees, 0);
  symbol.SetSize(size);
  symbol.SetAngle(angle);
}

void describe(Archive& archive, SimpleMarkerSymbol& symbol) {
  SimpleMarkerStyle style = symbol.style();
  archive.choice(
      "style", style,
      {name(SimpleMarkerStyle::Circle, "circle"), name(SimpleMarkerStyle::Square, "square"),
       name(SimpleMarkerStyle::Diamond, "diamond"), name(SimpleMarkerStyle::Triangle, "triangle"),
       name(SimpleMarkerStyle::Cross, "cross"), name(SimpleMarkerStyle::X, "x"), name(SimpleMarkerStyle::Star, "star")},
      SimpleMarkerStyle::Circle);
  describePlacement(archive, symbol);
  QColor color = symbol.color(), outlineColor = symbol.outlineColor();
  double outlineWidth = symbol.outlineWidth();
  describeColor(archive, "color", color, SymbolDefaults::markerColor());
  describeColor(archive, "outlineColor", outlineColor, SymbolDefaults::lineColor());
  archive.number("outlineWidth", outlineWidth, 0, mostPt, 0);
  symbol.setStyle(style);
  symbol.setColor(color);
  symbol.setOutlineColor(outlineColor);
  symbol.setOutlineWidth(outlineWidth);
}

void describe(Archive& archive, SvgMarkerSymbol& symbol) {
  describePlacement(archive, symbol);
  QString svg = QString::fromUtf8(symbol.svg());
  archive.text("svg", svg, mostSvgCharacters);
  if (!archive.reading() || !archive.ok()) return;
  QString const problem = symbol.setSvg(svg.toUtf8());
  if (!problem.isEmpty()) archive.fail("svg", problem);
}

void describe(Archive& archive, TextSymbol& symbol) {
  TextFormat const usual;
  TextFormat format = symbol.format();
  archive.text("family", format.family, usual.family);
  archive.number("size", format.size, 0, mostPt, usual.size);
  archive.flag("bold", format.bold, usual.bold);
  archive.flag("italic", format.italic, usual.italic);
  archive.number("letterSpacing", format.letterSpacing, -mostPt, mostPt, usual.letterSpacing);
  archive.number("lineSpacing", format.lineSpacing, 0.1, 10, usual.lineSpacing);
  describeColor(archive, "color", format.color, usual.color);
  archive.number("haloSize", format.haloSize, 0, mostPt, usual.haloSize);
  describeColor(archive, "haloColor", format.haloColor, usual.haloColor);
  archive.choice("horizontal", format.horizontal,
                 {name(HorizontalAlignment::Left, "left"), name(HorizontalAlignment::Center, "center"),
                  name(HorizontalAlignment::Right, "right")},
                 usual.horizontal);
  archive.choice("vertical", format.vertical,
                 {name(VerticalAlignment::Top, "top"), name(VerticalAlignment::Middle, "middle"),
                  name(VerticalAlignment::Baseline, "baseline"), name(VerticalAlignment::Bottom, "bottom")},
                 usual.vertical);
  symbol.setFormat(format);
}

// A kind of symbol: its name in a document, and what is done with it.
struct Kind {
  char const* name;
  bool (*matches)(Symbol const&);
  _ptr_t<Symbol> (*create)();
  void (*describe)(Archive&, Symbol&);
  void (*assign)(Symbol& to, Symbol const& from);
};

template <class T>
constexpr Kind kind(char const* name) {
  return {name, [](Symbol const& symbol) { return dynamic_cast<T const*>(&symbol) != nullptr; },
          [] { return _ptr_t<Symbol>(new T); },
          [](Archive& archive, Symbol& symbol) { describe(archive, static_cast<T&>(symbol)); },
          [](Symbol& to, Symbol const& from) { static_cast<T&>(to) = static_cast<T const&>(from); }};
}

constexpr Kind kinds[] = {
    kind<SimpleLineSymbol>("simpleLine"),
    kind<SimpleFillSymbol>("simpleFill"),
    kind<SimpleMarkerSymbol>("simpleMarker"),
    kind<SvgMarkerSymbol>("svgMarker"),
    kind<TextSymbol>("text"),
};

void write(Archive& archive, Symbol& symbol) {
  for (Kind const& kind : kinds) {
    if (!kind.matches(symbol)) continue;
    QString type = QLatin1String(kind.name);
    archive.text("type", type);
    return kind.describe(archive, symbol);
  }
  archive.fail(nullptr, translated("a symbol of a kind that can't be stored"));
}

// Reads a symbol of the wanted class; answers an empty pointer after a problem.
template <class T>
_ptr_t<T> read(Archive& archive) {
  QString type;
  archive.text("type", type);
  QStringList known;
  for (Kind const& kind : kinds) {
    _ptr_t<T> const symbol = SysUtility::ptr_cast<T>(kind.create());
    if (!symbol) continue;
    known << QLatin1String(kind.name);
    if (type != known.last()) continue;
    kind.describe(archive, *symbol);
    return archive.ok() ? symbol : nullptr;
  }
  archive.fail("type", translated("“%1” is not one of %2").arg(type.left(64), known.join(QStringLiteral(", "))));
  return nullptr;
}

template <class T>
void describeHere(Archive& archive, _ptr_t<T>& symbol) {
  if (!archive.reading()) {
    if (symbol) write(archive, *symbol);
    return;
  }
  if (auto const made = read<T>(archive)) symbol = made;
}

template <class T>
void describeNested(Archive& archive, char const* key, _ptr_t<T>& symbol) {
  if (!archive.reading() && !symbol) return archive.fail(key, translated("there is no symbol to store"));
  archive.object(key, [&](Archive& object) { describeHere(object, symbol); });
}

}  // namespace

void describeColor(Archive& archive, char const* key, QColor& color) {
  QString text = color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
  archive.text(key, text);
  if (!archive.reading() || !archive.ok()) return;
  bool const isShaped = text.startsWith(QLatin1Char('#')) && (text.size() == 7 || text.size() == 9);
  QColor const read(isShaped ? text : QString());
  if (!read.isValid())
    return archive.fail(key, translated("“%1” is not a colour like #rrggbb or #aarrggbb").arg(text.left(64)));
  color = read;
}

void describeColor(Archive& archive, char const* key, QColor& color, QColor const& byDefault) {
  if (archive.reading() ? archive.has(key) : color.rgba() != byDefault.rgba())
    return describeColor(archive, key, color);
  if (archive.reading()) color = byDefault;
}

void describeSymbol(Archive& archive, char const* key, _ptr_t<Symbol>& symbol) { describeNested(archive, key, symbol); }
void describeSymbol(Archive& archive, char const* key, _ptr_t<LineSymbol>& symbol) {
  describeNested(archive, key, symbol);
}
void describeSymbol(Archive& archive, char const* key, _ptr_t<FillSymbol>& symbol) {
  describeNested(archive, key, symbol);
}
void describeSymbol(Archive& archive, char const* key, _ptr_t<MarkerSymbol>& symbol) {
  describeNested(archive, key, symbol);
}
void describeSymbol(Archive& archive, char const* key, _ptr_t<TextSymbol>& symbol) {
  describeNested(archive, key, symbol);
}

void describeSymbolHere(Archive& archive, _ptr_t<Symbol>& symbol) { describeHere(archive, symbol); }

bool importSymbol(QJsonObject const& json, Symbol& symbol) {
  Archive archive(json);
  auto const read = SysDisplay::read<Symbol>(archive);
  if (!read || typeid(*read) != typeid(symbol)) return false;
  for (Kind const& kind : kinds)
    if (kind.matches(symbol)) kind.assign(symbol, *read);
  return true;
}

bool importSymbol(QString const& json, Symbol& symbol) {
  QJsonDocument const document = QJsonDocument::fromJson(json.toUtf8());
  return document.isObject() && importSymbol(document.object(), symbol);
}

QString exportSymbol(Symbol const& symbol) {
  Archive archive;
  auto const copy = symbol.Clone();
  write(archive, *copy);
  return QString::fromUtf8(QJsonDocument(archive.json()).toJson(QJsonDocument::Compact));
}

}  // namespace SysDisplay
