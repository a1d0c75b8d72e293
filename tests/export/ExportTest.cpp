#include "LayoutHook.h"
#include "Pictures.h"
#include "Symbols.h"
#include "export/ExportCommand.h"
#include "export/LayoutRenderer.h"

#include <SysCarto/Layer.h>
#include <SysCarto/MapDocument.h>

#include <unistd.h>

using namespace SysCarto;
using Plugin::ExportCommand;
using Plugin::LayoutRenderer;
using Plugin::PlacedLabels;
using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUI::TrackerCancel;

namespace {

// Notes what it is asked to draw, and draws it in red.
class RecordingLayer : public Layer {
public:
  struct Call {
    Envelope bounds;
    QRect frame;
    double pageScale;
  };

  int GetType() const override { return 2; }
  void Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transform, int phase,
            _ptr_t<TrackerCancel> const&) override {
    QCOMPARE(phase, 1);
    calls.append({*transform->GetVisibleBounds(), transform->GetDeviceFrame(), transform->GetPageScale()});
    painter.fillRect(transform->GetDeviceFrame(), Qt::red);
  }

  QVector<Call> calls;
};

_ptr_t<RecordingLayer> addWithLayer(PageLayout& layout, _ptr_t<MapFrameElement> const& frame) {
  auto const layer = make<RecordingLayer>();
  frame->GetMap()->AddLayer(layer);
  layout.GetGraphicsContainer()->AddElement(frame);
  return layer;
}

QVector<double> reported;
int report(double percent, char const*, void*) {
  reported << percent;
  return 1;
}

