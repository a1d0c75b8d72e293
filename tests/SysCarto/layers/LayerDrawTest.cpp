#include "LayerFixture.h"
#include "Rows.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <QPainter>
#include <QtTest>

using namespace SysCarto;
using namespace SysDisplay;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int widthPx = 620, heightPx = 430;

_ptr_t<SimpleLineSymbol> line(SimpleLineStyle style, double width, QColor const& color) {
  auto const symbol = make<SimpleLineSymbol>();
  symbol->SetStyle(style);
  symbol->SetWidth(width);
  symbol->SetColor(color);
  return symbol;
}

_ptr_t<Symbol> fill(SimpleFillStyle style, _ptr_t<LineSymbol> const& outline) {
  auto const symbol = make<SimpleFillSymbol>();
  symbol->SetStyle(style);
  symbol->SetColor(QColor(60, 120, 60, 180));
  symbol->SetOutlineSymbol(outline);
  return symbol;
}

_ptr_t<Symbol> marker() {
  auto const symbol = make<SimpleMarkerSymbol>();
  symbol->SetSize(7);
  symbol->setColor(QColor(200, 0, 0, 160));
  return symbol;
}

// One rectangle of the picture with a transformation of its own, as the export draws it.
QImage drawn(Layer& layer, Box const& box, QRect const& tile) {
  double const pixel = (box.xmax - box.xmin) / widthPx;
  double const xmin = box.xmin + tile.x() * pixel, ymax = box.ymax - tile.y() * pixel;
  QImage image(tile.size(), QImage::Format_RGBA8888_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  layer.Draw(painter, shown({xmin, ymax - tile.height() * pixel, xmin + tile.width() * pixel, ymax}, tile.size(), 2.1),
             1, nullptr);
  return image;
}

int differences(QImage const& a, QImage const& b) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
  return count;
}

}  // namespace

class LayerDrawTest : public QObject {
  Q_OBJECT

private slots:
  void tilesMakeTheWholePicture_data() {
    Rows<QString, QString, double, _ptr_t<Symbol>> row;
    auto const thin = line(SimpleLineStyle::Solid, 0.6, QColor(90, 50, 20));
    row("countries with outlines", "countries", "EPSG:8857", 1, fill(SimpleFillStyle::Solid, thin));
    row("a detail of them", "countries", "EPSG:8857", 0.03, fill(SimpleFillStyle::Solid, thin));
    row("cut in the Atlantic, dashed and hatched", "countries", "+proj=eqearth +lon_0=150 +datum=WGS84", 1,
        fill(SimpleFillStyle::DiagonalCross, line(SimpleLineStyle::DashDot, 1.2, QColor(0, 0, 160, 128))));
    row("seen from above", "countries", "+proj=ortho +lat_0=40 +lon_0=10 +datum=WGS84", 1,
        fill(SimpleFillStyle::Solid, thin));
    row("borders alone", "countries", "EPSG:3413", 0.2, line(SimpleLineStyle::Dash, 1.5, QColor(0, 80, 160, 128)));
    row("cities", "cities", "EPSG:8857", 0.3, marker());
  }
  void tilesMakeTheWholePicture() {
    auto const [layer, system, scale, symbol] = fetched<QString, QString, double, _ptr_t<Symbol>>();
    auto const data = opened({sample("world.gpkg"), layer, {}, {}}, system, symbol);
    QCOMPARE(data.error, QString());
    Box const& all = data.features().box();
    double const x = all.xmin + 0.52 * (all.xmax - all.xmin), y = all.ymin + 0.7 * (all.ymax - all.ymin);
    double const width = (all.xmax - all.xmin) * scale * 0.9;
    Box const box{x - width / 2, y - width / 2 * heightPx / widthPx, x + width / 2, y + width / 2 * heightPx / widthPx};
    QRect const page(0, 0, widthPx, heightPx);
    QImage const whole = drawn(*data.layer, box, page);
    QImage blank = whole;
    blank.fill(Qt::white);
    QVERIFY(differences(whole, blank) > 1000);
    for (int const tilePx : {128, 173}) {
      // Another layer object: the lines must not depend on which tile came first.
      auto const again = opened({sample("world.gpkg"), layer, {}, {}}, system, symbol);
      QImage tiled(page.size(), whole.format());
      QPainter painter(&tiled);
      painter.setCompositionMode(QPainter::CompositionMode_Source);
      for (int top = 0; top < heightPx; top += tilePx)
        for (int left = 0; left < widthPx; left += tilePx) {
          QRect const tile = QRect(left, top, tilePx, tilePx) & page;
          painter.drawImage(tile.topLeft(), drawn(*again.layer, box, tile));
        }
      painter.end();
      QCOMPARE(differences(whole, tiled), 0);
    }
  }

  void whatMustDrawNothingDrawsNothing_data() {
    Rows<int, bool, bool> row;
    row("features are drawn in phase 1", 1, false, true);
    row("and in no other", 8, false, false);
    row("nor after a cancellation", 1, true, false);
  }
  void whatMustDrawNothingDrawsNothing() {
    auto const [phase, cancelled, draws] = fetched<int, bool, bool>();
    auto const cities = opened({sample("world.gpkg"), "cities", {}, {}}, "EPSG:8857", marker());
    auto const cancel = make<TrackerCancel>();
    if (cancelled) cancel->Cancel();
    QImage image(200, 100, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::white);
    QImage const blank = image;
    QPainter painter(&image);
    cities.layer->Draw(painter, shown(cities.features().box(), image.size()), phase, cancel);
    painter.end();
    QCOMPARE(differences(image, blank) > 0, draws);
  }

  // Neighbours share their border, so no background shows between them when both are filled.
  void neighboursLeaveNoGapWhenThinned() {
    QTemporaryDir folder;
    QByteArray border, back;
    for (int i = 0; i <= 4000; ++i) {
      QByteArray const place = "[" + QByteArray::number(5 + 0.002 * ((i * 7919) % 97) / 97) + "," +
                               QByteArray::number(i * 10.0 / 4000, 'f', 6) + "]";
      border += "," + place;
      back.prepend("," + place);
    }
    QByteArray const left = "[[0,0]" + border.mid(0) + ",[0,10],[0,0]]", right = "[[10,0],[10,10]" + back + ",[10,0]]";
    QString const file = written(folder, "a.geojson",
                                 geoJson(R"({"type":"MultiPolygon","coordinates":[[)" + left + "],[" + right + "]]}"));
    auto const symbol = make<SimpleFillSymbol>();
    symbol->SetColor(Qt::black);
    auto const layer = opened({file, {}, {}, {}}, "", symbol);
    QImage image(100, 100, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    layer.layer->Draw(painter, shown({0, 0, 10, 10}, image.size()), 1, nullptr);
    painter.end();
    for (int y = 1; y < 99; ++y)
      for (int x = 1; x < 99; ++x) QCOMPARE(qGray(image.pixel(x, y)), 0);
  }
};

QTEST_MAIN(LayerDrawTest)
#include "LayerDrawTest.moc"
