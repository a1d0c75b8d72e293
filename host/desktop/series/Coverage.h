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

  /// Where the features lie, in the units of the series' map; empty for rows of a table.
  SysCarto::FeatureStore const& store() const { return layer_ ? layer_->features() : *own_; }

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
  std::unique_ptr<SysCarto::FeatureStore> own_;
  std::unique_ptr<SysCarto::FeatureTable> table_;
  std::vector<qint64> features_;
  std::vector<QString> names_;
  QHash<qint64, int> pages_;
};

/// A value of an attribute as tables of attributes show it; empty for none. For files, in a locale that is the same
/// everywhere.
QString textOf(QVariant const& value, QLocale locale = QLocale());
