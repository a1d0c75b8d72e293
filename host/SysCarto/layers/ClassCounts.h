#pragma once

#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysCarto/layers/Renderer.h"

#include <memory>
#include <vector>

class OGRFeature;

namespace SysCarto {

class Condition;
class DataSource;

/// Counts how many features of a source each class of a renderer takes, a portion at a time, so that a window stays
/// alive meanwhile. A condition alone is the filter of the only rule.
///
/// Where the first rule that fits draws, a rule takes what no earlier one takes from it at all the scales at which it
/// draws itself. Features without a place on the map count, too.
class SYSCARTO_EXPORT ClassCounts {
public:
  /// On a failure an empty pointer, and `error` is a sentence: the source can't be read, or a condition is not
  /// understood.
  static std::unique_ptr<ClassCounts> open(SourceSettings const& source, RendererSettings const& renderer,
                                           QString& error);
  static std::unique_ptr<ClassCounts> open(SourceSettings const& source, QString const& condition, QString& error);
  ~ClassCounts();

  /// Goes on for so many milliseconds; false when all features have been read, or no more can be.
  bool advance(int ms);

  /// Why not all could be read, as a sentence; else empty.
  QString const& problem() const { return problem_; }

  /// How far it is, from 0 to 1; negative where that can't be told.
  double progress() const;

  /// By class, so far.
  std::vector<qint64> const& counts() const { return counts_; }
  qint64 others() const { return others_; }      ///< those in no class
  qint64 features() const { return features_; }  ///< all that the source's own filter admits

  /// What is to be said of the features that were read, as sentences: which found no row in a joined table.
  QStringList notes() const;

private:
  ClassCounts(std::unique_ptr<DataSource> data, QString const& file);
  QString compile(SourceSettings const& source, RendererSettings const& renderer);
  void count(OGRFeature& feature);

  std::unique_ptr<DataSource> const data_;
  QString file_, problem_;
  std::unique_ptr<Renderer> renderer_;
  std::unique_ptr<Condition> own_;
  std::vector<Condition> rules_;
  std::vector<std::vector<size_t>> before_;  // the rules that take features from each
  std::vector<char> fits_;
  int field_ = -1;
  std::vector<qint64> counts_;
  qint64 others_ = 0, features_ = 0, read_ = 0, total_ = -1;
};

/// What an expression makes of the first features that it has a value for, as texts. Where it is not understood there
/// are none, and `error` is a sentence.
SYSCARTO_EXPORT QStringList sampleResults(SourceSettings const& source, QString const& expression, int limit,
                                          QString& error);

}  // namespace SysCarto
