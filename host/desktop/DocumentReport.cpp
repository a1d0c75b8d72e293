#include "DocumentReport.h"

#include "series/SeriesPages.h"

#include "host/SysCarto/document/DocumentSettings.h"
#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/document/ElementFields.h"
#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/maps/LabelOrder.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysUtility/FileReach.h"
#include "host/SysUtility/JsonFields.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapDocument.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/PageLayout.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QSet>
#include <QVector>

#include <algorithm>

using SysCarto::Element;
using SysCarto::Layer;
using SysCarto::Map;
using SysUtility::_ptr_t;

namespace {

constexpr double labelsPerInch = 300;  // as an export has, if nobody says otherwise

struct KindName {
  int type;
  char const* name;
};
// clang-format off
constexpr KindName elementKinds[] = {
    { 1, QT_TRANSLATE_NOOP("DocumentReport", "marker")},
    { 2, QT_TRANSLATE_NOOP("DocumentReport", "line")},
    { 3, QT_TRANSLATE_NOOP("DocumentReport", "polygon")},
    { 4, QT_TRANSLATE_NOOP("DocumentReport", "rectangle")},
    { 5, QT_TRANSLATE_NOOP("DocumentReport", "ellipse")},
    { 9, QT_TRANSLATE_NOOP("DocumentReport", "text")},
    {10, QT_TRANSLATE_NOOP("DocumentReport", "group")},
    {11, QT_TRANSLATE_NOOP("DocumentReport", "data frame")},
    {12, QT_TRANSLATE_NOOP("DocumentReport", "map surround frame")},
    {13, QT_TRANSLATE_NOOP("DocumentReport", "picture")},
};
constexpr KindName layerKinds[] = {
    { 2, QT_TRANSLATE_NOOP("DocumentReport", "features")},
    { 3, QT_TRANSLATE_NOOP("DocumentReport", "raster")},
};
constexpr char const* uses[] = {  // as SysCarto::DocumentSource::Use counts
    QT_TRANSLATE_NOOP("DocumentReport", "layer"),
    QT_TRANSLATE_NOOP("DocumentReport", "table"),
    QT_TRANSLATE_NOOP("DocumentReport", "picture"),
    QT_TRANSLATE_NOOP("DocumentReport", "series"),
};
constexpr char const* orientations[] = {
    QT_TRANSLATE_NOOP("DocumentReport", "portrait"),
    QT_TRANSLATE_NOOP("DocumentReport", "landscape"),
};
// clang-format on

template <std::size_t count>
QString kindName(KindName const (&kinds)[count], int type) {
  for (KindName const& kind : kinds)
    if (kind.type == type) return QString::fromLatin1(kind.name);
  return QStringLiteral(QT_TRANSLATE_NOOP("DocumentReport", "unknown"));
}

QJsonValue rectangle(_ptr_t<SysGeometry::Envelope> const& envelope) {
  if (!envelope || envelope->IsEmpty()) return QJsonValue::Null;
  return QJsonArray{envelope->GetXMin(), envelope->GetYMin(), envelope->GetXMax(), envelope->GetYMax()};
}

QJsonValue pageJson(SysCarto::Page const* page) {
  if (!page) return QJsonValue::Null;
  SysCarto::FormInfo form;
  SysCarto::Paper::GetFormInfo(page->GetFormID(), form);
  double width = 0.0;
  double height = 0.0;
  page->QuerySize(width, height);
  return QJsonObject{{QStringLiteral("form"), form.key},
                     {QStringLiteral("orientation"), QLatin1String(orientations[page->GetOrientation() == 2 ? 1 : 0])},
                     {QStringLiteral("width"), width},
                     {QStringLiteral("height"), height}};
}

QJsonObject informationJson(SysCarto::PageLayout const& layout) {
  SysUtility::JsonWriter writer;
  SysCarto::DocumentSettings::of(layout).information.list(writer);
  return writer.json();
}

QJsonObject elementJson(_ptr_t<Element> const& element, bool selected) {
  return QJsonObject{{QStringLiteral("handle"), element->GetHandle()},
                     {QStringLiteral("name"), element->GetName()},
                     {QStringLiteral("type"), element->GetType()},
                     {QStringLiteral("kind"), kindName(elementKinds, element->GetType())},
                     {QStringLiteral("envelope"), rectangle(element->GetEnvelope())},
                     {QStringLiteral("selected"), selected},
                     {QStringLiteral("locked"), SysCarto::isLocked(*element)},
                     {QStringLiteral("hidden"), !SysCarto::ElementHost::isSwitchedOn(*element)}};
}

QJsonArray elementsJson(IElementContainer const* container) {
  QJsonArray list;
  if (!container) return list;
  QSet<SysCarto::ElementHandle> selected;
  for (auto const& element : container->GetSelectedElements()) selected.insert(element->GetHandle());
  for (auto const& element : container->GetElements())
    list.append(elementJson(element, selected.contains(element->GetHandle())));
  return list;
}

QJsonValue seriesJson(SysCarto::MapDocument const& document) {
  if (!SeriesPages::areIn(document)) return QJsonValue::Null;
  QString problem;
  QStringList warnings;
  auto const pages = SeriesPages::read(document, problem, warnings);
  QJsonObject series{{QStringLiteral("pages"), pages ? pages->count() : 0}};
  if (!problem.isEmpty()) warnings.prepend(problem);
  if (!warnings.isEmpty()) series[QStringLiteral("problems")] = QJsonArray::fromStringList(warnings);
  return series;
}

QJsonObject fileJson(SysCarto::DocumentSource const& source, SysUtility::FileReach const& reach) {
  return {{QStringLiteral("file"), source.file},
          {QStringLiteral("use"), QLatin1String(uses[static_cast<int>(source.use)])},
          {QStringLiteral("name"), source.user},
          {QStringLiteral("outside"), !source.outside(reach).isEmpty()}};
}

QJsonObject connectionJson(SysCarto::DocumentSource const& source) {
  return {{QStringLiteral("connection"), source.connection},
          {QStringLiteral("table"), source.table},
          {QStringLiteral("use"), QLatin1String(uses[static_cast<int>(source.use)])},
          {QStringLiteral("name"), source.user}};
}

QJsonArray filesJson(SysCarto::MapDocument const& document) {
  QJsonArray files;
  auto const layout = document.GetPageLayout();
  auto const reach = SysUtility::FileReach::ofDocument(document.GetPath());
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>())
    files.append(source.connection.isEmpty() ? fileJson(source, reach) : connectionJson(source));
  return files;
}

