#include "Dialogs.h"
#include "Pictures.h"
#include "desktop/WorldWindow.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/NoticeBar.h"
#include "host/desktop/connections/KeptConnections.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <future>
#include <utility>

using SysCarto::MapDocumentHost;

// While they are held, nothing is read that nobody waits for.
class HeldReadings {
public:
  HeldReadings() {
    std::shared_future<void> const ended = ended_.get_future().share();
    for (int i = 0; i < QThread::idealThreadCount(); ++i) SysCarto::queueReading([ended] { ended.wait(); });
  }
  ~HeldReadings() { end(); }
  void end() {
    if (!std::exchange(hasEnded_, true)) ended_.set_value();
  }

private:
  std::promise<void> ended_;
  bool hasEnded_ = false;
};

/// The window among files: what it opens and saves, and what others do to them meanwhile.
class WindowFilesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareWorld(folder_.path()); }

  void aDocumentThatCanNotBeReadChangesNothing() {
    QString const file = put(folder_.filePath("broken.kdx"), "{");
    WorldWindow sample;
    Person person;
    QVERIFY(!sample.window.open(file));
    QVERIFY(person.problem().contains("broken.kdx"));
    QCOMPARE(sample.window.bench().session().path(), world);
  }

  void aSavedNameGetsItsSuffix() {
    WorldWindow sample;
    Person person;
    person.sets("file", folder_.filePath("map.v2"));
    sample.trigger("Host_SaveAs");
    QCOMPARE(sample.window.bench().session().path(), folder_.filePath("map.v2.kdx"));
  }

  void anEditFromOutsideIsToldAndNotOverwritten_data() {
    Rows<QString, bool> row;
    row("No keeps the file as it is now", "No", false);
    row("Yes writes over it", "Yes", true);
  }
  void anEditFromOutsideIsToldAndNotOverwritten() {
    auto const [answer, writes] = fetched<QString, bool>();
    WorldWindow sample;
    QString const path = folder_.filePath("edited.kdx");
    QVERIFY(sample.window.bench().session().saveAs(path));
    auto* const notice = sample.window.findChild<NoticeBar*>();
    QTest::qWait(500);
    QVERIFY(!notice->isVisible());  // it was the window's own save
    QByteArray const theirs = contentOf(path) + '\n';
    QFile::rename(put(folder_.filePath("theirs"), theirs), folder_.filePath("edited.kdx.new"));
    QCOMPARE(std::rename(qPrintable(path + ".new"), qPrintable(path)), 0);
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(notice->findChild<QLabel*>("label_Notice")->text().contains("edited.kdx"));

    sample.trigger("Host_SelectAll");
    sample.trigger("Host_Delete");
    Person person;
    person.presses(answer);
    sample.trigger("Host_Save");
    QCOMPARE(contentOf(path) != theirs, writes);
    QCOMPARE(sample.window.isWindowModified(), !writes);
    MapDocumentHost::history(sample.document())->setClean();
  }

  void aDocumentThatItsFileDoesNotHoldCanBeSaved_data() {
    Rows<QByteArray, QString, QString, bool> row;
    row("removed, and kept", QByteArray(), "Keep", {}, false);
    row("edited, and kept", "{ }", "Keep", {}, false);
    row("edited, and changes here are not dropped", "{ }", "Reload", "No", true);
    row("edited so that it can't be read", "{", "Reload", "OK", true);
  }
  void aDocumentThatItsFileDoesNotHoldCanBeSaved() {
    auto const [theirs, button, answer, keepsNotice] = fetched<QByteArray, QString, QString, bool>();
    WorldWindow sample;
    QString const path = folder_.filePath("lost.kdx");
    QVERIFY(sample.window.bench().session().saveAs(path));
    if (answer == "No") sample.trigger("Host_SelectAll"), sample.trigger("Host_Delete");
    auto* const notice = sample.window.findChild<NoticeBar*>();
    QVERIFY(QFile::remove(path));
    if (!theirs.isEmpty()) put(path, theirs);
    QTRY_VERIFY(notice->isVisible());
    Person person;
    if (!answer.isEmpty()) person.presses(answer);
    notice->findChild<QPushButton*>("pushButton_" + button)->click();
    QCOMPARE(notice->isVisible(), keepsNotice);
    QTRY_VERIFY(sample.isEnabled("Host_Save") && sample.window.isWindowModified());
    QVERIFY(sample.window.bench().session().save());
    QTRY_VERIFY(!sample.window.isWindowModified() && !notice->isVisible());
  }

  void dataThatChangeAreReadAgain() {
    WorldWindow sample;
    auto* const notice = sample.window.findChild<NoticeBar*>();
    QString const file = folder_.filePath("data/sphere.geojson");
    auto const layer = [&] {
      for (auto const& one : sample.document().GetMap(0)->GetLayers())
        if (auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(one))
          if (vector->source().file == file) return vector;
      return _ptr_t<SysCarto::VectorLayer>();
    };
    QByteArray const before = contentOf(file);
    QVERIFY(layer() && layer()->features().size() > 0);
    put(file, "{\"type\":\"FeatureCollection\",\"features\":[]}");
    QTRY_VERIFY(notice->isVisible());
    notice->findChild<QPushButton*>("pushButton_Reload")->click();
    QVERIFY(layer()->features().size() == 0);
    QVERIFY(!notice->isVisible());

    QVERIFY(QFile::remove(file));
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(!notice->findChild<QPushButton*>("pushButton_Reload")->isVisible());
    put(file, before);
    QTRY_VERIFY(notice->findChild<QPushButton*>("pushButton_Reload")->isVisible());
  }

  void otherFoldersAreToldOnceUntilTheyAreAllowed() {
    QString const path = folder_.filePath("elsewhere/moved.kdx");
    QVERIFY(QDir(folder_.path()).mkpath("elsewhere"));
    {
      WorldWindow sample;
      QVERIFY(sample.window.bench().session().saveAs(path));
      QVERIFY(!sample.window.findChild<NoticeBar*>()->isVisible());
    }
    auto const tells = [&](MainWindow& window) {
      bool const isOpen = window.open(path);
      return isOpen && window.findChild<NoticeBar*>()->isVisibleTo(&window) &&
             window.findChild<QLabel*>("label_Notice")->text().contains(folder_.filePath("data"));
    };
    {
      MainWindow window;
      QVERIFY(tells(window));
      QVERIFY(!tells(window));  // again: it is known
    }
    {
      MainWindow window;
      QVERIFY(tells(window));
      auto* const notice = window.findChild<NoticeBar*>();
      notice->tell("Something else.", true);
      notice->tell("Something more.", false);
      QString const text = window.findChild<QLabel*>("label_Notice")->text();
      QVERIFY(text.startsWith("Something more.\n") && text.contains(folder_.filePath("data")));
      window.findChild<QPushButton*>("pushButton_Offer")->click();
      QCOMPARE(window.findChild<QLabel*>("label_Notice")->text(), QString("Something more."));
      window.findChild<QPushButton*>("pushButton_Keep")->click();
      QVERIFY(!notice->isVisibleTo(&window));
    }
    {
      MainWindow window;
      QVERIFY(!tells(window));
      Person person;
      person.accepts();
      window.actions().find("Host_AllowedFolders")->trigger();
    }
    QCOMPARE(QSettings().value("files/allowedFolders").toString(), folder_.filePath("data"));
    QSettings().remove("files/allowedFolders");
  }

  void aDatabaseIsNotContactedUntilItIsAllowed() {
    int const deaf = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, qPrintable(folder_.filePath(".s.PGSQL.5432")));
    QVERIFY(bind(deaf, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 && listen(deaf, 1) == 0);
    SysCarto::Connection city;
    city.name = "city";
    city.host = folder_.path();
    city.seconds = 1;
    QCOMPARE(KeptConnections{{city}}.keep(), QString());
    QJsonObject document = QJsonDocument::fromJson(contentOf(world)).object();
    QJsonObject const source{{"connection", "city"}, {"layer", "public.parcels"}};
    QJsonObject const layer{
        {"type", "feature"},
        {"name", "Parcels"},
        {"source", source},
        {"renderer", QJsonObject{{"type", "simple"}, {"symbol", QJsonObject{{"type", "simpleFill"}}}}}};
    QJsonArray maps = document["maps"].toArray();
    QJsonObject map = maps.first().toObject();
    map["layers"] = QJsonArray{layer};
    maps[0] = map;
    document["maps"] = maps;
    MainWindow window;
    Person person;
    QVERIFY(window.open(put(folder_.filePath("city.kdx"), QJsonDocument(document).toJson())));
    QVERIFY(window.findChild<QLabel*>("label_Notice")->text().contains("city"));
    QVERIFY(accept(deaf, nullptr, nullptr) < 0);
    person.presses("OK");  // that not all could be read
    window.findChild<QPushButton*>("pushButton_Offer")->click();
    QVERIFY(accept(deaf, nullptr, nullptr) >= 0);
    QVERIFY(KeptConnections::kept().find("city")->forDocuments);
    KeptConnections().keep();
    close(deaf);
  }

  void theSecondWindowOnlyReads() {
    WorldWindow first;
    MainWindow second;
    Person person;
    person.presses("No");
    QVERIFY(!second.open(world));
    person.presses("Yes");
    QVERIFY(second.open(world));
    QTRY_VERIFY(second.windowTitle().contains("read-only"));
    QByteArray const before = contentOf(world);
    QString const other = folder_.filePath("other.kdx");
    person.sets("file", other);
    second.bench().commands().find("Host_Save")->command->OnClick();
    QVERIFY(contentOf(world) == before && QFile::exists(other));
    QTRY_VERIFY(!second.windowTitle().contains("read-only"));
  }

  void aDeadOwnersLockIsTakenOver() {
    put(folder_.filePath(".world.kdx.lock"), "4194303\nplotvane\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    Person person;  // who has nothing to answer
    WorldWindow sample;
  }

  void missingDataAreToldBeforeAnExport() {
    QString const file = folder_.filePath("data/sphere.geojson");
    QByteArray const before = contentOf(file);
    QVERIFY(QFile::remove(file));
    Person person;
    person.accepts();
    WorldWindow sample;
    put(file, before);
    person.presses("No");
    sample.trigger("Plotvane_Export");
    sample.trigger("Plotvane_Export");
    QVERIFY(person.problem().contains("sphere.geojson"));
  }

  // The page, its contents and what is done to it are there before the data are.
  void aPageIsThereBeforeItsData() {
    QString const missing = folder_.filePath("data/sphere.geojson"), other = folder_.filePath("meanwhile.kdx");
    WorldWindow sample;
    WorkbenchPage page(sample.window.bench());
    auto const isComplete = [&] { return page.view().isComplete(); };
    QTRY_VERIFY_WITH_TIMEOUT(isComplete(), patienceMs);
    QImage const whole = page.view().grab().toImage();
    Person person;
    ToldTexts told;
    {
      HeldReadings const held;
      QVERIFY(sample.window.open(world));
      QTest::qWait(300);
      QVERIFY(isBeingRead(sample.window) && !isComplete());
      QVERIFY(ink(page.view().grab().toImage()).pixels > 0);
      auto& rows = *sample.window.findChild<QTreeView*>("treeView_Contents")->model();
      QCOMPARE(rows.rowCount(rows.index(0, 0)), 5);
      sample.trigger("Host_SelectAll");
      sample.trigger("Host_Delete");
      sample.trigger("Host_Undo");
      QVERIFY(sample.window.bench().session().saveAs(other));
      QVERIFY(isBeingRead(sample.window));
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isBeingRead(sample.window) && isComplete(), patienceMs);
    sample.trigger("Host_Unselect");
    QTRY_COMPARE_WITH_TIMEOUT(page.view().grab().toImage(), whole, patienceMs);
    SysCarto::MapDocument saved;
    QVERIFY(saved.Open(other));
    QCOMPARE(MapDocumentHost::text(saved), MapDocumentHost::text(sample.document()));

    QByteArray const before = contentOf(missing);
    QVERIFY(QFile::remove(missing));
    {
      HeldReadings held;
      QVERIFY(sample.window.open(other));
      QVERIFY(sample.window.open(world));  // what was not read of the former one is told nobody
      QTimer soon;
      connect(&soon, &QTimer::timeout, [&] { held.end(); });
      soon.start(200);
      person.presses("No");
      person.accepts();
      sample.trigger("Plotvane_Export");
      QVERIFY(!isBeingRead(sample.window));
    }
    QTRY_COMPARE_WITH_TIMEOUT(told.texts.size(), 2, patienceMs);
    QTest::qWait(300);
    QCOMPARE(told.texts.filter("sphere.geojson").size(), 2);  // before the export, and once of what was opened
    put(missing, before);
    HeldReadings const held;
    MainWindow closed;
    QVERIFY(closed.open(other));
  }

  void changesAreNotLostWithoutAQuestion_data() {
    Rows<QString, bool, bool> row;
    row("Cancel keeps the window", "Cancel", false, false);
    row("Discard drops them", "Discard", true, false);
    row("Save writes them", "Save", true, true);
  }
  void changesAreNotLostWithoutAQuestion() {
    auto const [answer, closes, writes] = fetched<QString, bool, bool>();
    QString const path = folder_.filePath("changed.kdx");
    QFile::remove(path);
    WorldWindow sample;
    QVERIFY(sample.window.bench().session().saveAs(path));
    QByteArray const before = contentOf(path);
    sample.trigger("Host_SelectAll");
    sample.trigger("Host_Delete");
    Person person;
    person.presses(answer);
    QCOMPARE(sample.window.close(), closes);
    QCOMPARE(contentOf(path) != before, writes);
  }

  void aDroppedDocumentOpens() {
    MainWindow window;
    window.show();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(world)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QTRY_COMPARE(window.bench().session().path(), world);
    QTRY_VERIFY(window.windowTitle().startsWith("world.kdx"));  // which follows in a turn of its own
  }

private:
  QTemporaryDir folder_;
};

QTEST_MAIN(WindowFilesTest)
#include "tst_window_files.moc"
