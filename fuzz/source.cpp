// Any bytes after the first, which chooses the ending of its name, are a file of data: it is described, read as a layer
// and drawn, or answers a sentence.

#include "Fuzz.h"

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layers/LocalDataset.h"
#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int featurePhase = 1;

QStringList suffixes() {
  QStringList all;
  for (SysCarto::DataFormat const& format : SysCarto::dataFormats())
    all += QString::fromLatin1(format.suffixes).split(QLatin1Char(' '));
  all.removeDuplicates();
  return all;
}

void readLayer(SysCarto::SourceSettings const& source) {
  SysCarto::VectorLayer layer(SysCarto::makeRenderer(SysCarto::RendererSettings()));
  QStringList warnings;
  layer.open(source, QStringLiteral("EPSG:3857"), warnings);
  fuzz::onCanvas(64, [&](QPainter& painter, auto const& transformation) {
    layer.Draw(painter, transformation, featurePhase, nullptr);
  });
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  fuzz::start(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static QTemporaryDir const folder;
  static QStringList const endings = suffixes();
  if (size == 0) return 0;
  QFile file(folder.filePath("data.") + endings.at(bytes[0] % endings.size()));
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(reinterpret_cast<char const*>(bytes) + 1, static_cast<qint64>(size) - 1);
  file.close();
  SysCarto::DataFile const described = SysCarto::describeFile(file.fileName());
  fuzz::require(described.error.isEmpty() || described.layers.empty());
  for (SysCarto::LayerDescription const& layer : described.layers) readLayer({file.fileName(), layer.name, {}, {}});
  for (QString const& one : SysCarto::filesOf(file.fileName())) QFile::remove(one);
  return 0;
}
