#include "Test.h"

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

private:
  CMDPluginModule* (*entry_)() = nullptr;
};

QTEST_GUILESS_MAIN(PluginTest)
#include "PluginTest.moc"