double residentMb() {
  QFile statistics(QStringLiteral("/proc/self/statm"));
  if (!statistics.open(QIODevice::ReadOnly)) return 0;
  return statistics.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// A page that is exported into a folder of its own.
struct Export {
  explicit Export(_ptr_t<PageLayout> const& layout) : hook(make<LayoutHook>(layout)) { command->GetProgressBar(); }

  bool run(QString const& name, int dpi, _ptr_t<TrackerCancel> const& cancel = nullptr) const {
    return command->OutputOtherPicture(folder.filePath(name), dpi, cancel, report, nullptr);
  }
  QStringList files() const { return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

  QTemporaryDir folder;
  _ptr_t<LayoutHook> hook;
  _ptr_t<ExportCommand> command = hook->bound<ExportCommand>();
};

}  // namespace

class ExportTest : public QObject {
  Q_OBJECT

private slots:
  void init() { reported.clear(); }

  void theImageIsThePageCutDownToWholePixels_data() {
    Rows<double, double, int, QSize, QSize, QSize> row;
    row("A4 at 96", 21.0, 29.7, 96, QSize(793, 1122), QSize(2, 3), QSize(281, 98));
    row("whole tiles get no narrow one", 25.4, 12.7, 512, QSize(5120, 2560), QSize(10, 5), QSize(512, 512));
    row("no resolution, no image", 21.0, 29.7, 0, QSize(), QSize(), QSize());
  }

  void theImageIsThePageCutDownToWholePixels() {
    auto const [widthCm, heightCm, dpi, size, tiles, lastTile] = fetched<double, double, int, QSize, QSize, QSize>();
    auto const layout = emptyLayout(widthCm, heightCm);
    QCOMPARE(LayoutRenderer::imageSize(*layout->GetPage(), dpi), size);
    if (size.isEmpty()) return;
    LayoutRenderer const renderer(layout, size, dpi);
    QCOMPARE(renderer.tileGrid(), tiles);
    QCOMPARE(renderer.tile(tiles.width() - 1, tiles.height() - 1).size(), lastTile);
  }

  void tilesShowPartsOfAMapThatMeet() {
    auto const layout = emptyLayout(20.0, 20.0);
    auto const frame = madeIn<MapFrameElement>(3.0, 3.0, 17.0, 17.0);
    auto const layer = addWithLayer(*layout, frame);
    frame->GetMap()->SetExtent(make<Envelope>(100.0, 200.0, 500.0, 600.0));

    LayoutRenderer const renderer(layout, LayoutRenderer::imageSize(*layout->GetPage(), 100), 100);
    for (int i : {0, 1}) renderer.tileImage(renderer.tile(i, i), nullptr);
    QCOMPARE(layer->calls.size(), 2);
    auto const upperLeft = layer->calls[0], lowerRight = layer->calls[1];
    QCOMPARE(upperLeft.bounds.GetXMax(), lowerRight.bounds.GetXMin());
    QCOMPARE(upperLeft.bounds.GetYMin(), lowerRight.bounds.GetYMax());
    QCOMPARE(upperLeft.bounds.GetXMin(), 100.0);
    QCOMPARE(upperLeft.bounds.GetYMax(), 600.0);
    // The frame covers pixels 118 to 669, both inclusive.
    QCOMPARE(upperLeft.frame, QRect(0, 0, 512 - 118, 512 - 118));
    QCOMPARE(lowerRight.frame, QRect(0, 0, 669 - 511, 669 - 511));
    QCOMPARE(upperLeft.pageScale, 100 / 96.0);
  }

  void theMapFillsItsFrame_data() {
    Rows<double, double, QSize, int> row;
    row("a page higher than the preview", 21.59, 35.56, QSize(250, 355), 96);
    row("a page lower than the preview", 29.7, 21.0, QSize(250, 355), 96);
    row("a strip whose height is cut to whole pixels", 100.0, 10.0, QSize(3779, 377), 96);
    row("a frame that ends at 511.7, before the second tile", 13.697, 13.697, QSize(552, 552), 100);
  }

  void theMapFillsItsFrame() {
    auto const [widthCm, heightCm, size, dpi] = fetched<double, double, QSize, int>();
    auto const layout = emptyLayout(widthCm, heightCm);
    auto const frame = madeIn<MapFrameElement>(1.0, 1.0, widthCm - 1, heightCm - 1);
    frame->SetBorder(nullptr);
    addWithLayer(*layout, frame);
    LayoutRenderer const renderer(layout, size, dpi);
    QImage const image =
        tiled(size, LayoutRenderer::tileSize, [&](QRect const& tile) { return renderer.tileImage(tile, nullptr); });
    auto const pixel = [width = widthCm, &size = size](double cm) { return qRound(cm / width * size.width()); };
    QRect const corners(QPoint(pixel(1), pixel(1)), QPoint(pixel(widthCm - 1), pixel(heightCm - 1)));
    QCOMPARE(ink(image).where, corners & image.rect());
  }

  void aFrameThatTouchesATileWithItsShadowAloneDrawsNoMapThere() {
    auto const layout = emptyLayout(20.0, 20.0);
    // The frame ends at pixel 500; its shadow reaches into the second column of tiles.
    auto const frame = madeIn<MapFrameElement>(1.0, 1.0, 500 * 2.54 / 100.0, 10.0);
    auto const shadow = make<SymbolShadow>();
    shadow->SetOffset(30.0, 0.0);
    frame->SetShadow(shadow);
    auto const layer = addWithLayer(*layout, frame);

    LayoutRenderer const renderer(layout, LayoutRenderer::imageSize(*layout->GetPage(), 100), 100);
    QImage const tile = renderer.tileImage(renderer.tile(1, 1), nullptr);
    QVERIFY(layer->calls.isEmpty());
    QVERIFY(tile.pixelColor(5, 10) != QColor(Qt::white));
    QCOMPARE(tile.pixelColor(100, 10), QColor(Qt::white));
  }

  void aLayerIsLeftOutBeyondItsScales_data() {
    Rows<double, double, bool> row;
    row("no limits", 0.0, 0.0, true);
    row("between the limits", 0.5, 2.0, true);
    row("smaller than the smallest", 1.5, 2.0, false);
    row("larger than the largest", 0.1, 0.5, false);
  }

  void aLayerIsLeftOutBeyondItsScales() {
    auto const [minScale, maxScale, drawn] = fetched<double, double, bool>();
    auto const layout = emptyLayout(10.0, 10.0);
    auto const frame = madeIn<MapFrameElement>(0.0, 0.0, 10.0, 10.0);
    auto const layer = addWithLayer(*layout, frame);
    frame->GetMap()->SetExtent(make<Envelope>(0.0, 0.0, 100.0, 100.0));
    double const scale = frame->GetMap()->GetDisplayTransformation()->GetMapScale();
    QVERIFY(scale > 0.0);
    layer->SetScaleRange(minScale * scale, maxScale * scale);
    LayoutRenderer const renderer(layout, QSize(100, 100), 25);
    renderer.tileImage(QRect(0, 0, 100, 100), nullptr);
    QCOMPARE(!layer->calls.isEmpty(), drawn);
  }

  void tilesDoNotShow_data() {
    Rows<QString, int> row;
    for (char const* document : {"world.kdx", "aegean.kdx"})
      for (int dpi : {60, 150}) row(QString("%1 at %2 dpi").arg(document).arg(dpi), document, dpi);
  }

  void tilesDoNotShow() {
    auto const [document, dpi] = fetched<QString, int>();
    MapDocument sample;
    QVERIFY2(sample.Open(PLOTVANE_SOURCE_DIR "/samples/" + document), qPrintable(sample.GetErrors().join('\n')));
    auto const layout = sample.GetPageLayout();
    QSize const size = LayoutRenderer::imageSize(*layout->GetPage(), dpi);
    LayoutRenderer const renderer(layout, size, dpi);
    auto const hook = make<LayoutHook>(layout);
    PlacedLabels const labels(*hook, renderer.pageTransform());
    QImage const whole = renderer.tileImage(QRect(QPoint(0, 0), size), nullptr);
    for (int side : {512, 300, 97}) {
      Difference const found =
          difference(whole, tiled(size, side, [&](QRect const& tile) { return renderer.tileImage(tile, nullptr); }));
      QVERIFY2(found.levels <= 2 && found.pixels < 1e-4 * size.width() * size.height(), qPrintable(found.text()));
    }
  }

  // At 1:100, where the last digits of a coordinate are a good part of what a tile shows.
  void hatchesOfAFarPlanRunOnFromTileToTile() {
    auto const layout = emptyLayout(4.0, 4.0);
    auto const frame = madeIn<MapFrameElement>(0.2, 0.2, 3.8, 3.8);
    layout->GetGraphicsContainer()->AddElement(frame);
    double const x = 4512345.678, y = 5400123.456;
    auto const area = madeIn<RectangleElement>(x, y, x + 4, y + 4);
    area->setSymbol(fill(QColor(30, 120, 200, 180), SysDisplay::SimpleFillStyle::ForwardDiagonal, nullptr));
    frame->GetMap()->GetGraphicsContainer()->AddElement(area);
    for (double width : {3.6, 3.83, 4.71}) {
      frame->GetMap()->SetExtent(make<Envelope>(x, y, x + width, y + width));
      LayoutRenderer const renderer(layout, LayoutRenderer::imageSize(*layout->GetPage(), 600), 600);
      auto const drawn = [&](QRect const& tile) { return renderer.tileImage(tile, nullptr); };
      QImage const whole = drawn(QRect(0, 0, 944, 944));
      for (int side : {512, 100}) {
        Difference const found = difference(whole, tiled(whole.size(), side, drawn));
        QVERIFY2(found.pixels == 0, qPrintable(found.text()));
      }
    }
  }

  void labelsAreThereWhileTheyAreHeldAndNoLonger() {
    MapDocument sample;
    QVERIFY(sample.Open(PLOTVANE_SOURCE_DIR "/samples/world.kdx"));
    auto const layout = sample.GetPageLayout();
    auto* const graphics = sample.GetMap(0)->GetGraphicsContainer();
    auto const before = graphics->GetElements();
    QSize const size = LayoutRenderer::imageSize(*layout->GetPage(), 50);
    LayoutRenderer const renderer(layout, size, 50);
    {
      auto const hook = make<LayoutHook>(layout);
      PlacedLabels const labels(*hook, renderer.pageTransform());
      QVERIFY(graphics->GetElements().size() > before.size() + 20);
    }
    QCOMPARE(graphics->GetElements(), before);
  }

  void progressCountsTheTilesBegun() {
    Export const page(emptyLayout(21.0, 29.7));
    QVERIFY(page.run("page.png", 96));
    QCOMPARE(reported.size(), 7);
    QCOMPARE(reported[0], 0.0);
    QCOMPARE(reported[1], 0.0);
    QCOMPARE(reported[6], 5 / 6.0 * 100.0);
    QImage const image(page.folder.filePath("page.png"));
    QCOMPARE(image.size(), QSize(793, 1122));
    QCOMPARE(image.pixelColor(400, 600), QColor(Qt::white));
    QCOMPARE(page.files(), QStringList("page.png"));
  }

  void aCancelledExportIsStillWrittenAndBlack() {
    Export const page(emptyLayout(5.0, 5.0));
    auto const cancel = make<TrackerCancel>();
    cancel->Cancel();
    QVERIFY(page.run("page.png", 100, cancel));
    QCOMPARE(reported, QVector<double>{0.0});
    QCOMPARE(QImage(page.folder.filePath("page.png")).pixelColor(50, 50), QColor(Qt::black));
  }

  void aHundredExportsLeaveNothingBehind() {
#ifdef PLOTVANE_SANITIZED
    QSKIP("the sanitizer keeps freed memory for a while");
#endif
    MapDocument document;
    QVERIFY(document.Open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx")));
    Export const page(document.GetPageLayout());
    constexpr int warmUp = 50;  // caches of fonts, glyphs, GDAL and the heap fill first
    double before = 0;
    for (int i = 0; i < warmUp + 100; ++i) {
      if (i == warmUp) before = residentMb();
      QVERIFY(page.hook->bound<ExportCommand>()->OutputOtherPicture(page.folder.filePath("a.png"), 5, nullptr, report,
                                                                    nullptr));
    }
    double const growth = residentMb() - before;
    QVERIFY2(before > 0 && growth < 1, qPrintable(QStringLiteral("%1 MB").arg(growth)));
  }

  void whatCannotBeExportedAnswersFalseAndLeavesNothing_data() {
    Rows<QString, int, bool> row;
    row("no page", "page.png", 96, false);
    row("no resolution", "page.png", 0, true);
    row("no folder", "nowhere/page.png", 96, true);
  }

  void whatCannotBeExportedAnswersFalseAndLeavesNothing() {
    auto const [name, dpi, hasPage] = fetched<QString, int, bool>();
    Export const page(hasPage ? emptyLayout(5.0, 5.0) : make<PageLayout>());
    QVERIFY(!page.run(name, dpi));
    QVERIFY(reported.isEmpty());
    QCOMPARE(page.files(), QStringList());
  }

  void theProgressDialogIsMadeOnceAndShared() {
    auto const hook = make<LayoutHook>(emptyLayout(5.0, 5.0));
    auto const command = hook->bound<ExportCommand>();
    QProgressDialog* const dialog = command->GetProgressBar();
    QCOMPARE(command->GetProgressBar(), dialog);
    QVERIFY(ExportCommand::DrawProgressCallback(41.9, "", command.get()));
    QCOMPARE(dialog->value(), 41);
    QVERIFY(dialog->isVisible());
    QVERIFY(ExportCommand::CopyProgressCallback(0.429, "", command.get()));
    QCOMPARE(dialog->value(), 42);
    { ExportCommand const copy(*command); }
    QCOMPARE(command->GetProgressBar(), dialog);
  }
};

QTEST_MAIN(ExportTest)
#include "ExportTest.moc"
