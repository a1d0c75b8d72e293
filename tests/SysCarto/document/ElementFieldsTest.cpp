#include "Elements.h"
#include "Json.h"

#include "host/SysCarto/document/ElementFields.h"
#include "host/SysUtility/JsonFields.h"

#include <QJsonDocument>

using namespace SysCarto;
using SysUtility::JsonReader;
using SysUtility::JsonWriter;

namespace {

DocumentContext contextWith(int maps) {
  DocumentContext context;
  context.folder = "/documents";
  for (int i = 0; i < maps; ++i) context.maps << make<Map>();
  return context;
}

QByteArray nested(int depth) {
  QByteArray text = "{'type':'marker','position':[0,0]}";
  for (int i = 0; i < depth; ++i) text = "{'type':'group','members':[" + text + "]}";
  return text;
}

}  // namespace

class ElementFieldsTest : public QObject {
  Q_OBJECT

private slots:
  void comesBackAsItWasStored_data() {
    Rows<QByteArray> row;
    QByteArray const line = "'symbol':{'type':'simpleLine'}", fill = "'symbol':{'type':'simpleFill','style':'cross'}";
    row("marker", "'type':'marker','name':'Church','position':[1.5,-2],'symbol':{'type':'simpleMarker','size':9}");
    row("line without a symbol", "'type':'line','points':[0,0,1,2,3.25,4]");
    row("polygon with a hole", "'type':'polygon','rings':[{'points':[0,0,9,0,9,9]},{'points':[1,1,2,1,2,2]}]," + fill);
    row("rectangle", "'type':'rectangle','rectangle':[1,2,3,4]," + fill);
    row("ellipse on a map, in its units", "'type':'ellipse','rectangle':[500000,5400000,500100,5400200]," + fill);
    row("text", "'type':'text','position':[1,2],'text':'Grüße','angle':30,'symbol':{'type':'text','size':14}");
    row("group in a group",
        "'type':'group','name':'Outer','members':[{'type':'group','members':[{'type':'line','points':[0,0,1,1]," +
            line + "}]},{'type':'marker','position':[0,0]}]");
    row("data frame", "'type':'dataFrame','map':1,'locked':true,'rectangle':[1,2,11,12],'border':{" + line +
                          ",'gap':2,'rounding':50},'shadow':{'offset':[3,-3]},'grids':[{'name':'Grid 1'},{}]");
    row("bare data frame", "'type':'dataFrame','map':0,'rectangle':[1,2,11,12]");
    row("surround", "'type':'surround','rectangle':[1,2,3,4],'background':{" + fill +
                        ",'gap':1},'surround':{'kind':'scaleLine','map':1}");
    row("north arrow bound to no map",
        "'type':'surround','rectangle':[1,2,3,4],"
        "'surround':{'kind':'northArrow','symbol':{'type':'simpleMarker','style':'star'}}");
    row("picture beside the document", "'type':'picture','rectangle':[1,2,3,4],'path':'../logos/a.png'");
  }
  void comesBackAsItWasStored() {
    auto const [fields] = fetched<QByteArray>();
    QJsonObject const stored = json("{'handle':3," + fields + "}");
    DocumentContext context = contextWith(2);
    _ptr_t<Element> element;
    JsonReader reader(stored);
    listElement(reader, element, {context});
    QCOMPARE(reader.error(), QString());
    QCOMPARE(reader.warnings(), QStringList());
    QVERIFY(element && element->GetHandle() == 3);
    context.framedMaps.clear();
    JsonWriter writer;
    listElement(writer, element, {context});
    QCOMPARE(writer.error(), QString());
    QCOMPARE(QJsonDocument(writer.json()).toJson(), QJsonDocument(stored).toJson());
  }

