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
  if (place_) {
    std::memcpy(targetIn(place_), second.constData(), static_cast<std::size_t>(second.size()) + 1);
    std::memcpy(place_, first.constData(), static_cast<std::size_t>(first.size()) + 1);
  }
  if (isOnNetwork(QFileInfo(folder).path())) return;
  QDir const place = entries();
  place.mkpath(QStringLiteral("."));
  entry_.setFileName(place.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces)));
  if (entry_.open(QIODevice::WriteOnly) && isLocked(entry_)) entry_.write(first + '\n');
  if (entry_.isOpen()) entry_.flush();
}

Leftover::~Leftover() {
  if (QFileInfo::exists(folder_)) return;
  if (place_) *place_ = '\0';
  if (entry_.isOpen()) entry_.remove();
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
    if (*slot(i) != '\0') QDir(QFile::decodeName(slot(i))).removeRecursively();
    if (target.isEmpty()) target = QFile::decodeName(targetIn(slot(i)));
  }
  return target;
}

// One that has no whole line yet may be about to get it.
void Leftover::sweep() {
  constexpr int soon = 60;  // seconds
  QDir const place = entries();
  for (QFileInfo const& file : place.entryInfoList(QDir::Files | QDir::Hidden)) {
    QFile entry(file.filePath());
    if (!entry.open(QIODevice::ReadWrite) || !isLocked(entry)) continue;
    QByteArray const line = entry.readAll();
    bool const isWhole = line.endsWith('\n');
    if (isWhole) removeFolder(QFile::decodeName(line.chopped(1)));
    if (isWhole ? !QFileInfo::exists(QFile::decodeName(line.chopped(1)))
                : file.lastModified().secsTo(QDateTime::currentDateTime()) > soon)
      entry.remove();
  }
}
