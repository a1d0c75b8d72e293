#include "LayerArchive.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::make;

namespace {

constexpr double mostScale = 1e15;

QString translated(char const* text) { return QCoreApplication::translate("LayerArchive", text); }

// The path as the document has it, and the one to open. What may not be opened stays as it was written.
QString storedPath(QString const& file, DocumentContext const& context) {
  if (!context.relativePaths || context.folder.isEmpty() || !DataSource::refusal(file).isEmpty()) return file;
  return QDir(context.folder).relativeFilePath(file);
}

QString pathToOpen(QString const& stored, DocumentContext const& context) {
  if (!DataSource::refusal(stored).isEmpty()) return stored;
  return QDir::cleanPath(QDir(context.folder).absoluteFilePath(stored));
}

void describeSource(Archive& archive, SourceSettings& source, DocumentContext const& context) {
  QString file = archive.reading() ? QString() : storedPath(source.file, context);
  archive.text("file", file);
  archive.text("layer", source.layer, QString());
  archive.text("filter", source.filter, QString());
  archive.text("coordinateSystem", source.coordinateSystem, QString());
  if (archive.reading()) source.file = pathToOpen(file, context);
}

void describeCommon(Archive& archive, Layer& layer) {
  QString name = layer.GetName();
  bool visible = layer.IsVisible();
  double minScale = layer.storedMinScale(), maxScale = layer.storedMaxScale();
  archive.text("name", name);
  archive.flag("visible", visible, true);
  archive.number("minScale", minScale, 0, mostScale, 0);
  archive.number("maxScale", maxScale, 0, mostScale, 0);
  if (minScale > 0 && maxScale > 0 && minScale > maxScale)
    archive.fail("minScale", translated("is larger than maxScale"));
  layer.SetName(name);
  layer.SetVisible(visible);
  layer.SetScaleRange(minScale, maxScale);
}

void describeLabelling(Archive& archive, VectorLayer& layer) {
  LabelSettings settings = layer.labelSettings();
  auto const properties = layer.GetAnnotationProperties();
  archive.optionalObject("labels", settings.isUsed(),
                         [&](Archive& item) { describeLabels(item, settings, *properties); });
  if (archive.reading()) layer.setLabelSettings(settings);
}

void open(VectorLayer& layer, SourceSettings const& source, Map const& map, DocumentContext& context) {
  QStringList warnings;
  QString const error = layer.open(source, map.GetCoordinateSystem(), warnings);
  if (!error.isEmpty()) {
    ++context.unreadableSources;
    warnings.prepend(error);
  }
  for (QString const& warning : warnings)
    context.warnings << translated("Layer “%1”: %2").arg(layer.GetName(), warning);
}

}  // namespace

void describeLayer(Archive& archive, _ptr_t<Layer>& layer, Map& map, DocumentContext& context) {
  enum Kind { FeatureKind };
  Kind kind = FeatureKind;
  archive.choice("type", kind, {{FeatureKind, "feature"}});
  if (!archive.ok()) return;

  auto existing = SysUtility::ptr_cast<VectorLayer>(layer);
  if (!archive.reading() && !existing) return archive.fail(nullptr, translated("is a layer that can't be stored"));
  SourceSettings source = existing ? existing->source() : SourceSettings();
  archive.object("source", [&](Archive& item) { describeSource(item, source, context); });

  if (archive.reading()) {
    std::unique_ptr<Renderer> renderer;
    describeRenderer(archive, "renderer", renderer);
    if (!archive.ok() || !renderer) return;
    existing = make<VectorLayer>(std::move(renderer));
  } else {
    existing->storeRenderer(archive, "renderer");
  }
  describeCommon(archive, *existing);
  describeLabelling(archive, *existing);
  if (!archive.reading() || !archive.ok()) return;
  open(*existing, source, map, context);
  layer = existing;
}

}  // namespace SysCarto
