#pragma once

#include <SysUtility/Export.h>

#include <QString>

#include <optional>

namespace SysUtility {

/// The scale denominator that a person has typed, in the manner of any language: `1:25,000`, `1/25.000`, `25 000`,
/// `10M`, `12,5 Mio`, `2500万`. A lone separator before three last digits groups them, for a scale has no use for
/// thousandths. Nothing where the text is no scale or is beyond what a map can show.
SYSUTILITY_EXPORT std::optional<double> scaleDenominatorOf(QString const& text);

}  // namespace SysUtility
