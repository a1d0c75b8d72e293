#include "Theme.h"

#include "MapColors.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

using SysCarto::GeometryKind;
using Subject = Theme::Subject;

namespace {

struct Word {
  char const* pattern;  // of a part of a layer's name
  Subject subject;
};

// The first that fits counts. In English and in the languages of data that people have.
constexpr Word words[] = {
    {"contour|isoline|h.henlinie|courbe", Subject::Contour},
    {"river|stream|canal|waterway|hydro|fluss|fl.sse|gew.sser|bach|lake|water|ocean|sea$|seas$|reservoir|glacier|rivi."
     "re",
     Subject::Water},
    {"building|geb.ude|b.timent|footprint|house", Subject::Building},
    {"(?<!\\p{L})rail|bahn|tram|metro|subway|chemins?_de_fer", Subject::Rail},
    {"road|street|highway|strasse|stra.e|stra.en|route|voirie|path|trail|weg(e|en)?(?!\\p{L})", Subject::Road},
    {"track|gpx|tour|hike", Subject::Track},
    {"forest|wood|park|green|wald|garden|reserve|natur|landuse|landcover|meadow|for.t", Subject::Green},
    {"boundar|border|grenze|limit|fronti.re", Subject::Boundary},
    {"countr|(?<!\\p{L})nation|admin|land$|lands$|coast|(?<!\\p{L})state|province|county|region|district|department|"
     "kreis|gemeinde|commune|"
     "municip|l.nder|staaten|kanton|nuts|island",
     Subject::Land},
    {"(?<!\\p{L})cit(y|ies)|town|place|settlement|village|stadt|st.dte|(?<!\\p{L})orte?(?!\\p{L})|capital|ville",
     Subject::Settlement},
};

QJsonObject layered(char const* type, QJsonArray const& layers) {
  return {{"type", QLatin1String(type)}, {"layers", layers}};
}

QJsonObject rails(double fineness) {
  return layered("layeredLine",
                 {lineSymbol("#6f6a72", 1.1 * fineness + 0.3), QJsonObject{{"type", "dashLine"},
                                                                           {"color", "#ffffff"},
                                                                           {"width", 0.6 * fineness + 0.1},
                                                                           {"cap", "butt"},
                                                                           {"pattern", QJsonArray{4, 4}}}});
}

QJsonObject dashed(char const* color, double width, QJsonArray const& pattern) {
  return {
      {"type", "dashLine"}, {"color", QLatin1String(color)}, {"width", width}, {"cap", "butt"}, {"pattern", pattern}};
}

}  // namespace

QJsonObject fillSymbol(char const* color, char const* outline, double outlineWidth) {
  QJsonObject symbol{{"type", "simpleFill"}, {"color", QLatin1String(color)}};
  if (outlineWidth > 0) symbol.insert("outline", lineSymbol(outline, outlineWidth));
  return symbol;
}

QJsonObject lineSymbol(char const* color, double width) {
  return {{"type", "simpleLine"}, {"color", QLatin1String(color)}, {"width", width}};
}

QJsonObject markerSymbol(char const* color, double size, char const* outline, double outlineWidth) {
  QJsonObject symbol{{"type", "simpleMarker"}, {"color", QLatin1String(color)}, {"size", size}};
  if (outlineWidth > 0) {
    symbol.insert("outlineColor", QLatin1String(outline));
    symbol.insert("outlineWidth", outlineWidth);
  }
  return symbol;
}

QJsonObject textSymbol(char const* family, double size, char const* color) {
  return {{"type", "text"}, {"family", QLatin1String(family)}, {"size", size}, {"color", QLatin1String(color)}};
}

// What names of settlements say of areas is their land.
Theme Theme::of(QString const& layerName, GeometryKind kind) {
  for (Word const& word : words) {
    QRegularExpression const pattern(QLatin1String(word.pattern), QRegularExpression::CaseInsensitiveOption);
    if (!pattern.match(layerName).hasMatch()) continue;
    Theme const theme{word.subject};
    if (word.subject == Subject::Settlement && kind == GeometryKind::Areas) return {Subject::Land};
    if (!theme.symbol(kind, 1).isEmpty()) return theme;
  }
  return {};
}

QJsonObject Theme::symbol(GeometryKind kind, double fineness) const {
  double const f = fineness;
  switch (kind) {
    case GeometryKind::Areas:
      switch (subject) {
        case Subject::Water: return fillSymbol(MapColors::sea, MapColors::shore, 0.4 * f);
        case Subject::Land: return fillSymbol(MapColors::land, MapColors::border, 0.4 * f);
        case Subject::Building: return fillSymbol("#c3b5a8", "#8d7f73", 0.25);
        case Subject::Green: return fillSymbol("#d3e2bf", "#a9c08d", 0.25 * f);
        default: return {};
      }
    case GeometryKind::Lines:
      switch (subject) {
        case Subject::Water: return lineSymbol(MapColors::river, 0.3 + 0.6 * f);
        case Subject::Road: return roadSymbol(2, f);
        case Subject::Rail: return rails(f);
        case Subject::Boundary: return dashed("#8a6a86", 0.4 + 0.5 * f, {5, 1.5, 1, 1.5});
        case Subject::Land: return lineSymbol(MapColors::border, 0.3 + 0.3 * f);
        case Subject::Contour: return lineSymbol("#b98d5b", 0.2 + 0.15 * f);
        case Subject::Track:
          return layered("layeredLine",
                         {lineSymbol("#ffffff", 1.6 + 1.6 * f), lineSymbol(MapColors::marks[0], 0.8 + 1.2 * f)});
        default: return {};
      }
    case GeometryKind::Points:
      return subject == Subject::Settlement ? markerSymbol("#ffffff", 1.4 + 2.6 * f, MapColors::ink, 0.3 + 0.5 * f)
                                            : QJsonObject();
    default: return {};
  }
}

int Theme::roadWeight(QString const& value) {
  constexpr struct {
    char const* pattern;
    int weight;
  } weights[] = {{"motorway.*|autobahn|freeway|interstate|express.*", 5},
                 {"trunk.*|primary.*|bundesstra.*|major.*|highway", 4},
                 {"secondary.*|tertiary.*|landesstra.*|collector", 3},
                 {"residential|unclassified|living_street|service|road|street|minor.*|local|gemeindestra.*", 2},
                 {"footway|path|track|cycleway|pedestrian|steps|bridleway|corridor|weg", 1}};
  for (auto const& one : weights)
    if (QRegularExpression(QStringLiteral("^(?:%1)$").arg(QLatin1String(one.pattern)),
                           QRegularExpression::CaseInsensitiveOption)
            .match(value)
            .hasMatch())
      return one.weight;
  return 0;
}

// White with a casing, so that roads that cross join; the heavier ones in warm colours, as on topographic maps.
QJsonObject Theme::roadSymbol(int weight, double fineness) {
  if (weight <= 1) return dashed("#9a8f86", 0.3 + 0.4 * fineness, {2.5, 1.2});
  constexpr char const* fills[] = {"#ffffff", "#fff6cc", "#ffdf8c", "#f2a65a"};
  constexpr double widths[] = {1.5, 2.2, 2.9, 3.4};
  int const at = std::clamp(weight - 2, 0, 3);
  double const width = 0.3 + widths[at] * fineness;
  return layered("layeredLine", {lineSymbol("#8f8379", width + 0.3 + 0.4 * fineness), lineSymbol(fills[at], width)});
}
