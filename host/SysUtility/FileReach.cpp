#include "FileReach.h"

#include "FileSaver.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace SysUtility {

namespace {

constexpr int maxLinks = 40;  // as many as the system follows
QLatin1Char const slash('/');

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FileReach)
};

// Not reached at all where there is nothing.
std::optional<FileReach>& ofProcess() {
  static std::optional<FileReach> reach;
  return reach;
}

// What is not there yet is where it would come to lie. A link that leads nowhere is followed, too: whoever could ask
// through it whether something is there would learn it.
QString placeOf(QString const& path, int links = maxLinks) {
  QString known = QDir::cleanPath(QFileInfo(path).absoluteFilePath()), rest;
  while (!QFileInfo(known).isRoot()) {
    QFileInfo const file(known);
    QString const canonical = file.canonicalFilePath();
    if (!canonical.isEmpty()) return QDir::cleanPath(canonical + rest);
    if (file.isSymLink() && links > 0) return placeOf(file.symLinkTarget() + rest, links - 1);
    rest = slash + file.fileName() + rest;
    known = file.path();
  }
  return QDir::cleanPath(known + rest);
}

// Only links can lead elsewhere than the file itself.
QStringList companionsOf(QString const& file) {
  QFileInfo const named(file);
  QStringList files;
  QString const base = named.completeBaseName() + QLatin1Char('.');
  QDirIterator entries(named.absolutePath(), QDir::Files | QDir::Hidden | QDir::System);
  while (entries.hasNext()) {
    QString const path = entries.next();
    bool const isOwn = entries.fileName().startsWith(base, Qt::CaseInsensitive) ||
                       entries.fileName().startsWith(named.fileName(), Qt::CaseInsensitive);
    if (isOwn && entries.fileInfo().isSymLink()) files << path;
  }
  return files;
}

}  // namespace

FileReach::FileReach(QStringList const& folders) {
  for (QString const& folder : folders) {
    QString const place = placeOf(folder);
    folders_ << (place.endsWith(slash) ? place : place + slash);
  }
}

FileReach FileReach::ofDocument(QString const& path, QStringList const& allowed) {
  FileReach reach(QStringList{QFileInfo(FileSaver::realPath(path)).absolutePath()} + allowed);
  if (ofProcess()) reach.folders_ += ofProcess()->folders_;
  return reach;
}

// The folder of a file that lies outside is not looked into.
QString FileReach::outside(QString const& file, With with) const {
  auto const isHeld = [this](QString const& place) {
    return std::any_of(folders_.begin(), folders_.end(),
                       [&](QString const& folder) { return (place + slash).startsWith(folder); });
  };
  QString const own = placeOf(file);
  if (!isHeld(own)) return own;
  for (QString const& companion : with == With::Companions ? companionsOf(file) : QStringList())
    if (QString const place = placeOf(companion); !isHeld(place)) return place;
  return QString();
}

void FileReach::confine(QStringList const& folders) { ofProcess() = FileReach(folders); }

void FileReach::allow(QString const& folder) {
  if (ofProcess()) ofProcess()->folders_ += FileReach({folder}).folders_;
}

QString FileReach::refusal(QString const& file, With with) {
  QString const outside = ofProcess() ? ofProcess()->outside(file, with) : QString();
  if (outside.isEmpty()) return outside;
  QString const folder = QFileInfo(outside).path();
  if (outside == QDir::cleanPath(QFileInfo(file).absoluteFilePath()))
    return Texts::tr("it lies outside the document's folder; move it there, or pass --allow %1").arg(folder);
  return Texts::tr("it leads to %1, outside the document's folder; put a copy there, or pass --allow %2")
      .arg(outside, folder);
}

}  // namespace SysUtility
