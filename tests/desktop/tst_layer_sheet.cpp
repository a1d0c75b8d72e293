#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysAdapterUI/ContentsTree.h"
#include "host/SysAdapterUI/EntryTable.h"
#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/ClassCounts.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/RunSteps.h"
#include "host/desktop/layers/LayerActions.h"
#include "host/desktop/layers/sheet/ConditionDialog.h"
#include "host/desktop/layers/sheet/JoinDialog.h"
#include "host/desktop/layers/sheet/JoinKeys.h"
#include "host/desktop/layers/sheet/LayerSheet.h"

#include <QAbstractItemModelTester>

using SysAdapterUI::EntryTable;
using SysAdapterUI::PropertyModel;
using SysAdapterUI::PropertySheet;
using SysCarto::ClassCounts;
using SysCarto::LayerRow;
using SysCarto::MapDocumentHost;
using SysCarto::RendererSettings;
using SysCarto::SourceSettings;
using SysUtility::SheetField;

namespace {

// Of what holds no other fields.
void collect(QVector<SheetField> const& fields, QString const& outer, QStringList& paths) {
  for (int i = 0; i < fields.size(); ++i) {
    bool const isEntry = fields[i].key().isEmpty() || outer.endsWith("[]");
    QString const path = isEntry ? outer.chopped(2) + '/' + QString::number(i) : outer + '/' + fields[i].key();
    bool const isList = fields[i].info.kind == SysUtility::FieldInfo::Kind::List;
    if (fields[i].fields.isEmpty()) paths << path;
    collect(fields[i].fields, isList ? path + "[]" : path, paths);
  }
}

void collect(PropertyModel const& model, QModelIndex const& parent, QStringList& paths) {
  for (int i = 0; i < model.rowCount(parent); ++i) {
    QModelIndex const index = model.index(i, 0, parent);
    auto const row = model.row(index);
    if (row.part != SysAdapterUI::PropertyPart::Field) continue;
    if (row.field->fields.isEmpty()) paths << '/' + row.path.join('/');
    collect(model, index, paths);
  }
}

template <class Widget>
Widget& in(QWidget& parent, char const* name) {
  return *parent.findChild<Widget*>(name);
}

QString tested(QWidget& parent, char const* button = "pushButton_Test") {
  in<QPushButton>(parent, button).click();
  auto const isDone = [&] { return !in<QPushButton>(parent, "pushButton_StopTest").isVisibleTo(&parent); };
  if (!QTest::qWaitFor(isDone, 20000)) return "is still busy";
  return in<QLabel>(parent, "label_Test").text();
}

SysCarto::SymbolClass rule(QString const& filter, SysCarto::ScaleRange const& scales = {}) {
  SysCarto::SymbolClass made;
  made.filter = filter;
  made.scales = scales;
  return made;
}

std::vector<qint64> countsOf(SourceSettings const& source, RendererSettings const& renderer) {
  QString problem;
  auto const counts = ClassCounts::open(source, renderer, problem);
  while (counts && counts->advance(0)) continue;
  std::vector<qint64> all = counts ? counts->counts() : std::vector<qint64>();
  if (counts) all.push_back(counts->others());
  return all;
}

}  // namespace

