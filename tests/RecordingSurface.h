#pragma once

#include "Test.h"
#include "host/SysCarto/maps/ViewSurface.h"

#include <SysDisplay/DisplayTransformation.h>

#include <QCursor>
#include <QStringList>

#include <functional>

/// Writes down what a view asks of its screen.
class RecordingSurface final : public SysCarto::ViewSurface {
public:
  explicit RecordingSurface(QStringList& calls) : calls_(calls) {}

  void beginTracker() override { calls_ << "begin"; }
  void endTracker() override { calls_ << "end"; }
  void trackerOffset(double dx, double dy) override { calls_ << QString("offset %1 %2").arg(dx).arg(dy); }
  void trackerShape(SysDisplay::Symbol const& symbol, _ptr_t<SysGeometry::Geometry> const& geometry,
                    _ptr_t<SysDisplay::DisplayTransformation> const& transformation) override {
    auto const box = geometry->GetEnvelope();
    calls_ << QString("%1 %2 %3 %4 at scale %5")
                  .arg(symbol.GetType() == SysDisplay::SymbolType::Line ? "line" : "fill")
                  .arg(box->GetXMin())
                  .arg(box->GetXMax())
                  .arg(box->GetYMax())
                  .arg(transformation->GetPageScale());
  }
  void refresh(int phase) override {
    calls_ << QString("refresh %1").arg(phase);
    if (onRefresh) onRefresh();
  }
  void clearOverlay() override { calls_ << "clear"; }
  void setCursor(QCursor const& cursor) override { calls_ << QString("cursor %1").arg(cursor.shape()); }

  std::function<void()> onRefresh;

private:
  QStringList& calls_;
};
