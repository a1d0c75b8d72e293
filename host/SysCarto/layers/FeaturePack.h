#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/ThinningGrid.h"

#include <SysCarto/Export.h>

#include <QHash>
#include <QSet>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace SysCarto {

/// Which features keep their labels where these are many more than a page can name: of those in one square of a grid
/// the most important ones.
struct LabelChoice {
  double side = 0;       ///< of a square, in map units; 0 to keep all labels
  QSet<QString> always;  ///< keys of features that keep theirs in any case
};

/// The features of a part of a map as a resolution can show them, in few bytes: coordinates are whole numbers of a
/// small fraction of a thinning cell, and differences of these. What draws or labels unpacks some at a time into a
/// `FeatureStore`.
class SYSCARTO_EXPORT FeaturePack {
public:
  /// For features that meet `area` (map units). The side of a cell must be positive.
  FeaturePack(Box const& area, double cell, LabelChoice const& choice = {});

  Box const& area() const { return area_; }
  double cell() const { return cell_; }

  /// What its features have besides their geometries: a store without any.
  FeatureStore& form() { return form_; }
  FeatureStore const& form() const { return form_; }

  /// Adds features, thinned before to the cell, without those that the area does not meet. Where points lie closer than
  /// there are pixels, one stays of those that look the same on one pixel and have no label.
  void add(FeatureStore const& features);

  /// Gives back what room was too much. Nothing is added afterwards.
  void finish();

  /// A finished pack of what was added so far.
  std::shared_ptr<FeaturePack const> soFar() const;

  /// About what it takes in memory.
  std::size_t bytes() const { return bytes_; }
  int size() const { return size_; }

  struct Place {
    qint64 id;
    unsigned char const* record;
    std::array<qint64, 2> const* origin;
  };

  /// Calls `take` with where each feature lies whose box meets the rectangle, in no order.
  void visit(Box const& rectangle, std::function<void(Place const&)> const& take) const;

  /// Where the features lie whose boxes meet the rectangle, by their numbers in the source, which is its order.
  std::vector<Place> query(Box const& rectangle) const;

  /// Puts features into a store that has the form.
  void unpack(Place const* begin, Place const* end, FeatureStore& to) const;

private:
  struct Bucket {
    Box box;
    std::array<qint64, 2> origin;
    std::vector<unsigned char> records;
    int points = 0;
    struct Taken {
      int points = 0;
      std::vector<bool> pixels;  // that have one of them
    };
    std::map<int, Taken> taken = {};  // by symbol class
  };
  using Vertex = std::array<qint64, 2>;

  bool isRepeated(FeatureStore const& from, size_t feature, int symbolClass, Bucket& bucket) const;
  Bucket& bucketFor(Box const& box);
  Vertex quantised(double x, double y) const;
  double coordinate(qint64 quantum) const { return (static_cast<double>(quantum) + 0.5) * quantum_; }
  bool keepsLabel(FeatureStore const& from, size_t feature);
  void write(FeatureStore const& from, int feature, int symbolClass, bool isNamed, Bucket& bucket);

  Box const area_;
  double const cell_, quantum_;
  FeatureStore form_;
  std::map<std::array<qint64, 3>, Bucket> buckets_;  // by size, column, row
  std::vector<unsigned char> record_;                // that is written
  std::size_t bytes_ = 0;
  int size_ = 0;

  LabelChoice const choice_;
  QHash<quint64, std::array<double, 2>> named_;  // the highest priorities in each square
  int labels_ = 0;
};

}  // namespace SysCarto
