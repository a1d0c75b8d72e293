#include "Pictures.h"
#include "Symbols.h"
#include "Elements.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/PictureElement.h"

#include <cmath>

using namespace SysCarto;
using SysGeometry::Envelope;
using SysGeometry::Point;

namespace {

constexpr double cmPerPoint = 2.54 / 72;

// An A4 page at 96 pixels an inch.
Transformation pageView(double dpi = 96) {
  QSize const size(qRound(21 / 2.54 * dpi), qRound(29.7 / 2.54 * dpi));
  auto const transformation = Sheet{Envelope(0, 0, 21, 29.7), size}.transformation();
  transformation->SetPageScale(transformation->ToDevice().m11() * 2.54 / 96);
  return transformation;
}

_ptr_t<Element> lineFrom(QVector<QPointF> points) {
  auto const line = make<LineElement>();
  line->setShape(make<SysGeometry::Polyline>(points));
  return line;
}

_ptr_t<Element> text(QString const& content, double x, double y, double haloPt = 0) {
  auto const element = make<TextElement>();
  element->setText(content);
  element->setPosition(x, y);
  element->setSymbol(make<SysDisplay::TextSymbol>(letters(10, haloPt)));
  return element;
}

_ptr_t<Element> groupOf(QList<_ptr_t<Element>> const& members) {
  auto const group = make<GroupElement>();
  for (auto const& member : members) group->AddElement(member);
  return group;
}

}  // namespace

class ElementTest : public QObject {
  Q_OBJECT

private slots:
  void movesScalesAndFits_data() {
    // moved: by (1, -2); scaled: about (2, 3) by 2 and 0.5; fitted: into (10, 10) to (14, 12)
    Rows<_ptr_t<Element>, QVector<double>, QVector<double>, QVector<double>> row;
    using Sides = QVector<double>;
    Sides const moved{3, 1, 7, 3}, scaled{2, 3, 10, 4}, fitted{10, 10, 14, 12};
    row("rectangle", madeIn<RectangleElement>(2, 3, 6, 5), moved, scaled, fitted);
    row("ellipse", madeIn<EllipseElement>(2, 3, 6, 5), moved, scaled, fitted);
    row("picture", madeIn<PictureElement>(2, 3, 6, 5), moved, scaled, fitted);
    row("data frame", madeIn<MapFrameElement>(2, 3, 6, 5), moved, scaled, fitted);
    row("surround", madeIn<MapSurroundFrame>(2, 3, 6, 5), moved, scaled, fitted);
    row("line", lineFrom({{2, 5}, {6, 3}}), moved, scaled, fitted);
    row("group", groupOf({madeIn<RectangleElement>(2, 3, 3, 4), lineFrom({{3, 3}, {6, 5}})}), moved, scaled, fitted);
    row("a level line stays level", lineFrom({{2, 3}, {6, 3}}), {3, 1, 7, 1}, {2, 3, 10, 3}, {10, 11, 14, 11});
    auto const marker = make<MarkerElement>();
    marker->setShape(make<Point>(4.0, 5.0, 0.0));
    row("a marker only moves", _ptr_t<Element>(marker), {5, 3, 5, 3}, {6, 4, 6, 4}, {12, 11, 12, 11});
  }
  void movesScalesAndFits() {
    auto const [element, moved, scaled, fitted] =
        fetched<_ptr_t<Element>, QVector<double>, QVector<double>, QVector<double>>();
    QVector<double> const before = sidesOf(*element->GetEnvelope());
    auto const changed = [&element = element](auto const& change) {
      auto const copy = element->Clone();
      change(*copy);
      return sidesOf(*copy->GetEnvelope());
    };
    QCOMPARE(changed([](Element& e) { e.Move(1, -2); }), moved);
    QCOMPARE(changed([](Element& e) { e.Scale(make<Point>(2.0, 3.0, 0.0), 2, 0.5); }), scaled);
    QCOMPARE(changed([](Element& e) { e.SetGeometry(make<Envelope>(14.0, 12.0, 10.0, 10.0)); }), fitted);
    QCOMPARE(changed([](Element& e) { e.SetGeometry(make<Envelope>()); }), before);
    QCOMPARE(sidesOf(*element->GetEnvelope()), before);  // clones are independent
  }

