#pragma once

#include "StoredForm.h"

#include "host/SysCarto/layers/LocalDataset.h"
#include "host/SysGeometry/Box.h"

#include <QFile>
#include <QString>

#include <ogrsf_frmts.h>

#include <deque>
#include <memory>
#include <vector>

namespace SysCarto {

/// Features that follow each other in their source, in a file that can be read by windows: few enough to be in memory
/// at once.
struct IndexPart {
  qint64 count = 0;
  qint64 before = 0;        ///< how many features are in parts before
  qint64 last = 0;          ///< the highest number
  SysGeometry::Box extent;  ///< of what has a place
};

/// Where a feature with a number lies in its part, in the file of places that has one for each, by their numbers.
struct IndexPlace {
  qint64 number, at;
};

/// What is in the folder of an index: these files, and parts by their numbers.
struct IndexFiles {
  static constexpr char about[] = "layer.json", places[] = "places";
  static QString part(QString const& folder, size_t number);
};

/// Opens a part, or an empty pointer where that fails.
DatasetPointer openPart(QString const& folder, size_t number, StoredForm const& form);

/// A layer of a file that was indexed: with the numbers, values and kinds that it has there, in the same order where no
/// window is asked for.
class IndexedLayer final : public OGRLayer {
public:
  /// Of the folder of an index and what its file says; an empty pointer where that is not understood. `use` lives as
  /// long as the layer.
  static std::unique_ptr<IndexedLayer> open(QString const& folder, QJsonObject const& about,
                                            std::unique_ptr<QFile> use);

  /// As `open` takes it.
  static QJsonObject about(StoredForm const& form, std::vector<IndexPart> const& parts);

  /// Who does not ask for the order gets the features sooner.
  void readInAnyOrder() { isInAnyOrder_ = true; }

  void ResetReading() override;
  OGRFeature* GetNextFeature() override;
  OGRFeature* GetFeature(GIntBig number) override;
  GIntBig GetFeatureCount(int isForced) override;
  OGRErr GetExtent(OGREnvelope* extent, int isForced) override;
  OGRErr GetExtent(int field, OGREnvelope* extent, int isForced) override;
  OGRErr SetIgnoredFields(char const** names) override;
  OGRFeatureDefn* GetLayerDefn() override { return &form_.definition(); }
  int TestCapability(char const* capability) override;

private:
  IndexedLayer(QString folder, StoredForm form, std::vector<IndexPart> parts, std::unique_ptr<QFile> use);

  bool isInOrder() const { return !m_poFilterGeom && !isInAnyOrder_; }
  OGRFeatureUniquePtr next();
  OGRFeatureUniquePtr nextStored();
  OGRFeatureUniquePtr nextInOrder();
  qint64 placeOf(IndexPart const& part, qint64 number);
  DatasetPointer opened(size_t part) const;
  void tellDamage() const;

  QString const folder_;
  StoredForm const form_;
  std::vector<IndexPart> const parts_;
  std::unique_ptr<QFile> const use_;
  QFile places_;

  bool isInAnyOrder_ = false;
  size_t now_ = 0;                           // the part that is read
  DatasetPointer reading_;                   // of it; empty before it is begun
  std::deque<OGRFeatureUniquePtr> waiting_;  // in order
  size_t looked_ = 0;                        // where a feature was asked for by its number
  DatasetPointer looking_;
};

}  // namespace SysCarto
