#include "LayerFixture.h"

#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysCarto/layers/FeatureTable.h"

#include <SysDisplay/SimpleLineSymbol.h>

using namespace SysCarto;

namespace {

// JSON with single quotes.
QByteArray quoted(QByteArray text) { return text.replace('\'', '"'); }

QByteArray shape(QByteArray const& type, QByteArray const& coordinates) {
  return quoted("{'type':'" + type + "','coordinates':" + coordinates + "}");
}

QByteArray featureWith(QByteArray const& properties, QByteArray const& geometry) {
  return quoted("{'type':'Feature','properties':{" + properties + "},'geometry':") + geometry + "}";
}

QByteArray const square = shape("Polygon", "[[[0,0],[10,0],[10,10],[0,10],[0,0]],[[4,4],[6,4],[6,6],[4,6],[4,4]]]");
QByteArray const cover = shape("Polygon", "[[[1,1],[9,1],[9,9],[1,9],[1,1]]]");
QByteArray const bent = shape("LineString", "[[0,20],[10,20],[10,30]]");
QByteArray const places = shape("MultiPoint", "[[20,5],[25,5]]");

}  // namespace

// Features found at a place, and their attributes read.
class FeatureTableTest : public QObject {
  Q_OBJECT

private slots:
  void featuresAreFoundByTheirGeometry_data() {
    Rows<QPointF, double, QStringList> row;
    row("in an area", {2, 2}, 0.5, {"square", "cover"});
    row("a hole is none of it", {5, 5}, 0.5, {"cover"});
    row("an area reaches no farther than its border", {10.2, 5}, 0.5, {});
    row("near a line", {5, 20.4}, 0.5, {"bent"});
    row("too far from a line", {5, 20.6}, 0.5, {});
    row("not where a line would be closed", {5, 25}, 0.5, {});
    row("beyond the end of a line", {-0.3, 20.3}, 0.5, {"bent"});
    row("near one of several points", {24.7, 5.3}, 0.5, {"places"});
    row("in the box of a point's reach, and too far", {24.6, 5.4}, 0.5, {});
    row("the nearest first", {20, 12.4}, 8, {"near", "places"});
  }
  void featuresAreFoundByTheirGeometry() {
    auto const [place, reach, names] = fetched<QPointF, double, QStringList>();
    QByteArray const near = shape("Point", "[20,12]");
    LabelSettings labels;
    labels.field = "name";
    auto const layer = openedJson(collection({feature(cover, "cover"), feature(square, "square"), feature(bent, "bent"),
                                              feature(places, "places"), feature(near, "near")}),
                                  {}, {}, labels);
    QStringList found;
    for (int const number : featuresAt(layer.features(), place.x(), place.y(), reach))
      found << layer.features().labels[static_cast<size_t>(number)];
    QCOMPARE(found, names);
  }

  void attributesAreReadByTheNumberThatTheStoreKeeps() {
    QString const file =
        written(folder_, "a.geojson",
                collection({feature(bent, "A"), feature(square, "B"),
                            featureWith("'name':'C','n':2.5,'i':3,'day':'2021/03/04','empty':null", places),
                            featureWith("'name':'D'", "null")}));
    auto const layer = opened({file, {}, "name <> 'A'", {}}, {});
    QCOMPARE(layer.features().size(), 2);
    QString error;
    auto const table = FeatureTable::open(layer.layer->source(), error);
    QVERIFY2(table, qPrintable(error));
    QStringList fields;
    for (TableField const& field : table->fields()) fields << field.name + (field.isNumber ? "#" : "");
    QCOMPARE(fields, QStringList({"name", "n#", "i#", "day", "empty"}));
    QCOMPARE(table->row(layer.features().ids.at(0)).value(0), QVariant("B"));
    TableRow const row = table->row(layer.features().ids.at(1));
    QCOMPARE(row, TableRow({"C", 2.5, 3, "2021-03-04", QVariant()}));
    QVERIFY(table->row(layer.features().ids.at(0)).value(1).isNull());
    QVERIFY(table->row(123456).isEmpty());
    auto const rows = table->rows({layer.features().ids.at(1), layer.features().ids.at(0), 123456});
    QVERIFY(rows.size() == 2 && rows[layer.features().ids.at(1)] == row);
    auto const lines = FeatureTable::open({written(folder_, "a.csv", "name,n\nA,1\nB,2\nC,3\n"), {}, {}, {}}, error);
    QVERIFY2(lines && !lines->isRandom(), qPrintable(error));
    for (int pass = 0; pass < 2; ++pass) {
      auto const some = lines->rows({3, 1});
      QVERIFY(some.size() == 2 && some[3].value(0) == "C" && some[1].value(0) == "A");
    }
    QCOMPARE(featuresOf(layer.features(), {layer.features().ids.at(1), 123456}), std::vector<int>({1}));
  }

  void aPassHandsOnWhatIsWanted_data() {
    Rows<QString, QString, QStringList> row;
    row("all, those without a place, too", "", "", {"0", "1", "2", "3", "4"});
    row("those of the source", "n > 1", "", {"2", "3", "4"});
    row("and of those, some", "n > 1", "name = 'x3' OR name = 'x0'", {"3"});
    row("a condition on the geometry", "", "OGR_GEOM_WKT LIKE 'POINT (2 %'", {"2"});
    row("what is no condition", "", "name = ", {"!The condition “name =” is not understood"});
    row("a field that there isn't", "", "size > 3", {"!The condition “size > 3” is not understood"});
  }
  void aPassHandsOnWhatIsWanted() {
    auto const [filter, condition, expected] = fetched<QString, QString, QStringList>();
    QByteArrayList features;
    for (int i = 0; i < 5; ++i) {
      QByteArray const n = QByteArray::number(i);
      features << featureWith("'n':" + n + ",'name':'x" + n + "'", i == 4 ? "null" : shape("Point", "[" + n + ",0]"));
    }
    SourceSettings const source{written(folder_, "b.geojson", collection(features)), {}, filter, {}};
    FeatureScan::Wanted wanted;
    wanted.condition = condition.trimmed();
    wanted.field = 0;
    QString error;
    auto const scan = FeatureScan::open(source, wanted, error);
    if (expected.first().startsWith('!')) {
      QVERIFY2(!scan && error.startsWith(expected.first().mid(1)), qPrintable(error));
      return;
    }
    QVERIFY2(scan, qPrintable(error));
    QStringList values;
    while (scan->advance(0, [&](qint64, TableRow const& row) { values << row.value(0).toString(); })) continue;
    QCOMPARE(values, expected);
    QCOMPARE(scan->progress(), 1.0);
  }

private:
  QTemporaryDir folder_;
};

QTEST_MAIN(FeatureTableTest)
#include "FeatureTableTest.moc"
