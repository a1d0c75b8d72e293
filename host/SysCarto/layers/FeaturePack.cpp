#include "FeaturePack.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace SysCarto {

namespace {

constexpr double quantaPerCell = 1024;  // strokes with short edges turn with less
constexpr int cellsPerPixel = 4, bucketPixels = 256;
constexpr double bucketCells = cellsPerPixel * bucketPixels;
constexpr int freeRepetitions = 16384;  // of points in a bucket, before any is left out
constexpr int freeOfClass = 1024;       // whose records take more than it does to know the pixels that have one of them
constexpr double sizeStep = 4;          // features of similar size share buckets, so that their boxes stay small
constexpr double maxQuantum = 1e18;
constexpr int freeLabels = 20000;  // more than any page can show
constexpr double none = -std::numeric_limits<double>::infinity();

using Bytes = std::vector<unsigned char>;

void putNumber(Bytes& to, quint64 number) {
  for (; number > 127; number >>= 7) to.push_back(static_cast<unsigned char>(number | 128));
  to.push_back(static_cast<unsigned char>(number));
}

// Small numbers are short, whatever their sign.
void putSigned(Bytes& to, qint64 number) {
  putNumber(to, (static_cast<quint64>(number) << 1) ^ (number < 0 ? ~quint64(0) : 0));
}

void putDouble(Bytes& to, double number) {
  auto const* const bytes = reinterpret_cast<unsigned char const*>(&number);
  to.insert(to.end(), bytes, bytes + sizeof number);
}

void putText(Bytes& to, QString const& text) {
  QByteArray const utf8 = text.toUtf8();
  putNumber(to, static_cast<quint64>(utf8.size()));
  to.insert(to.end(), utf8.begin(), utf8.end());
}

// Reads what the functions above wrote, and nothing else: it looks for no end.
class Cursor {
public:
  explicit Cursor(unsigned char const* at) : at_(at) {}

  unsigned char const* at() const { return at_; }
  void skip(quint64 bytes) { at_ += bytes; }

  quint64 number() {
    quint64 result = 0;
    for (int shift = 0;; shift += 7) {
      unsigned char const byte = *at_++;
      result |= static_cast<quint64>(byte & 127) << shift;
      if (byte < 128) return result;
    }
  }
  qint64 signedNumber() {
    quint64 const coded = number();
    return static_cast<qint64>((coded >> 1) ^ (coded & 1 ? ~quint64(0) : 0));
  }
  double real() {
    double result;
    std::memcpy(&result, at_, sizeof result);
    at_ += sizeof result;
    return result;
  }
  QString text() {
    auto const size = static_cast<int>(number());
    QString const result = QString::fromUtf8(reinterpret_cast<char const*>(at_), size);
    at_ += size;
    return result;
  }

private:
  unsigned char const* at_;
};

// Coordinates may lie as far apart as there are numbers; what wraps round on the way there does so on the way back.
qint64 difference(qint64 a, qint64 b) { return static_cast<qint64>(static_cast<quint64>(a) - static_cast<quint64>(b)); }
qint64 sum(qint64 a, qint64 b) { return static_cast<qint64>(static_cast<quint64>(a) + static_cast<quint64>(b)); }

void putVertex(Bytes& to, std::array<qint64, 2> const& vertex, std::array<qint64, 2>& before) {
  putSigned(to, difference(vertex[0], before[0]));
  putSigned(to, difference(vertex[1], before[1]));
  before = vertex;
}

std::array<qint64, 2> vertexAfter(Cursor& cursor, std::array<qint64, 2> const& before) {
  qint64 const x = cursor.signedNumber();
  return {sum(before[0], x), sum(before[1], cursor.signedNumber())};
}

bool isPoint(FeatureStore const& store, Feature const& feature) {
  return feature.partCount == 1 && store.parts[static_cast<size_t>(feature.firstPart)].kind == PartKind::Point;
}

// A point, or an area that is smaller than a cell.
bool isSpot(FeatureStore const& store, Feature const& feature) {
  return feature.partCount == 1 && store.parts[static_cast<size_t>(feature.firstPart)].count == 1;
}

}  // namespace

FeaturePack::FeaturePack(Box const& area, double cell, LabelChoice const& choice)
    : area_(area), cell_(cell), quantum_(cell / quantaPerCell), choice_(choice) {}

// The middle of a quantum lies in the same cell as all that is rounded to it.
FeaturePack::Vertex FeaturePack::quantised(double x, double y) const {
  auto const whole = [this](double value) {
    return static_cast<qint64>(std::clamp(std::floor(value / quantum_), -maxQuantum, maxQuantum));
  };
  return {whole(x), whole(y)};
}

