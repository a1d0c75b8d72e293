#include "NewMap.h"

#include "MapTemplate.h"
#include "PageComposition.h"
#include "RoundScale.h"

#include "host/SysCarto/document/ElementClip.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WatchedWork.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GroundScale.h"
#include "host/desktop/styling/Bulk.h"
#include "host/desktop/styling/LayerStyling.h"
#include "host/desktop/styling/MapColors.h"
#include "host/desktop/styling/ProjectionChoice.h"
#include "host/desktop/styling/ShownArea.h"

#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

using SysCarto::MapDocument;
using SysCarto::MapDocumentHost;
using SysCarto::MapFrameElement;
using SysCarto::VectorLayer;
using SysGeometry::Box;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr double margin = 0.04;                          // of the extent, on each side
QLatin1String const mark("the map that is being made");  // its name until it is found among those of a template
constexpr double globeMargin = 0.005;
constexpr double square = 1.05;       // the ratio of the sides up to which an area counts as one
constexpr double leastMetres = 2000;  // that a map shows, of a single place

Box boxOf(VectorLayer const& layer, bool hasOutliers) {
  if (!hasOutliers) return layer.extent();
  BoxSample boxes;
  for (SysCarto::Feature const& feature : layer.features().features) boxes.add(feature.box);
  return Bulk::of(boxes).box;
}

QString fieldsOf(SysCarto::LayerDescription const& layer) {
  QStringList names;
  for (size_t i = 0; i < std::min<size_t>(layer.fields.size(), 30); ++i) names << layer.fields[i].name;
  return names.join(QLatin1String(", "));
}

class NewMap {
  Q_DECLARE_TR_FUNCTIONS(NewMap)

public:
  NewMap(NewMapRequest const& request, MapDocument& document, SysCarto::ReadProgress const& progress)
      : request_(request), document_(document) {
    if (progress)
      progress_ = [this, progress](qint64 read, qint64 count) {
        return !(result_.wasStopped = result_.wasStopped || !progress(read, count));
      };
  }
  NewMapResult run();

private:
  using Step = bool (NewMap::*)();

  // In this order. Each answers whether to go on; if not, there is a problem.
  bool check();
  bool survey();
  bool chooseSystem();
  bool choosePage();
  bool style();
  bool open();
  bool showAll();
  bool compose();

  bool fail(QString const& problem);
  void explain(QString const& what, QString const& why) { result_.explanation << what + QStringLiteral(": ") + why; }
  bool surveyFile(QString const& file, QString const& layer, bool isOfFolder);
  QString title() const;
  bool isGlobe() const { return system_.isGlobe; }
  bool hasSea() const;
  QJsonObject mapJson() const;
  QJsonObject pageJson() const;
  QJsonObject documentJson();
  _ptr_t<MapFrameElement> frame() const;
  void placeFrame(QRectF const& place);
  QJsonArray legendEntries() const;
  QRectF projectedArea() const;
  Box drawnBy(QJsonObject const& surround);
  QSizeF legendSize(QSizeF const& within);
  QJsonObject aligned(QJsonObject surround);
  bool isFree(QRectF const& place) const;
  QList<_ptr_t<SysCarto::Element>> elementsOf(QJsonArray const& elements);

  NewMapRequest const request_;
  MapDocument& document_;
  NewMapResult result_;
  SysCarto::ReadProgress progress_;
  std::optional<MapTemplate> template_;
  std::vector<LayerSurvey> surveys_;
  QStringList tables_;  // of texts, whose places are not known
  DataPlace place_;
  ProjectionChoice system_{};
  QSizeF page_;
  std::vector<StyledLayer> layers_;
  bool hasGraticule_ = false;
  _ptr_t<SysCarto::Map> map_;
};

bool NewMap::fail(QString const& problem) {
  result_.problem = problem;
  return false;
}

