#pragma once

#include "DerivedLayer.h"
#include "SourceSettings.h"

#include <memory>

namespace SysCarto {

/// The columns of a table that place its rows: two of coordinates, or one of well-known text; none where its rows have
/// no place.
struct PlaceColumns {
  QString x, y, geometry;

  bool isEmpty() const { return x.isEmpty() && geometry.isEmpty(); }
};

/// A table of texts as features: with the places that its columns give, and texts in UTF-8 whatever the file has.
class TableLayer final : public DerivedLayer {
public:
  /// With the columns that the source names, or those that names and values tell. Null, with a sentence in `error`,
  /// where the source names others than the table has.
  static std::unique_ptr<TableLayer> create(OGRLayer& table, SourceSettings const& source, QString& error);

  PlaceColumns const& columns() const { return columns_; }

  QStringList notes() const override;

private:
  TableLayer(OGRLayer& table, QString const& file, PlaceColumns columns);

  void derive(OGRFeature& from, OGRFeature& to) override;
  OGRGeometry* placeOf(OGRFeature& from) const;
  void findSystem();
  void noteUnplaced(OGRFeature& row);

  QString const file_;
  PlaceColumns const columns_;
  int x_ = -1, y_ = -1, geometry_ = -1;
  qint64 unplaced_ = 0, lastUnplaced_ = -1;  // how many rows, and the number of the last: some are read several times
  QString example_;
};

}  // namespace SysCarto
