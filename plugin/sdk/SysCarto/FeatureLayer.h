#pragma once

#include <SysCarto/Element.h>
#include <SysCarto/Layer.h>
#include <SysGeometry/Polygon.h>

#include <QList>
#include <QMap>

#include <memory>

namespace SysCarto {

/// How the features of a layer are labelled.
class SYSCARTO_EXPORT AnnotationProperties : public SysUtility::CRef {
public:
  AnnotationProperties();
  ~AnnotationProperties() override;

  // As for layers: labels show strictly between the two denominators, 0 and 0 is no limit.
  double GetMinScale() const;
  double GetMaxScale() const;

  /// Labels of layers with a higher priority are placed first.
  int GetPriority() const;

  void SetScaleRange(double minDenominator, double maxDenominator);
  void SetPriority(int priority);

private:
  friend struct LayerHost;
  struct Private;
  std::unique_ptr<Private> d;
};

/// Points, lines or polygons from a data source, drawn with symbols.
class SYSCARTO_EXPORT FeatureLayer : public Layer {
public:
  ~FeatureLayer() override;

  int GetType() const override;
  virtual bool IsAnnotationVisible() const = 0;

  /// The label settings, the object itself; never empty.
  virtual SysUtility::_ptr_t<AnnotationProperties> GetAnnotationProperties() const = 0;

  /// Places the layer's labels for everything that the transformation shows, as text elements in map units with sizes
  /// for its page scale, and appends them to `labels`. `obstacles` are areas in map units, by layer, that labels keep
  /// clear of; the areas of the new labels are added to it. Equal input gives equal placement.
  virtual void GetAnnotationElements(QMap<int, QList<SysUtility::_ptr_t<SysGeometry::Polygon>>>& obstacles,
                                     QList<SysUtility::_ptr_t<Element>>& labels,
                                     SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                                     SysUtility::_ptr_t<SysUI::TrackerCancel> cancel) = 0;

protected:
  FeatureLayer();
};

}  // namespace SysCarto
