#include "ProjText.h"

#include <QRegularExpression>

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <cmath>

namespace SysCarto {

ProjText::ProjText(OGRSpatialReference const& system) {
  char* text = nullptr;
  if (system.exportToProj4(&text) == OGRERR_NONE) text_ = QString::fromUtf8(text);
  CPLFree(text);
}

QString ProjText::value(char const* parameter) const {
  QRegularExpression const pattern(QStringLiteral("\\+%1=([^ ]+)").arg(QLatin1String(parameter)));
  return pattern.match(text_).captured(1);
}

double ProjText::number(char const* parameter, double otherwise) const {
  bool ok = false;
  double const number = value(parameter).toDouble(&ok);
  return ok && std::isfinite(number) ? number : otherwise;
}

bool ProjText::contains(char const* words) const { return text_.contains(QLatin1String(words)); }

}  // namespace SysCarto
