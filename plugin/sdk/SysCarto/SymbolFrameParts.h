#pragma once

#include <SysCarto/FrameProperties.h>
#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/LineSymbol.h>

#include <memory>

namespace SysCarto {

/// A line around the rectangle, `gap` points outside it, with rounded corners where asked. By default black, 1 point.
class SYSCARTO_EXPORT SymbolBorder final : public IBorder {
public:
  SymbolBorder();
  SymbolBorder(SymbolBorder const&);
  ~SymbolBorder() override;

  SysUtility::_ptr_t<SymbolBorder> Clone() const;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;

  SysUtility::_ptr_t<SysDisplay::LineSymbol> GetLineSymbol() const;
  void SetLineSymbol(SysUtility::_ptr_t<SysDisplay::LineSymbol> const& symbol);
  double GetGap() const;  ///< points
  void SetGap(double points);
  double GetCornerRounding() const;  ///< percent of half the shorter side, 0 to 100
  void SetCornerRounding(double percent);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

/// An area behind the rectangle, grown by `gap` points. By default white.
class SYSCARTO_EXPORT SymbolBackground final : public IBackground {
public:
  SymbolBackground();
  SymbolBackground(SymbolBackground const&);
  ~SymbolBackground() override;

  SysUtility::_ptr_t<SymbolBackground> Clone() const;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;

  SysUtility::_ptr_t<SysDisplay::FillSymbol> GetFillSymbol() const;
  void SetFillSymbol(SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);
  double GetGap() const;  ///< points
  void SetGap(double points);
  double GetCornerRounding() const;  ///< percent of half the shorter side, 0 to 100
  void SetCornerRounding(double percent);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

/// The rectangle once more, filled, moved by an offset. By default grey, 2 points to the right and 2 downwards.
class SYSCARTO_EXPORT SymbolShadow final : public IShadow {
public:
  SymbolShadow();
  SymbolShadow(SymbolShadow const&);
  ~SymbolShadow() override;

  SysUtility::_ptr_t<SymbolShadow> Clone() const;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const override;

  SysUtility::_ptr_t<SysDisplay::FillSymbol> GetFillSymbol() const;
  void SetFillSymbol(SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);
  double GetXOffset() const;  ///< points, to the right
  double GetYOffset() const;  ///< points, upwards
  void SetOffset(double xPoints, double yPoints);
  double GetCornerRounding() const;  ///< percent of half the shorter side, 0 to 100
  void SetCornerRounding(double percent);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
