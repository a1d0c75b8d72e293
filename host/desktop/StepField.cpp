#include "StepField.h"

#include "host/SysCarto/maps/LayerData.h"

namespace {

// Of those that are layers whose data can't be read.
QStringList problemsOf(SysCarto::Editable::List const& things) {
  QStringList problems;
  for (auto const& thing : things)
    if (auto const layer = thing->layer()) problems << SysCarto::problemOf(*layer);
  problems.removeAll(QString());
  return problems;
}

}  // namespace

// What a layer is called has two parts, and map: and layer: come before a name.
StepField StepField::of(QString const& text) {
  static QStringList const prefixes{QStringLiteral("map:"), QStringLiteral("layer:")};
  QString prefix;
  for (QString const& known : prefixes)
    if (text.startsWith(known)) prefix = known;
  int const colon = text.indexOf(QLatin1Char(':'), prefix.size());
  QString const address = colon < 0 ? text : text.left(colon);
  int const parts = prefix == prefixes.last() ? 2 : 1;
  return {address.section(QLatin1Char('/'), 0, parts - 1),
          address.section(QLatin1Char('/'), parts).split(QLatin1Char('/'), Qt::SkipEmptyParts),
          colon < 0 ? QString() : text.mid(colon + 1).append(QLatin1String(""))};
}

QString StepField::giveTo(SysCarto::MapDocument const& document, SysCarto::Editable::List const& things,
                          QStringList& warnings) const {
  auto const sheet = SysCarto::Editable::fields(document, {things.first()});
  SysUtility::SheetField const* const known = SysUtility::fieldAt(sheet.first(), path);
  QJsonValue const wanted = SysUtility::valueOf(value, known);
  bool const isCondition = known && known->info.rules.textKind == SysUtility::TextKind::Condition;
  QStringList const before = problemsOf(things);
  QStringList told;
  QString const problem = SysCarto::Editable::set(
      document, things, path, [&](QJsonValue const&) { return wanted; }, told);
  if (!problem.isEmpty()) return problem + QLatin1Char('.');
  QStringList const now = problemsOf(things);
  if (isCondition && !now.isEmpty() && now != before) return now.join(QLatin1Char(' '));
  warnings += told;
  return problem;
}
