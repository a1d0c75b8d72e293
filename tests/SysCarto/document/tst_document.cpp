#include "Elements.h"
#include "LayerFixture.h"

#include "host/SysCarto/document/DocumentFields.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysUtility/FieldTree.h"

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

// The value with the one at a path ("maps.0.bounds") put in its place; an undefined value removes the field.
QJsonValue changed(QJsonValue const& value, QStringList path, QJsonValue const& replacement) {
  if (path.isEmpty()) return replacement;
  QString const step = path.takeFirst();
  if (value.isArray()) {
    QJsonArray array = value.toArray();
    array.replace(step.toInt(), changed(array.at(step.toInt()), path, replacement));
    return array;
  }
  QJsonObject object = value.toObject();
  object.insert(step, changed(object.value(step), path, replacement));
  if (object.value(step).isUndefined()) object.remove(step);
  return object;
}

// The keys of fields that nobody explains, with the path to them; `count` tells how many fields there are.
QStringList unexplained(QVector<SysUtility::FieldInfo> const& fields, QString const& path, int& count) {
  QStringList keys;
  for (SysUtility::FieldInfo const& info : fields) {
    ++count;
    QString const key = QLatin1String(info.field.key), inner = path + key + '/';
    bool const isSentence = QString(info.field.help).endsWith('.') && QString(info.field.caption) != "";
    if (!isSentence) keys << path + key;
    for (SysUtility::Choice const& choice : info.choices)
      if (QString(choice.caption).isEmpty()) keys << inner + choice.name;
    keys += unexplained(info.fields, inner, count);
    for (int i = 0; i < info.variants.size(); ++i)
      keys += unexplained(info.variants[i], inner + info.choices[i].name + '/', count);
  }
  return keys;
}

// The keys of fields, at any depth, that a JSON text does not hold.
QSet<QString> missingIn(QByteArray const& text, QVector<SysUtility::FieldInfo> const& fields) {
  QSet<QString> keys;
  for (SysUtility::FieldInfo const& info : fields) {
    if (!text.contains('"' + QByteArray(info.field.key) + '"')) keys << info.field.key;
    keys += missingIn(text, info.fields);
    for (auto const& variant : info.variants) keys += missingIn(text, variant);
  }
  return keys;
}

class Contents final : public IKdxContents {
public:
  _ptr_t<PageLayout> GetPageLayout() const override { return layout; }
  void SetPageLayout(_ptr_t<PageLayout> const& other) override { layout = other; }
  _ptr_t<PageLayout> layout;
};

}  // namespace

class DocumentTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QVERIFY(canvas({9, 9}).save(path("missing.png")));
    putJson("seed.kdx", changed(json(everything_), {"maps", "0", "layers"}, QJsonArray()));
    MapDocument document;
    QVERIFY2(document.Open(path("seed.kdx")), qPrintable(document.GetErrors().join('\n')));
    QVERIFY2(document.SaveAs(path("sample.kdx"), true, false), qPrintable(document.GetErrors().join('\n')));
    sample_ = contentOf(path("sample.kdx"));
    QVERIFY(sample_.endsWith("}\n"));
  }

  void twoSavesAreEqualByteForByte() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    QCOMPARE(document.GetWarnings(), QStringList());
    for (int i = 0; i < 2; ++i) {
      QVERIFY(document.SaveAs(path("again.kdx"), true, false));
      QCOMPARE(QString::fromUtf8(contentOf(path("again.kdx"))), QString::fromUtf8(sample_));
    }
  }

  void allThatADocumentCanHoldComesBack() {
    put(path("everything.kdx"), everything_);
    MapDocument document;
    QVERIFY2(document.Open(path("everything.kdx")), qPrintable(document.GetErrors().join('\n')));
    auto* const container = document.GetPageLayout()->GetGraphicsContainer();
    for (auto const& one : container->GetElements()) container->ReplaceElement(one->GetHandle(), one->Clone());
    QVERIFY(document.Save(true, false));
    QCOMPARE(QJsonDocument::fromJson(contentOf(path("everything.kdx"))), QJsonDocument::fromJson(everything_));
  }

  void anOpenedDocumentRefersToItsOwnMapsAndShowsItsWholePage() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    auto const layout = document.GetPageLayout();
    auto const elements = layout->GetGraphicsContainer()->GetElements();
    QCOMPARE(document.GetMapCount(), 2);
    QCOMPARE(document.GetMap(0)->GetName(), QString("World"));
    QVERIFY(!document.GetMap(2));
    QVERIFY(!document.GetMap(-1));
    QCOMPARE(layout->GetFocusMap(), document.GetMap(1));
    QCOMPARE(ptr_cast<MapSurroundFrame>(elements[14])->GetMapSurround()->GetMap(), document.GetMap(1));
    QCOMPARE(ptr_cast<MapSurroundFrame>(elements[11])->GetMapSurround()->GetMap(), document.GetMap(0));
    QVERIFY(!ptr_cast<MapSurroundFrame>(elements[13])->GetMapSurround()->GetMap());
    QCOMPARE(document.GetMap(0)->GetGraphicsContainer()->GetElements().size(), 2);
    QVERIFY(layout->GetAlignToMargins());
    QCOMPARE(MapDocumentHost::history(document)->count(), 0);
    QVERIFY(document.GetActiveView()->GetExtent()->Contains(layout->GetPage()->GetPageEnvelope()));
    for (_ptr_t<ActiveView> const& view : {document.GetActiveView(), _ptr_t<ActiveView>(document.GetMap(0))})
      QVERIFY(!view->GetExtentStack()->CanUndo() && !view->GetExtentStack()->CanRedo());
  }

  void aBadFieldIsNamedAndNothingIsOpened_data() {
    Rows<QString, QJsonValue, QString> row;
    QJsonValue const gone(QJsonValue::Undefined);
    // clang-format off
    row("another format", "format", "other", "format: is not “plotvane-document”");
    row("a newer version", "version", 2, "version: the document was written by a newer version");
    row("an unknown system", "maps.0.coordinateSystem", "EPSG:99999", "maps[0].coordinateSystem: “EPSG:99999”");
    row("bounds without a size", "maps.0.bounds", QJsonArray{5, 5, 5, 5}, "maps[0].bounds: must be");
    row("bounds turned over", "maps.0.bounds", QJsonArray{5, 5, 1, 9}, "maps[0].bounds: must be");
    row("a locked scale that is missing", "maps.0.scaleLocked", true, "maps[0].scale: must be more than 0");
    row("a scale that isn't locked", "maps.0.scale", 25000, "maps[0].scale: is for a map with “scaleLocked”");
    row("a focus that is no map", "layout.focusMap", 2, "layout.focusMap: 2 is not between 0 and 1");
    row("a handle used twice", "elements.1.handle", 1, "elements[1].handle");
    row("a data frame on a map", "maps.0.graphics.0", json(sample_)["elements"].toArray()[1], "maps[0].graphics[0].type: data frames");
    // clang-format on
  }
  void aBadFieldIsNamedAndNothingIsOpened() {
    auto const [field, value, complaint] = fetched<QString, QJsonValue, QString>();
    putChanged("bad.kdx", field.split('.'), value);
    QVERIFY2(refused("bad.kdx").startsWith(path("bad.kdx") + ": " + complaint), qPrintable(refused("bad.kdx")));
  }

  void aFileThatIsNoDocumentIsRefused_data() {
    Rows<QByteArray, QString> row;
    row("a slip in the third line", "{\n  \"a\": 1,\n  \"ä\" 2\n}", "line 3, column 8: ");
    row("a list", "[1, 2]", "holds a list");
    row("lists without an end", QByteArray(100000, '['), "this is not JSON");
    row("broken letters", QByteArray(sample_).replace("Plan", "Pl\xff\xfe"), "this is not JSON");
  }
  void aFileThatIsNoDocumentIsRefused() {
    auto const [content, complaint] = fetched<QByteArray, QString>();
    put(path("bad.kdx"), content);
    QVERIFY2(refused("bad.kdx").contains(complaint), qPrintable(refused("bad.kdx")));
  }

  void whatIsNoFileIsRefused() {
    QVERIFY(refused("missing.kdx").contains("no such file"));
    QVERIFY(refused(".").contains("is a folder"));
    QVERIFY(MapDocument().Open(QString()) == false);
    MapDocument document;
    QVERIFY(!document.Open("/dev/zero"));
    QVERIFY(document.GetErrors().value(0).contains("no ordinary file"));
  }

  void aSurroundKeepsTheMapOfADeletedFrame() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    auto* const elements = document.GetPageLayout()->GetGraphicsContainer();
    elements->DeleteElement(elements->GetElements().at(1));
    QVERIFY2(document.SaveAs(path("orphan.kdx"), true, false), qPrintable(document.GetErrors().join('\n')));
    QVERIFY(document.Open(path("orphan.kdx")));
    QCOMPARE(document.GetWarnings(), QStringList());
    auto const arrow =
        ptr_cast<MapSurroundFrame>(document.GetPageLayout()->GetGraphicsContainer()->GetElements().at(13));
    QCOMPARE(arrow->GetMapSurround()->GetMap()->GetName(), QString("Plan"));
    QCOMPARE(document.GetMapCount(), 1);
  }

  void unknownFieldsAndUnshownMapsAreReported() {
    QJsonObject odd = changed(json(sample_), {"maps", "0", "note"}, 1).toObject();
    odd["colour"] = "red";
    odd["maps"] = odd["maps"].toArray() + QJsonObject{{"name", "Unseen"}, {"bounds", QJsonArray{0, 0, 1, 1}}};
    putJson("odd.kdx", odd);
    MapDocument document;
    QVERIFY(document.Open(path("odd.kdx")));
    QString const warnings = document.GetWarnings().join('\n');
    for (char const* place : {": colour: ", ": maps[0].note: ", ": maps[2]: "})
      QVERIFY2(warnings.contains(path("odd.kdx") + place), qPrintable(warnings));
    QCOMPARE(document.GetWarnings().size(), 3);
    QVERIFY(document.SaveAs(path("odd.kdx"), true, false));
    QCOMPARE(QString::fromUtf8(contentOf(path("odd.kdx"))), QString::fromUtf8(sample_));
  }

  void aMissingDataSourceKeepsItsLayerAndItsPath() {
    QJsonObject const layer = json(
        "{'type': 'feature', 'name': 'Rivers', 'source': {'file': 'data/rivers.gpkg'},"
        "'renderer': {'type': 'simple', 'symbol': {'type': 'simpleLine'}}}");
    putChanged("rivers.kdx", {"maps", "0", "layers"}, QJsonArray{layer});
    MapDocument document;
    QVERIFY2(document.Open(path("rivers.kdx")), qPrintable(document.GetErrors().join('\n')));
    QCOMPARE(MapDocumentHost::unreadableSources(document), 1);
    QCOMPARE(document.GetWarnings().size(), 1);
    QVERIFY2(document.GetWarnings().at(0).contains("data/rivers.gpkg"), qPrintable(document.GetWarnings().at(0)));
    QCOMPARE(document.GetMap(0)->GetLayerCount(), 1);

    auto const savedSource = [&](QString const& file, bool relativePaths) {
      if (!document.SaveAs(file, relativePaths, false)) return document.GetErrors().value(0);
      QJsonValue const map = QJsonDocument::fromJson(contentOf(file)).object()["maps"].toArray().at(0);
      return map["layers"].toArray().at(0)["source"]["file"].toString();
    };
    QVERIFY(QDir(folder_.path()).mkpath("deeper"));
    QCOMPARE(savedSource(path("deeper/rivers.kdx"), true), QString("../data/rivers.gpkg"));
    QCOMPARE(savedSource(path("deeper/rivers.kdx"), false), path("data/rivers.gpkg"));
    QVERIFY(document.Open(path("deeper/rivers.kdx")));
    QVERIFY(!document.IsUsesRelativePaths());
    QCOMPARE(savedSource(path("rivers.kdx"), true), QString("data/rivers.gpkg"));
  }

  void theExampleInTheDocumentationOpens() {
    QString const text = QString::fromUtf8(contentOf(PLOTVANE_SOURCE_DIR "/docs/document-format.md"));
    put(path("example.kdx"), text.section("```json", 1).section("```", 0, 0).toUtf8());
    MapDocument document;
    QVERIFY2(document.Open(path("example.kdx")), qPrintable(document.GetErrors().join('\n')));
    QCOMPARE(document.GetWarnings().size(), 1);
    QCOMPARE(MapDocumentHost::unreadableSources(document), 1);
    QCOMPARE(document.GetPageLayout()->GetGraphicsContainer()->GetElements().size(), 3);
  }

  void everyFieldIsExplainedToPeopleAndIsInTheSeed() {
    DocumentContent content;
    DocumentContext context;
    SysUtility::FieldTree tree;
    content.list(tree, context);
    int count = 0;
    QCOMPARE(unexplained(tree.fields(), QString(), count), QStringList());
    QCOMPARE(missingIn(everything_, tree.fields()), QSet<QString>({"relativePaths"}));
    QVERIFY2(count > 500, qPrintable(QString::number(count)));
  }

  void elementsWithoutAHandleGetOneThatIsFree() {
    QJsonValue const gone(QJsonValue::Undefined), some = changed(json(sample_), {"elements", "0", "handle"}, gone);
    QJsonObject const stored = changed(some, {"elements", "1", "handle"}, 0).toObject();
    putJson("handles.kdx", stored);
    MapDocument document;
    QVERIFY2(document.Open(path("handles.kdx")), qPrintable(document.GetErrors().join('\n')));
    QSet<ElementHandle> handles;
    auto const elements = document.GetPageLayout()->GetGraphicsContainer()->GetElements();
    for (auto const& element : elements) handles << element->GetHandle();
    QCOMPARE(handles.size(), elements.size());
    QVERIFY(!handles.contains(0));
    QCOMPARE(elements[2]->GetHandle(), stored["elements"].toArray()[2].toObject()["handle"].toInt());
  }

  void aDocumentThatCannotBeOpenedLeavesTheOldOne() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    auto const layout = document.GetPageLayout();
    put(path("bad.kdx"), "{");
    QVERIFY(!document.Open(path("bad.kdx")));
    QCOMPARE(document.GetPageLayout(), layout);
    QCOMPARE(document.GetPath(), path("sample.kdx"));
  }

  void aSaveThatFailsKeepsTheOldFile() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    document.GetMap(0)->SetName(QString(5000, 'n'));
    {
      FileSizeLimit const limit(sample_.size());
      QVERIFY(!document.Save(true, false));
      QVERIFY(document.GetErrors().value(0).contains("sample.kdx"));
    }
    QCOMPARE(contentOf(path("sample.kdx")), sample_);
    QVERIFY(!document.SaveAs(path("nowhere/a.kdx"), true, false));
    QVERIFY(!document.SaveAs(QString(), true, false));
    QCOMPARE(document.GetPath(), path("sample.kdx"));
    QVERIFY(!MapDocument().SaveAs(path("empty.kdx"), true, false));
    QVERIFY(!QFileInfo::exists(path("empty.kdx")));
    QCOMPARE(QDir(folder_.path()).entryList({"sample*"}, QDir::AllEntries | QDir::Hidden), QStringList{"sample.kdx"});
  }

  void aBackupKeepsTheOldFile() {
    put(path("kept.kdx"), "old");
    put(path("kept.kdx~"), "older");
    MapDocument document;
    document.New(path("kept.kdx"));
    QVERIFY(document.Save(true, true));
    QCOMPARE(contentOf(path("kept.kdx~")), QByteArray("old"));
    QVERIFY(document.Save(true, false));
    QCOMPARE(contentOf(path("kept.kdx~")), QByteArray("old"));
    QFile::remove(path("kept.kdx~"));
    QVERIFY(QDir().mkdir(path("kept.kdx~")));
    QByteArray const before = contentOf(path("kept.kdx"));
    document.GetPageLayout()->SetAlignToMargins(true);
    QVERIFY(!document.Save(true, true));
    QCOMPARE(contentOf(path("kept.kdx")), before);
  }

  void aThumbnailShowsThePageAndThereMayBeNone() {
    MapDocument document;
    QVERIFY(document.Thumbnail().isNull());
    QVERIFY(document.Open(path("sample.kdx")));
    document.GetPageLayout()->GetPage()->SetBorder(make<SymbolBorder>());
    QImage const picture = document.Thumbnail();
    QCOMPARE(picture.size(), QSize(256, 197));
    QCOMPARE(picture.pixelColor(3, 116), QColor("#fffdf5"));
    QVERIFY(picture.pixelColor(0, 116).lightness() < 230);
    document.GetPageLayout()->GetGraphicsContainer()->AddElement(madeIn<RectangleElement>(-1, 5, 2, 10));
    QImage const covered = document.Thumbnail();  // the element lies over the border
    QCOMPARE(covered.pixelColor(0, 116), covered.pixelColor(5, 116));

    document.GetPageLayout()->SetPage(nullptr);
    QVERIFY(document.Thumbnail().isNull());
    QVERIFY(document.SaveAs(path("pageless.kdx"), true, false));
    QVERIFY(document.Open(path("pageless.kdx")));
    QVERIFY(!document.GetPageLayout()->GetPage());
  }

  void elementsMovedWithThePageStartANewHistory_data() {
    Rows<bool, double, bool> row;
    row("another page, the elements stay", true, 0, true);
    row("another page, the elements move with it", true, 1, false);
    row("the elements alone", false, 1, false);
  }
  void elementsMovedWithThePageStartANewHistory() {
    auto const [turned, dx, keepsHistory] = fetched<bool, double, bool>();
    MapDocument document;
    document.New(QString());
    auto* const elements = document.GetPageLayout()->GetGraphicsContainer();
    EditorHost::setHistory(MapDocumentHost::history(document));
    auto const add = [elements](_ptr_t<Element> const& element) {
      Editor::Instance()->StartOperation("step");
      elements->AddElement(element);
      Editor::Instance()->StopOperation();
      return element;
    };
    auto const first = add(make<RectangleElement>());
    if (turned) document.GetPageLayout()->GetPage()->SetOrientation(2);
    first->Move(dx, 0);
    QCOMPARE(MapDocumentHost::history(document)->count(), keepsHistory ? 1 : 0);  // nobody has asked for it yet

    add(make<RectangleElement>());
    auto const operations = document.GetOperationStack();
    operations->Undo();
    QCOMPARE(operations->CanUndo(), keepsHistory);
    operations->Undo();
    QCOMPARE(elements->GetElements().isEmpty(), keepsHistory);
    QVERIFY(document.isModified());
    EditorHost::setHistory(nullptr);
  }

  void whatIsKeptOutOfTheHistoryIsAModification_data() {
    Rows<bool, void (*)(PageLayout&)> row;
    row("a lock", true, [](PageLayout& page) { page.GetFocusMapFrameElement()->SetLocked(true); });
    row("the margins toggle", true, [](PageLayout& page) { page.SetAlignToMargins(!page.GetAlignToMargins()); });
    row("the focus", true, [](PageLayout& page) { page.SetFocusMap(mapsOn(page).first()); });
    row("the paper", true, [](PageLayout& page) { page.GetPage()->SetFormID(0); });
    row("another custom size", true, [](PageLayout& page) { PageHost::setCustomSize(*page.GetPage(), 7, 5); });
    row("the orientation", true, [](PageLayout& page) { page.GetPage()->SetOrientation(1); });
    row("the page's border", true, [](PageLayout& page) { page.GetPage()->SetBorder(nullptr); });
    row("an element's name", true, [](PageLayout& page) { elementsOf(page).last()->SetName("Other"); });
    row("an element that goes without an operation", true,
        [](PageLayout& page) { page.GetGraphicsContainer()->DeleteElement(elementsOf(page).last()); });
    row("a map's name", true, [](PageLayout& page) { mapsOn(page)[0]->SetName("Other"); });
    row("a map's extent", true, [](PageLayout& page) { mapsOn(page)[0]->SetExtent(make<Envelope>(0, 0, 7, 5)); });
    row("what it says about itself", true, [](PageLayout& page) {
      PageLayoutHost::setInformation(page, {"Title", "", "", {}, ""});
    });
    row("a layer shown", true, [](PageLayout& page) { mapsOn(page)[0]->GetLayer(0)->SetVisible(false); });
    row("a layer's scales", true, [](PageLayout& page) { mapsOn(page)[0]->GetLayer(0)->SetScaleRange(0, 5e6); });

    row("what is said again", false, [](PageLayout& page) {
      page.GetFocusMapFrameElement()->SetLocked(false);
      page.SetFocusMap(page.GetFocusMap());
      page.GetPage()->SetOrientation(page.GetPage()->GetOrientation());
      mapsOn(page)[0]->SetExtent(make<Envelope>(MapHost::storedBounds(*mapsOn(page)[0])));
      elementsOf(page).last()->SetGeometry(elementsOf(page).last()->GetEnvelope());
    });
    row("a clone that nobody sees", false, [](PageLayout& page) { elementsOf(page)[0]->Clone()->Move(1, 1); });
    row("the view", false, [](PageLayout& page) { page.ZoomToRatio(2); });
    row("labels that come and go", false, [](PageLayout& page) {
      auto const label = make<TextElement>();
      ElementHost::becomeLabel(*label);
      mapsOn(page)[0]->GetGraphicsContainer()->AddElement(label);
      mapsOn(page)[0]->GetGraphicsContainer()->DeleteElement(label);
    });
  }
  void whatIsKeptOutOfTheHistoryIsAModification() {
    auto const [isModification, change] = fetched<bool, void (*)(PageLayout&)>();
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    mapsOn(*document.GetPageLayout())[0]->AddLayer(opened({}, {}, make<SysDisplay::SimpleFillSymbol>()).layer);
    QVERIFY(document.isModified());
    QVERIFY(document.SaveAs(path("modified.kdx"), true, false));
    QVERIFY(!document.isModified());
    change(*document.GetPageLayout());
    QCOMPARE(document.isModified(), isModification);
  }

  void anotherLayoutStartsANewHistory() {
    MapDocument document;
    document.New(QString());
    MapDocumentHost::history(document)->push(new QUndoCommand("step"));
    auto const operations = document.GetOperationStack();
    QCOMPARE(operations->GetUndoName(), QString("step"));
    auto const contents = make<Contents>();
    contents->layout = document.GetPageLayout();
    document.ReplaceContents(contents);
    QVERIFY(operations->CanUndo() && document.isModified());
    MapDocumentHost::history(document)->setClean();
    QVERIFY(!document.isModified());
    contents->layout = make<PageLayout>();
    document.ReplaceContents(contents);
    QCOMPARE(document.GetPageLayout(), contents->layout);
    QVERIFY(!operations->CanUndo() && document.isModified());
  }

  void anOperationStackOutlivesItsDocument() {
    _ptr_t<SysUI::IOperationStack> operations;
    {
      MapDocument document;
      document.New(QString());
      operations = document.GetOperationStack();
      MapDocumentHost::history(document)->push(new QUndoCommand("step"));
      operations->Undo();
      QVERIFY(operations->CanRedo());
    }
    operations->Redo();
    QVERIFY(!operations->CanRedo());
  }

