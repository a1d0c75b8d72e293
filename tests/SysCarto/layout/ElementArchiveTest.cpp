#include "host/SysCarto/layout/ElementArchive.h"
#include "host/SysCarto/layout/GraphicElements.h"
#include "host/SysCarto/layout/PictureElement.h"
#include "host/SysCarto/layout/TextElement.h"

#include <SysCarto/Graticule.h>
#include <SysCarto/GroupElement.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysCarto/SymbolFrameParts.h>

#include <QJsonDocument>
#include <QtTest>

#include <optional>

using namespace SysCarto;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

QJsonObject json(QByteArray text) {
  QJsonParseError error;
  QJsonDocument const document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
  if (error.error != QJsonParseError::NoError) qFatal("%s in %s", qPrintable(error.errorString()), text.data());
  return document.object();
}

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

class ElementArchiveTest : public QObject {
  Q_OBJECT

private slots:
  void comesBackAsItWasStored_data() {
    QTest::addColumn<QByteArray>("stored");
    QByteArray const line = "'symbol':{'type':'simpleLine'}", fill = "'symbol':{'type':'simpleFill','style':'cross'}";
    QTest::newRow("marker") << QByteArray(
        "{'type':'marker','handle':3,'name':'Church','position':[1.5,-2],"
        "'symbol':{'type':'simpleMarker','size':9}}");
    QTest::newRow("line without a symbol") << QByteArray("{'type':'line','handle':3,'points':[0,0,1,2,3.25,4]}");
    QTest::newRow("polygon with a hole") << QByteArray(
        "{'type':'polygon','handle':3,'rings':[{'points':[0,0,9,0,9,9]},"
        "{'points':[1,1,2,1,2,2]}]," +
        fill + "}");
    QTest::newRow("rectangle") << QByteArray("{'type':'rectangle','handle':3,'rectangle':[1,2,3,4]," + fill + "}");
    QTest::newRow("ellipse on a map, in its units")
        << QByteArray("{'type':'ellipse','handle':3,'rectangle':[500000,5400000,500100,5400200]," + fill + "}");
    QTest::newRow("text") << QByteArray(
        "{'type':'text','handle':3,'position':[1,2],'text':'Grüße','angle':30,"
        "'symbol':{'type':'text','size':14}}");
    QTest::newRow("group in a group") << QByteArray(
        "{'type':'group','handle':3,'name':'Outer','members':[{'type':'group','members':["
        "{'type':'line','points':[0,0,1,1]," +
        line + "}]},{'type':'marker','position':[0,0]}]}");
    QTest::newRow("data frame") << QByteArray(
        "{'type':'dataFrame','handle':3,'map':1,'locked':true,'rectangle':[1,2,11,12],"
        "'border':{" +
        line +
        ",'gap':2,'rounding':50},'shadow':{'offset':[3,-3]},"
        "'grids':[{'name':'Grid 1'},{}]}");
    QTest::newRow("bare data frame") << QByteArray("{'type':'dataFrame','handle':3,'map':0,'rectangle':[1,2,11,12]}");
    QTest::newRow("surround") << QByteArray("{'type':'surround','handle':3,'rectangle':[1,2,3,4],'background':{" +
                                            fill +
                                            ",'gap':1},"
                                            "'surround':{'kind':'scaleLine','map':1}}");
    QTest::newRow("north arrow bound to no map") << QByteArray(
        "{'type':'surround','handle':3,'rectangle':[1,2,3,4],"
        "'surround':{'kind':'northArrow','symbol':{'type':'simpleMarker','style':'star'}}}");
    QTest::newRow("picture beside the document")
        << QByteArray("{'type':'picture','handle':3,'rectangle':[1,2,3,4],'path':'../logos/a.png'}");
  }
  void comesBackAsItWasStored() {
    QFETCH(QByteArray, stored);
    DocumentContext context = contextWith(2);
    _ptr_t<Element> element;
    Archive reader(json(stored));
    describeElement(reader, element, context);
    QCOMPARE(reader.error(), QString());
    QCOMPARE(reader.warnings(), QStringList());
    QVERIFY(element && element->GetHandle() == 3);
    context.framedMaps.clear();
    Archive writer;
    describeElement(writer, element, context);
    QCOMPARE(writer.error(), QString());
    QCOMPARE(QJsonDocument(writer.json()).toJson(),
             QJsonDocument(withFilledSymbols(writer.json(), json(stored))).toJson());
  }

