#include "desktop/Executable.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/MapPicture.h"

#include <QColorSpace>
#include <QXmlStreamReader>

#include <gdal_priv.h>

#include <memory>

namespace {

// A program of poppler's or librsvg's, which know nothing of ours: what it prints.
QString printed(QString const& program, QStringList const& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(60000) || process.exitCode() != 0) return QStringLiteral("%1 failed").arg(program);
  if (QByteArray const complaint = process.readAllStandardError(); !complaint.isEmpty()) return complaint;
  return QString::fromUtf8(process.readAllStandardOutput());
}

// The texts of an SVG, as XML has them.
QStringList textsOf(QString const& svg) {
  QStringList texts;
  QXmlStreamReader xml(contentOf(svg));
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text"))
      texts << xml.readElementText(QXmlStreamReader::IncludeChildElements);
  if (xml.hasError()) texts = QStringList{xml.errorString()};
  return texts;
}

QString textOf(QString const& pdf) { return printed("pdftotext", {"-raw", pdf, "-"}).simplified(); }

// How two pictures differ: the mean of all pixels' largest difference in a channel, and the part of the squares of 8
// pixels whose mean colours differ by more than 16 levels.
struct Difference {
  double mean = 0, squares = 0;

  Difference(QImage const& first, QImage const& second)
      : Difference(first.convertToFormat(QImage::Format_RGB32), second.convertToFormat(QImage::Format_RGB32), {}) {}

private:
  Difference(QImage const& a, QImage const& b, std::nullptr_t) {
    auto const row = [](QImage const& image, int y) { return reinterpret_cast<QRgb const*>(image.constScanLine(y)); };
    QSize const size = a.size().boundedTo(b.size());
    int different = 0, count = 0;
    for (int top = 0; top + 8 <= size.height(); top += 8)
      for (int left = 0; left + 8 <= size.width(); left += 8, ++count) {
        int sums[3] = {};
        for (int y = top; y < top + 8; ++y)
          for (int x = left; x < left + 8; ++x) {
            QRgb const p = row(a, y)[x], q = row(b, y)[x];
            int const off[] = {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)};
            for (int i = 0; i < 3; ++i) sums[i] += off[i];
            mean += std::max({std::abs(off[0]), std::abs(off[1]), std::abs(off[2])});
          }
        different += std::max({std::abs(sums[0]), std::abs(sums[1]), std::abs(sums[2])}) > 16 * 64;
      }
    mean /= 64.0 * count;
    squares = double(different) / count;
  }
};

