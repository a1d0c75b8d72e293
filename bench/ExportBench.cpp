// Measures exports: each in fresh processes, and beside each the floor for the same pixels. bench/export calls it.

#include "Child.h"
#include "Report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

namespace {

struct Page {
  QString name;
  QString document;
  QString dpi;
};

struct Format {
  char const* name;
  char const* suffix;
};
// The lossless one first: the floor of all three gets its pixels.
constexpr Format formats[] = {{"TIFF", "tif"}, {"PNG", "png"}, {"JPEG", "jpg"}};

// Drawing a larger page in one image says nothing more, and takes half a gigabyte.
constexpr qint64 maxPixelsInOneImage = 50000000;

[[noreturn]] void giveUp(QString const& why) {
  std::fprintf(stderr, "plotvane_bench: %s\n", qPrintable(why));
  std::exit(1);
}

class ExportBench {
public:
  ExportBench(QDir const& programs, QDir const& work, int runs) : programs_(programs), work_(work), runs_(runs) {}

  void measure(Page const& page, Report& report);

private:
  ExportCosts measureFormat(Page const& page, Format const& format);
  void measureStages(Page const& page, ExportCosts& costs, QString const& image);
  void measureExport(Page const& page, ExportCosts& costs, QString const& image);
  void measureFloor(ExportCosts& costs, QString const& image, double exportSeconds);
  TilingCosts measureTiling(Page const& page);
  QJsonObject drawOnly(Page const& page, QString const& how);

  ChildRun run(QString const& program, QStringList const& arguments);
  static QJsonObject parsed(ChildRun const& run) { return QJsonDocument::fromJson(run.output).object(); }
  QString tilesFile() const { return work_.filePath(QStringLiteral("tiles")); }

