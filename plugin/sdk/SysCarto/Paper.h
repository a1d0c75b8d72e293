#pragma once

#include <SysCarto/Export.h>
#include <SysUtility/CRef.h>

#include <QString>

namespace SysCarto {

/// The number of a paper form: an index into the forms of `Paper`. Form 12 is the custom size.
using PageFormID = int;

constexpr PageFormID customPageForm = 12;

struct FormInfo {
  QString key;          ///< stands in documents: "A4"
  QString displayName;  ///< for people, translated
  double width;         ///< centimetres, as the form is listed (portrait for most)
  double height;        ///< centimetres
};

/// The paper forms.
class SYSCARTO_EXPORT Paper : public SysUtility::CRef {
public:
  Paper();
  ~Paper() override;

  static int GetFormCount();

  /// False, with `info` unchanged, for a form that does not exist.
  static bool GetFormInfo(PageFormID id, FormInfo& info);

  /// The size, in centimetres, that a page takes over when its form is next set to the custom one.
  static void SetCustomSize(double width, double height);
};

}  // namespace SysCarto