// Of a layer that was labelled just now.
QJsonValue labelsJson(Layer const& layer) {
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(&layer);
  if (!vector || !vector->IsAnnotationVisible()) return QJsonValue::Null;
  SysCarto::LabelCount const count = vector->labelCount();
  return QJsonObject{{QStringLiteral("wanted"), count.wanted}, {QStringLiteral("placed"), count.placed}};
}

_ptr_t<SysCarto::MapFrameElement> frameOf(Map const& map, SysCarto::PageLayout const& layout) {
  for (auto const& element : layout.GetGraphicsContainer()->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
    if (frame && frame->GetMap().get() == &map) return frame;
  }
  return nullptr;
}

// Of a map that was labelled just now. A text that bends has corners for each letter.
QJsonObject labelsJson(SysCarto::MapFrameElement const& frame) {
  SysCarto::LabelCount all;
  QJsonArray shown;
  QTransform const toPage = SysCarto::mapToPage(frame);
  QList<_ptr_t<SysCarto::VectorLayer>> layers;
  for (auto const& layer : frame.GetMap()->GetLayers())
    if (auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer)) layers << vector;
  for (auto const& vector : SysCarto::inLabelOrder(layers, frame.GetMap()->scale())) {
    all.wanted += vector->labelCount().wanted;
    all.placed += vector->labelCount().placed;
    auto const& pieces = vector->placedLabels();
    for (auto piece = pieces.begin(); piece != pieces.end();) {
      auto const& first = *piece;
      QJsonArray corners;
      for (; piece != pieces.end() && piece->label == first.label; ++piece)
        for (QPointF const& corner : piece->area) {
          QPointF const place = toPage.map(corner);
          corners.append(QJsonArray{place.x(), place.y()});
        }
      shown.append(QJsonObject{{QStringLiteral("text"), first.name},
                               {QStringLiteral("layer"), vector->GetName()},
                               {QStringLiteral("corners"), corners}});
    }
  }
  return QJsonObject{
      {QStringLiteral("wanted"), all.wanted}, {QStringLiteral("placed"), all.placed}, {QStringLiteral("shown"), shown}};
}

