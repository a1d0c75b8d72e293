#include "LayerFixture.h"

#include "host/SysCarto/layers/raster/RasterLayer.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>

using namespace SysCarto;

namespace {

using Kind = RasterRendererSettings::Kind;
using Stretch = StretchSettings::Kind;
using ValueAt = std::function<double(int column, int row)>;

struct Made {
  QSize size{200, 200};
  std::array<double, 6> place{4300000, 100, 0, 3200000, 0, -100};
  int system = 3035;
  int bands = 1;
  GDALDataType type = GDT_Float32;
  std::optional<double> noData;
};

QString made(QString const& path, Made const& wanted, ValueAt const& value) {
  GDALAllRegister();
  char const* const options[] = {"TILED=YES", "BLOCKXSIZE=64", "BLOCKYSIZE=64", nullptr};
  std::unique_ptr<GDALDataset> const dataset(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
      path.toUtf8(), wanted.size.width(), wanted.size.height(), wanted.bands, wanted.type, options));
  auto place = wanted.place;
  dataset->SetGeoTransform(place.data());
  OGRSpatialReference system;
  system.importFromEPSG(wanted.system);
  dataset->SetSpatialRef(&system);
  if (wanted.noData) dataset->GetRasterBand(1)->SetNoDataValue(*wanted.noData);
  std::vector<double> row(size_t(wanted.size.width()));
  for (int band = 1; band <= wanted.bands; ++band)
    for (int y = 0; y < wanted.size.height(); ++y) {
      for (int x = 0; x < wanted.size.width(); ++x) row[size_t(x)] = value(x, y);
      if (dataset->GetRasterBand(band)->RasterIO(GF_Write, 0, y, wanted.size.width(), 1, row.data(),
                                                 wanted.size.width(), 1, GDT_Float64, 0, 0) != CE_None)
        qFatal("can't write a test raster");
    }
  return path;
}

RasterRendererSettings greys(double low, double high) {
  RasterRendererSettings settings;
  settings.red = settings.green = settings.blue = 1;
  settings.stretch = {Stretch::Range, low, high, 2, 2};
  return settings;
}

Scene drawing(_ptr_t<RasterLayer> const& layer) {
  return [layer](QPainter& painter, Transformation const& transformation) {
    layer->Draw(painter, transformation, 1, nullptr);
  };
}

int grey(QImage const& image, int x, int y) { return qRed(image.pixel(x, y)); }

}  // namespace

class RasterLayerTest : public QObject {
  Q_OBJECT

private slots:
  void whatIsNoRasterOfItsOwnIsRefused_data() {
    Rows<QString, QByteArray, QString> row;
    row("another's pixels", "a.vrt", "<VRTDataset rasterXSize='1' rasterYSize='1'/>", "only refers to other files");
    row("the same by another name", "a.tif", "<VRTDataset rasterXSize='1' rasterYSize='1'/>", "GeoTIFF");
    row("features", "a.geojson", geoJson("null"), "GeoTIFF");
    row("nothing", "a.tif", "", "it is empty");
    row("an address", "/vsicurl/http://127.0.0.1:1/a.tif", "", "virtual");
  }
  void whatIsNoRasterOfItsOwnIsRefused() {
    auto const [name, content, says] = fetched<QString, QByteArray, QString>();
    QTemporaryDir const folder;
    QString const path = name.startsWith('/') ? name : written(folder, name, content);
    GdalErrors const outside;
    RasterLayer layer;
    QString const error = layer.open({path, {}, {}, {}}, "EPSG:3035");
    QVERIFY2(error.contains(says) && error.contains(name.left(20)) && error.endsWith('.'), qPrintable(error));
    QCOMPARE(outside.reason(), QString());
  }

