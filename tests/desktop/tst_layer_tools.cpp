#include "Dialogs.h"
#include "Files.h"
#include "WorkbenchPage.h"

#include "host/SysAdapterUI/SystemChooser.h"
#include "host/SysCarto/document/MapDocumentHost.h"

#include <SysCarto/Map.h>

#include <optional>

using SysCarto::MapFrameElement;

// What a person does with maps and layers by the desktop's own commands.
class LayerToolsTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
  }
  void init() {
    QSettings().clear();
    person_.emplace();
    page_.emplace();
  }
  void cleanup() {
    page_.reset();
    person_.reset();
  }

  void theSystemOfAMapIsChosenInOneStep_data() {
    Rows<QVector<QPair<QString, QString>>, QString> row;
    row("the first that is found", {{"lineEdit_Search", "utm 33n etrs89"}}, "EPSG:25833");
    row("what is written", {{"tabWidget_Systems", "Write"}, {"plainTextEdit_Definition", "+proj=moll +lon_0=11"}},
        "+proj=moll +lon_0=11");
    row("a definition in the search", {{"lineEdit_Search", "+proj=moll +lon_0=11"}}, "+proj=moll +lon_0=11");
    row("the one there is", {}, "EPSG:3035");
  }
  void theSystemOfAMapIsChosenInOneStep() {
    auto const [answers, expected] = fetched<QVector<QPair<QString, QString>>, QString>();
    QVERIFY(!page_->bench.commands().find("Host_CoordinateSystem")->command->IsEnable());
    auto const map = page_->add<MapFrameElement>(1, 1, 11, 11)->GetMap();
    map->SetCoordinateSystem("EPSG:3035");
    auto const& document = page_->bench.session().document();
    QByteArray const before = SysCarto::MapDocumentHost::text(document);
    for (auto const& [widget, value] : answers) person_->sets(widget, value);
    if (answers.isEmpty()) person_->accepts();
    QVERIFY(page_->run("Host_CoordinateSystem"));
    QCOMPARE(person_->problem(), QString());
    QCOMPARE(map->GetCoordinateSystem(), expected);
    QCOMPARE(document.GetOperationStack()->CanUndo(), !answers.isEmpty());
    if (answers.isEmpty()) return;
    document.GetOperationStack()->Undo();
    QCOMPARE(SysCarto::MapDocumentHost::text(document), before);
  }

  void aDefinitionIsCheckedAsItIsWritten() {
    SysAdapterUI::SystemChooser dialog({"+proj=laea", "None", {}, {}}, nullptr);
    auto* const own = dialog.findChild<QPlainTextEdit*>("plainTextEdit_Definition");
    auto* const problem = dialog.findChild<QLabel*>("label_Problem");
    auto* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
    QCOMPARE(own->toPlainText(), QString("+proj=laea"));
    QVERIFY(ok->isEnabled() && problem->text().isEmpty());
    own->setPlainText("+proj=laea +nadgrids=secret.gsb");
    QVERIFY(!ok->isEnabled() && problem->text().contains("names a file"));
    own->setPlainText("EPSG:3857");
    QVERIFY(ok->isEnabled() && problem->text().isEmpty());
    QVERIFY(dialog.findChild<QLabel*>("label_Facts")->text().contains("Pseudo-Mercator"));
    dialog.findChild<QTabWidget*>()->setCurrentIndex(0);
    dialog.findChild<QLineEdit*>("lineEdit_Search")->setText("nonsense of no system");
    QVERIFY(!ok->isEnabled());
  }

  void whatWasChosenLatelyComesFirst() {
    auto const firstRows = [] {
      SysAdapterUI::SystemChooser dialog({{}, "None", {"EPSG:3035"}, {}}, nullptr);
      auto const* const model = dialog.findChild<QTreeView*>("treeView_Systems")->model();
      QStringList codes;
      for (int row = 0; row < 4; ++row) codes << model->index(row, 1).data().toString();
      return codes;
    };
    auto const map = page_->add<MapFrameElement>(1, 1, 11, 11)->GetMap();
    for (char const* code : {"2154", "27700"}) {
      person_->sets("lineEdit_Search", code);
      QVERIFY(page_->run("Host_CoordinateSystem"));
    }
    QCOMPARE(map->GetCoordinateSystem(), QString("EPSG:27700"));
    QCOMPARE(firstRows().mid(1), QStringList({"EPSG:3035", "EPSG:27700", "EPSG:2154"}));
  }

private:
  QTemporaryDir folder_;
  std::optional<WorkbenchPage> page_;
  std::optional<Person> person_;
};

QTEST_MAIN(LayerToolsTest)
#include "tst_layer_tools.moc"
