#include "Dialogs.h"
#include "Files.h"
#include "Pictures.h"
#include "desktop/FieldsByPath.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysAdapterUI/PropertyEditors.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysDisplay/SymbolFields.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/PropertyPanel.h"

using SysAdapterUI::PropertyModel;
using SysAdapterUI::PropertySheet;
using SysCarto::Editable;
using SysCarto::MapDocumentHost;
using SysUtility::FieldInfo;
using SysUtility::NumbersKind;
using SysUtility::TextKind;

namespace {

using Kind = FieldInfo::Kind;

// Another value of the kind, as a person would type it.
QString otherText(FieldInfo const& info, QVariant const& now) {
  auto const& range = info.rules.range;
  switch (info.kind) {
    case Kind::Number:
    case Kind::Integer: {
      double const wanted = now.toDouble() + 1 <= range.max ? now.toDouble() + 1 : now.toDouble() - 1;
      return QString::number(wanted, 'g', 15);
    }
    case Kind::NumberList:
    case Kind::Coordinates: return QStringLiteral("1, 2, 3, 5, 8, 13");
    case Kind::Text:
      if (info.rules.textKind == TextKind::Color) return QStringLiteral("#80123456");
      if (info.rules.textKind == TextKind::CoordinateSystem) return QStringLiteral("EPSG:3857");
      return now.toString() + QLatin1Char('x');
    default: return QStringLiteral("other");
  }
}

// What a person does in the widget.
void enter(QWidget& editor, FieldInfo const& info, QVariant const& now) {
  if (auto* const box = qobject_cast<QComboBox*>(&editor)) {
    box->setCurrentIndex((box->currentIndex() + 1) % box->count());
    return;
  }
  if (auto* const lines = qobject_cast<QPlainTextEdit*>(&editor)) {
    lines->selectAll();
    lines->insertPlainText(otherText(info, now));
    return;
  }
  if (info.kind == Kind::Text && (info.rules.textKind == TextKind::Svg || info.rules.textKind == TextKind::Picture)) {
    Person person;
    person.sets("file", PLOTVANE_SOURCE_DIR "/host/desktop/icons/properties.svg");
    return editor.findChild<QToolButton*>()->click();
  }
  auto* const line =
      qobject_cast<QLineEdit*>(&editor) ? qobject_cast<QLineEdit*>(&editor) : editor.findChild<QLineEdit*>();
  line->selectAll();
  line->insert(otherText(info, now));
}

}  // namespace

class PropertiesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    put(path("start.kdx"), contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
    QVERIFY(canvas({9, 9}).save(path("missing.png")));
  }

  // Each field of each thing: another value through the widget of the sheet, and the same value by its path.
  void everyFieldIsSetSavedReadAgainAndUndone() {
    WorkbenchPage page;
    PropertyPanel panel(page.bench.session(), nullptr);
    auto& document = page.bench.session().document();
    QVERIFY2(page.bench.session().open(path("start.kdx")), qPrintable(document.GetErrors().join('\n')));
    panel.resize(400, 800);
    panel.show();
    QByteArray const before = MapDocumentHost::text(document);
    int set = 0;
    QStringList refused;
    for (int thing = 0; show(panel, page, thing); ++thing) {
      auto& sheet = *panel.findChild<PropertySheet*>();
      for (QStringList const& name : editableRows(sheet.model())) {
        QString const where = titleOf(panel) + ": " + name.join('/');
        QVERIFY2(edit(sheet, name), qPrintable(where));
        QByteArray const after = MapDocumentHost::text(document);
        QString const problem = indexNamed(sheet.model(), name).data(PropertyModel::ProblemRole).toString();
        if (!problem.isEmpty()) {
          QVERIFY2(after == before, qPrintable(where));
          refused << where + ": " + problem;
          QVERIFY(show(panel, page, thing));
          continue;
        }
        QVERIFY2(after != before, qPrintable(where));
        ++set;
        QVERIFY2(comesBack(after), qPrintable(where));
        QStringList const keys = name.mid(0, name.size() - 1);
        QString const typed = SysUtility::jsonLine(valueAt(document, addressOf(page, thing), keys));
        document.GetOperationStack()->Undo();
        QVERIFY2(MapDocumentHost::text(document) == before, qPrintable(where));

        QCOMPARE(setByPath(document, addressOf(page, thing), keys, typed), QString());
        QVERIFY2(MapDocumentHost::text(document) == after, qPrintable(where + ' ' + typed));
        document.GetOperationStack()->Undo();
        QVERIFY2(MapDocumentHost::text(document) == before, qPrintable(where));
        QVERIFY(show(panel, page, thing));
      }
    }
    QVERIFY2(refused.size() < 25, qPrintable(refused.join('\n')));
    QVERIFY2(set > 250, qPrintable(QString::number(set)));
  }

  void whatTheDocumentStoresOfItselfIsSetAndUndone_data() {
    QTest::addColumn<QString>("thing");
    for (char const* const thing : {"document", "series"}) QTest::newRow(thing) << thing;
  }

  void whatTheDocumentStoresOfItselfIsSetAndUndone() {
    QFETCH(QString, thing);
    WorkbenchPage page;
    auto& document = page.bench.session().document();
    QVERIFY(page.bench.session().open(path("start.kdx")));
    QByteArray const before = MapDocumentHost::text(document);
    for (QStringList const& keys : leaves(Editable::fields(document, Editable::named(document, thing)).first())) {
      auto const value = valueAt(document, thing, keys);
      bool const isOfOther = QStringList{"highlight", "outside", "followers"}.contains(keys.first());
      if (isOfOther || keys.last() == "data" || value == QJsonArray()) continue;  // tested where they belong
      QJsonValue const first = value.toArray().first();
      QString const other = value.isBool()             ? value.toBool() ? "false" : "true"
                            : keys.last() == "map"     ? QString::number(1 - value.toInt())
                            : keys.last() == "overlap" ? "5"
                            : value.isDouble()         ? QString::number(value.toDouble() / 2 + 1)
                            : first.isDouble()         ? "[3]"
                            : value.isArray()          ? "['three']"
                            : keys.last() == "paper"   ? "A5"
                            : keys.last() == "size"    ? "real"
                                                       : "fr";
      QCOMPARE(setByPath(document, thing, keys, QString(other).replace('\'', '"')), QString());
      QVERIFY2(MapDocumentHost::text(document) != before, qPrintable(keys.join('/')));
      QVERIFY(comesBack(MapDocumentHost::text(document)));
      document.GetOperationStack()->Undo();
      QCOMPARE(MapDocumentHost::text(document), before);
    }
    if (thing == "series") {
      QCOMPARE(setByPath(document, thing, {"followers", "0", "margin"}, "7"), QString());
      QVERIFY(MapDocumentHost::text(document).contains("\"margin\": 7"));
      QCOMPARE(setByPath(document, thing, {"layer"}, ""), QString());
      QCOMPARE(setByPath(document, thing, {"source"}, "null"), QString());
      QVERIFY(!MapDocumentHost::text(document).contains("series"));
      QVERIFY(setByPath(document, thing, {"margin"}, "3").contains("name the layer"));
      return;
    }
    QVERIFY(setByPath(document, "document", {"information", "language"}, "de CH").contains("de-CH"));
    QCOMPARE(setByPath(document, "document", {"information"}, "null"), QString());
    QVERIFY(!MapDocumentHost::text(document).contains("information"));
  }

  // From things that say nothing of themselves, row by row.
  void aWholeMapIsMadeInTheSheetAlone() {
    WorkbenchPage page;
    PropertyPanel panel(page.bench.session(), nullptr);
    panel.show();
    auto& document = page.bench.session().document();
    QVERIFY(page.bench.session().open(sampleIn(folder_.path(), "aegean.kdx")));
    QByteArray const whole = MapDocumentHost::text(document);
    QVector<QJsonObject> wanted;
    for (int thing = 0; show(panel, page, thing); ++thing) {
      QString const address = addressOf(page, thing);
      wanted << SysUtility::wholeObject(Editable::fields(document, Editable::named(document, address)).value(0));
      for (QString const& key : wanted.last().keys())
        if (!QStringList({"type", "handle", "map", "bounds", "rings", "points"}).contains(key))
          setByPath(document, address, {key}, "null");
    }
    QVERIFY(MapDocumentHost::text(document).size() < whole.size() / 2);
    for (int thing = 0; show(panel, page, thing); ++thing)
      make(panel.findChild<PropertySheet*>()->model(), {}, wanted[thing]);
    QCOMPARE(QString::fromUtf8(MapDocumentHost::text(document)), QString::fromUtf8(whole));
  }

  void severalElementsShowWhatTheyShareAndChangeTogether() {
    WorkbenchPage page;
    auto const a = page.add<SysCarto::RectangleElement>(1, 1, 3, 3);
    auto const b = page.add<SysCarto::RectangleElement>(5, 2, 7, 6);
    auto const text = page.add<SysCarto::TextElement>(1, 8, 3, 9);
    PropertyPanel panel(page.bench.session(), nullptr);
    panel.show();
    page.container().SelectElement(a);
    page.container().SelectElement(b);
    panel.follow();
    auto& model = panel.findChild<PropertySheet*>()->model();
    QCOMPARE(titleOf(panel), QString("2 elements"));
    QCOMPARE(indexNamed(model, {"rectangle", "Width"}).data().toString().left(1), QString("2"));
    QCOMPARE(indexNamed(model, {"rectangle", "Height"}).data().toString(), QString("mixed"));

    // From the middle of each, in one step.
    QModelIndex const anchor = indexNamed(model, {"rectangle", "Measured from"});
    QVERIFY(model.take(anchor, 4, QString()));
    QVERIFY(model.take(indexNamed(model, {"rectangle", "Height"}), 1, QString()));
    QCOMPARE(page.place(*a), QRectF(1, 1.5, 2, 1));
    QCOMPARE(page.place(*b), QRectF(5, 3.5, 2, 1));
    auto const history = page.bench.session().document().GetOperationStack();
    QCOMPARE(history->GetUndoName(), QString("Set rectangle of 2 elements"));

    // One soon after the other, and still two.
    QVERIFY(model.take(indexNamed(model, {"rectangle", "X"}), 4, QString()));
    QVERIFY(model.take(indexNamed(model, {"rectangle", "Y"}), 5, QString()));
    QCOMPARE(page.place(*b), QRectF(3, 4.5, 2, 1));

    // What is refused by one changes none, and stays in its row.
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    QVERIFY(!model.take(indexNamed(model, {"rectangle", "Height"}), 1e13, "1e13"));
    QCOMPARE(MapDocumentHost::text(page.bench.session().document()), before);
    QCOMPARE(indexNamed(model, {"rectangle", "Height"}).data().toString(), QString("1e13"));
    QVERIFY(indexNamed(model, {"rectangle", "Height"})
                .data(PropertyModel::ProblemRole)
                .toString()
                .startsWith("rectangle[1]"));

    // Quick changes of one field are one step.
    for (int name = 0; name < 3; ++name)
      QVERIFY(model.take(indexNamed(model, {"name", "Name"}), QString::number(name), QString()));
    history->Undo();
    QCOMPARE(page.now(*a)->GetName(), QString());
    QCOMPARE(history->GetUndoName(), QString("Set rectangle of 2 elements"));

    page.container().SelectElement(text);
    panel.follow();
    QVERIFY(!indexNamed(model, {"rectangle", "Rectangle"}).isValid());
    QVERIFY(indexNamed(model, {"name", "Name"}).isValid());
  }

  void aSymbolIsAskedForAndNotTyped() {
    WorkbenchPage page;
    page.container().SelectElement(page.add<SysCarto::RectangleElement>(1, 1, 3, 3));
    PropertyPanel panel(page.bench.session(), nullptr);
    panel.resize(400, 800);
    panel.show();
    auto& sheet = *panel.findChild<PropertySheet*>();
    QVERIFY(sheet.model().take(sheet.model().indexOf({"symbol"}), QJsonObject(), QString()));
    sheet.model().refresh();
    sheet.disconnect(&sheet, &PropertySheet::symbolWanted, nullptr, nullptr);  // the dialog is not what is tested
    QSignalSpy const asked(&sheet, &PropertySheet::symbolWanted);
    auto& view = sheet.view();
    QModelIndex const symbol =
        static_cast<QSortFilterProxyModel*>(view.model())->mapFromSource(sheet.model().indexOf({"symbol"}));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(symbol).center());
    QTRY_COMPARE(asked.count(), 1);
    for (int key : {Qt::Key_F2, Qt::Key_Return}) {
      view.setCurrentIndex(symbol);
      QTest::keyClick(&view, static_cast<Qt::Key>(key));
    }
    QTRY_COMPARE(asked.count(), 2);  // two soon after each other are one
    QVERIFY(!sheet.isEditing());
  }

  void aNorthArrowBecomesAnotherOfTheLibraries() {
    WorkbenchPage page;
    auto const frame = page.add<SysCarto::MapSurroundFrame>(1, 2, 3, 5);
    frame->SetMapSurround(::make<SysCarto::MarkerNorthArrow>());
    page.container().SelectElement(frame);
    PropertyPanel panel(page.bench.session(), nullptr);
    panel.show();
    auto& sheet = *panel.findChild<PropertySheet*>();
    auto& model = sheet.model();
    QStringList const symbol{"surround", "symbol"};
    QVERIFY(model.take(model.indexOf({"surround", "trueNorth"}), true, QString()));
    QVERIFY(model.take(model.indexOf(symbol), QJsonObject(), QString()));
    model.refresh();
    auto const stored = [&] { return valueAt(page.bench.session().document(), "selection", {"surround"}).toObject(); };
    QJsonObject before = stored();
    Person person;
    person.sets("grid", "Compass dial");
    person.accepts();
    emit sheet.symbolWanted(model.indexOf(symbol));
    QJsonObject after = stored();
    QVERIFY(after.take("symbol") != before.take("symbol"));
    QCOMPARE(after, before);
    QVERIFY(after["trueNorth"].toBool());
    QCOMPARE(page.place(*frame), QRectF(1, 2, 2, 3));
  }

  void whatIsBeingTypedIsTakenBeforeASave() {
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    put(path("typed.kdx"), contentOf(path("start.kdx")));
    Person person;
    person.accepts();  // the document has sources that are not there
    ToldTexts const told;
    MainWindow window;
    window.show();
    QVERIFY(window.open(path("typed.kdx")));
    QTRY_COMPARE(told.texts.size(), 1);
    auto& sheet = *window.findChild<PropertySheet*>();
    QAction* const save = window.actions().find("Host_Save");
    QModelIndex const width = static_cast<QSortFilterProxyModel*>(sheet.view().model())
                                  ->mapFromSource(indexNamed(sheet.model(), {"width", "Width"}));
    QVERIFY(!save->isEnabled());
    sheet.view().setCurrentIndex(width);
    sheet.view().edit(width);
    qobject_cast<QLineEdit*>(sheet.view().indexWidget(width))->insert("33");
    QTRY_VERIFY(save->isEnabled());
    save->trigger();
    QCOMPARE(json(contentOf(path("typed.kdx")))["page"].toObject()["width"].toDouble(), 33.0);
  }

  void entriesComeAndGoOneByOne() {
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(path("start.kdx")));
    PropertyPanel panel(page.bench.session(), nullptr);
    panel.show();
    auto& sheet = *panel.findChild<PropertySheet*>();
    auto& model = sheet.model();
    auto& view = sheet.view();
    auto const count = [&] { return model.rowCount(model.indexOf({"renderer", "classes"}).siblingAtColumn(0)); };
    int row = 0;
    for (; titleOf(panel) != "Layer Cities"; ++row) QVERIFY(show(panel, page, row));
    int const before = count();
    for (int i = 0; i < 2; ++i) model.addEntry(model.indexOf({"renderer", "classes"}));
    QCOMPARE(count(), before + 2);
    for (int i = 0; i < 2; ++i) model.removeEntry(model.indexOf({"renderer", "classes", QString::number(before)}));
    QCOMPARE(count(), before);
    QModelIndex const last = model.indexOf({"renderer", "classes", QString::number(before - 1)});
    QCOMPARE(model.moveEntry(last, 1), last);

    // A new entry of a legend names the topmost layer that has none.
    for (row = 0; !model.indexOf({"surround", "onMapOnly"}).isValid(); ++row) QVERIFY(show(panel, page, row));
    auto const layerOf = [&](QString const& entry) {
      return model.data(model.indexOf({"surround", "entries", entry, "layer"}), Qt::DisplayRole).toString();
    };
    for (int i = 0; i < 2; ++i) model.addEntry(model.indexOf({"surround", "entries"}));
    QCOMPARE(QStringList({layerOf("0"), layerOf("2"), layerOf("3")}),
             QStringList({"Cities", "Towns in proportion", "Towns by rules"}));

    // A key in the middle of a view's work changes which rows there are.
    QVERIFY(show(panel, page, 0));
    view.setCurrentIndex(static_cast<QSortFilterProxyModel*>(view.model())->mapFromSource(model.indexOf({"border"})));
    for (int i = 0; i < 2; ++i) {
      bool const isThere = model.indexOf({"border", "gap"}).isValid();
      QTest::keyClick(&view, Qt::Key_Space);
      QTRY_COMPARE(model.indexOf({"border", "gap"}).isValid(), !isThere);
    }
  }

  void aThousandElementsAreShownAtOnce() {
    WorkbenchPage page;
    for (int i = 0; i < 1000; ++i) page.container().SelectElement(page.add<SysCarto::RectangleElement>(i, 1, i + 1, 3));
    PropertyPanel panel(page.bench.session(), nullptr);
    QElapsedTimer clock;
    clock.start();
    panel.show();
    qint64 const ms = clock.elapsed();
    QCOMPARE(titleOf(panel), QString("1000 elements"));
    QVERIFY2(ms < 1000, qPrintable(QString::number(ms)));  // a tenth of that in a release build
  }

