#pragma once

#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/PathDrawing.h"

#include <QVector>

#include <algorithm>

namespace SysDisplay {

/// A symbol that is a list of symbols of its class, drawn one over the other, the first one at the bottom: a line with
/// a casing, a hatch over a colour, a marker with a halo. `Base` is the class `S` of the interface as the host prepares
/// it.
template <class S, class Base>
class LayeredSymbol : public Base {
public:
  using Layers = QVector<SysUtility::_ptr_t<S>>;

  /// The symbols themselves, not copies; none is null.
  Layers const& layers() const { return layers_; }
  void setLayers(Layers const& layers) { layers_ = layers; }

  /// 1, and one more for each layered symbol within another.
  int depth() const {
    int deepest = 0;
    for (auto const& layer : layers_)
      if (auto const* inner = dynamic_cast<LayeredSymbol const*>(layer.get()))
        deepest = std::max(deepest, inner->depth());
    return 1 + deepest;
  }

protected:
  LayeredSymbol() = default;
  LayeredSymbol(LayeredSymbol const& other) : Base(other) { copyLayers(other); }
  LayeredSymbol& operator=(LayeredSymbol const& other) {
    Base::operator=(other);
    copyLayers(other);
    return *this;
  }

private:
  void copyLayers(LayeredSymbol const& other) {
    Layers copies;
    for (auto const& layer : other.layers_) copies << SysUtility::ptr_cast<S>(layer->Clone());
    layers_ = copies;
  }

  Layers layers_;
};

/// Its width is that of its widest layer, moved aside as it is, and its colour that of the last: another width enlarges
/// all layers alike, and 0 is ignored, since nothing would tell them apart. A layer of a map draws such lines symbol by
/// symbol, so that the inner lines of roads join over the casings (`linesOf`).
class SYSDISPLAY_EXPORT LayeredLineSymbol final : public LayeredSymbol<LineSymbol, PreparableLine> {
public:
  LayeredLineSymbol();
  LayeredLineSymbol(LayeredLineSymbol const&);
  LayeredLineSymbol& operator=(LayeredLineSymbol const&);
  ~LayeredLineSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void resize(double factor) override;

  double GetWidth() const override;
  void SetWidth(double points) override;
  QColor GetColor() const override;
  void SetColor(QColor color) override;
};

/// The lines that a line symbol is made of, the lowest first; the symbol itself where it has no layers.
SYSDISPLAY_EXPORT QVector<LineSymbol const*> linesOf(LineSymbol const& symbol);

/// Its colour is that of the first layer, and its outline that of the last.
class SYSDISPLAY_EXPORT LayeredFillSymbol final : public LayeredSymbol<FillSymbol, PreparableFill> {
public:
  LayeredFillSymbol();
  LayeredFillSymbol(LayeredFillSymbol const&);
  LayeredFillSymbol& operator=(LayeredFillSymbol const&);
  ~LayeredFillSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void resizeOutlines(double factor) override;

  QColor GetColor() const override;
  void SetColor(QColor color) override;
  SysUtility::_ptr_t<LineSymbol> GetOutlineSymbol() const override;
  void SetOutlineSymbol(SysUtility::_ptr_t<LineSymbol> const& outline) override;
};

/// Its size is that of the largest layer, and its angle that of the first: another size enlarges all layers alike, 0 is
/// ignored, and another angle turns them all.
class SYSDISPLAY_EXPORT LayeredMarkerSymbol final : public LayeredSymbol<MarkerSymbol, PreparableMarker> {
public:
  LayeredMarkerSymbol();
  LayeredMarkerSymbol(LayeredMarkerSymbol const&);
  LayeredMarkerSymbol& operator=(LayeredMarkerSymbol const&);
  ~LayeredMarkerSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<MarkerDrawing> prepare(double pixelsPerPoint) const override;

  double GetSize() const override;
  void SetSize(double points) override;
  double GetAngle() const override;
  void SetAngle(double degrees) override;
};

}  // namespace SysDisplay