FeaturePack::Bucket& FeaturePack::bucketFor(Box const& box) {
  double const size = std::max(box.xmax - box.xmin, box.ymax - box.ymin);
  double side = bucketCells * cell_;
  qint64 level = 0;
  for (; side < size && side * quantaPerCell < maxQuantum * cell_; side *= sizeStep) ++level;
  auto const number = [side](double value) {
    return static_cast<qint64>(std::clamp(std::floor(value / side), -maxQuantum, maxQuantum));
  };
  double const x = (box.xmin + box.xmax) / 2, y = (box.ymin + box.ymax) / 2;
  std::array<qint64, 3> const key{level, number(x), number(y)};
  auto const [place, isNew] = buckets_.try_emplace(key);
  if (isNew) place->second.origin = quantised(static_cast<double>(key[1]) * side, static_cast<double>(key[2]) * side);
  return place->second;
}

void FeaturePack::add(FeatureStore const& features) {
  std::vector<int> own;
  for (std::vector<int> const& classes : features.classSets) own.push_back(form_.classSetOf(classes));
  for (int i = 0; i < features.size(); ++i) {
    Feature const& feature = features.features[static_cast<size_t>(i)];
    if (!feature.box.meets(area_)) continue;
    int const given = feature.symbolClass;
    int const symbolClass = own.empty() || given < 0 ? given : own[static_cast<size_t>(given)];
    Bucket& bucket = bucketFor(feature.box);
    bool const isNamed = features.keepsLabels && keepsLabel(features, static_cast<size_t>(i));
    bool const hasName = isNamed && !features.labels[static_cast<size_t>(i)].isEmpty();
    if (!hasName && isRepeated(features, static_cast<size_t>(i), symbolClass, bucket)) continue;
    bucket.box.add(feature.box);
    write(features, i, symbolClass, isNamed, bucket);
    ++size_;
  }
}

bool FeaturePack::isRepeated(FeatureStore const& from, size_t feature, int symbolClass, Bucket& bucket) const {
  Box const& box = from.features[feature].box;
  double const pixel = cell_ * cellsPerPixel;
  // Areas and lines that have a size, however small, add to what a pixel shows.
  if (!isSpot(from, from.features[feature]) || from.valuesPerFeature > 0) return false;
  if (++bucket.points <= freeRepetitions) return false;
  auto const place = [&](double at, qint64 origin) {
    double const pixels = std::floor((at - coordinate(origin)) / pixel);
    return static_cast<size_t>(std::clamp(pixels, 0.0, bucketPixels - 1.0));
  };
  auto& [points, pixels] = bucket.taken[symbolClass];
  if (++points <= freeOfClass) return false;
  pixels.resize(bucketPixels * bucketPixels);
  auto const here = pixels.begin() + static_cast<std::ptrdiff_t>(place(box.ymin, bucket.origin[1]) * bucketPixels +
                                                                 place(box.xmin, bucket.origin[0]));
  bool const isTaken = *here;
  *here = true;
  return isTaken;
}

void FeaturePack::write(FeatureStore const& from, int number, int symbolClass, bool isNamed, Bucket& bucket) {
  auto const index = static_cast<size_t>(number);
  Feature const& feature = from.features[index];
  record_.clear();
  putNumber(record_, static_cast<quint64>(symbolClass + 1));
  Vertex before = bucket.origin;
  if (isPoint(from, feature)) {
    putNumber(record_, 0);
    double const* const xy = from.parts[static_cast<size_t>(feature.firstPart)].xy;
    putVertex(record_, quantised(xy[0], xy[1]), before);
  } else {
    putNumber(record_, static_cast<quint64>(feature.partCount));
    putVertex(record_, quantised(feature.box.xmin, feature.box.ymin), before);
    Vertex corner = before;
    putVertex(record_, quantised(feature.box.xmax, feature.box.ymax), corner);
    for (int i = feature.firstPart; i < feature.firstPart + feature.partCount; ++i) {
      Part const& part = from.parts[static_cast<size_t>(i)];
      putNumber(record_, (static_cast<quint64>(part.count) << 4) | (static_cast<quint64>(part.kind) << 1) |
                             (part.startsPolygon ? 1 : 0));
      for (int v = 0; v < part.count; ++v) putVertex(record_, quantised(part.xy[2 * v], part.xy[2 * v + 1]), before);
    }
  }
  for (int i = 0; i < from.valuesPerFeature; ++i) putDouble(record_, from.value(number, i));
  if (from.keepsLabels) putNumber(record_, isNamed ? 1 : 0);
  if (isNamed) {
    putText(record_, from.labels[index]);
    putText(record_, from.keys[index]);
    putDouble(record_, from.priorities[index]);
  }
  putSigned(bucket.records, from.ids[index]);
  putNumber(bucket.records, record_.size());
  bucket.records.insert(bucket.records.end(), record_.begin(), record_.end());
}

