#pragma once

namespace SysCarto {

/// How long a side of a page that is stored may be, in centimetres.
constexpr double minPageSideCm = 0.1, maxPageSideCm = 500;

}  // namespace SysCarto
