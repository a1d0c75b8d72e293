#pragma once

#include <SysDisplay/LineSymbol.h>

#include <QJsonObject>
#include <QString>

namespace SysDisplay {

/// Dash lengths are in line widths.
enum class SimpleLineStyle { Null = 0, Solid = 1, Dash = 2, Dot = 3, DashDot = 4, DashDotDot = 5 };

/// One pen: a solid or dashed line of one colour. By default solid, black, 0.5 points, round caps and joins.
class SYSDISPLAY_EXPORT SimpleLineSymbol final : public LineSymbol {
public:
  SimpleLineSymbol();
  SimpleLineSymbol(SimpleLineSymbol const&);
  SimpleLineSymbol& operator=(SimpleLineSymbol const&);
  ~SimpleLineSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void Draw(QPainter& painter, QPainterPath const& path) const override;
  void DrawCurve(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                 SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;

  virtual SimpleLineStyle GetStyle() const;
  virtual void SetStyle(SimpleLineStyle style);

  /// Takes the symbol's values from JSON, as a map document stores them. Answers false, and changes nothing, where the
  /// JSON is not such a symbol.
  virtual bool ImportFromJson(QJsonObject& json);
  virtual bool ImportFromJson(QString const& json);
  virtual void ExportToJson(QString& json) const;

private:
  SimpleLineStyle style_;
};

}  // namespace SysDisplay
