#pragma once

#include "host/SysCarto/elements/Placeholders.h"
#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Element.h>

#include <QRectF>

#include <optional>

namespace SysCarto {

/// A text that hangs on a point by the alignment of its symbol. Position in the units of its container: page
/// centimetres, or map units for labels.
class SYSCARTO_EXPORT TextElement final : public Element {
public:
  TextElement();
  TextElement(TextElement const&);
  ~TextElement() override;

  QString text() const { return text_; }
  void setText(QString const& text);

  /// Centimetres on paper at which lines are broken, at most `maxWidthCm`; 0 breaks them only where the text does.
  static constexpr double maxWidthCm = 1000;
  double width() const { return widthCm_; }
  void setWidth(double cm);

  /// What is drawn: the text with its placeholders filled in and its lines broken.
  QString shown() const;

  /// Whether placeholders are filled in at all; they are, if nobody says otherwise.
  bool fillsPlaceholders() const { return fillsPlaceholders_; }
  void setFillsPlaceholders(bool fills);

  /// Null for a text that stands as written.
  void setPlaceholders(std::shared_ptr<Placeholders> const& placeholders);

  /// Shared: elements may have one symbol together, and clones do. Change a clone. An empty pointer is ignored.
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol() const { return symbol_; }
  void setSymbol(SysUtility::_ptr_t<SysDisplay::TextSymbol> const& symbol);
  void setPosition(double x, double y);

  /// Degrees, counterclockwise.
  double angle() const { return angle_; }
  void setAngle(double degrees);

  void Move(double dx, double dy) override;

  /// Scales everything by the first factor, height and place included, since letters can't be stretched. At most as far
  /// as a document can store the font.
  void Scale(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy) override;
  int GetType() const override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetGeometry() const override;

  /// Moves the text, so that its own rectangle has the same centre.
  void SetGeometry(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) override;

  /// The rectangle of the letters on a page in centimetres, without their halo. The letters of a label on a map have no
  /// size in map units of their own; `GetBoundary` tells it for a transformation.
  SysUtility::_ptr_t<SysGeometry::Envelope> GetEnvelope() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;

  /// `Draw` with a target that several texts share.
  void drawOn(SysDisplay::DrawTarget& target) const;

  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  SysUtility::_ptr_t<Element> Clone() const override;

private:
  void containerChanged() override;
  friend void scaleInWhole(Element&, SysUtility::_ptr_t<SysGeometry::Point> const&, double, double);
  double maxFactor(double wanted) const;
  void forget();
  void enlarge(double factor);
  QRectF const& boundsPt(QString const& shown) const;
  SysUtility::_ptr_t<SysGeometry::Envelope> rectangle(QRectF const& boundsPt, double unitsPerPoint) const;

  QString text_;
  std::shared_ptr<Placeholders> placeholders_;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol_;
  double x_ = 0, y_ = 0;
  double angle_ = 0;
  double widthCm_ = 0;
  bool fillsPlaceholders_ = true;
  mutable QString filled_, broken_;         // the text before and after its lines were broken
  mutable QString measured_;                // what the bounds are of
  mutable std::optional<QRectF> boundsPt_;  // turned, halo included, y downwards, about the position
};

/// Scales an element that is part of a whole, such as a group: a text keeps its place there, whatever shape the whole
/// takes, and its font alone follows the width.
SYSCARTO_EXPORT void scaleInWhole(Element& element, SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx,
                                  double sy);

}  // namespace SysCarto
