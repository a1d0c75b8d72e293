#pragma once

#include "host/SysCarto/labels/LabelSettings.h"
#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/FeatureWindows.h"
#include "host/SysCarto/layers/Renderer.h"

#include <SysCarto/FeatureLayer.h>
#include <SysDisplay/FillSymbol.h>

#include <QTransform>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace SysDisplay {
class DrawTarget;
}

namespace SysCarto {

class ThinnedFeatures;
struct PlacedLabel;

/// How many features of a layer were to have labels where it was labelled last, and how many have them.
struct LabelCount {
  int wanted = 0;
  int placed = 0;
};

/// What is made of one feature of a layer while a view puts it in the foreground; no document stores it.
struct Spotlight {
  qint64 feature = -1;  ///< its number in the source
  bool hidesOthers = false;
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;       ///< drawn over the layer; may be missing
  SysUtility::_ptr_t<SysDisplay::FillSymbol> outside;  ///< covers all but the feature; may be missing
};

/// Features of a file, held in memory in the map's coordinate system: all of them, or of a large file with an index
/// those that the map was asked to show. A layer whose source can't be read is empty.
class SYSCARTO_EXPORT VectorLayer final : public FeatureLayer {
public:
  /// Empty, and drawn with `renderer` once it is opened; it must not be null.
  explicit VectorLayer(std::unique_ptr<Renderer> renderer);
  ~VectorLayer() override;

  /// Reads the source anew. A sentence that says why it could not be read, or empty; what else is to be said of it is
  /// added to `warnings`. Of the schema alone, the features are read once something asks for them: then `problem`
  /// tells what is wrong with these, and `warnings` what else is to be said. Later, no file is touched before this
  /// returns: another thread reads the source then. Who asks for features waits for that, or is without any
  /// (`WithoutWaiting`). `mapSystem` as in `Map::GetCoordinateSystem`.
  QString open(SourceSettings const& source, QString const& mapSystem, QStringList& warnings,
               ReadProgress const& progress = {}, ReadDepth depth = ReadDepth::Features);

  SourceSettings const& source() const { return source_; }

  /// Why the source could not be read, as `open` answered it, or what is shown now.
  QString problem() const;

  /// The same for what a page would be drawn of now: what failed some time ago would be read again.
  QString failure() const;

  /// What else is to be said of the features that were read so far, as sentences: what is not as it should be, and how
  /// they are read.
  QStringList const& warnings() const { return warnings_; }
  QStringList const& notes() const { return notes_; }

  /// How much was read of what is being read for views, from 0 to 1; nothing where nothing is.
  std::optional<double> readShare() const;

  /// Whether it was opened to be read later, and that has not ended.
  bool isBeingRead() const { return static_cast<bool>(reading_); }

  /// Waits until that has ended, or `progress`, which may be empty, wants no more. Answers whether it has ended.
  bool wait(ReadProgress const& progress) const;

  /// Not null. A renderer that puts features into other classes takes effect when the layer is opened.
  void setRenderer(std::unique_ptr<Renderer> renderer);
  Renderer const& renderer() const { return *renderer_; }

  /// All features. Of a layer that has windows these are read once something asks for them.
  FeatureStore const& features() const;

  /// Whether features are read by windows.
  bool hasWindows() const;

  /// How many features there are; of a layer that has windows those before its filter.
  qint64 count() const;

  /// What the features cover of the map; of a layer that has windows a little more, as its file tells.
  Box extent() const;

  // Some of the features, without reading others where the layer has windows. Shared with the layer, or not.

  // `problem` becomes the sentence that says why not all could be read, or empty; it may be null.

  /// Those that meet an area of the map, and maybe others.
  std::shared_ptr<FeatureStore const> featuresIn(Box const& area, QString* problem = nullptr) const;

  /// Those with these numbers in the source, and maybe others.
  std::shared_ptr<FeatureStore const> featuresNumbered(std::vector<qint64> const& ids,
                                                       QString* problem = nullptr) const;

  void setSpotlight(std::optional<Spotlight> const& spotlight);

  /// What labels of other layers of its map keep off.
  void setObstacle(LabelObstacle obstacle);
  LabelObstacle obstacle() const { return obstacle_; }

  LabelCount labelCount() const;

  /// The labels as they were placed last; of one that bends, its letters.
  std::vector<PlacedLabel> const& placedLabels() const { return placed_; }

  /// What found no place then, as labels in red at their features.
  QList<SysUtility::_ptr_t<Element>> unplacedLabels() const;

  /// Other fields take effect when the layer is opened: the texts are read with the features.
  void setLabelSettings(LabelSettings const& settings);
  LabelSettings const& labelSettings() const { return labels_; }

  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation, int phase,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  QList<LegendClass> legendClasses() const override;

