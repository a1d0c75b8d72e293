#pragma once

#include "IndexedLayer.h"

#include <ogr_geometry.h>

namespace SysCarto {

/// Writes the features of a source into the folder of an index, part by part, and reads each part again to see whether
/// all is there as it was.
class IndexWriter {
public:
  /// Into an empty folder, at most so many bytes.
  IndexWriter(QString folder, StoredForm form, qint64 maxBytes);

  /// Both answer false where the index is of no use, and nothing is to be done but to remove it.
  bool add(OGRFeature const& feature);
  bool finish(QJsonObject const& key);

  /// Then: whether this source has what can't be kept; else it lies in the place.
  bool isUnfit() const { return isUnfit_; }

  /// Whether it became larger than it may.
  bool isTooLarge() const { return bytes_ > maxBytes_; }

private:
  struct Part {
    DatasetPointer dataset;
    IndexPart told;
    quint64 digest = 0;
    std::size_t bytes = 0;
    bool hasZ = false, hasM = false;
  };

  bool fitsPart(OGRFeature const& feature) const;
  bool beginPart(OGRFeature const& feature);
  bool finishPart();
  bool checkPart();
  bool unfit();

  QString const folder_;
  StoredForm const form_;
  qint64 const maxBytes_;
  std::vector<IndexPart> parts_;
  Part part_;
  OGRPoint standIn_;
  QFile places_;
  qint64 bytes_ = 0;
  bool isUnfit_ = false;
};

}  // namespace SysCarto
