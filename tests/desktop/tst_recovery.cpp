#include "Dialogs.h"
#include "desktop/WorldWindow.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/recovery/RecoveryCopy.h"

#include <ctime>

using SysCarto::MapDocumentHost;

namespace {

// As a process that died leaves it: all but its lock. Copies of this process go with their sessions.
void leaveBehind() {
  QDir const copies(recoveryFolder());
  for (QFileInfo const& file : copies.entryInfoList({"*.kdx", "*.png", "*.json"}, QDir::Files))
    QVERIFY(QFile::copy(file.filePath(), copies.filePath("of-the-dead." + file.suffix())));
}

QByteArray copied() {
  QDir const copies(recoveryFolder());
  auto const files = copies.entryInfoList({"*.kdx"}, QDir::Files);
  return files.size() == 1 ? contentOf(files.first().filePath()) : QByteArray();
}

}  // namespace

/// What is left of work that was not saved.
class RecoveryTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareWorld(folder_.path()); }

  void whatWasNotSavedWhenAProcessDiedIsRecovered() {
    QDir const copies(recoveryFolder());
    QByteArray changed;
    {
      WorldWindow sample;
      sample.trigger("Host_SelectAll");
      sample.trigger("Host_Delete");
      changed = MapDocumentHost::text(sample.document());
      RecoveryCopy copy(sample.window.bench().session(), picture_);
      QVERIFY(copy.keep());
      QVERIFY(LostDocument::all().empty());  // its process lives
      leaveBehind();
    }
    QCOMPARE(copies.entryList(QDir::Files).size(), 3);        // the others went with their session
    QStringList const halves{"half.kdx", ".plotvane-new-0"};  // of processes that died before their copies were whole
    for (QString const& half : halves) {
      QFile file(put(copies.filePath(half), "{}"));
      QVERIFY(file.open(QIODevice::Append) &&
              file.setFileTime({{2020, 1, 1}, {0, 0}}, QFileDevice::FileModificationTime));
    }

    MainWindow window;
    Person person;
    person.accepts();
    QVERIFY(window.recover("/other.kdx"));
    QVERIFY(window.findChild<QLabel*>("label_Notice")->text().contains("/other.kdx"));
    auto& session = window.bench().session();
    QCOMPARE(session.path(), world);
    QCOMPARE(MapDocumentHost::text(session.document()), changed);
    for (QString const& half : halves) QVERIFY(!QFile::exists(copies.filePath(half)));
    QVERIFY(session.isModified() && !session.isFileChanged());
    QVERIFY(LostDocument::all().empty());
    MainWindow other;
    person.presses("No");
    QVERIFY(!other.open(world));   // which the window has open
    QVERIFY(session.open(world));  // given up
  }

  void eachChangeComesIntoTheCopy() {
    WorkbenchPage page;
    auto& session = page.bench.session();
    RecoveryCopy copy(session, picture_);
    QVERIFY(!copy.keep() && copied().isEmpty());  // nothing to be lost
    page.add<SysCarto::RectangleElement>(1, 1, 3, 3);
    RecoveryCopy::keepAll();
    QCOMPARE(copied(), text(session));
    session.document().GetOperationStack()->Undo();  // and another step in the place of the first
    page.add<SysCarto::EllipseElement>(5, 1, 9, 3);
    QVERIFY(copy.keep());
    QCOMPARE(copied(), text(session));
    QVERIFY(copied().contains("ellipse"));
    QVERIFY(session.saveAs(folder_.filePath("saved.kdx")));
    QTRY_VERIFY(copied().isEmpty());
  }

  void whatASaveHasIsNotOffered() {
    WorldWindow sample;
    auto& session = sample.window.bench().session();
    QString const file = folder_.filePath("mine.kdx");
    QVERIFY(session.saveAs(file));
    WorkbenchPage(sample.window.bench()).add<SysCarto::RectangleElement>(1, 1, 3, 3);
    RecoveryCopy copy(session, picture_);
    QVERIFY(copy.keep());
    leaveBehind();  // as if it were killed before it removes its copy
    QCOMPARE(LostDocument::all().size(), 1U);
    QVERIFY(session.saveAs(folder_.filePath("other-name.kdx")));
    QCOMPARE(LostDocument::all().size(), 1U);
    QVERIFY(session.saveAs(file));
    QVERIFY(LostDocument::all().empty());
    QVERIFY(!QFile::exists(QDir(recoveryFolder()).filePath("of-the-dead.kdx")));
  }

  void whatCanNotBeKeptIsToldOnce() {
    WorkbenchPage page;
    RecoveryCopy copy(page.bench.session(), picture_);
    QSignalSpy const told(&copy, &RecoveryCopy::told);
    auto const keeps = [&] {
      page.add<SysCarto::RectangleElement>(1, 1, 3, 3);
      return copy.keep();
    };
    QDir folder(recoveryFolder());
    QVERIFY(folder.removeRecursively());
    put(folder.path(), "");  // a file, in which no file can be made
    QVERIFY(!keeps() && !keeps());
    QCOMPARE(told.size(), 1);
    QVERIFY2(told[0][0].toString().contains(folder.path()), qPrintable(told[0][0].toString()));
    QVERIFY(QFile::remove(folder.path()));
    QVERIFY(keeps());
    QVERIFY(folder.removeRecursively());
    put(folder.path(), "");
    QVERIFY(!keeps() && !keeps());
    QCOMPARE(told.size(), 2);
    QVERIFY(QFile::remove(folder.path()));
  }

  // PLOTVANE_PARTS says how many, where the times are to be measured.
  void aLargeDocumentIsReadBetweenEvents_data() {
    Rows<QString> row;
    row("of many elements", "elements");
    row("of many layers", "layers");
  }
  void aLargeDocumentIsReadBetweenEvents() {
    auto const [kind] = fetched<QString>();
    WorkbenchPage page;
    auto& session = page.bench.session();
    page.bench.views().QWidget::hide();  // it is not about what painting takes
    fill(session, kind, qMax(600, qEnvironmentVariableIntValue("PLOTVANE_PARTS")));
    RecoveryCopy copy(session, picture_);
    bool const isMeasured = qEnvironmentVariableIsSet("PLOTVANE_PARTS");
    int turns = 0;
    double longestMs = 0, turnedMs = 0;
    QElapsedTimer whole;
    QTimer turning;
    connect(&turning, &QTimer::timeout, this, [&] {
      longestMs = qMax(longestMs, ownMs() - turnedMs);
      turnedMs = ownMs();
      if (++turns == 5 && !isMeasured) page.add<SysCarto::RectangleElement>(1, 1, 3, 3);  // while it is read
    });
    settle();
    whole.start();
    turnedMs = ownMs();
    turning.start(0);
    copy.update();
    QTRY_VERIFY_WITH_TIMEOUT(!copied().isEmpty(), 60000);
    turning.stop();
    qInfo("%s: read and written in %lld ms; besides the slices, no turn of the events took more than %.1f ms",
          qPrintable(kind), whole.elapsed(), longestMs);
    QVERIFY2(turns > 5, qPrintable(QString::number(turns)));
    QCOMPARE(copied(), text(session));
    QVERIFY(isMeasured || copied().contains("\"rectangle\": ["));
    QVERIFY(session.create());
  }

