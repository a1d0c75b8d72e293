#include "desktop/Executable.h"
#include "desktop/Hand.h"

#include "host/desktop/RunSteps.h"

#include <QUndoStack>

namespace {

enum class Do { Command, Answer, Draw, Pull, Write, Choose, Rename, Drop, Add, Classify, Make };

/// What a hand does, and the steps of `plotvane run` that do the same, a line each; "-" where a later one does it.
struct Action {
  Do verb;
  QString what, value = {};
  QString steps = {};
};
using Actions = QVector<Action>;

// How one makes an element of each kind, before it is given its place and looks.
// clang-format off
QMap<QString, Actions> const insertions = {
    {"rectangle",  {{Do::Command, "Host_InsertRectangle", {}, "-"}, {Do::Draw, "1,28.7", "20,1", "add=rectangle@1,1,20,28.7"}}},
    {"text",       {{Do::Command, "Host_InsertText", {}, "-"}, {Do::Draw, "10,20", {}, "-"}, {Do::Write, "T", {}, "add=text:T@10,20"}}},
    {"dataFrame",  {{Do::Command, "Plotvane_MapFrame"}, {Do::Pull, "6,6"}}},
    {"legend",     {{Do::Command, "Plotvane_Legend"}}},
    {"scaleLine",  {{Do::Command, "Plotvane_ScaleBar"}}},
    {"scaleText",  {{Do::Command, "Plotvane_ScaleText"}}},
    {"northArrow", {{Do::Answer, "grid", "Slim needle"}, {Do::Command, "Plotvane_NorthArrow"}}},
};

// How the layers of each map come into it. At the end each in turn is laid on top, so their order is known.
QMap<QString, Actions> const layers = {
    {"World", {
        {Do::Add, "world.gpkg", "countries,cities"},
        {Do::Rename, "Countries", "Shore"},
        {Do::Rename, "Cities", "Cities of over a million"},
        {Do::Add, "world.gpkg", "cities"},
        {Do::Rename, "Cities", "Capitals"},
        {Do::Add, "world.gpkg", "countries"},
        {Do::Add, "sphere.geojson", "sphere"},
        {Do::Rename, "Sphere", "Ocean"},
    }},
    {"Aegean", {
        {Do::Add, "aegean.gpkg", "countries,places"},
        {Do::Choose, "Countries", {}, "-"},
        {Do::Command, "Host_DuplicateLayer", {}, "duplicate=layer:Aegean/Countries"},
        {Do::Rename, "Countries", "Shore"},
        {Do::Rename, "Countries (2)", "Countries"},
        {Do::Rename, "Places", "Towns"},
        {Do::Classify, "Towns", "population", "50000;200000;1000000"},
    }},
    {"Globe", {
        {Do::Add, "sphere.geojson", "sphere"},
        {Do::Add, "world.gpkg", "countries"},
        {Do::Rename, "Sphere", "Ocean"},
    }},
};
// clang-format on

Actions actionsOf(int number, QJsonObject const& map) {
  QString const name = map["name"].toString();
  Actions actions{{Do::Choose, "Map1"},
                  {Do::Answer, "lineEdit_Search", map["coordinateSystem"].toString()},
                  {Do::Command, "Host_CoordinateSystem"},
                  {Do::Rename, "Map1", name}};
  actions += layers[name];
  QJsonArray const stored = map["layers"].toArray();
  for (auto const& layer : stored) actions << Action{Do::Drop, layer["name"].toString(), name};
  for (int i = 0; i < stored.size(); ++i) {
    QString const layer = stored[i]["name"].toString();
    actions << Action{Do::Choose, layer, {}, "-"}
            << Action{Do::Make, "layer:" + name + '/' + layer, QString("maps/%1/layers/%2").arg(number).arg(i)};
  }
  return actions << Action{Do::Choose, name, {}, "-"}
                 << Action{Do::Make, "map:" + name, QString("maps/%1").arg(number)};
}

Actions actionsOf(QJsonObject const& document) {
  Actions actions{{Do::Make, "page", "page"}};
  QJsonArray const elements = document["elements"].toArray(), maps = document["maps"].toArray();
  for (int i = 0; i < elements.size(); ++i) {
    QString const type = elements[i]["type"].toString(), kind = elements[i]["surround"]["kind"].toString();
    actions += insertions[kind.isEmpty() ? type : kind];
    actions << Action{Do::Make, "selection", QString("elements/%1").arg(i)};
    int const map = elements[i]["map"].toInt();
    if (type == "dataFrame") actions += actionsOf(map, maps[map].toObject());
    if (type == "dataFrame" && map > 0) actions << Action{Do::Choose, maps[0]["name"].toString()};
  }
  return actions;
}

QStringList const unchanged{"handle", "map", "layers", "source/file", "source/layer", "surround/map"};

QJsonValue at(QJsonValue value, QString const& path) {
  for (QString const& step : path.split('/')) value = value.isArray() ? value[step.toInt()] : value[step];
  return value;
}

QPointF pointIn(QString const& text) { return {text.section(',', 0, 0).toDouble(), text.section(',', 1).toDouble()}; }

void perform(Hand& hand, Action const& action, QJsonObject const& sample) {
  QPointF const from = pointIn(action.what), to = pointIn(action.value);
  switch (action.verb) {
    case Do::Command: return hand.command(action.what);
    case Do::Answer: return hand.answer(action.what, action.value);
    case Do::Draw: return hand.drag(from, action.value.isEmpty() ? from : to);
    case Do::Pull: return hand.drag(hand.middleOfSelection(), from, Qt::AltModifier);
    case Do::Write: return hand.write(action.what);
    case Do::Choose: return hand.choose(action.what);
    case Do::Rename: return hand.rename(action.what, action.value);
    case Do::Drop: return hand.drop(action.what, action.value);
    case Do::Add: return hand.addLayers("data/" + action.what, action.value);
    case Do::Classify: return hand.classify(action.what, action.value, action.steps.split(';', Qt::SkipEmptyParts));
    case Do::Make: return hand.make(at(sample, action.value).toObject(), unchanged);
  }
}

// As it is before the hand does it.
QStringList stepsOf(Hand& hand, Action const& action, QJsonObject const& sample, QString const& focus) {
  auto const layer = [&](QString const& name) { return "layer:" + focus + '/' + name; };
  QString const fixed = action.steps;
  QStringList steps;
  switch (action.verb) {
    case Do::Command: return {fixed.isEmpty() ? action.what : fixed};
    case Do::Answer: return {"answer=" + action.what + ':' + action.value};
    case Do::Choose: return {fixed.isEmpty() ? "focus=" + action.what : fixed};
    case Do::Drop: return {"move=" + layer(action.what) + "@map:" + action.value};
    case Do::Rename:
      if (action.what == "Map1") return {"set=map:Map1/name:" + action.value};
      return {fixed.isEmpty() ? "set=" + layer(action.what) + "/name:" + action.value : fixed};
    case Do::Add:
      for (QString const& one : action.value.split(',')) steps << "add=layer:data/" + action.what + '|' + one;
      return steps;
    case Do::Classify: return {"classify=" + layer(action.what) + '/' + action.value + ":own,breaks=" + fixed};
    case Do::Make: {
      QJsonObject const wanted = at(sample, action.value).toObject();
      for (QString const& key : hand.keys()) {
        QString const to = action.what + '/' + key + ':';
        if (key == "source" && wanted["source"]["filter"].isString())
          steps << "set=" + action.what + "/source/filter:" + wanted["source"]["filter"].toString();
        else if (key != "source" && key != "type" && !unchanged.contains(key))
          steps << "set=" + to + (wanted.contains(key) ? SysUtility::jsonLine(wanted[key]) : "null");
      }
      return steps;
    }
    case Do::Pull: return {QString("select=#%1").arg(hand.uppermost())};
    case Do::Draw:
    case Do::Write: return {fixed};
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

QString differences(QJsonObject const& a, QJsonObject const& b) {
  auto const mine = valuesIn(a), others = valuesIn(b);
  QStringList told;
  for (auto const& [path, value] : mine) {
    QJsonValue const other = others.count(path) ? others.at(path) : QJsonValue(QJsonValue::Undefined);
    bool const areNumbers = value.isDouble() && other.isDouble();
    double const slack = 1e-12 * std::abs(other.toDouble());  // of sums
    if (areNumbers ? std::abs(value.toDouble() - other.toDouble()) > slack : value != other)
      told << path + ": " + SysUtility::jsonLine(value) + " and " + SysUtility::jsonLine(other);
  }
  for (auto const& [path, value] : others)
    if (!mine.count(path)) told << path + " is missing: " + SysUtility::jsonLine(value);
  return told.join('\n');
}

QJsonObject documentIn(QString const& path) { return QJsonDocument::fromJson(contentOf(path)).object(); }

}  // namespace

/// The samples, made from an empty page and files of data: by hand in the window, from the first click to the last, and
/// by the steps that do the same.
class RebuiltSamplesTest : public QObject {
  Q_OBJECT

private slots:
  void aSampleIsMadeByHandAndBySteps_data() {
    Rows<QString> row;
    for (char const* name : {"world", "aegean"}) row(name, name);
  }
  void aSampleIsMadeByHandAndBySteps() {
    QString const name = std::get<0>(fetched<QString>());
    QTemporaryDir const folder;
    prepareWorld(folder.path());
    QString const sample = sampleIn(folder.path(), name + ".kdx"), empty = folder.filePath("empty.kdx"),
                  byHand = folder.filePath("hand.kdx"), bySteps = folder.filePath("steps.kdx");
    QStringList const steps = makeByHand(documentIn(sample), folder.path(), empty, byHand);
    if (QTest::currentTestFailed()) return;
    makeBySteps(steps, empty, bySteps);
    if (QTest::currentTestFailed()) return;
    QImage expected;
    for (QString const& made : {sample, byHand, bySteps}) {
      QString const problem = differences(documentIn(made), documentIn(sample));
      QVERIFY2(problem.isEmpty(), qPrintable(QFileInfo(made).fileName() + '\n' + problem));
      QCOMPARE(run({"export", made, "made.png", "--dpi", "60"}, folder.path()).status, 0);
      QImage const picture(folder.filePath("made.png"));
      if (expected.isNull()) expected = picture;
      QVERIFY(!picture.isNull());
      QCOMPARE(picture, expected);
      QFile::remove(folder.filePath("made.png"));
    }
  }

private:
  // Answers the steps.
  static QStringList makeByHand(QJsonObject const& sample, QString const& folder, QString const& empty,
                                QString const& made) {
    MainWindow window;
    window.resize(900, 700);
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the window is not shown");
    Hand hand(window, folder);
    hand.saveAs(empty);
    QStringList steps;
    for (Action const& action : actionsOf(sample)) {
      settle();
      auto const focus = window.bench().session().document().GetPageLayout()->GetFocusMap();
      steps += stepsOf(hand, action, sample, focus ? focus->GetName() : QString());
      perform(hand, action, sample);
      if (QTest::currentTestFailed()) qWarning("in %s %s", qPrintable(action.what), qPrintable(action.value));
      if (QTest::currentTestFailed()) return {};
    }
    hand.saveAs(made);
    auto const textAt = [&window](int index) {
      auto const& document = window.bench().session().document();
      SysCarto::MapDocumentHost::history(document)->setIndex(index);
      return QString::fromUtf8(SysCarto::MapDocumentHost::text(document));
    };
    int const count = SysCarto::MapDocumentHost::history(window.bench().session().document())->count();
    [&] {
      QCOMPARE(textAt(0), QString::fromUtf8(contentOf(empty)));
      QCOMPARE(textAt(count), QString::fromUtf8(contentOf(made)));
    }();
    steps.removeAll("-");
    return steps;
  }

  static void makeBySteps(QStringList const& steps, QString const& empty, QString const& made) {
    QDir::setCurrent(QFileInfo(empty).path());
    RunSteps run(false);
    QCOMPARE(run.open(empty), QString());
    QCOMPARE(run.check(steps), QString());
    for (QString const& step : steps + QStringList("save=" + made)) QCOMPARE(run.run(step), QString());
  }
};

QTEST_MAIN(RebuiltSamplesTest)
#include "tst_rebuilt_samples.moc"
