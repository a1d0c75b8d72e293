#pragma once

#include "Files.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/desktop/MainWindow.h"

inline QString world;  ///< a copy of the sample, with its data

/// Before a test of the window: the copy, and settings that are nobody's, both in that folder.
inline void prepareWorld(QString const& folder) {
  prepareApplication();
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder + "/own"));
  world = sampleIn(folder, "world.kdx");
}

constexpr int patienceMs = 60000;

inline bool isBeingRead(MainWindow& window) {
  auto const layout = window.bench().session().document().GetPageLayout();
  return layout && SysCarto::isBeingRead(*layout);
}

/// However busy the machine is; what is to be told of the data has been told then.
inline void waitForData(MainWindow& window) {
  if (!QTest::qWaitFor([&window] { return !isBeingRead(window); }, patienceMs)) qFatal("the data can't be read");
  QCoreApplication::processEvents();
}

/// The window with the sample open, and its data read.
struct WorldWindow {
  WorldWindow() {
    window.show();
    if (!window.open(world)) qFatal("can't open %s", qPrintable(world));
    waitForData(window);
  }
  void trigger(char const* identifier) { window.actions().find(identifier)->trigger(); }
  bool isEnabled(char const* identifier) { return window.actions().find(identifier)->isEnabled(); }
  bool isChecked(char const* identifier) { return window.actions().find(identifier)->isChecked(); }
  SysCarto::MapDocument& document() { return window.bench().session().document(); }

  MainWindow window;
};
