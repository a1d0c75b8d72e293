#pragma once

#include "Pictures.h"

#include <SysGeometry/Envelope.h>
#include <SysGeometry/Point.h>

#include <proj.h>

#include <cmath>
#include <memory>

/// Places of a coordinate system on a page, as PROJ itself has them: in a data frame from (1, 1) to (11, 9) centimetres
/// with a map of another system, turned about the centre of its bounds.
class OnPaper {
public:
  OnPaper(QString const& from, QString const& to, SysGeometry::Envelope const& bounds, double rotation) {
    PJ* const given = proj_create_crs_to_crs(nullptr, from.toUtf8().constData(), to.toUtf8().constData(), nullptr);
    projection_.reset(proj_normalize_for_visualization(nullptr, given));
    proj_destroy(given);
    cmPerUnit_ = std::min(10 / bounds.GetWidth(), 8 / bounds.GetHeight());
    auto const centre = bounds.GetAnchorPoint();
    centre_ = {centre->GetX(), centre->GetY()};
    angle_ = rotation * M_PI / 180;
  }

  QPointF of(double x, double y) const {
    PJ_COORD const at = proj_trans(projection_.get(), PJ_FWD, proj_coord(x, y, 0, 0));
    double const right = (at.xy.x - centre_.x()) * cmPerUnit_, up = (at.xy.y - centre_.y()) * cmPerUnit_;
    return {6 + right * std::cos(angle_) - up * std::sin(angle_), 5 + right * std::sin(angle_) + up * std::cos(angle_)};
  }

private:
  struct Destroy {
    void operator()(PJ* projection) const { proj_destroy(projection); }
  };
  std::unique_ptr<PJ, Destroy> projection_;
  QPointF centre_;
  double cmPerUnit_, angle_;
};

/// A picture of such a page, forty pixels to a millimetre, on which a line of a tenth of a millimetre is looked for.
class FinePicture {
public:
  explicit FinePicture(Scene const& scene)
      : image_(Sheet{SysGeometry::Envelope(0, 0, 12, 10), QSize(12, 10) * pxPerCm, pxPerCm * 2.54 / 96}.drawn(scene)) {}

  bool isInked(QPointF const& cm) const {
    return image_.pixelColor(qRound(cm.x() * pxPerCm), qRound((10 - cm.y()) * pxPerCm)) != Qt::white;
  }

  /// Whether the line through a place in the direction of another one lies there, to a tenth of a millimetre.
  bool hasLineAt(QPointF const& place, QPointF const& ahead) const {
    constexpr double halfLineCm = 0.005, tenthMm = 0.01;
    QLineF const normal = QLineF(place, ahead).normalVector().unitVector();
    QPointF const aside = (normal.p2() - normal.p1()) * (halfLineCm + tenthMm);
    return isInked(place) && !isInked(place + aside) && !isInked(place - aside);
  }

private:
  static constexpr double pxPerCm = 400;
  QImage image_;
};
