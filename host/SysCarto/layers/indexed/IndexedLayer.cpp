#include "IndexedLayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>

#include <gdal_priv.h>

#include <algorithm>
#include <utility>

namespace SysCarto {

using SysGeometry::Box;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(IndexedLayer)
};

QJsonArray jsonOf(Box const& box) {
  return box.isEmpty() ? QJsonArray() : QJsonArray{box.xmin, box.ymin, box.xmax, box.ymax};
}

Box boxOf(QJsonArray const& json) {
  if (json.size() != 4) return Box();
  return {json[0].toDouble(), json[1].toDouble(), json[2].toDouble(), json[3].toDouble()};
}

std::vector<IndexPart> partsOf(QJsonArray const& json) {
  std::vector<IndexPart> parts;
  qint64 before = 0;
  for (QJsonValue const& value : json) {
    QJsonObject const told = value.toObject();
    IndexPart const part{static_cast<qint64>(told[QStringLiteral("count")].toDouble()), before,
                         static_cast<qint64>(told[QStringLiteral("last")].toDouble()),
                         boxOf(told[QStringLiteral("extent")].toArray())};
    before += part.count;
    parts.push_back(part);
  }
  return parts;
}

qint64 countOf(std::vector<IndexPart> const& parts) {
  return parts.empty() ? 0 : parts.back().before + parts.back().count;
}

}  // namespace

QString IndexFiles::part(QString const& folder, size_t number) {
  return QDir(folder).filePath(QStringLiteral("%1.fgb").arg(number));
}

DatasetPointer openPart(QString const& folder, size_t number, StoredForm const& form) {
  char const* const driver[] = {"FlatGeobuf", nullptr};
  DatasetPointer dataset(GDALDataset::Open(IndexFiles::part(folder, number).toUtf8().constData(),
                                           GDAL_OF_VECTOR | GDAL_OF_READONLY, driver, nullptr, nullptr));
  OGRLayer* const layer = dataset ? dataset->GetLayer(0) : nullptr;
  if (!layer) return nullptr;
  form.ignoreIn(*layer);
  return dataset;
}

std::unique_ptr<IndexedLayer> IndexedLayer::open(QString const& folder, QJsonObject const& about,
                                                 std::unique_ptr<QFile> use) {
  auto form = StoredForm::from(about[QStringLiteral("layer")].toObject());
  if (!form) return nullptr;
  auto parts = partsOf(about[QStringLiteral("parts")].toArray());
  std::unique_ptr<IndexedLayer> layer(new IndexedLayer(folder, *form, std::move(parts), std::move(use)));
  bool const isWhole = layer->places_.open(QIODevice::ReadOnly) &&
                       layer->places_.size() == countOf(layer->parts_) * static_cast<qint64>(sizeof(IndexPlace));
  return isWhole ? std::move(layer) : nullptr;
}

QJsonObject IndexedLayer::about(StoredForm const& form, std::vector<IndexPart> const& parts) {
  QJsonArray told;
  for (IndexPart const& part : parts)
    told << QJsonObject{{QStringLiteral("count"), static_cast<double>(part.count)},
                        {QStringLiteral("last"), static_cast<double>(part.last)},
                        {QStringLiteral("extent"), jsonOf(part.extent)}};
  return {{QStringLiteral("layer"), form.json()}, {QStringLiteral("parts"), told}};
}

IndexedLayer::IndexedLayer(QString folder, StoredForm form, std::vector<IndexPart> parts, std::unique_ptr<QFile> use)
    : folder_(std::move(folder)),
      form_(std::move(form)),
      parts_(std::move(parts)),
      use_(std::move(use)),
      places_(QDir(folder_).filePath(QLatin1String(IndexFiles::places))) {
  SetDescription(form_.definition().GetName());
}

void IndexedLayer::ResetReading() {
  now_ = 0;
  reading_.reset();
  waiting_.clear();
}

OGRFeature* IndexedLayer::GetNextFeature() {
  while (OGRFeatureUniquePtr feature = next())
    if (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get())) return feature.release();
  return nullptr;
}

OGRFeatureUniquePtr IndexedLayer::next() { return isInOrder() ? nextInOrder() : nextStored(); }

