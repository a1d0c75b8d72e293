#pragma once

#include <SysDisplay/FillSymbol.h>

#include <QJsonObject>
#include <QString>

namespace SysDisplay {

/// Hatches are lines of 0.4 points, 4 points apart, that hang on the world's origin and so go on from tile to tile.
enum class SimpleFillStyle {
  Solid = 0,
  Null = 1,
  Horizontal = 2,
  Vertical = 3,
  ForwardDiagonal = 4,   ///< rising to the left
  BackwardDiagonal = 5,  ///< rising to the right
  Cross = 6,
  DiagonalCross = 7
};

/// One colour, flat or hatched, with an outline. By default solid, light grey, no outline.
class SYSDISPLAY_EXPORT SimpleFillSymbol final : public FillSymbol {
public:
  SimpleFillSymbol();
  SimpleFillSymbol(SimpleFillSymbol const&);
  SimpleFillSymbol& operator=(SimpleFillSymbol const&);
  ~SimpleFillSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void Draw(QPainter& painter, QPainterPath const& path) const override;
  void DrawSurface(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                   SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void DrawEnvelope(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<SysGeometry::Envelope> const& envelope) const override;

  virtual SimpleFillStyle GetStyle() const;
  virtual void SetStyle(SimpleFillStyle style);

  /// Takes the symbol's values from JSON, as a map document stores them. Answers false, and changes nothing, where the
  /// JSON is not such a symbol.
  virtual bool ImportFromJson(QJsonObject& json);
  virtual bool ImportFromJson(QString const& json);
  virtual void ExportToJson(QString& json) const;

private:
  SimpleFillStyle style_;
};

}  // namespace SysDisplay
