#pragma once

#include "GridLines.h"
#include "SurroundSettings.h"

#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Element.h>

#include <QList>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace SysCarto {

/// The part of a map that the rectangle of a data frame shows.
struct MapPlace {
  SysGeometry::Envelope rectangle;  ///< page centimetres
  SysGeometry::Envelope extent;     ///< map units, in the turned world
  QTransform turn;                  ///< of the map

  QPointF onPage(QPointF const& point) const;

  /// The smallest rectangle of the map that holds all of what is shown.
  SysGeometry::Envelope covered() const;
};

/// Places the lines of a graticule in the rectangle of a data frame, and their labels outside it.
class GraticuleLabels {
public:
  GraticuleLabels(MapPlace const& place, SysUtility::_ptr_t<SysDisplay::TextSymbol> const& symbol, double gapPt,
                  Sides const& labelledSides);

  /// The parts of a line that lie in the rectangle, in page centimetres.
  QVector<QVector<QPointF>> placed(GridLine const& line) const;

  /// What lies within so many centimetres of the rectangle's sides, from each place where one of the parts ends there.
  QVector<QVector<QPointF>> ticks(QVector<QVector<QPointF>> const& parts, double lengthCm) const;

  /// The arms of a cross that long that lie in the rectangle.
  QVector<QVector<QPointF>> cross(GridCrossing const& crossing, double lengthCm) const;

  /// Labels a line where its parts meet the sides of the rectangle: meridians above and below, parallels beside it; a
  /// line that meets only the other sides, there. One that ends with the globe has its label beyond its end, and one
  /// that has neither, such as a parallel around a pole, on itself.
  void label(GridLine const& line, QVector<QVector<QPointF>> const& parts, QString const& text);

  /// The labels that have room: where there is none for all, those of every second line, every third and so on.
  QList<SysUtility::_ptr_t<Element>> elements() const;

private:
  enum Side { Left, Right, Bottom, Top, None };

  Side sideOf(QPointF const& point, bool isMeridian) const;
  bool isLabelled(Side side) const;
  void addOutside(QString const& text, QPointF const& point, Side side);
  void addBeyond(QString const& text, QLineF const& end);
  void addOn(QString const& text, QVector<QVector<QPointF>> const& parts);
  void add(QString const& text, QPointF const& position, double angle, SysDisplay::HorizontalAlignment horizontal,
           SysDisplay::VerticalAlignment vertical);

  MapPlace const place_;
  double left_, bottom_, right_, top_;
  SysDisplay::TextFormat format_;
  double gapCm_;
  Sides const labelledSides_;
  struct Label {
    bool isMeridian;
    int number;
    QRectF box;
    SysUtility::_ptr_t<Element> element;
  };
  bool doOverlap(QVector<Label> const& labels) const;

  GridLine const* line_ = nullptr;  // the one that is being labelled
  QVector<Label> labels_;
};

}  // namespace SysCarto
