#include "FileSaver.h"

#include "JsonFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>

namespace SysUtility {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FileSaver)
};

QString problem(QString const& path, QString const& cause, QString const& fix) {
  return aboutFile(path, cause + QStringLiteral("; ") + fix);
}

bool takesNewFiles(QString const& folder) { return access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0; }

QString closedFolder(QString const& path, QString const& folder, QString const& reason) {
  return problem(path, Texts::tr("the folder %1 can't be written (%2)").arg(QDir::toNativeSeparators(folder), reason),
                 Texts::tr("choose another"));
}

// Some file systems can't synchronise, and say so with EINVAL.
bool syncToDisk(int file) { return fsync(file) == 0 || errno == EINVAL; }

// The new name of a file is in its folder.
bool syncFolder(QString const& folder) {
  int const handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return errno == EACCES;  // who may write there need not be allowed to read
  bool const isDone = syncToDisk(handle);
  int const error = errno;
  close(handle);
  errno = error;
  return isDone;
}

QByteArray attributeNames(QByteArray const& path) {
  ssize_t const bytes = listxattr(path.constData(), nullptr, 0);
  QByteArray names(std::max<int>(0, static_cast<int>(bytes)), '\0');
  names.resize(
      std::max<int>(0, static_cast<int>(listxattr(path.constData(), names.data(), static_cast<size_t>(names.size())))));
  return names;
}

bool takeAttribute(QByteArray const& path, QByteArray const& name, int to) {
  ssize_t const size = getxattr(path.constData(), name.constData(), nullptr, 0);
  QByteArray value(std::max<int>(0, static_cast<int>(size)), '\0');
  return size >= 0 && getxattr(path.constData(), name.constData(), value.data(), static_cast<size_t>(size)) == size &&
         fsetxattr(to, name.constData(), value.constData(), static_cast<size_t>(size), 0) == 0;
}

// What belongs to a file and is not its content. Answers what the system keeps to itself, or to another owner.
QStringList takeAttributes(QString const& from, int to) {
  QByteArray const path = QFile::encodeName(from);
  struct stat status = {}, own = {};
  if (stat(path.constData(), &status) != 0) return {};
  [[maybe_unused]] bool const isGiven =
      fchown(to, status.st_uid, status.st_gid) == 0 || fchown(to, static_cast<uid_t>(-1), status.st_gid) == 0;
  constexpr mode_t permissions = 07777;
  fchmod(to, status.st_mode & permissions);
  QStringList lost;
  fstat(to, &own);
  if (own.st_uid != status.st_uid) lost << Texts::tr("owner");
  if (own.st_gid != status.st_gid) lost << Texts::tr("group");
  if ((own.st_mode & permissions) != (status.st_mode & permissions)) lost << Texts::tr("permissions");
  for (QByteArray const& name : attributeNames(path).split('\0')) {
    if (name.isEmpty() || takeAttribute(path, name, to) || name.startsWith("security.")) continue;
    lost << (name.startsWith("system.posix_acl") ? Texts::tr("access control list") : QString::fromLocal8Bit(name));
  }
  return lost;
}

// On a full disk a large write comes back short, without an error, so the bytes are counted.
bool putWhole(QFileDevice& file, QByteArray const& content) {
  return file.write(content) == content.size() && file.flush() && file.error() == QFileDevice::NoError;
}

QString noRoom(QString const& path, QFileDevice const& file) {
  QString const cause =
      file.error() == QFileDevice::NoError ? Texts::tr("there is no room for it") : file.errorString();
  return problem(path, cause, Texts::tr("free some space or choose another place"));
}

QString notSynced(QString const& path) {
  return problem(path, qt_error_string(errno), Texts::tr("check the disk or choose another place"));
}

// What was there is put back where the new content does not fit.
QString overwrite(QString const& path, QByteArray const& content) {
  QFile file(path);
  if (!file.open(QIODevice::ReadWrite))
    return problem(path, file.errorString(), Texts::tr("choose a place where you may write"));
  QByteArray const before = file.readAll();
  bool const isKnown = before.size() == file.size() && file.error() == QFileDevice::NoError;
  QString trouble = isKnown ? QString() : problem(path, file.errorString(), Texts::tr("choose another place"));
  if (!trouble.isEmpty()) return trouble;
  file.seek(0);
  if (!putWhole(file, content))
    trouble = noRoom(path, file);
  else if (!file.resize(content.size()) || !syncToDisk(file.handle()))
    trouble = notSynced(path);
  if (trouble.isEmpty()) return trouble;
  file.unsetError();
  file.seek(0);
  if (putWhole(file, before) && file.resize(before.size())) syncToDisk(file.handle());
  return trouble;
}

// The content, with all that belongs to the file, lies safely in one that has not got its place yet. The system is
// asked to store the bytes before the old file gives way: QSaveFile would commit a truncated file.
QString fill(QFileDevice& file, QString const& path, QString const& real, QByteArray const& content,
             QStringList& lost) {
  if (!putWhole(file, content)) return noRoom(path, file);
  lost = takeAttributes(real, file.handle());
  return syncToDisk(file.handle()) ? QString() : notSynced(path);
}