NewMapResult NewMap::run() {
  for (Step const step : {&NewMap::check, &NewMap::survey, &NewMap::chooseSystem, &NewMap::choosePage, &NewMap::style,
                          &NewMap::open, &NewMap::showAll, &NewMap::compose})
    if (!(this->*step)()) break;
  return result_;
}

bool NewMap::check() {
  QString const problem = request_.problem();
  if (!problem.isEmpty() || request_.templateFile.isEmpty()) return problem.isEmpty() || fail(problem);
  template_.emplace();
  return template_->read(request_.templateFile, result_.problem);
}

bool NewMap::survey() {
  for (NewMapRequest::Data const& data : request_.data) {
    QFileInfo const named(data.file);
    QString const path = SysCarto::absoluteOrigin(data.file);
    for (QString const& file : named.isDir() ? SysCarto::dataFilesIn(path) : QVector<QString>{path})
      if (!surveyFile(file, data.layer, named.isDir())) return false;
  }
  if (surveys_.empty() && !tables_.isEmpty())
    return fail(tr("No columns of coordinates are known in %1. Call two columns of numbers lon and lat, or x and y.")
                    .arg(tables_.join(QLatin1String("; "))));
  if (surveys_.empty())
    return fail(request_.where.isEmpty()
                    ? tr("There is nothing to draw: no layer of %1 has geometries.").arg(request_.data.first().file)
                    : tr("There is nothing to draw: the filter “%1” suits no layer of the data.").arg(request_.where));
  place_ = DataPlace::of(surveys_);
  return true;
}

// A filter on all the data suits the layers that have its fields. What can't be read in a folder is left out, and told.
bool NewMap::surveyFile(QString const& file, QString const& layer, bool isOfFolder) {
  auto const known = SysCarto::watched([file] { return SysCarto::describeFile(file); }, progress_);
  if (!known) return false;
  if (!known->error.isEmpty()) {
    if (!isOfFolder) return fail(known->error);
    result_.warnings << known->error;
    return true;
  }
  QStringList names;
  bool isKnown = layer.isEmpty();
  for (SysCarto::LayerDescription const& one : known->layers) {
    names << one.name;
    if (!layer.isEmpty() && one.name != layer) continue;
    isKnown = true;
    if (SysCarto::isGeocentric(one.coordinateSystem))
      return fail(
          tr("The layer “%1” of “%2” can't be shown: its coordinates are geocentric, as X, Y and Z; convert the "
             "data to longitude and latitude.")
              .arg(one.name, file));
    QString problem;
    auto source = SysCarto::SourceSettings::of(file, one.name);
    source.filter = request_.where;
    auto const survey = surveyLayer(source, one, progress_, problem);
    if (result_.wasStopped) return false;
    if (!survey && request_.where.isEmpty() && !isOfFolder) return fail(problem);
    if (!survey) {
      result_.warnings << tr("The layer “%1” is left out. %2").arg(one.name, problem);
      continue;
    }
    bool const isTable = survey->count == 0 && one.kind == SysCarto::GeometryKind::None && one.count != 0;
    if (isTable && known->format == QLatin1String("CSV"))
      tables_ << tr("%1 (it has: %2)").arg(SysCarto::titleOf(file), fieldsOf(one));
    if (isTable || (layer.isEmpty() && isPartOfTrack(one.name, *known))) continue;
    if (survey->count == 0 && !request_.where.isEmpty())
      result_.warnings << tr("The layer “%1” of %2 has no features to show.").arg(one.name, SysCarto::titleOf(file));
    surveys_.push_back(*survey);
  }
  if (!isKnown)
    return fail(tr("The file “%1” has no layer “%2”; it has: %3.").arg(file, layer, names.join(QStringLiteral(", "))));
  return true;
}