  void nothingIsMovedBeyondWhatCanBeSaved() {
    auto const frame = madeIn<MapSurroundFrame>(-10000, 3, -9996, 5);
    frame->Move(-1, -2);
    QCOMPARE(sidesOf(*frame->GetEnvelope()), (QVector<double>{-10000, 1, -9996, 3}));
    frame->Move(1, 1e5);
    QCOMPARE(sidesOf(*frame->GetEnvelope()), (QVector<double>{-9999, 9998, -9995, 10000}));
    auto const line = make<LineElement>();
    line->setShape(make<SysGeometry::Polyline>(QVector<QPointF>{{1, 2}, {1e12, 3}}));
    line->Move(1, 1);
    QCOMPARE(line->shape()->GetPoints(), (QVector<QPointF>{{1, 3}, {1e12, 4}}));
    line->Scale(make<Point>(0.0, 0.0, 0.0), -2, 1e13);
    QCOMPARE(sidesOf(*line->GetEnvelope()), (QVector<double>{-1e12, 1e12, -2, 1e12}));
    auto const text = make<TextElement>();
    text->Move(-1e13, 5);
    QCOMPARE(sidesOf(*text->GetEnvelope()).mid(0, 2), (QVector<double>{-1e12, 5}));
  }

  void boundaryCoversWhatSymbolsAdd_data() {
    // left: in points beyond the rectangle (2, 3) to (6, 5)
    Rows<_ptr_t<Element>, double, double> row;
    auto const border = make<SymbolBorder>();
    border->SetGap(4);
    auto const framed = make<MapFrameElement>(), shaded = make<MapFrameElement>(), bare = make<MapFrameElement>();
    framed->SetBorder(border);
    for (auto const& frame : {shaded, bare}) frame->SetBorder(nullptr);
    auto const shadow = make<SymbolShadow>();
    shadow->SetOffset(-7, 5);
    shaded->SetShadow(shadow);
    row("border and its gap", in(framed, 2, 3, 6, 5), 4.5, 4.5);
    row("shadow to the upper left", in(shaded, 2, 3, 6, 5), 7.0, 0.0);
    row("no part", in(bare, 2, 3, 6, 5), 0.0, 0.0);
    row("outline of half a point", madeIn<RectangleElement>(2, 3, 6, 5), 0.25, 0.25);
  }
  void boundaryCoversWhatSymbolsAdd() {
    auto const [element, left, bottom] = fetched<_ptr_t<Element>, double, double>();
    for (double dpi : {96.0, 300.0}) {
      auto const boundary = element->GetBoundary(pageView(dpi))->GetEnvelope();
      double const pixel = 2.54 / dpi;
      QVERIFY(std::abs(boundary->GetXMin() - (2 - left * cmPerPoint)) <= pixel);
      QVERIFY(std::abs(boundary->GetYMin() - (3 - bottom * cmPerPoint)) <= pixel);
      QVERIFY(boundary->GetXMin() <= 2 - left * cmPerPoint + 1e-3);
    }
  }

  void textIsScaledWholeByTheFirstFactorAlone() {
    auto const element = ptr_cast<TextElement>(text("Plan", 4, 5, 3));
    auto format = element->symbol()->format();
    format.letterSpacing = 2;
    format.horizontal = SysDisplay::HorizontalAlignment::Center;
    element->setSymbol(make<SysDisplay::TextSymbol>(format));
    auto const shared = element->symbol();
    auto const before = element->GetBoundary(pageView())->GetEnvelope();
    element->Scale(make<Point>(before->GetXMin(), before->GetYMin(), 0.0), 2, 10);
    QCOMPARE(shared->format().size, 10.0);  // of other elements
    QVector<double> const after = sidesOf(*element->GetBoundary(pageView()));
    QVector<double> const doubled = {before->GetXMin(), before->GetYMin(), 2 * before->GetXMax() - before->GetXMin(),
                                     2 * before->GetYMax() - before->GetYMin()};
    for (int i = 0; i < 4; ++i) QVERIFY(std::abs(after[i] - doubled[i]) < 1e-5);
    element->Scale(make<Point>(0.0, 0.0, 0.0), 1e6, 1);
    QVERIFY(element->symbol()->format().size <= 1000);  // what a document can store
    QVERIFY(element->symbol()->format().size > 999);
  }

