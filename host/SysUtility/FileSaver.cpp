#include "FileSaver.h"

#include "JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

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

QString cannotOpen(QString const& path, QString const& cause) {
  QFileInfo const file(path);
  if (file.isDir()) return problem(path, Texts::tr("this is a folder"), Texts::tr("choose a file name"));
  if (!file.dir().exists())
    return problem(path, Texts::tr("its folder does not exist"), Texts::tr("create the folder or choose another"));
  return problem(path, cause, Texts::tr("choose a place where you may write"));
}

}  // namespace

// On a full disk a large write comes back short, without an error, and QSaveFile would commit the truncated file. So
// the bytes are counted, and the system is asked to store them before the old file gives way.
QString FileSaver::save(QString const& path, QByteArray const& content) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return cannotOpen(path, file.errorString());

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

}  // namespace SysUtility
