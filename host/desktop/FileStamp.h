#pragma once

#include <QByteArray>
#include <QString>

/// Which file lies at a path, and when it was written; the same again where nobody has touched it.
class FileStamp {
public:
  /// Of nothing, where there is no file.
  static FileStamp of(QString const& path);

  bool exists() const { return inode_ != 0; }
  bool operator==(FileStamp const& other) const;
  bool operator!=(FileStamp const& other) const { return !(*this == other); }

private:
  quint64 device_ = 0, inode_ = 0;
  qint64 size_ = 0, seconds_ = 0, nanoseconds_ = 0;
};

/// Of what the file holds; empty where it can't be read.
QByteArray contentDigest(QString const& path);
