#include "Files.h"
#include "LayerFixture.h"
#include "Symbols.h"
#include "Elements.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/ElementHit.h"
#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/maps/MapHost.h"

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

// A page whose pixels have no short size in centimetres.
constexpr double pageWidthCm = 7.3, pageHeightCm = 5.9;
constexpr int dpi = 251;
constexpr QSize sizePx(721, 583);
static_assert(sizePx == QSize(int(pageWidthCm / 2.54 * dpi), int(pageHeightCm / 2.54 * dpi)));
Sheet const sheet{Envelope(0, 0, pageWidthCm, pageHeightCm), sizePx, dpi / 96.0};

// Drawn through a container, so that what it leaves out at a tile's edge shows, too.
Scene sceneOf(QList<_ptr_t<Element>> const& elements) {
  auto const container = std::make_shared<ElementContainer>();
  container->AddElements(elements);
  return [container](QPainter& painter, Transformation const& transformation) {
    painter.setRenderHint(QPainter::Antialiasing);
    container->Draw(painter, transformation, 1, nullptr);
  };
}

_ptr_t<MapFrameElement> framed(double rounding) {
  auto const border = make<SymbolBorder>();
  auto const background = make<SymbolBackground>();
  auto const shadow = make<SymbolShadow>();
  border->GetLineSymbol()->SetWidth(3.3);
  border->SetGap(2);
  border->SetCornerRounding(rounding);
  background->GetFillSymbol()->SetColor(QColor(220, 240, 200));
  background->SetCornerRounding(rounding);
  shadow->SetOffset(6, -6);
  shadow->SetCornerRounding(rounding);
  auto const frame = make<MapFrameElement>();
  frame->SetBorder(border);
  frame->SetBackGround(background);
  frame->SetShadow(shadow);
  return in(frame, 0.61, 0.73, 6.57, 5.01);
}

_ptr_t<MapFrameElement> framedMap() {
  auto const frame = framed(0);
  ElementContainer page;  // which tells the map its size
  page.AddElement(frame);
  IElementContainer* const graphics = frame->GetMap()->GetGraphicsContainer();
  for (int i = 0; i < 12; ++i) {
    graphics->AddElement(madeIn<EllipseElement>(i * 170, i * 120, i * 170 + 300, i * 120 + 200));
    auto const label = make<TextElement>();
    label->setText(QString("Label %1").arg(i));
    label->setPosition(i * 170, 1400 - i * 100);
    label->setAngle(i * 9);
    graphics->AddElement(label);
  }
  return frame;
}

// Two rectangles of one colour that cover each other in the middle of the map.
_ptr_t<Layer> patches(QColor const& color) {
  auto const rectangle = [](double left, double right) {
    QByteArray const x1 = QByteArray::number(left), x2 = QByteArray::number(right);
    return feature(R"({"type":"Polygon","coordinates":[[[)" + x1 + ",0],[" + x2 + ",0],[" + x2 + ",1500],[" + x1 +
                       ",1500],[" + x1 + ",0]]]}",
                   "A");
  };
  auto const symbol = fill(color, SysDisplay::SimpleFillStyle::Solid, nullptr);
  return openedJson(collection({rectangle(200.3, 1300), rectangle(700, 1800.7)}), "", symbol).layer;
}

_ptr_t<MapFrameElement> mapOfPatches(LayerEffects const& above) {
  auto const frame = framed(0);
  ElementContainer page;
  page.AddElement(frame);
  auto const ground = patches(QColor(255, 204, 51)), covering = patches(QColor(0, 102, 204));
  LayerHost::setEffects(*covering, above);
  frame->GetMap()->AddLayer(ground);
  frame->GetMap()->AddLayer(covering);
  return frame;
}

// What is drawn on a map that is turned in its frame, a pattern included.
_ptr_t<MapFrameElement> turnedMap(_ptr_t<PictureElement> const& picture) {
  auto const frame = framedMap();
  auto const hatched = fill(QColor(0, 102, 204), SysDisplay::SimpleFillStyle::Cross, pen(2.5));
  frame->GetMap()->AddLayer(
      openedJson(geoJson(R"({"type":"Polygon","coordinates":[[[200,100],[1700,300],[900,1500],[200,100]]]})", "A"), "",
                 hatched)
          .layer);
  frame->GetMap()->GetGraphicsContainer()->AddElement(in(picture, 800, 500, 1400, 900));
  MapHost::setRotation(*frame->GetMap(), 33);
  return frame;
}

