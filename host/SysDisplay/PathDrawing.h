#pragma once

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysGeometry/Box.h"

#include <SysDisplay/FillSymbol.h>

#include <memory>

namespace SysDisplay {

/// A line or a fill symbol made ready for one target. The parts of one shape are added in world coordinates and drawn
/// together: a line whose colour shines through is not doubled where it overlaps itself, and rings bound an area by the
/// even-odd rule. One feature at a time is the usual use.
class SYSDISPLAY_EXPORT PathDrawing {
public:
  virtual ~PathDrawing();

  /// How far from its geometry the symbol may reach, in pixels.
  virtual double reachPx() const = 0;

  /// Without `outlined` the ring is only filled, and the caller adds those of its edges that are to be stroked.
  virtual void addRing(WorldRun const& run, bool outlined = true) = 0;

  /// An open line; of an area, edges that belong to its outline alone.
  virtual void addLine(WorldRun const& run) = 0;

  /// Draws what was added and forgets it. `shape` is what all of the shape covers in the world, whichever parts of it
  /// were added.
  virtual void draw(SysGeometry::Box const& shape) = 0;
};

/// An empty pointer where there is nothing to draw. The target must outlive the drawing; the symbol is read at once. A
/// symbol of a foreign library is drawn as a solid line, or as an area of one colour.
SYSDISPLAY_EXPORT std::unique_ptr<PathDrawing> prepared(DrawTarget& target, LineSymbol const& symbol);
SYSDISPLAY_EXPORT std::unique_ptr<PathDrawing> prepared(DrawTarget& target, FillSymbol const& symbol);

/// Draws all of a geometry with a line symbol, or an area with a fill symbol.
void drawGeometry(LineSymbol const& symbol, QPainter& painter, DisplayTransformation const* transformation,
                  SysGeometry::Geometry const* geometry);
void drawGeometry(FillSymbol const& symbol, QPainter& painter, DisplayTransformation const* transformation,
                  SysGeometry::Geometry const* geometry);

/// The same for a path in device pixels, at page scale 1.
void drawPath(LineSymbol const& symbol, QPainter& painter, QPainterPath const& path);
void drawPath(FillSymbol const& symbol, QPainter& painter, QPainterPath const& path);

/// Multiplies every length of a symbol: of a fill, those of its outline.
SYSDISPLAY_EXPORT void resize(LineSymbol& symbol, double factor);
SYSDISPLAY_EXPORT void resize(FillSymbol& symbol, double factor);

/// A line symbol of the host alone: all its drawing stands on `prepare`.
class SYSDISPLAY_EXPORT PreparableLine : public LineSymbol {
public:
  ~PreparableLine() override;

  virtual std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const = 0;

  /// Multiplies every length.
  virtual void resize(double factor) = 0;

  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;
  void Draw(QPainter& painter, QPainterPath const& path) const final;
  void DrawCurve(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                 SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;

protected:
  PreparableLine();
  PreparableLine(PreparableLine const&);
  PreparableLine& operator=(PreparableLine const&);
};

/// A fill symbol of the host alone: all its drawing stands on `prepare`.
class SYSDISPLAY_EXPORT PreparableFill : public FillSymbol {
public:
  ~PreparableFill() override;

  virtual std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const = 0;

  /// Multiplies the lengths of what outlines there are.
  virtual void resizeOutlines(double factor);

  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;
  void Draw(QPainter& painter, QPainterPath const& path) const final;
  void DrawSurface(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                   SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;
  void DrawEnvelope(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<SysGeometry::Envelope> const& envelope) const final;

protected:
  PreparableFill();
  PreparableFill(PreparableFill const&);
  PreparableFill& operator=(PreparableFill const&);
};

}  // namespace SysDisplay