bool NewMap::chooseSystem() {
  QString const& wanted = request_.coordinateSystem;
  if (!wanted.isEmpty())
    system_ = {wanted, QString::fromUtf8(SysCarto::makeCoordinateSystem(wanted)->GetName()), tr("As asked for."),
               place_.isKnown && place_.area.width() > 300 && place_.area.height() > 100};
  else
    system_ = ProjectionChoice::forData(place_);
  explain(tr("Coordinate system %1 (%2)").arg(system_.definition, system_.name), system_.reason);
  if (system_.definition.isEmpty())
    result_.warnings << tr(
        "No coordinate system is known for the data, so that the map has none, nor a scale. Give the "
        "layers one in their sources' field “coordinateSystem”, and the map with --crs or in its tab "
        "Coordinate System.");
  if (place_.outliers > 0) explain(tr("Extent of the bulk of the data"), place_.outlierText());
  return true;
}

bool NewMap::choosePage() {
  SysCarto::FormInfo form;
  QString const wanted = request_.paper.isEmpty() ? QStringLiteral("A4") : request_.paper;
  for (SysCarto::PageFormID id = 0; SysCarto::Paper::GetFormInfo(id, form); ++id)
    if (form.key.compare(wanted, Qt::CaseInsensitive) == 0) page_ = {form.width, form.height};
  QRectF const shape = projectedArea();
  SysGeometry::Box plain;
  for (LayerSurvey const& layer : surveys_) plain.add(layer.box);
  bool const isPlain = system_.definition.isEmpty() && plain.xmin <= plain.xmax;
  QSizeF const size = isPlain ? QSizeF(plain.xmax - plain.xmin, plain.ymax - plain.ymin) : shape.size();
  bool const isBroad = isPlain || shape.isValid() ? size.width() > square * size.height() : true;
  bool const isHigh = !isBroad && size.height() > square * size.width();
  if (request_.isLandscape.value_or(isBroad) != (page_.width() > page_.height())) page_.transpose();
  if (template_ || !(place_.isKnown || isPlain)) return true;
  QString const lies = page_.width() > page_.height() ? tr("landscape") : tr("portrait");
  explain(tr("Page %1, %2").arg(wanted, lies), request_.isLandscape ? tr("As asked for.")
                                               : isBroad            ? tr("The data are broader than high.")
                                               : isHigh             ? tr("The data are higher than broad.")
                                                                    : tr("The data are about as broad as high."));
  return true;
}

// What the area is on the map, in map units; not valid where that can't be told.
QRectF NewMap::projectedArea() const {
  return place_.isKnown && !isGlobe() ? mapAreaOf(system_.definition, place_.area) : QRectF();
}

bool NewMap::style() {
  QRectF const place = template_ ? template_->frame() : PageComposition(page_).frame(false);
  ShownArea shown = ShownArea::of(system_.definition, projectedArea(), place.size(), margin);
  if (isGlobe()) shown = {place_.area, true};
  hasGraticule_ = shown.isSmallScale;
  LayerStyling styling(place.width() * place.height(), hasGraticule_ ? shown.area : GlobeArea());
  if (isGlobe()) styling.reserve(tr("Sea"));
  layers_ = styling.style(surveys_);
  for (StyledLayer const& layer : layers_)
    explain(tr("Layer “%1”").arg(layer.name), layer.reasons.join(QStringLiteral("; ")));
  if (hasSea()) explain(tr("Sea around the land"), tr("The data hold all the land that the map shows."));
  return true;
}

bool NewMap::hasSea() const {
  return std::any_of(layers_.begin(), layers_.end(), [](StyledLayer const& one) { return one.isLand; });
}

QString NewMap::title() const {
  if (!request_.title.isEmpty()) return request_.title;
  if (layers_.size() == 1) return layers_.front().name;
  QString name = QFileInfo(SysCarto::titleOf(surveys_.front().source.origin()))
                     .completeBaseName()
                     .replace(QLatin1Char('_'), QLatin1Char(' '));
  return name.left(1).toUpper() + name.mid(1);
}

