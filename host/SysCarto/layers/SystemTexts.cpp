#include "SystemTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>

#include <algorithm>

namespace SysCarto {

namespace {

constexpr int before = 128, after = 4096;       // characters about a sign of equality, as JSON may write them
constexpr qint64 headBytes = 16 * 1024 * 1024;  // of a format that tells its system at an end
constexpr qint64 pageBytes = 64 * 1024;         // portions overlap, where the machine can map them
constexpr int systemBytes = 1024 * 1024;        // of a file that holds nothing but a coordinate system

QByteArray unescaped(QByteArray text) {
  for (int at = text.indexOf('\\'); at >= 0 && at + 1 < text.size(); at = text.indexOf('\\', at + 1)) {
    bool isNumber = false;
    int const code = text[at + 1] == 'u' ? text.mid(at + 2, 4).toInt(&isNumber, 16) : 0;
    if (isNumber && code < 128)
      text.replace(at, 6, QByteArray(1, static_cast<char>(code)));
    else if (text[at + 1] == '/')
      text.remove(at, 1);
  }
  return text;
}

// Without a look at what is escaped, of which there is little: whether a name that takes a file ends before a sign.
bool mayBeName(QByteArray const& text, int sign) {
  int end = sign;
  while (end > 0 && (text[end - 1] == ' ' || text[end - 1] == '\t')) --end;
  QByteArray const last = QByteArray::fromRawData(text.constData() + std::max(0, end - 4), std::min(4, end)).toLower();
  bool const isEscaped =
      QByteArray::fromRawData(text.constData() + std::max(0, end - before), std::min(before, end)).contains("\\u");
  return isEscaped || last == "rids" || last == "init" || last == "file" || last == "odel";
}

bool isPathAt(QByteArray const& text, int sign, int length) {
  static QRegularExpression const names(QStringLiteral("(grids|[+\"]\\s*(init|file|model))\\s*=[^\\s\"+]*[/\\\\]"),
                                        QRegularExpression::CaseInsensitiveOption);
  if (!mayBeName(text, sign)) return false;
  int const from = std::max(0, sign - before);
  QByteArray const part = unescaped(text.mid(from, sign - from)) + '=' + unescaped(text.mid(sign + length, after));
  return names.match(QString::fromLatin1(part)).hasMatch();
}

QByteArray systemIn(QByteArray const& file) {
  VSILFILE* const open = VSIFOpenL(file.constData(), "rb");
  if (!open) return {};
  QByteArray text(systemBytes, '\0');
  text.truncate(static_cast<int>(VSIFReadL(text.data(), 1, static_cast<size_t>(text.size()), open)));
  VSIFCloseL(open);
  return text;
}

// Beside a file, or in a folder of an archive.
bool companionNamesPath(QByteArray const& name) {
  for (char const* const suffix : {"prj", "PRJ", "qpj"})
    if (namesGridByPath(systemIn(CPLResetExtension(name.constData(), suffix)))) return true;
  char** const entries = name.startsWith("/vsi") ? VSIReadDir(name.constData()) : nullptr;
  bool isFound = false;
  for (int i = 0; i < CSLCount(entries); ++i)
    isFound = isFound || (EQUAL(CPLGetExtension(entries[i]), "prj") &&
                          namesGridByPath(systemIn(name + '/' + QByteArray(entries[i]))));
  CSLDestroy(entries);
  return isFound;
}

bool fileNamesPath(QString const& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  auto const holds = [&file](qint64 from, qint64 size) {
    uchar* const bytes = size > 0 ? file.map(from, size) : nullptr;
    bool const found =
        bytes && namesGridByPath(QByteArray::fromRawData(reinterpret_cast<char const*>(bytes), static_cast<int>(size)));
    if (bytes) file.unmap(bytes);
    return found;
  };
  // By how it begins, as the drivers go: the name may be that of another format.
  QByteArray const head = file.peek(8);
  for (char const* const without : {"PK", "SQLite", "\x03", "\x83"})
    if (head.startsWith(without)) return false;
  if (head.startsWith(QByteArray("\0\0\x27\x0a", 4))) return false;
  bool const isEndOnly = head.startsWith("fgb") || head.startsWith("PAR1") || head.startsWith("ARROW1") ||
                         head.startsWith("II") || head.startsWith("MM");
  if (isEndOnly && file.size() > 2 * headBytes) return holds(0, headBytes) || holds(file.size() - headBytes, headBytes);
  constexpr qint64 portion = 1024 * 1024 * 1024;
  for (qint64 from = 0; from < file.size(); from += portion - pageBytes)
    if (holds(from, std::min(portion, file.size() - from))) return true;
  return false;
}

}  // namespace

bool namesGridByPath(QByteArray const& text) {
  static QByteArray const escaped = QByteArrayLiteral("\\u003d"), upper = QByteArrayLiteral("\\u003D");
  for (QByteArray const& sign : {QByteArray("="), escaped, upper})
    for (int at = text.indexOf(sign); at >= 0; at = text.indexOf(sign, at + 1))
      if (isPathAt(text, at, sign.size())) return true;
  return false;
}

QString problemOfSystem(QString const& path, QByteArray const& name) {
  if (!companionNamesPath(name) && !fileNamesPath(path)) return QString();
  return QCoreApplication::translate("DataSource",
                                     "its coordinate system names a file by a path, which is not opened; give it "
                                     "another coordinate system");
}

}  // namespace SysCarto
