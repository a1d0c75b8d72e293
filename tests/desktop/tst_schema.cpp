#include "desktop/Executable.h"

#include "host/SysCarto/document/DocumentFields.h"
#include "host/SysDisplay/StyleLibrary.h"
#include "host/SysUtility/JsonFields.h"

namespace {

using Json = QVector<QJsonObject>;

// What a schema can't tell: how the reader says it, and how the head of the schema does.
struct Untold {
  QRegularExpression sentence;
  char const* inHead;
};
// clang-format off
Untold const untold[] = {
    {QRegularExpression("coordinateSystem: "), "A coordinate system is"},
    {QRegularExpression("(map|focusMap): -?[0-9]+ is not between -?[01] and -?[01]$"), "The number of a map is"},
    {QRegularExpression("another data frame shows this map already"), "no two data frames"},
    {QRegularExpression("is another element's handle already"), "A handle is used once"},
    {QRegularExpression("must be xmin, ymin, xmax, ymax"), "xmin ≤ xmax"},
    {QRegularExpression("holds an odd count of numbers"), "an even count"},
    {QRegularExpression("is larger than maxScale"), "minScale is the smaller"},
    {QRegularExpression("is not above that of the class before"), "The minimum of a class"},
    {QRegularExpression("is in two classes"), "a value is in one class"},
    {QRegularExpression("groups are nested more than 16 deep"), "Groups lie at most 16"},
    {QRegularExpression("is no place; there are:"), "The places beside points"},
    {QRegularExpression("pattern: must hold %1"), "The pattern of a scale text"},
    {QRegularExpression("is no tag of a language"), "The language of a document is"},
    {QRegularExpression("is missing; name the layer, or a"), "A series names a layer"},
    {QRegularExpression("is missing; name the file of the data"), "A source names a file"},
    {QRegularExpression("layers lie within layers more than 3 deep"), "in the layers of symbols at most 3"},
    {QRegularExpression("is no feature of OpenType"), "A feature of a font"},
    {QRegularExpression("is smaller than that of the colour before"), "A stop of a gradient"},
    {QRegularExpression("svg: "), "An SVG is"},
};
// clang-format on
int constexpr firstOfStyles = 15;

QString verdictOnDocument(QJsonObject const& json) {
  SysUtility::JsonReader reader(json);
  SysCarto::DocumentContent content;
  SysCarto::DocumentContext context;
  context.folder = "/nowhere";
  content.list(reader, context);
  return reader.error();
}

QString verdictOnStyle(QJsonObject const& json) {
  SysDisplay::StyleLibrary library;
  return SysUtility::readJson(json, library);
}

// The value with something else in one place, in every place and way.
QJsonArray mutants(QJsonValue const& value) {
  static QString const tooLong(16385, 'a');
  QJsonArray made{QJsonValue::Null,
                  true,
                  -1e13,
                  -0.5,
                  0,
                  0.05,
                  1.5,
                  10001,
                  1e13,
                  1e301,
                  "",
                  " ",
                  "a",
                  "#12345",
                  "#12345g",
                  "#80ABcdef",
                  QJsonArray(),
                  QJsonArray{1, 2},
                  QJsonArray{"a", "b"},
                  QJsonArray{QJsonObject()},
                  QJsonObject()};
  if (value.isString()) made.append(tooLong);
  if (value.isDouble()) made.append(value.toDouble() + 0.5);
  QJsonArray const list = value.toArray();
  if (list.first().isObject()) {
    QJsonArray many;
    while (many.size() < 101) many.append(list.first());
    made.append(many);
  }
  for (int i = 0; i < list.size(); ++i) {
    QJsonArray other = list;
    other.insert(i, list[i]);
    made.append(other);
    other = list;
    other.removeAt(i);
    made.append(other);
    for (QJsonValue const& mutant : mutants(list[i])) {
      other = list;
      other.replace(i, mutant);
      made.append(other);
    }
  }
  QJsonObject const object = value.toObject();
  for (QString const& key : object.keys()) {
    QJsonObject other = object;
    other.remove(key);
    other.insert("unknown", key);
    made.append(other);
    for (QJsonValue const& mutant : mutants(object[key])) {
      other = object;
      other[key] = mutant;
      made.append(other);
    }
  }
  return made;
}

QJsonObject with(QJsonObject object, QString const& key, QJsonValue const& value) {
  object[key] = value;
  return object;
}

// Each entry of the list, and every third of its mutants, alone in the list: all would take a minute.
QVector<QJsonArray> oneByOne(QJsonValue const& list) {
  QVector<QJsonArray> lists;
  for (QJsonValue const& entry : list.toArray()) {
    lists << QJsonArray{entry};
    QJsonArray const others = mutants(entry);
    for (int i = 0; i < others.size(); i += 3) lists << QJsonArray{others[i]};
  }
  return lists;
}

QJsonObject nested(int groups) {
  QJsonObject element = json("{'type': 'marker', 'position': [1, 1]}");
  for (int i = 0; i < groups; ++i) element = QJsonObject{{"type", "group"}, {"members", QJsonArray{element}}};
  return element;
}

QJsonObject layered(int depth) {
  QJsonObject symbol = json("{'type': 'simpleLine'}");
  for (int i = 0; i < depth; ++i) symbol = QJsonObject{{"type", "layeredLine"}, {"layers", QJsonArray{symbol}}};
  return symbol;
}

// Small documents with one part of the seed each: a validator in Python takes its time.
Json mutatedDocuments(QJsonObject const& seed) {
  QJsonArray maps, bareMaps;
  for (QJsonValue const& map : seed["maps"].toArray()) {
    bareMaps.append(QJsonObject{{"name", map["name"]}, {"bounds", map["bounds"]}});
    maps.append(with(bareMaps.last().toObject(), "coordinateSystem", map["coordinateSystem"]));
  }
  QJsonObject frame = with(seed, "maps", maps);
  frame.remove("elements");
  Json documents;
  for (QJsonValue const& mutant : mutants(frame))
    if (mutant.isObject()) documents << mutant.toObject();
  frame["maps"] = bareMaps;
  frame.remove("page");
  for (QJsonArray const& elements : oneByOne(seed["elements"])) documents << with(frame, "elements", elements);
  for (QJsonValue const& element : seed["elements"].toArray()) {
    QJsonObject const other = with(element.toObject(), "handle", 0);
    documents << with(frame, "elements", QJsonArray{element, element})
              << with(frame, "elements", QJsonArray{other, other})
              << with(frame, "elements", QJsonArray{QJsonObject{{"type", "group"}, {"members", QJsonArray{element}}}})
              << with(frame, "maps", QJsonArray{with(bareMaps[0].toObject(), "graphics", QJsonArray{element})});
  }
  documents << with(frame, "elements", QJsonArray{nested(16)}) << with(frame, "elements", QJsonArray{nested(17)});
  QJsonObject const line = json("{'type': 'line', 'points': [1, 1, 2, 2]}");
  for (int depth : {3, 4}) documents << with(frame, "elements", QJsonArray{with(line, "symbol", layered(depth))});
  for (QJsonValue const& map : seed["maps"].toArray())
    for (char const* part : {"layers", "graphics"})
      for (QJsonArray const& list : oneByOne(map[part])) {
        maps = bareMaps;
        maps.replace(0, with(bareMaps[0].toObject(), part, list));
        documents << with(frame, "maps", maps);
      }
  return documents;
}

Json mutatedStyles(QJsonObject const& seed) {
  Json styles;
  for (QJsonArray const& categories : oneByOne(seed["categories"])) styles << with(seed, "categories", categories);
  for (int depth : {3, 4}) {
    QJsonObject const item{{"name", "Deep"}, {"symbol", layered(depth)}};
    styles << with(seed, "categories", QJsonArray{QJsonObject{{"name", "Lines"}, {"items", QJsonArray{item}}}});
  }
  for (QJsonValue const& mutant : mutants(with(seed, "categories", QJsonArray())))
    if (mutant.isObject()) styles << mutant.toObject();
  return styles;
}

QJsonObject objectIn(QString const& path) {
  return QJsonDocument::fromJson(contentOf(PLOTVANE_SOURCE_DIR "/" + path)).object();
}

// A Python that has a validator; empty where there is none.
QString python() {
  for (QString const& name : {QString("python3"), QString("/usr/bin/python3")})
    if (QProcess::execute(name, {"-c", "from jsonschema import Draft202012Validator"}) == 0) return name;
  return QString();
}

}  // namespace

