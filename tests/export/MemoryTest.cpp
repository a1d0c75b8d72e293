#include "LayoutHook.h"
#include "export/ExportCommand.h"

#include <SysCarto/MapDocument.h>

#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

using Plugin::ExportCommand;

namespace {

constexpr int warmUp = 50;  // caches of fonts, glyphs, GDAL and the heap fill first
constexpr int exports = 1000;
constexpr double mostGrowthMb = 5;

double residentMb() {
  QFile statistics(QStringLiteral("/proc/self/statm"));
  if (!statistics.open(QIODevice::ReadOnly)) return 0;
  return statistics.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

int goOn(double, char const*, void*) { return 1; }

}  // namespace

class MemoryTest : public QObject {
  Q_OBJECT

private slots:
  void aThousandExportsLeaveNothingBehind() {
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer keeps freed memory for a while");
#endif
    SysCarto::MapDocument document;
    QVERIFY(document.Open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx")));
    auto const hook = make<LayoutHook>(document.GetPageLayout());
    QTemporaryDir const folder;
    auto const exportOnce = [&] {
      auto const command = make<ExportCommand>();
      command->OnCreate(hook->pointer());
      QVERIFY(command->OutputOtherPicture(folder.filePath("a.png"), 5, nullptr, goOn, nullptr));
    };
    for (int i = 0; i < warmUp; ++i) exportOnce();
    double const before = residentMb();
    QVERIFY(before > 0);
    for (int i = 0; i < exports; ++i) exportOnce();
    double const growth = residentMb() - before;
    QVERIFY2(growth < mostGrowthMb, qPrintable(QStringLiteral("%1 MB").arg(growth)));
    qInfo("grew by %.2f MB", growth);
  }
};

QTEST_MAIN(MemoryTest)
#include "MemoryTest.moc"
