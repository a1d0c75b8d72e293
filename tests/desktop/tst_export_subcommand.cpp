#include "desktop/Executable.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <sys/types.h>
#include <unistd.h>

#include <QColorSpace>

#include <csignal>
#include <memory>

namespace {

// 8 × 6 cm at 300 DPI.
constexpr int width = 944;
constexpr int height = 708;

// A file system of a given size, unmounted when it goes.
class SmallDisk {
public:
  explicit SmallDisk(qint64 bytes) {
    mounted_ = QProcess::execute("mount", {"-t", "tmpfs", "-o", QStringLiteral("size=%1").arg(bytes), "plotvane-test",
                                           folder_.path()}) == 0;
  }
  ~SmallDisk() {
    if (mounted_) QProcess::execute("umount", {folder_.path()});
  }
  bool mounted() const { return mounted_; }
  QString path(QString const& name) const { return folder_.filePath(name); }
  QString path() const { return folder_.path(); }

private:
  QTemporaryDir folder_;
  bool mounted_ = false;
};

}  // namespace

class ExportSubcommandTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { GDALAllRegister(); }
  void writesTheFormatOfTheSuffix_data() {
    Rows<QStringList, QString> row;
    row("jpg in capitals", {"a.JPG"}, "JPEG");
    row("jpg and jpeg are one", {"a.jpeg", "--format", "jpg"}, "JPEG");
    row("no suffix is a TIFF", {"a"}, "GTiff");
    row("a format against a suffix that names none", {"a.pdf", "--format", "PNG"}, "PNG");
    row("bmp", {"a.bmp"}, "BMP");
    row("webp", {"a.webp"}, "WEBP");
    row("webp that loses nothing", {"a.webp", "--compress", "lossless"}, "WEBP");
  }
  void writesTheFormatOfTheSuffix() {
    auto const [arguments, driver] = fetched<QStringList, QString>();
    QString const name = arguments.first();
    auto before = contents(folder_.path());
    Outcome const outcome = run(QStringList{"export", "page.kdx"} + arguments, folder_.path());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, name + '\n');

    std::unique_ptr<GDALDataset> const image(
        static_cast<GDALDataset*>(GDALOpen(qPrintable(folder_.path(name)), GA_ReadOnly)));
    QVERIFY(image);
    QCOMPARE(QString(image->GetDriverName()), driver);
    QCOMPARE(QSize(image->GetRasterXSize(), image->GetRasterYSize()), QSize(width, height));

    // What it says of itself, as another reader finds it.
    QImage const read(folder_.path(name));
    QCOMPARE(read.size(), QSize(width, height));
    bool const isBmp = driver == "BMP", isWebp = driver == "WEBP";
    if (!isWebp) QVERIFY2(qAbs(read.dotsPerMeterX() - 11811) <= 1, qPrintable(QString::number(read.dotsPerMeterX())));
    if (!isBmp) QCOMPARE(read.colorSpace(), QColorSpace(QColorSpace::SRgb));
    QCOMPARE(contentOf(folder_.path(name)).contains("<rdf:li xml:lang=\"x-default\">page</rdf:li>"), !isBmp);
    QVERIFY(QFile::remove(folder_.path(name)));
    QVERIFY(contents(folder_.path()) == before);
  }

  void cropsAndLeavesOutTheBackground() {
    auto const drawn = [this](QStringList const& options) {
      QStringList const arguments{"export", "page.kdx", "a.png", "--width"};
      Outcome const outcome = run(arguments + options, folder_.path());
      QImage const image(folder_.path("a.png"));
      return outcome.err.isEmpty() && QFile::remove(folder_.path("a.png")) ? image : QImage();
    };
    QImage const cropped = drawn({"600", "--crop"});
    QVERIFY2(cropped.width() == 600 && qAbs(cropped.height() - 400) <= 4,
             qPrintable(QString::number(cropped.height())));
    QImage const page = drawn({"800"}), clear = drawn({"800", "--transparent"});
    QCOMPARE(page.size(), QSize(800, 600));
    QCOMPARE(page.pixelColor(10, 10), QColor(Qt::white));
    QCOMPARE(clear.pixelColor(10, 10).alpha(), 0);
    QCOMPARE(clear.pixelColor(400, 300), page.pixelColor(400, 300));
  }

  // A map of 600 × 400 km in a frame of 6 × 4 cm, a centimetre from the page's left and upper edges.
  void tellsWhereItsMapLies() {
    folder_.writeVariant("utm.kdx", json("{'maps':[{'name':'M','coordinateSystem':'EPSG:32633','bounds':"
                                         "[200000,5000000,800000,5400000]}]}"));
    auto const arguments = [](QString const& image, QString const& frame, QString const& width = "800") {
      return QStringList{"export", "utm.kdx", image, "--width", width, "--georeference", frame};
    };
    QCOMPARE(run(arguments("a.png", "M"), folder_.path()).err, QString());
    QCOMPARE(run(arguments("a.tif", "World"), folder_.path()).err, QString());
    QVector<double> file;
    for (QByteArray const& line : contentOf(folder_.path("a.pgw")).trimmed().split('\n')) file << line.toDouble();
    QCOMPARE(file.size(), 6);
    double const pixel = 600000.0 / 600;
    QVERIFY(qAbs(file[0] - pixel) < pixel / 100 && qAbs(file[3] + pixel) < pixel / 100);
    QVERIFY2(qAbs(file[4] - 100500) < 2 * pixel && qAbs(file[5] - 5499500) < 2 * pixel,
             qPrintable(QString("%1 %2").arg(file[4], 0, 'f').arg(file[5], 0, 'f')));

    std::unique_ptr<GDALDataset> const image(
        static_cast<GDALDataset*>(GDALOpen(qPrintable(folder_.path("a.tif")), GA_ReadOnly)));
    double of[6];
    QCOMPARE(image->GetGeoTransform(of), CE_None);
    QVERIFY(qAbs(of[0] + of[1] / 2 - file[4]) < 1e-3 && qAbs(of[3] + of[5] / 2 - file[5]) < 1e-3);
    QCOMPARE(QString(image->GetSpatialRef()->GetAuthorityCode(nullptr)), QString("32633"));

    // Equal Earth, for which a TIFF has no room; and so many pixels that they are written while others are drawn.
    folder_.writeVariant("utm.kdx", json("{'maps':[{'name':'M','coordinateSystem':'EPSG:8857','bounds':"
                                         "[0,0,6000000,4000000]}]}"));
    QCOMPARE(run(arguments("a.tif", "M", "6000"), folder_.path()).err, QString());
    std::unique_ptr<GDALDataset> const equal(
        static_cast<GDALDataset*>(GDALOpen(qPrintable(folder_.path("a.tif")), GA_ReadOnly)));
    QVERIFY(equal->GetSpatialRef());
    QCOMPARE(QString(equal->GetSpatialRef()->GetAuthorityCode(nullptr)), QString("8857"));

    Outcome const refused = run(arguments("b.png", "N"), folder_.path());
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.err.contains("no data frame is called \"N\"; the page has \"M\""), qPrintable(refused.err));
    for (QString const name : {"a.png", "a.pgw", "a.png.aux.xml", "a.tif", "a.tif.aux.xml"})
      QVERIFY(QFile::remove(folder_.path(name)));
  }

  void quietPrintsNothing() {
    Outcome const outcome = run({"export", "page.kdx", "quiet", "--quiet", "--dpi", "50"}, folder_.path());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out + outcome.err, QString());
    QVERIFY(QFile::remove(folder_.path("quiet")));
  }

  void followsALinkToTheImage() {
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("real.png"), "old");
    QVERIFY(QFile::link(elsewhere.filePath("real.png"), folder_.path("link.png")));
    QCOMPARE(run({"export", "page.kdx", "link.png", "--dpi", "50"}, folder_.path()).status, 0);
    QVERIFY(QFileInfo(folder_.path("link.png")).isSymLink());
    QVERIFY(!QImage(elsewhere.filePath("real.png")).isNull());
    QVERIFY(QFile::remove(folder_.path("link.png")));
  }

  void aMissingOrDamagedSourceIsAnErrorUnlessAllowed_data() {
    Rows<QString, QByteArray, QString> row;
    row("a picture that is not there", "none.png", QByteArray(), "no such picture file");
    QByteArray const whole = contentOf(PLOTVANE_SOURCE_DIR "/samples/data/world.gpkg");
    row("data that are not there", "none.gpkg", QByteArray(), "none.gpkg");
    row("data that end early", "half.gpkg", whole.left(whole.size() / 2), "half.gpkg");
  }
  void aMissingOrDamagedSourceIsAnErrorUnlessAllowed() {
    auto const [file, content, complaint] = fetched<QString, QByteArray, QString>();
    if (!content.isEmpty()) put(folder_.path(file), content);
    QString const source =
        file.endsWith(".gpkg")
            ? "{'maps':[{'name':'M','bounds':[0,0,9,9],'layers':[{'type':'feature','name':'A',"
              "'source':{'file':'%1'},'renderer':{'type':'simple','symbol':{'type':'simpleFill'}}}]}]}"
            : "{'elements':[{'type':'picture','path':'%1','rectangle':[1,1,5,5]}],'maps':[]}";
    folder_.writeVariant("damaged.kdx", json(source.arg(file).toUtf8()));

    auto const before = contents(folder_.path());
    QStringList const arguments{"export", "damaged.kdx", "damaged.png", "--dpi", "30"};
    Outcome const refused = run(arguments, folder_.path());
    QCOMPARE(refused.status, 1);
    for (QString const& part : {file, complaint, QString("--allow-missing")})
      QVERIFY2(refused.err.contains(part), qPrintable(refused.err));
    QVERIFY(contents(folder_.path()) == before);
    Outcome const allowed = run(arguments + QStringList("--allow-missing"), folder_.path());
    QCOMPARE(allowed.status, 0);
    QVERIFY2(allowed.err.contains(file), qPrintable(allowed.err));
    QVERIFY(QFile::remove(folder_.path("damaged.png")));
  }

  void aFailureLeavesTheFolderAsItWas_data() {
    put(folder_.path("old.png"), "old");
    folder_.writeDocument("poster.kdx", 100.0, 100.0);
    folder_.writeVariant("pageless.kdx", {{"page", QJsonValue::Null}});
    QDir(folder_.path()).mkdir("folder.png");

    Rows<QString, QString> row;
    row("a missing document", "none.kdx old.png", "none.kdx");
    row("a document without a page", "pageless.kdx old.png", "no page");
    row("the document, by another way", "page.kdx folder.png/../page.kdx --format tiff", "is the document itself");
    row("a target folder that does not exist", "page.kdx nowhere/a.png", "does not exist");
    row("a folder as target", "page.kdx folder.png", "is a folder");
    row("a device as target", "page.kdx /dev/null", "no ordinary file");
    row("a file system that refuses files", "page.kdx /proc/a.png", "/proc");
    row("a name that is too long", "page.kdx " + QString(300, 'a') + ".png", "too long");
    row("more pixels than a JPEG holds", "page.kdx 100%1.jpg --dpi 100000", "100%1.jpg: the image would be 314960");
    row("more pixels than a BMP holds", "page.kdx a.bmp --dpi 20000", "4 GB");
    row("more pixels than the disk holds", "poster.kdx a.tif --dpi 100000", "GB are free");
  }
  void aFailureLeavesTheFolderAsItWas() {
    auto const [arguments, complaint] = fetched<QString, QString>();
    auto const before = contents(folder_.path());
    QElapsedTimer timer;
    timer.start();
    Outcome const outcome = run(QStringList("export") + arguments.split(' '), folder_.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString());
    QVERIFY(contents(folder_.path()) == before);
    QVERIFY2(timer.elapsed() < 20000, "refused only after it was drawn");
  }

  void aFullDiskLeavesTheOldImage_data() {
    Rows<QString, double, double> row;
    row("before the drawing", "full.png", 0.4, 0.0);
    row("halfway through the image", "full.png", 1.0, 0.5);
    for (QString const suffix : {"png", "jpg", "bmp", "tif"})
      row("a " + suffix + ", at its last bytes", "full." + suffix, 1.0, 0.95);
  }
  // The disk has room for a part of the temporary file or of the image.
  void aFullDiskLeavesTheOldImage() {
    auto const [name, ofTemporary, ofImage] = fetched<QString, double, double>();
    if (geteuid() != 0) QSKIP("only root mounts a small disk");
    // A page that no format makes small: A3, drawn into three bytes a pixel.
    QStringList const arguments{"export", QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx"), name, "--dpi",
                                "100"};
    qint64 const temporaryBytes = qint64{3} * 1653 * 1169;
    qint64 const headerBytes = 60000;
    if (!QFileInfo::exists(folder_.path(name))) QCOMPARE(run(arguments, folder_.path()).status, 0);
    qint64 const imageBytes = QFileInfo(folder_.path(name)).size();
    QVERIFY(imageBytes > 2 * headerBytes);

    bool const isDrawn = ofTemporary == 1;
    SmallDisk const disk(qint64(temporaryBytes * ofTemporary) + (isDrawn ? headerBytes : 0) +
                         qint64((imageBytes - headerBytes) * ofImage));
    if (!disk.mounted()) QSKIP("no small disk can be mounted here");
    put(disk.path(name), "old");
    Outcome const outcome = run(arguments, disk.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains(isDrawn ? name + " was not written" : "are free"), qPrintable(outcome.err));
    QCOMPARE(contents(disk.path()), (QMap<QString, QByteArray>{{disk.path(name), "old"}}));
  }

  void anInterruptLeavesTheFolderAsItWas_data() {
    Rows<QString, bool> row;
    row("without the plug-in", "export page.kdx late.tif --dpi 1500", true);
    row("while it waits for something", "export page.kdx late.tif --dpi 1500", false);
    row("through its dialog",
        "run page.kdx answer=lineEdit_OutputPath:late.tif answer=lineEdit_DPI:1500 Plotvane_Export", true);
  }
  void anInterruptLeavesTheFolderAsItWas() {
    auto const [arguments, answers] = fetched<QString, bool>();
    auto const before = contents(folder_.path());
    QProcess process;
    prepare(process, arguments.split(' '), folder_.path());
    process.start();
    QDir const folder(folder_.path());
    QTRY_VERIFY(!folder.entryList({".plotvane-*", "{*}.tif"}, QDir::AllEntries | QDir::Hidden).isEmpty());
    auto const supervisor = static_cast<pid_t>(process.processId());
    QFile worker(QStringLiteral("/proc/%1/task/%1/children").arg(supervisor));
    QVERIFY(worker.open(QIODevice::ReadOnly));
    if (!answers) QCOMPARE(kill(worker.readAll().trimmed().toInt(), SIGSTOP), 0);
    kill(supervisor, SIGTERM);
    QVERIFY(process.waitForFinished(5000));  // a second, where the machine does nothing else
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("interrupted"));
    QVERIFY(contents(folder_.path()) == before);
  }

  void aLimitOfTimeNamesWhatIsMissing() {
    auto const before = contents(folder_.path());
    Outcome const outcome =
        run({"export", "page.kdx", "late.tif", "--dpi", "4000", "--max-seconds", "1"}, folder_.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("late.tif was not written: it took more than the 1 s"), qPrintable(outcome.err));
    QVERIFY(contents(folder_.path()) == before);
  }

  void theNextStartSweepsOutWhatWasKilled() {
    QTemporaryDir const home;
    Variables const own{{"HOME", home.path()}, {"XDG_CACHE_HOME", {}}};
    auto const before = contents(folder_.path());
    QDir const folder(folder_.path());
    auto const work = [&] { return folder.entryList({".plotvane-*"}, QDir::Dirs | QDir::Hidden); };
    QProcess process;
    prepare(process, {"export", "page.kdx", "late.tif", "--dpi", "1500"}, folder_.path(), own);
    process.start();
    QTRY_VERIFY(!work().isEmpty());
    QVERIFY(run({"--version"}, home.path(), own).status == 0 && !work().isEmpty());  // of a living process
    QFile worker(QStringLiteral("/proc/%1/task/%1/children").arg(process.processId()));
    QVERIFY(worker.open(QIODevice::ReadOnly));
    auto const both = {static_cast<pid_t>(process.processId()), static_cast<pid_t>(worker.readAll().trimmed().toInt())};
    for (int const signal : {SIGSTOP, SIGKILL})
      for (pid_t const one : both) QCOMPARE(kill(one, signal), 0);
    QVERIFY(process.waitForFinished(5000) && !work().isEmpty());
    QCOMPARE(run({"--version"}, home.path(), own).status, 0);
    QVERIFY(contents(folder_.path()) == before);
    QVERIFY(QDir(home.filePath(".cache/plotvane/work")).isEmpty());
  }

private:
  DocumentFolder folder_;
};

QTEST_GUILESS_MAIN(ExportSubcommandTest)
#include "tst_export_subcommand.moc"
