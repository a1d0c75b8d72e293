#include "FileSaver.h"

#include "JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace SysUtility {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FileSaver)
};

QString problem(QString const& path, QString const& cause, QString const& fix) {
  return aboutFile(path, cause + QStringLiteral("; ") + fix);
}

}  // namespace

// On a full disk a large write comes back short, without an error, and QSaveFile would commit the truncated file. So
// the bytes are counted, and the system is asked to store them before the old file gives way.
QString FileSaver::save(QString const& path, QByteArray const& content) {
  QString const obstacle = checkPlace(path);
  if (!obstacle.isEmpty()) return obstacle;
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly))
    return problem(path, file.errorString(), Texts::tr("choose a place where you may write"));

  bool const whole = file.write(content) == content.size() && file.flush() && file.error() == QFileDevice::NoError;
  if (!whole) {
    QString const cause =
        file.error() == QFileDevice::NoError ? Texts::tr("there is no room for it") : file.errorString();
    return problem(path, cause, Texts::tr("free some space or choose another place"));
  }
  // Some file systems can't synchronise, and say so with EINVAL.
  if (fsync(file.handle()) != 0 && errno != EINVAL)
    return problem(path, qt_error_string(errno), Texts::tr("check the disk or choose another place"));
  if (!file.commit()) return problem(path, file.errorString(), Texts::tr("choose a place where you may write"));
  return QString();
}

// Of a link, what it leads to. A file is replaced by another one beside it, so that the folder must be writable, too.
QString FileSaver::checkPlace(QString const& path) {
  if (path.isEmpty()) return Texts::tr("No file was named; give it a name.");
  QString const real = QFileInfo(path).canonicalFilePath();
  QFileInfo const file(real.isEmpty() ? path : real);
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
  if (access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0)
    return problem(
        path,
        Texts::tr("the folder %1 can't be written (%2)").arg(QDir::toNativeSeparators(folder), qt_error_string(errno)),
        Texts::tr("choose another"));
  if (isThere && !file.isWritable())
    return problem(path, Texts::tr("this file is write-protected"), Texts::tr("choose another name, or unlock it"));
  return QString();
}

}  // namespace SysUtility
