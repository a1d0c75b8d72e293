#include "Files.h"
#include "Json.h"
#include "Elements.h"
#include "LayerFixture.h"

#include "host/SysCarto/document/DocumentFields.h"
#include "host/SysUtility/FieldTree.h"

#include <SysCarto/Editor.h>
#include <SysCarto/Graticule.h>
#include <SysCarto/MapDocument.h>

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QUndoStack>

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

_ptr_t<MapFrameElement> frameOf(QString const& name, QString const& coordinateSystem, Envelope const& bounds) {
  auto const frame = frameNamed(name);
  frame->GetMap()->SetCoordinateSystem(coordinateSystem);
  frame->GetMap()->SetExtent(make<Envelope>(bounds));
  return frame;
}

template <class Surround>
_ptr_t<MapSurroundFrame> surround(_ptr_t<Map> const& map) {
  return in(surroundOf<Surround>(map), 1.0, 2.0, 6.5, 4.1);
}

// The keys of fields that nobody explains, with the path to them; `count` tells how many fields there are.
QStringList unexplained(QVector<SysUtility::FieldInfo> const& fields, QString const& path, QString const& manual,
                        int& count) {
  QStringList keys;
  for (SysUtility::FieldInfo const& info : fields) {
    ++count;
    QString const key = QLatin1String(info.field.key), inner = path + key + '/';
    bool const isSentence = QString(info.field.help).endsWith('.') && QString(info.field.caption) != "";
    if (!isSentence || !manual.contains('`' + key + '`')) keys << path + key;
    for (SysUtility::Choice const& choice : info.choices)
      if (QString(choice.caption).isEmpty() || !manual.contains(QLatin1String(choice.name)))
        keys << inner + choice.name;
    keys += unexplained(info.fields, inner, manual, count);
    for (int i = 0; i < info.variants.size(); ++i)
      keys += unexplained(info.variants[i], inner + info.choices[i].name + '/', manual, count);
  }
  return keys;
}