QJsonObject layerJson(_ptr_t<Layer> const& layer, bool countsLabels) {
  QJsonArray groups;
  for (auto const& group : SysCarto::LayerHost::groups(*layer)) groups.append(group->name());
  return QJsonObject{{QStringLiteral("name"), layer->GetName()},
                     {QStringLiteral("type"), layer->GetType()},
                     {QStringLiteral("kind"), kindName(layerKinds, layer->GetType())},
                     {QStringLiteral("groups"), groups},
                     {QStringLiteral("labels"), countsLabels ? labelsJson(*layer) : QJsonValue(QJsonValue::Null)},
                     {QStringLiteral("visible"), layer->IsVisible()}};
}

QJsonObject mapJson(_ptr_t<Map> const& map, SysCarto::PageLayout const& layout, bool countsLabels) {
  auto const frame = countsLabels ? frameOf(*map, layout) : nullptr;
  if (frame) SysCarto::placeLabels(*frame, labelsPerInch);
  QJsonArray layers;
  for (auto const& layer : map->GetLayers()) layers.append(layerJson(layer, countsLabels));
  return QJsonObject{{QStringLiteral("name"), map->GetName()},
                     {QStringLiteral("focus"), map == layout.GetFocusMap()},
                     {QStringLiteral("scale"), map->scale()},
                     {QStringLiteral("extent"), rectangle(map->GetExtent())},
                     {QStringLiteral("rotation"), map->GetRotation()},
                     {QStringLiteral("layers"), layers},
                     {QStringLiteral("labels"), frame ? labelsJson(*frame) : QJsonValue(QJsonValue::Null)}};
}

// What a terminal takes for the text: two columns for a Chinese character.
int columnsOf(QString const& text) {
  return text.size() + static_cast<int>(std::count_if(text.begin(), text.end(), [](QChar character) {
           return character.script() == QChar::Script_Han;
         }));
}

// Columns as wide as their widest cell, two spaces between them.
QString table(QVector<QStringList> const& rows) {
  QVector<int> widths;
  for (QStringList const& row : rows)
    for (int column = 0; column < row.size(); ++column) {
      if (column == widths.size()) widths.append(0);
      widths[column] = qMax(widths.at(column), columnsOf(row.at(column)));
    }
  QString text;
  for (QStringList const& row : rows) {
    QString line = QStringLiteral("  ");
    for (int column = 0; column < row.size(); ++column)
      line += row.at(column) + QString(widths.at(column) - columnsOf(row.at(column)) + 2, QLatin1Char(' '));
    while (line.endsWith(QLatin1Char(' '))) line.chop(1);
    text += line + QLatin1Char('\n');
  }
  return text;
}

class ReportText {
  Q_DECLARE_TR_FUNCTIONS(DocumentReport)

public:
  static QString page(QJsonObject const& page);
  static QString elements(QJsonArray const& elements);
  static QString map(QJsonObject const& map);
  static QString series(QJsonObject const& series);
  static QString files(QJsonArray const& files);

private:
  static QString formatted(QJsonValue const& rectangle, int decimals);
  static QString labels(QJsonObject const& count);

  // The JSON is for programs and has the word in English.
  static QString word(QJsonValue const& english) { return tr(english.toString().toLatin1().constData()); }
};

QString ReportText::formatted(QJsonValue const& rectangle, int decimals) {
  QStringList numbers;
  for (QJsonValue const& number : rectangle.toArray())
    numbers.append(QString::number(number.toDouble(), 'f', decimals));
  return numbers.isEmpty() ? tr("empty") : numbers.join(QStringLiteral("  "));
}

QString ReportText::page(QJsonObject const& page) {
  if (page.isEmpty()) return tr("No page") + QLatin1Char('\n');
  return tr("Page: %1, %2, %3 × %4 cm")
             .arg(page[QStringLiteral("form")].toString(), word(page[QStringLiteral("orientation")]))
             .arg(page[QStringLiteral("width")].toDouble())
             .arg(page[QStringLiteral("height")].toDouble()) +
         QLatin1Char('\n');
}

QString ReportText::elements(QJsonArray const& elements) {
  QVector<QStringList> rows;
  if (!elements.isEmpty()) rows.append({tr("handle"), tr("kind"), tr("xmin  ymin  xmax  ymax (cm)"), tr("name")});
  for (QJsonValue const& value : elements) {
    QJsonObject const element = value.toObject();
    QString name = element[QStringLiteral("name")].toString();
    if (element[QStringLiteral("selected")].toBool()) name += tr(" (selected)");
    if (element[QStringLiteral("locked")].toBool()) name += tr(" (locked)");
    rows.append({QString::number(element[QStringLiteral("handle")].toInt()), word(element[QStringLiteral("kind")]),
                 formatted(element[QStringLiteral("envelope")], 2), name.trimmed()});
  }
  return tr("Elements: %1").arg(elements.size()) + QLatin1Char('\n') + table(rows);
}

