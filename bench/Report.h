#pragma once

#include <QJsonObject>
#include <QSize>
#include <QString>
#include <QVector>

/// One measured quantity: a value for each run.
class Samples {
public:
  void add(double value) { values_.append(value); }
  double median() const;
  double highest() const;

private:
  QVector<double> values_;
};

/// A page exported in one format, and the floor beside it.
struct ExportCosts {
  QString page;
  QString format;
  int dpi = 0;
  QSize size;
  int labelCount = 0;
  Samples open, labels, draw, convert;     ///< seconds, of the stages in a process of their own
  Samples seconds, cpuSeconds, megabytes;  ///< of `plotvane export`
  Samples floorSeconds, floorCpuSeconds, floorMegabytes;
  Samples ratio;  ///< seconds over floor seconds, run by run
};

/// A page drawn in tiles and in one image, nothing written.
struct TilingCosts {
  QString page;
  int dpi = 0;
  Samples tiles, whole, ratio;
};

struct Report {
  QString machine;
  int runs = 0;
  QVector<ExportCosts> exports;
  QVector<TilingCosts> tilings;

  QString markdown() const;
  QJsonObject json() const;
};
