#include "DataReport.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <cmath>

using SysCarto::DataFile;
using SysCarto::FieldDescription;
using SysCarto::LayerDescription;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataReport)
};

constexpr char const* kinds[] = {
    QT_TRANSLATE_NOOP("DataReport", "no geometry"), QT_TRANSLATE_NOOP("DataReport", "points"),
    QT_TRANSLATE_NOOP("DataReport", "lines"),       QT_TRANSLATE_NOOP("DataReport", "areas"),
    QT_TRANSLATE_NOOP("DataReport", "mixed"),       QT_TRANSLATE_NOOP("DataReport", "raster"),
};
constexpr char const* fieldKinds[] = {"text", "integer", "real", "date", "other"};

constexpr int significantDigits = 5;  // of the extent's sides

QJsonObject fieldJson(FieldDescription const& field) {
  return {{QStringLiteral("name"), field.name},
          {QStringLiteral("kind"), QLatin1String(fieldKinds[static_cast<int>(field.kind)])}};
}

QJsonObject layerJson(LayerDescription const& layer) {
  SysGeometry::Box const& extent = layer.extent;
  QJsonArray fields;
  for (FieldDescription const& field : layer.fields) fields << fieldJson(field);
  QJsonObject json{{QStringLiteral("name"), layer.name},
                   {QStringLiteral("kind"), QLatin1String(kinds[static_cast<int>(layer.kind)])},
                   {QStringLiteral("count"), layer.count < 0 ? QJsonValue() : QJsonValue(layer.count)},
                   {QStringLiteral("coordinateSystem"), layer.coordinateSystem},
                   {QStringLiteral("coordinateSystemName"), layer.coordinateSystemName},
                   {QStringLiteral("extent"),
                    extent.isEmpty() ? QJsonValue() : QJsonArray{extent.xmin, extent.ymin, extent.xmax, extent.ymax}},
                   {QStringLiteral("fields"), fields}};
  for (auto const& [key, column] : {std::make_pair("xField", layer.xField), std::make_pair("yField", layer.yField),
                                    std::make_pair("geometryField", layer.geometryField)})
    if (!column.isEmpty()) json[QLatin1String(key)] = column;
  return json;
}

QString layerText(LayerDescription const& layer) {
  QStringList parts{kindText(layer.kind)};
  bool const isRaster = layer.kind == SysCarto::GeometryKind::Raster;
  for (auto const& one : layer.metadata)
    if (isRaster) parts << QStringLiteral("%1: %2").arg(one.first, one.second);
  if (layer.count >= 0 && !isRaster) parts << Texts::tr("%1 features").arg(QLocale().toString(layer.count));
  if (!layer.coordinateSystemName.isEmpty()) parts << layer.coordinateSystemName;
  if (layer.coordinateSystem.size() < 30 && !layer.coordinateSystem.isEmpty()) parts << layer.coordinateSystem;
  if (!layer.extent.isEmpty()) parts << extentText(layer.extent);
  if (!layer.xField.isEmpty()) parts << Texts::tr("placed by the columns %1 and %2").arg(layer.xField, layer.yField);
  if (!layer.geometryField.isEmpty()) parts << Texts::tr("placed by the column %1").arg(layer.geometryField);
  QStringList fields;
  for (FieldDescription const& field : layer.fields) fields << field.name;
  QString text = QStringLiteral("  %1: %2").arg(layer.name, parts.join(QStringLiteral("; ")));
  if (!fields.isEmpty())
    text += QLatin1String("\n    ") +
            (isRaster ? Texts::tr("bands: %1") : Texts::tr("fields: %1")).arg(fields.join(QStringLiteral(", ")));
  return text;
}

}  // namespace

QString kindText(SysCarto::GeometryKind kind) { return Texts::tr(kinds[static_cast<int>(kind)]); }

QString extentText(SysGeometry::Box const& extent) {
  if (extent.isEmpty()) return QString();
  double const side = std::max({extent.xmax - extent.xmin, extent.ymax - extent.ymin, 1e-6});
  int const decimals = std::clamp(significantDigits - static_cast<int>(std::ceil(std::log10(side))), 0, 9);
  QStringList numbers;
  for (double const number : {extent.xmin, extent.ymin, extent.xmax, extent.ymax})
    numbers << QString::number(number, 'f', decimals);
  return numbers.join(QStringLiteral(", "));
}

QJsonObject dataJson(DataFile const& file) {
  QJsonArray layers;
  for (LayerDescription const& layer : file.layers) layers << layerJson(layer);
  return {
      {QStringLiteral("file"), file.path}, {QStringLiteral("format"), file.format}, {QStringLiteral("layers"), layers}};
}

QString dataText(DataFile const& file) {
  QStringList lines{QStringLiteral("%1 (%2)").arg(file.path, file.format)};
  for (LayerDescription const& layer : file.layers) lines << layerText(layer);
  return lines.join(QLatin1Char('\n'));
}
