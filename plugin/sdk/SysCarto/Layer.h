#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/Symbol.h>
#include <SysUI/TrackerCancel.h>

#include <QList>
#include <QString>
#include <QVector>

#include <memory>

class QPainter;

namespace SysCarto {

/// One kind of things that a layer shows, as a legend lists it.
struct LegendClass {
  QString label;  ///< may be empty
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
};

/// The codes that `Layer::GetType` answers.
namespace LayerType {
enum : int { Feature = 2, Raster = 3 };
}

/// A layer of a map. It holds its data projected to the map's coordinate system.
class SYSCARTO_EXPORT Layer : public SysUtility::CRef {
public:
  ~Layer() override;

  /// One of `LayerType`.
  virtual int GetType() const = 0;
  virtual bool IsVisible() const;

  // A layer shows strictly between its scale limits, the smallest and the largest scale denominator; 0 and 0 is no
  // limit. Where one side alone was set, the other answers an extreme value, so that never only one of them is 0.
  virtual double GetMinScale() const;
  virtual double GetMaxScale() const;

  /// Draws what the transformation shows of the layer, in map units. Phase 1 draws features; other phases draw nothing.
  /// Labels are not drawn: they are elements (`FeatureLayer::GetAnnotationElements`). Sets the render hints it wants.
  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                    int phase, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) = 0;

  QString GetName() const;
  void SetName(QString const& name);
  void SetVisible(bool visible);

  /// 0 for a side without a limit; the other side then keeps its meaning.
  void SetScaleRange(double minDenominator, double maxDenominator);

  /// Whether the layer shows at a scale denominator: visible, and strictly between its limits.
  bool showsAt(double scale) const;

  /// What the layer shows, in the order of a legend; empty where it has nothing to tell.
  virtual QList<LegendClass> legendClasses() const;

protected:
  Layer();
  Layer(Layer const&) = delete;

private:
  friend struct LayerHost;

  /// For each of the `legendClasses`, whether it has something in what the transformation shows. A layer that can't
  /// tell says that all have.
  virtual QVector<bool> classesWithin(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const;

  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
