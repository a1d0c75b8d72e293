#include "Files.h"

#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFields.h"

#include <SysUtility/CRef.h>
#include <SysUtility/MathUtil.h>
#include <SysUtility/Ptr.h>

#include <sys/xattr.h>
#include <unistd.h>

#include <cmath>
#include <functional>

using namespace SysUtility;

namespace {

double const noNumber = std::numeric_limits<double>::quiet_NaN();

struct Counted : CRef {
  ~Counted() override { ++destroyed; }
  static inline int destroyed = 0;
};
struct Other : CRef {};

enum class Side { Left, Right };
constexpr Choice sides[] = {{Side::Left, "left", ""}, {Side::Right, "right", ""}};
constexpr Field named(char const* key) { return {key, "", ""}; }

struct Sheet {
  double width = 21;
  double scale = 1;
  int copies = 1;
  bool landscape = false;
  Side side = Side::Left;
  QString title = QStringLiteral("A–4");
  QStringList tags;
  double corner[2] = {0, 0};
  QVector<double> outline{0, 0};
  QVector<double> steps{1};
  QVector<Sheet> inner;

  void list(Fields& fields) {
    fields.number(named("width"), width, {0.1, 1000});
    fields.number(named("scale"), scale, {0, 10}, 1.0);
    fields.integer(named("copies"), copies, 1, 5, 1);
    fields.flag(named("landscape"), landscape, false);
    fields.choice<Side>(named("side"), side, sides, Side::Left);
    fields.filledText(named("title"), title, TextKind::Line);
    fields.texts(named("tags"), tags);
    fields.object(named("at"), [&](Fields& at) { at.numbers(named("corner"), corner, NumbersKind::Point, {-10, 10}); });
    fields.coordinates(named("outline"), outline, 1, {-1e15, 1e15});
    fields.numberList(named("steps"), steps, {1, 3}, {0, 9});
    fields.list(named("inner"), inner, 2, [](Fields& own, Sheet& sheet, int) { sheet.list(own); });
  }
};

QJsonObject written(Sheet sheet) {
  JsonWriter writer;
  sheet.list(writer);
  return writer.json();
}

}  // namespace

class UtilityTest : public QObject {
  Q_OBJECT

private slots:
  void anObjectLivesAsLongAsItsReferences() {
    Counted::destroyed = 0;
    auto first = make<Counted>();
    auto second = first;
    auto copy = make<Counted>(*first);  // has one reference, whatever its original has
    *copy = *first;
    QCOMPARE(copy->AddRef(), 2ul);
    QCOMPARE(copy->Release(), 1ul);
    copy = nullptr;
    first = nullptr;
    QCOMPARE(Counted::destroyed, 1);
    QVERIFY(ptr_cast<Counted>(_ptr_t<CRef>(second)) == second);
    QVERIFY(!ptr_cast<Other>(_ptr_t<CRef>(second)));
    second = retain(second.get());
    QCOMPARE(second->AddRef(), 2ul);
    second->Release();
    second = nullptr;
    QCOMPARE(Counted::destroyed, 2);
  }

  void valuesAreEqualWithinATolerance_data() {
    Rows<double, double, bool> row;
    row("absolute near zero", 0.0, 9e-10, true);
    row("too far near zero", 0.0, 2e-9, false);
    row("relative for large values", 1e6, 1e6 + 5e-4, true);
    row("too far for large values", 1e6, 1e6 + 2e-3, false);
    row("opposite signs", 5.0, -5.0, false);
    row("not a number equals nothing", noNumber, noNumber, false);
    row("infinity equals itself", HUGE_VAL, HUGE_VAL, true);
    row("infinity is not close to anything", HUGE_VAL, 1e300, false);
  }
  void valuesAreEqualWithinATolerance() {
    auto const [a, b, equal] = fetched<double, double, bool>();
    QCOMPARE(MathUtil::IsEqual(a, b), equal);
    QCOMPARE(MathUtil::IsEqual(b, a), equal);
  }

  void oneDescriptionReadsWhatItWrote() {
    Sheet sheet;
    sheet.width = 0.1 + 0.2;
    sheet.scale = 2.5;
    sheet.copies = 5;
    sheet.landscape = true;
    sheet.side = Side::Right;
    sheet.title = QStringLiteral("Ä “%1” \n 地図");
    sheet.tags = QStringList{QStringLiteral("a"), QString()};
    sheet.corner[1] = -10;
    sheet.outline = {1e15, -1e-15};
    sheet.steps = {0.1, 9, 0};
    sheet.inner = {Sheet(), Sheet()};
    sheet.inner[1].width = 3;
    QByteArray const text = QJsonDocument(written(sheet)).toJson();

    JsonReader reader(QJsonDocument::fromJson(text).object());
    Sheet read;
    read.list(reader);
    QCOMPARE(reader.error(), QString());
    QCOMPARE(reader.warnings(), QStringList());
    QCOMPARE(read.width, sheet.width);
    QCOMPARE(read.title, sheet.title);
    QCOMPARE(read.inner.value(1).width, 3.0);
    QCOMPARE(QJsonDocument(written(read)).toJson(), text);
  }