// A page with one of everything that refers to something else, and with numbers that no short decimal hits.
void fill(PageLayout& layout) {
  auto const world =
      frameOf(QStringLiteral("Welt – “quoted”\n"), "EPSG:8857", Envelope(-1e7 / 3, -5e6 / 7, 1e7, 0.1 + 0.2));
  auto const plan = frameOf("Plan", "", Envelope(0, 0, 1.0 / 3, 1e-3));
  world->AddMapGrid(make<Graticule>());
  world->SetGeometry(make<Envelope>(1.1, 15.3, 19.9, 28.7));
  world->SetBorder(make<SymbolBorder>());
  world->GetMap()->GetGraphicsContainer()->AddElement(make<RectangleElement>());
  auto const group = make<GroupElement>();
  group->AddElement(make<RectangleElement>());
  group->AddElement(make<TextElement>());
  layout.GetPage()->SetBorder(make<SymbolBorder>());
  layout.GetPage()->SetOrientation(2);
  for (_ptr_t<Element> const& element : QList<_ptr_t<Element>>{
           world, plan, group, surround<ScaleLine>(plan->GetMap()), surround<Legend>(world->GetMap()),
           surround<MarkerNorthArrow>(world->GetMap()), surround<ScaleText>(nullptr)})
    layout.GetGraphicsContainer()->AddElement(element);
  layout.SetAlignToMargins(true);
  layout.SetFocusMap(plan->GetMap());
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
    MapDocument document;
    document.New(path("sample.kdx"));
    fill(*document.GetPageLayout());
    QVERIFY2(document.Save(true, false), qPrintable(document.GetErrors().join('\n')));
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

  void anOpenedDocumentRefersToItsOwnMapsAndShowsItsWholePage() {
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    auto const layout = document.GetPageLayout();
    auto const elements = layout->GetGraphicsContainer()->GetElements();
    QCOMPARE(document.GetMapCount(), 2);
    QCOMPARE(document.GetMap(0)->GetName(), QStringLiteral("Welt – “quoted”\n"));
    QVERIFY(!document.GetMap(2));
    QVERIFY(!document.GetMap(-1));
    QCOMPARE(layout->GetFocusMap(), document.GetMap(1));
    QCOMPARE(ptr_cast<MapSurroundFrame>(elements[3])->GetMapSurround()->GetMap(), document.GetMap(1));
    QCOMPARE(ptr_cast<MapSurroundFrame>(elements[4])->GetMapSurround()->GetMap(), document.GetMap(0));
    QVERIFY(!ptr_cast<MapSurroundFrame>(elements[6])->GetMapSurround()->GetMap());
    QCOMPARE(document.GetMap(0)->GetGraphicsContainer()->GetElements().size(), 1);
    QVERIFY(layout->GetAlignToMargins());
    QCOMPARE(document.history()->count(), 0);
    QVERIFY(document.GetActiveView()->GetExtent()->Contains(layout->GetPage()->GetPageEnvelope()));
    for (_ptr_t<ActiveView> const& view : {document.GetActiveView(), _ptr_t<ActiveView>(document.GetMap(0))})
      QVERIFY(!view->GetExtentStack()->CanUndo() && !view->GetExtentStack()->CanRedo());
  }

  void aBadFieldIsNamedAndNothingIsOpened_data() {
    Rows<QString, QJsonValue, QString> row;
    QJsonValue const gone(QJsonValue::Undefined);
    // clang-format off
    row("another format", "format", "other", "format: is not “plotvane-document”");
    row("no format", "format", gone, "format: is missing");
    row("a newer version", "version", 2, "version: the document was written by a newer version");
    row("version 0", "version", 0, "version: 0 is not between");
    row("an object for a list", "maps", QJsonObject(), "maps: expected a list");
    row("a name without end", "maps.0.name", QString(16385, 'n'), "maps[0].name: the text has 16385 characters; at most 16384");
    row("null for a name", "maps.0.name", QJsonValue(), "maps[0].name: expected a text, found null");
    row("an unknown system", "maps.0.coordinateSystem", "EPSG:99999", "maps[0].coordinateSystem: “EPSG:99999”");
    row("a system from a file", "maps.0.coordinateSystem", "/etc/passwd", "maps[0].coordinateSystem: ");
    row("bounds without a size", "maps.0.bounds", QJsonArray{5, 5, 5, 5}, "maps[0].bounds: must be");
    row("bounds turned over", "maps.0.bounds", QJsonArray{5, 5, 1, 9}, "maps[0].bounds: must be");
    row("bounds beyond all maps", "maps.1.bounds.2", 1e308, "maps[1].bounds[2]: 1e+308 is not between");
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
    row("empty", QByteArray(), "line 1, column 1: this is not JSON");
    row("a slip in the third line", "{\n  \"a\": 1,\n  \"ä\" 2\n}", "line 3, column 8: ");
    row("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10), "this is not JSON");
    row("a list", "[1, 2]", "holds a list");
    row("a number that JSON does not have", QByteArray(sample_).replace("\"version\": 1", "\"version\": NaN"),
        "this is not JSON");
    row("lists without an end", QByteArray(100000, '['), "this is not JSON");
    row("objects without an end", QByteArray("{\"maps\":").repeated(100000), "this is not JSON");
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
    auto const scaleLine =
        ptr_cast<MapSurroundFrame>(document.GetPageLayout()->GetGraphicsContainer()->GetElements().at(2));
    QCOMPARE(scaleLine->GetMapSurround()->GetMap()->GetName(), QString("Plan"));
    QCOMPARE(document.GetMapCount(), 1);
  }

  void unknownFieldsAndUnshownMapsAreReported() {
    QJsonObject odd = changed(json(sample_), {"maps", "0", "note"}, 1).toObject();
    odd["colour"] = "red";
    odd["maps"] = odd["maps"].toArray() + QJsonObject{{"name", "Unseen"}, {"bounds", QJsonArray{0, 0, 1, 1}}};
    put(path("odd.kdx"), QJsonDocument(odd).toJson());
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
    QCOMPARE(document.GetUnreadableSourceCount(), 1);
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
    QCOMPARE(document.GetUnreadableSourceCount(), 1);
    QCOMPARE(document.GetPageLayout()->GetGraphicsContainer()->GetElements().size(), 3);
  }

  void everyFieldIsExplainedToPeopleAndInTheManual() {
    DocumentContent content;
    DocumentContext context;
    SysUtility::FieldTree tree;
    content.list(tree, context);
    QString const manual = QString::fromUtf8(contentOf(PLOTVANE_SOURCE_DIR "/docs/document-format.md"));
    int count = 0;
    QCOMPARE(unexplained(tree.fields(), QString(), manual, count), QStringList());
    QVERIFY2(count > 500, qPrintable(QString::number(count)));
  }

  void elementsWithoutAHandleGetOneThatIsFree() {
    QJsonValue const gone(QJsonValue::Undefined), some = changed(json(sample_), {"elements", "0", "handle"}, gone);
    QJsonObject const stored = changed(some, {"elements", "1", "handle"}, 0).toObject();
    put(path("handles.kdx"), QJsonDocument(stored).toJson());
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
    QVERIFY(document.Save(true, false));
    QCOMPARE(document.GetErrors(), QStringList());
    QCOMPARE(QString::fromUtf8(contentOf(path("sample.kdx"))), QString::fromUtf8(sample_));
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
    QImage const picture = document.Thumbnail();
    QCOMPARE(picture.size(), QSize(256, 181));
    QCOMPARE(picture.pixelColor(250, 100), QColor(Qt::white));
    QVERIFY(picture.pixelColor(0, 100).lightness() < 230);
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
    Editor::Instance()->setHistory(document.history());
    auto const add = [elements](_ptr_t<Element> const& element) {
      Editor::Instance()->StartOperation("step");
      elements->AddElement(element);
      Editor::Instance()->StopOperation();
      return element;
    };
    auto const first = add(make<RectangleElement>());
    if (turned) document.GetPageLayout()->GetPage()->SetOrientation(2);
    first->Move(dx, 0);
    QCOMPARE(document.history()->count(), keepsHistory ? 1 : 0);  // nobody has asked for it yet

    add(make<RectangleElement>());
    auto const operations = document.GetOperationStack();
    operations->Undo();
    QCOMPARE(operations->CanUndo(), keepsHistory);
    operations->Undo();
    QCOMPARE(elements->GetElements().isEmpty(), keepsHistory);
    QVERIFY(document.isModified());
    Editor::Instance()->setHistory(nullptr);
  }

  void whatIsKeptOutOfTheHistoryIsAModification_data() {
    Rows<void (*)(PageLayout&), bool> row;
    row(
        "a lock", [](PageLayout& page) { page.GetFocusMapFrameElement()->SetLocked(true); }, true);
    row(
        "the margins toggle", [](PageLayout& page) { page.SetAlignToMargins(!page.GetAlignToMargins()); }, true);
    row(
        "the focus", [](PageLayout& page) { page.SetFocusMap(mapsOn(page).first()); }, true);
    row(
        "the paper", [](PageLayout& page) { page.GetPage()->SetFormID(0); }, true);
    row(
        "another custom size", [](PageLayout& page) { page.GetPage()->setCustomSize(7, 5); }, true);
    row(
        "the orientation", [](PageLayout& page) { page.GetPage()->SetOrientation(1); }, true);
    row(
        "the page's border", [](PageLayout& page) { page.GetPage()->SetBorder(nullptr); }, true);
    row(
        "an element's name", [](PageLayout& page) { elementsOf(page).last()->SetName("Other"); }, true);
    row(
        "an element that goes without an operation",
        [](PageLayout& page) { page.GetGraphicsContainer()->DeleteElement(elementsOf(page).last()); }, true);
    row(
        "a map's name", [](PageLayout& page) { mapsOn(page)[0]->SetName("Other"); }, true);
    row(
        "a map's extent", [](PageLayout& page) { mapsOn(page)[0]->SetExtent(make<Envelope>(0, 0, 7, 5)); }, true);
    row(
        "a layer shown", [](PageLayout& page) { mapsOn(page)[0]->GetLayer(0)->SetVisible(false); }, true);
    row(
        "a layer's scales", [](PageLayout& page) { mapsOn(page)[0]->GetLayer(0)->SetScaleRange(0, 5e6); }, true);

    row(
        "what is said again",
        [](PageLayout& page) {
          page.GetFocusMapFrameElement()->SetLocked(false);
          page.SetFocusMap(page.GetFocusMap());
          page.GetPage()->SetOrientation(page.GetPage()->GetOrientation());
          mapsOn(page)[0]->SetExtent(make<Envelope>(mapsOn(page)[0]->GetStoredBounds()));
          elementsOf(page).last()->SetGeometry(elementsOf(page).last()->GetEnvelope());
        },
        false);
    row(
        "a clone that nobody sees", [](PageLayout& page) { elementsOf(page)[0]->Clone()->Move(1, 1); }, false);
    row(
        "the view", [](PageLayout& page) { page.ZoomToRatio(2); }, false);
    row(
        "labels that come and go",
        [](PageLayout& page) {
          auto const label = make<TextElement>();
          label->becomeLabel();
          mapsOn(page)[0]->GetGraphicsContainer()->AddElement(label);
          mapsOn(page)[0]->GetGraphicsContainer()->DeleteElement(label);
        },
        false);
  }
  void whatIsKeptOutOfTheHistoryIsAModification() {
    auto const [change, isModification] = fetched<void (*)(PageLayout&), bool>();
    MapDocument document;
    QVERIFY(document.Open(path("sample.kdx")));
    mapsOn(*document.GetPageLayout())[0]->AddLayer(opened({}, {}).layer);
    QVERIFY(document.isModified());
    QVERIFY(document.SaveAs(path("modified.kdx"), true, false));
    QVERIFY(!document.isModified());
    change(*document.GetPageLayout());
    QCOMPARE(document.isModified(), isModification);
  }

  void anotherLayoutStartsANewHistory() {
    MapDocument document;
    document.New(QString());
    document.history()->push(new QUndoCommand("step"));
    auto const operations = document.GetOperationStack();
    QCOMPARE(operations->GetUndoName(), QString("step"));
    auto const contents = make<Contents>();
    contents->layout = document.GetPageLayout();
    document.ReplaceContents(contents);
    QVERIFY(operations->CanUndo() && document.isModified());
    document.history()->setClean();
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
      document.history()->push(new QUndoCommand("step"));
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

  void putChanged(QString const& name, QStringList const& field, QJsonValue const& value) const {
    put(path(name), QJsonDocument(changed(json(sample_), field, value).toObject()).toJson());
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
};

QTEST_MAIN(DocumentTest)
#include "tst_document.moc"
