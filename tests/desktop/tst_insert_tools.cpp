#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/drawing/NewElements.h"

#include <SysDisplay/SimpleLineSymbol.h>

using SysCarto::LineElement;
using SysCarto::MapDocumentHost;
using SysCarto::TextElement;

/// New things on the page, drawn with the mouse or put there with keys, and texts that are written where they stand.
class InsertToolsTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareApplication(); }

  void aDragDrawsAndIsOneStep_data() {
    Rows<QString, QVector<QPointF>, Qt::KeyboardModifiers, QVector<QPointF>> row;
    row("a rectangle between two corners", "Host_InsertRectangle", {{2, 20}, {8, 16}}, Qt::NoModifier,
        {{2, 16}, {8, 20}});
    row("Shift makes a square of the longer side", "Host_InsertEllipse", {{2, 20}, {8, 17}}, Qt::ShiftModifier,
        {{2, 14}, {8, 20}});
    row("a line as it was dragged", "Host_InsertLine", {{2, 20}, {8, 17}}, Qt::NoModifier, {{2, 17}, {8, 20}});
    row("Shift keeps an arrow at 45 degrees", "Host_InsertArrow", {{2, 20}, {8, 15}}, Qt::ShiftModifier,
        {{2, 14.5}, {7.5, 20}});
    row("a click puts one of the usual size", "Host_InsertRectangle", {{2, 20}}, Qt::NoModifier, {{2, 17}, {6, 20}});
  }
  void aDragDrawsAndIsOneStep() {
    auto const [tool, path, modifiers, corners] =
        fetched<QString, QVector<QPointF>, Qt::KeyboardModifiers, QVector<QPointF>>();
    Page page;
    QByteArray const before = page.text();
    QVERIFY(page.run(tool));
    page.drag(page.at(path.first()), page.at(path.last()), modifiers);
    QCOMPARE(page.elements().size(), 1);
    QVERIFY(isAbout(placeOf(*page.elements().first()), QRectF(corners[0], corners[1]).normalized(), page.cmPerPx()));
    QCOMPARE(page.container().GetSelectedElementCount(), 1);
    QCOMPARE(page.bench.commands().currentTool()->entry.identifier, QString("Host_Select"));
    page.run("Host_Undo");
    QVERIFY(page.text() == before);
  }

  void clicksSetVerticesUntilADoubleClick() {
    Page page;
    page.run("Host_InsertPolygon");
    for (QPointF const& vertex : {QPointF(2, 20), QPointF(8, 20), QPointF(9, 9), QPointF(8, 15)}) {
      page.click(page.at(vertex));
      if (vertex.y() == 9) page.key(Qt::Key_Backspace);
    }
    QVERIFY(page.elements().isEmpty());
    page.mouse(QEvent::MouseButtonDblClick, page.at({2, 15}));
    page.mouse(QEvent::MouseButtonRelease, page.at({2, 15}));
    auto const polygon = ptr_cast<SysCarto::PolygonElement>(page.elements().value(0));
    QVERIFY(polygon);
    QCOMPARE(polygon->shape()->GetRings().first().size(), 4);
    QVERIFY(isAbout(placeOf(*polygon), QRectF(2, 15, 6, 5), page.cmPerPx()));
  }

  void escapeGivesUpTheDrawingAndThenTheTool() {
    Page page;
    QByteArray const before = page.text();
    page.run("Host_InsertLine");
    page.click(page.at({2, 20}));
    page.click(page.at({8, 20}));
    page.key(Qt::Key_Escape);
    QCOMPARE(page.bench.commands().currentTool()->entry.identifier, QString("Host_InsertLine"));
    page.mouse(QEvent::MouseMove, page.at({9, 9}));
    page.key(Qt::Key_Escape);
    QCOMPARE(page.bench.commands().currentTool()->entry.identifier, QString("Host_Select"));
    QVERIFY(page.text() == before && !page.stack()->CanUndo());
  }

  // The press is drawn to the middle of the page, the hand has not moved.
  void aClickNearALineIsAClick_data() {
    Rows<QString, QSizeF> row;
    row("a marker stands on the line", "Host_InsertMarker", QSizeF(0, 0));
    row("a rectangle has the usual size", "Host_InsertRectangle", QSizeF(4, 3));
  }
  void aClickNearALineIsAClick() {
    auto const [tool, size] = fetched<QString, QSizeF>();
    Page page;
    page.view().setSnaps(true);
    page.run(tool);
    page.click(page.at({10.5, 20}) + QPoint(4, 0));
    QCOMPARE(page.elements().size(), 1);
    QRectF const place = placeOf(*page.elements().first());
    QCOMPARE(place.left(), 10.5);
    QVERIFY(std::abs(place.width() - size.width()) < 1e-9 && std::abs(place.height() - size.height()) < 1e-9);
  }

  void whatIsDrawnHalfStaysInItsDocument() {
    Page page;
    page.run("Host_InsertPolygon");
    for (QPointF const& vertex : {QPointF(2, 20), QPointF(8, 20), QPointF(8, 2)}) page.click(page.at(vertex));
    page.bench.session().create();
    page.key(Qt::Key_Return);
    QCOMPARE(page.elements().size(), 1);
    QVERIFY(placeOf(*page.elements().first()).width() < 5);  // one of the usual size
  }

  void aToolChosenTwiceStays() {
    Page page;
    page.run("Host_InsertMarker");
    page.run("Host_InsertMarker");
    page.click(page.at({2, 20}));
    page.click(page.at({4, 20}));
    page.key(Qt::Key_Return);  // in the middle of what is shown
    QCOMPARE(page.elements().size(), 3);
    page.key(Qt::Key_Escape);
    QCOMPARE(page.bench.commands().currentTool()->entry.identifier, QString("Host_Select"));
  }

  void aTextIsWrittenOnThePage() {
    Page page;
    QByteArray const before = page.text();
    page.run("Host_InsertText");
    page.click(page.at({2, 20}));
    QTest::keyClicks(page.editor(), "Plan");
    page.key(*page.editor(), Qt::Key_Escape);
    QVERIFY(page.elements().isEmpty() && page.text() == before);
    page.click(page.at({2, 20}));
    QTest::keyClicks(page.editor(), "Plan");
    page.key(*page.editor(), Qt::Key_Return);
    QTest::keyClicks(page.editor(), "of it");
    QApplication::clipboard()->setText(QString(17000, 'x'));
    QSignalSpy const told(&page.view(), &LayoutView::told);
    page.editor()->paste();
    QCOMPARE(told.count(), 1);
    page.key(*page.editor(), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(page.firstText()->text(), QString("Plan\nof it"));
    QCOMPARE(page.container().GetSelectedElementCount(), 1);

    QVERIFY(page.run("Host_Edit"));
    page.editor()->setPlainText("Map");
    QVERIFY(page.run("Host_Undo"));  // a command takes what was written first, and so undoes that
    QCOMPARE(page.firstText()->text(), QString("Plan\nof it"));
    page.mouse(QEvent::MouseButtonDblClick, page.at({2.2, 19.9}));
    QVERIFY(page.editor());
    page.editor()->clear();
    page.key(*page.editor(), Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(page.elements().isEmpty());
    page.run("Host_Undo");
    page.run("Host_Undo");
    QVERIFY(page.text() == before);
  }

  void aTextDrawnAsABoxFillsIt() {
    Page page;
    page.run("Host_InsertText");
    page.drag(page.at({2, 20}), page.at({6, 15}));
    QTest::keyClicks(page.editor(), "Towns of more than 15,000 people, from Thrace to Crete");
    page.key(*page.editor(), Qt::Key_Return, Qt::ControlModifier);
    auto const text = page.firstText();
    QVERIFY(!text->text().contains('\n') && text->shown().count('\n') > 1);
    QVERIFY(isWithin(placeOf(*text), QRectF(2, 15, 4, 5), page.cmPerPx()));
    auto const twice = ptr_cast<TextElement>(text->Clone());
    twice->Scale(make<SysGeometry::Point>(2.0, 20.0, 0.0), 2, 2);
    QCOMPARE(twice->shown(), text->shown());
  }

  void placeholdersAreFilledIn_data() {
    Rows<QString, QString> row;
    row("the date in any order", "[date:yyyy]–[date:dd]", QDate::currentDate().toString("yyyy'–'dd"));
    row("the name of the focus map", "[map]!", "Rhodes!");
    row("that of another by its name", "[crs:Rhodes] [crs:Naxos]", "WGS 84 / UTM zone 35N [crs:Naxos]");
    row("each credit once", "[credits]", "Natural Earth");
    row("the document without a file", "[document], p. [page]", "Untitled, p. 1");
    row("the title, for want of one the name, and no author", "[title], [author].", "Untitled, .");
    row("what is none stands as written", "[km] [scales] [] [date", "[km] [scales] [] [date");
  }
  void placeholdersAreFilledIn() {
    auto const [written, shown] = fetched<QString, QString>();
    Page page;
    auto const frame = page.add<SysCarto::MapFrameElement>(2, 2, 10, 10);
    frame->GetMap()->SetName("Rhodes");
    frame->GetMap()->SetCoordinateSystem("EPSG:32635");
    for (int i = 0; i < 2; ++i) {
      auto const layer = make<SysCarto::VectorLayer>(SysCarto::makeRenderer({}));
      SysCarto::LayerHost::setCredits(*layer, "Natural Earth");
      frame->GetMap()->AddLayer(layer);
    }
    auto const text = make<TextElement>(), member = make<TextElement>();
    auto const group = make<SysCarto::GroupElement>();
    for (auto const& one : {text, member}) one->setText(written);
    group->AddElement(member);
    page.container().AddElement(text);
    page.container().AddElement(group);
    QCOMPARE(text->shown(), shown);
    QCOMPARE(member->shown(), shown);
    QCOMPARE(ptr_cast<TextElement>(text->Clone())->shown(), shown);
    page.bench.session().create();
    QCOMPARE(text->shown(), written);
  }

  // A head lies on the line, its tip where the line ends, whatever the line does before it.
  void arrowHeadsLieWithinTheLine() {
    auto const line = make<LineElement>();
    line->setShape(make<SysGeometry::Polyline>(QVector<QPointF>{{2, 2}, {6, 2}, {6, 2.05}}));
    auto const symbol = make<SysDisplay::SimpleLineSymbol>();
    symbol->SetWidth(1);
    line->setSymbol(symbol);
    line->setHeads({SysCarto::ArrowHead::None, SysCarto::ArrowHead::Triangle, 72 / 2.54});  // a centimetre
    auto const transformation = make<SysDisplay::DisplayTransformation>();
    transformation->SetDeviceFrame(QRect(0, 0, 800, 800));
    transformation->SetVisibleBounds(make<SysGeometry::Envelope>(0.0, 0.0, 8.0, 8.0));
    transformation->SetPageScale(100 * 2.54 / 96);
    QRectF const place = rectOf(*line->GetBoundary(transformation)->GetEnvelope());
    QVERIFY2(std::abs(place.right() - 6) < 0.1 && place.top() > 1.5 && place.bottom() < 2.5, "runs past its end");
    QVERIFY2(place.bottom() > 2.3, "is no wider than the line");
  }

  // What the tools put on the page is what the steps put there.
  void stepsNameTheSameKinds() {
    for (NewElementKind const& kind : NewElementKind::all()) {
      bool const isBare = kind.content == NewElementKind::Content::None;
      auto const step = NewElement::of(QString("%1%2@2,3").arg(kind.name, isBare ? "" : ":a@b"));
      QVERIFY2(step && step->content == (isBare ? "" : "a@b") && !step->points.isEmpty(), kind.name);
      QVERIFY(!NewElement::of(QString("%1%2@2,3").arg(kind.name, isBare ? ":a" : "")));
      QVERIFY(!NewElement::of(QString("%1%2@2,x").arg(kind.name, isBare ? "" : ":a")));
    }
    QVERIFY(!NewElement::of("polygon@1,1,2,2") && !NewElement::of("rectangle@1,1,2,2,3,3") && !NewElement::of("@1,1"));
  }

private:
  struct Page : WorkbenchPage {
    Page() { view().setSnaps(false); }
    QList<_ptr_t<SysCarto::Element>> elements() { return container().GetElements(); }
    QByteArray text() { return MapDocumentHost::text(bench.session().document()); }
    _ptr_t<SysUI::IOperationStack> stack() { return bench.session().document().GetOperationStack(); }
    _ptr_t<TextElement> firstText() { return ptr_cast<TextElement>(elements().value(0)); }
    TextEditor* editor() {
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      return view().findChild<TextEditor*>();
    }
    QPoint at(QPointF const& cm) { return pixel(cm.x(), cm.y()); }
    double cmPerPx() { return 1 / layout()->GetDisplayTransformation()->ToDevice().m11(); }
    using WorkbenchPage::key;
    void key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
      QTest::keyClick(&widget, key, modifiers);
    }
  };
};

QTEST_MAIN(InsertToolsTest)
#include "tst_insert_tools.moc"