private:
  // Gives the rows below a path the values of a whole object.
  static void make(PropertyModel& model, QStringList const& path, QJsonObject const& wanted) {
    auto const rows = [&] {
      QModelIndex const parent = path.isEmpty() ? QModelIndex() : model.indexOf(path).siblingAtColumn(0);
      QList<QStringList> paths;
      for (int i = 0; i < model.rowCount(parent); ++i) paths << model.row(model.index(i, 1, parent)).path;
      return paths;
    };
    // The kind first, which decides on the other rows.
    for (bool const isKind : {true, false})
      for (QStringList const& own : rows()) {
        QModelIndex const index = model.indexOf(own);
        FieldInfo const info = model.row(index).field->info;
        QJsonValue const value = wanted.value(own.last());
        if ((info.kind == Kind::Variant) != isKind || own == QStringList("handle")) continue;
        if (info.kind == Kind::List) {
          for (int i = 0; i < value.toArray().size(); ++i) {
            QStringList const entry = own + QStringList(QString::number(i));
            if (!model.indexOf(entry).isValid()) model.addEntry(model.indexOf(own));
            make(model, entry, value.toArray()[i].toObject());
          }
          continue;
        }
        if (info.kind != Kind::Object) {
          model.take(index, value, QString());
        } else if (!info.rules.isRequired) {
          bool const isThere = model.data(index, Qt::CheckStateRole) == Qt::Checked;
          if (isThere == value.isNull())
            model.setData(index, value.isNull() ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        }
        model.refresh();
        if (info.kind == Kind::Object && value.isObject()) make(model, own, value.toObject());
      }
  }

  QString path(QString const& name) const { return folder_.filePath(name); }

  // The page, then the elements, the maps and their layers; false beyond the last.
  bool show(PropertyPanel& panel, WorkbenchPage& page, int thing) {
    auto const elements = page.container().GetElements();
    page.container().UnselectAllElements();
    panel.showSelection();
    QVector<SysCarto::LayerRow> rows;
    QList<_ptr_t<SysCarto::Map>> maps;
    page.bench.session().document().GetMaps(maps);
    for (auto const& map : maps) {
      rows.append({map});
      for (auto const& layer : map->GetLayers()) rows.append({map, nullptr, layer});
      for (auto const& group : groupsOf(*map)) rows.append({map, group});
    }
    int const row = thing - 1 - elements.size();
    if (row >= rows.size()) return false;
    if (row >= 0)
      panel.showRows({rows[row]});
    else if (thing > 0)
      page.container().SelectElement(elements[thing - 1]);
    panel.follow();
    return true;
  }

  static QString titleOf(PropertyPanel& panel) { return panel.findChild<QLabel*>("label_Title")->text(); }

  // Rows differ by path and caption: the parts of a rectangle share its path.
  static QStringList nameOf(QModelIndex const& index) {
    return index.data(PropertyModel::PathRole).toStringList() + QStringList(index.siblingAtColumn(0).data().toString());
  }

  static QModelIndex indexNamed(QAbstractItemModel const& model, QStringList const& name,
                                QModelIndex const& parent = {}) {
    for (int i = 0; i < model.rowCount(parent); ++i) {
      if (nameOf(model.index(i, 1, parent)) == name) return model.index(i, 1, parent);
      QModelIndex const inner = indexNamed(model, name, model.index(i, 0, parent));
      if (inner.isValid()) return inner;
    }
    return {};
  }

  static QList<QStringList> editableRows(PropertyModel const& model, QModelIndex const& parent = {}) {
    QList<QStringList> names;
    for (int i = 0; i < model.rowCount(parent); ++i) {
      QModelIndex const index = model.index(i, 1, parent);
      auto const row = model.row(index);
      bool const isChecked = model.flags(index) & Qt::ItemIsUserCheckable;
      bool const isSymbol = row.field->info.kind == Kind::Object;
      bool const isEdited = (model.flags(index) & Qt::ItemIsEditable) && !isSymbol;
      if ((isChecked || isEdited) && row.part != SysAdapterUI::PropertyPart::Anchor) names << nameOf(index);
      names += editableRows(model, model.index(i, 0, parent));
    }
    return names;
  }

  static bool edit(PropertySheet& sheet, QStringList const& name) {
    auto& model = sheet.model();
    QModelIndex const index = indexNamed(model, name);
    if (!index.isValid()) return false;
    if (model.flags(index) & Qt::ItemIsUserCheckable) {
      bool const isOn = model.data(index, Qt::CheckStateRole) == Qt::Checked;
      model.setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
      return true;
    }
    auto& view = sheet.view();
    QModelIndex const shown = static_cast<QSortFilterProxyModel*>(view.model())->mapFromSource(index);
    view.expandAll();
    view.setCurrentIndex(shown);
    view.edit(shown);
    QWidget* const editor = view.indexWidget(shown);
    if (!editor) return false;
    FieldInfo const info = model.row(index).field->info;
    enter(*editor, info, model.data(index, Qt::EditRole));
    emit view.itemDelegate()->commitData(editor);
    emit view.itemDelegate()->closeEditor(editor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return true;
  }

  bool comesBack(QByteArray const& text) {
    put(path("after.kdx"), text);
    SysCarto::MapDocument again;
    if (!MapDocumentHost::open(again, path("after.kdx"), SysCarto::ReadDepth::Schema)) return false;
    return MapDocumentHost::text(again) == text;
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(PropertiesTest)
#include "tst_properties.moc"
