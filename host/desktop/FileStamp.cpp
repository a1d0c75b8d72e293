#include "FileStamp.h"

#include <QCryptographicHash>
#include <QFile>

#include <sys/stat.h>

#include <tuple>

FileStamp FileStamp::of(QString const& path) {
  FileStamp stamp;
  struct stat status = {};
  if (stat(QFile::encodeName(path).constData(), &status) != 0) return stamp;
  stamp.device_ = status.st_dev;
  stamp.inode_ = status.st_ino;
  stamp.size_ = status.st_size;
  stamp.seconds_ = status.st_mtim.tv_sec;
  stamp.nanoseconds_ = status.st_mtim.tv_nsec;
  return stamp;
}

bool FileStamp::operator==(FileStamp const& other) const {
  auto const all = [](FileStamp const& one) {
    return std::tie(one.device_, one.inode_, one.size_, one.seconds_, one.nanoseconds_);
  };
  return all(*this) == all(other);
}

QByteArray contentDigest(QString const& path) {
  QFile file(path);
  QCryptographicHash hash(QCryptographicHash::Sha256);
  return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}
