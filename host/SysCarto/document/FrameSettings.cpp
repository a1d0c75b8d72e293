#include "FrameSettings.h"

#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/layout/PageLimits.h"
#include "host/SysDisplay/SymbolFields.h"

#include <utility>

namespace SysCarto {

using SysDisplay::listOptionalSymbol;
using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Field;
using SysUtility::Fields;
using SysUtility::NumbersKind;
using SysUtility::ptr_cast;
using SysUtility::Unit;

namespace {

constexpr double maxPt = 1000;
constexpr SysUtility::Range distances{-maxPt, maxPt, Unit::Point};
constexpr SysUtility::Range pageSides{minPageSideCm, maxPageSideCm, Unit::Centimetre};
constexpr int maxGuides = 1000;
constexpr double usualMarginCm = 1;
constexpr short portrait = 1, landscape = 2;

constexpr Choice orientations[] = {{portrait, "portrait", QT_TRANSLATE_NOOP("Fields", "Portrait")},
                                   {landscape, "landscape", QT_TRANSLATE_NOOP("Fields", "Landscape")}};

void listGap(Fields& fields, double& gap) {
  fields.number({"gap", QT_TRANSLATE_NOOP("Fields", "Gap"),
                 QT_TRANSLATE_NOOP("Fields", "How far it stands outside the frame; inside where it is negative.")},
                gap, distances, 0.0);
}

void listRounding(Fields& fields, double& rounding) {
  fields.number(
      {"rounding", QT_TRANSLATE_NOOP("Fields", "Rounding"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "The radius of the corners, as a part of half the shorter side: 0 is square, 100 as round as they can be.")},
      rounding, {0, 100, Unit::Percent}, 0.0);
}

void listFill(Fields& fields, _ptr_t<SysDisplay::FillSymbol>& symbol) {
  listOptionalSymbol(fields,
                     {"symbol", QT_TRANSLATE_NOOP("Fields", "Fill"),
                      QT_TRANSLATE_NOOP("Fields", "How it is filled; without a symbol it is not drawn.")},
                     symbol);
}

// A part of a frame as the class that can be stored.
template <class Stored, class Settings, class Part>
void listPart(Fields& fields, Field const& field, _ptr_t<Part>& part) {
  auto const present = ptr_cast<Stored>(part);
  if (!fields.isReading() && part && !present)
    return fields.fail(
        field.key, QCoreApplication::translate("FrameSettings", "a part of a frame of a kind that can't be stored"));
  Settings settings = present && !fields.isReading() ? Settings::of(*present) : Settings();
  bool const isThere = fields.optionalObject(field, bool(present), [&](Fields& own) { settings.list(own); });
  if (!fields.isReading() || !fields.ok()) return;
  auto const made = isThere ? SysUtility::make<Stored>() : nullptr;
  if (made) settings.applyTo(*made);
  part = made;
}

// Margins of no width are none; those that are there without one begin with the usual width, to be seen.
void listMargins(Fields& fields, PageAids& aids) {
  auto const hasMargins = [&] { return aids.left > 0 || aids.right > 0 || aids.top > 0 || aids.bottom > 0; };
  auto const side = [&](Fields& own, Field const& field, double& margin) {
    own.number(field, margin, {0, maxPageSideCm, Unit::Centimetre}, 0.0);
  };
  bool const isThere = fields.optionalObject(
      {"margins", QT_TRANSLATE_NOOP("Fields", "Margins"),
       QT_TRANSLATE_NOOP("Fields",
                         "Lines along the edges of the page to which what is moved snaps; they are not printed. "
                         "Without any width they are 1 cm wide.")},
      hasMargins(), [&](Fields& own) {
        side(own, {"left", QT_TRANSLATE_NOOP("Fields", "Left"), QT_TRANSLATE_NOOP("Fields", "From the left edge.")},
             aids.left);
        side(own, {"right", QT_TRANSLATE_NOOP("Fields", "Right"), QT_TRANSLATE_NOOP("Fields", "From the right edge.")},
             aids.right);
        side(own, {"top", QT_TRANSLATE_NOOP("Fields", "Top"), QT_TRANSLATE_NOOP("Fields", "From the upper edge.")},
             aids.top);
        side(own,
             {"bottom", QT_TRANSLATE_NOOP("Fields", "Bottom"), QT_TRANSLATE_NOOP("Fields", "From the lower edge.")},
             aids.bottom);
      });
  if (fields.isReading() && (!isThere || !hasMargins()))
    aids.left = aids.right = aids.top = aids.bottom = isThere ? usualMarginCm : 0;
}

// The forms as choices; their texts are kept beside them.
struct PaperForms {
  PaperForms() {
    FormInfo info;
    for (PageFormID form = 0; Paper::GetFormInfo(form, info); ++form) keys << info.key.toUtf8();
    for (int form = 0; form < keys.size(); ++form)
      choices << Choice{form, keys[form].constData(),
                        form == customPageForm ? QT_TRANSLATE_NOOP("Fields", "Custom") : keys[form].constData()};
  }
  QVector<QByteArray> keys;
  QVector<Choice> choices;
};

}  // namespace

BorderSettings BorderSettings::of(SymbolBorder const& border) {
  return {border.GetLineSymbol(), border.GetGap(), border.GetCornerRounding()};
}

void BorderSettings::list(Fields& fields) {
  listOptionalSymbol(fields,
                     {"symbol", QT_TRANSLATE_NOOP("Fields", "Line"),
                      QT_TRANSLATE_NOOP("Fields", "How the border is drawn; without a symbol it is not.")},
                     symbol);
  listGap(fields, gap);
  listRounding(fields, rounding);
}

void BorderSettings::applyTo(SymbolBorder& border) const {
  border.SetLineSymbol(symbol);
  border.SetGap(gap);
  border.SetCornerRounding(rounding);
}

BackgroundSettings BackgroundSettings::of(SymbolBackground const& background) {
  return {background.GetFillSymbol(), background.GetGap(), background.GetCornerRounding()};
}

void BackgroundSettings::list(Fields& fields) {
  listFill(fields, symbol);
  listGap(fields, gap);
  listRounding(fields, rounding);
}

void BackgroundSettings::applyTo(SymbolBackground& background) const {
  background.SetFillSymbol(symbol);
  background.SetGap(gap);
  background.SetCornerRounding(rounding);
}

ShadowSettings ShadowSettings::of(SymbolShadow const& shadow) {
  return {shadow.GetFillSymbol(), {shadow.GetXOffset(), shadow.GetYOffset()}, shadow.GetCornerRounding()};
}

void ShadowSettings::list(Fields& fields) {
  listFill(fields, symbol);
  fields.numbers({"offset", QT_TRANSLATE_NOOP("Fields", "Offset"),
                  QT_TRANSLATE_NOOP("Fields", "How far the shadow lies to the right and upwards.")},
                 offset, NumbersKind::Offset, distances);
  listRounding(fields, rounding);
}

void ShadowSettings::applyTo(SymbolShadow& shadow) const {
  shadow.SetFillSymbol(symbol);
  shadow.SetOffset(offset[0], offset[1]);
  shadow.SetCornerRounding(rounding);
}

FrameSettings FrameSettings::of(IFrameProperties const& frame) {
  return {frame.GetBorder(), frame.GetBackground(), frame.GetShadow()};
}

void FrameSettings::list(Fields& fields) {
  listPart<SymbolBorder, BorderSettings>(
      fields, {"border", QT_TRANSLATE_NOOP("Fields", "Border"), QT_TRANSLATE_NOOP("Fields", "The line around it.")},
      border);
  listPart<SymbolBackground, BackgroundSettings>(
      fields,
      {"background", QT_TRANSLATE_NOOP("Fields", "Background"), QT_TRANSLATE_NOOP("Fields", "The area behind it.")},
      background);
  listPart<SymbolShadow, ShadowSettings>(
      fields,
      {"shadow", QT_TRANSLATE_NOOP("Fields", "Shadow"), QT_TRANSLATE_NOOP("Fields", "The shadow that it throws.")},
      shadow);
}

void FrameSettings::applyTo(IFrameProperties& frame) const {
  frame.SetBorder(border);
  frame.SetBackGround(background);
  frame.SetShadow(shadow);
}

PageAidsSettings PageAidsSettings::of(Page const& page) { return {PageHost::aids(page)}; }

void PageAidsSettings::list(Fields& fields) {
  listMargins(fields, aids);
  SysUtility::Range const onPage{-maxPageSideCm, 2 * maxPageSideCm, Unit::Centimetre};
  fields.numberList({"verticalGuides", QT_TRANSLATE_NOOP("Fields", "Vertical guides"),
                     QT_TRANSLATE_NOOP("Fields",
                                       "Lines from top to bottom that help to arrange, by their distance from "
                                       "the left edge of the page; they are not printed.")},
                    aids.verticalGuides, {0, maxGuides}, onPage);
  fields.numberList({"horizontalGuides", QT_TRANSLATE_NOOP("Fields", "Horizontal guides"),
                     QT_TRANSLATE_NOOP("Fields", "Lines from left to right, by their distance from the lower edge.")},
                    aids.horizontalGuides, {0, maxGuides}, onPage);
  fields.number(
      {"grid", QT_TRANSLATE_NOOP("Fields", "Grid"),
       QT_TRANSLATE_NOOP("Fields", "The distance of the lines of a grid to which what is moved snaps; 0 for none.")},
      aids.grid, {0, maxPageSideCm, Unit::Centimetre}, 0.0);
}

void PageAidsSettings::applyTo(Page& page) const { PageHost::setAids(page, aids); }

PageSettings PageSettings::of(Page const& page) {
  PageSettings settings;
  settings.form = page.GetFormID();
  settings.orientation = page.GetOrientation();
  page.QuerySize(settings.widthCm, settings.heightCm);
  if (settings.orientation == landscape) std::swap(settings.widthCm, settings.heightCm);
  settings.frame = FrameSettings::of(page);
  settings.aids = PageAidsSettings::of(page);
  return settings;
}

void PageSettings::list(Fields& fields) {
  static PaperForms const forms;
  fields.variant({"form", QT_TRANSLATE_NOOP("Fields", "Paper"),
                  QT_TRANSLATE_NOOP("Fields", "The form of the paper, as in “A4”, or “Custom” for a size of its own.")},
                 form, forms.choices, [&](int chosen) {
                   form = chosen;
                   if (chosen != customPageForm) return;
                   fields.number({"width", QT_TRANSLATE_NOOP("Fields", "Width"),
                                  QT_TRANSLATE_NOOP("Fields", "The width of the sheet when it stands upright.")},
                                 widthCm, pageSides);
                   fields.number({"height", QT_TRANSLATE_NOOP("Fields", "Height"),
                                  QT_TRANSLATE_NOOP("Fields", "The height of the sheet when it stands upright.")},
                                 heightCm, pageSides);
                 });
  fields.choice<short>(
      {"orientation", QT_TRANSLATE_NOOP("Fields", "Orientation"),
       QT_TRANSLATE_NOOP("Fields", "Whether the sheet stands upright or lies, which swaps its width and height.")},
      orientation, orientations, portrait);
  frame.list(fields);
  aids.list(fields);
}

void PageSettings::applyTo(Page& page) const {
  if (form == customPageForm)
    PageHost::setCustomSize(page, widthCm, heightCm);
  else
    page.SetFormID(form);
  page.SetOrientation(orientation);
  frame.applyTo(page);
  aids.applyTo(page);
}

}  // namespace SysCarto
