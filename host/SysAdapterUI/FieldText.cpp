#include "FieldText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>

namespace SysAdapterUI {

using SysUtility::Choice;
using SysUtility::FieldInfo;
using SysUtility::SheetField;
using SysUtility::TextKind;
using SysUtility::Unit;
using Kind = FieldInfo::Kind;

namespace {

constexpr int maxShown = 200;  // characters of a value

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FieldText)
};

QString number(double value) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'g', 10);
}

QString unitText(Unit unit) {
  switch (unit) {
    case Unit::Point: return QStringLiteral("pt");
    case Unit::Centimetre: return QStringLiteral("cm");
    case Unit::Degree: return QStringLiteral("°");
    case Unit::Percent: return QStringLiteral("%");
    case Unit::LineWidth: return Texts::tr("line widths");
    case Unit::None:
    case Unit::ScaleDenominator:
    case Unit::MapUnit: break;
  }
  return QString();
}

}  // namespace

QString readable(FieldInfo const& info, QJsonValue const& value) {
  QString const unit = unitText(info.rules.range.unit);
  switch (info.kind) {
    case Kind::Number:
    case Kind::Integer:
      if (info.rules.range.unit == Unit::ScaleDenominator && value.toDouble() > 0)
        return QStringLiteral("1:") + number(value.toDouble());
      return unit.isEmpty() ? number(value.toDouble()) : number(value.toDouble()) + QChar(0x202f) + unit;
    case Kind::Text:
      if (info.rules.textKind == TextKind::Picture && value.toString().isEmpty()) return QString();
      if (info.rules.textKind == TextKind::Svg || info.rules.textKind == TextKind::Picture)
        return Texts::tr("%1 characters").arg(value.toString().size());
      return value.toString().left(maxShown).simplified();
    case Kind::Texts: return value.toVariant().toStringList().join(QStringLiteral(", ")).left(maxShown);
    case Kind::NumberList:
    case Kind::Numbers: {
      QStringList texts;
      for (QJsonValue const& one : value.toArray()) texts << number(one.toDouble());
      return texts.join(QStringLiteral("; "));
    }
    case Kind::Coordinates: return Texts::tr("%1 points").arg(value.toArray().size() / 2);
    case Kind::Choice:
    case Kind::Variant:
      for (Choice const& choice : info.choices)
        if (value.toString() == QLatin1String(choice.name))
          return QCoreApplication::translate("Fields", choice.caption);
      return value.toString();
    case Kind::Flag:
    case Kind::Object:
    case Kind::List: break;
  }
  return QString();
}

QString summary(SheetField const& entry) {
  QStringList texts;
  for (SheetField const& field : entry.fields) {
    bool const isValue = field.info.kind != Kind::Object && field.info.kind != Kind::List &&
                         field.info.kind != Kind::Flag && !field.value.isUndefined();
    QString const text = isValue ? readable(field.info, field.value) : QString();
    if (!text.isEmpty()) texts << text;
  }
  return QStringList(texts.mid(0, 2)).join(QStringLiteral(" · "));
}

QColor problemColor(QPalette const& palette) {
  bool const isDark = palette.color(QPalette::Base).lightness() < 128;
  return isDark ? QColor(0xff, 0x80, 0x78) : QColor(0xc0, 0x20, 0x20);
}

}  // namespace SysAdapterUI
