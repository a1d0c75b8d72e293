#include "Leftover.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

#include <sys/file.h>
#include <sys/mman.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <iterator>

namespace {

constexpr int maxLeftovers = 64;  // at a time
constexpr int pathBytes = 4096;
constexpr int leftoverBytes = 2 * pathBytes;

// Memory that both processes see: for each leftover its folder, empty where it is gone, and its target, empty where
// that is written.
char* shared = nullptr;

char* slot(int i) { return shared + i * leftoverBytes; }
char* targetIn(char* slot) { return slot + pathBytes; }

QDir entries() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
              QStringLiteral("/plotvane/work"));
}

// Of an entry that has yet to be locked, and to get its line. It bears its own name from then on, so that no sweep
// takes the entry of somebody who is about to make it.
QString const unready = QStringLiteral(".new");

bool isLocked(QFile& file) { return flock(file.handle(), LOCK_EX | LOCK_NB) == 0; }

// NFS, SMB and CIFS, 9P, AFS, Ceph, Coda, and what a program of its own answers for.
bool isOnNetwork(QString const& folder) {
  constexpr quint32 kinds[] = {0x6969,     0x517b,     0xff534d42, 0xfe534d42, 0x01021997,
                               0x5346414f, 0x00c36400, 0x73757245, 0x65735546};
  struct statfs status = {};
  if (statfs(QFile::encodeName(folder).constData(), &status) != 0) return true;
  return std::find(std::begin(kinds), std::end(kinds), static_cast<quint32>(status.f_type)) != std::end(kinds);
}

// Only what a process of ours could have made there.
void removeFolder(QString const& path) {
  QFileInfo const folder(path);
  if (folder.fileName().startsWith(QLatin1String(Leftover::prefix)) && folder.isDir() && !folder.isSymLink() &&
      folder.ownerId() == getuid())
    QDir(path).removeRecursively();
}

}  // namespace

Leftover::Leftover(QString const& folder, QString const& target) : folder_(folder) {
  QByteArray const first = QFile::encodeName(folder), second = QFile::encodeName(target);
  bool const fits = std::max(first.size(), second.size()) < pathBytes;
  for (int i = 0; shared && fits && i < maxLeftovers && !place_; ++i)
    if (*slot(i) == '\0') place_ = slot(i);
  if (place_) {  // the first byte last, since this process can be killed at any moment
    std::memcpy(targetIn(place_), second.constData(), static_cast<std::size_t>(second.size()) + 1);
    std::memcpy(place_ + 1, first.constData() + 1, static_cast<std::size_t>(first.size()));
    std::atomic_signal_fence(std::memory_order_release);
    *place_ = first.at(0);
  }
  if (isOnNetwork(QFileInfo(folder).path())) return;
  QDir const place = entries();
  place.mkpath(QStringLiteral("."));
  QString const name = place.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
  entry_.setFileName(name + unready);
  if (entry_.open(QIODevice::WriteOnly) && isLocked(entry_) && entry_.write(first + '\n') > 0 && entry_.flush())
    QFile::rename(entry_.fileName(), name);
}

Leftover::~Leftover() {
  if (QFileInfo::exists(folder_)) return;
  if (place_) *place_ = '\0';
  if (!entry_.isOpen()) return;
  QFile::remove(entry_.fileName().chopped(unready.size()));
  entry_.remove();  // where it did not come to its own name
}

void Leftover::setWritten() {
  if (place_) *targetIn(place_) = '\0';
}

bool Leftover::share() {
  void* const memory = mmap(nullptr, std::size_t{maxLeftovers} * leftoverBytes, PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  shared = memory == MAP_FAILED ? nullptr : static_cast<char*>(memory);
  return shared != nullptr;
}

QString Leftover::clear() {
  QString target;
  for (int i = 0; i < maxLeftovers; ++i) {
    if (*slot(i) != '\0') removeFolder(QFile::decodeName(slot(i)));
    if (target.isEmpty()) target = QFile::decodeName(targetIn(slot(i)));
  }
  return target;
}

void Leftover::sweep() {
  constexpr int soon = 60;  // seconds
  QDir const place = entries();
  for (QFileInfo const& file : place.entryInfoList(QDir::Files | QDir::Hidden)) {
    bool const isOld = file.lastModified().secsTo(QDateTime::currentDateTime()) > soon;
    if (file.fileName().endsWith(unready) && !isOld) continue;
    QFile entry(file.filePath());
    if (!entry.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) || !isLocked(entry)) continue;
    QByteArray const line = entry.readAll();
    bool const isWhole = line.endsWith('\n');
    if (isWhole) removeFolder(QFile::decodeName(line.chopped(1)));
    if (isWhole ? !QFileInfo::exists(QFile::decodeName(line.chopped(1))) : isOld) entry.remove();
  }
}