_ptr_t<TextElement> turnedText() {
  auto const text = make<TextElement>();
  text->setText("Across the\ntile's edges");
  text->setSymbol(make<SysDisplay::TextSymbol>(letters(31, 2)));
  text->setPosition(0.4, 2.2);
  text->setAngle(17);
  return text;
}

QImage photo(QSize const& size) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x)
      image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x / 9 + y / 9) % 2 * 255));
  return image;
}

}  // namespace

class LayoutTilingTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QVERIFY(photo(QSize(1500, 1100)).save(path("large.png")));
    QVERIFY(photo(QSize(90, 70)).save(path("small.jpg")));
    put(path("drawing.svg"),
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 30'><circle cx='20' cy='15' r='13' fill='teal'/>"
        "<path d='M0 0 L40 30 M0 30 L40 0' stroke='red' stroke-width='1.3'/></svg>");
    put(path("outside.svg"), "<svg xmlns='http://www.w3.org/2000/svg'><image href='http://example.com/a.png'/></svg>");
    put(path("text.png"), "not a picture");
    QImage const wide(20000, 1, QImage::Format_Mono);
    QVERIFY(wide.save(path("100%1 wide.png")));
  }

  void tilesDoNotShow_data() {
    Rows<Scene> row;
    row("border, background and shadow", sceneOf({framed(0)}));
    row("rounded corners", sceneOf({framed(60)}));
    row("map with graphics and labels", sceneOf({framedMap()}));
    row("map that is turned in its frame", sceneOf({turnedMap(picture("small.jpg"))}));
    auto const group = make<GroupElement>();
    group->AddElement(madeIn<RectangleElement>(0.5, 0.5, 6.9, 2.47));
    group->AddElement(turnedText());
    row("group", sceneOf({group}));
    row("half a layer", sceneOf({mapOfPatches({37.5, LayerBlend::Normal})}));
    row("a layer that darkens", sceneOf({mapOfPatches({100, LayerBlend::Multiply})}));
    row("a layer that lightens by half", sceneOf({mapOfPatches({50, LayerBlend::Screen})}));
    row("picture that is made smaller", sceneOf({picture("large.png")}));
    row("picture that is made larger", sceneOf({picture("small.jpg")}));
    row("SVG picture", sceneOf({picture("drawing.svg")}));
    row("picture that is not there", sceneOf({picture("missing.png")}));
    row("picture turned and made smaller", sceneOf({picture("large.png", 31)}));
    row("picture turned and made larger", sceneOf({picture("small.jpg", -140)}));
    row("SVG picture, turned", sceneOf({picture("drawing.svg", 17)}));
    row("turned picture that is not there", sceneOf({picture("missing.png", 60)}));
  }
  void tilesDoNotShow() {
    auto const [scene] = fetched<Scene>();
    QImage const whole = sheet.drawn(scene);
    QVERIFY(ink(whole).pixels > 2000);
    for (int side : {512, 64}) QCOMPARE(difference(whole, sheet.drawnInTiles(scene, side)).pixels, 0);
  }

  void aLayerLiesOverOthersAsAWhole_data() {
    Rows<LayerEffects, QColor> row;
    row("covering", LayerEffects{}, QColor(0, 102, 204));
    row("half", LayerEffects{50, LayerBlend::Normal}, QColor(127, 153, 128));
    row("darkening", LayerEffects{100, LayerBlend::Multiply}, QColor(0, 82, 41));
    row("lightening", LayerEffects{100, LayerBlend::Screen}, QColor(255, 224, 214));
    row("lightening by half", LayerEffects{50, LayerBlend::Screen}, QColor(255, 214, 132));
    row("not at all", LayerEffects{0, LayerBlend::Multiply}, QColor(255, 204, 51));
  }
  void aLayerLiesOverOthersAsAWhole() {
    auto const [effects, expected] = fetched<LayerEffects, QColor>();
    QImage const whole = sheet.drawn(sceneOf({mapOfPatches(effects)}));
    for (int x : {200, 360, 520}) {  // one rectangle, both, the other
      QColor const found = whole.pixelColor(x, 300);
      QVERIFY2(std::abs(found.red() - expected.red()) <= 1 && std::abs(found.green() - expected.green()) <= 1 &&
                   std::abs(found.blue() - expected.blue()) <= 1,
               qPrintable(QString("%1 at %2").arg(found.name()).arg(x)));
    }
  }

  void cellsOfAPictureDoNotShow() {
    QImage level(4, 4, QImage::Format_RGB32);
    level.fill(QColor(10, 120, 200));
    QVERIFY(level.save(path("level.png")));
    QImage const whole = sheet.drawn(sceneOf({picture("level.png")}));
    for (int x = 100; x < 600; ++x) QCOMPARE(whole.pixel(x, 300), qRgb(10, 120, 200));
  }

  // Red, with a white corner at the lower left.
  void everyFormatIsDrawnLinkedAndEmbeddedAndTurned_data() {
    Rows<QString, bool> row;
    for (QString const format : {"png", "jpg", "tif", "webp", "svg"})
      for (bool embeds : {false, true}) row(qPrintable(format + (embeds ? ", embedded" : "")), format, embeds);
  }
  void everyFormatIsDrawnLinkedAndEmbeddedAndTurned() {
    auto const [format, embeds] = fetched<QString, bool>();
    QString const file = path("corner." + format);
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(0, 32, 32, 32, Qt::white);
    if (format == "svg")
      put(file,
          "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 2'><path d='M0 0H2V2H1V1H0Z' fill='red'/></svg>");
    else
      QVERIFY(image.save(file, nullptr, 100));
    auto const element = madeIn<PictureElement>(1, 1, 5, 5);
    element->setSource(embeds ? QString() : file, embeds ? embeddedPicture(contentOf(file)) : QString());
    QCOMPARE(element->problem(), QString());
    auto const isRed = [](QColor const& colour) { return colour.red() > 200 && colour.green() < 60; };
    // The corner goes round counterclockwise: from the lower left to the lower right, and so on.
    QVector<QPointF> const corners{{1.5, 1.5}, {4.5, 1.5}, {4.5, 4.5}, {1.5, 4.5}};
    for (int quarter = 0; quarter < 4; ++quarter) {
      element->setAngle(90 * quarter);
      QImage const drawn = sheet.drawn(sceneOf({element}));
      for (int i = 0; i < 4; ++i) {
        QPoint const at = sheet.transformation()->FromMapPoint(corners[i].x(), corners[i].y());
        QCOMPARE(isRed(drawn.pixelColor(at)), i != quarter);
      }
    }
    element->setAngle(45);
    auto const turned = element->GetBoundary(sheet.transformation())->GetEnvelope();
    QVERIFY(std::abs(turned->GetWidth() - 4 * M_SQRT2) < 1e-9);
    QCOMPARE(element->GetEnvelope()->GetWidth(), 4.0);
    auto const hits = [&element = element](double x, double y) {
      return isHit(*element, Envelope(x - 0.01, y - 0.01, x + 0.01, y + 0.01), sheet.transformation());
    };
    QVERIFY(hits(3, 0.4) && hits(3, 3) && !hits(1.1, 1.1));
  }

  void refusesAPictureWithASentence_data() {
    Rows<QString, QString> row;
    row("no file", "missing.png", "no such picture");
    row("a folder", ".", "no such picture");
    row("no picture", "text.png", "neither PNG");
    row("too wide to be decoded", "100%1 wide.png", "100%1 wide.png: the picture has 20000");
    row("an SVG that reaches outside", "outside.svg", "example.com");
  }
  void refusesAPictureWithASentence() {
    auto const [file, says] = fetched<QString, QString>();
    auto const element = picture(file);
    QVERIFY2(element->problem().contains(says), qPrintable(element->problem()));
    QVERIFY(ink(sheet.drawn(sceneOf({element}))).pixels > 1000);
  }

  void pageDrawsItsParts() {
    auto const page = std::make_shared<Page>();
    PageHost::setCustomSize(*page, pageWidthCm, pageHeightCm);
    auto const background = make<SymbolBackground>();
    background->GetFillSymbol()->SetColor(Qt::yellow);
    page->SetBackGround(background);
    page->SetBorder(make<SymbolBorder>());
    Scene const scene = [page](QPainter& painter, Transformation const& transformation) {
      page->DrawBackground(painter, transformation);
      page->DrawBorder(painter, transformation);
    };
    QImage const whole = sheet.drawn(scene);
    QCOMPARE(whole.pixelColor(sizePx.width() / 2, sizePx.height() / 2), QColor(Qt::yellow));
    QCOMPARE(whole.pixelColor(0, sizePx.height() / 2), QColor(Qt::black));
    QCOMPARE(whole.pixelColor(sizePx.width() - 1, sizePx.height() / 2), QColor(Qt::black));
    QCOMPARE(difference(whole, sheet.drawnInTiles(scene, 100)).pixels, 0);
  }

private:
  QString path(QString const& name) const { return folder_.filePath(name); }

  _ptr_t<PictureElement> picture(QString const& name, double angle = 0) const {
    auto const element = madeIn<PictureElement>(0.33, 0.41, 6.87, 5.36);
    element->setPath(path(name));
    element->setAngle(angle);
    return element;
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(LayoutTilingTest)
#include "LayoutTilingTest.moc"
