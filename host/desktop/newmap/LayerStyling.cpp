#include "LayerStyling.h"
#include "FieldChoice.h"
#include "LandMask.h"
#include "host/desktop/layers/MapColors.h"
#include "Theme.h"

#include "host/desktop/layers/DataReport.h"
#include "host/desktop/layers/NewLayers.h"

#include "host/SysCarto/layers/Classify.h"
#include "host/SysUtility/JsonFields.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <cmath>

using SysCarto::GeometryKind;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerStyling)
};

constexpr int maxClasses = 8;
constexpr int maxColoured = 600;  // areas that get a colour each, so that neighbours differ
constexpr int maxLabelledBuildings = 300;
constexpr int rampClasses = 5, sizeClasses = 4;

struct KindRow {
  GeometryKind kind;
  double room;  // what a feature takes of the page, against the others
  int height;
};
constexpr KindRow kindRows[] = {
    {GeometryKind::Areas, 1.2, 0},
    {GeometryKind::Lines, 1.6, 1},
    {GeometryKind::Points, 0.7, 2},
};

KindRow const& rowOf(GeometryKind kind) {
  for (KindRow const& row : kindRows)
    if (row.kind == kind) return row;
  return kindRows[0];
}

// world_cities as “World cities”.
QString forPeople(QString text) {
  text = text.replace(QLatin1Char('_'), QLatin1Char(' ')).simplified();
  return text.isEmpty() ? text : text.left(1).toUpper() + text.mid(1);
}

double finenessOf(double density, KindRow const& row) {
  constexpr double finest = 0.06;
  return std::clamp(row.room / std::sqrt(density), finest, 1.0);
}

QJsonObject simple(QJsonObject const& symbol, QString const& label = QString()) {
  QJsonObject renderer{{"type", "simple"}, {"symbol", symbol}};
  if (!label.isEmpty()) renderer.insert("label", label);
  return renderer;
}

struct Symbolized {
  QJsonObject renderer;
  QString reason;
  bool isLegendWorthy = true;
};

// Everything that a layer of one kind of geometry is made from.
struct Material {
  LayerSurvey const& survey;
  GeometryKind kind;
  Theme theme;
  double pageCm2;
  SysCarto::SourceSettings source;
  double fineness = finenessOf(density(), rowOf(kind));  // 1 for what has room, less for what is crowded

  double density() const { return std::max(survey.count / pageCm2, 1e-6); }  // features on a square centimetre
  QJsonObject plain(char const* color) const {
    switch (kind) {
      case GeometryKind::Points: return markerSymbol(color, 1.6 + 3.4 * fineness, "#ffffff", fineness > 0.3 ? 0.4 : 0);
      case GeometryKind::Lines: return lineSymbol(color, 0.3 + 0.9 * fineness);
      default: return fillSymbol(color, MapColors::border, std::max(0.2, 0.35 * fineness));
    }
  }
};

Symbolized roads(Material const& of, FieldSurvey const& field) {
  char const* const names[] = {QT_TRANSLATE_NOOP("LayerStyling", "Paths"), QT_TRANSLATE_NOOP("LayerStyling", "Streets"),
                               QT_TRANSLATE_NOOP("LayerStyling", "Secondary roads"),
                               QT_TRANSLATE_NOOP("LayerStyling", "Main roads"),
                               QT_TRANSLATE_NOOP("LayerStyling", "Motorways")};
  QJsonArray values[std::size(names)], classes;
  for (auto it = field.values.cbegin(); it != field.values.cend(); ++it)
    if (int const weight = Theme::roadWeight(it.key())) values[weight - 1].append(it.key());
  for (int weight = std::size(names); weight > 0; --weight)
    if (!values[weight - 1].isEmpty())
      classes.append(QJsonObject{{"label", Texts::tr(names[weight - 1])},
                                 {"values", values[weight - 1]},
                                 {"symbol", Theme::roadSymbol(weight, of.fineness)}});
  QJsonObject const renderer{{"type", "uniqueValues"},
                             {"field", field.name},
                             {"classes", classes},
                             {"defaultLabel", Texts::tr("Other")},
                             {"defaultSymbol", Theme::roadSymbol(1, of.fineness)}};
  return {renderer, Texts::tr("drawn by “%1”, the heavier roads wider").arg(field.name)};
}

bool areRoads(FieldSurvey const& field) {
  int known = 0, all = 0;
  for (auto it = field.values.cbegin(); it != field.values.cend(); ++it) {
    all += it.value();
    if (Theme::roadWeight(it.key()) > 0) known += it.value();
  }
  return known * 2 > all;
}

