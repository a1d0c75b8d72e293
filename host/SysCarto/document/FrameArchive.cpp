#include "ElementArchive.h"

#include "host/SysCarto/layout/PageLimits.h"
#include "host/SysDisplay/SymbolArchive.h"

#include <SysCarto/SymbolFrameParts.h>

#include <QCoreApplication>

namespace SysCarto {

using SysDisplay::describeOptionalSymbol;
using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr double mostPt = 1000;

QString translated(char const* text) { return QCoreApplication::translate("ElementArchive", text); }

// The part of a frame as the class that can be stored: the present one when writing, a new one when reading.
template <class Stored, class Part>
void describePart(Archive& archive, char const* key, _ptr_t<Part> const& present,
                  std::function<void(_ptr_t<Part> const&)> const& take, void (*describe)(Archive&, Stored&)) {
  _ptr_t<Stored> const part = archive.reading() ? make<Stored>() : ptr_cast<Stored>(present);
  if (!archive.reading() && present && !part)
    return archive.fail(key, translated("a part of a frame of a kind that can't be stored"));
  bool const isThere = archive.optionalObject(key, bool(part), [&](Archive& object) { describe(object, *part); });
  if (archive.reading() && archive.ok()) take(isThere ? _ptr_t<Part>(part) : nullptr);
}

template <class Part>
void describeRounding(Archive& archive, Part& part) {
  double rounding = part.GetCornerRounding();
  archive.number("rounding", rounding, 0, 100, 0);
  part.SetCornerRounding(rounding);
}

template <class Part>
void describeGap(Archive& archive, Part& part) {
  double gap = part.GetGap();
  archive.number("gap", gap, -mostPt, mostPt, 0);
  part.SetGap(gap);
}

template <class Part>
void describeFill(Archive& archive, Part& part) {
  auto symbol = part.GetFillSymbol();
  describeOptionalSymbol(archive, "symbol", symbol);
  part.SetFillSymbol(symbol);
}

void describeBorder(Archive& archive, SymbolBorder& border) {
  auto symbol = border.GetLineSymbol();
  describeOptionalSymbol(archive, "symbol", symbol);
  border.SetLineSymbol(symbol);
  describeGap(archive, border);
  describeRounding(archive, border);
}

void describeBackground(Archive& archive, SymbolBackground& background) {
  describeFill(archive, background);
  describeGap(archive, background);
  describeRounding(archive, background);
}

void describeShadow(Archive& archive, SymbolShadow& shadow) {
  describeFill(archive, shadow);
  double offset[] = {shadow.GetXOffset(), shadow.GetYOffset()};
  archive.numbers("offset", offset, 2, -mostPt, mostPt);
  shadow.SetOffset(offset[0], offset[1]);
  describeRounding(archive, shadow);
}

void describeForm(Archive& archive, Page& page) {
  FormInfo info;
  Paper::GetFormInfo(page.GetFormID(), info);
  QString key = info.key;
  archive.text("form", key);
  if (!archive.reading() || !archive.ok()) return;
  for (PageFormID form = 0; Paper::GetFormInfo(form, info); ++form)
    if (info.key == key) return page.SetFormID(form);
  archive.fail("form", translated("“%1” is not a paper form; “A4” and “Custom” are").arg(key.left(64)));
}

void describeCustomSize(Archive& archive, Page& page) {
  double width, height;
  page.QuerySize(width, height);
  archive.number("width", width, minPageSideCm, maxPageSideCm);
  archive.number("height", height, minPageSideCm, maxPageSideCm);
  if (archive.reading() && archive.ok()) page.setCustomSize(width, height);
}

}  // namespace

void describeFrame(Archive& archive, IFrameProperties& frame) {
  describePart<SymbolBorder, IBorder>(
      archive, "border", frame.GetBorder(), [&](auto const& part) { frame.SetBorder(part); }, describeBorder);
  describePart<SymbolBackground, IBackground>(
      archive, "background", frame.GetBackground(), [&](auto const& part) { frame.SetBackGround(part); },
      describeBackground);
  describePart<SymbolShadow, IShadow>(
      archive, "shadow", frame.GetShadow(), [&](auto const& part) { frame.SetShadow(part); }, describeShadow);
}

void describePage(Archive& archive, Page& page) {
  describeForm(archive, page);
  short const orientation = page.GetOrientation();
  page.SetOrientation(1);  // the size is stored as the form lists it
  if (archive.ok() && page.GetFormID() == customPageForm) describeCustomSize(archive, page);
  page.SetOrientation(orientation);
  int lies = orientation;
  archive.choice("orientation", lies, {{1, "portrait"}, {2, "landscape"}}, 1);
  page.SetOrientation(static_cast<short>(lies));
  describeFrame(archive, page);
}

}  // namespace SysCarto
