#include <SysUI/EnvironmentSetting.h>
#include <SysUI/ICommand.h>
#include <SysUI/ITool.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace SysUI;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

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
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("a list without quotation marks") << QByteArray("k=/a.style,/b.style") << "/a.style,/b.style";
    QTest::newRow("a quoted list") << QByteArray("k=\"/a.style,/b.style\"") << "/a.style,/b.style";
    QTest::newRow("empty entries") << QByteArray("k=a.style,,b.style,") << "a.style,,b.style,";
    QTest::newRow("UTF-8 as an editor writes it")
        << QByteArray("k=/Straße/地図.style") << QString::fromUtf8("/Straße/地図.style");
    QTest::newRow("nothing after the sign") << QByteArray("k=") << "";
    QTest::newRow("no such key") << QByteArray("other=1") << QString();
  }
  void aSettingComesBackAsOneText() {
    QFETCH(QByteArray, line);
    QFETCH(QString, value);
    QTemporaryDir const folder;
    QFile file(folder.filePath("settings.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[PATH]\n" + line + "\n");
    file.close();
    qputenv("PLOTVANE_SETTINGS", file.fileName().toUtf8());
    QCOMPARE(setting("k"), value);
    QCOMPARE(setting("k").isNull(), value.isNull());
  }

  void aSettingIsKeptAsItWasSet_data() {
    QTest::addColumn<QString>("value");
    QTest::newRow("commas") << "/a.style,,/b.style,";
    QTest::newRow("blanks, marks and backslashes") << " C:\\x \"y\";z=%1, @a ";
    QTest::newRow("text that looks like a variant") << "@Variant(x)";
    QTest::newRow("letters of everywhere") << QString::fromUtf8("Straße 地図");
  }
  void aSettingIsKeptAsItWasSet() {
    QFETCH(QString, value);
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