QJsonObject NewMap::mapJson() const {
  QJsonArray layers;
  if (isGlobe())
    layers.append(QJsonObject{
        {"type", "feature"},
        {"name", tr("Sea")},
        {"source", QJsonObject{{"data", "globe"}}},
        {"renderer", QJsonObject{{"type", "simple"},
                                 {"symbol", fillSymbol(hasSea() ? MapColors::sea : MapColors::ground, "", 0)}}}});
  for (StyledLayer const& layer : layers_) layers.append(layer.json);
  return {
      {"name", mark}, {"coordinateSystem", system_.definition}, {"bounds", QJsonArray{0, 0, 1, 1}}, {"layers", layers}};
}

QJsonObject NewMap::pageJson() const {
  bool const isLandscape = page_.width() > page_.height();
  QJsonObject page{{"form", request_.paper.isEmpty() ? QStringLiteral("A4") : request_.paper},
                   {"background", QJsonObject{{"symbol", fillSymbol(MapColors::paper, "", 0)}}}};
  if (isLandscape) page.insert("orientation", "landscape");
  return page;
}

QJsonObject NewMap::documentJson() {
  if (template_) {
    QJsonObject const json = template_->filled(mapJson(), legendEntries(), title());
    QStringList const kept = template_->keptTexts();
    if (!kept.isEmpty())
      explain(tr("Texts of the template that stay as they are"), kept.join(QStringLiteral("; ")).simplified());
    return json;
  }
  PageComposition const page(page_);
  return {{"format", "plotvane-document"},
          {"version", 1},
          {"page", pageJson()},
          {"maps", QJsonArray{mapJson()}},
          {"elements", QJsonArray{page.dataFrame(page.frame(hasGraticule_), isGlobe(),
                                                 hasSea() ? MapColors::sea : MapColors::ground, hasGraticule_)}}};
}

bool NewMap::open() {
  QJsonObject const json = documentJson();
  QString const folder = template_ ? QFileInfo(request_.templateFile).absolutePath() : QString();
  bool const isRead = MapDocumentHost::read(document_, json, folder, progress_);
  if (!isRead) return !result_.wasStopped && fail(MapDocumentHost::takeLastFailure());
  if (MapDocumentHost::unreadableSources(document_) > 0) return fail(document_.GetWarnings().join(QLatin1Char('\n')));
  result_.warnings << document_.GetWarnings();
  auto information = SysCarto::PageLayoutHost::information(*document_.GetPageLayout());
  information.title = title();
  SysCarto::PageLayoutHost::setInformation(*document_.GetPageLayout(), information);
  QList<_ptr_t<SysCarto::Map>> maps;
  document_.GetMaps(maps);
  for (auto const& map : qAsConst(maps))
    if (map->GetName() == mark) map_ = map;
  map_->SetName(title());
  return true;
}

_ptr_t<MapFrameElement> NewMap::frame() const {
  for (auto const& element : document_.GetPageLayout()->GetGraphicsContainer()->GetElements())
    if (auto const frame = ptr_cast<MapFrameElement>(element))
      if (frame->GetMap() == map_) return frame;
  return nullptr;
}

// All of the data, at a scale that a person would write.
bool NewMap::showAll() {
  Box all;
  for (auto const& layer : map_->GetLayers()) {
    bool const hasOutliers = std::any_of(layers_.begin(), layers_.end(), [&](StyledLayer const& styled) {
      return styled.name == layer->GetName() && styled.outliers > 0;
    });
    auto const vector = ptr_cast<VectorLayer>(layer);
    all.add(vector ? boxOf(*vector, hasOutliers) : SysCarto::boxOf(*layer));
  }
  if (!(all.xmin <= all.xmax)) all = {-1, -1, 1, 1};
  double const x = (all.xmin + all.xmax) / 2, y = (all.ymin + all.ymax) / 2;
  double const unit = SysCarto::GroundScale(system_.definition).metresPerUnit(x, y, 1e-5 * std::max(std::abs(x), 1.0));
  double const least = all.xmin == all.xmax && all.ymin == all.ymax ? leastMetres / unit : 0;
  double const around = 1 + 2 * (isGlobe() ? globeMargin : margin);
  double const halfWidth = around * std::max(all.xmax - all.xmin, least) / 2;
  double const halfHeight = around * std::max(all.ymax - all.ymin, least) / 2;
  map_->SetExtent(make<Envelope>(x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight));
  double const scale = map_->GetDisplayTransformation()->GetMapScale();
  auto const rounded = map_->GetExtent();
  rounded->Expand(roundScale(scale) / scale, roundScale(scale) / scale, true);
  map_->SetExtent(rounded);
  return true;
}

