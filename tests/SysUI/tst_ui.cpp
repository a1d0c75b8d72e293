#include "Files.h"

#include <SysUI/EnvironmentSetting.h>

using namespace SysUI;

namespace {

QString setting(char const* key) { return EnvironmentSetting::Instance()->GetPropertyValue("PATH", key); }

}  // namespace

class UiTest : public QObject {
  Q_OBJECT

private slots:
  void aSettingComesBackAsOneText_data() {
    Rows<QByteArray, QString> row;
    row("a list without quotation marks", "k=/a.style,/b.style", "/a.style,/b.style");
    row("a quoted list", "k=\"/a.style,/b.style\"", "/a.style,/b.style");
    row("empty entries", "k=a.style,,b.style,", "a.style,,b.style,");
    row("UTF-8 as an editor writes it", "k=/Straße/地図.style", "/Straße/地図.style");
    row("nothing after the sign", "k=", "");
    row("no such key", "other=1", QString());
  }
  void aSettingComesBackAsOneText() {
    auto const [line, value] = fetched<QByteArray, QString>();
    QTemporaryDir const folder;
    qputenv("PLOTVANE_SETTINGS", put(folder.filePath("settings.ini"), "[PATH]\n" + line + "\n").toUtf8());
    QCOMPARE(setting("k"), value);
    QCOMPARE(setting("k").isNull(), value.isNull());
  }

  void aSettingIsKeptAsItWasSet_data() {
    Rows<QString> row;
    row("commas", "/a.style,,/b.style,");
    row("blanks, marks and backslashes", " C:\\x \"y\";z=%1, @a ");
    row("text that looks like a variant", "@Variant(x)");
    row("letters of everywhere", "Straße 地図");
  }
  void aSettingIsKeptAsItWasSet() {
    auto const [value] = fetched<QString>();
    QTemporaryDir const folder;
    qputenv("PLOTVANE_SETTINGS", folder.filePath("one.ini").toUtf8());
    EnvironmentSetting::Instance()->SetPropertyValue("PATH", "k", value);
    QCOMPARE(setting("k"), value);
    // From a copy, so that Qt has to read it anew.
    QVERIFY(QFile::copy(folder.filePath("one.ini"), folder.filePath("two.ini")));
    qputenv("PLOTVANE_SETTINGS", folder.filePath("two.ini").toUtf8());
    QCOMPARE(setting("k"), value);
  }

  void aSettingThatCanNotBeWrittenIsReported() {
    qputenv("PLOTVANE_SETTINGS", "/proc/absent/settings.ini");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("/proc/absent/settings.ini.*can't be written"));
    EnvironmentSetting::Instance()->SetPropertyValue("PATH", "k", "v");
  }

  void theStyleFolderHasNoSeparatorAtItsEnd() {
    qputenv("PLOTVANE_STYLE_DIR", "/opt//styles/");
    QCOMPARE(EnvironmentSetting::Instance()->GetStyleDir(), QStringLiteral("/opt/styles"));
    qunsetenv("PLOTVANE_STYLE_DIR");
    QString const parent = QFileInfo(QCoreApplication::applicationDirPath()).path();
    QCOMPARE(EnvironmentSetting::Instance()->GetStyleDir(), parent + "/share/plotvane/styles");
  }
};

QTEST_GUILESS_MAIN(UiTest)
#include "tst_ui.moc"
