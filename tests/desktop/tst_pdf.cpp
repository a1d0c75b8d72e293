#include "desktop/Executable.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/MapPicture.h"

#include <QXmlStreamReader>

#include <gdal_priv.h>

#include <memory>

namespace {

// A program of poppler's, which knows nothing of ours: what it prints.
QString printed(QString const& program, QStringList const& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(60000) || process.exitCode() != 0) return QStringLiteral("%1 failed").arg(program);
  if (QByteArray const complaint = process.readAllStandardError(); !complaint.isEmpty()) return complaint;
  return QString::fromUtf8(process.readAllStandardOutput());
}

QString textOf(QString const& pdf) { return printed("pdftotext", {"-raw", pdf, "-"}).simplified(); }

// How two pictures differ: the mean of all pixels' largest difference in a channel, and the part of the squares of 8
// pixels whose mean colours differ by more than 16 levels.
struct Difference {
  double mean = 0, squares = 0;

  Difference(QImage const& a, QImage const& b) {
    QSize const size = a.size().boundedTo(b.size());
    int different = 0, count = 0;
    for (int top = 0; top + 8 <= size.height(); top += 8)
      for (int left = 0; left + 8 <= size.width(); left += 8, ++count) {
        int sums[3] = {};
        for (int y = top; y < top + 8; ++y)
          for (int x = left; x < left + 8; ++x) {
            QRgb const p = a.pixel(x, y), q = b.pixel(x, y);
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

QJsonArray at(double x, double y) { return {x, y}; }

}  // namespace

class PdfTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { GDALAllRegister(); }

  void showsWhatTheImageShows_data() {
    Rows<QString> row;
    row("fills, lines, halos, markers, an overview", "aegean.kdx");
    row("a graticule and a legend", "world.kdx");
  }
  void showsWhatTheImageShows() {
    auto const [sample] = fetched<QString>();
    QString const document = QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/") + sample;
    for (QString const suffix : {"png", "pdf"})
      QCOMPARE(run({"export", document, "page." + suffix, "--quiet"}, folder_.path()).err, QString());
    QImage const image(folder_.path("page.png"));
    double const widthPt = printed("pdfinfo", {folder_.path("page.pdf")})
                               .section("Page size:", 1)
                               .simplified()
                               .section(' ', 0, 0)
                               .toDouble();
    QString const dpi = QString::number(image.width() / widthPt * 72, 'f', 4);
    printed("pdftocairo", {"-r", dpi, "-png", "-singlefile", folder_.path("page.pdf"), folder_.path("drawn")});
    Difference const difference(image, QImage(folder_.path("drawn.png")));
    QVERIFY2(difference.mean < 1, qPrintable(QString::number(difference.mean)));
    QVERIFY2(difference.squares < 0.002, qPrintable(QString::number(difference.squares)));
    QCOMPARE(printed("pdfimages", {"-list", folder_.path("page.pdf")}).count('\n'), 2);  // none: a head of two lines
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
    QCOMPARE(run({"export", path, "labels.pdf"}, folder_.path()).err, QString());
    QString const found = textOf(folder_.path("labels.pdf"));
    for (QString const& label : labels) QVERIFY2(found.contains(label.simplified()), qPrintable(label));
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
    QCOMPARE(run({"export", "text.kdx", "text.pdf"}, folder_.path()).err, QString());
    // Poppler marks what runs from right to left. It sorts words, or leaves them in the order of the page, as is asked.
    QStringList found{textOf(folder_.path("text.pdf")),
                      printed("pdftotext", {folder_.path("text.pdf"), "-"}).simplified()};
    found.replaceInStrings(QRegularExpression("[\u202a-\u202e]"), QString());
    QVERIFY2(found.contains(text), qPrintable(found.join('\n')));
  }

  // In the two ways that readers know, which archives want to be the same.
  void itSaysWhatTheDocumentSaysOfItself() {
    folder_.writeVariant("told.kdx", {{"information", json("{'title':'Die <Welt> & mehr','author':'Ö. Maker','subject':"
                                                           "'About it','keywords':['a','b c'],'language':'de-CH'}")}});
    for (QString const name : {"told", "page"})
      QCOMPARE(run({"export", name + ".kdx", name + ".pdf"}, folder_.path()).err, QString());
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

  // A mark at a known place of a map of 1:25,000, found again by GDAL's reader in the picture that it makes.
  void readersMeasureInAMap() {
    OGRSpatialReference globe, zone;
    for (auto* const system : {&globe, &zone}) system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    globe.importFromEPSG(4326);
    zone.importFromEPSG(32633);
    double x = 15.003, y = 48.002;
    put(folder_.path("mark.geojson"),
        "{\"type\":\"Feature\",\"properties\":{},\"geometry\":{\"type\":\"Point\",\"coordinates\":[15.003,48.002]}}");
    std::unique_ptr<OGRCoordinateTransformation> const projected(OGRCreateCoordinateTransformation(&globe, &zone));
    QVERIFY(projected->Transform(1, &x, &y));

    // The frame is 6 by 4 cm, so that the map is as many quarters of a kilometre.
    auto const bounds = QJsonArray{x - 500, y - 700, x + 1000, y + 300};
    folder_.writeVariant(
        "mark.kdx",
        {{"maps", QJsonArray{QJsonObject{
                      {"name", "World"},
                      {"coordinateSystem", "EPSG:32633"},
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
    QVERIFY2(std::hypot(foundX - x, foundY - y) < 1,
             qPrintable(QStringLiteral("%1 %2").arg(foundX - x).arg(foundY - y)));
  }

private:
  DocumentFolder folder_;
};

QTEST_MAIN(PdfTest)
#include "tst_pdf.moc"
