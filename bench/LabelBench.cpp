// The standard problem of placing names beside points: so many labels of 30 × 7 points at random places of a page of
// 792 × 612 points, whose marks have no size. Prints how many find a place, and in what time.

#include "host/SysCarto/labels/LabelPlan.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <random>

using namespace SysCarto;

namespace {

constexpr double pageWidth = 792, pageHeight = 612, labelWidth = 30, labelHeight = 7;
constexpr int instances = 25;
constexpr int sizes[] = {100, 250, 500, 750, 1000};

// The same on every machine, which the library's distributions need not be.
double between(std::mt19937& chance, double most) { return most * chance() / (1.0 + std::mt19937::max()); }

std::vector<MarkSide> corners() {
  std::vector<MarkSide> sides;
  for (double const up : {1, -1})
    for (double const across : {1, -1}) sides.push_back({MarkSide::Kind::Over, across, up, 0.1 * sides.size()});
  return sides;
}

struct Model {
  char const* name;
  std::vector<MarkSide> sides;
  bool areWhole = false;  // points, of which places are so many across and up; labels may touch
  bool areAllEqual = true;
  int effort = 1;
};

WantedLabel labelAt(int number, double x, double y, Model const& model) {
  double const slit = model.areWhole ? 0.001 : 0;
  WantedLabel label{number};
  label.texts.push_back(
      {QString(), nullptr,
       QRectF(-labelWidth / 2, -labelHeight / 2, labelWidth, labelHeight).adjusted(slit, slit, -slit, -slit)});
  for (MarkSide const& side : model.sides) {
    Box const box = boxAt({x, y, x, y}, side, labelWidth, labelHeight, 0);
    label.ways.push_back({{{0, {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}, 0}}, side.cost});
  }
  return label;
}

// By a plain comparison of each with each.
bool hasOverlap(LabelPlan const& plan) {
  std::vector<QPointF> centres;
  for (int i = 0; i < plan.count(); ++i)
    if (auto const* const way = plan.chosen(i)) centres.push_back(way->middle());
  for (size_t i = 0; i < centres.size(); ++i)
    for (size_t j = 0; j < i; ++j)
      if (std::abs(centres[i].x() - centres[j].x()) < labelWidth - 1e-9 &&
          std::abs(centres[i].y() - centres[j].y()) < labelHeight - 1e-9)
        return true;
  return false;
}

struct Result {
  double placed = 0, seconds = 0;
};

Result solve(int size, Model const& model) {
  Result result;
  for (unsigned instance = 1; instance <= instances; ++instance) {
    std::mt19937 chance(instance);
    LabelPlan plan(model.effort);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < size; ++i) {
      double x = between(chance, pageWidth), y = between(chance, pageHeight);
      if (model.areWhole) x = std::floor(x), y = std::floor(y);
      plan.add(labelAt(i, x, y, model), model.areAllEqual ? 0 : i, {});
    }
    plan.place([] { return true; });
    result.seconds += static_cast<double>(clock.nsecsElapsed()) / 1e9 / instances;
    if (hasOverlap(plan)) qFatal("labels overlap");
    for (int i = 0; i < size; ++i) result.placed += plan.chosen(i) ? 1.0 / instances : 0;
  }
  return result;
}

}  // namespace

int main() {
  QTextStream out(stdout);
  LabelSettings named;
  named.places = QStringList{"upperRight", "upperLeft", "lowerRight", "lowerLeft", "right", "left", "above", "below"};
  std::vector<MarkSide> const eight = sidesOf(named), all = sidesOf(LabelSettings());
  Model const models[] = {{"four corners", corners()},
                          {"four corners, places on whole points", corners(), true},
                          {"eight named places", eight},
                          {"eight named places, places on whole points", eight, true},
                          {"all usual places", all},
                          {"all usual places, places on whole points", all, true},
                          {"all usual places, each more important than the next", all, false, false},
                          {"four corners, effort 20", corners(), false, true, 20},
                          {"four corners, places on whole points, effort 20", corners(), true, true, 20},
                          {"all usual places, effort 20", all, false, true, 20}};
  for (Model const& model : models) {
    out << model.name << ":\n";
    for (int const size : sizes) {
      auto const [placed, seconds] = solve(size, model);
      out << QStringLiteral("  %1 labels: %2 % placed, %3 s\n")
                 .arg(size, 5)
                 .arg(100 * placed / size, 0, 'f', 2)
                 .arg(seconds, 0, 'f', 3);
      out.flush();
    }
  }
  return 0;
}
