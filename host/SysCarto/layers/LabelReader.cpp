#include "LabelReader.h"

#include "host/SysUtility/NumberText.h"

#include <QCoreApplication>

#include <ogr_feature.h>
#include <ogrsf_frmts.h>

#include <cmath>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LabelReader)
};

constexpr int digits = 15;  // that a number is sure to have
constexpr int maxLength = 16384;

bool isNumeric(OGRFeature const& feature, int field) {
  OGRFieldType const type = feature.GetFieldDefnRef(field)->GetType();
  return type == OFTInteger || type == OFTInteger64 || type == OFTReal;
}

}  // namespace

LabelReader::LabelReader(OGRLayer& layer, LabelFields const& labels, QString const& source, QStringList& warnings)
    : groupsNumbers_(labels.groupsNumbers) {
  QStringList names;
  if (!labels.language.isEmpty())
    names << labels.text + QLatin1Char(':') + labels.language << labels.text + QLatin1Char('_') + labels.language;
  for (QString const& name : names << labels.text) {
    int const field = name.isEmpty() ? -1 : layer.GetLayerDefn()->GetFieldIndex(name.toUtf8().constData());
    if (field >= 0) fields_.push_back(field);
  }
  if (labels.expression.isEmpty() || labels.text.isEmpty()) return;
  QString reason;
  if (!Expression().compile(layer, labels.expression, reason)) {
    warnings << Texts::tr("The text “%1” of the labels of %2 is not understood, so they show the attribute: %3.")
                    .arg(labels.expression, source, reason);
    return;
  }
  expressions_.fill([&](unsigned) {
    auto expression = std::make_unique<Expression>();
    expression->compile(layer, labels.expression, reason);
    return expression;
  });
}

QString LabelReader::text(OGRFeature& feature) const { return wholeText(feature).left(maxLength); }

QString LabelReader::wholeText(OGRFeature& feature) const {
  if (expressions_.isFilled()) {
    QString const made = expressions_.use([&](Expression const& expression) {
      QString const text = expression.text(feature);
      double const number = text.isEmpty() ? expression.number(feature) : std::nan("");
      return std::isnan(number) ? text : numberText(number);
    });
    if (!made.isEmpty()) return made;
  }
  for (int const field : fields_) {
    QString const text = fieldText(feature, field);
    if (!text.isEmpty()) return text;
  }
  return {};
}

QString LabelReader::fieldText(OGRFeature& feature, int field) const {
  if (!feature.IsFieldSetAndNotNull(field)) return {};
  if (groupsNumbers_ && isNumeric(feature, field)) return numberText(feature.GetFieldAsDouble(field));
  return QString::fromUtf8(feature.GetFieldAsString(field));
}

QString LabelReader::numberText(double number) const {
  return groupsNumbers_ ? SysUtility::grouped(number) : QString::number(number, 'g', digits);
}

}  // namespace SysCarto
