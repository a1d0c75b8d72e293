#include "SymbolFields.h"

#include "SymbolSettings.h"

#include "host/SysUtility/FieldEdit.h"
#include "host/SysUtility/JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace SysDisplay {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Field;
using SysUtility::Fields;
using SysUtility::JsonReader;
using SysUtility::JsonWriter;

namespace {

constexpr Field typeField{"type", QT_TRANSLATE_NOOP("Fields", "Kind"),
                          QT_TRANSLATE_NOOP("Fields", "What kind of symbol it is.")};

// A kind of symbol, and what is done with one.
struct Kind {
  Choice choice;  // its value is the kind's place in the table
  bool (*matches)(Symbol const&);
  _ptr_t<Symbol> (*create)();
  void (*list)(Fields&, _ptr_t<Symbol>&);  // a reader replaces the symbol by a new one
  void (*assign)(Symbol& to, Symbol const& from);
};

template <class T, class Settings>
constexpr Kind kind(int number, char const* name, char const* caption) {
  return {{number, name, caption},
          [](Symbol const& symbol) { return dynamic_cast<T const*>(&symbol) != nullptr; },
          [] { return _ptr_t<Symbol>(new T); },
          [](Fields& fields, _ptr_t<Symbol>& symbol) {
            auto const present = SysUtility::ptr_cast<T>(symbol);
            Settings settings = present && !fields.isReading() ? Settings::of(*present) : Settings();
            settings.list(fields);
            if (!fields.isReading() || !fields.ok()) return;
            auto const made = SysUtility::make<T>();
            settings.applyTo(*made);
            symbol = made;
          },
          [](Symbol& to, Symbol const& from) { static_cast<T&>(to) = static_cast<T const&>(from); }};
}

// clang-format off
constexpr Kind kinds[] = {
    kind<SimpleLineSymbol, SimpleLineSettings>                      (0, "simpleLine",       QT_TRANSLATE_NOOP("Fields", "Line")),
    kind<DashLineSymbol, DashLineSettings>                          (1, "dashLine",         QT_TRANSLATE_NOOP("Fields", "Line of dashes")),
    kind<MarkerLineSymbol, MarkerLineSettings>                      (2, "markerLine",       QT_TRANSLATE_NOOP("Fields", "Line of markers")),
    kind<LayeredLineSymbol, LayeredSettings<LayeredLineSymbol>>     (3, "layeredLine",      QT_TRANSLATE_NOOP("Fields", "Layered line")),
    kind<SimpleFillSymbol, SimpleFillSettings>                      (4, "simpleFill",       QT_TRANSLATE_NOOP("Fields", "Fill")),
    kind<PictureFillSymbol, PictureFillSettings>                    (5, "pictureFill",      QT_TRANSLATE_NOOP("Fields", "Fill of pictures")),
    kind<PointPatternFillSymbol, PointPatternFillSettings>          (6, "pointPatternFill", QT_TRANSLATE_NOOP("Fields", "Fill of markers")),
    kind<GradientFillSymbol, GradientFillSettings>                  (7, "gradientFill",     QT_TRANSLATE_NOOP("Fields", "Gradient")),
    kind<LayeredFillSymbol, LayeredSettings<LayeredFillSymbol>>     (8, "layeredFill",      QT_TRANSLATE_NOOP("Fields", "Layered fill")),
    kind<SimpleMarkerSymbol, SimpleMarkerSettings>                  (9, "simpleMarker",     QT_TRANSLATE_NOOP("Fields", "Marker")),
    kind<SvgMarkerSymbol, SvgMarkerSettings>                        (10, "svgMarker",       QT_TRANSLATE_NOOP("Fields", "Picture marker")),
    kind<LayeredMarkerSymbol, LayeredSettings<LayeredMarkerSymbol>> (11, "layeredMarker",   QT_TRANSLATE_NOOP("Fields", "Layered marker")),
    kind<TextSymbol, TextSettings>                                  (12, "text",            QT_TRANSLATE_NOOP("Fields", "Text")),
};
// clang-format on

int kindOf(Symbol const* symbol) {
  for (Kind const& kind : kinds)
    if (symbol && kind.matches(*symbol)) return kind.choice.value;
  return -1;
}

}  // namespace