bool FeaturePack::keepsLabel(FeatureStore const& from, size_t feature) {
  if (choice_.side <= 0 || choice_.always.contains(from.keys[feature])) return true;
  bool const isFree = labels_ < freeLabels;
  if (from.labels[feature].isEmpty()) return isFree;
  Box const& box = from.features[feature].box;
  auto const square = [this](double low, double high) {
    return static_cast<quint32>(
        static_cast<qint64>(std::clamp(std::floor((low + high) / 2 / choice_.side), -maxQuantum, maxQuantum)));
  };
  quint64 const key = (quint64(square(box.xmin, box.xmax)) << 32) | square(box.ymin, box.ymax);
  auto known = named_.find(key);
  if (known == named_.end()) known = named_.insert(key, {none, none});
  auto& [least, most] = *known;
  double const priority = std::max(from.priorities[feature], std::numeric_limits<double>::lowest());
  bool const isChosen = priority > least;
  if (isChosen) least = priority;
  if (least > most) std::swap(least, most);
  labels_ += isChosen || isFree;
  return isChosen || isFree;
}

void FeaturePack::finish() {
  named_ = {};
  bytes_ = sizeof *this;
  for (auto& [key, bucket] : buckets_) {
    bucket.records.shrink_to_fit();
    bucket.taken.clear();
    bytes_ += bucket.records.capacity() + sizeof bucket + sizeof key;
  }
}

std::shared_ptr<FeaturePack const> FeaturePack::soFar() const {
  auto copy = std::make_shared<FeaturePack>(area_, cell_);
  copy->form_.takeForm(form_);
  copy->size_ = size_;
  for (auto const& [key, bucket] : buckets_)
    copy->buckets_.emplace(key, Bucket{bucket.box, bucket.origin, bucket.records});
  copy->finish();
  return copy;
}

void FeaturePack::visit(Box const& rectangle, std::function<void(Place const&)> const& take) const {
  if (rectangle.isEmpty()) return;
  Box const sought = rectangle.grown(quantum_);
  for (auto const& [key, bucket] : buckets_) {
    if (!bucket.box.meets(sought)) continue;
    bool const isWithin = sought.contains(bucket.box);
    Cursor cursor(bucket.records.data());
    auto const* const end = bucket.records.data() + bucket.records.size();
    while (cursor.at() != end) {
      qint64 const id = cursor.signedNumber();
      quint64 const size = cursor.number();
      Cursor record(cursor.at());
      cursor.skip(size);
      bool isFound = isWithin;
      if (!isFound) {
        Cursor look(record);
        look.number();  // the class
        bool const isSinglePoint = look.number() == 0;
        Vertex const low = vertexAfter(look, bucket.origin);
        Vertex const high = isSinglePoint ? low : vertexAfter(look, low);
        isFound = sought.meets({coordinate(low[0]), coordinate(low[1]), coordinate(high[0]), coordinate(high[1])});
      }
      if (isFound) take({id, record.at(), &bucket.origin});
    }
  }
}

std::vector<FeaturePack::Place> FeaturePack::query(Box const& rectangle) const {
  std::vector<Place> found;
  visit(rectangle, [&](Place const& place) { found.push_back(place); });
  std::sort(found.begin(), found.end(), [](Place const& a, Place const& b) { return a.id < b.id; });
  return found;
}

void FeaturePack::unpack(Place const* begin, Place const* end, FeatureStore& to) const {
  std::vector<double> xy;
  for (Place const* place = begin; place != end; ++place) {
    Cursor cursor(place->record);
    Vertex vertex = *place->origin;
    auto const symbolClass = static_cast<int>(cursor.number()) - 1;
    auto const partCount = cursor.number();
    to.beginFeature(place->id);
    auto const addPart = [&](PartKind kind, quint64 count) {
      xy.clear();
      for (quint64 i = 0; i < count; ++i) {
        vertex = vertexAfter(cursor, vertex);
        xy.push_back(coordinate(vertex[0]));
        xy.push_back(coordinate(vertex[1]));
      }
      to.addPart(kind, xy.data(), static_cast<int>(count));
    };
    if (partCount == 0) addPart(PartKind::Point, 1);
    if (partCount > 0) {
      vertex = vertexAfter(cursor, vertex);
      vertexAfter(cursor, vertex);
    }
    for (quint64 i = 0; i < partCount; ++i) {
      quint64 const head = cursor.number();
      if (head & 1) to.startPolygon();
      addPart(static_cast<PartKind>((head >> 1) & 7), head >> 4);
    }
    for (int i = 0; i < form_.valuesPerFeature; ++i) to.addValue(cursor.real());
    QString label, key;
    double priority = none;
    if (form_.keepsLabels && cursor.number() == 1) {
      label = cursor.text();
      key = cursor.text();
      priority = cursor.real();
    }
    to.endFeature(symbolClass, label, priority, key);
  }
}

}  // namespace SysCarto
