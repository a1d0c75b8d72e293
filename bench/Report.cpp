#include "Report.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>

namespace {

QString fixed(double value, int decimals) { return QString::number(value, 'f', decimals); }
QString seconds(Samples const& samples) { return fixed(samples.median(), 2); }

QString row(QStringList const& cells) { return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | "))); }

// The first `texts` columns hold texts, the others numbers.
QString head(QStringList const& titles, int texts) {
  QStringList rules;
  for (int column = 0; column < titles.size(); ++column)
    rules << (column < texts ? QStringLiteral("---") : QStringLiteral("---:"));
  return row(titles) + row(rules);
}

QString pixels(QSize const& size) { return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()); }

QString exportRow(ExportCosts const& one) {
  return row({one.page, one.format, pixels(one.size), QString::number(one.labelCount), seconds(one.open),
              seconds(one.labels), seconds(one.draw), seconds(one.convert), seconds(one.seconds),
              fixed(one.megabytes.highest(), 0), seconds(one.floorSeconds), fixed(one.floorMegabytes.highest(), 0),
              fixed(one.ratio.median(), 2)});
}

QJsonObject exportJson(ExportCosts const& one) {
  QJsonObject const stages{{QStringLiteral("open"), one.open.median()},
                           {QStringLiteral("labels"), one.labels.median()},
                           {QStringLiteral("draw"), one.draw.median()},
                           {QStringLiteral("convert"), one.convert.median()}};
  auto const process = [](Samples const& wall, Samples const& cpu, Samples const& megabytes) {
    return QJsonObject{{QStringLiteral("seconds"), wall.median()},
                       {QStringLiteral("cpuSeconds"), cpu.median()},
                       {QStringLiteral("peakMegabytes"), megabytes.highest()}};
  };
  return QJsonObject{{QStringLiteral("page"), one.page},
                     {QStringLiteral("format"), one.format},
                     {QStringLiteral("dpi"), one.dpi},
                     {QStringLiteral("width"), one.size.width()},
                     {QStringLiteral("height"), one.size.height()},
                     {QStringLiteral("labels"), one.labelCount},
                     {QStringLiteral("stages"), stages},
                     {QStringLiteral("export"), process(one.seconds, one.cpuSeconds, one.megabytes)},
                     {QStringLiteral("floor"), process(one.floorSeconds, one.floorCpuSeconds, one.floorMegabytes)},
                     {QStringLiteral("ratio"), one.ratio.median()}};
}

QJsonObject tilingJson(TilingCosts const& one) {
  return QJsonObject{{QStringLiteral("page"), one.page},
                     {QStringLiteral("dpi"), one.dpi},
                     {QStringLiteral("tiles"), one.tiles.median()},
                     {QStringLiteral("whole"), one.whole.median()},
                     {QStringLiteral("ratio"), one.ratio.median()}};
}

}  // namespace

double Samples::median() const {
  if (values_.isEmpty()) return 0;
  QVector<double> sorted = values_;
  std::sort(sorted.begin(), sorted.end());
  int const middle = sorted.size() / 2;
  return sorted.size() % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double Samples::highest() const { return values_.isEmpty() ? 0 : *std::max_element(values_.begin(), values_.end()); }

QString Report::markdown() const {
  QString text = QStringLiteral("%1. Median of %2 %3; memory is the highest.\n\n")
                     .arg(machine)
                     .arg(runs)
                     .arg(runs == 1 ? QStringLiteral("run") : QStringLiteral("runs"));
  text += head({"page", "format", "pixels", "labels", "open s", "place labels s", "draw s", "convert s", "export s",
                "export MB", "floor s", "floor MB", "export ÷ floor"},
               3);
  for (ExportCosts const& one : exports) text += exportRow(one);
  text += QStringLiteral("\n") + head({"page", "drawn in tiles s", "drawn in one image s", "tiles ÷ one image"}, 1);
  for (TilingCosts const& one : tilings)
    text += row({one.page, seconds(one.tiles), seconds(one.whole), fixed(one.ratio.median(), 2)});
  return text;
}

QJsonObject Report::json() const {
  QJsonArray exported, tiled;
  for (ExportCosts const& one : exports) exported.append(exportJson(one));
  for (TilingCosts const& one : tilings) tiled.append(tilingJson(one));
  return QJsonObject{{QStringLiteral("machine"), machine},
                     {QStringLiteral("runs"), runs},
                     {QStringLiteral("exports"), exported},
                     {QStringLiteral("tilings"), tiled}};
}
