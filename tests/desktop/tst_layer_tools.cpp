#include "Dialogs.h"
#include "LayerFixture.h"
#include "WorldWindow.h"

#include "host/SysAdapterUI/SystemChooser.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/desktop/layers/AttributeModel.h"
#include "host/desktop/layers/AttributePanel.h"
#include "host/desktop/layers/IdentifyPanel.h"
#include "host/desktop/layers/LayerActions.h"

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
    for (char const* code : {"EPSG:2056", "EPSG:2154", "EPSG:3031", "EPSG:3577", "EPSG:3857", "EPSG:27700",
                             "EPSG:32760", "ESRI:54009", "ESRI:54030", "ESRI:102003"})
      row(code, {{"lineEdit_Search", code}}, code);
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
    QTRY_VERIFY(dialog.findChild<QLabel*>("label_Facts")->text().contains("Pseudo-Mercator"));
    dialog.findChild<QTabWidget*>()->setCurrentIndex(0);
    dialog.findChild<QLineEdit*>("lineEdit_Search")->setText("nonsense of no system");
    QVERIFY(!ok->isEnabled());
  }

  void aMapOfTheEarthIsInNoSystemOfAnotherBody() {
    SysAdapterUI::SystemChooser dialog({{}, "None", {}, {-10, 40, 10, 50}}, nullptr);
    auto* const model = dialog.findChild<QTreeView*>("treeView_Systems")->model();
    auto const remarks = [&](char const* words) {
      dialog.findChild<QLineEdit*>("lineEdit_Search")->setText(words);
      QStringList said;
      for (int row = 0; row < model->rowCount(); ++row) said << model->index(row, 2).data().toString();
      return said;
    };
    QVERIFY(remarks("EPSG:4326").contains("holds the map"));
    QVERIFY(!remarks("mars").isEmpty() && !remarks("mars").contains("holds the map"));
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

  void theTableSortsAndFiltersWithoutReadingAll() {
    AttributeModel model(nullptr);
    QCOMPARE(model.open(source()), QString());
    QVERIFY(QTest::qWaitFor([&] { return !model.isBusy(); }));
    QCOMPARE(column(model, 0), QStringList({"Zug", "ähre", "Arm", "Bach", "Ort"}));
    auto const sorted = [&](int number, Qt::SortOrder order) {
      model.sort(number, order);
      return QTest::qWaitFor([&] { return !model.isBusy(); }) ? column(model, 0).join(' ') : QString("late");
    };
    QCOMPARE(sorted(1, Qt::AscendingOrder), QString("Bach Arm Zug ähre Ort"));
    QCOMPARE(sorted(1, Qt::DescendingOrder), QString("Zug Arm Bach ähre Ort"));  // NULL last all the same
    QCOMPARE(model.index(3, 1).data().toString(), QString("NULL"));
    QCOMPARE(model.ids(0, 1).size(), size_t(2));
    QCOMPARE(model.rowsOf(model.ids(1, 1)), std::vector<int>({1}));
    QVERIFY(model.index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);

    QVERIFY(model.setFilter("height >").contains("is not understood"));
    QCOMPARE(model.rowCount({}), 5);
    QCOMPARE(model.setFilter("height > 1 OR name = 'Ort'"), QString());
    QVERIFY(QTest::qWaitFor([&] { return !model.isBusy(); }));
    QCOMPARE(column(model, 0).join(' '), QString("Zug Arm Ort"));  // in the order that was asked for
    QCOMPARE(sorted(-1, Qt::AscendingOrder), QString("Zug Arm Ort"));
    QCOMPARE(model.setFilter({}), QString());
    model.cancel();
    QCOMPARE(model.rowCount({}), 3);
  }

  void whatLiesUnderTheMouseIsTold_data() {
    Rows<bool> row;
    row("on the page", true);
    row("on the map", false);
  }
  void whatLiesUnderTheMouseIsTold() {
    auto const [isOnPage] = fetched<bool>();
    auto const [map, layer] = mapWithPlaces();
    auto& views = page_->bench.views();
    if (!isOnPage) views.show(DocumentViews::Kind::Map);
    QCoreApplication::processEvents();
    QVERIFY(page_->run("Host_Identify"));
    QVector<Identified> told;
    QObject::connect(&views, &DocumentViews::identified, &views, [&](Identified const& found) { told << found; });
    QByteArray const before = SysCarto::MapDocumentHost::text(page_->bench.session().document());
    ViewWidget const& view = isOnPage ? static_cast<ViewWidget&>(views.layoutView()) : views.mapView();
    auto const shown = view.shownMaps();
    QCOMPARE(shown.size(), 1);
    QTransform const toPx = mapToView(*map, shown.first().placePx);
    QPoint const arm = toPx.map(QPointF(2, 0)).toPoint(), nowhere = toPx.map(QPointF(2, 3)).toPoint();
    page_->click(arm + QPoint(3, 0));
    page_->click(arm + QPoint(6, 0));
    page_->click(nowhere);
    QCOMPARE(told.size(), 3);
    QCOMPARE(told[0].features.size(), 1);
    QCOMPARE(told[0].features[0].label, QString("Arm"));
    QCOMPARE(told[0].features[0].fields[1], qMakePair(QString("height"), QVariant(2)));
    QVERIFY(told[0].degrees && std::abs(told[0].degrees->x() - 2) < 0.4);
    QVERIFY(told[1].features.isEmpty() && told[2].features.isEmpty());
    QCOMPARE(SysCarto::MapDocumentHost::text(page_->bench.session().document()), before);

    layer->SetVisible(false);
    page_->click(arm);
    QVERIFY(told[3].features.isEmpty());
  }

  void chosenFeaturesAreMarkedAndZoomedTo() {
    auto const [map, layer] = mapWithPlaces();
    auto& views = page_->bench.views();
    auto const grabbed = [&] {
      while (!views.layoutView().isComplete()) QCoreApplication::processEvents();
      return views.layoutView().grab().toImage();
    };
    QImage const before = grabbed();
    views.highlight().show({map, layer, {layer->features().ids.at(2)}});
    QPoint const arm = mapToView(*map, views.layoutView().shownMaps().first().placePx).map(QPointF(2, 0)).toPoint();
    QImage const marked = grabbed();
    QVERIFY(marked != before);
    QRect changed;
    for (int y = 0; y < marked.height(); ++y)
      for (int x = 0; x < marked.width(); ++x)
        if (marked.pixel(x, y) != before.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    QVERIFY2(QRect(arm - QPoint(12, 12), QSize(25, 25)).contains(changed) && changed.contains(arm),
             qPrintable(QString("%1 %2 %3").arg(changed.x()).arg(changed.y()).arg(changed.width())));
    views.highlight().clear();
    QCOMPARE(grabbed(), before);

    auto* const stack = SysCarto::MapDocumentHost::history(page_->bench.session().document());
    int const step = stack->index();
    auto const zoomTo = [&, map = map, layer = layer](std::vector<qint64> const& ids) {
      return LayerActions::zoomTo(*page_->layout(), *map, FeatureHighlight::boxOf(*layer, ids));
    };
    QCOMPARE(zoomTo({layer->features().ids.at(2)}), QString());
    QCOMPARE(map->GetExtent()->GetAnchorPoint()->GetX(), 2.0);
    QCOMPARE(zoomTo(layer->features().ids), QString());
    QVERIFY(map->GetExtent()->GetXMin() < 0 && map->GetExtent()->GetXMax() > 4);
    QVERIFY(!zoomTo({987654}).isEmpty());
    page_->layout()->GetFocusMapFrameElement()->SetLocked(true);
    QVERIFY(zoomTo({layer->features().ids.at(2)}).contains("locked"));
    QCOMPARE(stack->index(), step + 2);
  }

  void thePanelOfAttributesFollowsItsLayer() {
    auto const [map, layer] = mapWithPlaces();
    AttributePanel panel(page_->bench.session(), page_->bench.views(), nullptr);
    auto* const table = panel.findChild<QTableView*>();
    auto const wait = [&] { QVERIFY(QTest::qWaitFor([&] { return table->model()->rowCount() == 5; })); };
    panel.showLayer(map, layer);
    wait();
    table->selectRow(1);
    table->selectionModel()->select(table->model()->index(3, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    auto const& marked = page_->bench.views().highlight().marked();
    QCOMPARE(marked.ids, std::vector<qint64>({layer->features().ids.at(1), layer->features().ids.at(3)}));
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("name\theight\nähre\t\nBach\t1"));
    table->sortByColumn(1, Qt::AscendingOrder);
    QVERIFY(QTest::qWaitFor([&] { return table->model()->index(0, 0).data() == "Bach"; }));
    QTRY_COMPARE(table->selectionModel()->selectedRows().size(), 2);
    QVERIFY(table->selectionModel()->isRowSelected(0, {}) && table->selectionModel()->isRowSelected(3, {}));
    auto* const filter = panel.findChild<QLineEdit*>();
    filter->setText("height > 1");
    QTest::keyClick(filter, Qt::Key_Return);
    QTRY_COMPARE(table->model()->rowCount(), 2);

    IdentifyPanel features(page_->bench.session(), page_->bench.views(), nullptr);
    OpenTables tables;
    features.show(identify(map, {1, 0}, 0.1, tables));
    features.follow();
    QCOMPARE(features.findChild<QTreeWidget*>()->topLevelItemCount(), 2);
    page_->container().DeleteElement(page_->container().GetElements().first());
    panel.follow();
    features.follow();
    QCOMPARE(features.findChild<QTreeWidget*>()->topLevelItemCount(), 0);
    QCOMPARE(table->model()->rowCount(), 0);
    QVERIFY(marked.ids.empty());
  }

  // Of a group, shown again, both have changed at once.
  void eachLayerTellsOfItsOwnFile() {
    auto const [map, layer] = mapWithPlaces();
    QString const spots = written(folder_, "spots.csv", "x,y,spot\n2,0,Stone\n");
    map->AddLayer(opened({spots, {}, {}, {}}, "EPSG:4326", make<SysDisplay::SimpleMarkerSymbol>()).layer);
    auto const grouped = LayerActions::group({{map, nullptr, layer}, {map, nullptr, map->GetLayers().last()}});
    QCOMPARE(grouped.rows.size(), 1);
    OpenTables tables;
    auto const told = [&, map = map] {
      QStringList fields;
      for (auto const& feature : identify(map, {2, 0}, 0.1, tables).features)
        fields << feature.fields.last().first + '=' + feature.fields.last().second.toString();
      return fields.join(' ');
    };
    for (bool const isVisible : {false, true}) LayerActions::setVisible(grouped.rows, isVisible);
    QCOMPARE(told(), QString("spot=Stone height=2"));
    written(folder_, "spots.csv", "x,y,spot\n2,0,Big stone\n");
    QCOMPARE(told(), QString("spot=Big stone height=2"));
  }

  void theWindowShowsTheChosenLayer() {
    page_.reset();
    prepareWorld(folder_.path());
    WorldWindow at;
    QVERIFY(!at.isEnabled("Host_AttributeTable"));
    auto* const contents = at.window.findChild<SysAdapterUI::TOCControl*>();
    auto const map = at.document().GetMap(0);
    emit contents->RowChosen(map, map->GetLayers().last());
    at.window.actions().refresh();
    QVERIFY(at.isEnabled("Host_AttributeTable"));
    at.trigger("Host_AttributeTable");
    auto* const panel = at.window.findChild<AttributePanel*>();
    QVERIFY(panel->isVisible());
    auto* const table = panel->findChild<QTableView*>();
    QTRY_VERIFY(table->model()->rowCount() > 100);
    // Keys that are meant for its rows do nothing to the page: all chosen, taken out, a tool.
    IElementContainer& page = *at.document().GetPageLayout()->GetGraphicsContainer();
    int const before = page.GetElements().size();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    QVERIFY(page.GetSelectedElements().isEmpty());
    page.SelectElement(page.GetElements().first());
    QTest::keyClick(table, Qt::Key_Delete);
    QTest::keyClick(table, Qt::Key_T);
    QCOMPARE(page.GetElements().size(), before);
    QVERIFY(!at.isChecked("Host_InsertText"));
    at.trigger("Host_New");
    QTRY_COMPARE(panel->findChild<QTableView*>()->model()->rowCount(), 0);
    QVERIFY(!at.isEnabled("Host_AttributeTable"));
  }

  void numbersAreSortedInSlices() {
    std::vector<int> keys(20000);
    quint32 seed = 1;
    for (int& key : keys) key = static_cast<int>((seed = seed * 1664525 + 1013904223) >> 20);
    SlicedSort sort(static_cast<int>(keys.size()),
                    [&](int a, int b) { return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)]; });
    double progress = 0;
    while (sort.advance(0)) {
      QVERIFY(sort.progress() >= progress);
      progress = sort.progress();
    }
    auto const sorted = sort.take();
    QCOMPARE(sorted.size(), keys.size());
    for (size_t i = 1; i < sorted.size(); ++i) {
      int const a = keys[static_cast<size_t>(sorted[i - 1])], b = keys[static_cast<size_t>(sorted[i])];
      QVERIFY(a < b || (a == b && sorted[i - 1] < sorted[i]));
    }
  }

private:
  SysCarto::SourceSettings source() {
    QByteArrayList features;
    char const* const names[] = {"Zug", "ähre", "Arm", "Bach", "Ort"};
    char const* const heights[] = {"9", "null", "2", "1", "null"};
    for (int i = 0; i < 5; ++i)
      features << QByteArray("{'type':'Feature','properties':{'name':'" + QByteArray(names[i]) +
                             "','height':" + heights[i] + "},'geometry':{'type':'Point','coordinates':[" +
                             QByteArray::number(i) + ",0]}}")
                      .replace('\'', '"');
    return {put(folder_.filePath("places.geojson"), collection(features)), {}, {}, {}};
  }

  std::pair<_ptr_t<SysCarto::Map>, _ptr_t<SysCarto::VectorLayer>> mapWithPlaces() {
    auto const map = page_->add<MapFrameElement>(1, 1, 11, 11)->GetMap();
    map->SetCoordinateSystem("EPSG:4326");
    auto const layer = opened(source(), "EPSG:4326", make<SysDisplay::SimpleMarkerSymbol>()).layer;
    map->AddLayer(layer);
    map->SetExtent(make<SysGeometry::Envelope>(-5.0, -5.0, 9.0, 9.0));
    page_->layout()->SetFocusMap(map);
    page_->bench.views().follow();
    page_->layout()->ZoomToWholePage();
    page_->bench.views().redraw();
    QCoreApplication::processEvents();
    return {map, layer};
  }

  static QStringList column(QAbstractItemModel const& model, int number) {
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) texts << model.index(row, number).data().toString();
    return texts;
  }

  QTemporaryDir folder_;
  std::optional<WorkbenchPage> page_;
  std::optional<Person> person_;
};

QTEST_MAIN(LayerToolsTest)
#include "tst_layer_tools.moc"