QString ReportText::series(QJsonObject const& series) {
  QString text = tr("Series: %1 pages").arg(series[QStringLiteral("pages")].toInt()) + QLatin1Char('\n');
  for (QJsonValue const& problem : series[QStringLiteral("problems")].toArray())
    text += QStringLiteral("  ") + problem.toString() + QLatin1Char('\n');
  return text;
}

QString ReportText::files(QJsonArray const& files) {
  QVector<QStringList> rows;
  for (QJsonValue const& value : files) {
    QJsonObject const file = value.toObject();
    QString const place = file[QStringLiteral("outside")].toBool() ? tr("outside") : QString();
    QString const connection = file[QStringLiteral("connection")].toString();
    QString const where = connection.isEmpty()
                              ? file[QStringLiteral("file")].toString()
                              : tr("connection %1, table %2").arg(connection, file[QStringLiteral("table")].toString());
    rows.append({word(file[QStringLiteral("use")]), place, where, file[QStringLiteral("name")].toString()});
  }
  return files.isEmpty() ? QString() : tr("Files: %1").arg(files.size()) + QLatin1Char('\n') + table(rows);
}

QString ReportText::labels(QJsonObject const& count) {
  return count.isEmpty() ? QString()
                         : tr("%1 of %2 labels placed")
                               .arg(count[QStringLiteral("placed")].toInt())
                               .arg(count[QStringLiteral("wanted")].toInt());
}

QString ReportText::map(QJsonObject const& map) {
  QVector<QStringList> rows;
  for (QJsonValue const& value : map[QStringLiteral("layers")].toArray()) {
    QJsonObject const layer = value.toObject();
    QStringList path;
    for (QJsonValue const& group : layer[QStringLiteral("groups")].toArray()) path << group.toString();
    path << layer[QStringLiteral("name")].toString();
    rows.append({word(layer[QStringLiteral("kind")]),
                 layer[QStringLiteral("visible")].toBool() ? tr("shown") : tr("hidden"),
                 path.join(QStringLiteral(" / ")), labels(layer[QStringLiteral("labels")].toObject())});
  }
  QString name = map[QStringLiteral("name")].toString();
  if (map[QStringLiteral("focus")].toBool()) name += tr(" (focus)");
  if (rows.isEmpty()) return tr("Map: %1, no layers").arg(name) + QLatin1Char('\n');
  return tr("Map: %1, scale 1:%2, extent %3")
             .arg(name, QString::number(map[QStringLiteral("scale")].toDouble(), 'f', 0),
                  formatted(map[QStringLiteral("extent")], 3)) +
         QLatin1Char('\n') + table(rows);
}

}  // namespace

QJsonObject documentJson(SysCarto::MapDocument const& document, bool countsLabels) {
  QList<_ptr_t<Map>> maps;
  document.GetMaps(maps);
  QJsonArray mapList;
  auto const layout = document.GetPageLayout();
  for (auto const& map : maps) mapList.append(mapJson(map, *layout, countsLabels));
  return QJsonObject{
      {QStringLiteral("information"), layout ? informationJson(*layout) : QJsonObject()},
      {QStringLiteral("page"), layout ? pageJson(layout->GetPage()) : QJsonValue(QJsonValue::Null)},
      {QStringLiteral("elements"), elementsJson(layout ? layout->GetGraphicsContainer() : nullptr)},
      {QStringLiteral("maps"), mapList},
      {QStringLiteral("series"), seriesJson(document)},
      {QStringLiteral("files"), filesJson(document)},
      {QStringLiteral("view"),
       QJsonObject{{QStringLiteral("extent"), layout ? rectangle(layout->GetExtent()) : QJsonValue(QJsonValue::Null)}}},
  };
}

QString documentText(QJsonObject const& report) {
  QString const title = report[QStringLiteral("information")].toObject()[QStringLiteral("title")].toString();
  QString text = (title.isEmpty() ? title : title + QLatin1Char('\n')) +
                 ReportText::page(report[QStringLiteral("page")].toObject()) +
                 ReportText::elements(report[QStringLiteral("elements")].toArray());
  QJsonValue const series = report[QStringLiteral("series")];
  if (series.isObject()) text += ReportText::series(series.toObject());
  for (QJsonValue const& map : report[QStringLiteral("maps")].toArray()) text += ReportText::map(map.toObject());
  text += ReportText::files(report[QStringLiteral("files")].toArray());
  return text.trimmed();
}