// Puts a file without a name in the place of another. It has a name of its own between two calls of the system; what a
// process left there that died just then gives way.
enum class Placed { Yes, No, Unknown };
Placed placeUnnamed(int handle, QString const& real) {
  QByteArray const from = "/proc/self/fd/" + QByteArray::number(handle);
  QByteArray const beside = QFile::encodeName(FileSaver::besideOf(real));
  auto const link = [&] {
    return linkat(AT_FDCWD, from.constData(), AT_FDCWD, beside.constData(), AT_SYMLINK_FOLLOW) == 0;
  };
  if (!link() && (errno != EEXIST || unlink(beside.constData()) != 0 || !link())) return Placed::Unknown;
  if (rename(beside.constData(), QFile::encodeName(real).constData()) == 0) return Placed::Yes;
  int const error = errno;
  unlink(beside.constData());
  errno = error;
  return Placed::No;
}

// A file without a name goes with its process, however that ends. Not every file system has them: then nothing is
// answered.
std::optional<QString> saveUnnamed(QString const& path, QString const& real, QByteArray const& content,
                                   QStringList& lost) {
  QByteArray const folder = QFile::encodeName(QFileInfo(real).absolutePath());
  constexpr mode_t asUsual = 0666;
  int const handle = open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, asUsual);
  if (handle < 0) return std::nullopt;
  QFile file;
  if (!file.open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
    close(handle);
    return std::nullopt;
  }
  QString const trouble = fill(file, path, real, content, lost);
  if (!trouble.isEmpty()) return trouble;
  switch (placeUnnamed(handle, real)) {
    case Placed::Yes: return QString();
    case Placed::No: return problem(path, qt_error_string(errno), Texts::tr("choose a place where you may write"));
    default: return std::nullopt;
  }
}

QString saveNamed(QString const& path, QString const& real, QByteArray const& content, QStringList& lost) {
  QSaveFile file(real);
  if (!file.open(QIODevice::WriteOnly)) return closedFolder(path, QFileInfo(real).absolutePath(), file.errorString());
  QString const trouble = fill(file, path, real, content, lost);
  if (!trouble.isEmpty() || file.commit()) return trouble;
  return problem(path, file.errorString(), Texts::tr("choose a place where you may write"));
}

}  // namespace

// A name is as long as names may be, so that this one can't be longer.
QString FileSaver::besideOf(QString const& path) {
  QFileInfo const file(path);
  QByteArray const digest =
      QCryptographicHash::hash(file.fileName().toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
  return file.absolutePath() + QLatin1Char('/') + QLatin1String(besidePrefix) + QString::fromLatin1(digest);
}

QString FileSaver::realPath(QString const& path) {
  constexpr int maxLinks = 40;  // as many as the system follows
  QString real = path;
  for (int i = 0; i < maxLinks && QFileInfo(real).isSymLink(); ++i) real = QFileInfo(real).symLinkTarget();
  QString const found = QFileInfo(real).canonicalFilePath();
  return found.isEmpty() ? real : found;
}

QString FileSaver::save(QString const& path, QByteArray const& content, QString* remark) {
  QString const obstacle = checkPlace(path);
  if (!obstacle.isEmpty()) return obstacle;
  QString const real = realPath(path), folder = QFileInfo(real).absolutePath();
  if (!takesNewFiles(folder)) return overwrite(real, content);
  QStringList lost;
  auto const unnamed = saveUnnamed(path, real, content, lost);
  QString const trouble = unnamed ? *unnamed : saveNamed(path, real, content, lost);
  if (!trouble.isEmpty()) return trouble;
  QStringList remarks;
  if (!syncFolder(folder))
    remarks << Texts::tr(
                   "its folder could not be written to the disk (%1), so that a power cut may bring back what was "
                   "there before")
                   .arg(qt_error_string(errno));
  if (!lost.isEmpty())
    remarks << Texts::tr("the system did not let it keep these of the file before: %1")
                   .arg(lost.join(QStringLiteral(", ")));
  if (remark && !remarks.isEmpty())
    *remark = Texts::tr("%1 was saved, but %2.").arg(QDir::toNativeSeparators(path), remarks.join(Texts::tr("; and ")));
  return QString();
}

QString FileSaver::checkFolder(QString const& path) {
  QString const obstacle = checkPlace(path);
  QString const folder = QFileInfo(realPath(path)).absolutePath();
  return !obstacle.isEmpty() || takesNewFiles(folder) ? obstacle : closedFolder(path, folder, qt_error_string(errno));
}

// Of a link, what it leads to.
QString FileSaver::checkPlace(QString const& path) {
  if (path.isEmpty()) return Texts::tr("No file was named; give it a name.");
  QFileInfo const file(realPath(path));
  QString const folder = file.absolutePath();
  if (!QFileInfo(folder).isDir())
    return problem(path, Texts::tr("the folder %1 does not exist").arg(QDir::toNativeSeparators(folder)),
                   Texts::tr("make it first, or choose another"));
  if (file.isDir()) return problem(path, Texts::tr("this is a folder"), Texts::tr("name a file in it"));
  struct stat status = {};
  bool const isThere = stat(QFile::encodeName(file.filePath()).constData(), &status) == 0;
  if (!isThere && errno != ENOENT) return problem(path, qt_error_string(errno), Texts::tr("choose another name"));
  if (isThere && !S_ISREG(status.st_mode))
    return problem(path, Texts::tr("this is no ordinary file"), Texts::tr("choose another name"));
  if (!isThere && !takesNewFiles(folder)) return closedFolder(path, folder, qt_error_string(errno));
  if (isThere && !file.isWritable())
    return problem(path, Texts::tr("this file is write-protected"), Texts::tr("choose another name, or unlock it"));
  return QString();
}

}  // namespace SysUtility
