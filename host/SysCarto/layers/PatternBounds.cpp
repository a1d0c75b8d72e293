#include "PatternBounds.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cpl_error.h>
#include <ogr_feature.h>
#include <ogr_swq.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PatternBounds)
};

constexpr double freeLetters = 1e6;  // of each feature
constexpr double mostLetters = 3e8;  // about a second
constexpr int unknownPower = 5;      // of a pattern that a field holds

int powerOf(swq_expr_node const& pattern) {
  if (pattern.eNodeType != SNT_CONSTANT || !pattern.string_value) return unknownPower;
  QByteArray letters(pattern.string_value);
  while (letters.endsWith('%')) letters.chop(1);
  int power = 0;
  for (int i = 0; i < letters.size(); ++i)
    if (letters[i] == '%' && (i == 0 || letters[i - 1] != '%')) ++power;
  return power;
}

std::size_t longestText(OGRFeature const& feature, std::vector<int> const& fields) {
  std::size_t longest = 0;
  for (int i = 0; i < feature.GetFieldCount(); ++i)
    if ((fields.empty() || std::find(fields.begin(), fields.end(), i) != fields.end()) &&
        feature.GetFieldDefnRef(i)->GetType() == OFTString && feature.IsFieldSetAndNotNull(i))
      longest = std::max(longest, std::strlen(feature.GetRawFieldRef(i)->String));
  return longest;
}

}  // namespace

void PatternBounds::look(swq_expr_node const& node) {
  if (node.eNodeType == SNT_COLUMN) ++columns_;
  if (node.eNodeType != SNT_OPERATION) return;
  if ((node.nOperation == SWQ_LIKE || node.nOperation == SWQ_ILIKE) && node.nSubExprCount > 1) {
    ++patterns_;
    power_ = std::max(power_, powerOf(*node.papoSubExpr[1]));
    swq_expr_node const& text = *node.papoSubExpr[0];
    fields_.push_back(text.field_index);
    areKnown_ = areKnown_ && text.eNodeType == SNT_COLUMN && text.field_index >= 0;
  }
  for (int i = 0; i < node.nSubExprCount; ++i) look(*node.papoSubExpr[i]);
}

bool PatternBounds::admit(OGRFeature const& feature) {
  if (power_ < 2) return true;  // with one %, each place is tried once
  if (charged_ > mostLetters) return false;
  auto const length = areKnown_ ? static_cast<double>(longestText(feature, fields_))
                                : static_cast<double>(longestText(feature, {})) * std::max(columns_, 1);
  double const letters = patterns_ * std::pow(length, power_);
  if (letters > freeLetters) charged_ += letters;
  if (charged_ <= mostLetters) return true;
  QString const reason =
      Texts::tr("a pattern of LIKE could be met in too many ways by its long texts; use fewer % in it");
  CPLError(CE_Failure, CPLE_AppDefined, "%s", reason.toUtf8().constData());
  return false;
}

}  // namespace SysCarto