  /// How many of these, the first ones, are markers in proportion to numbers, the largest first.
  int proportionalClasses() const;
  bool IsAnnotationVisible() const override;
  SysUtility::_ptr_t<AnnotationProperties> GetAnnotationProperties() const override;
  void GetAnnotationElements(QMap<int, QList<SysUtility::_ptr_t<SysGeometry::Polygon>>>& obstacles,
                             QList<SysUtility::_ptr_t<Element>>& labels,
                             SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                             SysUtility::_ptr_t<SysUI::TrackerCancel> cancel) override;

private:
  void beginReading();
  void endReading() const;
  void giveUpReading();
  void need() const;
  QString read(ReadProgress const& progress, ReadDepth depth) const;
  QString keep(ReadFeatures read, ReadDepth depth) const;
  void keepWarnings(ReadFeatures const& read) const;
  FeatureStore const& form() const { return hasWindows() ? *store_ : features(); }
  ThinnedFeatures& thinned() const;
  LabelChoice labelChoice(double unitsPerPoint) const;
  std::shared_ptr<FeatureStore const> shared() const;
  std::shared_ptr<FeatureStore const> readOnly(WindowQuery const& query, QString* problem) const;
  std::shared_ptr<FeaturePack const> window(SysDisplay::DisplayTransformation const& transformation,
                                            double unitsPerPixel, Box const& reached, double reach,
                                            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;
  std::shared_ptr<FeatureStore const> shownBy(SysDisplay::DisplayTransformation const& transformation,
                                              SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;
  struct Placement;
  struct PlannedLabels;
  struct LabelQuestion;
  QList<VectorLayer*> fellows() const;
  std::vector<VectorLayer*> labelledFrom(double mapScale);
  LabelQuestion labelQuestion(QMap<int, QList<SysUtility::_ptr_t<SysGeometry::Polygon>>> const& obstacles,
                              SysDisplay::DisplayTransformation const& transformation);
  std::shared_ptr<PlannedLabels> planLabels(QMap<int, QList<SysUtility::_ptr_t<SysGeometry::Polygon>>> const& obstacles,
                                            SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                                            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  std::shared_ptr<PlannedLabels> placeLabels(
      QMap<int, QList<SysUtility::_ptr_t<SysGeometry::Polygon>>> const& obstacles,
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  QVector<bool> classesWithin(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  QVector<bool> findClassesWithin(SysDisplay::DisplayTransformation const& transformation, Box const& shown) const;
  QVector<bool> classesOf(std::vector<bool> const& found) const;
  void drawSpotlight(SysDisplay::DrawTarget& target, double unitsPerPixel);
  void drawOutside(SysDisplay::DrawTarget& target, ThinnedFeatures& features, int feature);
  bool isHidden(qint64 id) const;
  void drawFeatures(QPainter& painter, SysDisplay::DisplayTransformation const& transformation,
                    SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  void drawWindow(SysDisplay::DrawTarget& target, SysDisplay::DisplayTransformation const& transformation,
                  double unitsPerPixel, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);

  SourceSettings source_;
  QString mapSystem_;
  mutable QString problem_;
  QString spotlightProblem_;
  mutable QStringList warnings_, notes_;
  std::shared_ptr<Renderer const> renderer_;  // also of readings on other threads
  LabelSettings labels_;
  LabelObstacle obstacle_ = LabelObstacle::None;
  std::optional<Spotlight> spotlight_;
  int placedLabels_ = 0;
  std::vector<PlacedLabel> placed_, unplaced_;
  std::shared_ptr<PlannedLabels> planned_;  // with other layers, until its turn comes
  SysUtility::_ptr_t<AnnotationProperties> properties_;

  // Only by these functions: features(), thinned().
  mutable std::unique_ptr<FeatureStore> store_;
  mutable std::unique_ptr<ThinnedFeatures> thinned_;
  mutable bool isUnread_ = false;  // by the schema alone
  mutable bool hasWindows_ = false;
  mutable Box extent_;  // and the count: where it has windows
  mutable qint64 count_ = 0;
  mutable FeatureWindows windows_;

  // Of what was opened to be read later, until that has ended.
  mutable std::shared_ptr<WindowReading> reading_;
  mutable bool owesFeatures_ = false;  // somebody who did not wait was without

  // Which classes were in sight when last asked, for the look of that time: a legend asks at each redraw.
  struct Within {
    quint64 look = 0;
    Box shown;
    QTransform turn;
    double scale = 0;
    QVector<bool> classes;
    bool isWhole = true;
    int news = 0;  // of windows, where it is not
  };
  mutable Within within_;
};

}  // namespace SysCarto