  void aRasterThatCannotBePlacedOrReadSaysSo_data() {
    Rows<QString, QString> row;
    row("no place", "place", "where it lies");
    row("a place that is none", "nonsense", "make no sense");
    row("cut off", "cut", "not whole");
    row("a band that it lacks", "band", "no band 3");
    row("another file's overviews", "overviews", "names another file for its overviews");
    row("the same of its mask", "mask", "names another file for its overviews");
    row("large pieces of many bands", "pieces", "pieces of 128 MB");
  }
  void aRasterThatCannotBePlacedOrReadSaysSo() {
    auto const [what, says] = fetched<QString, QString>();
    QTemporaryDir const folder;
    Made wanted;
    if (what == "nonsense") wanted.place = {1e300, 1, 0, 0, 0, -1};
    if (what == "place") wanted.place = {0, 1, 0, 0, 0, 1};
    QString const path = made(folder.filePath("a.tif"), wanted, [](int x, int) { return x; });
    auto const names = [](QString const& file) {
      std::unique_ptr<GDALDataset> const dataset(GDALDataset::Open(file.toUtf8(), GDAL_OF_UPDATE));
      dataset->SetMetadataItem("OVERVIEW_FILE", "/nowhere/a.vrt", "OVERVIEWS");
    };
    if (what == "overviews") names(path);
    if (what == "mask") names(made(path + ".msk", wanted, [](int, int) { return 1; }));
    if (what == "pieces") {
      char const* const options[] = {"TILED=YES",        "BLOCKXSIZE=4096", "BLOCKYSIZE=4096",
                                     "INTERLEAVE=PIXEL", "SPARSE_OK=TRUE",  nullptr};
      std::unique_ptr<GDALDataset> const dataset(
          GetGDALDriverManager()->GetDriverByName("GTiff")->Create(path.toUtf8(), 8192, 8192, 8, GDT_Byte, options));
      dataset->SetGeoTransform(wanted.place.data());
    }
    if (what == "cut") QVERIFY(QFile::resize(path, QFileInfo(path).size() - 9000));
    RasterLayer layer;
    RasterLook look;
    look.renderer = what == "band" ? RasterRendererSettings() : greys(0, 200);
    layer.setLook(look);
    QString const error = layer.open({path, {}, {}, {}}, "EPSG:3035");
    QVERIFY2(error.contains(says), qPrintable(error));
    QVERIFY(layer.box().isEmpty() && layer.legendClasses().isEmpty());
  }

