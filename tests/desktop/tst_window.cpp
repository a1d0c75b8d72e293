#include "Files.h"
#include "desktop/WorkbenchPage.h"

#include "host/desktop/CommandCatalogue.h"
#include "host/desktop/DialogAnswers.h"
#include "host/desktop/Icons.h"
#include "host/desktop/MainWindow.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QTreeWidget>
#include <QUndoStack>

namespace {

QString const world = QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx");

DialogAnswers::Answer button(QString const& text) { return {DialogAnswers::Answer::Kind::Widget, "button", text}; }

}  // namespace

class WindowTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
  }

  void init() { QSettings().clear(); }
  void statesFollowTheHost() {
    MainWindow window;
    window.show();
    QVERIFY(window.open(world));
    QCoreApplication::processEvents();
    QVERIFY(!isEnabled(window, "Plotvane_ZoomToPreviousExtent"));
    QVERIFY(!isEnabled(window, "Plotvane_LeftAlignment") && !isEnabled(window, "Host_Undo"));
    window.actions().find("Host_SelectAll")->trigger();
    QVERIFY(isEnabled(window, "Plotvane_LeftAlignment"));
    window.actions().find("Plotvane_LeftAlignment")->trigger();
    QVERIFY(isEnabled(window, "Host_Undo") && window.isWindowModified());
    window.actions().find("Host_Undo")->trigger();
    QVERIFY(isEnabled(window, "Host_Redo") && !window.isWindowModified());

    window.actions().find("Plotvane_Pan")->trigger();
    QVERIFY(window.actions().find("Plotvane_Pan")->isChecked() && !window.actions().find("Host_Select")->isChecked());
    window.actions().find("Plotvane_AlignToMargins")->trigger();
    QVERIFY(window.actions().find("Plotvane_AlignToMargins")->isChecked());
    window.actions().find("Host_MapView")->trigger();
    QVERIFY(!isEnabled(window, "Plotvane_ZoomIn") && isEnabled(window, "Plotvane_LockDataFrame"));
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

    QByteArray const before = page.bench.session().document().GetText();
    for (QString const& name : namesWhere(false))  // a dialog would wait for an answer
      if (name != "MapFrame") page.bench.commands().find("Plotvane_" + name)->command->OnClick();
    QVERIFY(page.bench.session().document().GetText() == before);
  }

  void whatThePluginDoesNotBuildIsNotShown() {
    MainWindow window;
    for (CommandEntry const& entry : commandCatalogue()) {
      bool const isBuilt = static_cast<bool>(window.bench().plugin().createCommand(entry.identifier));
      QCOMPARE(window.actions().find(entry.identifier) != nullptr, isBuilt);
    }
    for (CommandEntry const& entry : hostCatalogue())
      QVERIFY2(window.actions().find(entry.identifier), qPrintable(entry.identifier));
    for (QAction const* menu : window.menuBar()->actions()) QVERIFY(!menu->menu()->isEmpty());
  }

  void aDocumentThatCanNotBeReadChangesNothing() {
    QString const file = put(folder_.filePath("broken.kdx"), "{");
    MainWindow window;
    QVERIFY(window.open(world));
    QByteArray const before = window.bench().session().document().GetText();
    DialogAnswers answers;  // none: the message box is a problem that is named
    QVERIFY(!window.open(file));
    QString const told = answers.takeProblem();
    QVERIFY2(told.contains("message box"), qPrintable(told));
    QVERIFY(window.bench().session().problem().contains("broken.kdx"));
    QCOMPARE(window.bench().session().path(), world);
    QVERIFY(window.bench().session().document().GetText() == before);
  }

  void changesAreNotLostWithoutAQuestion_data() {
    Rows<QString, bool, bool> row;
    row("Cancel keeps the window", "Cancel", false, false);
    row("Discard drops them", "Discard", true, false);
    row("Save writes them", "Save", true, true);
  }
  void changesAreNotLostWithoutAQuestion() {
    auto const [answer, closes, writes] = fetched<QString, bool, bool>();
    QString const path = folder_.filePath("changed.kdx");
    QFile::remove(path);
    MainWindow window;
    QVERIFY(window.open(world) && window.bench().session().saveAs(path));
    QByteArray const before = contentOf(path);
    window.show();
    window.actions().find("Host_SelectAll")->trigger();
    window.actions().find("Host_Delete")->trigger();
    DialogAnswers answers;
    answers.add(button(answer));
    QCOMPARE(window.close(), closes);
    QCOMPARE(answers.takeProblem(), QString());
    QCOMPARE(contentOf(path) != before, writes);
  }

  void aDroppedDocumentOpens() {
    MainWindow window;
    window.show();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(world)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QTRY_COMPARE(window.bench().session().path(), world);
    QVERIFY(window.windowTitle().startsWith("world.kdx"));
  }

  // Six boxes on a new page, arranged with mouse and keys as a person would; PLOTVANE_PICTURES names a folder for
  // pictures of the window.
  void aPieceOfRealWork() {
    MainWindow window;
    window.resize(1280, 860);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto const layout = window.bench().session().document().GetPageLayout();
    for (int i = 0; i < 6; ++i) {
      double const x = 2 + i * 2.9, y = 4 + (i * 7) % 17;
      layout->GetGraphicsContainer()->AddElement(
          madeIn<SysCarto::RectangleElement>(x, y, x + 1.2 + 0.2 * i, y + 2.6 - 0.2 * i));
    }
    auto& view = window.bench().views().layoutView();
    view.refresh(SysCarto::ViewSurface::everything);
    QByteArray const start = window.bench().session().document().GetText();
    auto const picture = [&](char const* name) {
      for (int i = 0; i < 3; ++i) QTest::qWait(20);
      QString const folder = qEnvironmentVariable("PLOTVANE_PICTURES");
      if (!folder.isEmpty()) QVERIFY(window.grab().save(folder + QLatin1Char('/') + name + ".png"));
    };
    auto const pixel = [&](double x, double y) { return layout->GetDisplayTransformation()->FromMapPoint(x, y); };
    auto const boxes = [&] {
      QVector<QRectF> rectangles;
      for (auto const& element : layout->GetGraphicsContainer()->GetElements()) rectangles << placeOf(*element);
      return rectangles;
    };

    auto const moveTo = [&view](QPoint const& at) {
      QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&view, &move);
    };
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, pixel(0.5, 29));
    moveTo(pixel(10, 10));
    picture("band");
    moveTo(pixel(20.5, 1));
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, pixel(20.5, 1));
    QCOMPARE(layout->GetGraphicsContainer()->GetSelectedElementCount(), 6);
    picture("selected");
    window.actions().find("Plotvane_MakeSameSizeElements")->trigger();
    window.actions().find("Plotvane_AlignToMargins")->trigger();
    QTest::keyClick(&window, Qt::Key_B, Qt::ControlModifier | Qt::AltModifier);  // align bottom
    window.actions().find("Plotvane_DistributeHorizontallyElements")->trigger();
    picture("arranged");
    auto const arranged = boxes();
    double const outlineCm = 0.05;  // the commands go by what is drawn, outlines included
    for (QRectF const& box : arranged) QVERIFY(qAbs(box.top()) < outlineCm);
    for (QRectF const& box : arranged) QVERIFY(qAbs(box.width() - arranged[0].width()) < outlineCm);
    double const gap = arranged[1].left() - arranged[0].left();
    for (int i = 2; i < 6; ++i) QVERIFY(qAbs(arranged[i].left() - arranged[i - 1].left() - gap) < outlineCm);

    QPoint const grip = pixel(arranged[0].center().x(), arranged[0].center().y());
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, grip);
    moveTo(grip - QPoint(0, 120));
    picture("dragging");
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, grip - QPoint(0, 120));
    QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
    picture("moved");
    QVERIFY(boxes()[0].top() > 4);
    QTest::keyClick(&window, Qt::Key_Escape);
    while (isEnabled(window, "Host_Undo")) QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    layout->SetAlignToMargins(false);
    QVERIFY(window.bench().session().document().GetText() == start);
    window.bench().session().document().history()->setClean();
  }

  void theContentsFollowTheDataFrames() {
    MainWindow window;
    window.show();
    QVERIFY(window.open(world));
    auto* const tree = window.findChild<QTreeWidget*>("treeWidget_Contents");
    auto const first = [tree] { return tree->topLevelItem(0)->text(0); };
    QCOMPARE(first(), QString("World"));
    window.actions().find("Host_SelectAll")->trigger();
    window.actions().find("Host_Delete")->trigger();
    QCOMPARE(first(), QString("No maps on this page"));
    window.actions().find("Host_Undo")->trigger();
    QCOMPARE(first(), QString("World"));
    QCOMPARE(tree->topLevelItem(0)->childCount(), window.bench().session().document().GetMap(0)->GetLayerCount());
  }

  void hidingALayerIsAChangeOfTheDocument() {
    MainWindow window;
    window.show();
    QVERIFY(window.open(world));
    QCoreApplication::processEvents();
    auto* const tree = window.findChild<QTreeWidget*>("treeWidget_Contents");
    QTreeWidgetItem* const layer = tree->topLevelItem(0)->child(0);
    layer->setCheckState(0, Qt::Unchecked);
    auto const map = window.bench().session().document().GetMap(0);
    QVERIFY(!map->GetLayer(map->GetLayerCount() - 1)->IsVisible());
    QTRY_VERIFY(window.isWindowModified());
    layer->setCheckState(0, Qt::Checked);
    QTRY_VERIFY(!window.isWindowModified());
  }

  void theMapMovesInItsFrame() {
    MainWindow window;
    window.show();
    QVERIFY(window.open(world));
    auto const layout = window.bench().views().GetPageLayout();
    auto const map = layout->GetFocusMap();
    auto const scale = [&] { return map->GetDisplayTransformation()->GetMapScale(); };
    auto* const field = window.findChild<QLineEdit*>("lineEdit_MapScale");
    QTest::keyClicks(field, "junk");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(field->text(), "1:" + window.locale().toString(scale(), 'f', 0));
    field->selectAll();
    QTest::keyClicks(field, "1:50000000");
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(qAbs(scale() / 50e6 - 1) < 1e-6);
    QVERIFY(window.isWindowModified());

    window.actions().find("Host_MapView")->trigger();
    MapView& view = window.bench().views().mapView();
    view.grab();
    QPoint const middle = view.rect().center();
    auto const before = map->GetExtent();
    QTest::mousePress(&view, Qt::LeftButton, {}, middle);
    QMouseEvent move(QEvent::MouseMove, middle + QPoint(50, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, middle + QPoint(50, 0));
    QVERIFY(map->GetExtent()->GetXMin() < before->GetXMin());
    QVERIFY(qAbs(map->GetExtent()->GetWidth() / before->GetWidth() - 1) < 1e-9);

    QWheelEvent wheel(middle, middle, QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &wheel);
    QVERIFY(scale() < 50e6 * 0.9);
    layout->GetFocusMapFrameElement()->SetLocked(true);
    double const locked = scale();
    QCoreApplication::sendEvent(&view, &wheel);
    QCOMPARE(scale(), locked);
  }

  void iconsTakeThePalettesColour_data() {
    Rows<QString> row;
    for (CommandEntry const& entry : commandCatalogue() + hostCatalogue()) row(entry.identifier, entry.icon);
  }
  void iconsTakeThePalettesColour() {
    auto const [icon] = fetched<QString>();
    QPalette const before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::ButtonText, QColor(0xe0, 0xf0, 0xff));
    QApplication::setPalette(dark);
    QImage const picture = loadIcon(icon).pixmap(48).toImage().convertToFormat(QImage::Format_ARGB32);
    QApplication::setPalette(before);
    QCOMPARE(picture.size(), QSize(48, 48));
    int inked = 0;
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x)
        if (qAlpha(picture.pixel(x, y)) == 255) {
          QCOMPARE(picture.pixelColor(x, y), QColor(0xe0, 0xf0, 0xff));
          ++inked;
        }
    QVERIFY(inked > 20);
  }

  void shortcutsAreUnique() {
    QMap<QString, QString> users;
    for (CommandEntry const& entry : commandCatalogue() + hostCatalogue()) {
      if (entry.shortcut.isEmpty()) continue;
      QVERIFY2(!users.contains(entry.shortcut), qPrintable(entry.shortcut + " of " + users[entry.shortcut]));
      users[entry.shortcut] = entry.identifier;
    }
  }

private:
  bool isEnabled(MainWindow& window, char const* identifier) {
    QAction const* const action = window.actions().find(identifier);
    return action && action->isEnabled();
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
