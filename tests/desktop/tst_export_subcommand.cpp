#include "desktop/Executable.h"

#include <gdal_priv.h>

#include <sys/types.h>
#include <unistd.h>

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
    QVERIFY(QFile::remove(folder_.path(name)));
    QVERIFY(contents(folder_.path()) == before);
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
    for (QString const suffix : {"png", "jpg", "bmp", "tif"}) {
      row("a " + suffix + ", before the drawing", "old." + suffix, 0.4, 0.0);
      row("a " + suffix + ", halfway through the image", "old." + suffix, 1.0, 0.5);
      row("a " + suffix + ", at its last bytes", "old." + suffix, 1.0, 0.95);
    }
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
    QCOMPARE(run(arguments, folder_.path()).status, 0);
    qint64 const imageBytes = QFileInfo(folder_.path(name)).size();
    QVERIFY(QFile::remove(folder_.path(name)));
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
    Rows<QString> row;
    row("without the plug-in", "export page.kdx late.tif --dpi 1500");
    row("through its dialog",
        "run page.kdx answer=lineEdit_OutputPath:late.tif answer=lineEdit_DPI:1500 Plotvane_Export");
  }
  void anInterruptLeavesTheFolderAsItWas() {
    auto const [arguments] = fetched<QString>();
    auto const before = contents(folder_.path());
    QProcess process;
    prepare(process, arguments.split(' '), folder_.path());
    process.start();
    QDir const folder(folder_.path());
    QTRY_VERIFY(!folder.entryList({".plotvane-*", "{*}.tif"}, QDir::AllEntries | QDir::Hidden).isEmpty());
    kill(static_cast<pid_t>(process.processId()), SIGTERM);
    Outcome const outcome = finish(process);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("interrupted"), qPrintable(outcome.err));
    QVERIFY(contents(folder_.path()) == before);
  }

private:
  DocumentFolder folder_;
};

QTEST_GUILESS_MAIN(ExportSubcommandTest)
#include "tst_export_subcommand.moc"
