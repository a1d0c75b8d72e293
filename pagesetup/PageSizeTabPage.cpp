#include "PageSizeTabPage.h"

#include "ui_PageSizeTabPage.h"

#include <QRegExpValidator>

using SysCarto::ActiveView;
using SysCarto::Element;
using SysCarto::FormInfo;
using SysCarto::PageLayout;
using SysCarto::Paper;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

constexpr short portrait = 1, landscape = 2;

// 0 to 400 with one or two decimals; less, while it is being typed.
constexpr char sizePattern[] = R"(^(400|[1-3]{0,1}[0-9]{0,2})(\.\d{1,2})$)";

// Outlives the dialogs: the next one shows the option as it was left.
bool isScalingElements = false;

void setSizeValidator(QLineEdit* edit, QObject* owner) {
  edit->setValidator(new QRegExpValidator(QRegExp(QLatin1String(sizePattern), Qt::CaseSensitive), owner));
}

QString sizeText(double cm) { return QString::number(cm, 'g', 6); }

void rescaleRectangle(Element& frame, double sx, double sy) {
  auto const rectangle = frame.GetGeometry()->GetEnvelope();
  rectangle->PutCoords(rectangle->GetXMin() * sx, rectangle->GetYMin() * sy, rectangle->GetXMax() * sx,
                       rectangle->GetYMax() * sy);
  frame.SetGeometry(rectangle);
}

void rescalePosition(Element& element, double sx, double sy) {
  auto const anchor = element.GetGeometry()->GetAnchorPoint();
  if (!anchor) return;
  double const x = anchor->GetX(), y = anchor->GetY();
  element.Move(x * sx - x, y * sy - y);
}

}  // namespace

PageSizeTabPage::PageSizeTabPage(_ptr_t<ActiveView> const& view, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::PageSizeTabPage>()),
      view_(view),
      page_(ptr_cast<PageLayout>(view)->GetPage()) {
  ui_->setupUi(this);
  showPage();
  connectWidgets();
}

PageSizeTabPage::~PageSizeTabPage() = default;

void PageSizeTabPage::showPage() {
  ui_->checkBox_ScaleMapElements->setChecked(isScalingElements);
  isPortrait_ = page_->GetOrientation() == portrait;
  ui_->radioButton_V->setChecked(isPortrait_);
  ui_->radioButton_H->setChecked(!isPortrait_);

  // An entry's index is the form's number, so that a form without information keeps its place.
  for (int id = 0; id < Paper::GetFormCount(); ++id) {
    FormInfo form;
    Paper::GetFormInfo(id, form);
    ui_->comboBox_PaperType->addItem(form.displayName);
  }

  setSizeValidator(ui_->lineEdit_PageWidth, this);
  setSizeValidator(ui_->lineEdit_PageHeight, this);
  ui_->comboBox_PaperType->setCurrentIndex(page_->GetFormID());
  double widthCm, heightCm;
  page_->QuerySize(widthCm, heightCm);
  showSize(widthCm, heightCm);
  enableSize(page_->GetFormID() == SysCarto::customPageForm);
}

void PageSizeTabPage::showSize(double widthCm, double heightCm) {
  ui_->lineEdit_PageWidth->setText(sizeText(widthCm));
  ui_->lineEdit_PageHeight->setText(sizeText(heightCm));
}

void PageSizeTabPage::enableSize(bool on) {
  ui_->lineEdit_PageWidth->setEnabled(on);
  ui_->lineEdit_PageHeight->setEnabled(on);
}

void PageSizeTabPage::connectWidgets() {
  connect(ui_->comboBox_PaperType, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &PageSizeTabPage::slotPaperTypeChanged);
  connect(ui_->checkBox_ScaleMapElements, &QCheckBox::stateChanged, this,
          &PageSizeTabPage::slotCheckBoxScaleMapElemStateChanged);
  connect(ui_->lineEdit_PageWidth, &QLineEdit::textEdited, this, &PageSizeTabPage::slotLineEditPageWidthTextEdited);
  connect(ui_->lineEdit_PageHeight, &QLineEdit::textEdited, this, &PageSizeTabPage::slotLineEditPageHeightTextEdited);
  connect(ui_->radioButton_H, &QRadioButton::pressed, this, &PageSizeTabPage::slotOrientationH);
  connect(ui_->radioButton_V, &QRadioButton::pressed, this, &PageSizeTabPage::slotOrientationV);
}

void PageSizeTabPage::slotPaperTypeChanged(int index) {
  bool const isCustom = index == SysCarto::customPageForm;
  FormInfo form;
  if (!isCustom && Paper::GetFormInfo(index, form)) showSize(form.width, form.height);
  enableSize(isCustom);
  emit ValueChanged();
}

void PageSizeTabPage::slotCheckBoxScaleMapElemStateChanged(int state) {
  isScalingElements = state == Qt::Checked;
  emit ValueChanged();
}

void PageSizeTabPage::slotLineEditPageWidthTextEdited(const QString&) { emit ValueChanged(); }

void PageSizeTabPage::slotLineEditPageHeightTextEdited(const QString&) { emit ValueChanged(); }

void PageSizeTabPage::slotOrientationH() { setPortrait(false); }

void PageSizeTabPage::slotOrientationV() { setPortrait(true); }

void PageSizeTabPage::setPortrait(bool isPortrait) {
  if (isPortrait_ != isPortrait) {
    QString const width = ui_->lineEdit_PageWidth->text();
    ui_->lineEdit_PageWidth->setText(ui_->lineEdit_PageHeight->text());
    ui_->lineEdit_PageHeight->setText(width);
    isPortrait_ = isPortrait;
  }
  emit ValueChanged();
}

void PageSizeTabPage::ApplyToPage() {
  auto const old = page_->GetPageEnvelope();
  int const form = ui_->comboBox_PaperType->currentIndex();
  if (form < 0 || form >= Paper::GetFormCount()) return;
  if (form == SysCarto::customPageForm) setCustomSize();
  page_->SetFormID(form);
  page_->SetOrientation(ui_->radioButton_H->isChecked() ? landscape : portrait);
  if (isScalingElements) rescaleElements(old->GetWidth(), old->GetHeight());
}

// The custom size is the portrait one, whichever way the fields show it.
void PageSizeTabPage::setCustomSize() const {
  double const widthCm = ui_->lineEdit_PageWidth->text().toDouble();
  double const heightCm = ui_->lineEdit_PageHeight->text().toDouble();
  if (ui_->radioButton_H->isChecked())
    Paper::SetCustomSize(heightCm, widthCm);
  else
    Paper::SetCustomSize(widthCm, heightCm);
}

void PageSizeTabPage::rescaleElements(double oldWidthCm, double oldHeightCm) const {
  IElementContainer* const elements = view_->GetGraphicsContainer();
  auto const page = page_->GetPageEnvelope();
  // A page without an extent says nothing about where things were on it, or should be.
  if (!elements || !(oldWidthCm * oldHeightCm > 0.0) || !(page->GetWidth() * page->GetHeight() > 0.0)) return;
  double const sx = page->GetWidth() / oldWidthCm, sy = page->GetHeight() / oldHeightCm;
  for (auto const& element : elements->GetElements())
    if (element->GetType() == SysCarto::ElementType::DataFrame)
      rescaleRectangle(*element, sx, sy);
    else
      rescalePosition(*element, sx, sy);
}
