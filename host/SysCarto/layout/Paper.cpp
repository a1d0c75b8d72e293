#include <SysCarto/Paper.h>
#include <SysDisplay/Units.h>

#include <QCoreApplication>
#include <QPageSize>
#include <QSizeF>

#include <cmath>
#include <iterator>

namespace SysCarto {

namespace {

// The order is that of the numbers which pages keep; the custom size has its fixed place in it.
// clang-format off
constexpr QPageSize::PageSizeId forms[] = {
    QPageSize::A0, QPageSize::A1, QPageSize::A2, QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::A6,
    QPageSize::A7, QPageSize::A8, QPageSize::A9, QPageSize::A10,
    QPageSize::Letter, QPageSize::Custom, QPageSize::Legal, QPageSize::Tabloid, QPageSize::Ledger,
    QPageSize::ExecutiveStandard, QPageSize::Statement,
    QPageSize::B0, QPageSize::B1, QPageSize::B2, QPageSize::B3, QPageSize::B4, QPageSize::B5, QPageSize::B6,
    QPageSize::B7, QPageSize::B8, QPageSize::B9, QPageSize::B10,
    QPageSize::EnvelopeC3, QPageSize::EnvelopeC4, QPageSize::EnvelopeC5, QPageSize::EnvelopeC6,
    QPageSize::EnvelopeC7, QPageSize::EnvelopeDL,
    QPageSize::ArchA, QPageSize::ArchB, QPageSize::ArchC, QPageSize::ArchD, QPageSize::ArchE,
    QPageSize::AnsiC, QPageSize::AnsiD, QPageSize::AnsiE,
};
// clang-format on
static_assert(forms[customPageForm] == QPageSize::Custom, "the custom size has a fixed number");

// In the unit that defines the form: Qt's own conversion to millimetres is rounded, and 48 inches would lose 3 pixels
// at 300 DPI.
QSizeF listedSizeCm(QPageSize::PageSizeId form) {
  QSizeF const size = QPageSize::definitionSize(form);
  return QPageSize::definitionUnits(form) == QPageSize::Inch ? size * SysDisplay::cmPerInch : size / 10;
}

QSizeF& customSizeCm() {
  static QSizeF size(21.0, 29.7);
  return size;
}

}  // namespace

Paper::Paper() = default;
Paper::~Paper() = default;

int Paper::GetFormCount() { return static_cast<int>(std::size(forms)); }

bool Paper::GetFormInfo(PageFormID id, FormInfo& info) {
  if (id < 0 || id >= GetFormCount()) return false;
  if (id == customPageForm) {
    info = {QStringLiteral("Custom"), QCoreApplication::translate("Paper", "Custom"), customSizeCm().width(),
            customSizeCm().height()};
    return true;
  }
  QSizeF const size = listedSizeCm(forms[id]);
  info = {QPageSize::key(forms[id]), QPageSize::name(forms[id]), size.width(), size.height()};
  return true;
}

void Paper::SetCustomSize(double width, double height) {
  if (std::isfinite(width) && std::isfinite(height) && width >= 0 && height >= 0)
    customSizeCm() = QSizeF(width, height);
}

}  // namespace SysCarto
