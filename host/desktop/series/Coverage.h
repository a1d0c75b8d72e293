#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/PageLayout.h>

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>

namespace SysCarto {
struct Series;
}

/// The features of a layout's series, in the order of their pages, which count from 1.
class Coverage {
  Q_DECLARE_TR_FUNCTIONS(Coverage)

public:
  /// On a failure an empty pointer, and `problem` is a sentence. The layer that has the features is kept.
  static std::unique_ptr<Coverage> read(SysCarto::PageLayout const& layout, QString& problem);
  ~Coverage();

  int count() const { return static_cast<int>(features_.size()); }
  QString const& name(int page) const { return names_[static_cast<size_t>(page - 1)]; }

  /// The number of a page's feature in the source.
  qint64 feature(int page) const { return features_[static_cast<size_t>(page - 1)]; }

  /// The page of a feature; 0 for one that has none.
  int pageOf(qint64 feature) const { return pages_.value(feature); }

  /// The field of that name, or of one that differs in case; −1 for none.
  int fieldOf(QString const& name) const;
  std::vector<SysCarto::TableField> const& fields() const { return table_->fields(); }

  SysCarto::TableRow row(int page) const;

  /// The pages whose features meet a condition. Nothing, and `problem` a sentence, for one that is not understood.
  std::optional<QSet<int>> pagesThatMeet(QString const& condition, QString& problem) const;

  /// A text for each page, with its placeholders filled in; values of fields as `write` has them. A field that is not
  /// there is a problem.
  QStringList filled(QString const& pattern, std::function<QString(QVariant const&)> const& write,
                     QString& problem) const;

  /// Whether features have places at all, unlike rows of a table.
  bool hasPlaces() const { return shapes_->hasWindows() || shapes_->features().size() > 0; }

  /// Where the feature of a page lies, in the units of the series' map, and maybe others.
  std::shared_ptr<SysCarto::FeatureStore const> shapeOf(int page) const {
    return shapes_->featuresNumbered({feature(page)});
  }

  /// Where all features that have pages lie, and maybe others.
  SysCarto::FeatureStore const& store() const;

  /// Null where no map has a layer of these.
  SysUtility::_ptr_t<SysCarto::VectorLayer> const& layer() const { return layer_; }

private:
  Coverage();
  QString open(SysCarto::PageLayout const& layout);
  QString sort(SysCarto::Series const& series);
  QString checkFields(QString const& pattern) const;
  QString noField(QString const& name) const;

  SysCarto::SourceSettings source_;
  QString filter_;
  SysUtility::_ptr_t<SysCarto::VectorLayer> layer_;
  SysUtility::_ptr_t<SysCarto::VectorLayer> shapes_;  // that layer, or one that no map has
  mutable std::shared_ptr<SysCarto::FeatureStore const> ofPages_;
  std::unique_ptr<SysCarto::FeatureTable> table_;
  std::vector<qint64> features_;
  std::vector<QString> names_;
  QHash<qint64, int> pages_;
};

/// A value of an attribute as tables of attributes show it; empty for none. For files, in a locale that is the same
/// everywhere.
QString textOf(QVariant const& value, QLocale locale = QLocale());