Symbolized byKind(Material const& of, FieldSurvey const& field) {
  QStringList values = field.values.keys();
  std::sort(values.begin(), values.end(), [&](QString const& one, QString const& other) {
    int const count = field.values[one], otherCount = field.values[other];
    return count != otherCount ? count > otherCount : one < other;
  });
  bool const isArea = of.kind == GeometryKind::Areas;
  int const colours = isArea ? MapColors::areas.size() : MapColors::marks.size();
  int const shown = values.size() <= colours ? values.size() : colours - 1;
  QJsonArray classes;
  for (int i = 0; i < shown; ++i)
    classes.append(QJsonObject{{"label", forPeople(values.at(i))},
                               {"values", QJsonArray{values.at(i)}},
                               {"symbol", of.plain(isArea ? MapColors::areas[i] : MapColors::marks[i])}});
  QJsonObject renderer{{"type", "uniqueValues"}, {"field", field.name}, {"classes", classes}};
  if (shown < values.size() || field.given < of.survey.count) {
    renderer.insert("defaultLabel", Texts::tr("Other"));
    renderer.insert("defaultSymbol", of.plain(MapColors::others));
  }
  return {renderer, Texts::tr("coloured by “%1”").arg(field.name)};
}

// As classes are made by hand, of a renderer with one symbol.
std::optional<Symbolized> classified(Material const& of, SysCarto::ClassifySettings const& wanted,
                                     QJsonObject const& symbol, QString const& reason) {
  SysCarto::RendererSettings now;
  SysUtility::JsonReader reader(simple(symbol));
  now.list(reader);
  auto classes = SysCarto::classify(SysCarto::readValues(of.source, wanted.field), now, wanted);
  if (!reader.ok() || !classes.problem.isEmpty() || classes.renderer.classes.size() < 2) return std::nullopt;
  SysUtility::JsonWriter writer;
  classes.renderer.list(writer);
  if (!writer.ok()) return std::nullopt;
  return Symbolized{writer.json(), reason.arg(wanted.field)};
}

std::optional<Symbolized> bySize(Material const& of, FieldSurvey const& field) {
  SysCarto::ClassifySettings wanted;
  wanted.field = field.name;
  wanted.classes = sizeClasses;
  wanted.sized = true;
  wanted.from = 1.5 + 1.2 * of.fineness;
  wanted.to = wanted.from + 2 + 4 * of.fineness;
  return classified(of, wanted, of.plain(MapColors::marks[0]),
                    Texts::tr("marks sized by “%1”, in natural breaks (Jenks)"));
}

std::optional<Symbolized> byRate(Material const& of, FieldSurvey const& field) {
  SysCarto::ClassifySettings wanted;
  wanted.field = field.name;
  wanted.classes = rampClasses;
  return classified(of, wanted, of.plain(MapColors::land), Texts::tr("shaded by “%1”, in natural breaks (Jenks)"));
}

Symbolized byNeighbours(Material const& of, FieldSurvey const& names) {
  QJsonArray classes;
  auto const groups = groupsOfNeighbours(of.source, names.name, MapColors::areas.size());
  for (size_t i = 0; i < groups.size(); ++i) {
    if (groups[i].isEmpty()) continue;
    classes.append(QJsonObject{{"label", Texts::tr("Colour %1").arg(i + 1)},
                               {"values", QJsonArray::fromStringList(groups[i])},
                               {"symbol", of.plain(MapColors::areas[i])}});
  }
  QJsonObject const renderer{{"type", "uniqueValues"},
                             {"field", names.name},
                             {"classes", classes},
                             {"defaultSymbol", of.plain(MapColors::others)}};
  return {renderer, Texts::tr("coloured so that neighbours differ"), false};
}

struct Lettering {
  double size = 7;
  char const* family = "Lato";
  char const* color = MapColors::ink;
  double spacing = 0;
  bool italic = false;
  int priority = 20;
};

Lettering letteringOf(Material const& of) {
  using Subject = Theme::Subject;
  Subject const subject = of.theme.subject;
  double const roomy = std::min(1.0, 0.3 / std::sqrt(of.density()));
  if (subject == Subject::Water) return {7, "EB Garamond", MapColors::waterText, 0.3, true, 15};
  switch (of.kind) {
    case GeometryKind::Points: return {6 + 2 * of.fineness, "Lato", MapColors::ink, 0, false, 30};
    case GeometryKind::Lines: return {5.5 + 1.5 * of.fineness, "Lato", MapColors::softInk, 0, false, 20};
    default: break;
  }
  if (subject == Subject::Land || subject == Subject::Unknown)
    return {4.5 + 4.5 * roomy, "EB Garamond", "#5d4650", 0.5 * roomy, false, 40};
  return {6.5, "Lato", MapColors::softInk, 0, true, 10};
}

double percentile(FieldSurvey const& field, double part) {
  std::vector<double> numbers;
  for (auto it = field.values.cbegin(); it != field.values.cend(); ++it)
    numbers.insert(numbers.end(), it.value(), it.key().toDouble());
  std::sort(numbers.begin(), numbers.end());
  return numbers.empty() ? 0 : numbers[std::min(numbers.size() - 1, size_t(part * numbers.size()))];
}

