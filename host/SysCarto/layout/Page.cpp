#include "PageHost.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysUtility/ChangeMark.h"

#include <SysCarto/SymbolFrameParts.h>

#include <cmath>
#include <utility>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

constexpr short portrait = 1, landscape = 2;

PageFormID formOf(QString const& key) {
  FormInfo info;
  for (PageFormID id = 0; Paper::GetFormInfo(id, info); ++id)
    if (info.key == key) return id;
  return customPageForm;
}

}  // namespace

struct Page::Private {
  PageFormID form = customPageForm;
  double widthCm = 0, heightCm = 0;  // as the form is listed
  short orientation = portrait;
  _ptr_t<IBorder> border;
  _ptr_t<IBackground> background = SysUtility::make<SymbolBackground>();
  _ptr_t<IShadow> shadow;
  PageAids aids;
  SysUtility::ChangeMark change;

  void setForm(PageFormID id, double width, double height) {
    change.set(form, id);
    change.set(widthCm, width);
    change.set(heightCm, height);
  }
};

Page::Page() : d(std::make_unique<Private>()) { Page::SetFormID(formOf(QStringLiteral("A4"))); }
Page::~Page() = default;

int Page::GetFormID() const { return d->form; }

void Page::SetFormID(int id) {
  FormInfo info;
  if (Paper::GetFormInfo(id, info)) d->setForm(id, info.width, info.height);
}

void PageHost::setCustomSize(Page& page, double widthCm, double heightCm) {
  if (!std::isfinite(widthCm) || !std::isfinite(heightCm) || widthCm < 0 || heightCm < 0) return;
  page.d->setForm(customPageForm, widthCm, heightCm);
}

short Page::GetOrientation() const { return d->orientation; }
void Page::SetOrientation(short orientation) {
  if (orientation == portrait || orientation == landscape) d->change.set(d->orientation, orientation);
}

void Page::QuerySize(double& width, double& height) const {
  width = d->widthCm;
  height = d->heightCm;
  if (d->orientation == landscape) std::swap(width, height);
}

_ptr_t<Envelope> Page::GetPageEnvelope() const {
  double width, height;
  QuerySize(width, height);
  return SysUtility::make<Envelope>(0.0, 0.0, width, height);
}

_ptr_t<Paper> Page::GetPaper() const { return SysUtility::make<Paper>(); }

void Page::DrawBackground(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation) {
  if (d->background) d->background->Draw(painter, transformation, GetPageEnvelope());
}
void Page::DrawBorder(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation) {
  if (d->border) d->border->Draw(painter, transformation, GetPageEnvelope());
}

_ptr_t<IBorder> Page::GetBorder() const { return d->border; }
void Page::SetBorder(_ptr_t<IBorder> const& border) { d->change.set(d->border, border); }
_ptr_t<IBackground> Page::GetBackground() const { return d->background; }
void Page::SetBackGround(_ptr_t<IBackground> const& background) { d->change.set(d->background, background); }
_ptr_t<IShadow> Page::GetShadow() const { return d->shadow; }
void Page::SetShadow(_ptr_t<IShadow> shadow) { d->change.set(d->shadow, shadow); }

PageAids const& PageHost::aids(Page const& page) { return page.d->aids; }
void PageHost::setAids(Page& page, PageAids const& aids) { page.d->change.set(page.d->aids, aids); }

quint64 PageHost::lastChange(Page const& page) { return page.d->change.time(); }

}  // namespace SysCarto
