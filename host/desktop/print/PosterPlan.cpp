#include "PosterPlan.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double toleranceCm = 0.1;    // A4 is 21 cm wide, and some printers say 20.99
constexpr double posterMarginCm = 1;   // for marks and numbers
constexpr double leastContentCm = 1;   // however wide margins are
constexpr double mostOfOverlap = 0.5;  // of the content
constexpr double rounding = 1e-6;

int countOf(double lengthCm, double contentCm, double overlapCm) {
  return std::max(1, static_cast<int>(std::ceil((lengthCm - overlapCm) / (contentCm - overlapCm) - rounding)));
}

QRectF within(QSizeF const& paperCm, QMarginsF const& marginsCm) {
  QRectF const inner = QRectF({0, 0}, paperCm).marginsRemoved(marginsCm);
  return {inner.topLeft(), inner.size().expandedTo({leastContentCm, leastContentCm})};
}

}  // namespace

PosterPlan PosterPlan::of(QSizeF const& pageCm, QSizeF const& paperCm, QMarginsF const& marginsCm,
                          SysCarto::PrintChoices const& choices) {
  PosterPlan plan;
  plan.pageCm = pageCm;
  plan.paperCm = paperCm;
  QRectF const printable = within(paperCm, marginsCm);
  bool const isFitted = choices.size == SysCarto::PrintChoices::Size::Fitted;
  bool const hasRoom =
      pageCm.width() <= paperCm.width() + toleranceCm && pageCm.height() <= paperCm.height() + toleranceCm;
  if (isFitted || hasRoom) {
    if (isFitted) plan.scale = std::min(printable.width() / pageCm.width(), printable.height() / pageCm.height());
    QPointF const middle = isFitted ? printable.center() : QRectF({0, 0}, paperCm).center();
    plan.contentCm = QRectF({0, 0}, pageCm * plan.scale);
    plan.contentCm.moveCenter(middle);
    return plan;
  }
  plan.contentCm =
      within(paperCm, {std::max(marginsCm.left(), posterMarginCm), std::max(marginsCm.top(), posterMarginCm),
                       std::max(marginsCm.right(), posterMarginCm), std::max(marginsCm.bottom(), posterMarginCm)});
  plan.overlapCm =
      std::min(choices.overlapCm, mostOfOverlap * std::min(plan.contentCm.width(), plan.contentCm.height()));
  plan.columns = countOf(pageCm.width(), plan.contentCm.width(), plan.overlapCm);
  plan.rows = countOf(pageCm.height(), plan.contentCm.height(), plan.overlapCm);
  return plan;
}

QRectF PosterPlan::part(int row, int column) const {
  if (sheets() == 1) return {{0, 0}, pageCm};
  QPointF const corner(column * (contentCm.width() - overlapCm), row * (contentCm.height() - overlapCm));
  return QRectF(corner, contentCm.size()) & QRectF({0, 0}, pageCm);
}

QRectF PosterPlan::place(int row, int column) const { return {contentCm.topLeft(), part(row, column).size() * scale}; }
