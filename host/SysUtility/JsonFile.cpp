#include "JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace SysUtility {

namespace {

constexpr qint64 mebibyte = 1024 * 1024;
constexpr int maxVersion = 1000000;  // thinkable

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(JsonFile)
};

// What stands in the way before a byte is read. A device or a pipe would be read for ever.
QString problemWith(QFileInfo const& file, JsonFileKind const& kind) {
  if (file.filePath().isEmpty()) return Texts::tr("no file was named; choose a %1 file").arg(kind.suffix);
  if (!file.exists()) return Texts::tr("there is no such file; check the name and the folder");
  if (file.isDir()) return Texts::tr("this is a folder; choose a %1 file in it").arg(kind.suffix);
  if (!file.isFile()) return Texts::tr("this is no ordinary file; choose a %1 file").arg(kind.suffix);
  return QString();
}

// Where the parser stopped, as a text editor counts it.
QString placeOf(QByteArray const& text, int offset) {
  QByteArray const before = text.left(offset);
  int const line = before.count('\n') + 1;
  int const column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
  return Texts::tr("line %1, column %2").arg(line).arg(column);
}

QString problemWith(QByteArray const& text, QJsonParseError const& problem) {
  return Texts::tr("%1: this is not JSON (%2); mend the file in a text editor or open another one")
      .arg(placeOf(text, problem.offset), problem.errorString());
}

std::optional<QByteArray> readAll(QString const& path, JsonFileKind const& kind, QString& problem) {
  problem = problemWith(QFileInfo(path), kind);
  if (!problem.isEmpty()) return std::nullopt;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    problem = Texts::tr("the file can't be read (%1); make it readable or choose another one").arg(file.errorString());
    return std::nullopt;
  }
  // No more than there is: Qt makes room for all that it is asked for.
  qint64 const most = kind.maxMebibytes * mebibyte;
  QByteArray const content = file.read(qMin(file.size(), most) + 1);
  if (content.size() > most)
    problem = Texts::tr("the file is larger than %1 MB, too large for a %2; choose another one")
                  .arg(kind.maxMebibytes)
                  .arg(kind.noun);
  else if (file.error() != QFileDevice::NoError)
    problem = Texts::tr("the file can't be read (%1); check the disk").arg(file.errorString());
  if (!problem.isEmpty()) return std::nullopt;
  return content;
}

}  // namespace

QString aboutFile(QString const& path, QString const& problem) {
  return path.isEmpty() ? problem : QDir::toNativeSeparators(path) + QStringLiteral(": ") + problem;
}

std::optional<QJsonObject> readJsonFile(QString const& path, JsonFileKind const& kind, QString& error) {
  QString problem;
  QJsonDocument document;
  if (auto const content = readAll(path, kind, problem)) {
    QJsonParseError parsing;
    document = QJsonDocument::fromJson(*content, &parsing);
    if (parsing.error != QJsonParseError::NoError)
      problem = problemWith(*content, parsing);
    else if (!document.isObject())
      problem = Texts::tr("the file holds a list where a %1 holds an object; choose another one").arg(kind.noun);
  }
  if (problem.isEmpty()) return document.object();
  error = aboutFile(path, problem);
  return std::nullopt;
}

// A file of another format, or of a newer version, gets a sentence that says so.
void listFormat(Fields& fields, JsonFormat const& format) {
  constexpr Field formatField{"format", QT_TRANSLATE_NOOP("Fields", "Format"),
                              QT_TRANSLATE_NOOP("Fields", "What the file is.")};
  QString const ours = QLatin1String(format.name);
  if (fields.isReading()) {
    QString name;
    fields.text(formatField, name, TextKind::Line);
    if (fields.ok() && name != ours) fields.fail("format", format.otherSentence.arg(ours));
  } else {
    QVector<Choice> const formats{{0, format.name, format.caption}};
    int name = 0;
    fields.choice(formatField, name, formats);
  }
  if (!fields.ok()) return;
  int version = format.version;
  fields.integer({"version", QT_TRANSLATE_NOOP("Fields", "Version"),
                  QT_TRANSLATE_NOOP("Fields", "The version of the format; a newer one is refused.")},
                 version, 1, fields.isReading() ? maxVersion : format.version);
  if (fields.ok() && version > format.version) fields.fail("version", format.newerSentence.arg(version));
}

QByteArray jsonText(QJsonObject const& object) { return QJsonDocument(object).toJson(QJsonDocument::Indented); }

// Without the brackets of the list that it has to lie in.
QString jsonLine(QJsonValue const& value) {
  QByteArray const list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return QString::fromUtf8(list.mid(1, list.size() - 2));
}

}  // namespace SysUtility