  void refusesWithThePathOfTheField_data() {
    Rows<QByteArray, QString> row;
    row("no type", "{}", "type");
    row("unknown type", "{'type':'sphere'}", "“sphere” is not one of marker, line");
    row("handle used before", "{'type':'marker','handle':7,'position':[0,0]}", "handle");
    row("handle without a successor", "{'type':'marker','handle':2147483647,'position':[0,0]}", "handle");
    row("negative handle", "{'type':'marker','handle':-1,'position':[0,0]}", "handle");
    row("line of one point", "{'type':'line','points':[0,0]}", "points");
    row("coordinate out of this world", "{'type':'line','points':[0,0,1e15,0]}", "points");
    row("ring of two points", "{'type':'polygon','rings':[{'points':[0,0,1,1,2,0]},{'points':[0,0,1,1]}]}",
        "rings[1].points");
    row("polygon without rings", "{'type':'polygon'}", "rings");
    row("corners out of order", "{'type':'rectangle','rectangle':[3,0,1,1]}", "rectangle");
    row("text without a symbol", "{'type':'text','position':[0,0],'text':'a'}", "symbol");
    row("map that does not exist", "{'type':'dataFrame','map':2,'rectangle':[0,0,1,1]}", "map: 2");
    row("map that another frame shows", "{'type':'dataFrame','map':0,'rectangle':[0,0,1,1]}",
        "map: another data frame");
    row("frame far off the page", "{'type':'dataFrame','map':1,'rectangle':[0,0,1,20000]}", "rectangle");
    row("rounding of more than all", "{'type':'dataFrame','map':1,'rectangle':[0,0,1,1],'border':{'rounding':101}}",
        "border.rounding");
    row("surround of an unknown kind", "{'type':'surround','rectangle':[0,0,1,1],'surround':{'kind':'clock'}}",
        "surround.kind");
    row("surround of a map that does not exist",
        "{'type':'surround','rectangle':[0,0,1,1],'surround':{'kind':'legend','map':5}}", "surround.map");
    row("data frame in a group", "{'type':'group','members':[{'type':'dataFrame','map':1,'rectangle':[0,0,1,1]}]}",
        "members[0].type");
    row("a group of nothing", "{'type':'group','members':[]}", "members");
    row("sixteen groups may be nested", nested(16), "");
    row("seventeen groups", nested(17), "groups are nested");
  }
  void refusesWithThePathOfTheField() {
    auto const [stored, says] = fetched<QByteArray, QString>();
    DocumentContext context = contextWith(2);
    context.handles << 7;
    context.framedMaps << 0;
    _ptr_t<Element> element;
    JsonReader reader(json(stored));
    listElement(reader, element, {context});
    QVERIFY2(reader.error().contains(says), qPrintable(reader.error()));
    QCOMPARE(reader.ok() && element, says.isEmpty());
  }

  void picturePathsFollowTheDocument() {
    DocumentContext context = contextWith(0);
    auto const picture = make<PictureElement>();
    picture->setPath("/documents/logos/a.png");
    _ptr_t<Element> element = picture;
    for (bool relative : {true, false}) {
      context.relativePaths = relative;
      JsonWriter writer;
      listElement(writer, element, {context});
      QCOMPARE(writer.json()["path"].toString(), QString(relative ? "logos/a.png" : "/documents/logos/a.png"));
      _ptr_t<Element> read;
      JsonReader reader(writer.json());
      listElement(reader, read, {context});
      QCOMPARE(ptr_cast<PictureElement>(read)->path(), picture->path());
    }
  }

  void storesThePage_data() {
    // says: empty: taken
    Rows<QByteArray, QString, QSizeF> row;
    row("A3, lying", "{'form':'A3','orientation':'landscape','background':{}}", "", QSizeF(42, 29.7));
    row("custom, lying: the size is stored upright",
        "{'form':'Custom','width':12.5,'height':80,'orientation':'landscape'}", "", QSizeF(80, 12.5));
    row("unknown form", "{'form':'A44'}", "“A44” is not a paper form", QSizeF());
    row("custom without a height", "{'form':'Custom','width':12}", "height", QSizeF());
    row("wider than any plotter", "{'form':'Custom','width':501,'height':1}", "width", QSizeF());
    row("standing on its head", "{'form':'A4','orientation':'upside'}", "orientation", QSizeF());
  }
  void storesThePage() {
    auto const [stored, says, sizeCm] = fetched<QByteArray, QString, QSizeF>();
    JsonReader reader(json(stored));
    PageSettings settings;
    settings.list(reader);
    QVERIFY2(says.isEmpty() ? reader.ok() : reader.error().contains(says), qPrintable(reader.error()));
    if (!says.isEmpty()) return;
    Page page;
    settings.applyTo(page);
    double width, height;
    page.QuerySize(width, height);
    QVERIFY(std::abs(width - sizeCm.width()) < 1e-9 && std::abs(height - sizeCm.height()) < 1e-9);
    QCOMPARE(bool(page.GetBackground()), stored.contains("background"));
    JsonWriter writer;
    PageSettings::of(page).list(writer);
    QCOMPARE(writer.error(), QString());
    QCOMPARE(writer.json(), json(stored));
  }
};

QTEST_MAIN(ElementFieldsTest)
#include "ElementFieldsTest.moc"