private:
  // What this thread has had of the processor, so that it does not count who else is busy.
  static double ownMs() {
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
  }

  static void settle() {
    for (int i = 0; i < 20; ++i) QCoreApplication::processEvents();
  }

  static QByteArray text(DocumentSession& session) {
    return SysUtility::jsonText(*MapDocumentHost::jsonForAnywhere(session.document()));
  }

  static void fill(DocumentSession& session, QString const& kind, int count) {
    QJsonObject whole = QJsonDocument::fromJson(contentOf(world)).object();
    if (kind == "layers") {
      QJsonArray maps = whole["maps"].toArray(), layers;
      QJsonObject map = maps[0].toObject();
      QJsonArray const few = map["layers"].toArray();
      for (int i = 0; i < count; ++i) {
        QJsonObject layer = few[i % few.size()].toObject();
        layer["source"] = QJsonObject{{"file", "nowhere.gpkg"}, {"layer", "none"}};  // it is not about what they show
        layers.append(layer);
      }
      map["layers"] = layers;
      maps[0] = map;
      whole["maps"] = maps;
    } else {
      QJsonArray elements = whole["elements"].toArray();
      QJsonObject const one =
          json("{'type': 'text', 'text': 'A text', 'position': [3, 4], 'symbol': {'type': 'text'}}");
      for (int i = 0; i < count; ++i) elements.append(one);
      whole["elements"] = elements;
    }
    SysCarto::MapDocument made;
    QVERIFY(MapDocumentHost::read(made, whole, QFileInfo(world).path()));
    session.takeOver(made);
  }

  QTemporaryDir folder_;
  std::function<QImage()> const picture_ = [] { return QImage(4, 3, QImage::Format_RGB32); };
};

QTEST_MAIN(RecoveryTest)
#include "tst_recovery.moc"