/// Everything about a layer in a dialog of tabs, and its editors of conditions, classes and joined tables.
class LayerSheetTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    towns_ = written(folder_, "towns.csv",
                     "x,y,code,town name,people,rank\n1,1,a1,O'Hara,10,1\n2,2,a2,Bern,20,2\n3,3,a3,Ulm,30,3\n"
                     "4,4,a4,Rom,40,1\n5,5,a5,,,2\n");
    written(folder_, "towns.csvt", "Real,Real,String,String,Integer,Integer\n");
    areas_ = written(folder_, "areas.csv", "rank,id,area\n1,a3,7\n2,a1,8\n1,a4,9\n2,zz,3\n");
    WorkbenchPage page;
    auto const map = page.add<SysCarto::MapFrameElement>(1, 1, 9, 9)->GetMap();
    map->SetName("M");
    map->AddLayer(opened({towns_, {}, {}, {}}, {}, make<SysDisplay::SimpleMarkerSymbol>()).layer);
    map->GetLayers()[0]->SetName("Towns");
    QVERIFY(page.bench.session().saveAs(folder_.filePath("start.kdx")));
  }

  void everyFieldOfALayerStandsOnOneTab() {
    WorkbenchPage page;
    auto& document = page.bench.session().document();
    QVERIFY(page.bench.session().open(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
    LayerSheet sheet(page.bench.session(), nullptr);
    QList<_ptr_t<SysCarto::Map>> maps;
    document.GetMaps(maps);
    int layers = 0;
    for (auto const& map : maps)
      for (auto const& layer : map->GetLayers()) {
        sheet.showLayer({map, nullptr, layer});
        QStringList wanted, shown;
        collect(SysCarto::Editable::fields(document, {SysCarto::Editable::layer(map, layer)})[0], {}, wanted);
        for (auto* const one : sheet.findChildren<PropertySheet*>()) {
          QStringList own;
          collect(one->model(), {}, own);
          QVERIFY(!own.isEmpty() || layer->GetType() == SysCarto::LayerType::Raster);
          shown += own;
        }
        wanted.sort();
        shown.sort();
        QCOMPARE(shown, wanted);
        ++layers;

        // Ctrl+Tab comes to each tab that there is, and to no other.
        auto& pages = in<QTabWidget>(sheet, "tabWidget_Layer");
        int there = 0, come = 0;
        for (int i = 0; i < pages.count(); ++i) there += pages.isTabVisible(i) ? 1 : 0;
        pages.setCurrentIndex(0);
        do {
          QVERIFY(pages.isTabVisible(pages.currentIndex()));
          QTest::keyClick(&pages, Qt::Key_Tab, Qt::ControlModifier);
          ++come;
        } while (pages.currentIndex() != 0 && come < pages.count());
        QCOMPARE(come, there);
      }
    QVERIFY(layers > 4);
  }

  void whatIsChangedIsOneStepAndUndoneExactly() {
    WorkbenchPage page;
    LayerSheet sheet(page.bench.session(), nullptr);
    LayerRow const towns = show(page, sheet, "Symbols");
    auto& document = page.bench.session().document();
    auto const history = document.GetOperationStack();
    QByteArray const start = MapDocumentHost::text(document);
    auto& slider = in<QSlider>(sheet, "slider_Opacity");
    slider.setSliderDown(true);
    for (int const percent : {90, 60, 30}) slider.setValue(percent);
    QVERIFY(!history->CanUndo());
    slider.setSliderDown(false);
    QCOMPARE(SysCarto::LayerHost::effects(*towns.layer).opacityPercent, 30.0);
    history->Undo();
    QVERIFY(!history->CanUndo());
    QTRY_COMPARE(slider.value(), 100);
    QVERIFY(MapDocumentHost::text(document) == start);
    for (int const percent : {90, 95, 100}) slider.setValue(percent);  // back before anybody looked
    QVERIFY(!history->CanUndo() && !history->CanRedo());
    QVERIFY(MapDocumentHost::text(document) == start);

    // Rules come, are copied, moved and removed in the table.
    auto& page1 = in<QWidget>(sheet, "Symbols");
    auto& table = *page1.findChild<EntryTable*>();
    QAbstractItemModelTester const tester(&table.entries(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    auto& model = table.entries().fields();
    QVERIFY(table.isHidden());
    QVERIFY(model.take(model.indexOf({"renderer", "type"}), "rules", {}));
    model.refresh();
    QVERIFY(!table.isHidden());
    for (char const* const name : {"AddEntry", "AddEntry"})
      in<QPushButton>(page1, QByteArray("pushButton_").append(name)).click();
    auto const column = [&](QString const& caption) {
      for (int i = 0; i < table.entries().columnCount(); ++i)
        if (table.entries().headerData(i, Qt::Horizontal, Qt::DisplayRole) == caption) return i;
      return -1;
    };
    auto const filters = [&] {
      QStringList shown;
      for (int i = 0; i < table.entries().rowCount(); ++i)
        shown << table.entries().index(i, column("Filter")).data().toString();
      return shown.join('|');
    };
    type(table, 0, column("Filter"), "people > 15");
    type(table, 1, column("Filter"), "people > 35");
    table.view().setCurrentIndex(table.entries().index(0, 1));
    in<QPushButton>(page1, "pushButton_CopyEntry").click();
    QCOMPARE(filters(), QString("people > 15|people > 15|people > 35"));
    in<QPushButton>(page1, "pushButton_LowerEntry").click();
    table.view().setCurrentIndex(table.entries().index(0, 1));
    QTest::keyClick(&table.view(), Qt::Key_Delete);
    QTRY_COMPARE(filters(), QString("people > 35|people > 15"));
    QCOMPARE(tested(page1), QString("Features: 5. In no class: 2."));
    auto const count = [&](int row) {
      int const features = column("Features");
      return features < 0 ? QString() : table.entries().index(row, features).data().toString();
    };
    QCOMPARE(count(0) + ' ' + count(1), QString("1 2"));
    // What is being edited stays so while counts come and go.
    QModelIndex const edited = table.entries().index(0, column("Filter"));
    table.view().edit(edited);
    QPointer<QWidget> const editor = table.view().indexWidget(edited);
    table.entries().setCounts({});
    table.entries().setCounts({1, 2});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(editor && table.view().indexWidget(edited) == editor);
    table.finish();
    type(table, 0, column("Filter"), "people > 25");
    QTRY_COMPARE(count(0), QString());  // no longer true
    while (history->CanUndo()) history->Undo();
    QVERIFY(MapDocumentHost::text(document) == start);

    // Classes become rules, and a new one begins with the symbol of the one before.
    QStringList warnings;
    auto const set = [&](QStringList const& path, QJsonValue const& value) {
      return SysCarto::Editable::set(
          document, {SysCarto::Editable::layer(towns.map, towns.layer)}, path, [&](QJsonValue const&) { return value; },
          warnings);
    };
    QCOMPARE(set({"renderer", "type"}, "uniqueValues"), QString());
    for (int i = 0; i < 2; ++i) QCOMPARE(set({"renderer", "classes", "-"}, QJsonObject()), QString());
    QCOMPARE(set({"renderer", "type"}, "rules"), QString());
    QCOMPARE(set({"renderer", "rules", "-"}, QJsonObject()), QString());
    auto const& drawn = SysUtility::ptr_cast<SysCarto::VectorLayer>(towns.layer)->renderer().settings();
    QVERIFY(SysUtility::ptr_cast<SysDisplay::SimpleMarkerSymbol>(drawn.classes.at(0).symbol));
    while (history->CanUndo()) history->Undo();
    QVERIFY(MapDocumentHost::text(document) == start);

    // What is closed counts no more, and has no counts.
    auto const filter = [&] { return in<QLabel>(in<QWidget>(sheet, "Source"), "label_Test").text(); };
    QCOMPARE(tested(in<QWidget>(sheet, "Source")), QString("5 of 5 features pass."));
    sheet.close();
    QCOMPARE(filter(), QString());
    sheet.showLayer(towns);

    // The file of another layer is not that of this one.
    auto const system = [&] { return in<QLabel>(sheet, "label_FileSystem").text(); };
    QTRY_COMPARE(system(), QString("The file says: WGS 84 (EPSG:4326)."));
    QCOMPARE(set({"source", "file"}, "none.csv"), QString());
    QTRY_VERIFY2(system().contains("none.csv"), qPrintable(system()));
    QCOMPARE(set({"source", "data"}, "globe"), QString());
    QTRY_COMPARE(system(), QString("The layer has no file."));

    // What has gone is no longer shown.
    LayerActions::remove({towns});
    QTRY_VERIFY(!sheet.isVisible() && !sheet.layer().layer);
  }

  void countsAreThoseOfTheConditions() {
    using Range = SysCarto::ScaleRange;
    SourceSettings const towns{towns_, {}, {}, {}};
    RendererSettings rules;
    rules.kind = RendererSettings::Kind::Rules;
    rules.classes = {rule("people > 15", Range{0, 5000}), rule("people > 25"), rule("people > 35", Range{0, 1000})};
    rules.classes.push_back(rule("", Range{100, 900}));
    // The first takes from the third and the last one, which draw where it does; the second from these, too.
    QCOMPARE(countsOf(towns, rules), std::vector<qint64>({3, 2, 0, 2, 0}));
    rules.allMatch = true;
    QCOMPARE(countsOf(towns, rules), std::vector<qint64>({3, 2, 1, 5, 0}));
    RendererSettings values;
    values.kind = RendererSettings::Kind::UniqueValues;
    values.field = "rank";
    values.classes = {{"one", {"1"}, 0, nullptr}, {"three", {"3"}, 0, nullptr}};
    QCOMPARE(countsOf(towns, values), std::vector<qint64>({2, 1, 2}));
    QCOMPARE(countsOf({towns_, {}, "rank <> 1", {}}, values), std::vector<qint64>({0, 1, 2}));
    RendererSettings numbers;
    numbers.kind = RendererSettings::Kind::Graduated;
    numbers.field = "people";
    numbers.classes = {{"low", {}, 15, nullptr}, {"high", {}, 30, nullptr}};
    QCOMPARE(countsOf(towns, numbers), std::vector<qint64>({1, 2, 2}));
  }

  void aConditionIsWrittenOfFieldsAndValuesAndTested() {
    using Kind = ConditionDialog::Kind;
    ConditionDialog dialog({towns_, {}, {}, {}}, Kind::Condition, {}, nullptr);
    dialog.show();
    auto& names = in<QTreeWidget>(dialog, "treeWidget_Fields");
    auto& values = in<QListWidget>(dialog, "listWidget_Values");
    QCOMPARE(names.topLevelItem(4)->text(1), QString("whole number"));
    names.setCurrentItem(names.topLevelItem(3));
    QTRY_COMPARE(values.count(), 5);
    QSignalSpy const closed(&dialog, &QDialog::finished);
    QTest::keyClick(&names, Qt::Key_Return);
    for (auto* const button : dialog.findChildren<QPushButton*>())
      if (button->text() == "=") button->click();
    QTRY_COMPARE(values.item(1)->text(), QString("Bern"));  // in order
    values.setCurrentRow(2);
    QTest::keyClick(&values, Qt::Key_Return);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(dialog.text(), QString("\"town name\" = 'O''Hara'"));
    QCOMPARE(tested(dialog), QString("1 of 5 features pass."));
    auto& text = in<QPlainTextEdit>(dialog, "plainTextEdit_Condition");
    text.setPlainText("people >");
    QVERIFY(tested(dialog).startsWith("The condition “people >” is not understood: "));
    dialog.accept();
    QCOMPARE(closed.count(), 0);
    text.setPlainText("\"town name\" IN ('Bern'");  // a list goes on
    text.moveCursor(QTextCursor::End);
    QTest::keyClick(&values, Qt::Key_Return);
    QVERIFY2(dialog.text().endsWith("IN ('Bern', 'O''Hara'"), qPrintable(dialog.text()));
    text.setPlainText("nothing = 1");
    QVERIFY2(tested(dialog).contains("nothing"), qPrintable(tested(dialog)));

    // Names that are words of the language, or have its marks in them.
    QByteArray json = geoJson("{'type':'Point','coordinates':[1,2]}").replace('\'', '"');
    json.replace("\"name\":\"A\"", "\"order\":3,\"a\\\"b\":4,\"ß\":5");
    QString const odd = written(folder_, "odd.geojson", json);
    for (char const* const name : {"order", "a\"b", "ß"}) {
      QString problem;
      QString const condition = ConditionDialog::quotedField(QString::fromUtf8(name)) + " > 2";
      auto const counts = ClassCounts::open({odd, {}, {}, {}}, condition, problem);
      QVERIFY2(counts && !counts->advance(1000), qPrintable(problem));
      QCOMPARE(counts->counts().front(), qint64(1));
    }

    // What can't be read to its end is not counted.
    QString const broken = written(folder_, "broken.geojsonl", feature("null", "A") + "\n{\"type\":\n");
    ConditionDialog half({broken, {}, {}, {}}, Kind::Condition, "name = 'A'", nullptr);
    QVERIFY2(tested(half).startsWith("Not all of " + broken), qPrintable(tested(half)));

    ConditionDialog expression({towns_, {}, "people > 15", {}}, Kind::Expression, "people * 2", nullptr);
    QCOMPARE(tested(expression, "pushButton_TestExpression"), QString("Of the first features: 40; 60; 80"));
  }

  // Of very many features, the window gets its turn meanwhile.
  void aLongTestGoesOnInSlicesAndIsStopped() {
    QByteArray rows = "x,y,name\n";
    for (int i = 0; i < 200000; ++i) rows += "1,2,a name as long as many\n";
    QString const many = written(folder_, "many.csv", rows);
    ConditionDialog dialog({many, {}, {}, {}}, ConditionDialog::Kind::Condition, "name LIKE '%b%'", nullptr);
    QElapsedTimer clock;
    clock.start();
    in<QPushButton>(dialog, "pushButton_Test").click();
    auto& stop = in<QPushButton>(dialog, "pushButton_StopTest");
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(stop.isVisibleTo(&dialog));
    stop.click();
    QCOMPARE(in<QLabel>(dialog, "label_Test").text(), QString("Stopped before all features were read."));
  }

  void aTableIsJoinedByTheKeysThatFit() {
    SourceSettings const towns{towns_, {}, {}, {}};
    QString problem;
    auto const join = guessJoin(towns, areas_, {}, problem);  // and not by the rank, which both have
    QCOMPARE(QStringList({join.key, join.tableKey, problem}), QStringList({"code", "id", ""}));
    JoinDialog dialog(towns, {areas_, {}, {}, {}, {}}, folder_.path(), nullptr);
    auto& label = in<QLabel>(dialog, "label_Test");
    QTRY_VERIFY2(label.text().startsWith("2 of 5 features found no row"), qPrintable(label.text()));
    QVERIFY(dialog.join() == join);
    in<QComboBox>(dialog, "comboBox_TableKey").setCurrentText("area");
    QTRY_VERIFY2(label.text().startsWith("No feature found a row"), qPrintable(label.text()));

    JoinDialog const inAnyCase(towns, {areas_, {}, "CODE", "Area", {}}, folder_.path(), nullptr);
    QCOMPARE(inAnyCase.join().key + ' ' + inAnyCase.join().tableKey, QString("code area"));
    JoinDialog const lost(towns, {areas_, {}, "code", "number", {}}, folder_.path(), nullptr);
    QCOMPARE(lost.join().tableKey, QString("number"));

    WorkbenchPage page;
    LayerSheet sheet(page.bench.session(), nullptr);
    LayerRow const row = show(page, sheet, "Tables");
    auto& document = page.bench.session().document();
    QByteArray const start = MapDocumentHost::text(document);
    auto& joins = in<QWidget>(sheet, "Tables");
    {
      Person person;
      person.sets("file", areas_);
      person.sets("lineEdit_Prefix", "t_");
      person.accepts();
      in<QPushButton>(joins, "pushButton_AddEntry").click();
    }
    auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(row.layer);
    QVERIFY(SysCarto::attributesOf(layer->source()).contains("t_area"));
    QVERIFY(in<QLabel>(sheet, "label_Told").text().contains("2 of 5 features found no row"));
    QVERIFY(MapDocumentHost::text(document).contains("\"file\": \"areas.csv\""));
    page.bench.session().document().GetOperationStack()->Undo();
    QVERIFY(MapDocumentHost::text(document) == start);
  }

  void stepsDoTheSameWithoutAWindow() {
    RunSteps steps(true);
    QCOMPARE(steps.open(folder_.filePath("start.kdx")), QString());
    QString const condition = "count=layer:M/Towns:";
    QCOMPARE(steps.check({condition + "people > 1", "count=layer:M/Towns", "join=layer:M/Towns@" + areas_}), QString());
    QCOMPARE(steps.run("join=layer:M/Towns@" + areas_), QString());
    QCOMPARE(steps.run(condition + "area > 7"), QString());
    QVERIFY(steps.run(condition + "nothing > 7").contains("is not understood"));
    QVERIFY(steps.run("join=layer:M/Towns@" + sample("none.csv")).contains("none.csv"));
    QCOMPARE(steps.run("save=" + folder_.filePath("joined.kdx")), QString());
    QVERIFY(contentOf(folder_.filePath("joined.kdx")).contains("\"tableKey\": \"id\""));
  }

  void aLayerIsOpenedFromTheContents() {
    MainWindow window;
    window.show();
    window.open(folder_.filePath("start.kdx"));
    auto& tree = *window.findChild<SysAdapterUI::ContentsTree*>();
    auto const rowOf = [&](char const* thing) {
      return tree.rows().indexOf(LayerActions::named(window.bench().session().document(), thing)[0]);
    };
    auto const doubleClick = [&](char const* thing) {
      QPoint const at = tree.visualRect(rowOf(thing)).center();
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
      QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
    };
    doubleClick("map:M");
    QVERIFY(!tree.isExpanded(rowOf("map:M")) && !window.findChild<LayerSheet*>());
    doubleClick("map:M");
    doubleClick("layer:M/Towns");
    auto* const sheet = window.findChild<LayerSheet*>();
    QVERIFY(sheet && sheet->isVisible());
    QVERIFY(sheet->actions().contains(window.actions().find("Host_Undo")));

    // What is being typed in it is saved.
    auto& credits = *in<QWidget>(*sheet, "Credits").findChild<PropertySheet*>();
    sheet->showLayer(sheet->layer(), "Credits");
    credits.view().edit(credits.view().currentIndex());
    qobject_cast<QLineEdit*>(credits.view().indexWidget(credits.view().currentIndex()))->insert("Survey");
    QAction* const save = window.actions().find("Host_Save");
    QTRY_VERIFY(save->isEnabled());
    save->trigger();
    QVERIFY(contentOf(folder_.filePath("start.kdx")).contains("\"credits\": \"Survey\""));
    sheet->close();
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Return);
    QTRY_VERIFY(sheet->isVisible());

    // The slider of the menu is a step when it is let go.
    QMenu& menu = *window.actions().menu("Layer/Opacity");
    emit menu.aboutToShow();
    auto& slider = in<QSlider>(menu, "slider_Opacity");
    slider.setSliderDown(true);
    slider.setValue(70);
    slider.setSliderDown(false);
    auto const layer = LayerActions::named(window.bench().session().document(), "layer:M/Towns")[0].layer;
    QCOMPARE(SysCarto::LayerHost::effects(*layer).opacityPercent, 70.0);
    window.bench().session().document().GetOperationStack()->Undo();
    QCOMPARE(SysCarto::LayerHost::effects(*layer).opacityPercent, 100.0);
    for (bool const isCancelled : {true, false}) {
      menu.popup({});
      slider.setValue(40);
      if (isCancelled)
        QTest::keyClick(&slider, Qt::Key_Escape);
      else
        menu.close();
      QTRY_VERIFY(!menu.isVisible());
      QCOMPARE(SysCarto::LayerHost::effects(*layer).opacityPercent, isCancelled ? 100.0 : 40.0);
    }
    window.bench().session().document().GetOperationStack()->Undo();
    window.bench().session().save();
  }

private:
  LayerRow show(WorkbenchPage& page, LayerSheet& sheet, QString const& tab) {
    page.bench.session().open(folder_.filePath("start.kdx"));
    LayerRow const towns = LayerActions::named(page.bench.session().document(), "layer:M/Towns")[0];
    sheet.showLayer(towns, tab);
    return towns;
  }

  static void type(EntryTable& table, int row, int column, QString const& text) {
    QModelIndex const index = table.entries().index(row, column);
    table.view().setCurrentIndex(index);
    table.view().edit(index);
    auto* const line = qobject_cast<QLineEdit*>(table.view().indexWidget(index));
    line->selectAll();
    line->insert(text);
    table.finish();
    table.entries().fields().refresh();
  }

  QTemporaryDir folder_;
  QString towns_, areas_;
};

QTEST_MAIN(LayerSheetTest)
#include "tst_layer_sheet.moc"
