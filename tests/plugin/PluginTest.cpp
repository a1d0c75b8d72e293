#include "Test.h"

#include "host/SysFramework/Translations.h"

#include <SysUI/CMDPluginModule.h>

#include <QLibrary>

using SysUI::CMDPluginModule;

// The plug-in, loaded as a host loads it.
class PluginTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLibrary library(PLOTVANE_BINARY_DIR "/lib/plotvane_plugin");
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    entry_ = reinterpret_cast<CMDPluginModule* (*)()>(library.resolve("GetPluginModule"));
    QVERIFY(entry_);
  }

  void eachCallGivesANewModule() {
    _ptr_t<CMDPluginModule> const first(entry_());
    _ptr_t<CMDPluginModule> const second(entry_());
    QVERIFY(first && second && first != second);
  }

  void anUnknownIdentifierGivesNoCommand() {
    _ptr_t<CMDPluginModule> const module(entry_());
    for (char const* identifier : {"", "Plotvane_", "Plotvane_ZoomInX", "ZoomIn"})
      QVERIFY2(!module->CreateCommand(identifier, QString()), identifier);
  }

  void textsAreTranslated_data() {
    Rows<QLocale, QString, QString> row;
    row("English stays", QLocale("en_GB"), "Output file:", "Aligh the selected elements to the left");
    row("a language that we have not stays English", QLocale("fi_FI"),
        "Output file:", "Aligh the selected elements to the left");
    row("German, also of another country", QLocale("de_AT"),
        "Ausgabedatei:", "Ausgewählte Elemente linksbündig ausrichten");
    row("Chinese", QLocale("zh_CN"), "输出文件：", "将所选元素左对齐");
  }

  // Translators stay for good, so the rows run in this order: each one goes over those before it.
  void textsAreTranslated() {
    auto const [locale, text, operation] = fetched<QLocale, QString, QString>();
    SysFramework::installTranslations(locale);
    QCOMPARE(QCoreApplication::translate("ExportParaDlg", "Output file:"), text);
    QCOMPARE(QCoreApplication::translate("LeftAlignmentElement", "Aligh the selected elements to the left"), operation);
  }

private:
  CMDPluginModule* (*entry_)() = nullptr;
};

QTEST_GUILESS_MAIN(PluginTest)
#include "PluginTest.moc"
