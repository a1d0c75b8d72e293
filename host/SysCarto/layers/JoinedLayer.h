#pragma once

#include "DerivedLayer.h"
#include "SourceSettings.h"

#include <QHash>

#include <memory>
#include <vector>

namespace SysCarto {

/// The features of a layer with the fields of the rows that a table has for them: all features stay, those without a
/// row without values. Keys are the same where their texts are, blanks at the ends aside, or else where both are
/// numbers of one value. A field whose name is taken has the name of the table and an underscore before it.
class JoinedLayer final : public DerivedLayer {
public:
  /// Reads the table. Null, with a sentence in `error`, where that is not possible.
  static std::unique_ptr<JoinedLayer> create(OGRLayer& features, TableJoin const& join, QString& error);

  void ResetReading() override;
  QStringList notes() const override;

private:
  // Features without a partner, and rows that can't be found since an earlier one has their key.
  struct Strays {
    int count = 0;
    QString example;

    void add(QString const& key) {
      if (count++ == 0) example = key;
    }
  };

  JoinedLayer(OGRLayer& features, TableJoin join);

  void readTable(OGRLayer& table);
  void addFields(OGRLayer& table);
  OGRFeature* rowOf(QString const& key) const;
  void derive(OGRFeature& from, OGRFeature& to) override;

  TableJoin const join_;
  int key_ = -1;
  std::vector<int> tableFields_;  // in the order of the fields that they become
  std::vector<OGRFeatureUniquePtr> rows_;
  QHash<QString, OGRFeature*> byText_;
  QHash<double, OGRFeature*> byNumber_;
  QString tableExample_;  // a key of the table
  Strays duplicates_, missing_;
  int features_ = 0;
};

}  // namespace SysCarto