  QDir programs_;
  QDir work_;
  int runs_;
};

ChildRun ExportBench::run(QString const& program, QStringList const& arguments) {
  ChildRun const run = runChild(QStringList(programs_.filePath(program)) + arguments);
  if (!run.succeeded) giveUp(QStringLiteral("%1 %2 failed").arg(program, arguments.join(QLatin1Char(' '))));
  return run;
}

void ExportBench::measure(Page const& page, Report& report) {
  for (Format const& format : formats) {
    std::fprintf(stderr, "%s, %s\n", qPrintable(page.name), format.name);
    report.exports << measureFormat(page, format);
  }
  QFile::remove(tilesFile());
  QSize const size = report.exports.last().size;
  if (qint64{size.width()} * size.height() > maxPixelsInOneImage) return;
  std::fprintf(stderr, "%s, tiles\n", qPrintable(page.name));
  report.tilings << measureTiling(page);
}

ExportCosts ExportBench::measureFormat(Page const& page, Format const& format) {
  ExportCosts costs;
  costs.page = page.name;
  costs.format = QLatin1String(format.name);
  costs.dpi = page.dpi.toInt();
  QString const image = work_.filePath(QStringLiteral("image.") + QLatin1String(format.suffix));
  for (int i = 0; i < runs_; ++i) {
    measureStages(page, costs, image);
    measureExport(page, costs, image);
  }
  QFile::remove(image);
  return costs;
}

void ExportBench::measureStages(Page const& page, ExportCosts& costs, QString const& image) {
  QJsonObject const stages = parsed(run(QStringLiteral("plotvane_bench_stages"), {page.document, page.dpi, image}));
  auto const number = [&](char const* key) { return stages[QLatin1String(key)].toDouble(); };
  costs.open.add(number("open"));
  costs.labels.add(number("labels"));
  costs.draw.add(number("draw"));
  costs.convert.add(number("convert"));
  costs.labelCount = static_cast<int>(number("labelCount"));
  costs.size = QSize(static_cast<int>(number("width")), static_cast<int>(number("height")));
}

void ExportBench::measureExport(Page const& page, ExportCosts& costs, QString const& image) {
  ChildRun const export_ = run(QStringLiteral("plotvane"),
                               {QStringLiteral("export"), page.document, image, QStringLiteral("--dpi"), page.dpi});
  costs.seconds.add(export_.wallSeconds);
  costs.cpuSeconds.add(export_.cpuSeconds);
  costs.megabytes.add(export_.peakMegabytes);
  if (!QFile::exists(tilesFile()))
    run(QStringLiteral("plotvane_bench_floor"), {QStringLiteral("unpack"), image, tilesFile()});
  measureFloor(costs, image, export_.wallSeconds);
}

void ExportBench::measureFloor(ExportCosts& costs, QString const& image, double exportSeconds) {
  ChildRun const floor = run(QStringLiteral("plotvane_bench_floor"),
                             {QStringLiteral("write"), tilesFile(), QString::number(costs.size.width()),
                              QString::number(costs.size.height()), image});
  double const read = parsed(floor)[QStringLiteral("read")].toDouble();
  costs.floorSeconds.add(floor.wallSeconds - read);
  costs.floorCpuSeconds.add(floor.cpuSeconds - read);
  costs.floorMegabytes.add(floor.peakMegabytes);
  costs.ratio.add(exportSeconds / (floor.wallSeconds - read));
}

TilingCosts ExportBench::measureTiling(Page const& page) {
  TilingCosts costs;
  costs.page = page.name;
  costs.dpi = page.dpi.toInt();
  for (int i = 0; i < runs_; ++i) {
    double const tiles = drawOnly(page, QStringLiteral("--tiles"))[QStringLiteral("draw")].toDouble();
    double const whole = drawOnly(page, QStringLiteral("--whole"))[QStringLiteral("draw")].toDouble();
    costs.tiles.add(tiles);
    costs.whole.add(whole);
    costs.ratio.add(tiles / whole);
  }
  return costs;
}

QJsonObject ExportBench::drawOnly(Page const& page, QString const& how) {
  return parsed(run(QStringLiteral("plotvane_bench_stages"), {page.document, page.dpi, how}));
}

Page pageOf(QString const& text) {
  static QRegularExpression const shape(QStringLiteral("^([^=]+)=(.+)@([0-9]+)$"));
  QRegularExpressionMatch const match = shape.match(text);
  if (!match.hasMatch()) giveUp(QStringLiteral("\"%1\" is not NAME=DOCUMENT@DPI").arg(text));
  return {match.captured(1), match.captured(2), match.captured(3)};
}

void save(QString const& path, QByteArray const& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
    giveUp(QStringLiteral("%1 can't be written: %2").arg(path, file.errorString()));
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions({{QStringLiteral("programs"), QStringLiteral("Where the executables lie."), QStringLiteral("DIR")},
                     {QStringLiteral("work"), QStringLiteral("An empty folder to write in."), QStringLiteral("DIR")},
                     {QStringLiteral("runs"), QStringLiteral("How often."), QStringLiteral("N"), QStringLiteral("3")},
                     {QStringLiteral("machine"), QStringLiteral("What it runs on."), QStringLiteral("TEXT")},
                     {QStringLiteral("out"), QStringLiteral("Writes FILE.md and FILE.json."), QStringLiteral("FILE")}});
  parser.addPositionalArgument(QStringLiteral("NAME=DOCUMENT@DPI"), QStringLiteral("Pages to export."));
  parser.process(application);

  Report report;
  report.machine = parser.value(QStringLiteral("machine"));
  report.runs = qMax(1, parser.value(QStringLiteral("runs")).toInt());
  ExportBench bench(QDir(parser.value(QStringLiteral("programs"))), QDir(parser.value(QStringLiteral("work"))),
                    report.runs);
  for (QString const& text : parser.positionalArguments()) bench.measure(pageOf(text), report);

  QString const out = parser.value(QStringLiteral("out"));
  save(out + QStringLiteral(".md"), report.markdown().toUtf8());
  save(out + QStringLiteral(".json"), QJsonDocument(report.json()).toJson());
  return 0;
}
