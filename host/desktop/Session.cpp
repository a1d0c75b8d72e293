#include "Session.h"

#include "Console.h"
#include "Farewell.h"
#include "connections/KeptConnections.h"

#include "host/SysDisplay/DrawingBudget.h"

#include <QApplication>
#include <QDir>
#include <QStyleFactory>

#include <cpl_conv.h>
#include <gdal.h>

#include <clocale>
#include <langinfo.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace {

// What a desktop session sets and what would change fonts, sizes or styles.
constexpr char const* sessionVariables[] = {
    "DISPLAY",
    "WAYLAND_DISPLAY",
    "SESSION_MANAGER",
    "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_ENABLE_HIGHDPI_SCALING",
    "QT_FONT_DPI",
    "QT_QPA_PLATFORMTHEME",
    "QT_SCALE_FACTOR",
    "QT_SCREEN_SCALE_FACTORS",
    "QT_STYLE_OVERRIDE",
};

[[noreturn]] void endWithoutDisplay() {
  Console::complain(QCoreApplication::translate(
      "Session",
      "There is no display for the window. To make an image of a page without one: plotvane "
      "export DOCUMENT IMAGE; plotvane --help tells what else works."));
  std::_Exit(1);
}

// What Qt's rasteriser says instead of filling.
bool isGivenUp(QString const& text) {
  return text == QLatin1String("Polygon too complex for filling.") ||
         text == QLatin1String("QPainter: Rasterization of primitive failed");
}

// Outside a session, as in a container, Qt tells everyone that there is no session, and that a window without a screen
// keeps no size hints.
void passOn(QtMsgType type, QMessageLogContext const&, QString const& text) {
  for (char const* known : {"QStandardPaths: XDG_RUNTIME_DIR", "This plugin does not support propagateSizeHints"})
    if (text.startsWith(QLatin1String(known))) return;
  if (isGivenUp(text) && SysDisplay::DrawingBudget::giveUp()) return;
  if (type == QtFatalMsg && text.contains(QLatin1String("no Qt platform plugin"))) endWithoutDisplay();
  for (char const* lost : {"The X11 connection ", "The Wayland connection "})
    if (text.startsWith(QLatin1String(lost))) Farewell::leave();  // broke, and Qt ends the process
  Console::complain(text);
}

// As the variables of the session have it; empty for none.
QByteArray sessionLanguage() {
  QByteArray language = qgetenv("LC_ALL");
  if (language.isEmpty()) language = qgetenv("LC_MESSAGES");
  if (language.isEmpty()) language = qgetenv("LANG");
  if (language == "C" || language == "POSIX") return QByteArray();
  QByteArray const list = qgetenv("LANGUAGE");
  return language.isEmpty() || list.isEmpty() ? language : list;
}

// Qt encodes file names in the locale's encoding and GDAL in UTF-8. In the "C" locale of a bare container a name with
// an umlaut would be lost on the way. The language of the texts stays, also where the system lacks its locale.
void ensureUtf8Locale() {
  setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
  qputenv("LANGUAGE", sessionLanguage());
  qputenv("LC_ALL", "C.UTF-8");
}

// Memory for tiles and paths must not go back to the system and come again with every feature, and the system gives it
// in big pages where it is asked to: as small ones, each fetched by a fault, it takes a fifth of an export's time. What
// is reserved and not touched costs nothing. All threads share it.
void keepMemory() {
  constexpr int reserve = 256 << 20;
  mallopt(M_ARENA_MAX, 1);
  mallopt(M_MMAP_THRESHOLD, reserve / 4);
  mallopt(M_TRIM_THRESHOLD, 2 * reserve);
  mallopt(M_TOP_PAD, reserve);
  void* block = nullptr;
  bool const grown = posix_memalign(&block, static_cast<size_t>(sysconf(_SC_PAGESIZE)), reserve / 8) == 0;
  mallopt(M_TOP_PAD, reserve / 256);
  if (!grown) return;
  ptrdiff_t const heap = static_cast<char*>(sbrk(0)) - static_cast<char*>(block);
  if (heap > 0 && heap < 2 * reserve) madvise(block, static_cast<size_t>(heap), MADV_HUGEPAGE);
  free(block);
}

constexpr GIntBig blockCacheBytes = GIntBig{48} << 20;

// No side files, and silence but for those who listen.
void prepareGdal() {
  CPLSetErrorHandler(CPLQuietErrorHandler);
  CPLSetConfigOption("GDAL_PAM_ENABLED", "NO");
  GDALSetCacheMax64(blockCacheBytes);
  GDALAllRegister();
}

}  // namespace

void prepareEnvironment() {
  for (char const* variable : sessionVariables) qunsetenv(variable);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(passOn);
  ensureUtf8Locale();
  keepMemory();
  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void prepareWindowEnvironment() {
  qInstallMessageHandler(passOn);
  ensureUtf8Locale();
  bool const hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) endWithoutDisplay();
  QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

void prepareApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("plotvane"));
  QCoreApplication::setOrganizationName(QStringLiteral("plotvane"));
  QCoreApplication::setApplicationVersion(QStringLiteral(PLOTVANE_VERSION));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  setlocale(LC_NUMERIC, "C");  // the application object took the user's
  prepareGdal();
  KeptConnections::begin();
}