void NewMap::placeFrame(QRectF const& place) {
  auto const element = frame();
  auto const clone = element->Clone();
  clone->SetGeometry(make<Envelope>(place.left(), place.top(), place.right(), place.bottom()));
  document_.GetPageLayout()->GetGraphicsContainer()->ReplaceElement(element->GetHandle(), clone);
}

// The layers that a legend lists, from above.
QJsonArray NewMap::legendEntries() const {
  QJsonArray entries;
  for (auto layer = layers_.rbegin(); layer != layers_.rend(); ++layer) {
    if (!layer->isLegendWorthy) continue;
    QJsonObject entry{{"layer", layer->name}};
    if (!layer->legendText.isEmpty()) entry.insert("text", layer->legendText);
    entries.append(entry);
  }
  return entries;
}

QList<_ptr_t<SysCarto::Element>> NewMap::elementsOf(QJsonArray const& elements) {
  QJsonObject const clip{{"format", "plotvane-elements"}, {"version", 1}, {"elements", elements}, {"otherMaps", 1}};
  return SysCarto::ElementClip::read({QJsonDocument(clip).toJson(), {map_}}, map_, result_.problem);
}

// What a surround draws, in centimetres of the page; of nothing where it draws nothing.
Box NewMap::drawnBy(QJsonObject const& surround) {
  auto const made = elementsOf({surround});
  auto const frame = made.isEmpty() ? nullptr : ptr_cast<SysCarto::MapSurroundFrame>(made.first());
  Box all;
  if (!frame) return all;
  auto const transformation = document_.GetPageLayout()->GetDisplayTransformation();
  for (auto const& piece : frame->GetMapSurround()->GetElements()) {
    auto const boundary = piece->GetBoundary(transformation)->GetEnvelope();
    all.add({boundary->GetXMin(), boundary->GetYMin(), boundary->GetXMax(), boundary->GetYMax()});
  }
  return all;
}

// As large as it would be with as much room as that.
QSizeF NewMap::legendSize(QSizeF const& within) {
  if (legendEntries().isEmpty()) return {};
  Box const drawn = drawnBy(PageComposition(page_).legend({QPointF(0, 0), within}, legendEntries(), false));
  constexpr double slack = 1.02;
  return drawn.xmin <= drawn.xmax ? QSizeF(drawn.xmax * slack, (within.height() - drawn.ymin) * slack) : QSizeF();
}

// Surrounds are centred in their rectangles, and these two are to begin at the left: in no more room than they take.
QJsonObject NewMap::aligned(QJsonObject surround) {
  Box const drawn = drawnBy(surround);
  QJsonArray sides = surround.value("rectangle").toArray();
  constexpr double slack = 1.02;
  if (drawn.xmin <= drawn.xmax) sides.replace(2, sides.at(0).toDouble() + slack * (drawn.xmax - drawn.xmin));
  surround.insert("rectangle", sides);
  return surround;
}

