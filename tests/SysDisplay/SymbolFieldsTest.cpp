#include "Test.h"

#include "host/SysDisplay/SvgCheck.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"
#include "host/SysDisplay/SymbolFields.h"
#include "host/SysUtility/JsonFields.h"

#include <SysDisplay/SimpleLineSymbol.h>

using namespace SysDisplay;
using SysUtility::JsonReader;

namespace {

constexpr SysUtility::Field symbolField{"symbol", "", ""};

QByteArray svg(QByteArray const& inside, QByteArray const& before = QByteArray()) {
  return before +
         "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 9 9'>" +
         inside + "</svg>";
}

}  // namespace

class SymbolFieldsTest : public QObject {
  Q_OBJECT

private slots:
  void badValuesAreNamed_data() {
    // problem: how the sentence begins
    Rows<QByteArray, QString> row;
    row("unknown type", "{'type':'cartoonLine'}", "symbol.type: “cartoonLine” is not one of simpleLine");
    row("wrong family", "{'type':'simpleFill'}", "symbol.type: “simpleFill” is not one of simpleLine");
    row("colour by name", "{'type':'simpleLine','color':'red'}", "symbol.color: “red”");
    row("no dashes", "{'type':'dashLine','pattern':[1]}", "symbol.pattern: holds 1 entries; at least 2");
    row("a dash of no length", "{'type':'dashLine','pattern':[1,0]}", "symbol.pattern[1]: 0 is not between");
    row("no layer", "{'type':'layeredLine','layers':[]}", "symbol.layers: holds 0 entries; at least 1");
    row("a layer of another family", "{'type':'layeredLine','layers':[{'type':'simpleFill'}]}",
        "symbol.layers[0].type: “simpleFill” is not one of simpleLine");
    QByteArray nested = "{'type':'simpleLine'}";
    for (int i = 0; i < 200; ++i) nested = "{'type':'layeredLine','layers':[" + nested + "]}";
    row("layers without end", nested,
        QString("symbol.%1layers: layers lie within layers more than 3 deep").arg(QString("layers[0].").repeated(196)));
    row("colour of other letters", "{'type':'simpleLine','color':'#12345g'}", "symbol.color: “#12345g”");
  }
  void badValuesAreNamed() {
    auto const [stored, problem] = fetched<QByteArray, QString>();
    JsonReader reader(QJsonObject{{QStringLiteral("symbol"), json(stored)}});
    auto const before = make<SimpleLineSymbol>();
    _ptr_t<LineSymbol> symbol = before;
    listSymbol(reader, symbolField, symbol);
    QVERIFY2(reader.error().startsWith(problem), qPrintable(reader.error()));
    QVERIFY(symbol == before);
  }

  void stopsOfAGradientAscend() {
    JsonReader reader(json("{'symbol':{'type':'gradientFill','stops':[{'position':50},{'position':20}]}}"));
    _ptr_t<FillSymbol> symbol;
    listSymbol(reader, symbolField, symbol);
    QCOMPARE(reader.error(), QString("symbol.stops[1].position: is smaller than that of the colour before; sort them"));
  }

  void importChangesNothingUnlessTheJsonFits() {
    SimpleLineSymbol line;
    line.SetWidth(7);
    QVERIFY(!line.ImportFromJson(QStringLiteral("{\"type\":\"simpleFill\"}")));
    QVERIFY(!line.ImportFromJson(QStringLiteral("{\"type\":\"simpleLine\",\"width\":2,\"cap\":5}")));
    QVERIFY(!line.ImportFromJson(QStringLiteral("[")));
    QCOMPARE(line.GetWidth(), 7.0);
    QString json;
    line.ExportToJson(json);
    SimpleLineSymbol other;
    QVERIFY(other.ImportFromJson(json));
    QCOMPARE(other.GetWidth(), 7.0);
  }