// What is hard to draw: fills that go on, gradients, nested markers, pictures at an angle, halos and boxes that shine
// through, layers that are mixed with each other on a turned map.
QJsonObject difficultPage() {
  QByteArray const flag = QByteArray(
      "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 14'><rect width='10' "
      "height='14' fill='#ffe8c0'/><path d='M5 1 9 12 1 12Z' fill='#345' "
      "fill-opacity='.7'/></svg>");
  auto const withFlag = [&](QByteArray text) { return text.replace("FLAG", QByteArray(flag).replace("'", "\\'")); };
  QByteArray const fills[] = {
      "'type':'gradientFill','angle':30,'stops':[{'position':10,'color':'#ff0000'},{'position':60,'color':'#0088ff'}]",
      "'type':'gradientFill','shape':'radial','stops':[{'position':0,'color':'#ffff00'},{'position':100,'color':"
      "'#20400080'}]",
      "'type':'gradientFill','angle':0,'stops':[{'position':0,'color':'#00f00000'},{'position':100,'color':'#0000ff'}]",
      "'type':'pictureFill','width':7,'angle':-20,'svg':'FLAG'",
      "'type':'pointPatternFill','dx':6,'dy':5,'staggered':true,'marker':{'type':'layeredMarker','layers':[{'type':"
      "'simpleMarker','size':4},{'type':'svgMarker','size':3,'svg':'FLAG'}]}",
      "'type':'simpleFill','style':'diagonalCross','color':'#a0227722'",
      "'type':'simpleFill','style':'vertical','color':'#aa2222'"};
  QJsonArray elements;
  double left = 0.2;
  for (QByteArray const& fill : fills) {
    elements << json(withFlag("{'type':'ellipse','rectangle':[" + QByteArray::number(left) + ",4.6," +
                              QByteArray::number(left + 1) + ",5.8],'symbol':{" + fill +
                              ",'outline':{'type':'simpleLine','color':'#102030','width':0.6}}}"));
    left += 1.1;
  }
  QString const embedded = "data:image/svg+xml;base64," + flag.toBase64();
  for (double angle : {0.0, 25.0})
    elements << QJsonObject{{"type", "picture"},
                            {"data", embedded},
                            {"angle", angle},
                            {"rectangle", QJsonArray{6 + angle / 25, 2.8, 6.8 + angle / 25, 4.2}}};
  elements << json(
      "{'type':'text','text':'Two words\\nand more','position':[5,1.6],'angle':10,'symbol':{'type':'text',"
      "'family':'EB Garamond','size':16,'italic':true,'color':'#b0402000','haloSize':1.5,'haloColor':"
      "'#c0ffdd88','boxColor':'#80eeeeff','boxLineWidth':1,'letterSpacing':2}}");
  elements << json(
      "{'type':'text','text':'Łódź أهلا','position':[5,0.4],'symbol':{'type':'text','family':"
      "'DejaVu Sans','size':12,'bold':true}}");
  elements << json(
      "{'type':'dataFrame','map':0,'name':'Mixed','rectangle':[0.3,0.3,4.6,4.3],'shadow':{'offset':"
      "[3,-3],'symbol':{'type':'simpleFill','color':'#80000000'}},'grids':[{'interval':0.005,'labels':false}]}");
  QByteArray layers;
  for (QByteArray const look : {"'opacity':60", "'blend':'multiply'", "'blend':'screen','opacity':80"})
    layers += QByteArray(layers.isEmpty() ? "" : ",") +
              "{'type':'feature','name':'Squares','source':{'file':'squares.geojson'},'renderer':{'type':'simple',"
              "'symbol':{'type':'simpleFill','color':'#dd8844','outline':{'type':'dashLine','pattern':[4,2],'width':" +
              QByteArray::number(layers.count("feature") + 1) + "}}}," + look + "}";
  return {{"elements", elements},
          {"maps", QJsonArray{json("{'name':'Mixed','coordinateSystem':'EPSG:32633','rotation':20,'bounds':[500000,"
                                   "5300000,501000,5301000],'layers':[" +
                                   layers + "]}")}}};
}

QByteArray squares() {
  QByteArray features;
  for (int i = 0; i < 12; ++i) {
    double const x = 15 + i % 4 * 0.003, y = 47.852 + i / 4 * 0.003;
    QByteArray corners;
    for (auto const& [dx, dy] : {std::pair(0, 0), {4, 0}, {4, 4}, {0, 4}, {0, 0}})
      corners += (corners.isEmpty() ? "[" : ",[") + QByteArray::number(x + dx * 0.001, 'f', 4) + ',' +
                 QByteArray::number(y + dy * 0.001, 'f', 4) + ']';
    features += (i ? "," : "") +
                QByteArray(
                    "{\"type\":\"Feature\",\"properties\":{},\"geometry\":{\"type\":\"Polygon\","
                    "\"coordinates\":[[") +
                corners + "]]}}";
  }
  return "{\"type\":\"FeatureCollection\",\"features\":[" + features + "]}";
}

QJsonArray at(double x, double y) { return {x, y}; }

}  // namespace

class VectorFilesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { GDALAllRegister(); }

  void showWhatTheImageShows_data() {
    Rows<QString, QStringList> row;
    row("fills, lines, halos, markers, an overview, a legend", "aegean.kdx", {});
    row("what is hard to draw", "difficult.kdx", {});
    row("letters as shapes", "difficult.kdx", {"--text", "shapes"});
  }
  void showWhatTheImageShows() {
    auto const [name, more] = fetched<QString, QStringList>();
    put(folder_.path("squares.geojson"), squares());
    folder_.writeVariant("difficult.kdx", difficultPage());
    QString const sample = QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/") + name;
    QString const document = QFileInfo::exists(sample) ? sample : folder_.path(name);
    for (QString const suffix : {"png", "pdf", "svg"})
      QCOMPARE(run(QStringList{"export", document, "page." + suffix, "--quiet", "--dpi", "200"} +
                       (suffix == "png" ? QStringList() : more),
                   folder_.path())
                   .err,
               QString());
    QImage const image(folder_.path("page.png"));
    double const widthPt = printed("pdfinfo", {folder_.path("page.pdf")})
                               .section("Page size:", 1)
                               .simplified()
                               .section(' ', 0, 0)
                               .toDouble();
    QString const dpi = QString::number(image.width() / widthPt * 72, 'f', 4), width = QString::number(image.width());
    printed("pdftocairo", {"-r", dpi, "-png", "-singlefile", folder_.path("page.pdf"), folder_.path("pdf")});
    printed("rsvg-convert", {"-w", width, folder_.path("page.svg"), "-o", folder_.path("svg.png")});
    for (QString const drawn : {"pdf.png", "svg.png"}) {
      Difference const difference(image, QImage(folder_.path(drawn)));
      auto const told = [&](double number) { return drawn + ": " + QString::number(number); };
      QVERIFY2(difference.mean < 1.5, qPrintable(told(difference.mean)));
      QVERIFY2(difference.squares < 0.002, qPrintable(told(difference.squares)));
    }
    // The same page is the same file.
    for (QString const suffix : {"pdf", "svg"})
      if (document != sample) {
        run(QStringList{"export", document, "again." + suffix, "--dpi", "200"} + more, folder_.path());
        QVERIFY(contentOf(folder_.path("again." + suffix)) == contentOf(folder_.path("page." + suffix)));
      }
    // Nothing became pixels, and texts are what was asked for.
    QByteArray const svg = contentOf(folder_.path("page.svg"));
    bool const hasText = !more.contains("shapes");
    QCOMPARE(printed("pdfimages", {"-list", folder_.path("page.pdf")}).count('\n'), 2);  // a head of two lines
    QVERIFY(!svg.contains("<image"));
    QCOMPARE(printed("pdffonts", {folder_.path("page.pdf")}).count('\n') > 2, hasText);
    QCOMPARE(svg.contains("<text"), hasText);
  }

  void everyLabelIsFound() {
    QString const path = QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx");
    SysCarto::MapDocument document;
    QVERIFY(document.Open(path));
    QStringList labels;
    for (auto const& element : document.GetPageLayout()->GetGraphicsContainer()->GetElements())
      if (auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element))
        for (auto const& label : SysCarto::placeLabels(*frame, 300))
          if (auto const text = SysUtility::ptr_cast<SysCarto::TextElement>(label)) labels << text->text();
    QVERIFY(labels.size() > 100);
    for (QString const suffix : {"pdf", "svg"})
      QCOMPARE(run({"export", path, "labels." + suffix}, folder_.path()).err, QString());
    QString const found = textOf(folder_.path("labels.pdf")), inSvg = textsOf(folder_.path("labels.svg")).join('\n');
    for (QString const& label : labels) {
      QVERIFY2(found.contains(label.simplified()), qPrintable(label));
      QVERIFY2(inSvg.contains(label), qPrintable(label));
    }
  }

  void textsAreReadAsTheyWereWritten_data() {
    Rows<QString, QString> row;
    row("ligatures", "office fjord", "EB Garamond");
    row("joined letters, from right to left", "مرحبا بالعالم", "DejaVu Sans");
    row("letters with marks of their own", "a\u0308rger", "Lato");
    row("letters beyond the first plane", "𝐀 map", "DejaVu Sans");
    row("slanted letters that the family has not", "Łódź", "Lato");
  }
  void textsAreReadAsTheyWereWritten() {
    auto const [text, family] = fetched<QString, QString>();
    folder_.writeVariant(
        "text.kdx", {{"elements", QJsonArray{QJsonObject{
                                      {"type", "text"},
                                      {"text", text},
                                      {"position", at(1, 3)},
                                      {"symbol", QJsonObject{{"type", "text"}, {"family", family}, {"size", 20}}}}}},
                     {"maps", QJsonArray()}});
    for (QString const file : {"text.pdf", "text.svg"})
      QCOMPARE(run({"export", "text.kdx", file}, folder_.path()).err, QString());
    QCOMPARE(textsOf(folder_.path("text.svg")), QStringList{text});
    // Poppler marks what runs from right to left. It sorts words, or leaves them in the order of the page, as is asked.
    QStringList found{textOf(folder_.path("text.pdf")),
                      printed("pdftotext", {folder_.path("text.pdf"), "-"}).simplified()};
    found.replaceInStrings(QRegularExpression("[\u202a-\u202e]"), QString());
    QVERIFY2(found.contains(text), qPrintable(found.join('\n')));
  }

  // In the two ways that readers know, which archives want to be the same, without what XML can't say.
  void itSaysWhatTheDocumentSaysOfItself() {
    folder_.writeVariant(
        "told.kdx",
        {{"information", json("{'title':'Die \\u000b<Welt>\\ufffe & mehr','author':'Ö. \\u0001Maker','subject':"
                              "'About it','keywords':['a','b c'],'language':'de-CH'}")}});
    for (QString const file : {"told.pdf", "told.svg", "page.pdf"})
      QCOMPARE(run({"export", file.left(4) + ".kdx", file}, folder_.path()).err, QString());
    QByteArray const svg = contentOf(folder_.path("told.svg"));
    for (QByteArray const part :
         {" xml:lang=\"de-CH\"", "<title>Die &lt;Welt&gt; &amp; mehr</title>\n<desc>About it</desc>"})
      QVERIFY2(svg.contains(part), svg.left(1000));
    QString const told = printed("pdfinfo", {folder_.path("told.pdf")});
    for (QString const line :
         {"Title: Die <Welt> & mehr ", "Author: Ö. Maker ", "Subject: About it ", "Keywords: a, b c "})
      QVERIFY2(told.simplified().contains(line), qPrintable(told));
    QXmlStreamReader xml(printed("pdfinfo", {"-meta", folder_.path("told.pdf")}));
    QStringList texts;
    while (!xml.atEnd())
      if (xml.readNext() == QXmlStreamReader::Characters) texts << xml.text().toString().trimmed();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    texts.removeAll(QString());
    QCOMPARE(texts, QStringList({"2", "B", "Plotvane", "a, b c", "Die <Welt> & mehr", "Ö. Maker", "About it", "a",
                                 "b c", "de-CH"}));
    QVERIFY(printed("pdfinfo", {folder_.path("page.pdf")}).simplified().contains("Title: page Producer:"));
  }

  // Looked at 100 pixels to a centimetre: the page has its corner at 1.1 cm, half a centimetre of bleed about it.
  void aPressGetsBleedAndMarks() {
    auto const fill = [](char const* color) { return QJsonObject{{"type", "simpleFill"}, {"color", color}}; };
    auto const rectangle = [&](QJsonArray const& sides) {
      return QJsonObject{{"type", "rectangle"}, {"rectangle", sides}, {"symbol", fill("#0000ff")}};
    };
    folder_.writeVariant("press.kdx", {{"page", QJsonObject{{"form", "Custom"},
                                                            {"width", 4},
                                                            {"height", 3},
                                                            {"background", QJsonObject{{"symbol", fill("#ffff00")}}}}},
                                       {"elements", QJsonArray{rectangle({-2, 1, 1, 2}), rectangle({3, 2.5, 9, 9})}},
                                       {"maps", QJsonArray()}});
    for (QStringList const& more : {QStringList{"page.pdf"}, {"press.pdf", "--bleed", "5", "--crop-marks"}}) {
      QCOMPARE(run(QStringList{"export", "press.kdx"} + more, folder_.path()).err, QString());
      QString const name = folder_.path(more.first());
      printed("pdftocairo", {"-r", "254", "-png", "-singlefile", name, name.chopped(4)});
    }
    QImage const page(folder_.path("page.png")), press(folder_.path("press.png"));
    QString const boxes = printed("pdfinfo", {"-box", folder_.path("press.pdf")}).simplified();
    for (QString const box : {"MediaBox: 0.00 0.00 175.75 147.40", "BleedBox: 17.01 17.01 158.74 130.39",
                              "TrimBox: 31.18 31.18 144.57 116.22"})
      QVERIFY2(boxes.contains(box), qPrintable(boxes));
    Difference const inside(page, press.copy(110, 110, 400, 300));
    QVERIFY2(inside.mean < 1, qPrintable(QString::number(inside.mean)));
    auto const color = [&](int x, int y) { return press.pixelColor(x, y).name(); };
    QCOMPARE(color(70, 260), QString("#0000ff"));  // over the left edge
    QCOMPARE(color(540, 80), QString("#0000ff"));  // over the corner
    QCOMPARE(color(70, 380), QString("#ffff00"));  // the background
    QCOMPARE(color(30, 260), QString("#ffffff"));  // beyond the bleed
    QVERIFY(press.pixelColor(25, 110).lightness() < 200 && press.pixelColor(510, 595).lightness() < 200);  // marks
  }

  void theProfileOfADeviceIsOneOfItsKind_data() {
    Rows<int, QByteArray, QString> row;
    row("another one of RGB", 0, "", "");
    row("something else", 36, "none", "is no ICC profile");
    row("of inks", 16, "CMYK", "is a profile of CMYK colours");
    row("of a link between devices", 12, "link", "is not the profile of a screen or a printer");
  }
  void theProfileOfADeviceIsOneOfItsKind() {
    auto const [place, bytes, problem] = fetched<int, QByteArray, QString>();
    QByteArray const profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    put(folder_.path("device.icc"), QByteArray(profile).replace(place, bytes.size(), bytes));
    QString const err = run({"export", "page.kdx", "device.pdf", "--output-intent", "device.icc"}, folder_.path()).err;
    QVERIFY2(problem.isEmpty() ? err.isEmpty() : err.contains(problem), qPrintable(err));
  }

  // A mark at a known place of a map, found again by GDAL's reader in the picture that it makes.
  void readersMeasureInAMap_data() {
    Rows<int, QJsonArray, double, double> row;
    row("of 1:25,000", 32633, {499500, 5315800, 501000, 5316800}, 15.003, 48.002);
    row("of a world whose corners lie off the globe", 8857, {-18e6, -12e6, 18e6, 12e6}, 100, -30);
  }
  void readersMeasureInAMap() {
    auto const [epsg, bounds, longitude, latitude] = fetched<int, QJsonArray, double, double>();
    OGRSpatialReference globe, zone;
    for (auto* const system : {&globe, &zone}) system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    globe.importFromEPSG(4326);
    zone.importFromEPSG(epsg);
    double x = longitude, y = latitude;
    put(folder_.path("mark.geojson"),
        QStringLiteral(
            "{\"type\":\"Feature\",\"properties\":{},\"geometry\":{\"type\":\"Point\",\"coordinates\":[%1,%2]}}")
            .arg(x)
            .arg(y)
            .toUtf8());
    std::unique_ptr<OGRCoordinateTransformation> const projected(OGRCreateCoordinateTransformation(&globe, &zone));
    QVERIFY(projected->Transform(1, &x, &y));

    folder_.writeVariant(
        "mark.kdx",
        {{"maps", QJsonArray{QJsonObject{
                      {"name", "World"},
                      {"coordinateSystem", "EPSG:" + QString::number(epsg)},
                      {"bounds", bounds},
                      {"layers", QJsonArray{json("{'type':'feature','name':'Mark','source':{'file':'mark.geojson'},"
                                                 "'renderer':{'type':'simple','symbol':{'type':'simpleMarker',"
                                                 "'size':9,'color':'#ff0000','outlineWidth':0}}}")}}}}}});
    QCOMPARE(run({"export", "mark.kdx", "mark.pdf"}, folder_.path()).err, QString());

    char const* const options[] = {"DPI=300", nullptr};
    std::unique_ptr<GDALDataset> const read(static_cast<GDALDataset*>(
        GDALOpenEx(qPrintable(folder_.path("mark.pdf")), GDAL_OF_RASTER, nullptr, options, nullptr)));
    QVERIFY(read && read->GetSpatialRef() && read->GetSpatialRef()->IsSame(&zone));
    QVERIFY(QString(read->GetMetadata("LAYERS")[1]).endsWith("World.Mark"));
    double placed[6];
    QCOMPARE(read->GetGeoTransform(placed), CE_None);
    QSize const size(read->GetRasterXSize(), read->GetRasterYSize());
    std::vector<uchar> green(size_t(size.width()) * size.height()), red = green;
    for (auto& [band, values] : {std::make_pair(1, &red), std::make_pair(2, &green)})
      QCOMPARE(read->GetRasterBand(band)->RasterIO(GF_Read, 0, 0, size.width(), size.height(), values->data(),
                                                   size.width(), size.height(), GDT_Byte, 0, 0, nullptr),
               CE_None);
    double columns = 0, rows = 0, count = 0;
    for (int row = 0; row < size.height(); ++row)
      for (int column = 0; column < size.width(); ++column)
        if (size_t const i = size_t(row) * size.width() + column; red[i] > 200 && green[i] < 100) {
          columns += column + 0.5;
          rows += row + 0.5;
          ++count;
        }
    QVERIFY(count > 100);
    double const foundX = placed[0] + placed[1] * columns / count, foundY = placed[3] + placed[5] * rows / count;
    QVERIFY2(std::hypot(foundX - x, foundY - y) < 0.5 * placed[1],
             qPrintable(QStringLiteral("%1 %2").arg(foundX - x).arg(foundY - y)));
  }

private:
  DocumentFolder folder_;
};

QTEST_MAIN(VectorFilesTest)
#include "tst_vector_files.moc"