void listColor(Fields& fields, Field const& field, QColor& color, QColor const& byDefault) {
  auto const name = [](QColor const& c) { return c.name(c.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb); };
  QString text = name(color);
  fields.text(field, text, SysUtility::TextKind::Color, name(byDefault));
  if (!fields.isReading() || !fields.ok()) return;
  bool const isShaped = text.startsWith(QLatin1Char('#')) && (text.size() == 7 || text.size() == 9);
  QColor const read(isShaped ? text : QString());
  if (!read.isValid())
    return fields.fail(field.key,
                       QCoreApplication::translate("SymbolFields", "“%1” is not a colour like #rrggbb or #aarrggbb")
                           .arg(text.left(64)));
  color = read;
}

namespace {

void listAs(Fields& fields, _ptr_t<Symbol>& symbol, QVector<Choice> const& wanted) {
  int kind = kindOf(symbol.get());
  if (!fields.isReading() && !symbol)
    fields.fail(nullptr, QCoreApplication::translate("SymbolFields", "there is no symbol to store"));
  else if (!fields.isReading() && kind < 0)
    fields.fail(nullptr, QCoreApplication::translate("SymbolFields", "a symbol of a kind that can't be stored"));
  fields.variant(typeField, kind, wanted, [&](int chosen) { kinds[chosen].list(fields, symbol); });
}

}  // namespace

void listOwnSymbolOf(Fields& fields, _ptr_t<Symbol>& symbol, bool (*isWanted)(Symbol const*)) {
  QVector<Choice> wanted;
  for (Kind const& kind : kinds)
    if (isWanted(kind.create().get())) wanted << kind.choice;
  listAs(fields, symbol, wanted);
}

void listOwnSymbol(Fields& fields, _ptr_t<Symbol>& symbol, QStringList const& names) {
  QVector<Choice> wanted;
  for (Kind const& kind : kinds)
    if (names.contains(QLatin1String(kind.choice.name))) wanted << kind.choice;
  listAs(fields, symbol, wanted);
}

void listSymbolOf(Fields& fields, Field const& field, _ptr_t<Symbol>& symbol, bool (*isWanted)(Symbol const*),
                  bool isRequired) {
  auto const list = [&](Fields& own) { listOwnSymbolOf(own, symbol, isWanted); };
  if (isRequired) return fields.object(field, list);
  bool const isThere = fields.optionalObject(field, bool(symbol), list);
  if (fields.isReading() && fields.ok() && !isThere) symbol = nullptr;
}

bool isSymbol(Field const& field) {
  auto const types = {typeOfSymbols<Symbol>, typeOfSymbols<LineSymbol>, typeOfSymbols<FillSymbol>,
                      typeOfSymbols<MarkerSymbol>, typeOfSymbols<TextSymbol>};
  return std::any_of(types.begin(), types.end(), [&](char const* type) { return qstrcmp(field.type, type) == 0; });
}

_ptr_t<Symbol> symbolOf(QJsonObject const& json) {
  JsonReader reader(SysUtility::withoutNulls(json).toObject());
  _ptr_t<Symbol> symbol;
  listOwnSymbolOf(reader, symbol, isA<Symbol>);
  return reader.ok() ? symbol : nullptr;
}

QJsonObject layeredOrNot(QJsonObject const& symbol, QString const& kind) {
  auto const isLayered = [](QString const& name) { return name.startsWith(QLatin1String("layered")); };
  QString const type = QStringLiteral("type"), layers = QStringLiteral("layers");
  bool const wasLayered = isLayered(symbol.value(type).toString());
  if (isLayered(kind) && !wasLayered) return {{type, kind}, {layers, QJsonArray{symbol}}};
  QJsonObject const lowest = symbol.value(layers).toArray().at(0).toObject();
  return wasLayered && lowest.value(type) == kind ? lowest : QJsonObject();
}

bool importSymbol(QJsonObject const& json, Symbol& symbol) {
  int const own = kindOf(&symbol);
  if (own < 0) return false;
  JsonReader reader(json);
  _ptr_t<Symbol> read;
  QVector<Choice> const choices{kinds[own].choice};
  int kind = own;
  reader.variant(typeField, kind, choices, [&](int) { kinds[own].list(reader, read); });
  if (reader.ok()) kinds[own].assign(symbol, *read);
  return reader.ok();
}

bool importSymbol(QString const& json, Symbol& symbol) {
  QJsonDocument const document = QJsonDocument::fromJson(json.toUtf8());
  return document.isObject() && importSymbol(document.object(), symbol);
}

QString exportSymbol(Symbol const& symbol) {
  JsonWriter writer;
  auto written = symbol.Clone();
  listOwnSymbolOf(writer, written, isA<Symbol>);
  return QString::fromUtf8(QJsonDocument(writer.json()).toJson(QJsonDocument::Compact));
}

}  // namespace SysDisplay
