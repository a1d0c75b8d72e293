#include "GdalErrors.h"

#include <QCoreApplication>

namespace SysCarto {

namespace {

// What SQLite says where a database is kept within bounds, or PROJ, or OGR of a filter, and what that means.
// clang-format off
constexpr struct { char const *said, *meant; } plainly[] = {
    {"failed to prepare SQL",  QT_TRANSLATE_NOOP("GdalErrors", "it is a view that calls itself, reads another file, uses a function that could take for ever, or can't be understood; store its rows as a table")},
    {"not authorized",         QT_TRANSLATE_NOOP("GdalErrors", "it holds a view that calls itself or reads another file; store its rows as a table")},
    {"interrupted",            QT_TRANSLATE_NOOP("GdalErrors", "its view takes longer than a file of its size explains; store its rows as a table")},
    {"string or blob too big", QT_TRANSLATE_NOOP("GdalErrors", "it holds a value that is longer than the file")},
    {"Failed to parse date",   QT_TRANSLATE_NOOP("GdalErrors", "it compares a date with what is none; dates are written like '2024-06-01', in quotes")},
    {"Type mismatch or improper type", QT_TRANSLATE_NOOP("GdalErrors", "it compares a field with a value of another kind; texts and dates stand in single quotes, dates like '2024-06-01', and numbers don't")},
    {"Cannot find coordinate operations", QT_TRANSLATE_NOOP("GdalErrors", "PROJ knows no way from one to the other, as where they are those of two celestial bodies")},
};
// clang-format on

QString plain(QString const& message) {
  for (auto const& phrase : plainly)
    if (message.contains(QLatin1String(phrase.said))) return QCoreApplication::translate("GdalErrors", phrase.meant);
  return message.simplified();
}

}  // namespace

GdalErrors::GdalErrors() { CPLPushErrorHandlerEx(&GdalErrors::collect, this); }
GdalErrors::~GdalErrors() { CPLPopErrorHandler(); }

QString GdalErrors::reason() const { return failure_.isEmpty() ? warning_ : failure_; }

void CPL_STDCALL GdalErrors::collect(CPLErr kind, CPLErrorNum, char const* text) {
  auto* const self = static_cast<GdalErrors*>(CPLGetErrorHandlerUserData());
  if (self && (kind == CE_Warning || kind == CE_Failure || kind == CE_Fatal)) self->add(kind, QString::fromUtf8(text));
}

void GdalErrors::add(CPLErr kind, QString const& message) {
  QString line = plain(message);
  while (line.endsWith(QLatin1Char('.'))) line.chop(1);
  if (line.isEmpty()) return;
  (kind == CE_Warning ? warning_ : failure_) = line;
}

}  // namespace SysCarto
