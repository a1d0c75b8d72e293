#include "Files.h"
#include "Test.h"

#include <SysUI/EnvironmentSetting.h>
#include <SysUI/ICommand.h>
#include <SysUI/ITool.h>

#include <QDir>
#include <QTemporaryDir>

using namespace SysUI;

namespace {

class Hand final : public ICommand, public ITool {
public:
  ~Hand() override { destroyed = true; }
  static inline bool destroyed = false;

  QString GetName() override { return {}; }
  QString GetCaption() override { return {}; }
  QString GetToolTip() override { return {}; }
  QString GetTypeName() override { return {}; }
  bool IsEnable() override { return true; }
  bool IsChecked() override { return false; }
  void OnCreate(void*) override {}
  void OnClick() override {}
  QCursor GetCursor() override { return {}; }
  bool Activate() override { return true; }
  bool Deactivate() override { return true; }
  bool OnContextMenu(QContextMenuEvent*) override { return false; }
  void OnDblClick(QMouseEvent*) override {}
  void OnKeyDown(QKeyEvent*) override {}
  void OnKeyUp(QKeyEvent*) override {}
  void OnMouseDown(QMouseEvent*) override {}
  void OnMouseMove(QMouseEvent*) override {}
  void OnMouseUp(QMouseEvent*) override {}
  void JustMouseMove(QMouseEvent*) override {}
  void OnEnterEvent(QEvent*) override {}
  void OnLeaveEvent(QEvent*) override {}
  bool OnWheelEvent(QWheelEvent*) override { return false; }
};

QString setting(char const* key) { return EnvironmentSetting::Instance()->GetPropertyValue("PATH", key); }

}  // namespace

class UiTest : public QObject {
  Q_OBJECT

private slots:
  void aToolHasOneCountForBothFaces() {
    _ptr_t<ICommand> command = make<Hand>();
    _ptr_t<ITool> tool = ptr_cast<ITool>(command);
    QVERIFY(tool);
    command = nullptr;
    QVERIFY(!Hand::destroyed);
    tool = nullptr;
    QVERIFY(Hand::destroyed);
  }

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