  void textInAGroupKeepsItsPlace() {
    auto const group = groupOf({madeIn<RectangleElement>(0, 0, 10, 10), text("Plan", 4, 5)});
    group->Scale(make<Point>(0.0, 0.0, 0.0), 0.5, 2);
    auto const place = ptr_cast<GroupElement>(group)->GetElements().at(1)->GetGeometry();
    QCOMPARE(sidesOf(*place), (QVector<double>{2, 10, 2, 10}));
  }

  void textHasOneSizeOnPaperAndItsHaloIsNotItsOwn() {
    auto const plain = text("Plan", 4, 5), haloed = text("Plan", 4, 5, 3);
    QCOMPARE(sidesOf(*plain->GetEnvelope()), sidesOf(*haloed->GetEnvelope()));
    QCOMPARE(sidesOf(*plain->GetBoundary(pageView(96))), sidesOf(*plain->GetBoundary(pageView(600))));
    auto const wider = haloed->GetBoundary(pageView())->GetEnvelope();
    QVERIFY(std::abs(wider->GetWidth() - plain->GetEnvelope()->GetWidth() - 6 * cmPerPoint) < 1e-6);
    haloed->SetGeometry(make<Envelope>(10.0, 10.0, 12.0, 11.0));
    auto const centre = haloed->GetEnvelope()->GetAnchorPoint();
    QVERIFY(std::abs(centre->GetX() - 11) < 1e-9 && std::abs(centre->GetY() - 10.5) < 1e-9);
  }

  void turnedTextIsAsHighAsItWasWide() {
    auto const level = text("A long line", 4, 5), upright = text("A long line", 4, 5);
    ptr_cast<TextElement>(upright)->setAngle(90);
    auto const lying = level->GetBoundary(pageView())->GetEnvelope();
    auto const standing = upright->GetBoundary(pageView())->GetEnvelope();
    QVERIFY(std::abs(lying->GetWidth() - standing->GetHeight()) < 1e-9);
    QVERIFY(standing->GetYMax() > lying->GetYMax());  // counterclockwise: it runs upwards
  }

  void onlyAFrameOnThePageTellsTheMapItsSize() {
    auto const frame = madeIn<MapFrameElement>(0.0, 0.0, 10.0, 10.0);
    ElementContainer page;
    page.AddElement(frame);
    auto const aspect = [&] {
      QRect const device = frame->GetMap()->GetDisplayTransformation()->GetDeviceFrame();
      return double(device.width()) / device.height();
    };
    QCOMPARE(aspect(), 1.0);
    auto const copy = frame->Clone();
    copy->SetGeometry(make<Envelope>(0.0, 0.0, 20.0, 10.0));
    QCOMPARE(aspect(), 1.0);
    page.ReplaceElement(frame->GetHandle(), copy);
    QCOMPARE(aspect(), 2.0);
  }

  void cloneOfASurroundFrameHasASurroundOfItsOwn() {
    auto const map = make<Map>();
    auto const frame = surroundOf<ScaleText>(map);
    auto const copy = in(ptr_cast<MapSurroundFrame>(frame->Clone()), 1.0, 2.0, 3.0, 4.0);
    QVERIFY(copy->GetMapSurround() != frame->GetMapSurround());
    QVERIFY(copy->GetMapSurround()->GetMap() == map);
    QCOMPARE(copy->GetMapSurround()->rectangle().GetXMax(), 3.0);
    QCOMPARE(frame->GetMapSurround()->rectangle().GetXMax(), 1.0);
  }
};

QTEST_MAIN(ElementTest)
#include "ElementTest.moc"