  void whatHasItsDefaultIsNotWritten() {
    QCOMPARE(written(Sheet()).keys(), (QStringList{"at", "outline", "steps", "title", "width"}));
    Sheet read;
    read.copies = 4;
    JsonReader reader(written(Sheet()));
    read.list(reader);
    QCOMPARE(read.copies, 1);
  }

  void aProblemIsNamedWithItsPath_data() {
    Rows<QByteArray, QString> row;
    // clang-format off
    row("text for a number", R"("width": "9")", "width: expected a number, found a text");
    row("null for a number", R"("scale": null)", "scale: expected a number, found null");
    row("number out of range", R"("width": 1000.5)", "width: 1000.5 is not between 0.1 and 1000");
    row("integer beyond int", R"("copies": 4294967297)", "copies: 4294967297 is not between 1 and 5");
    row("fraction of an integer", R"("copies": 1.5)", "copies: 1.5 is not a whole number");
    row("number for a flag", R"("landscape": 1)", "landscape: expected true or false, found a number");
    row("unknown choice, no escapes shown", R"("side": "up\u001b%1")", "side: “up\uFFFD%1” is not one of left, right");
    row("list for a text", R"("title": [])", "title: expected a text, found a list");
    row("number among texts", R"("tags": ["a", 1])", "tags[1]: expected a text, found a number");
    row("required object", R"("at": {})", "at.corner: is missing");
    row("list for an object", R"("at": [1])", "at: expected an object, found a list");
    row("three for a point", R"("at": {"corner": [1, 2, 3]})", "at.corner: expected 2 numbers, found 3");
    row("coordinate too large", R"("at": {"corner": [1, 11]})", "at.corner[1]: 11 is not between -10 and 10");
    row("odd coordinates", R"("outline": [1])", "outline: holds an odd count of numbers");
    row("too few points", R"("outline": [])", "outline: needs at least 1 points");
    row("a point too far away", R"("outline": [0, -1e16])", "outline[1]: -1e+16 is not between -1e+15 and 1e+15");
    row("blanks for a name", R"("title": " ")", "title: is empty; enter a name");
    row("text as coordinate", R"("outline": [1, "x"])", "outline[1]: expected a number, found a text");
    row("no number", R"("steps": [])", "steps: holds 0 entries; at least 1");
    row("too large a number of a list", R"("steps": [0, 9.5])", "steps[1]: 9.5 is not between 0 and 9");
    row("too long a list", R"("inner": [{}, {}, {}])", "inner: holds 3 entries; at most 2");
    row("number in a list", R"("inner": [7])", "inner[0]: expected an object, found a number");
    row("deep inside", R"("inner": [{"width": 1, "title": "-", "at": {"corner": [0, 0]}, "outline": [0, 0], "steps": [1]}, {"width": false}])", "inner[1].width: expected a number, found true or false");
    // clang-format on
  }
  void aProblemIsNamedWithItsPath() {
    auto const [field, error] = fetched<QByteArray, QString>();
    QJsonObject object = written(Sheet());
    QJsonObject const wrong = json("{" + field + "}");
    object.insert(wrong.begin().key(), wrong.begin().value());
    JsonReader reader(object);
    Sheet read;
    read.list(reader);
    QCOMPARE(reader.error(), error);
  }

  void nothingChangesAfterTheFirstProblem() {
    Sheet read;
    read.copies = 3;
    read.tags = QStringList{QStringLiteral("kept")};
    JsonReader reader(json("{'width': 0, 'landscape': true, 'tags': [], 'new': 1}"));
    read.list(reader);
    QCOMPARE(reader.error(), QStringLiteral("width: 0 is not between 0.1 and 1000"));
    QCOMPARE(read.copies, 3);
    QCOMPARE(read.landscape, false);
    QCOMPARE(read.tags.size(), 1);
    QCOMPARE(reader.warnings(), QStringList());
  }

  void anUnknownFieldIsReportedOnce() {
    QJsonObject inner = written(Sheet());
    inner.insert("colour", "red");
    QJsonObject object = written(Sheet());
    object.insert("inner", QJsonArray{inner});
    object.insert("zoom", 1);
    JsonReader reader(object);
    Sheet read;
    read.list(reader);
    QStringList const expected{"inner[0].colour", "zoom"};
    QCOMPARE(reader.warnings(), expected);
    QCOMPARE(reader.warnings(), expected);
  }