QJsonObject labelsOf(Material const& of, FieldSurvey const& names, FieldSurvey const* size) {
  Lettering const lettering = letteringOf(of);
  QJsonObject symbol = textSymbol(lettering.family, lettering.size, lettering.color);
  symbol.insert("haloColor", "#c0ffffff");
  symbol.insert("haloSize", 0.8);
  if (lettering.spacing > 0) symbol.insert("letterSpacing", lettering.spacing);
  if (lettering.italic) symbol.insert("italic", true);
  QJsonObject labels{{"field", names.name}, {"priority", lettering.priority}, {"symbol", symbol}};
  if (!size) return labels;
  labels.insert("priorityField", size->name);
  double const large = percentile(*size, 0.9);
  if (!(large > size->minimum)) return labels;
  symbol.insert("size", lettering.size * 1.25);
  labels.insert("classes", QJsonArray{QJsonObject{{"minimum", large}, {"symbol", symbol}}});
  return labels;
}

}  // namespace

std::vector<StyledLayer> LayerStyling::style(LayerSurvey const& survey) {
  auto const& counts = survey.counts;
  bool const isPure = counts.size() == 1 && !counts.contains(GeometryKind::Mixed);
  if (isPure || counts.isEmpty())
    return {styleKind(survey, isPure ? counts.firstKey() : survey.description.kind, survey.source)};
  std::vector<StyledLayer> layers;
  for (KindRow const& row : kindRows) {
    if (!counts.contains(row.kind) && !counts.contains(GeometryKind::Mixed)) continue;
    SysCarto::SourceSettings source = survey.source;
    QString const filter = NewLayers::conditionOf(row.kind);
    source.filter = source.filter.isEmpty() ? filter : QStringLiteral("(%1) AND %2").arg(source.filter, filter);
    layers.push_back(styleKind(survey, row.kind, source));
  }
  return layers;
}

StyledLayer LayerStyling::styleKind(LayerSurvey const& survey, GeometryKind kind,
                                    SysCarto::SourceSettings const& source) {
  QString const file = QFileInfo(source.file).completeBaseName();
  QString const name = source.layer.isEmpty() ? file : source.layer;
  KindRow const& row = rowOf(kind);
  Material of{survey, kind, Theme::of(name, kind), pageCm2_, source};
  FieldSurvey const* const names = nameField(survey);
  FieldSurvey const* const size = sizeField(survey);
  FieldSurvey const* const kinds = classField(survey);
  FieldSurvey const* const rate = kind == GeometryKind::Areas ? rateField(survey) : nullptr;
  bool const isLand = kind == GeometryKind::Areas && showsLand(source, survey, area_);
  if (isLand) of.theme = {Theme::Subject::Land};
  bool const isDivided = kind == GeometryKind::Areas && of.theme.subject == Theme::Subject::Land;

  std::optional<Symbolized> look;
  if (rate) look = byRate(of, *rate);
  if (!look && kinds && kind == GeometryKind::Lines && areRoads(*kinds)) look = roads(of, *kinds);
  if (!look && kind == GeometryKind::Points && size) look = bySize(of, *size);
  if (!look && isDivided && names && names->distinct() > 1 && names->distinct() <= maxColoured)
    look = byNeighbours(of, *names);
  if (!look && kinds && of.theme.subject == Theme::Subject::Unknown && kinds->distinct() <= 3 * maxClasses)
    look = byKind(of, *kinds);
  if (!look) {
    QJsonObject symbol = of.theme.symbol(kind, of.fineness);
    bool const hasTheme = !symbol.isEmpty();
    if (!hasTheme)
      symbol = of.plain(kind == GeometryKind::Areas ? MapColors::areas[areaColors_++ % MapColors::areas.size()]
                                                    : MapColors::marks[markColors_++ % MapColors::marks.size()]);
    look = Symbolized{simple(symbol), hasTheme ? Texts::tr("drawn as its name says") : Texts::tr("in one colour"),
                      !isDivided};
  }

  StyledLayer styled;
  styled.name = forPeople(name);
  bool const isPart = source.filter != survey.source.filter;  // of a layer that mixes kinds
  if (isPart) styled.name = Texts::tr("%1 (%2)").arg(styled.name, kindText(kind));
  styled.extent = survey.extent;
  styled.count = survey.count;
  styled.height = row.height;
  QString const field = look->renderer.value("field").toString();
  if (!field.isEmpty() && look->isLegendWorthy)
    styled.legendText = Texts::tr("%1: %2").arg(styled.name, forPeople(field));
  styled.isLegendWorthy = look->isLegendWorthy;
  styled.isLand = isLand;
  styled.reasons << look->reason;
  QJsonObject stored{{"file", source.file}, {"layer", source.layer}};
  if (!source.filter.isEmpty()) stored.insert("filter", source.filter);
  styled.json = {{"type", "feature"},
                 {"name", styled.name},
                 {"source", stored},
                 {"renderer", look->renderer},
                 {"credits", QFileInfo(source.file).fileName()}};
  bool const isCrowded = of.theme.subject == Theme::Subject::Building && survey.count > maxLabelledBuildings;
  if (names && !isCrowded) {
    styled.json.insert("labels", labelsOf(of, *names, size));
    styled.reasons << Texts::tr("labelled by “%1”").arg(names->name);
  }
  return styled;
}
