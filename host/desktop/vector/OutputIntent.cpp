#include "OutputIntent.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

constexpr int headBytes = 132;                  // with the count of tags
constexpr qint64 mostBytes = 32 * 1024 * 1024;  // profiles of presses are one to three
constexpr int newestVersion = 4;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(OutputIntent)
};

}  // namespace

OutputIntent OutputIntent::sRgb() {
  return {QStringLiteral("sRGB IEC61966-2.1"), QColorSpace(QColorSpace::SRgb).iccProfile()};
}

QString OutputIntent::read(QString const& path, OutputIntent& intent) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return Texts::tr("the profile %1 can't be read: %2").arg(path, file.errorString());
  QByteArray const bytes = file.read(mostBytes + 1);
  // As ICC.1 has the head: size, version, class, colours and signature at fixed places.
  bool const isProfile = bytes.size() >= headBytes && bytes.size() <= mostBytes && bytes.mid(36, 4) == "acsp" &&
                         qFromBigEndian<quint32>(bytes.constData()) == static_cast<quint32>(bytes.size());
  if (!isProfile) return Texts::tr("%1 is no ICC profile, or not a whole one; name another file").arg(path);
  QByteArray const kind = bytes.mid(12, 4), colors = bytes.mid(16, 4);
  if (kind != "mntr" && kind != "prtr")
    return Texts::tr("%1 is not the profile of a screen or a printer; name one that is").arg(path);
  if (colors != "RGB ")
    return Texts::tr("%1 is a profile of %2 colours, and those of the page are RGB; name one for RGB")
        .arg(path, QString::fromLatin1(colors).trimmed());
  if (bytes[8] > newestVersion)
    return Texts::tr("%1 is a profile of a version that PDF files can't hold; name one of version 2 or 4").arg(path);
  intent = {QFileInfo(path).completeBaseName(), bytes};
  return QString();
}