private:
  static QList<_ptr_t<Map>> mapsOn(PageLayout const& page) {
    QList<_ptr_t<Map>> maps;
    page.GetMaps(maps);
    return maps;
  }
  static QList<_ptr_t<Element>> elementsOf(PageLayout const& page) {
    return page.GetGraphicsContainer()->GetElements();
  }

  QString path(QString const& name) const { return folder_.filePath(name); }

  void putJson(QString const& name, QJsonValue const& value) const {
    put(path(name), QJsonDocument(value.toObject()).toJson());
  }
  void putChanged(QString const& name, QStringList const& field, QJsonValue const& value) const {
    putJson(name, changed(json(sample_), field, value));
  }

  // The one sentence with which an empty document refuses a file, and with which it stays empty.
  QString refused(QString const& name) const {
    MapDocument document;
    bool const opened = document.Open(path(name));
    bool const isOneLine = document.GetErrors().size() == 1 && !document.GetErrors().at(0).contains('\n');
    return opened || document.GetPageLayout() || !isOneLine ? "(not refused)" : document.GetErrors().at(0);
  }

  QTemporaryDir folder_;
  QByteArray sample_;
  QByteArray const everything_ = contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx");
};

QTEST_MAIN(DocumentTest)
#include "tst_document.moc"
