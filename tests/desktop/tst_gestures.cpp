#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/desktop/drawing/SelectionHandles.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

using SysCarto::MapDocumentHost;
using SysCarto::MapFrameElement;
using SysCarto::RectangleElement;

/// Two boxes and a data frame on an A4 page, and what mouse and keys do to them.
class GesturesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareApplication(); }
  void clicksSelect() {
    Page page;
    int const left = page.left->GetHandle(), right = page.right->GetHandle();
    page.click(page.pixel(4, 5));
    QCOMPARE(page.selected(), QList<int>{left});
    page.click(page.pixel(12, 5), Qt::ShiftModifier);
    QCOMPARE(page.selected(), (QList<int>{left, right}));
    page.click(page.pixel(4, 5), Qt::ShiftModifier);
    QCOMPARE(page.selected(), QList<int>{right});
    page.click(page.pixel(4, 5), Qt::ShiftModifier);
    page.click(page.pixel(4, 5));
    QCOMPARE(page.selected(), QList<int>{left});  // of several, a click leaves the one under it
    page.click(page.pixel(18, 28));
    QCOMPARE(page.selected(), QList<int>{});
  }

  void aRubberBandSelectsWhatLiesWhollyInIt() {
    Page page;
    page.drag(page.pixel(15, 3), page.pixel(5, 8));
    QCOMPARE(page.selected(), QList<int>{page.right->GetHandle()});
    page.drag(page.pixel(1, 3), page.pixel(7, 8), Qt::ShiftModifier);
    QCOMPARE(page.selected().size(), 2);
    QVERIFY(!page.bench.session().document().GetOperationStack()->CanUndo());
  }

  void whatIsNotFilledIsHitOnItsOutline() {
    Page page;
    auto const hollow = [] {
      auto const symbol = make<SysDisplay::SimpleFillSymbol>();
      symbol->SetStyle(SysDisplay::SimpleFillStyle::Null);
      symbol->SetOutlineSymbol(make<SysDisplay::SimpleLineSymbol>());
      return symbol;
    }();
    auto const neatline = page.add<RectangleElement>(1, 1, 20, 28);
    neatline->setSymbol(hollow);
    auto const ring = madeIn<SysCarto::EllipseElement>(8, 25, 12, 27);
    ring->setSymbol(hollow);
    auto const group = make<SysCarto::GroupElement>();
    group->AddElement(ring);
    page.container().AddElement(group);
    auto const selectedBy = [&](double x, double y) {
      page.click(page.pixel(x, y));
      return page.selected();
    };
    QCOMPARE(selectedBy(4, 5), QList<int>{page.left->GetHandle()});
    QCOMPARE(selectedBy(10, 26), QList<int>{});
    QCOMPARE(selectedBy(8.1, 25.1), QList<int>{});  // in the ring's rectangle
    QCOMPARE(selectedBy(8, 26), QList<int>{group->GetHandle()});
    QCOMPARE(selectedBy(20, 10), QList<int>{neatline->GetHandle()});
  }

  void handlesResizeAboutTheOppositeSide_data() {
    Rows<QPointF, QPointF, QRectF> row;
    row("the upper right corner", QPointF(6, 7), QPointF(8, 9), QRectF(2, 4, 6, 5));
    row("the upper left corner", QPointF(2, 7), QPointF(3, 8), QRectF(3, 4, 3, 4));
    row("the right side alone", QPointF(6, 5.5), QPointF(9, 8), QRectF(2, 4, 7, 3));
    row("a side is not pulled through the other", QPointF(6, 5.5), QPointF(-3, 5.5), QRectF(2, 4, 0.1, 3));
  }
  void handlesResizeAboutTheOppositeSide() {
    auto const [from, to, expected] = fetched<QPointF, QPointF, QRectF>();
    Page page;
    page.click(page.pixel(4, 5));
    page.drag(page.pixel(from.x(), from.y()), page.pixel(to.x(), to.y()));
    QVERIFY(page.isAt(*page.left, expected));
  }

  void shiftKeepsTheRatio() {
    Page page;
    page.click(page.pixel(4, 5));
    page.drag(page.pixel(6, 7), page.pixel(10, 7.5), Qt::ShiftModifier);
    QVERIFY(page.isAt(*page.left, QRectF(2, 4, 8, 6)));
  }

  void aTextGrowsAboutTheOppositeSide() {
    Page page;
    auto const text = make<SysCarto::TextElement>();
    auto format = text->symbol()->format();
    format.size = 60;
    format.horizontal = SysDisplay::HorizontalAlignment::Center;
    text->setSymbol(make<SysDisplay::TextSymbol>(format));
    text->setText("Plan");
    text->setPosition(10, 15);
    page.container().AddElement(text);
    QRectF const before = page.place(*text);
    page.click(page.pixel(10, 15.5));
    page.drag(page.pixel(10, before.bottom()), page.pixel(10, before.bottom() + before.height()));
    QVERIFY(page.isAt(
        *text, QRectF(before.left() - before.width() / 2, before.top(), 2 * before.width(), 2 * before.height())));
  }

  void arrowKeysNudge_data() {
    Rows<Qt::Key, bool, QPointF> row;
    row("right by a millimetre", Qt::Key_Right, false, QPointF(0.1, 0));
    row("up is up on the page", Qt::Key_Up, false, QPointF(0, 0.1));
    row("down ten times as far with Shift", Qt::Key_Down, true, QPointF(0, -1));
  }
  void arrowKeysNudge() {
    auto const [key, shift, by] = fetched<Qt::Key, bool, QPointF>();
    Page page;
    page.click(page.pixel(4, 5));
    page.key(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(page.place(*page.left), QRectF(2, 4, 4, 3).translated(by));
    QCOMPARE(page.place(*page.right), QRectF(10, 4, 4, 3));
  }

  void escapePutsEverythingBack_data() {
    Rows<QPointF> row;
    row("a move", QPointF(4, 5));
    row("a resize", QPointF(6, 7));
    row("a rubber band", QPointF(8, 9));
    row("a move of what the press selected", QPointF(12, 5));
  }
  void escapePutsEverythingBack() {
    auto const [press] = fetched<QPointF>();
    Page page;
    page.click(page.pixel(4, 5));
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    page.mouse(QEvent::MouseButtonPress, page.pixel(press.x(), press.y()));
    page.mouse(QEvent::MouseMove, page.pixel(16, 20));
    page.key(Qt::Key_Escape);
    page.mouse(QEvent::MouseMove, page.pixel(17, 20));
    page.mouse(QEvent::MouseButtonRelease, page.pixel(17, 20));
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
    QCOMPARE(page.selected(), QList<int>{page.left->GetHandle()});
    QVERIFY(!page.bench.session().document().GetOperationStack()->CanUndo());
  }

  // What the mouse is near, and where what it drags comes to lie; the page is 21 × 29.7 cm.
  void aDragIsDrawnToLines_data() {
    Rows<QPointF, QPointF, QPointF> row;
    row("the left edge of another element", QPointF(2, 4), QPointF(9.9, 9), QPointF(10, 9));
    row("the top of another one with its own top", QPointF(2, 4), QPointF(2.7, 4.1), QPointF(2.7, 4));
    row("the middle of the page", QPointF(2, 4), QPointF(8.6, 9), QPointF(8.5, 9));
    row("a margin", QPointF(2, 4), QPointF(1.6, 9), QPointF(1.5, 9));
    row("a guide", QPointF(2, 4), QPointF(3.4, 25.05), QPointF(3.5, 25.05));
    row("a gap as wide as the next one", QPointF(10, 4), QPointF(9.02, 4.6), QPointF(9, 4.6));
    row("nothing that is farther away", QPointF(2, 4), QPointF(3, 8.5), QPointF(3, 8.5));
  }
  void aDragIsDrawnToLines() {
    auto const [from, near, expected] = fetched<QPointF, QPointF, QPointF>();
    Page page;
    page.view().setSnaps(true);
    page.container().DeleteElement(page.frame);
    page.set("margins/left", 1.5);
    page.set("verticalGuides", QJsonArray{3.5});
    page.add<RectangleElement>(16, 4, 20, 7);
    auto const element = from.x() == 2 ? page.left : page.right;
    if (from.x() == 10) page.add<RectangleElement>(13, 25, 16, 26);  // elsewhere, so it counts for no gap
    auto const drag = [&, from = from, near = near](Qt::KeyboardModifiers keys) {
      page.drag(page.pixel(from.x() + 2, from.y() + 1), page.pixel(near.x() + 2, near.y() + 1), keys);
      QPointF const place = page.place(*element).topLeft();
      page.run("Host_Undo");
      return place;
    };
    QPointF const snapped = drag(Qt::NoModifier), free = drag(Qt::AltModifier);
    auto const isAt = [&](QPointF const& a, QPointF const& b, double slack) {
      return std::abs(a.x() - b.x()) < slack && std::abs(a.y() - b.y()) < slack;
    };
    double const pixel = 1 / page.layout()->GetDisplayTransformation()->ToDevice().m11();
    QVERIFY2(isAt(snapped, expected, 1.01 * pixel), qPrintable(QString("%1 %2").arg(snapped.x()).arg(snapped.y())));
    if (expected.x() != near.x()) QVERIFY(snapped.x() == expected.x());
    QVERIFY(isAt(free, near, 1.01 * pixel));
  }

  void theSelectionIsTurnedByItsHandle() {
    Page page;
    auto const line = make<SysCarto::LineElement>();
    line->setShape(make<SysGeometry::Polyline>(QVector<QPointF>{{4, 26}, {8, 26}}));
    auto const text = make<SysCarto::TextElement>();
    text->setText("N");
    text->setPosition(6, 27);
    page.container().AddElement(line);
    page.container().AddElement(text);
    for (auto const& element : QList<_ptr_t<SysCarto::Element>>{line, text}) page.container().SelectElement(element);
    QRectF const box = SelectionHandles(*page.layout()).boundsCm();
    QPoint const handle = page.pixel(box.center().x(), box.bottom()) - QPoint(0, 24);
    QPoint const right = page.pixel(box.center().x() + 3, box.center().y() + 0.2);
    page.drag(handle, right, Qt::ShiftModifier);  // by 90 degrees to the right, as Shift rounds it
    auto const turned = ptr_cast<SysCarto::TextElement>(page.now(*text));
    QCOMPARE(turned->angle(), -90.0);
    QRectF const upright = page.place(*line);
    QVERIFY(std::abs(upright.width()) < 1e-9 && std::abs(upright.height() - 4) < 1e-9);
    QVERIFY(std::abs(upright.center().y() - box.center().y()) < 1e-9);
    page.click(page.pixel(4, 5));  // a rectangle stands upright and has no such handle
    QVERIFY(SelectionHandles(*page.layout()).at(page.pixel(4, 7) - QPoint(0, 24)).isNone());
  }

  void verticesAreMovedAddedAndDeleted() {
    Page page;
    auto const polygon = make<SysCarto::PolygonElement>();
    polygon->setShape(make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{{{3, 25}, {7, 25}, {7, 28}, {3, 25}}}));
    page.container().AddElement(polygon);
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    auto const ring = [&] {
      return ptr_cast<SysCarto::PolygonElement>(page.now(*polygon))->shape()->GetRings().first();
    };
    page.mouse(QEvent::MouseButtonDblClick, page.pixel(6, 25.5));
    page.mouse(QEvent::MouseButtonRelease, page.pixel(6, 25.5));
    page.drag(page.pixel(3, 25), page.pixel(2, 26));
    QCOMPARE(ring().size(), 3);
    QVERIFY(std::abs(ring().first().x() - 2) < 0.06 && std::abs(ring().first().y() - 26) < 0.06);
    page.drag(page.pixel(7, 26.5), page.pixel(9, 26));
    QCOMPARE(ring().size(), 4);
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Delete);
    page.key(Qt::Key_Delete);  // three are the fewest
    QCOMPARE(ring().size(), 3);
    page.key(Qt::Key_Escape);
    QVERIFY(page.run("Host_Edit"));
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Insert);
    QCOMPARE(ring().size(), 4);
    for (int i = 0; i < 4; ++i) page.run("Host_Undo");
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
    QCOMPARE(page.selected(), QList<int>{polygon->GetHandle()});
  }

  void guidesArePulledAndLeaveThePage() {
    Page page;
    page.set("verticalGuides", QJsonArray{3.5});
    page.set("horizontalGuides", QJsonArray{9});
    auto const guides = [&](char const* field) {
      return QJsonDocument::fromJson(MapDocumentHost::text(page.bench.session().document()))
          .object()
          .value("page")
          .toObject()
          .value(QLatin1String(field));
    };
    page.drag(page.pixel(3.5, 25), page.pixel(5, 25));
    page.set("grid", 0.5);
    page.layout()->GetPage()->SetOrientation(2);  // no step, and no step takes it back
    for (char const* const way : {"Host_Undo", "Host_Undo", "Host_Redo"}) page.run(way);
    QCOMPARE(page.layout()->GetPage()->GetOrientation(), short(2));
    page.layout()->GetPage()->SetOrientation(1);
    QVERIFY(std::abs(guides("verticalGuides").toArray()[0].toDouble() - 5) < 0.06);
    page.view().setSnaps(true);
    page.drag(page.pixel(18, 9), page.pixel(18, 9.2));  // not drawn to where it was
    QCOMPARE(guides("horizontalGuides").toArray()[0].toDouble(), 9.2);
    page.run("Host_Undo");
    page.view().setSnaps(false);
    page.drag(page.pixel(18, 9), page.pixel(18, -0.5));
    QVERIFY(guides("horizontalGuides").isUndefined());
    page.run("Host_Guides");
    page.drag(page.pixel(5, 25), page.pixel(7, 25));  // what is hidden is not hit
    page.run("Host_Guides");
    QVERIFY(std::abs(guides("verticalGuides").toArray()[0].toDouble() - 5) < 0.06);
    page.run("Host_Undo");
    page.run("Host_Undo");
    QCOMPARE(guides("verticalGuides").toArray()[0].toDouble(), 3.5);
    page.view().setSnaps(true);
    page.drag(page.pixel(3.5, 25), page.pixel(7.53, 25));
    QCOMPARE(guides("verticalGuides").toArray()[0].toDouble(), 7.5);
  }

  void aLockedFrameResistsAll() {
    Page page;
    QByteArray const place = MapDocumentHost::text(page.bench.session().document());
    page.frame->SetLocked(true);
    page.click(page.pixel(8, 18));
    page.drag(page.pixel(1, 11), page.pixel(15, 25));
    QCOMPARE(page.selected(), QList<int>{});
    QVERIFY(page.run("Host_SelectAll"));
    QVERIFY(!page.selected().contains(page.frame->GetHandle()));

    page.container().UnselectAllElements();
    page.container().SelectElement(page.frame);  // a command may have selected it
    page.drag(page.pixel(8, 18), page.pixel(9, 19));
    page.container().SelectElement(page.frame);
    page.key(Qt::Key_Left);
    QVERIFY(!page.run("Host_Delete"));
    page.frame->SetLocked(false);
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == place);
  }

  void aHandThatTremblesMovesNothing() {
    Page page;
    page.drag(page.pixel(4, 5), page.pixel(4, 5) + QPoint(2, -2));
    QCOMPARE(page.place(*page.left), QRectF(2, 4, 4, 3));
    QVERIFY(!page.bench.session().document().GetOperationStack()->CanUndo());
  }

private:
  struct Page : WorkbenchPage {
    Page() { view().setSnaps(false); }
    void set(QString const& field, QJsonValue const& value) {
      QStringList warnings;
      auto const& document = bench.session().document();
      QString const problem = SysCarto::Editable::set(
          document, {SysCarto::Editable::page(document)}, field.split('/'), [&](QJsonValue const&) { return value; },
          warnings);
      if (!problem.isEmpty()) qFatal("%s", qPrintable(problem));
    }
    _ptr_t<RectangleElement> left = add<RectangleElement>(2, 4, 6, 7);
    _ptr_t<RectangleElement> right = add<RectangleElement>(10, 4, 14, 7);
    _ptr_t<MapFrameElement> frame = add<MapFrameElement>(2, 12, 14, 24);
    QList<int> selected() {
      QList<int> handles;
      for (auto const& element : container().GetSelectedElements()) handles << element->GetHandle();
      return handles;
    }
    bool isAt(SysCarto::Element const& element, QRectF const& expected) {
      return isAbout(place(element), expected, 1 / layout()->GetDisplayTransformation()->ToDevice().m11());
    }
  };
};

QTEST_MAIN(GesturesTest)
#include "tst_gestures.moc"
