#include "IndexWriter.h"

#include "host/SysCarto/layers/SourceBounds.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysUtility/JsonFields.h"
#include "host/SysUtility/JsonFile.h"

#include <QDir>
#include <QFileInfo>

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

// Who reads in order has a part in memory.
constexpr qint64 maxFeatures = 65536;
constexpr std::size_t maxPartBytes = 16 << 20;
constexpr double farthestNumber = 9007199254740992;  // that JSON tells exactly

bool isFinite(OGREnvelope const& box) {
  return std::isfinite(box.MinX) && std::isfinite(box.MinY) && std::isfinite(box.MaxX) && std::isfinite(box.MaxY);
}

}  // namespace

IndexWriter::IndexWriter(QString folder, StoredForm form, qint64 maxBytes)
    : folder_(std::move(folder)),
      form_(std::move(form)),
      maxBytes_(maxBytes),
      standIn_(0, 0),
      places_(QDir(folder_).filePath(QLatin1String(IndexFiles::places))) {
  places_.open(QIODevice::WriteOnly);
}

bool IndexWriter::unfit() {
  isUnfit_ = true;
  return false;
}

// Numbers have to follow each other as the features do: features are drawn by them.
bool IndexWriter::add(OGRFeature const& feature) {
  qint64 const number = feature.GetFID();
  bool const isFirst = parts_.empty() && !part_.dataset;
  qint64 const before = part_.dataset ? part_.told.last : parts_.empty() ? 0 : parts_.back().last;
  if (std::abs(static_cast<double>(number)) >= farthestNumber || (!isFirst && number <= before)) return unfit();
  if (part_.dataset && !fitsPart(feature) && !finishPart()) return false;
  if (!part_.dataset && !beginPart(feature)) return false;
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  if (geometry && !geometry->IsEmpty()) {
    OGREnvelope box;
    geometry->getEnvelope(&box);
    if (!isFinite(box)) return unfit();
    part_.told.extent.add(SysGeometry::Box{box.MinX, box.MinY, box.MaxX, box.MaxY});
    standIn_ = OGRPoint(box.MinX, box.MinY);
  }
  OGRLayer& layer = *part_.dataset->GetLayer(0);
  OGRFeature stored(layer.GetLayerDefn());
  StoredForm::put(feature, standIn_, stored);
  part_.told.last = number;
  ++part_.told.count;
  part_.digest += digestOf(feature);
  part_.bytes += bytesOf(feature);
  return layer.CreateFeature(&stored) == OGRERR_NONE;
}

bool IndexWriter::fitsPart(OGRFeature const& feature) const {
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  bool const hasRoom = part_.told.count < maxFeatures && part_.bytes < maxPartBytes;
  return hasRoom && (!geometry || ((part_.hasZ || !geometry->Is3D()) && (part_.hasM || !geometry->IsMeasured())));
}

// A file has heights for all or for none.
bool IndexWriter::beginPart(OGRFeature const& feature) {
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  bool const hasZ = part_.hasZ || (geometry && geometry->Is3D());
  bool const hasM = part_.hasM || (geometry && geometry->IsMeasured());
  part_ = {};
  part_.hasZ = hasZ;
  part_.hasM = hasM;
  part_.told.before = parts_.empty() ? 0 : parts_.back().before + parts_.back().count;
  GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("FlatGeobuf");
  QByteArray const file = IndexFiles::part(folder_, parts_.size()).toUtf8();
  part_.dataset.reset(driver ? driver->Create(file.constData(), 0, 0, 0, GDT_Unknown, nullptr) : nullptr);
  OGRLayer* const layer =
      part_.dataset ? part_.dataset->CreateLayer("features", nullptr, OGR_GT_SetModifier(wkbUnknown, hasZ, hasM))
                    : nullptr;
  return layer && form_.addColumns(*layer);
}

// Whether features were written is known when the file is closed.
bool IndexWriter::finishPart() {
  GDALClose(part_.dataset.release());
  bytes_ += QFileInfo(IndexFiles::part(folder_, parts_.size())).size();
  if (isTooLarge() || !checkPart()) return false;
  parts_.push_back(part_.told);
  return true;
}

bool IndexWriter::checkPart() {
  auto const dataset = openPart(folder_, parts_.size(), form_);
  if (!dataset) return false;
  std::vector<IndexPlace> places;
  quint64 digest = 0;
  while (OGRFeatureUniquePtr const stored{dataset->GetLayer(0)->GetNextFeature()}) {
    auto const feature = form_.take(*stored);
    places.push_back({feature->GetFID(), stored->GetFID()});
    digest += digestOf(*feature);
  }
  if (digest != part_.digest || static_cast<qint64>(places.size()) != part_.told.count) return unfit();
  std::sort(places.begin(), places.end(), [](IndexPlace const& a, IndexPlace const& b) { return a.number < b.number; });
  auto const bytes = static_cast<qint64>(places.size() * sizeof(IndexPlace));
  bytes_ += bytes;
  return places_.write(reinterpret_cast<char const*>(places.data()), bytes) == bytes;
}

bool IndexWriter::finish(QJsonObject const& key) {
  if (part_.dataset && !finishPart()) return false;
  if (!places_.flush()) return false;
  QJsonObject about = IndexedLayer::about(form_, parts_);
  for (auto one = key.begin(); one != key.end(); ++one) about[one.key()] = one.value();
  QByteArray const text = SysUtility::jsonText(about);
  QFile file(QDir(folder_).filePath(QLatin1String(IndexFiles::about)));
  return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

}  // namespace SysCarto