class SchemaTest : public QObject {
  Q_OBJECT

private slots:
  void acceptsWhatIsReadAndRefusesWhatIsNot_data() {
    Rows<QString, QStringList, Json (*)(QJsonObject const&), QString (*)(QJsonObject const&), int> row;
    row("documents", "document",
        {"fuzz/seeds/document/everything.kdx", "fuzz/seeds/document/empty.kdx", "fuzz/seeds/document/map.kdx",
         "fuzz/seeds/document/text.kdx", "samples/world.kdx", "samples/aegean.kdx", "samples/templates/a3-poster.kdx",
         "samples/templates/a4-report.kdx"},
        mutatedDocuments, verdictOnDocument, 0);
    row("styles", "style",
        {"fuzz/seeds/style/everything.style", "fuzz/seeds/style/empty.style", "host/styles/ORV.style"}, mutatedStyles,
        verdictOnStyle, firstOfStyles);
  }
  void acceptsWhatIsReadAndRefusesWhatIsNot() {
    auto const [format, files, mutate, verdictOn, firstUntold] =
        fetched<QString, QStringList, Json (*)(QJsonObject const&), QString (*)(QJsonObject const&), int>();
    QString const interpreter = python();
    if (interpreter.isEmpty() && qEnvironmentVariableIsSet("CI")) QFAIL("Python's jsonschema is missing");
    if (interpreter.isEmpty()) QSKIP("Python's jsonschema is missing; scripts/packages --ci installs it");

    Json stored;
    for (QString const& file : files) stored << objectIn(file);
    stored << mutate(stored.first());
    QStringList const answers = validated(interpreter, format, stored);
    QCOMPARE(answers.size(), stored.size());
    int refused = 0;
    QSet<int> told;
    for (int i = 0; i < stored.size(); ++i) {
      QString const verdict = verdictOn(stored[i]), both = verdict + " / " + answers[i];
      refused += verdict.isEmpty() ? 0 : 1;
      QVERIFY2(i >= files.size() || both == " / ", qPrintable(files.value(i) + both));
      if (verdict.isEmpty() == answers[i].isEmpty()) continue;
      int const known = answers[i].isEmpty() ? whichIsUntold(verdict) : -1;
      QVERIFY2(known >= 0,
               qPrintable(both + "\n" + QJsonDocument(stored[i]).toJson(QJsonDocument::Compact).left(2000)));
      told << known;
    }
    QString const head =
        QJsonDocument::fromJson(contentOf(folder_.filePath("schema.json"))).object()["$comment"].toString();
    for (int known = firstUntold; known < static_cast<int>(std::size(untold)); ++known)
      QVERIFY2(told.contains(known) && head.contains(untold[known].inHead), untold[known].inHead);
    QVERIFY2(refused > stored.size() / 2 && refused < stored.size() - 50, qPrintable(QString::number(refused)));
    qInfo("%d read or refused alike, %d of them refused", stored.size(), refused);
  }

private:
  static int whichIsUntold(QString const& verdict) {
    auto const found = std::find_if(std::begin(untold), std::end(untold),
                                    [&](Untold const& one) { return one.sentence.match(verdict).hasMatch(); });
    return found == std::end(untold) ? -1 : static_cast<int>(found - untold);
  }

  QStringList validated(QString const& interpreter, QString const& format, Json const& stored) const {
    Outcome const printed = run({"schema", format}, folder_.path());
    put(folder_.filePath("schema.json"), printed.out.toUtf8());
    QByteArray lines;
    for (QJsonObject const& one : stored) lines += QJsonDocument(one).toJson(QJsonDocument::Compact) + '\n';
    QProcess process;
    process.setStandardInputFile(put(folder_.filePath("lines"), lines));
    process.start(interpreter, {PLOTVANE_SOURCE_DIR "/tests/desktop/validate.py", folder_.filePath("schema.json")});
    Outcome const outcome = finish(process);
    if (outcome.status != 0) qWarning("%s", qPrintable(outcome.err));
    return outcome.out.chopped(outcome.out.isEmpty() ? 0 : 1).split('\n');
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(SchemaTest)
#include "tst_schema.moc"