OGRFeatureUniquePtr IndexedLayer::nextStored() {
  OGREnvelope const& sought = m_sFilterEnvelope;
  Box const window = m_poFilterGeom ? Box{sought.MinX, sought.MinY, sought.MaxX, sought.MaxY} : Box();
  for (; now_ < parts_.size(); ++now_, reading_.reset()) {
    if (m_poFilterGeom && !parts_[now_].extent.meets(window)) continue;
    if (!reading_) {
      reading_ = opened(now_);
      if (!reading_) return nullptr;
      reading_->GetLayer(0)->SetSpatialFilter(m_poFilterGeom);
    }
    for (;;) {
      CPLErrorReset();  // what others of this thread have failed in
      OGRFeatureUniquePtr const stored{reading_->GetLayer(0)->GetNextFeature()};
      if (!stored) break;
      OGRFeatureUniquePtr feature = form_.take(*stored);
      bool const hasPlace = feature->GetGeometryRef() && !feature->GetGeometryRef()->IsEmpty();
      if (!m_poFilterGeom || hasPlace) return feature;
    }
    if (CPLGetLastErrorType() == CE_Failure) tellDamage();
  }
  return nullptr;
}

OGRFeatureUniquePtr IndexedLayer::nextInOrder() {
  for (; waiting_.empty() && now_ < parts_.size(); ++now_) {
    auto const dataset = opened(now_);
    if (!dataset) return nullptr;
    while (OGRFeatureUniquePtr stored{dataset->GetLayer(0)->GetNextFeature()}) waiting_.push_back(form_.take(*stored));
    if (static_cast<qint64>(waiting_.size()) != parts_[now_].count) tellDamage();
    std::sort(waiting_.begin(), waiting_.end(), [](auto const& a, auto const& b) { return a->GetFID() < b->GetFID(); });
  }
  if (waiting_.empty()) return nullptr;
  OGRFeatureUniquePtr first = std::move(waiting_.front());
  waiting_.pop_front();
  return first;
}

OGRFeature* IndexedLayer::GetFeature(GIntBig number) {
  auto const part = std::lower_bound(parts_.begin(), parts_.end(), number,
                                     [](IndexPart const& one, GIntBig sought) { return one.last < sought; });
  qint64 const at = part == parts_.end() ? -1 : placeOf(*part, number);
  if (at < 0) return nullptr;
  auto const wanted = static_cast<size_t>(part - parts_.begin());
  if (!looking_ || looked_ != wanted) looking_ = opened(wanted);
  looked_ = wanted;
  OGRFeatureUniquePtr const stored(looking_ ? looking_->GetLayer(0)->GetFeature(at) : nullptr);
  return stored ? form_.take(*stored).release() : nullptr;
}

qint64 IndexedLayer::placeOf(IndexPart const& part, qint64 number) {
  qint64 low = part.before, high = part.before + part.count;
  while (low < high) {
    qint64 const middle = low + (high - low) / 2;
    IndexPlace place{};
    places_.seek(middle * static_cast<qint64>(sizeof place));
    if (places_.read(reinterpret_cast<char*>(&place), sizeof place) != sizeof place) return -1;
    if (place.number == number) return place.at;
    (place.number < number ? low : high) = place.number < number ? middle + 1 : middle;
  }
  return -1;
}

DatasetPointer IndexedLayer::opened(size_t part) const {
  CPLErrorReset();
  auto dataset = openPart(folder_, part, form_);
  if (!dataset) tellDamage();
  return dataset;
}

void IndexedLayer::tellDamage() const {
  QString const reason = Texts::tr("the index in “%1” is damaged; remove that folder, or give --no-cache").arg(folder_);
  CPLError(CE_Failure, CPLE_FileIO, "%s", reason.toUtf8().constData());
}

GIntBig IndexedLayer::GetFeatureCount(int isForced) {
  return m_poFilterGeom || m_poAttrQuery ? OGRLayer::GetFeatureCount(isForced) : countOf(parts_);
}

OGRErr IndexedLayer::GetExtent(OGREnvelope* extent, int) {
  Box all;
  for (IndexPart const& part : parts_) all.add(part.extent);
  if (all.isEmpty()) return OGRERR_FAILURE;
  extent->MinX = all.xmin;
  extent->MinY = all.ymin;
  extent->MaxX = all.xmax;
  extent->MaxY = all.ymax;
  return OGRERR_NONE;
}

OGRErr IndexedLayer::GetExtent(int, OGREnvelope* extent, int isForced) { return GetExtent(extent, isForced); }

OGRErr IndexedLayer::SetIgnoredFields(char const** names) {
  ResetReading();
  looking_.reset();
  return OGRLayer::SetIgnoredFields(names);
}

int IndexedLayer::TestCapability(char const* capability) {
  if (EQUAL(capability, OLCFastFeatureCount)) return !m_poFilterGeom && !m_poAttrQuery;
  for (char const* const one :
       {OLCFastSpatialFilter, OLCRandomRead, OLCIgnoreFields, OLCStringsAsUTF8, OLCFastGetExtent})
    if (EQUAL(capability, one)) return TRUE;
  return FALSE;
}

}  // namespace SysCarto