  void svgThatReachesOutIsRefused_data() {
    // problem: empty: it is taken
    Rows<QByteArray, QString> row;
    row("plain", svg("<path d='M0 0L9 9' style='fill:#fff'/>"), "");
    row("gradient of its own", svg("<rect id='r' fill='url(#g)' width='2' height='2'/><use xlink:href='#r'/>"), "");
    row("image file", svg("<image xlink:href='file:///etc/passwd' width='9' height='9'/>"), "refers to");
    row("image from the network", svg("<image xlink:href=' http://example.org/a.png'/>"), "refers to");
    row("embedded SVG", svg("<image xlink:href='data:image/svg+xml;base64,PHN2Zy8+'/>"), "neither PNG nor JPEG");
    row("fill elsewhere", svg("<rect fill='url(other.svg#g)'/>"), "refers to");
    row("style elsewhere", svg("<rect style=\"fill: URL( 'other.svg' )\"/>"), "refers to");
    row("imported style sheet", svg("<style>@import 'a.css';</style>"), "style sheet");
    row("hidden letters", svg("<style>rect { fill: \\75rl(a.svg) }</style>"), "style sheet");
    row("style sheet instruction", svg("<g/>", "<?xml-stylesheet type='text/css' href='a.css'?>"), "instruction");
    row("entities", svg("<text>&a;</text>", "<!DOCTYPE svg [<!ENTITY a 'b'>]>"), "declares a document type");
    row("dashes",
        svg("<path stroke-width='1e-6' stroke-dasharray='2,1e-3' stroke-dashoffset='-90.5'/><g style='"
            "stroke-dasharray: 1e9 4; stroke-dashoffset:3.5e-15'/>"),
        "");
    for (QByteArray const far : {"<path stroke-dasharray='2 1' stroke-dashoffset='1e12'/>",
                                 "<path style='stroke-dasharray:2;STROKE-dashoffset/**/:/*;*/-9999999999'/>",
                                 "<path style='stroke-dasharray:2;x:\"/*\";stroke-dashoffset:1e12;y:\"*/\"'/>",
                                 "<style><x/>x:hover,path{stroke-dasharray:2;stroke-dashoffset:1e12}</style>"})
      row("dashes from afar: " + far, svg(far), "offset differ");
    row("dashes from so far that few read it",
        svg("<path stroke-dasharray='2' stroke-dashoffset='1e" + QByteArray(99, '0') + "1'/>"), "offset");
    row("dashes without an end", svg("<style>" + QByteArray("stroke-dashoffset/**/").repeated(90000) + "</style>"),
        "style sheet");
    row("a comment without an end", svg("<g style='" + QByteArray("stroke-dasharray:2/*").repeated(90000) + "'/>"),
        "style sheet");
    row("a style sheet with something in it", svg("<style><x/>@import 'a.css';</style>"), "style sheet");
    row("script", svg("<script>1</script>"), "script");
    row("uses in a circle", svg("<g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g>"), "circle");
    QByteArray bomb("<g id='n0'><rect/></g>");
    for (int i = 1; i < 10; ++i) {
      bomb += "<g id='n" + QByteArray::number(i) + "'>";
      for (int j = 0; j < 10; ++j) bomb += "<use xlink:href='#n" + QByteArray::number(i - 1) + "'/>";
      bomb += "</g>";
    }
    row("uses without end", svg(bomb), "repeats its parts");
    QByteArray chain;
    for (int i = 0; i < 15000; ++i)
      chain += "<use id='n" + QByteArray::number(i) + "' href='#n" + QByteArray::number(i + 1) + "'/>";
    row("a chain of uses", svg(chain), "repeats its parts");
    row("nested too deep", svg(QByteArray("<g>").repeated(100) + QByteArray("</g>").repeated(100)), "nested");
    row("not closed", svg("<g>"), "not well-formed");
    row("another XML", "<html/>", "not an SVG");
    row("too large", svg(QByteArray(3 << 20, ' ')), "bytes");
  }
  void svgThatReachesOutIsRefused() {
    auto const [svg, problem] = fetched<QByteArray, QString>();
    QString const found = svgProblem(svg);
    QVERIFY2(problem.isEmpty() ? found.isEmpty() : found.contains(problem), qPrintable(found));
    if (problem.isEmpty()) return;
    SvgMarkerSymbol marker;
    QCOMPARE(marker.setSvg(svg), found);
    QVERIFY(!marker.prepare(1));
  }
};

QTEST_MAIN(SymbolFieldsTest)
#include "SymbolFieldsTest.moc"
