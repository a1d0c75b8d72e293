#pragma once

#include "RasterRenderer.h"
#include "RasterSampler.h"
#include "RasterSource.h"

#include "host/SysGeometry/Box.h"

#include <SysCarto/Layer.h>

#include <QImage>

#include <memory>

namespace SysCarto {

class GroundScale;
class RasterColors;
struct GroundPixel;

/// How a raster is drawn.
struct RasterLook {
  RasterRendererSettings renderer;
  Resampling resampling = Resampling::Bilinear;
  ToneSettings tone;

  bool operator==(RasterLook const& other) const {
    return renderer == other.renderer && resampling == other.resampling && tone == other.tone;
  }
};

/// Pixels of a file, taken into the map's coordinate system where they are drawn, for the resolution of that drawing. A
/// layer whose source can't be read is empty.
class SYSCARTO_EXPORT RasterLayer final : public Layer {
public:
  RasterLayer();
  ~RasterLayer() override;

  /// Opens the source anew. A sentence that says why it could not be opened, or empty. `mapSystem` as in
  /// `Map::GetCoordinateSystem`.
  QString open(RasterSourceSettings const& source, QString const& mapSystem);

  RasterSourceSettings const& source() const { return settings_; }

  /// Why the source could not be opened, or read when it was drawn.
  QString const& problem() const { return problem_; }

  RasterLook const& look() const { return look_; }
  void setLook(RasterLook const& look);

  /// What is open; null where nothing is.
  RasterSource const* raster() const { return raster_.get(); }

  /// What it covers, in map units.
  SysGeometry::Box box() const;

  /// The values of all bands at a place in map units, NaN for a band without one; none where no band has any.
  std::vector<double> valuesAt(QPointF const& place) const;

  int GetType() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation, int phase,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  QList<LegendClass> legendClasses() const override;

private:
  void drawPixels(QPainter& painter, SysDisplay::DisplayTransformation const& transformation,
                  SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  QImage cell(PixelGrid const& grid, QPoint const& number);
  std::vector<GroundPixel> groundOf(PixelGrid const& grid, QRect const& area) const;
  RasterColors const& colors() const;
  QString checkBands() const;
  void forget();

  RasterSourceSettings settings_;
  RasterLook look_;
  QString problem_;
  std::unique_ptr<RasterSource> raster_;
  std::unique_ptr<RasterPlaces> places_;
  std::unique_ptr<GroundScale> ground_;
  mutable std::unique_ptr<RasterColors> colors_;
  quint64 drawing_ = 0;  // tells its cells from others that are kept
};

}  // namespace SysCarto
