#include "Placeholders.h"

#include "TextElement.h"

#include <SysCarto/GroupElement.h>

#include <QRegularExpression>

namespace SysCarto {

namespace {

QRegularExpression const& pattern() {
  static QRegularExpression const brackets(QStringLiteral(R"(\[([A-Za-z]+)(?::([^\[\]\n]*))?\])"));
  return brackets;
}

}  // namespace

QStringList Placeholders::names() {
  return {QStringLiteral("scale"),     QStringLiteral("date"),          QStringLiteral("document"),
          QStringLiteral("map"),       QStringLiteral("crs"),           QStringLiteral("credits"),
          QStringLiteral("page"),      QStringLiteral("pages"),         QStringLiteral("field"),
          QStringLiteral("neighbour"), QStringLiteral("neighbourpage"), QStringLiteral("title"),
          QStringLiteral("author")};
}

QString Placeholders::filled(QString const& text) const {
  if (!source_ || !text.contains(QLatin1Char('['))) return text;
  QString result;
  int done = 0;
  for (auto all = pattern().globalMatch(text); all.hasNext();) {
    auto const match = all.next();
    auto const value = source_(match.captured(1), match.captured(2));
    result += text.mid(done, match.capturedStart() - done) + value.value_or(match.captured());
    done = match.capturedEnd();
  }
  return result + text.mid(done);
}

QStringList Placeholders::unknownIn(QString const& text) {
  QStringList unknown;
  for (auto all = pattern().globalMatch(text); all.hasNext();) {
    auto const match = all.next();
    if (!names().contains(match.captured(1)) && !unknown.contains(match.captured())) unknown << match.captured();
  }
  return unknown;
}

void usePlaceholders(Element& element, std::shared_ptr<Placeholders> const& placeholders) {
  if (auto* const text = dynamic_cast<TextElement*>(&element)) text->setPlaceholders(placeholders);
  if (auto* const group = dynamic_cast<GroupElement*>(&element))
    for (auto const& member : group->GetElements()) usePlaceholders(*member, placeholders);
}

}  // namespace SysCarto
