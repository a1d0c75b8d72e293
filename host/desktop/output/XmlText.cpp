#include "XmlText.h"

namespace {

bool isAllowed(QChar unit) {
  ushort const code = unit.unicode();
  return code >= 0x20 ? code < 0xfffe : code == '\t' || code == '\n' || code == '\r';
}

}  // namespace

QString xmlText(QString const& text) {
  QString result;
  result.reserve(text.size());
  for (int i = 0; i < text.size(); ++i) {
    QChar const unit = text.at(i);
    if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
      result.append(unit).append(text.at(++i));
    else if (!unit.isSurrogate() && isAllowed(unit))
      result.append(unit);
  }
  return result;
}

QByteArray escapedXml(QString const& text) { return xmlText(text).toHtmlEscaped().toUtf8(); }
