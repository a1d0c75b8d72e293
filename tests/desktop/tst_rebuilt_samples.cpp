#include "desktop/Executable.h"

#include <QJsonDocument>

namespace {

QJsonObject documentIn(QString const& path) { return QJsonDocument::fromJson(contentOf(path)).object(); }

QString textOf(QJsonValue const& value) {
  QString const list = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
  return list.mid(1, list.size() - 2);
}

QStringList settingsOf(QString const& what, QJsonObject const& wanted, QStringList const& but) {
  QStringList steps;
  for (auto it = wanted.begin(); it != wanted.end(); ++it)
    if (!but.contains(it.key())) steps << QString("set=%1/%2:%3").arg(what, it.key(), textOf(*it));
  return steps;
}

// The layers are added by hand, one file's layer after the other, before the map is told how it shows them.
QStringList stepsOfMap(int number, QJsonObject const& map) {
  QString const name = QString("#%1").arg(number);
  QStringList steps;
  QJsonArray const layers = map["layers"].toArray();
  for (QJsonValue const& layer : layers) {
    QJsonObject const source = layer["source"].toObject();
    steps << QString("add=layer:%1|%2").arg(source["file"].toString(), source["layer"].toString());
  }
  steps << settingsOf("map:" + name, map, {"layers", "bounds"})
        << "set=map:" + name + "/bounds:" + textOf(map["bounds"]);
  for (int i = 0; i < layers.size(); ++i) {
    QString const layer = QString("layer:%1/#%2").arg(name).arg(i);
    steps << QString("set=%1/labels:null").arg(layer) << QString("set=%1/credits:").arg(layer)
          << settingsOf(layer, layers[i].toObject(), {"type", "source"})
          << settingsOf(layer + "/source", layers[i]["source"].toObject(), {"file", "layer"});
  }
  return steps;
}

QStringList insertionOf(QJsonObject const& element) {
  QString const type = element["type"].toString(), kind = element["surround"]["kind"].toString();
  if (type == "dataFrame") return {"Plotvane_MapFrame"};
  if (kind == "legend") return {"Plotvane_Legend"};
  if (kind == "scaleLine") return {"Plotvane_ScaleBar"};
  if (kind == "scaleText") return {"Plotvane_ScaleText"};
  if (kind == "northArrow") return {"accept", "Plotvane_NorthArrow"};
  return {type == "text" ? QString("add=text:T@1,1") : QString("add=%1@1,1,3,3").arg(type)};
}

QStringList stepsOf(QJsonObject const& document) {
  QStringList steps = settingsOf("page", document["page"].toObject(), {});
  int number = 0;
  for (QJsonValue const& one : document["elements"].toArray()) {
    QJsonObject const element = one.toObject();
    QString const name = QString("#%1").arg(++number);
    steps << insertionOf(element);
    if (element["type"] == "dataFrame") {
      int const map = element["map"].toInt();
      steps << "focus=" + name << stepsOfMap(map, document["maps"][map].toObject());
    }
    for (char const* part : {"border", "background"})
      if (element.contains("rectangle") && !element.contains("symbol") && !element.contains(part))
        steps << QString("set=%1/%2:null").arg(name, part);
    steps << settingsOf(name, element, {"type", "handle", "map", "overviews"});
  }
  number = 0;  // what marks another map comes when all are there
  for (QJsonValue const& one : document["elements"].toArray()) {
    QString const name = QString("#%1").arg(++number);
    if (one["overviews"].isArray()) steps << QString("set=%1/overviews:%2").arg(name, textOf(one["overviews"]));
    if (one["type"] == "dataFrame" && one["map"].toInt() == document["layout"]["focusMap"].toInt(0))
      steps << "focus=" + name;
  }
  return steps;
}

// By their paths; handles may differ.
std::map<QString, QJsonValue> valuesIn(QJsonValue const& value, QString const& path = {}) {
  QVariantMap parts = value.toObject().toVariantMap();
  for (int i = 0; i < value.toArray().size(); ++i) parts[QString::number(i)] = value.toArray()[i].toVariant();
  parts.remove("handle");
  if (parts.isEmpty()) return {{path, value}};
  std::map<QString, QJsonValue> values;
  for (auto it = parts.begin(); it != parts.end(); ++it)
    values.merge(valuesIn(QJsonValue::fromVariant(*it), path + '/' + it.key()));
  return values;
}

}  // namespace

/// The samples, made from an empty page and files of data by steps alone.
class RebuiltSamplesTest : public QObject {
  Q_OBJECT

private slots:
  void stepsMakeASample_data() {
    QTest::addColumn<QString>("name");
    for (char const* name : {"world", "aegean"}) QTest::newRow(name) << QString(name);
  }
  void stepsMakeASample() {
    QFETCH(QString, name);
    QTemporaryDir const folder;
    QString const sample = sampleIn(folder.path(), name + ".kdx");
    put(folder.filePath("empty.kdx"), R"({"format": "plotvane-document", "version": 1, "page": {"form": "A4"}})");
    Outcome const made =
        run(QStringList{"run", "empty.kdx"} << stepsOf(documentIn(sample)) << "save=made.kdx", folder.path());
    QCOMPARE(made.err, QString());
    auto const actual = valuesIn(documentIn(folder.filePath("made.kdx"))), expected = valuesIn(documentIn(sample));
    for (auto const& [path, value] : expected)
      QVERIFY2(actual.count(path) && actual.at(path) == value, qPrintable(path + ": " + textOf(value)));
    for (auto const& [path, value] : actual) QVERIFY2(expected.count(path), qPrintable(path + ": " + textOf(value)));
    QImage pictures[2];
    for (int i = 0; i < 2; ++i) {
      QString const image = QString("%1.png").arg(i);
      QCOMPARE(run({"export", i == 0 ? name + ".kdx" : "made.kdx", image, "--dpi", "60"}, folder.path()).status, 0);
      pictures[i].load(folder.filePath(image));
    }
    QCOMPARE(pictures[1], pictures[0]);
  }
};

QTEST_GUILESS_MAIN(RebuiltSamplesTest)
#include "tst_rebuilt_samples.moc"
