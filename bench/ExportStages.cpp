// An export with a stopwatch, made of the same parts as the command, in a process of its own:
//
//     plotvane_bench_stages DOCUMENT DPI IMAGE     open, place the labels, draw and write the tiles, convert
//     plotvane_bench_stages DOCUMENT DPI --tiles   open, place the labels, draw the tiles
//     plotvane_bench_stages DOCUMENT DPI --whole   open, place the labels, draw the page in one image

#include "export/LayoutRenderer.h"
#include "export/RasterWriter.h"
#include "host/desktop/OffscreenDesktop.h"
#include "host/desktop/Session.h"

#include <SysCarto/MapDocument.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <gdal.h>

#include <cstdio>

using Plugin::LayoutRenderer;
using Plugin::PlacedLabels;
using Plugin::RasterWriter;
using SysUtility::_ptr_t;

namespace {

class Stages {
public:
  Stages() { timer_.start(); }

  void end(char const* stage) {
    report_[QLatin1String(stage)] = static_cast<double>(timer_.nsecsElapsed()) / 1e9, timer_.start();
  }
  void note(char const* name, int value) { report_[QLatin1String(name)] = value; }
  void print() const { std::puts(QJsonDocument(report_).toJson(QJsonDocument::Compact).constData()); }

private:
  QElapsedTimer timer_;
  QJsonObject report_;
};

void forEachTile(LayoutRenderer const& renderer, std::function<void(QRect const&)> const& visit) {
  QSize const grid = renderer.tileGrid();
  for (int row = 0; row < grid.height(); ++row)
    for (int column = 0; column < grid.width(); ++column) visit(renderer.tile(column, row));
}

int goOn(double, char const*, void*) { return 1; }

bool exportImage(LayoutRenderer const& renderer, QSize const& size, QString const& path, Stages& stages) {
  RasterWriter writer(path);
  bool whole = writer.create(size);
  if (whole)
    forEachTile(renderer, [&](QRect const& tile) {
      whole = whole && writer.write(renderer.tileImage(tile, nullptr), tile.topLeft());
    });
  stages.end("draw");
  if (whole) writer.convert(goOn, nullptr);
  stages.end("convert");
  return whole;
}

void drawInTiles(LayoutRenderer const& renderer, Stages& stages) {
  forEachTile(renderer, [&](QRect const& tile) { renderer.tileImage(tile, nullptr); });
  stages.end("draw");
}

void drawWhole(LayoutRenderer const& renderer, QSize const& size, Stages& stages) {
  renderer.tileImage(QRect(QPoint(0, 0), size), nullptr);
  stages.end("draw");
}

int labelCount(SysCarto::MapDocument const& document) {
  QList<_ptr_t<SysCarto::Map>> maps;
  document.GetMaps(maps);
  int count = 0;
  for (auto const& map : maps) count += map->GetGraphicsContainer()->GetElements().size();
  return count;
}

int run(QString const& path, int dpi, QString const& image) {
  Stages stages;
  SysCarto::MapDocument document;
  if (!document.Open(path)) qFatal("%s", qPrintable(document.GetErrors().join(QLatin1Char('\n'))));
  auto const desktop = SysUtility::make<OffscreenDesktop>(document);
  auto const layout = desktop->GetPageLayout();
  QSize const size = LayoutRenderer::imageSize(*layout->GetPage(), dpi);
  stages.end("open");

  LayoutRenderer const renderer(layout, size, dpi);
  int const graphics = labelCount(document);
  PlacedLabels const labels(*desktop, renderer.pageTransform());
  stages.end("labels");

  bool done = true;
  if (image == QLatin1String("--tiles"))
    drawInTiles(renderer, stages);
  else if (image == QLatin1String("--whole"))
    drawWhole(renderer, size, stages);
  else
    done = exportImage(renderer, size, image, stages);
  stages.note("labelCount", labelCount(document) - graphics);
  stages.note("width", size.width());
  stages.note("height", size.height());
  stages.print();
  return done ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  prepareEnvironment();
  QApplication application(argc, argv);
  prepareApplication();
  QStringList const arguments = QCoreApplication::arguments();
  if (arguments.size() == 4) return run(arguments[1], arguments[2].toInt(), arguments[3]);
  std::fputs("usage: plotvane_bench_stages DOCUMENT DPI IMAGE|--tiles|--whole\n", stderr);
  return 2;
}
