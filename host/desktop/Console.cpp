#include "Console.h"

#include <QSet>

#include <unistd.h>

#include <atomic>
#include <cstdio>

namespace Console {

namespace {

bool failed = false;
QSet<QString> told;
std::atomic<bool> isSilent{false};

}  // namespace

void print(QString const& text) {
  QByteArray const bytes = text.toLocal8Bit() + '\n';
  auto const size = static_cast<std::size_t>(bytes.size());
  if (std::fwrite(bytes.constData(), 1, size, stdout) != size) failed = true;
}

void complain(QString const& sentence) {
  if (isSilent) return;
  QByteArray const bytes = QByteArrayLiteral("plotvane: ") + sentence.toLocal8Bit() + '\n';
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

void remark(QString const& sentence) {
  if (told.contains(sentence)) return;
  told.insert(sentence);
  complain(sentence);
}

void passOver(QString const& sentence) { told.insert(sentence); }

void silence() { isSilent = true; }

bool finish() { return std::fflush(stdout) == 0 && !failed; }

bool hasTerminal() { return isatty(STDERR_FILENO) == 1; }

void showStatus(QString const& line) {
  constexpr char clearLine[] = "\r\033[K";
  QByteArray const bytes = clearLine + line.toLocal8Bit();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
  std::fflush(stderr);
}

}  // namespace Console
