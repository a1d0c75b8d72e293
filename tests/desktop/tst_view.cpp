#include "Pictures.h"
#include "Symbols.h"
#include "desktop/WorkbenchPage.h"
#include "export/LayoutRenderer.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/MapSteps.h"
#include "host/desktop/PagePicture.h"

using SysCarto::MapFrameElement;
using SysGeometry::Envelope;

namespace {

constexpr int rounding = 8;      // labels are drawn over a picture of another format
constexpr int pixelsPerCm = 25;  // the data frames of the sample then lie on whole pixels

// A layer as slow as one of a million features, in one colour.
class SlowLayer final : public SysCarto::Layer {
public:
  static constexpr int msPerTile = 15;

  int GetType() const override { return 2; }
  void Draw(QPainter& painter, _ptr_t<SysDisplay::DisplayTransformation> const& transformation, int,
            _ptr_t<SysUI::TrackerCancel> const&) override {
    QTest::qSleep(msPerTile);
    painter.fillRect(transformation->GetDeviceFrame(), colour);
  }

  QColor colour = Qt::red;
};

// The page as its elements draw themselves, without any kept picture.
QImage drawnDirectly(SysCarto::PageLayout const& layout, int ratio) {
  auto const transformation = layout.GetDisplayTransformation()->Clone();
  QImage image(transformation->GetDeviceFrame().size() * ratio, QImage::Format_ARGB32_Premultiplied);
  transformation->SetDeviceFrame(image.rect());
  transformation->SetPageScale(transformation->GetPageScale() * ratio);
  QPainter painter(&image);
  layout.GetPage()->DrawBackground(painter, transformation);
  layout.GetGraphicsContainer()->Draw(painter, transformation, 1, nullptr);
  return image;
}

// Moved to whole pixels. A screen keeps maps on pixels of their own, so that a frame can be moved without drawing it.
void snap(MapFrameElement& frame, SysDisplay::DisplayTransformation const& page) {
  auto const rectangle = frame.GetEnvelope();
  auto const corner = [&](double x, double y) { return page.ToMapPoint(page.FromMapPoint(x, y)); };
  frame.SetGeometry(make<Envelope>(corner(rectangle->GetXMin(), rectangle->GetYMin()),
                                   corner(rectangle->GetXMax(), rectangle->GetYMax())));
}

}  // namespace

class ViewTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareApplication(); }

  void onAScreenOfTwiceTheResolutionThePictureIsWhatTheElementsDraw() {
    int const ratio = 2;
    SysCarto::MapDocument document;
    QVERIFY(document.Open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx")));
    auto const layout = document.GetPageLayout();
    layout->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 1000, 700));
    layout->SetExtent(make<Envelope>(0.4, 1.0, 0.4 + 1000.0 / pixelsPerCm, 1.0 + 700.0 / pixelsPerCm));
    PagePicture picture;
    picture.compose(*layout, ratio);
    while (!picture.isComplete()) picture.drawSlice(*layout, 1);
    auto const frame = layout->GetFocusMapFrameElement();
    auto const labels = SysCarto::placeLabels(*frame, 300);
    QVERIFY(labels.size() > 100);
    frame->GetMap()->GetGraphicsContainer()->AddElements(labels);
    QImage const expected = drawnDirectly(*layout, ratio);
    QCOMPARE(picture.image().size(), QSize(1000, 700) * ratio);
    Difference const found = difference(picture.image(), expected);
    QVERIFY2(found.levels <= rounding, qPrintable(found.text()));
  }

  void theScreenIsTheExport_data() {
    Rows<QString, double> row;
    for (char const* document : {"world", "aegean", "templates/a3-poster", "templates/a4-report"})
      row(document, QString(document), 0);
    row("a map that is turned", "aegean", 28.5);
  }
  void theScreenIsTheExport() {
    auto const [name, rotation] = fetched<QString, double>();
    SysCarto::MapDocument document;
    QVERIFY(document.Open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/%1.kdx").arg(name)));
    auto const layout = document.GetPageLayout();
    if (auto const map = layout->GetFocusMap()) SysCarto::MapHost::setRotation(*map, rotation);
    auto const border = make<SysCarto::SymbolBorder>();
    border->SetLineSymbol(pen(12));
    layout->GetPage()->SetBorder(border);
    QSize const size = Plugin::LayoutRenderer::imageSize(*layout->GetPage(), 96);
    Plugin::LayoutRenderer const renderer(layout, size, 96);
    auto* const elements = layout->GetGraphicsContainer();
    elements->AddElement(madeIn<SysCarto::RectangleElement>(-1, 3, 2, 5));
    for (auto const& element : elements->GetElements()) {
      if (auto const frame = ptr_cast<MapFrameElement>(element)) snap(*frame, *renderer.pageTransform());
      auto const surround = ptr_cast<SysCarto::MapSurroundFrame>(element);
      bool const isEmpty = surround && surround->GetMapSurround()->GetElements().isEmpty();
      if (isEmpty) elements->DeleteElement(element);  // the screen alone tells where nothing is yet
    }

    layout->GetDisplayTransformation()->SetDeviceFrame(QRect(QPoint(0, 0), size));
    layout->SetExtent(renderer.pageTransform()->GetFittedBounds());
    layout->GetDisplayTransformation()->SetPageScale(1);
    PagePicture picture;
    picture.compose(*layout, 1);
    while (!picture.isComplete()) picture.drawSlice(*layout, 1000);
    for (auto const& element : elements->GetElements())
      if (auto const frame = ptr_cast<MapFrameElement>(element))
        frame->GetMap()->GetGraphicsContainer()->AddElements(SysCarto::placeLabels(*frame, 300));
    QImage const exported = renderer.tileImage(QRect(QPoint(0, 0), size), nullptr);
    QImage const shown = picture.image().convertToFormat(exported.format());
    Difference const found = difference(shown, exported);
    QVERIFY2(found.levels <= rounding, qPrintable(found.text()));
  }

  void onlyWhatChangesAMapDrawsIt_data() {
    Rows<QStringList, bool> row;
    row("what leaves maps as they are", {"select", "drag", "nudge", "align", "undo", "restack", "pan", "lock"}, false);
    row("what changes one", {"select", "zoom", "resize", "hide", "turn"}, true);
  }
  void onlyWhatChangesAMapDrawsIt() {
    auto const [deeds, draw] = fetched<QStringList, bool>();
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx")));
    page.add<SysCarto::RectangleElement>(2.1, 2.3, 6.6, 5.9);
    int tiles = tilesAfter(page);
    QVERIFY(tiles > 0);
    QPoint const onMap = page.pixel(20, 15);
    auto const text = [&] { return SysCarto::MapDocumentHost::text(page.bench.session().document()); };
    for (QString const& what : deeds) {
      QByteArray const former = text();
      if (what == "select") page.click(onMap);
      if (what == "drag") page.drag(onMap, onMap + QPoint(17, 9));
      if (what == "nudge") page.key(Qt::Key_Left);
      if (what == "align") QVERIFY(page.run("Host_SelectAll") && page.run("Plotvane_LeftAlignment"));
      if (what == "undo") QVERIFY(page.run("Host_Undo"));
      if (what == "restack") {
        page.click(onMap);
        QVERIFY(page.run("Plotvane_BringToFrontElements"));
      }
      if (what == "lock") QVERIFY(page.run("Plotvane_LockDataFrame"));
      if (what == "pan") {
        QVERIFY(page.run("Plotvane_Pan"));
        page.drag(onMap, onMap + QPoint(40, -23));
      }
      if (what == "zoom") QVERIFY(page.run("Plotvane_ZoomToOrigin"));
      if (what == "resize") page.drag(page.pixel(40.4, 25.6), page.pixel(35, 22));
      if (what == "turn") SysCarto::MapHost::setRotation(*page.layout()->GetFocusMap(), 12);
      if (what == "hide") page.layout()->GetFocusMap()->GetLayer(0)->SetVisible(false);
      if (what == "hide" || what == "turn") page.view().refresh(SysCarto::RefreshPhase::Everything);
      if (!QStringList{"select", "pan", "zoom"}.contains(what)) QVERIFY2(text() != former, qPrintable(what));
      if (what == "pan") QVERIFY(page.pixel(20, 15) != onMap);
      int const before = std::exchange(tiles, tilesAfter(page));
      QVERIFY2((tiles > before) == (draw && what != "select"), qPrintable(what));
    }
  }

  void anOverviewFollowsTheOtherMap() {
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx")));
    QList<_ptr_t<SysCarto::Map>> maps;
    page.layout()->GetMaps(maps);
    tilesAfter(page);
    QRect const globe(page.pixel(2, 9.2), page.pixel(6.9, 4.3));
    QImage const before = page.view().grab(globe).toImage();
    auto const extent = maps[0]->GetExtent();
    extent->Expand(3, 3, true);
    SysCarto::MapSteps::zoom(*maps[0], *extent);
    tilesAfter(page);
    QVERIFY(page.view().grab(globe).toImage() != before);
  }

  void aSlowMapLetsEventsThroughAndTheNewestWins() {
    WorkbenchPage page;
    auto const frame = page.add<MapFrameElement>(0, 0, 21, 29.7);
    auto const layer = make<SlowLayer>();
    frame->GetMap()->AddLayer(layer);
    page.run("Plotvane_ZoomToOrigin");
    QElapsedTimer clock;
    qint64 maxTurnMs = 0;
    int turns = 0;
    auto const turn = [&] {
      clock.start();
      QCoreApplication::processEvents();
      maxTurnMs = qMax(maxTurnMs, clock.elapsed());
      ++turns;
    };
    page.view().grab();
    for (int i = 0; i < 3; ++i) turn();
    QVERIFY(!page.view().isComplete());

    layer->colour = Qt::blue;  // and the map's graphics change under way, so what was drawn is no longer the map
    auto const note = make<SysCarto::TextElement>();
    frame->GetMap()->GetGraphicsContainer()->AddElement(note);
    while (!page.view().isComplete()) turn();
    QImage const picture = page.view().grab().toImage();
    for (QPoint const& at : {QPoint(5, 5), QPoint(400, 300), QPoint(790, 590)})
      QCOMPARE(picture.pixelColor(at), QColor(Qt::blue));
    QVERIFY2(turns > 4, qPrintable(QString::number(turns)));
    int const aTileAndMore = 20 * SlowLayer::msPerTile;  // forty tiles are in sight; the machine may be busy
    QVERIFY2(maxTurnMs < aTileAndMore, qPrintable(QString::number(maxTurnMs)));

    frame->GetMap()->GetGraphicsContainer()->DeleteElement(note);  // as after an export, and nobody asks for a redraw
    int const before = page.view().drawnTiles();
    page.run("Host_Unselect");
    page.run("Host_SelectAll");
    QVERIFY(tilesAfter(page) > before);
  }

  void scrollingMovesThePictureExactly_data() {
    Rows<QPoint> row;
    row("down", QPoint(0, -120));
    row("up and back, a little at a time", QPoint(0, 30));
    row("aslant", QPoint(50, -70));
  }
  void scrollingMovesThePictureExactly() {
    auto const [angle] = fetched<QPoint>();
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx")));
    QVERIFY(page.run("Plotvane_ZoomToOrigin"));
    tilesAfter(page);
    for (int i = 0; i < 3; ++i) page.wheel(angle);
    tilesAfter(page);
    QImage const scrolled = page.view().grab().toImage();
    page.view().refresh(SysCarto::RefreshPhase::Everything);
    QVERIFY(page.view().grab().toImage() == scrolled);
  }

  void zoomingShowsTheOldPictureUntilTheWheelRests() {
    WorkbenchPage page;
    page.add<SysCarto::RectangleElement>(4.0, 4.0, 8.0, 7.0);
    page.view().grab();
    QPoint const centre = page.view().rect().center();
    auto const under = page.layout()->GetDisplayTransformation()->ToMapPoint(centre);
    double const scale = page.layout()->GetDisplayTransformation()->GetPageScale();
    page.wheel({0, 120}, Qt::ControlModifier);
    QCOMPARE(page.layout()->GetDisplayTransformation()->GetPageScale(), scale * 1.25);
    auto const now = page.layout()->GetDisplayTransformation()->ToMapPoint(centre);
    QVERIFY(qAbs(now->GetX() - under->GetX()) < 1e-9 && qAbs(now->GetY() - under->GetY()) < 1e-9);
    QImage const scaled = page.view().grab().toImage();
    QTest::qWait(200);
    QVERIFY(page.view().grab().toImage() != scaled);  // sharp now
  }

  void aDragShowsTheElementsWithoutComposingThem() {
    WorkbenchPage page;
    auto const box = page.add<SysCarto::RectangleElement>(4.0, 4.0, 8.0, 7.0);
    page.click(page.pixel(6, 5));
    QImage const before = page.view().grab().toImage();
    page.mouse(QEvent::MouseButtonPress, page.pixel(6, 5));
    page.mouse(QEvent::MouseMove, page.pixel(9, 9));
    QVERIFY(page.view().grab().toImage() != before);
    QCOMPARE(page.place(*box), QRectF(4, 4, 4, 3));
    page.key(Qt::Key_Escape);
    QVERIFY(page.view().grab().toImage() == before);
  }

  // The release goes to another view or tool, or to nobody.
  void aDragThatIsCutOffIsGivenUp() {
    for (char const* command : {"Plotvane_Pan", "Host_MapView"}) {
      WorkbenchPage page;
      page.bench.views().QWidget::show();
      auto const box = page.add<SysCarto::RectangleElement>(4.0, 4.0, 8.0, 7.0);
      page.mouse(QEvent::MouseButtonPress, page.pixel(6, 5));
      page.mouse(QEvent::MouseMove, page.pixel(9, 9));
      QVERIFY(page.run(command));
      QVERIFY(page.run("Host_LayoutView") && page.run("Host_Select"));
      page.mouse(QEvent::MouseButtonRelease, page.pixel(9, 9));
      QCOMPARE(page.place(*box), QRectF(4, 4, 4, 3));
      page.drag(page.pixel(6, 5), page.pixel(7, 5));
      QVERIFY(page.place(*box).left() > 4.5);
    }
  }

  void theViewKeepsItsPlaceWhenTheDocumentIsSaved() {
    QTemporaryDir folder;
    WorkbenchPage page;
    QVERIFY(page.run("Plotvane_ZoomToOrigin"));
    double const scale = page.layout()->GetDisplayTransformation()->GetPageScale();
    page.add<SysCarto::RectangleElement>(4.0, 4.0, 8.0, 7.0);
    QVERIFY(page.bench.session().isModified());
    QVERIFY(page.bench.session().saveAs(folder.filePath("page.kdx")));
    QVERIFY(!page.bench.session().isModified());
    QCOMPARE(page.layout()->GetDisplayTransformation()->GetPageScale(), scale);
  }

private:
  static int tilesAfter(WorkbenchPage& page) {
    page.view().grab();
    constexpr int longestMs = 120000;  // with sanitizers
    QElapsedTimer clock;
    clock.start();
    while (!page.view().isComplete() && clock.elapsed() < longestMs) QTest::qWait(1);
    page.view().grab();
    return page.view().drawnTiles();
  }
};

QTEST_MAIN(ViewTest)
#include "tst_view.moc"