// Whether nothing of the data lies in a rectangle of the page.
bool NewMap::isFree(QRectF const& place) const {
  auto const element = frame();
  auto const sides = element->GetGeometry()->GetEnvelope();
  auto const extent = element->GetMap()->GetExtent();
  double const unitsPerCm = extent->GetWidth() / sides->GetWidth();
  auto const x = [&](double cm) { return extent->GetXMin() + (cm - sides->GetXMin()) * unitsPerCm; };
  auto const y = [&](double cm) { return extent->GetYMin() + (cm - sides->GetYMin()) * unitsPerCm; };
  // The map, looked at through a window that is just the place.
  constexpr double pixelsPerCm = 1000;
  auto const there = element->GetMap()->GetDisplayTransformation()->Clone();
  there->SetDeviceFrame(QRectF(QPointF(), place.size() * pixelsPerCm).toRect());
  there->SetVisibleBounds(make<Envelope>(x(place.left()), y(place.top()), x(place.right()), y(place.bottom())));
  Box const window{x(place.left()), y(place.top()), x(place.right()), y(place.bottom())};
  for (auto const& layer : element->GetMap()->GetLayers()) {
    auto const vector = ptr_cast<VectorLayer>(layer);
    if (!vector && SysCarto::boxOf(*layer).meets(window)) return false;
    bool const isGlobe = vector && vector->source().data == SysCarto::SourceSettings::Data::Globe;
    if (!isGlobe && SysCarto::LayerHost::classesWithin(*layer, there).contains(true)) return false;
  }
  return true;
}

bool NewMap::compose() {
  if (template_) return true;
  PageComposition const page(page_);
  QRectF place = page.frame(hasGraticule_);
  QSizeF const size = legendSize(page.roomForLegend(isGlobe()));
  QJsonArray elements{page.title(title())};
  if (!size.isEmpty()) {
    int corner = 0;
    while (corner < 4 && !isFree(page.corner(place, size, corner))) ++corner;
    if (corner < 4) {
      elements.append(page.legend(page.corner(place, size, corner), legendEntries(), true));
      explain(tr("Legend in a corner of the map"), tr("Nothing of the data lies there."));
    } else {
      QRectF const legend = page.beside(place, size, isGlobe(), hasGraticule_);
      placeFrame(place);
      showAll();
      elements.append(page.legend(legend, legendEntries(), false));
      explain(tr("Legend beside the map"), tr("It would hide data."));
    }
  }
  bool const hasScale = !system_.definition.isEmpty();
  for (auto const& element : hasScale ? page.scale(isGlobe()) : QJsonArray())
    elements.append(aligned(element.toObject()));
  bool const hasArrow = projectedArea().isValid() && !hasGraticule_;
  if (hasArrow) elements.append(page.northArrow());
  elements.append(page.credits(hasArrow));
  if (hasArrow) {
    explain(tr("A north arrow"), tr("North is up all over the map."));
    explain(tr("No graticule"), tr("The scale is large."));
  } else if (hasGraticule_) {
    explain(tr("No north arrow"), tr("The graticule shows where north is."));
    explain(tr("A graticule"), tr("The scale is small."));
  }
  document_.GetPageLayout()->GetGraphicsContainer()->AddElements(elementsOf(elements));
  return result_.problem.isEmpty();
}

}  // namespace

QString NewMapRequest::problem() const {
  struct Texts {
    Q_DECLARE_TR_FUNCTIONS(NewMap)
  };
  if (data.isEmpty()) return Texts::tr("No data are named; give a file of data.");
  QString const wrong = SysCarto::checkCoordinateSystem(coordinateSystem);
  if (!wrong.isEmpty()) return Texts::tr("The coordinate system can't be taken: %1.").arg(wrong);
  SysCarto::FormInfo form;
  QStringList names;
  for (SysCarto::PageFormID id = 0; SysCarto::Paper::GetFormInfo(id, form); ++id)
    if (form.key != QLatin1String("Custom")) names << form.key;
  if (paper.isEmpty() || names.contains(paper, Qt::CaseInsensitive)) return QString();
  return Texts::tr("“%1” is no paper; take one of: %2.").arg(paper, names.join(QStringLiteral(", ")));
}

NewMapResult makeNewMap(NewMapRequest const& request, MapDocument& document, SysCarto::ReadProgress const& progress) {
  return NewMap(request, document, progress).run();
}