  void refusesWithThePathOfTheField_data() {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("says");
    QTest::newRow("no type") << QByteArray("{}") << "type";
    QTest::newRow("unknown type") << QByteArray("{'type':'sphere'}") << "“sphere” is not one of marker, line";
    QTest::newRow("handle used before") << QByteArray("{'type':'marker','handle':7,'position':[0,0]}") << "handle";
    QTest::newRow("handle without a successor")
        << QByteArray("{'type':'marker','handle':2147483647,'position':[0,0]}") << "handle";
    QTest::newRow("negative handle") << QByteArray("{'type':'marker','handle':-1,'position':[0,0]}") << "handle";
    QTest::newRow("position with one number") << QByteArray("{'type':'marker','position':[0]}") << "position";
    QTest::newRow("line of one point") << QByteArray("{'type':'line','points':[0,0]}") << "points";
    QTest::newRow("odd number of coordinates") << QByteArray("{'type':'line','points':[0,0,1]}") << "points";
    QTest::newRow("coordinate out of this world") << QByteArray("{'type':'line','points':[0,0,1e15,0]}") << "points";
    QTest::newRow("ring of two points")
        << QByteArray("{'type':'polygon','rings':[{'points':[0,0,1,1,2,0]},{'points':[0,0,1,1]}]}")
        << "rings[1].points";
    QTest::newRow("polygon without rings") << QByteArray("{'type':'polygon'}") << "rings";
    QTest::newRow("corners out of order") << QByteArray("{'type':'rectangle','rectangle':[3,0,1,1]}") << "rectangle";
    QTest::newRow("text without a symbol") << QByteArray("{'type':'text','position':[0,0],'text':'a'}") << "symbol";
    QTest::newRow("map that does not exist")
        << QByteArray("{'type':'dataFrame','map':2,'rectangle':[0,0,1,1]}") << "map: 2";
    QTest::newRow("map that another frame shows")
        << QByteArray("{'type':'dataFrame','map':0,'rectangle':[0,0,1,1]}") << "map: another data frame";
    QTest::newRow("frame far off the page")
        << QByteArray("{'type':'dataFrame','map':1,'rectangle':[0,0,1,20000]}") << "rectangle";
    QTest::newRow("rounding of more than all")
        << QByteArray("{'type':'dataFrame','map':1,'rectangle':[0,0,1,1],'border':{'rounding':101}}")
        << "border.rounding";
    QTest::newRow("surround of an unknown kind")
        << QByteArray("{'type':'surround','rectangle':[0,0,1,1],'surround':{'kind':'clock'}}") << "surround.kind";
    QTest::newRow("surround of a map that does not exist")
        << QByteArray("{'type':'surround','rectangle':[0,0,1,1],'surround':{'kind':'legend','map':5}}")
        << "surround.map";
    QTest::newRow("data frame in a group")
        << QByteArray("{'type':'group','members':[{'type':'dataFrame','map':1,'rectangle':[0,0,1,1]}]}")
        << "members[0].type";
    QTest::newRow("a group of nothing") << QByteArray("{'type':'group','members':[]}") << "members";
    QTest::newRow("seventeen groups") << nested(17) << "groups are nested";
  }
  void refusesWithThePathOfTheField() {
    QFETCH(QByteArray, stored);
    QFETCH(QString, says);
    DocumentContext context = contextWith(2);
    context.handles << 7;
    context.framedMaps << context.maps[0].get();
    _ptr_t<Element> element;
    Archive archive(json(stored));
    describeElement(archive, element, context);
    QVERIFY2(archive.error().contains(says), qPrintable(archive.error()));
    QVERIFY(!element);
  }

  void takesSixteenGroups() {
    DocumentContext context = contextWith(0);
    _ptr_t<Element> element;
    Archive archive(json(nested(16)));
    describeElement(archive, element, context);
    QCOMPARE(archive.error(), QString());
  }

  void picturePathsFollowTheDocument() {
    DocumentContext context = contextWith(0);
    auto const picture = make<PictureElement>();
    picture->setPath("/documents/logos/a.png");
    _ptr_t<Element> element = picture;
    for (bool relative : {true, false}) {
      context.relativePaths = relative;
      Archive writer;
      describeElement(writer, element, context);
      QCOMPARE(writer.json()["path"].toString(), QString(relative ? "logos/a.png" : "/documents/logos/a.png"));
      _ptr_t<Element> read;
      Archive reader(writer.json());
      describeElement(reader, read, context);
      QCOMPARE(ptr_cast<PictureElement>(read)->path(), picture->path());
    }
  }

  void storesThePage_data() {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("says");  // empty: taken
    QTest::addColumn<QSizeF>("sizeCm");
    QTest::newRow("A3, lying") << QByteArray("{'form':'A3','orientation':'landscape','background':{}}") << ""
                               << QSizeF(42, 29.7);
    QTest::newRow("custom, lying: the size is stored upright")
        << QByteArray("{'form':'Custom','width':12.5,'height':80,'orientation':'landscape'}") << "" << QSizeF(80, 12.5);
    QTest::newRow("unknown form") << QByteArray("{'form':'A44'}") << "“A44” is not a paper form" << QSizeF();
    QTest::newRow("custom without a height") << QByteArray("{'form':'Custom','width':12}") << "height" << QSizeF();
    QTest::newRow("wider than any plotter")
        << QByteArray("{'form':'Custom','width':501,'height':1}") << "width" << QSizeF();
    QTest::newRow("standing on its head")
        << QByteArray("{'form':'A4','orientation':'upside'}") << "orientation" << QSizeF();
  }
  void storesThePage() {
    QFETCH(QByteArray, stored);
    QFETCH(QString, says);
    QFETCH(QSizeF, sizeCm);
    Page page;
    Archive reader(json(stored));
    describePage(reader, page);
    QVERIFY2(says.isEmpty() ? reader.ok() : reader.error().contains(says), qPrintable(reader.error()));
    if (!says.isEmpty()) return;
    double width, height;
    page.QuerySize(width, height);
    QVERIFY(std::abs(width - sizeCm.width()) < 1e-9 && std::abs(height - sizeCm.height()) < 1e-9);
    QCOMPARE(bool(page.GetBackground()), stored.contains("background"));
    Archive writer;
    describePage(writer, page);
    QCOMPARE(writer.error(), QString());
    QCOMPARE(writer.json(), json(stored));
  }

private:
  // Symbols are another folder's to store: what it writes beyond the row is taken as it is.
  static QJsonObject withFilledSymbols(QJsonObject const& written, QJsonObject expected) {
    for (auto field = written.begin(); field != written.end(); ++field) {
      bool const isSymbol = field.key() == QLatin1String("symbol");
      QJsonValue const wanted = expected[field.key()];
      if (field->isObject() && wanted.isObject())
        expected[field.key()] = isSymbol ? *field : QJsonValue(withFilledSymbols(field->toObject(), wanted.toObject()));
    }
    return expected;
  }
};

QTEST_MAIN(ElementArchiveTest)
#include "ElementArchiveTest.moc"
