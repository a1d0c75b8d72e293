#pragma once

#include "Files.h"

#include <QDir>

/// A copy of a sample in a folder, with the data of all samples.
inline QString sampleIn(QString const& folder, QString const& name) {
  QDir const samples(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples"));
  QDir(folder).mkdir("data");
  for (QString const& file : QDir(samples.filePath("data")).entryList(QDir::Files))
    put(folder + "/data/" + file, contentOf(samples.filePath("data/" + file)));
  return put(folder + '/' + name, contentOf(samples.filePath(name)));
}