  void whatCouldNotBeReadAgainIsAProblemWhenWriting_data() {
    Rows<std::function<void(Sheet&)>, QString> row;
    // clang-format off
    row("not a number", [](Sheet& sheet) { sheet.width = noNumber; }, "width");
    row("a default field that is not a number", [](Sheet& sheet) { sheet.scale = noNumber; }, "scale");
    row("an integer out of range", [](Sheet& sheet) { sheet.copies = 6; }, "copies");
    row("a choice without a name", [](Sheet& sheet) { sheet.side = static_cast<Side>(7); }, "side");
    row("an infinite coordinate", [](Sheet& sheet) { sheet.outline = {0, HUGE_VAL}; }, "outline[1]");
    row("more entries than are read", [](Sheet& sheet) { sheet.inner.resize(3); }, "inner");
    // clang-format on
  }
  void whatCouldNotBeReadAgainIsAProblemWhenWriting() {
    auto const [spoil, path] = fetched<std::function<void(Sheet&)>, QString>();
    Sheet sheet;
    spoil(sheet);
    JsonWriter writer;
    sheet.list(writer);
    QVERIFY2(writer.error().startsWith(path + ": "), qUtf8Printable(writer.error()));
  }

  void aFileIsReplacedWhole() {
    QTemporaryDir const folder;
    QString const path = folder.filePath("page.kdx");
    QCOMPARE(FileSaver::save(path, "a longer first text"), QString());
    QCOMPARE(FileSaver::save(path, "second"), QString());
    QCOMPARE(contentOf(path), QByteArray("second"));
    QCOMPARE(contents(folder.path()).size(), 1);

    // What belongs to it stays: the link to it, its permissions, what somebody noted about it.
    QVERIFY(QFile::link(path, folder.filePath("link.kdx")));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    auto const permissions = QFile::permissions(path);
    bool const takesNotes = setxattr(qPrintable(path), "user.note", "of mine", 7, 0) == 0;
    QCOMPARE(FileSaver::save(folder.filePath("link.kdx"), "third"), QString());
    QVERIFY(QFileInfo(folder.filePath("link.kdx")).isSymLink());
    QCOMPARE(contentOf(path), QByteArray("third"));
    QCOMPARE(QFile::permissions(path), permissions);
    QByteArray note(7, ' ');
    if (takesNotes) QCOMPARE(getxattr(qPrintable(path), "user.note", note.data(), 7), ssize_t(7));
    if (takesNotes) QCOMPARE(note, QByteArray("of mine"));
  }

  void inAFolderThatTakesNoNewFileItIsWrittenOver() {
    WithoutPrivileges const nobody;
    QTemporaryDir const folder;
    QString const path = folder.filePath("page.kdx");
    QCOMPARE(FileSaver::save(path, "a longer first text"), QString());
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    QString const problem = FileSaver::save(path, "second");
    {
      FileSizeLimit const limit(4096);
      QVERIFY(!FileSaver::save(path, QByteArray(1000000, 'x')).isEmpty());
    }
    QVERIFY(!FileSaver::save(folder.filePath("new.kdx"), "x").isEmpty());
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(problem, QString());
    QCOMPARE(contentOf(path), QByteArray("second"));
  }

  void aFileWithoutRoomKeepsItsOldContent() {
    QTemporaryDir const folder;
    QString const path = folder.filePath("page.kdx");
    QCOMPARE(FileSaver::save(path, "good"), QString());
    // A small one is buffered until the flush; of a large one a beginning fits.
    for (int size : {10000, 1000000}) {
      QString problem;
      {
        FileSizeLimit const limit(4096);
        problem = FileSaver::save(path, QByteArray(size, 'x'));
      }
      QVERIFY2(problem.contains(path), qUtf8Printable(problem));
      QCOMPARE(contentOf(path), QByteArray("good"));
      QCOMPARE(contents(folder.path()).size(), 1);
    }
  }

  void aPlaceThatTakesNoFileIsExplained() {
    QTemporaryDir const folder;
    QString const absent = folder.filePath("absent/page.kdx");
    QVERIFY(FileSaver::save(absent, "x").contains(absent));
    QVERIFY(FileSaver::save(absent, "x").contains("does not exist"));
    QVERIFY(FileSaver::save(folder.path(), "x").contains(folder.path()));
    QVERIFY(FileSaver::save(folder.path(), "x").contains("this is a folder"));
  }
};

QTEST_GUILESS_MAIN(UtilityTest)
#include "tst_utility.moc"
