#pragma once

#include <SysDisplay/LineSymbol.h>

namespace SysDisplay {

/// Draws polygons and envelopes: an area and its outline.
class SYSDISPLAY_EXPORT FillSymbol : public Symbol {
public:
  ~FillSymbol() override;

  SymbolType GetType() const override;

  virtual QColor GetColor() const;
  virtual void SetColor(QColor color);

  /// The symbol itself, shared, not a copy; empty where there is no outline.
  virtual SysUtility::_ptr_t<LineSymbol> GetOutlineSymbol() const;
  virtual void SetOutlineSymbol(SysUtility::_ptr_t<LineSymbol> const& outline);

  using Symbol::Draw;

  /// Draws a closed path given in device pixels, at page scale 1.
  virtual void Draw(QPainter& painter, QPainterPath const& path) const = 0;

  /// `Draw` for a geometry that is known to be an area.
  virtual void DrawSurface(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                           SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const = 0;
  virtual void DrawEnvelope(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                            SysUtility::_ptr_t<SysGeometry::Envelope> const& envelope) const = 0;

protected:
  FillSymbol();
  FillSymbol(FillSymbol const&);
  FillSymbol& operator=(FillSymbol const&);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
