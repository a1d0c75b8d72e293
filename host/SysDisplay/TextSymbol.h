#pragma once

#include <SysDisplay/Symbol.h>

#include <QColor>
#include <QPainterPath>
#include <QString>
#include <QStringList>

namespace SysDisplay {

class DrawTarget;

/// With right angles, with round corners, or with half circles as its ends.
enum class BoxShape { Rectangle, Rounded, Capsule };

enum class HorizontalAlignment { Left, Center, Right };

/// Baseline is that of the first line.
enum class VerticalAlignment { Top, Middle, Baseline, Bottom };

/// Everything that shapes a text; lengths in points.
struct TextFormat {
  static constexpr double maxLengthPt = 1000;  ///< that can be saved

  QString family = QStringLiteral("DejaVu Sans");
  double size = 10;
  bool bold = false;
  bool italic = false;
  double letterSpacing = 0;
  double lineSpacing = 1;  ///< of the font's own line height
  QStringList features;    ///< of OpenType: tags as "smcp", with a value as "liga=0"
  QColor color = QColor(0, 0, 0);
  double haloSize = 0;  ///< how far the halo reaches beyond the letters; 0 for none
  QColor haloColor = QColor(255, 255, 255);
  QColor boxColor = QColor(255, 255, 255, 0);  ///< of a box behind the text, as callouts and shields have
  QColor boxLineColor = QColor(0, 0, 0);
  double boxLineWidth = 0;
  double boxPadding = 2;  ///< from the text to the edge of its box
  BoxShape boxShape = BoxShape::Rectangle;
  HorizontalAlignment horizontal = HorizontalAlignment::Left;
  VerticalAlignment vertical = VerticalAlignment::Baseline;

  bool hasHalo() const { return haloSize > 0 && haloColor.alpha() > 0; }
  bool hasBoxLine() const { return boxLineWidth > 0 && boxLineColor.alpha() > 0; }
  bool hasBox() const { return boxColor.alpha() > 0 || hasBoxLine(); }

  /// How far halo or box reach beyond the text.
  SYSDISPLAY_EXPORT double reach() const;

  bool operator==(TextFormat const& other) const;
};

/// Draws text as outlines, scaled linearly, so that it has the same shape at every resolution. Lines are separated by
/// "\n". A text hangs on its position by its alignment.
class SYSDISPLAY_EXPORT TextSymbol final : public Symbol {
public:
  TextSymbol();
  explicit TextSymbol(TextFormat format);
  TextSymbol(TextSymbol const&);
  TextSymbol& operator=(TextSymbol const&);
  ~TextSymbol() override;

  TextFormat const& format() const { return format_; }
  void setFormat(TextFormat format);

  /// The symbol with every length multiplied: a new object.
  SysUtility::_ptr_t<TextSymbol> resized(double factor) const;

  SymbolType GetType() const override;
  SysUtility::_ptr_t<Symbol> Clone() const override;

  /// A text symbol holds no text, so there is nothing to draw at a geometry alone; the same goes for the boundary.
  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;

  /// The letters without their halo, in points, y downwards, about the position (0, 0).
  QPainterPath outline(QString const& text) const;

  /// What the text covers, halo and the full line height included, in points, y downwards, about the position (0, 0).
  /// Null for a text without letters. Cheap after the first time.
  QRectF bounds(QString const& text) const;

  /// A width in points that the text has at least, to be asked before `bounds` where most texts will find no room.
  double minWidth(QString const& text) const;

  /// Draws the text at a position in device pixels, turned counterclockwise about it.
  void drawAt(DrawTarget& target, QPointF const& position, double angleDegrees, QString const& text) const;

  /// The same for a single text: puts the painter's state back.
  void drawAt(QPainter& painter, QPointF const& position, double pixelsPerPoint, double angleDegrees,
              QString const& text) const;

private:
  TextFormat format_;
  QString fontKey_;
};

}  // namespace SysDisplay
