#include "FileNames.h"

#include "host/SysCarto/elements/Placeholders.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int maxBytes = 200;  // of a name: file systems take 255, and a working file needs some

QString shortened(QString const& name) {
  QString const suffix = QFileInfo(name).suffix();
  QString base = suffix.isEmpty() ? name : name.chopped(suffix.size() + 1);
  while (base.toUtf8().size() > maxBytes) base.chop(base.at(base.size() - 1).isLowSurrogate() ? 2 : 1);
  static QRegularExpression const reserved(QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"),
                                           QRegularExpression::CaseInsensitiveOption);
  if (reserved.match(base).hasMatch()) base.prepend(QLatin1Char('_'));
  return suffix.isEmpty() ? base : base + QLatin1Char('.') + suffix;
}

bool isKnown(QString const& name, QString const& argument) {
  if (name == QLatin1String("page")) return argument.isEmpty() || argument == QLatin1String("name");
  return name == QLatin1String("pages") ? argument.isEmpty() : name == QLatin1String("field") && !argument.isEmpty();
}

// In the name of the file: folders may be called what they like.
QString unknownIn(QString const& pattern) {
  QString unknown;
  SysCarto::Placeholders([&](QString const& name, QString const& argument) {
    if (!isKnown(name, argument) && unknown.isEmpty())
      unknown = argument.isEmpty() ? name : name + QLatin1Char(':') + argument;
    return std::optional<QString>();
  }).filled(pattern.mid(pattern.lastIndexOf(QLatin1Char('/')) + 1));
  return unknown;
}

}  // namespace

bool FileNames::isPattern(QString const& path) {
  bool isFound = false;
  SysCarto::Placeholders([&](QString const& name, QString const& argument) {
    isFound = isFound || (isKnown(name, argument) && name != QLatin1String("pages"));
    return std::optional<QString>();
  }).filled(path);
  return isFound;
}

QString FileNames::safe(QString const& text) {
  static QRegularExpression const unsafe(QStringLiteral(R"([/\\:*?"<>|\p{C}]|^\.+|^-|[. ]+$)"));
  QString name = text.trimmed();
  name.replace(unsafe, QStringLiteral("_"));
  return name.isEmpty() ? QStringLiteral("_") : name;
}

QStringList FileNames::of(Coverage const& coverage, QString const& pattern, std::vector<int> const& chosen,
                          QString& problem) {
  if (QString const unknown = unknownIn(pattern); !unknown.isEmpty()) {
    problem = tr("%1: “[%2]” stands for nothing in the name of a file; use “[page]”, “[page:name]”, “[pages]” or "
                 "“[field:name]”.")
                  .arg(pattern, unknown);
    return {};
  }
  QStringList paths = coverage.filled(
      pattern, [](QVariant const& value) { return safe(textOf(value, QLocale::c())); }, problem);
  for (QString& path : paths) {
    int const name = path.lastIndexOf(QLatin1Char('/')) + 1;
    path = path.left(name) + shortened(path.mid(name));
  }
  QHash<QString, int> known;
  for (int const page : chosen) {
    if (!problem.isEmpty()) break;
    QString const& path = paths.at(page - 1);
    int& first = known[path.normalized(QString::NormalizationForm_C).toCaseFolded()];
    if (first > 0)
      problem =
          tr("Pages %1 and %2 would both be written to %3, so nothing was written; tell them apart, as with “[page]” "
             "in the name.")
              .arg(QString::number(first), QString::number(page), path);
    first = page;
  }
  return paths;
}
