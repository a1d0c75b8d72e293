#include "Dialogs.h"
#include "Boxes.h"
#include "desktop/WorldWindow.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/desktop/BoxTitles.h"
#include "host/desktop/CommandCatalogue.h"
#include "host/desktop/Icons.h"
#include "host/SysUtility/ScaleText.h"

#include <QScopeGuard>
#include <QScreen>

using SysCarto::MapDocumentHost;

class WindowTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareWorld(folder_.path()); }

  void init() { QSettings().clear(); }
  void theWindowFitsOnTheScreen_data() {
    Rows<QRect> row;
    row("at first", QRect());
    row("remembered from a larger one", QRect(700, 300, 3000, 2000));
  }
  void theWindowFitsOnTheScreen() {
    auto const [remembered] = fetched<QRect>();
    QWidget window;
    window.setGeometry(remembered);
    if (!remembered.isNull()) QSettings().setValue("window/geometry", window.saveGeometry());
    MainWindow const restored;
    QRect const screen = restored.screen()->availableGeometry();
    QVERIFY(screen.contains(restored.geometry()));
  }

  void statesFollowTheHost() {
    WorldWindow sample;
    QVERIFY(!sample.isEnabled("Plotvane_ZoomToPreviousExtent"));
    QVERIFY(!sample.isEnabled("Plotvane_LeftAlignment") && !sample.isEnabled("Host_Undo"));
    sample.trigger("Host_SelectAll");
    QVERIFY(sample.isEnabled("Plotvane_LeftAlignment"));
    sample.trigger("Plotvane_LeftAlignment");
    QVERIFY(sample.isEnabled("Host_Undo") && sample.window.isWindowModified());
    sample.trigger("Host_Undo");
    QVERIFY(sample.isEnabled("Host_Redo") && !sample.window.isWindowModified());

    sample.trigger("Plotvane_Pan");
    QVERIFY(sample.isChecked("Plotvane_Pan") && !sample.isChecked("Host_Select"));
    sample.trigger("Plotvane_AlignToMargins");
    QVERIFY(sample.isChecked("Plotvane_AlignToMargins"));
    sample.trigger("Host_MapView");
    QVERIFY(!sample.isEnabled("Plotvane_ZoomIn") && sample.isEnabled("Plotvane_LockDataFrame"));
  }

  void theMapViewEnablesOnlyWhatWorksThere() {
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(world));
    for (char const* step : {"Plotvane_ZoomToOrigin", "Plotvane_ZoomToWhole", "Plotvane_ZoomToPreviousExtent"})
      QVERIFY(page.run(step));
    QVERIFY(page.run("Host_SelectAll"));
    auto const namesWhere = [&page](bool enabled) {
      QStringList names;
      for (HostedCommand const& one : page.bench.commands().commands())
        if (one.entry.identifier.startsWith("Plotvane_") && one.command->IsEnable() == enabled)
          names << one.entry.identifier.mid(9);
      return names;
    };
    // The page has a map surround.
    QCOMPARE(namesWhere(false),
             QStringList({"FittoMarginsElements", "FitWidthtoMarginsElements", "FitHeighttoMarginsElements"}));
    QVERIFY(page.run("Host_MapView"));
    QCOMPARE(namesWhere(true), QStringList({"LockDataFrame", "UnlockDataFrame"}));

    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    for (QString const& name : namesWhere(false))  // a dialog would wait for an answer
      if (name != "MapFrame") page.bench.commands().find("Plotvane_" + name)->command->OnClick();
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
  }

  // Six boxes on a new page, arranged with mouse and keys as a person would; PLOTVANE_PICTURES names a folder for
  // pictures of the window.
  void aPieceOfRealWork() {
    MainWindow window;
    window.resize(1280, 860);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    WorkbenchPage page(window.bench());
    QVector<_ptr_t<SysCarto::Element>> boxes;
    for (int i = 0; i < 6; ++i) {
      double const x = 2 + i * 2.9, y = 4 + (i * 7) % 17;
      boxes << page.add<SysCarto::RectangleElement>(x, y, x + 1.2 + 0.2 * i, y + 2.6 - 0.2 * i);
    }
    page.view().refresh(SysCarto::RefreshPhase::Everything);
    QByteArray const start = MapDocumentHost::text(page.bench.session().document());
    auto const picture = [&](char const* name) {
      for (int i = 0; i < 3; ++i) QTest::qWait(20);
      QString const folder = qEnvironmentVariable("PLOTVANE_PICTURES");
      if (!folder.isEmpty()) QVERIFY(window.grab().save(folder + QLatin1Char('/') + name + ".png"));
    };

    page.mouse(QEvent::MouseButtonPress, page.pixel(0.5, 29));
    page.mouse(QEvent::MouseMove, page.pixel(10, 10));
    picture("band");
    page.mouse(QEvent::MouseMove, page.pixel(20.5, 1));
    page.mouse(QEvent::MouseButtonRelease, page.pixel(20.5, 1));
    QCOMPARE(page.container().GetSelectedElementCount(), 6);
    picture("selected");
    QVERIFY(page.run("Plotvane_MakeSameSizeElements") && page.run("Plotvane_AlignToMargins"));
    QTest::keyClick(&window, Qt::Key_B, Qt::ControlModifier | Qt::AltModifier);  // align bottom
    QVERIFY(page.run("Plotvane_DistributeHorizontallyElements"));
    picture("arranged");
    double const outlineCm = 0.05;  // the commands go by what is drawn, outlines included
    double const step = page.place(*boxes[1]).left() - page.place(*boxes[0]).left();
    for (int i = 0; i < 6; ++i) {
      QRectF const box = page.place(*boxes[i]), first = page.place(*boxes[0]);
      QVERIFY(qAbs(box.top()) < outlineCm && qAbs(box.width() - first.width()) < outlineCm);
      QVERIFY(qAbs(box.left() - first.left() - i * step) < i * outlineCm + 1e-9);
    }

    QPointF const centre = page.place(*boxes[0]).center();
    QPoint const grip = page.pixel(centre.x(), centre.y());
    page.mouse(QEvent::MouseButtonPress, grip);
    page.mouse(QEvent::MouseMove, grip - QPoint(0, 120));
    QTest::keyClick(&page.view(), Qt::Key_Delete);  // in the middle of a drag keys are no commands
    picture("dragging");
    page.mouse(QEvent::MouseButtonRelease, grip - QPoint(0, 120));
    page.key(Qt::Key_Up, Qt::ShiftModifier);
    picture("moved");
    QVERIFY(page.place(*boxes[0]).top() > 4);
    QTest::keyClick(&window, Qt::Key_Escape);
    while (window.actions().find("Host_Undo")->isEnabled()) QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    page.layout()->SetAlignToMargins(false);
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == start);
    MapDocumentHost::history(page.bench.session().document())->setClean();
  }

  void theContentsFollowTheDataFrames() {
    WorldWindow sample;
    auto* const tree = sample.window.findChild<QTreeView*>("treeView_Contents");
    auto const first = [tree] { return tree->model()->index(0, 0).data().toString(); };
    QCOMPARE(first(), QString("World"));
    sample.trigger("Host_SelectAll");
    sample.trigger("Host_Delete");
    QCOMPARE(first(), QString("No maps on this page"));
    sample.trigger("Host_Undo");
    QCOMPARE(first(), QString("World"));
    QCOMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), sample.document().GetMap(0)->GetLayerCount());
  }

  void theFocusGoesToTheMapThatIsClicked() {
    WorldWindow sample;
    auto* const tree = sample.window.findChild<QTreeView*>("treeView_Contents");
    sample.trigger("Plotvane_MapFrame");  // the new map has the focus
    WorkbenchPage page(sample.window.bench());
    auto const layout = page.layout();
    auto const row = [tree](int map) { return tree->model()->index(map, 0); };
    auto const isBold = [&](int map) { return row(map).data(Qt::FontRole).value<QFont>().bold(); };
    QCOMPARE(tree->model()->rowCount(), 2);
    QTRY_VERIFY(!isBold(0) && isBold(1));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(row(0)).center());
    QVERIFY(layout->GetFocusMap() == sample.document().GetMap(0));
    QTRY_VERIFY(isBold(0) && !isBold(1));

    MapDocumentHost::history(sample.document())->setClean();
    page.run("Plotvane_LockDataFrame");
    auto const corner = layout->GetGraphicsContainer()->GetElements().last()->GetEnvelope();
    QTest::mouseDClick(&page.view(), Qt::LeftButton, {}, page.pixel(corner->GetXMax() - 0.1, corner->GetYMin() + 0.1));
    QVERIFY(layout->GetFocusMap() == sample.document().GetMap(1));
    QTRY_VERIFY(isBold(1));
    QVERIFY(MapDocumentHost::history(sample.document())->isClean());
  }

  void hidingALayerIsAStep() {
    WorldWindow sample;
    auto* const tree = sample.window.findChild<QTreeView*>("treeView_Contents");
    QModelIndex const layer = tree->model()->index(0, 0, tree->model()->index(0, 0));
    tree->model()->setData(layer, Qt::Unchecked, Qt::CheckStateRole);
    auto const map = sample.document().GetMap(0);
    QVERIFY(!map->GetLayer(map->GetLayerCount() - 1)->IsVisible());
    QTRY_VERIFY(sample.window.isWindowModified());
    QVERIFY(sample.window.actions().find("Host_Undo")->text().contains(layer.data().toString()));
    sample.trigger("Host_Undo");
    QCOMPARE(layer.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(!sample.window.isWindowModified());
  }

  void lookingChangesNothing() {
    WorldWindow sample;
    WorkbenchPage page(sample.window.bench());
    page.wheel({0, 120});
    page.wheel({0, -240}, Qt::ControlModifier);
    for (char const* command : {"Plotvane_ZoomToWhole", "Host_SelectAll", "Host_MapView", "Host_LayoutView"})
      sample.trigger(command);
    Person person;
    person.sets("lineEdit_OutputPath", folder_.filePath("out.png"));
    person.sets("lineEdit_DPI", "20");
    sample.trigger("Plotvane_Export");
    QVERIFY(!sample.window.isWindowModified() && !sample.isEnabled("Host_Undo"));
  }

  void whatCostsTheHistoryIsAskedForEachTime() {
    WorldWindow sample;
    sample.trigger("Host_SelectAll");
    sample.trigger("Plotvane_LeftAlignment");
    auto const answered = [&](char const* command, QString const& button, bool cancels) {
      Person person;
      if (!button.isEmpty()) person.presses(button);
      if (cancels) person.cancels();
      sample.trigger(command);
    };
    for (char const* command : {"Plotvane_PageSetting", "Plotvane_ChangePageLayout"})
      answered(command, "Cancel", false);  // or another dialog would want an answer
    for (int i = 0; i < 2; ++i) answered("Plotvane_PageSetting", "Continue", true);
    QVERIFY(sample.isEnabled("Host_Undo"));

    sample.trigger("Plotvane_TopAlignment");
    Person person;
    person.presses("Continue");
    person.sets("file", QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/templates/a4-report.kdx"));
    sample.trigger("Plotvane_ChangePageLayout");
    QVERIFY(!sample.isEnabled("Host_Undo") && sample.window.isWindowModified());
  }

  void aMessageBoxHasRoomForItsTitle() {
    MainWindow const window;
    QMessageBox box(QMessageBox::Warning, "A warning of some length", "No.", QMessageBox::Ok);
    box.show();
    QVERIFY(box.width() >= box.fontMetrics().horizontalAdvance(box.windowTitle()) + BoxTitles::titleBarPx);
  }

  void aScaleIsReadInTheMannerOfAnyLanguage_data() {
    Rows<double> row;
    for (char const* text : {"1:12,000,000", "1:12.000.000", "1/12 000 000", "12'000'000", "12M", "12000 Tsd.",
                             "1：1200万", "1,20,00,000", "12,000,000.00"})
      row(text, 12e6);
    row("1.500 Mio", 1.5e6);
    row("1:12.500", 12500);
    row("1:12,5", 12.5);
    row("1:0.500", 0.5);
    for (char const* text : {"", "junk", "1:", "0", "-5", "2:1000", "1:12.00.0", "1.2.3,4", "12 Furlongs", "99 Mrd"})
      row(QByteArray("no scale: ") + text, 0);
  }
  void aScaleIsReadInTheMannerOfAnyLanguage() {
    auto const [denominator] = fetched<double>();
    QString const text = QString(QTest::currentDataTag()).remove("no scale: ");
    QCOMPARE(SysUtility::scaleDenominatorOf(text).value_or(0), denominator);
  }

  void theMapMovesInItsFrame() {
    WorldWindow sample;
    auto const layout = sample.window.bench().views().GetPageLayout();
    auto const map = layout->GetFocusMap();
    auto const scale = [&] { return map->GetDisplayTransformation()->GetMapScale(); };
    auto* const field = sample.window.findChild<QLineEdit*>("lineEdit_MapScale");
    field->setFocus();
    QTest::keyClicks(field, "junk");
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(sample.window.focusWidget() == &sample.window.bench().views().layoutView());  // keys work on the page again
    QCOMPARE(field->text(), "1:" + sample.window.locale().toString(scale(), 'f', 0));
    QVERIFY(sample.window.statusBar()->currentMessage().contains("junk"));
    field->selectAll();
    QTest::keyClicks(field, "1:50000000");
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(qAbs(scale() / 50e6 - 1) < 1e-6);
    QVERIFY(sample.window.isWindowModified());

    sample.trigger("Host_MapView");
    WorkbenchPage page(sample.window.bench());
    page.shown().grab();
    auto const before = map->GetExtent();
    page.drag({100, 100}, {150, 100});
    QVERIFY(map->GetExtent()->GetXMin() < before->GetXMin());
    QVERIFY(qAbs(map->GetExtent()->GetWidth() / before->GetWidth() - 1) < 1e-9);

    page.wheel({0, 120});
    QVERIFY(scale() < 50e6 * 0.9);

    // A map that is turned follows the hand, too: the place under it is the same before and after.
    SysCarto::MapHost::setRotation(*map, 50);
    page.shown().grab();
    QRectF const frame = rectOf(*layout->GetFocusMapFrameElement()->GetEnvelope());
    QSizeF const size = frame.size().scaled(page.shown().size(), Qt::KeepAspectRatio);
    auto const under = [&](QPointF const& px) {
      auto const t = map->GetDisplayTransformation();
      QPointF const inFrame(px.x() - (page.shown().width() - size.width()) / 2,
                            px.y() - (page.shown().height() - size.height()) / 2);
      return t->ToDevice().inverted().map(inFrame * (t->GetDeviceFrame().width() / size.width()));
    };
    double const unitsPerPx = map->GetExtent()->GetWidth() / size.width();
    QPointF const held = under({100, 100}), middle = under(page.shown().rect().center());
    page.drag({100, 100}, {160, 130});
    QVERIFY(QLineF(held, under({160, 130})).length() < 2 * unitsPerPx);
    QVERIFY(QLineF(middle, under(page.shown().rect().center())).length() > 60 * unitsPerPx);
    QPointF const fixed = under({100, 100});
    QWheelEvent nearer(QPointF(100, 100), QPointF(100, 100), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(&page.shown(), &nearer);
    QVERIFY(map->GetExtent()->GetWidth() < unitsPerPx * size.width() * 0.9);
    QVERIFY(QLineF(fixed, under({100, 100})).length() < 2 * unitsPerPx);

    // One with a locked scale is moved, and stays where it is under the wheel.
    SysCarto::MapHost::lockScale(*map, 40e6);
    auto const kept = rectOf(*map->GetExtent());
    QApplication::sendEvent(&page.shown(), &nearer);
    QCOMPARE(rectOf(*map->GetExtent()), kept);
    page.drag({100, 100}, {160, 130});
    QVERIFY(rectOf(*map->GetExtent()) != kept && scale() == 40e6);
    SysCarto::MapHost::lockScale(*map, 0);
    layout->GetFocusMapFrameElement()->SetLocked(true);
    double const locked = scale();
    page.wheel({0, 120});
    QCOMPARE(scale(), locked);
  }

  void everyCommandIsShownWithAnIconAndAShortcutOfItsOwn() {
    MainWindow window;
    QPalette const before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::ButtonText, QColor(0xe0, 0xf0, 0xff));
    QApplication::setPalette(dark);
    auto const restored = qScopeGuard([&] { QApplication::setPalette(before); });
    QSet<QString> shortcuts;
    for (CommandEntry const& entry : commandCatalogue() + hostCatalogue()) {
      QVERIFY2(window.actions().find(entry.identifier), qPrintable(entry.identifier));
      QString const keys = (entry.isForContents ? "contents " : "") + entry.shortcut;
      QVERIFY2(!shortcuts.contains(keys), qPrintable(keys));
      if (!entry.shortcut.isEmpty()) shortcuts << keys;
      QImage const picture = loadIcon(entry.icon).pixmap(48).toImage().convertToFormat(QImage::Format_ARGB32);
      int inked = 0, opaque = 0;
      for (int i = 0; i < 48 * 48; ++i) {
        QColor const pixel = picture.pixelColor(i % 48, i / 48);
        inked += pixel == QColor(0xe0, 0xf0, 0xff);
        opaque += pixel.alpha() == 255;
      }
      QVERIFY2(inked > 20 && inked == opaque, qPrintable(entry.icon));
    }
  }

private:
  QTemporaryDir folder_;
};

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
