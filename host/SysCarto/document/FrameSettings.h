#pragma once

#include "host/SysCarto/layout/PageAids.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/FrameProperties.h>
#include <SysCarto/Page.h>
#include <SysCarto/SymbolFrameParts.h>

namespace SysCarto {

// What a document stores of frames and pages. `of` takes it from an object, `list` names its fields, and `applyTo`
// gives it to an object. Gaps and offsets are in points, y upwards; roundings in per cent.

struct BorderSettings {
  SysUtility::_ptr_t<SysDisplay::LineSymbol> symbol;
  double gap = 0;
  double rounding = 0;

  static BorderSettings of(SymbolBorder const& border);
  void list(SysUtility::Fields& fields);
  void applyTo(SymbolBorder& border) const;
};

struct BackgroundSettings {
  SysUtility::_ptr_t<SysDisplay::FillSymbol> symbol;
  double gap = 0;
  double rounding = 0;

  static BackgroundSettings of(SymbolBackground const& background);
  void list(SysUtility::Fields& fields);
  void applyTo(SymbolBackground& background) const;
};

struct ShadowSettings {
  SysUtility::_ptr_t<SysDisplay::FillSymbol> symbol;
  double offset[2] = {2, -2};
  double rounding = 0;

  static ShadowSettings of(SymbolShadow const& shadow);
  void list(SysUtility::Fields& fields);
  void applyTo(SymbolShadow& shadow) const;
};

/// The parts themselves; a missing one is an empty pointer. A part of a class of somebody else can't be stored.
struct SYSCARTO_EXPORT FrameSettings {
  SysUtility::_ptr_t<IBorder> border;
  SysUtility::_ptr_t<IBackground> background;
  SysUtility::_ptr_t<IShadow> shadow;

  static FrameSettings of(IFrameProperties const& frame);
  void list(SysUtility::Fields& fields);
  void applyTo(IFrameProperties& frame) const;
};

/// Margins, guides and grid of a page.
struct PageAidsSettings {
  PageAids aids;

  static PageAidsSettings of(Page const& page);
  void list(SysUtility::Fields& fields);
  void applyTo(Page& page) const;
};

struct SYSCARTO_EXPORT PageSettings {
  int form = customPageForm;         ///< of `Paper`
  double widthCm = 0, heightCm = 0;  ///< of the custom form, portrait way up
  short orientation = 1;
  FrameSettings frame;
  PageAidsSettings aids;

  static PageSettings of(Page const& page);
  void list(SysUtility::Fields& fields);
  void applyTo(Page& page) const;
};

}  // namespace SysCarto
