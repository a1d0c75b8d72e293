#include "LayerStyling.h"

#include "RasterStyling.h"

#include "FieldChoice.h"
#include "LandMask.h"
#include "MapColors.h"
#include "Theme.h"

#include "host/SysCarto/layers/Classify.h"
#include "host/SysCarto/layers/raster/RasterSource.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysDisplay/SymbolVariation.h"
#include "host/SysUtility/JsonFields.h"
#include "host/desktop/layers/DataReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <cmath>

using SysCarto::GeometryKind;

namespace {

constexpr int flatIsLight = 22;  // percent: a hillshade then darkens slopes, and plains hardly

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerStyling)
};

constexpr int maxClasses = 8;
constexpr int maxColoured = 600;  // areas that get a colour each, so that neighbours differ
constexpr int maxLabelledBuildings = 300;
constexpr int maxBeside = 100;        // scattered areas that have their names beside them
constexpr double leastOutline = 0.1;  // points: a finer line is not printed
constexpr int rampClasses = 5, sizeClasses = 4;

struct KindRow {
  GeometryKind kind;
  double room;            // what a feature takes of the page, against the others
  char const* condition;  // what OGR calls such geometries
};
constexpr KindRow kindRows[] = {
    {GeometryKind::Areas, 1.2,
     "OGR_GEOMETRY IN ('POLYGON', 'MULTIPOLYGON', 'CURVEPOLYGON', 'MULTISURFACE', 'POLYHEDRALSURFACE', 'TIN', "
     "'TRIANGLE', 'GEOMETRYCOLLECTION')"},
    {GeometryKind::Lines, 1.6,
     "OGR_GEOMETRY IN ('LINESTRING', 'MULTILINESTRING', 'CIRCULARSTRING', 'COMPOUNDCURVE', 'MULTICURVE')"},
    {GeometryKind::Points, 0.7, "OGR_GEOMETRY IN ('POINT', 'MULTIPOINT')"},
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

  // Half of an outline lies in the area, and a broad one leaves little of a small area's colour.
  double mostOutline() const {
    constexpr double pointsPerCm = 72 / 2.54, partOfSide = 0.1;
    return partOfSide * std::sqrt(survey.typical * pageCm2) * pointsPerCm;
  }
  bool hasRoomForOutlines() const { return mostOutline() >= leastOutline; }

  // Areas too small to be seen that do not lie side by side: a broad outline makes marks of them.
  bool needMarks() const {
    constexpr double leastSideCm = 0.01, mostOfPage = 0.01;
    return survey.typical * pageCm2 < leastSideCm * leastSideCm && survey.count * survey.typical < mostOfPage;
  }
  QJsonObject fitted(QJsonObject symbol) const {
    constexpr double markWidth = 1.4;
    QJsonObject outline = symbol.take("outline").toObject();
    if (outline.isEmpty() || !(hasRoomForOutlines() || needMarks())) return symbol;
    double const width = outline.value("width").toDouble();
    outline["width"] = needMarks() ? markWidth : std::clamp(width, leastOutline, mostOutline());
    symbol["outline"] = outline;
    return symbol;
  }
  QJsonObject plain(char const* color) const {
    switch (kind) {
      case GeometryKind::Points: return markerSymbol(color, 1.6 + 3.4 * fineness, "#ffffff", fineness > 0.3 ? 0.4 : 0);
      case GeometryKind::Lines: return lineSymbol(color, 0.3 + 0.9 * fineness);
      default: return fitted(fillSymbol(color, MapColors::border, std::max(0.2, 0.35 * fineness)));
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
  // Of a layer that mixes kinds, the survey counts those of all of them.
  bool const isSurveyed = of.source.filter == of.survey.source.filter;
  FieldSurvey const* const field = isSurveyed ? of.survey.field(wanted.field) : nullptr;
  auto const known = field ? field->numbersOf(of.survey.count) : std::nullopt;
  auto classes = classify(known ? *known : SysCarto::readValues(of.source, wanted.field), now, wanted);
  if (!reader.ok() || !classes.problem.isEmpty() || classes.renderer.classes.size() < 2) return std::nullopt;
  SysUtility::JsonWriter writer;
  classes.renderer.list(writer);
  if (!writer.ok()) return std::nullopt;
  return Symbolized{writer.json(), reason.arg(wanted.field)};
}

std::optional<Symbolized> bySize(Material const& of, FieldSurvey const& field, char const* color) {
  SysCarto::ClassifySettings wanted;
  wanted.field = field.name;
  wanted.classes = sizeClasses;
  wanted.sized = true;
  wanted.from = 1.5 + 1.2 * of.fineness;
  wanted.to = wanted.from + 2 + 4 * of.fineness;
  return classified(of, wanted, of.plain(color), Texts::tr("marks sized by “%1”, in natural breaks (Jenks)"));
}

std::optional<Symbolized> byRate(Material const& of, FieldSurvey const& field) {
  SysCarto::ClassifySettings wanted;
  wanted.field = field.name;
  wanted.classes = rampClasses;
  return classified(of, wanted, of.plain(MapColors::land), Texts::tr("shaded by “%1”, in natural breaks (Jenks)"));
}

Symbolized byNeighbours(Material const& of, FieldSurvey const& names) {
  QJsonArray classes;
  auto const groups = groupsOfNeighbours(of.survey, names.name, MapColors::areas.size());
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
    case GeometryKind::Points: return {4.5 + 2.5 * of.fineness, "Lato", MapColors::ink, 0, false, 30};
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
  bool const areIslands = of.kind == GeometryKind::Areas && of.survey.covered < 0.1 && of.survey.count <= maxBeside;
  if (of.kind == GeometryKind::Areas) labels.insert("areaPlace", areIslands ? "outside" : "across");
  if (!size) return labels;
  labels.insert("priorityField", size->name);
  double const large = percentile(*size, 0.9);
  if (!(large > size->minimum)) return labels;
  symbol.insert("size", lettering.size * 1.25);
  labels.insert("classes", QJsonArray{QJsonObject{{"minimum", large}, {"symbol", symbol}}});
  return labels;
}

QJsonObject stored(SysCarto::SourceSettings const& source) {
  QJsonObject json{{"layer", source.layer}};
  for (auto const& [key, text] : {std::make_pair("file", source.file),
                                  {"connection", source.connection},
                                  {"filter", source.filter},
                                  {"coordinateSystem", source.coordinateSystem},
                                  {"xField", source.xField},
                                  {"yField", source.yField},
                                  {"geometryField", source.geometryField}})
    if (!text.isEmpty()) json.insert(QLatin1String(key), text);
  return json;
}

// By which the symbols of a renderer are known; that of a layered one is its topmost.
QStringList colorsIn(QJsonObject const& renderer) {
  QStringList colors;
  auto const add = [&](QJsonValue const& symbol) {
    QJsonArray const layers = symbol["layers"].toArray();
    colors << (layers.isEmpty() ? symbol : layers.last())["color"].toString();
  };
  add(renderer.value("symbol"));
  for (QJsonValue const& one : renderer.value("classes").toArray()) add(one["symbol"]);
  return colors;
}

// What is told by the fields, if there are any that tell something; else by the name of the layer; else one colour.
Symbolized lookOf(Material const& of, FieldSurvey const* names, FieldSurvey const* size, char const* color) {
  using Subject = Theme::Subject;
  FieldSurvey const* const kinds = classField(of.survey);
  FieldSurvey const* const rate = of.kind == GeometryKind::Areas ? rateField(of.survey) : nullptr;
  bool const isDivided = of.kind == GeometryKind::Areas && of.theme.subject == Subject::Land;
  std::optional<Symbolized> look;
  if (rate) look = byRate(of, *rate);
  if (!look && kinds && of.kind == GeometryKind::Lines && areRoads(*kinds)) look = roads(of, *kinds);
  if (!look && of.kind == GeometryKind::Points && size) look = bySize(of, *size, color);
  if (!look && isDivided && names && names->distinct() > 1 && names->distinct() <= maxColoured)
    look = byNeighbours(of, *names);
  if (!look && kinds && of.theme.subject == Subject::Unknown && kinds->distinct() <= 3 * maxClasses)
    look = byKind(of, *kinds);
  if (look) return *look;
  QJsonObject const symbol = of.fitted(of.theme.symbol(of.kind, of.fineness));
  return symbol.isEmpty() ? Symbolized{simple(of.plain(color)), Texts::tr("in one colour"), !isDivided}
                          : Symbolized{simple(symbol), Texts::tr("drawn as its name says"), !isDivided};
}

template <class Colors>
char const* leastUsed(Colors const& colors, QHash<QString, int> const& uses) {
  return *std::min_element(colors.begin(), colors.end(),
                           [&](char const* one, char const* other) { return uses[one] < uses[other]; });
}

}  // namespace

void LayerStyling::notice(SysCarto::Layer const& layer) {
  names_ << layer.GetName();
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(&layer);
  if (!vector) return;
  for (SysCarto::SymbolClass const& one : vector->renderer().classes())
    if (one.symbol) ++uses_[SysDisplay::colorOf(*one.symbol).name()];
}

// A legend knows layers by their names.
QString LayerStyling::freeName(QString const& wanted, QString const& file) {
  QStringList names{wanted};
  for (QString const& origin : {QFileInfo(file).completeBaseName(), QFileInfo(file).dir().dirName()})
    if (forPeople(origin) != wanted) names << Texts::tr("%1 (%2)").arg(wanted, origin);
  auto const isFree = [&](QString const& name) { return !names_.contains(name); };
  auto const found = std::find_if(names.cbegin(), names.cend(), isFree);
  QString name = found == names.cend() ? wanted : *found;
  for (int number = 2; !isFree(name); ++number) name = QStringLiteral("%1 %2").arg(wanted).arg(number);
  names_ << name;
  return name;
}

// What has colours by its kind comes before marks, which may have any.
std::vector<StyledLayer> LayerStyling::style(std::vector<LayerSurvey> const& surveys) {
  std::vector<LayerSurvey const*> sorted;
  for (LayerSurvey const& survey : surveys) sorted.push_back(&survey);
  std::stable_sort(sorted.begin(), sorted.end(), [](LayerSurvey const* one, LayerSurvey const* other) {
    return one->description.kind > other->description.kind;
  });
  std::vector<StyledLayer> layers;
  for (LayerSurvey const* const survey : sorted)
    for (StyledLayer const& layer : styleKinds(*survey)) layers.push_back(layer);
  std::stable_sort(layers.begin(), layers.end(),
                   [](StyledLayer const& one, StyledLayer const& other) { return one.order.isBelow(other.order); });
  return layers;
}

// Heights are tinted, with a hillshade over them.
std::vector<StyledLayer> LayerStyling::styleRaster(LayerSurvey const& survey) {
  SysCarto::SourceSettings const& source = survey.source;
  QString problem;
  QString const table = SysCarto::RasterSource::tablesOf(source.file).contains(source.layer) ? source.layer : QString();
  auto const raster = SysCarto::RasterSource::open({source.file, table, source.coordinateSystem, {}}, problem);
  std::vector<StyledLayer> layers;
  if (!raster) return layers;
  QJsonObject stored{{"file", source.file}};
  if (!table.isEmpty()) stored.insert("layer", table);
  if (!source.coordinateSystem.isEmpty()) stored.insert("coordinateSystem", source.coordinateSystem);
  bool const isSlow = RasterStyling::isSlow(*raster);
  for (RasterLook const& look : RasterStyling::looksOf(*raster)) {
    StyledLayer styled;
    QString const name = forPeople(source.layer);
    styled.name = freeName(look.isRelief ? Texts::tr("%1, hillshade").arg(name) : name, source.file);
    styled.extent = survey.extent;
    styled.order = DrawingOrder::ofRaster(look.isRelief);
    styled.isLegendWorthy = look.isLegendWorthy;
    styled.outliers = 0;
    styled.reasons << look.reason;
    if (isSlow && !look.isRelief)
      styled.reasons << Texts::tr(
          "has no overviews, so that a picture of all of it takes long; make them, as by gdaladdo");
    styled.json = {{"type", "raster"},
                   {"name", styled.name},
                   {"source", stored},
                   {"renderer", look.renderer},
                   {"credits", QFileInfo(source.file).fileName()}};
    if (look.isRelief) {
      styled.json.insert("blend", "multiply");
      styled.json.insert("brightness", flatIsLight);
    }
    layers.push_back(styled);
  }
  return layers;
}

std::vector<StyledLayer> LayerStyling::styleKinds(LayerSurvey const& survey) {
  if (survey.description.kind == GeometryKind::Raster) return styleRaster(survey);
  auto const& counts = survey.counts;
  bool const isPure = counts.size() == 1 && !counts.contains(GeometryKind::Mixed);
  if (isPure || counts.isEmpty())
    return {styleKind(survey, isPure ? counts.firstKey() : survey.description.kind, survey.source)};
  std::vector<StyledLayer> layers;
  for (KindRow const& row : kindRows) {
    bool const isCollected = row.kind == GeometryKind::Areas && counts.contains(GeometryKind::Mixed);
    if (!counts.contains(row.kind) && !isCollected) continue;
    SysCarto::SourceSettings source = survey.source;
    QString const filter = QLatin1String(row.condition);
    source.filter = source.filter.isEmpty() ? filter : QStringLiteral("(%1) AND %2").arg(source.filter, filter);
    layers.push_back(styleKind(survey, row.kind, source));
  }
  return layers;
}

StyledLayer LayerStyling::styleKind(LayerSurvey const& survey, GeometryKind kind,
                                    SysCarto::SourceSettings const& source) {
  QString const file = QFileInfo(source.file).completeBaseName();
  bool const isTable = !source.connection.isEmpty();  // which is told with its schema
  QString const name = isTable                  ? source.layer.section(QLatin1Char('.'), 1)
                       : source.layer.isEmpty() ? file
                                                : source.layer;
  Material of{survey, kind, Theme::of(name, kind), pageCm2_, source};
  bool const isArea = kind != GeometryKind::Lines && kind != GeometryKind::Points;
  bool const isLand = isArea && showsLand(survey, area_);
  if (isLand) of.theme = {Theme::Subject::Land};
  FieldSurvey const* const names = nameField(survey);
  FieldSurvey const* const size = sizeField(survey);
  Symbolized const look =
      lookOf(of, names, size, isArea ? leastUsed(MapColors::areas, uses_) : leastUsed(MapColors::marks, uses_));

  StyledLayer styled;
  bool const isPart = source.filter != survey.source.filter;  // of a layer that mixes kinds
  styled.name =
      freeName(isPart ? Texts::tr("%1 (%2)").arg(forPeople(name), kindText(kind)) : forPeople(name), source.origin());
  styled.extent = survey.extent;
  styled.order = DrawingOrder::of(kind, of.theme, survey.counts.value(kind), survey.largestKm2);
  styled.outliers = survey.outliers;
  QString const field = look.renderer.value("field").toString();
  if (!field.isEmpty() && look.isLegendWorthy)
    styled.legendText = Texts::tr("%1: %2").arg(styled.name, forPeople(field));
  styled.isLegendWorthy = look.isLegendWorthy;
  styled.isLand = isLand;
  styled.reasons << look.reason;
  if (isArea && of.needMarks())
    styled.reasons << Texts::tr("with broad outlines, since most of its areas would be too small to see");
  else if (isArea && !of.hasRoomForOutlines())
    styled.reasons << Texts::tr("without outlines, for which most of its areas are too small");
  for (QString const& color : colorsIn(look.renderer)) ++uses_[color];
  styled.json = {{"type", "feature"},
                 {"name", styled.name},
                 {"source", stored(source)},
                 {"renderer", look.renderer},
                 {"credits", SysCarto::titleOf(source.origin())}};
  bool const isCrowded = of.theme.subject == Theme::Subject::Building && survey.count > maxLabelledBuildings;
  if (names && !isCrowded) {
    styled.json.insert("labels", labelsOf(of, *names, size));
    styled.reasons << Texts::tr("labelled by “%1”").arg(names->name);
  }
  return styled;
}
