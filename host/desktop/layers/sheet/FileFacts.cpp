#include "FileFacts.h"

#include "ConditionDialog.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/desktop/layers/DataReport.h"
#include "host/desktop/layers/FileDescriptions.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using SysCarto::DataFile;
using SysCarto::LayerDescription;
using SysCarto::SourceSettings;

namespace {

constexpr int captionPx = 190;
constexpr int longestCode = 30;

QTreeWidgetItem* addRow(QTreeWidget& tree, QString const& caption, QString const& value) {
  if (value.isEmpty()) return nullptr;
  auto* const row = new QTreeWidgetItem(&tree, {caption, value});
  row->setToolTip(1, value);
  return row;
}

}  // namespace

FileFacts::FileFacts(QWidget* parent) : QWidget(parent), tree_(new QTreeWidget(this)) {
  tree_->setObjectName(QStringLiteral("treeWidget_File"));
  tree_->setHeaderLabels({tr("Property"), tr("Value")});
  tree_->setAlternatingRowColors(true);
  tree_->header()->resizeSection(0, captionPx);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(tree_);
}

FileFacts::~FileFacts() = default;

void FileFacts::show(SourceSettings const& source) {
  QFileInfo const info(source.file);
  QString const stamp = QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(source.origin(), source.layer)
                            .arg(static_cast<int>(source.data))
                            .arg(info.size())
                            .arg(info.lastModified().toMSecsSinceEpoch());
  if (stamp == stamp_) return;
  stamp_ = stamp;
  source_ = source;
  file_ = {};
  layer_ = {};
  system_.clear();
  delete descriptions_;
  descriptions_ = new FileDescriptions(this);
  connect(descriptions_, &FileDescriptions::described, this, &FileFacts::take);
  connect(descriptions_, &FileDescriptions::measured, this,
          [this](SourceSettings const& of, LayerDescription const& layer, QString const&) {
            if (of.layer == layer_.name) takeMeasure(layer);
          });
  fill();
  bool const isOpen = source.connection.isEmpty() ? SysCarto::DataSource::refusal(source.file).isEmpty()
                                                  : SysCarto::Connections::isAllowed(source.connection);
  if (source.data == SourceSettings::Data::File && isOpen) descriptions_->describe({source.origin()});
}

QString FileFacts::systemText() const {
  if (source_.data == SourceSettings::Data::Globe || !source_.isGiven()) return tr("The layer has no file.");
  if (!file_.error.isEmpty()) return file_.error;
  if (file_.path.isEmpty()) return tr("The file is being read.");
  if (layer_.name.isEmpty()) return tr("The file has no layer “%1”.").arg(source_.layer);
  return system_.isEmpty() ? tr("The file names no coordinate system.") : tr("The file says: %1.").arg(system_);
}

QStringList FileFacts::layerNames() const {
  QStringList names;
  for (LayerDescription const& layer : file_.layers) names << layer.name;
  return names;
}

void FileFacts::take(DataFile const& file) {
  file_ = file;
  auto const& layers = file.layers;
  auto const own = std::find_if(layers.begin(), layers.end(), [this](LayerDescription const& layer) {
    return source_.layer.isEmpty() || layer.name == source_.layer;
  });
  if (own != layers.end()) layer_ = *own;
  fill();
}

void FileFacts::takeMeasure(LayerDescription const& layer) {
  layer_.kind = layer.kind;
  layer_.count = layer.count;
  layer_.extent = layer.extent;
  fill();
}

void FileFacts::fill() {
  QLocale const locale;
  QFileInfo const info(source_.file);
  tree_->clear();
  if (source_.data == SourceSettings::Data::Globe) {
    addRow(*tree_, tr("File"), tr("None: the layer is the whole globe"));
    emit found();
    return;
  }
  addRow(*tree_, tr("File"), QDir::toNativeSeparators(source_.file));
  addRow(*tree_, tr("Connection"), source_.connection);
  addRow(*tree_, tr("Problem"), file_.error);
  addRow(*tree_, tr("Format"), file_.format);
  if (info.exists()) addRow(*tree_, tr("Size"), locale.formattedDataSize(info.size()));
  if (info.exists()) addRow(*tree_, tr("Changed"), locale.toString(info.lastModified(), QLocale::LongFormat));
  for (auto const& [name, value] : file_.metadata) addRow(*tree_, name, value);
  if (!layer_.name.isEmpty()) {
    bool const isCode = !layer_.coordinateSystem.isEmpty() && layer_.coordinateSystem.size() < longestCode;
    system_ =
        isCode ? tr("%1 (%2)").arg(layer_.coordinateSystemName, layer_.coordinateSystem) : layer_.coordinateSystemName;
    addRow(*tree_, tr("Layer of the file"), layer_.name);
    addRow(*tree_, tr("Geometries"), kindText(layer_.kind));
    addRow(*tree_, tr("Features"), layer_.count < 0 ? tr("not counted yet") : locale.toString(layer_.count));
    addRow(*tree_, tr("Extent"), extentText(layer_.extent));
    addRow(*tree_, tr("Coordinate system"), system_.isEmpty() ? tr("The file names none") : system_);
    QString const columns =
        layer_.xField.isEmpty() ? layer_.geometryField : layer_.xField + QStringLiteral(", ") + layer_.yField;
    addRow(*tree_, tr("Columns of places"), columns);
    for (auto const& [name, value] : layer_.metadata) addRow(*tree_, name, value);
    auto* const fields = addRow(*tree_, tr("Fields"), locale.toString(static_cast<int>(layer_.fields.size())));
    for (auto const& field : layer_.fields) new QTreeWidgetItem(fields, {field.name, fieldKindText(field.kind)});
    if (fields) fields->setExpanded(true);
  }
  emit found();
}