  // The raster's value is its easting; the same place is looked at in the map.
  void valuesLieWhereTheyBelong_data() {
    Rows<QString, double, double> row;
    row("in the raster's own system", "EPSG:3035", 4310000, 3190000);
    row("in degrees", "EPSG:4326", 9.840470, 51.820142);
    row("on a globe", "+proj=ortho +lat_0=40 +lon_0=20", -696863.97, 1344316.04);
  }
  void valuesLieWhereTheyBelong() {
    auto const [system, x, y] = fetched<QString, double, double>();
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int column, int) { return column; });
    RasterLayer layer;
    RasterLook look;
    look.renderer = greys(0, 200);
    layer.setLook(look);
    QCOMPARE(layer.open({path, {}, {}, {}}, system), QString());
    QVERIFY(layer.box().contains(x, y));
    auto const values = layer.valuesAt({x, y});
    QVERIFY(values.size() == 1 && std::abs(values[0] - 100) <= 1);
    QVERIFY(layer.valuesAt({layer.box().xmax * 1.1, y}).empty());
  }

  void aRampOfValuesIsDrawnAsOne_data() {
    Rows<Resampling, double> row;
    row("bilinear", Resampling::Bilinear, 1.01);
    row("cubic", Resampling::Cubic, 1.01);
    row("the mean", Resampling::Average, 1.01);
    row("the nearest", Resampling::Nearest, 1.6);
  }
  void aRampOfValuesIsDrawnAsOne() {
    auto const [resampling, allowed] = fetched<Resampling, double>();
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int column, int) { return column + 0.5; });
    auto const layer = make<RasterLayer>();
    layer->setLook({greys(0, 255), resampling, {}});
    QCOMPARE(layer->open({path, {}, {}, {}}, "EPSG:3035"), QString());
    for (int const side : {150, 420}) {
      QImage const image = shown({4302000, 3182000, 4318000, 3198000}, {side, side}).drawn(drawing(layer));
      for (int x = 0; x < side; x += 7) {
        double const expected = 20 + (x + 0.5) * 160 / side;
        QVERIFY2(std::abs(grey(image, x, side / 2) - expected) <= allowed, qPrintable(QString::number(x)));
      }
    }
  }

  void tilesAreThePictureOfTheWhole_data() {
    Rows<QString, Kind, double> row;
    row("as it is", "EPSG:3035", Kind::Ramp, 0.0);
    row("turned", "EPSG:3035", Kind::Color, 33.0);
    row("in another projection", "EPSG:3857", Kind::Ramp, 0.0);
    row("shaded in degrees", "EPSG:4326", Kind::Hillshade, 0.0);
    row("slopes, turned", "EPSG:3857", Kind::Slope, -71.0);
  }
  void tilesAreThePictureOfTheWhole() {
    auto const [system, kind, angle] = fetched<QString, Kind, double>();
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int x, int y) { return 500 + x * 7 % 300 + y; });
    auto const layer = make<RasterLayer>();
    RasterLook look;
    look.renderer = greys(0, 1000);
    look.renderer.kind = kind;
    layer->setLook(look);
    QCOMPARE(layer->open({path, {}, {}, {}}, system), QString());
    Box const box = layer->box();
    Scene const scene = [&, turn = angle](QPainter& painter, Transformation const& transformation) {
      SysDisplay::DisplayTransformationHost::setTurn(*transformation, turn,
                                                     {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2});
      layer->Draw(painter, transformation, 1, nullptr);
    };
    Sheet const sheet = shown(box, {420, 420});
    QImage const whole = sheet.drawn(scene);
    QVERIFY(ink(whole).pixels > 50000);
    for (int const side : {97, 256}) {
      auto const found = difference(whole, sheet.drawnInTiles(scene, side));
      QVERIFY2(found.pixels == 0, qPrintable(found.text()));
    }
  }

  // A plane that rises to the east by one in two: Lambert's law says how bright it is.
  void aPlaneIsAsBrightAsTheLightFallsOnIt_data() {
    Rows<QString, double, bool, double> row;
    double const length = std::sqrt(1.25), sine = std::sqrt(0.5);
    row("light from the west", "EPSG:3035", 270.0, false, (sine + sine * 0.5) / length);
    row("light from the east", "EPSG:3035", 90.0, false, (sine - sine * 0.5) / length);
    row("light from the north", "EPSG:3035", 0.0, false, sine / length);
    row("light from all sides", "EPSG:3035", 0.0, true, (sine + 0.25 + 1.5 * sine) / length / 2);
  }
  void aPlaneIsAsBrightAsTheLightFallsOnIt() {
    auto const [system, azimuth, multidirectional, light] = fetched<QString, double, bool, double>();
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int x, int) { return x * 50.0; });
    auto const layer = make<RasterLayer>();
    RasterLook look;
    look.renderer.kind = Kind::Hillshade;
    look.renderer.azimuth = azimuth;
    look.renderer.multidirectional = multidirectional;
    layer->setLook(look);
    QCOMPARE(layer->open({path, {}, {}, {}}, system), QString());
    QImage const image = shown({4302000, 3182000, 4318000, 3198000}, {320, 320}).drawn(drawing(layer));
    for (int const x : {40, 150, 256, 300})
      QVERIFY2(std::abs(grey(image, x, 160) - (1 + 254 * light)) <= 1.5,
               qPrintable(QString::number(grey(image, x, 160))));
  }

  void whatIsMissingShowsWhatLiesBelow() {
    QTemporaryDir const folder;
    Made wanted;
    wanted.noData = -1;
    QString const path = made(folder.filePath("a.tif"), wanted, [](int x, int y) {
      return x < 100 ? -1 : y < 100 ? 7 : 20;
    });
    auto const layer = make<RasterLayer>();
    layer->setLook({greys(0, 255), Resampling::Bilinear, {}});
    QCOMPARE(layer->open({path, {}, {}, {7}}, "EPSG:3035"), QString());
    QImage const image = shown({4300000, 3180000, 4320000, 3200000}, {100, 100}).drawn(drawing(layer));
    QVERIFY(isBlank(image, {0, 0, 49, 100}) && isBlank(image, {0, 0, 100, 49}));
    QCOMPARE(grey(image, 75, 75), 20);
  }

  void valuesWithoutMeasureAreNotDrawn_data() {
    Rows<double, bool> row;
    row("the lowest float", -3.4028234663852886e38, true);
    row("too great to tell apart", 1e17, false);
  }
  void valuesWithoutMeasureAreNotDrawn() {
    auto const [value, isNothing] = fetched<double, bool>();
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [one = value](int, int) { return one; });
    for (Kind const kind : {Kind::Ramp, Kind::Color}) {
      auto const layer = make<RasterLayer>();
      RasterLook look;
      look.renderer = greys(0, 255);
      look.renderer.kind = kind;
      look.renderer.stretch.kind = Stretch::MinMax;
      layer->setLook(look);
      QCOMPARE(layer->open({path, {}, {}, {}}, "EPSG:3035"), QString());
      QImage const image = shown(layer->box(), {40, 40}).drawn(drawing(layer));
      QCOMPARE(isBlank(image, {0, 0, 40, 40}), isNothing);
    }
  }

  void whatIsMissingHasNoPartInAMean() {
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int x, int y) {
      return x < 100 ? (x + y) % 5 == 0 ? -9999 : 100 : x < 103 ? std::nan("") : 100;
    });
    auto const layer = make<RasterLayer>();
    layer->setLook({greys(0, 255), Resampling::Bilinear, {}});
    QCOMPARE(layer->open({path, {}, {}, {-9999}}, "EPSG:3035"), QString());
    QImage const image = shown({4300000, 3180000, 4320000, 3200000}, {50, 50}).drawn(drawing(layer));
    for (int x = 0; x < 50; ++x) QVERIFY2(grey(image, x, 20) >= 100, qPrintable(QString::number(x)));
    QVERIFY(grey(image, 10, 20) < 150 && grey(image, 40, 20) == 100);  // a fifth of it shows the paper
  }

  // The file learns what is missing when it has an overview already.
  void anOverviewFollowsItsFile() {
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int x, int) { return x < 100 ? -9999 : 100; });
    GDALDataset* dataset = GDALDataset::Open(path.toUtf8(), GDAL_OF_UPDATE);
    int const factors[] = {4};
    QCOMPARE(GDALBuildOverviews(dataset, "NEAREST", 1, const_cast<int*>(factors), 0, nullptr, nullptr, nullptr),
             CE_None);
    GDALClose(dataset);
    dataset = GDALDataset::Open(path.toUtf8(), GDAL_OF_UPDATE);
    dataset->GetRasterBand(1)->SetNoDataValue(-9999);
    GDALClose(dataset);
    auto const layer = make<RasterLayer>();
    layer->setLook({greys(0, 255), Resampling::Nearest, {}});
    QCOMPARE(layer->open({path, {}, {}, {}}, "EPSG:3035"), QString());
    QImage const image = shown({4300000, 3180000, 4320000, 3200000}, {50, 50}).drawn(drawing(layer));
    QVERIFY(isBlank(image, {0, 0, 24, 50}));
    QCOMPARE(grey(image, 40, 20), 100);
  }

  // 0 stands for no data, and in pure red for no green and no blue.
  void aPureColorIsNotMissing() {
    QTemporaryDir const folder;
    Made wanted;
    wanted.bands = 3;
    wanted.type = GDT_Byte;
    wanted.noData = 0;
    QString const path = made(folder.filePath("a.tif"), wanted, [](int x, int) { return x < 100 ? 0 : 200; });
    GDALDataset* const dataset = GDALDataset::Open(path.toUtf8(), GDAL_OF_UPDATE);
    for (int band = 2; band <= 3; ++band) QCOMPARE(dataset->GetRasterBand(band)->Fill(0), CE_None);
    GDALClose(dataset);
    auto const layer = make<RasterLayer>();
    layer->setLook({RasterRendererSettings(), Resampling::Bilinear, {}});
    QCOMPARE(layer->open({path, {}, {}, {}}, "EPSG:3035"), QString());
    QImage const image = shown({4300000, 3180000, 4320000, 3200000}, {100, 100}).drawn(drawing(layer));
    QVERIFY(isBlank(image, {0, 0, 49, 100}));
    QCOMPARE(QColor(image.pixel(75, 50)), QColor(200, 0, 0));
  }

  void aLegendTellsRoundNumbersAndClasses() {
    QTemporaryDir const folder;
    QString const path = made(folder.filePath("a.tif"), Made(), [](int x, int) { return x; });
    RasterLayer layer;
    RasterLook look;
    look.renderer = greys(3, 870);
    look.renderer.kind = Kind::Ramp;
    layer.setLook(look);
    QCOMPARE(layer.open({path, {}, {}, {}}, "EPSG:3035"), QString());
    auto const labels = [&] {
      QStringList all;
      for (auto const& one : layer.legendClasses()) all << one.label;
      return all.join(' ');
    };
    QCOMPARE(labels(), QString("800 600 400 200"));
    look.renderer.stretch = greys(1e17, 1e17 + 16).stretch;
    layer.setLook(look);
    QCOMPARE(layer.legendClasses().size(), 2);
    look.renderer.classes = {{200, Qt::red, "high"}, {0, Qt::blue, {}}};
    layer.setLook(look);
    QCOMPARE(labels(), QString("high 0"));
    look.renderer.classes = {{0, Qt::blue, {}}, {500, Qt::red, {}}, {200, Qt::green, "middle"}};
    look.renderer.interpolates = false;
    layer.setLook(look);
    QCOMPARE(labels(), QString("≥ 500 middle 0 – 200"));
  }
};

QTEST_MAIN(RasterLayerTest)
#include "RasterLayerTest.moc"
