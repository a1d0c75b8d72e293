#include "Elements.h"

#include "host/SysCarto/document/ElementFields.h"
#include "host/SysUtility/JsonFields.h"

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
  void refusesWithThePathOfTheField_data() {
    Rows<QByteArray, QString> row;
    row("handle used before", "{'type':'marker','handle':7,'position':[0,0]}", "handle");
    row("handle without a successor", "{'type':'marker','handle':2147483647,'position':[0,0]}", "handle");
    row("line of one point", "{'type':'line','points':[0,0]}", "points");
    row("short ring", "{'type':'polygon','rings':[{'points':[0,0,1,1,2,0]},{'points':[0,0,1,1]}]}", "rings[1].points");
    row("polygon without rings", "{'type':'polygon'}", "rings");
    row("corners out of order", "{'type':'rectangle','rectangle':[3,0,1,1]}", "rectangle");
    row("map that does not exist", "{'type':'dataFrame','map':2,'rectangle':[0,0,1,1]}", "map: 2");
    row("map of another frame", "{'type':'dataFrame','map':0,'rectangle':[0,0,1,1]}", "map: another data frame");
    row("overview of a map that does not exist",
        "{'type':'dataFrame','map':1,'rectangle':[0,0,1,1],'overviews':[{},{'map':2}]}", "overviews[1].map: 2");
    row("overview of the same map", "{'type':'dataFrame','map':1,'rectangle':[0,0,1,1],'overviews':[{'map':1}]}",
        "overviews[0].map: is the map of this data frame");
    row("surround of a map that does not exist",
        "{'type':'surround','rectangle':[0,0,1,1],'surround':{'kind':'legend','map':5}}", "surround.map");
    row("a frame in a group", "{'type':'group','members':[{'type':'dataFrame','map':1,'rectangle':[0,0,1,1]}]}",
        "members[0].type");
    row("an embedded text", "{'type':'picture','rectangle':[0,0,1,1],'data':'data:text/plain;base64,aGFsbG8='}",
        "data");
    row("base 64 that breaks off", "{'type':'picture','rectangle':[0,0,1,1],'data':'data:image/png;base64,aGFsb*8='}",
        "data");
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
    row("custom without a height", "{'form':'Custom','width':12}", "height", QSizeF());
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
    QCOMPARE(sizeOf(page), sizeCm);
    QCOMPARE(bool(page.GetBackground()), stored.contains("background"));
    JsonWriter writer;
    PageSettings::of(page).list(writer);
    QCOMPARE(writer.error(), QString());
    QCOMPARE(writer.json(), json(stored));
  }
};

QTEST_MAIN(ElementFieldsTest)
#include "ElementFieldsTest.moc"
