#include <SysAdapterUI/FramePropertyWidget.h>

#include "ui_FramePropertyWidget.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QEvent>
#include <QPainter>
#include <QVector>

#include <algorithm>
#include <functional>

namespace SysAdapterUI {

using SysCarto::SymbolBackground;
using SysCarto::SymbolBorder;
using SysCarto::SymbolShadow;
using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::SimpleFillStyle;
using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineStyle;
using SysDisplay::SimpleLineSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

template <class Style>
struct StyleName {
  Style style;
  char const* text;
};

// clang-format off
constexpr StyleName<SimpleLineStyle> lineStyles[] = {
    {SimpleLineStyle::Solid,      QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Solid")},
    {SimpleLineStyle::Dash,       QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Dashed")},
    {SimpleLineStyle::Dot,        QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Dotted")},
    {SimpleLineStyle::DashDot,    QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Dash and dot")},
    {SimpleLineStyle::DashDotDot, QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Dash and two dots")},
    {SimpleLineStyle::Null,       QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "No line")},
};
constexpr StyleName<SimpleFillStyle> fillStyles[] = {
    {SimpleFillStyle::Solid,            QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Plain colour")},
    {SimpleFillStyle::Horizontal,       QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Horizontal lines")},
    {SimpleFillStyle::Vertical,         QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Vertical lines")},
    {SimpleFillStyle::BackwardDiagonal, QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Lines rising to the right")},
    {SimpleFillStyle::ForwardDiagonal,  QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Lines rising to the left")},
    {SimpleFillStyle::Cross,            QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Grid")},
    {SimpleFillStyle::DiagonalCross,    QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "Diagonal grid")},
    {SimpleFillStyle::Null,             QT_TRANSLATE_NOOP("SysAdapterUI::FramePropertyWidget", "No fill")},
};
// clang-format on

constexpr double sampleLineWidthPt = 1.5;

QPixmap drawnSample(QSize const& size, std::function<void(QPainter&)> const& draw) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  return pixmap;
}

QPixmap sample(SimpleLineStyle style, QSize const& size, QColor const& color) {
  SimpleLineSymbol symbol;
  symbol.SetStyle(style);
  symbol.SetColor(color);
  symbol.SetWidth(sampleLineWidthPt);
  QPainterPath line({2.0, size.height() / 2.0});
  line.lineTo(size.width() - 2.0, size.height() / 2.0);
  return drawnSample(size, [&](QPainter& painter) { symbol.Draw(painter, line); });
}

QPixmap sample(SimpleFillStyle style, QSize const& size, QColor const& color) {
  SimpleFillSymbol symbol;
  symbol.SetStyle(style);
  symbol.SetColor(color);
  QPainterPath area;
  area.addRect(QRectF(QPointF(0, 0), size).adjusted(1, 1, -1, -1));
  return drawnSample(size, [&](QPainter& painter) { symbol.Draw(painter, area); });
}

// A part to work on: a copy of the one that is there, or a new one for the case that it is wanted later.
template <class Part>
_ptr_t<Part> workingCopy(_ptr_t<Part> const& part) {
  return part ? part->Clone() : make<Part>();
}

// A part without a symbol draws nothing; an invisible symbol says the same and can be edited.
_ptr_t<LineSymbol> symbolOf(SymbolBorder& border) {
  if (!border.GetLineSymbol()) {
    auto const none = make<SimpleLineSymbol>();
    none->SetStyle(SimpleLineStyle::Null);
    border.SetLineSymbol(none);
  }
  return border.GetLineSymbol();
}

template <class FilledPart>
_ptr_t<FillSymbol> symbolOf(FilledPart& part) {
  if (!part.GetFillSymbol()) {
    auto const none = make<SimpleFillSymbol>();
    none->SetStyle(SimpleFillStyle::Null);
    part.SetFillSymbol(none);
  }
  return part.GetFillSymbol();
}

}  // namespace

struct FramePropertyWidget::Private {
  Private(FramePropertyWidget* widget, _ptr_t<SymbolBorder> const& border, _ptr_t<SymbolBackground> const& background,
          _ptr_t<SymbolShadow> const& shadow)
      : q(widget), border(workingCopy(border)), background(workingCopy(background)), shadow(workingCopy(shadow)) {}

  void bindBorder();
  void bindBackground();
  void bindShadow();

  void bindGroup(QGroupBox* group, bool isThere);
  void bindNumber(QDoubleSpinBox* box, double value, std::function<void(double)> const& set);
  template <class Part>
  void bindRounding(QDoubleSpinBox* box, Part& part);
  template <class Symbol>
  void bindColor(ColorButton* button, _ptr_t<Symbol> const& symbol);
  template <class Simple, class Symbol, class Style, std::size_t count>
  void bindStyle(QComboBox* box, _ptr_t<Symbol> const& symbol, StyleName<Style> const (&styles)[count]);

  void alignColumns();
  void drawSamples();
  void showPreview();
  void changed();

  FramePropertyWidget* q;
  Ui::FramePropertyWidget ui;
  // Always there; the check mark of its group says whether a part counts.
  _ptr_t<SymbolBorder> border;
  _ptr_t<SymbolBackground> background;
  _ptr_t<SymbolShadow> shadow;
};

FramePropertyWidget::FramePropertyWidget(_ptr_t<SymbolBorder> const& border, _ptr_t<SymbolBackground> const& background,
                                         _ptr_t<SymbolShadow> const& shadow, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>(this, border, background, shadow)) {
  d->ui.setupUi(this);
  d->bindGroup(d->ui.groupBox_Border, static_cast<bool>(border));
  d->bindGroup(d->ui.groupBox_Background, static_cast<bool>(background));
  d->bindGroup(d->ui.groupBox_Shadow, static_cast<bool>(shadow));
  d->bindBorder();
  d->bindBackground();
  d->bindShadow();
  d->alignColumns();
  d->drawSamples();
  d->showPreview();
}

FramePropertyWidget::~FramePropertyWidget() = default;

_ptr_t<SymbolBorder> FramePropertyWidget::GetBorder() const {
  return d->ui.groupBox_Border->isChecked() ? d->border : nullptr;
}
_ptr_t<SymbolBackground> FramePropertyWidget::GetBackground() const {
  return d->ui.groupBox_Background->isChecked() ? d->background : nullptr;
}
_ptr_t<SymbolShadow> FramePropertyWidget::GetShadow() const {
  return d->ui.groupBox_Shadow->isChecked() ? d->shadow : nullptr;
}

void FramePropertyWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    d->alignColumns();
    d->drawSamples();
  }
}

void FramePropertyWidget::Private::bindBorder() {
  auto const line = symbolOf(*border);
  bindStyle<SimpleLineSymbol>(ui.comboBox_BorderStyle, line, lineStyles);
  bindColor(ui.colorButton_Border, line);
  bindNumber(ui.spinBox_BorderWidth, line->GetWidth(), [line](double points) { line->SetWidth(points); });
  bindNumber(ui.spinBox_BorderGap, border->GetGap(), [this](double points) { border->SetGap(points); });
  bindRounding(ui.spinBox_BorderRounding, *border);
}

void FramePropertyWidget::Private::bindBackground() {
  auto const fill = symbolOf(*background);
  bindStyle<SimpleFillSymbol>(ui.comboBox_BackgroundStyle, fill, fillStyles);
  bindColor(ui.colorButton_Background, fill);
  bindNumber(ui.spinBox_BackgroundGap, background->GetGap(), [this](double points) { background->SetGap(points); });
  bindRounding(ui.spinBox_BackgroundRounding, *background);
}

void FramePropertyWidget::Private::bindShadow() {
  auto const fill = symbolOf(*shadow);
  bindStyle<SimpleFillSymbol>(ui.comboBox_ShadowStyle, fill, fillStyles);
  bindColor(ui.colorButton_Shadow, fill);
  bindNumber(ui.spinBox_ShadowX, shadow->GetXOffset(),
             [this](double points) { shadow->SetOffset(points, shadow->GetYOffset()); });
  bindNumber(ui.spinBox_ShadowY, shadow->GetYOffset(),
             [this](double points) { shadow->SetOffset(shadow->GetXOffset(), points); });
  bindRounding(ui.spinBox_ShadowRounding, *shadow);
}

void FramePropertyWidget::Private::bindGroup(QGroupBox* group, bool isThere) {
  group->setChecked(isThere);
  connect(group, &QGroupBox::toggled, q, [this] { changed(); });
}

void FramePropertyWidget::Private::bindNumber(QDoubleSpinBox* box, double value,
                                              std::function<void(double)> const& set) {
  box->setValue(value);
  connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), q, [this, set](double edited) {
    set(edited);
    changed();
  });
}

template <class Part>
void FramePropertyWidget::Private::bindRounding(QDoubleSpinBox* box, Part& part) {
  bindNumber(box, part.GetCornerRounding(), [&part](double percent) { part.SetCornerRounding(percent); });
}

template <class Symbol>
void FramePropertyWidget::Private::bindColor(ColorButton* button, _ptr_t<Symbol> const& symbol) {
  button->setColor(symbol->GetColor());
  connect(button, &ColorButton::colorChosen, q, [this, symbol](QColor const& color) {
    symbol->SetColor(color);
    changed();
  });
}

// A symbol of another kind keeps its style.
template <class Simple, class Symbol, class Style, std::size_t count>
void FramePropertyWidget::Private::bindStyle(QComboBox* box, _ptr_t<Symbol> const& symbol,
                                             StyleName<Style> const (&styles)[count]) {
  for (auto const& [style, text] : styles) box->addItem(tr(text), static_cast<int>(style));
  auto const simple = ptr_cast<Simple>(symbol);
  box->setEnabled(static_cast<bool>(simple));
  box->setCurrentIndex(simple ? box->findData(static_cast<int>(simple->GetStyle())) : -1);
  connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), q, [this, box, simple](int index) {
    simple->SetStyle(static_cast<Style>(box->itemData(index).toInt()));
    changed();
  });
}

// The groups have grids of their own; columns of one width make them look like one.
void FramePropertyWidget::Private::alignColumns() {
  QGridLayout* const grids[] = {ui.gridLayout_Border, ui.gridLayout_Background, ui.gridLayout_Shadow};
  QVector<int> widths(ui.gridLayout_Border->columnCount(), 0);
  for (QGridLayout* grid : grids)
    for (int i = 0; i < grid->count(); ++i) {
      int row, column, rowSpan, columnSpan;
      grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
      if (columnSpan == 1) widths[column] = std::max(widths[column], grid->itemAt(i)->sizeHint().width());
    }
  for (QGridLayout* grid : grids)
    for (int column = 0; column < widths.size(); ++column) grid->setColumnMinimumWidth(column, widths[column]);
}

void FramePropertyWidget::Private::drawSamples() {
  int const height = q->fontMetrics().height();
  QSize const size(3 * height, height);
  QColor const color = q->palette().color(QPalette::Text);
  for (QComboBox* box : {ui.comboBox_BorderStyle, ui.comboBox_BackgroundStyle, ui.comboBox_ShadowStyle}) {
    bool const isLine = box == ui.comboBox_BorderStyle;
    box->setIconSize(size);
    for (int i = 0; i < box->count(); ++i) {
      int const style = box->itemData(i).toInt();
      box->setItemIcon(i, isLine ? sample(static_cast<SimpleLineStyle>(style), size, color)
                                 : sample(static_cast<SimpleFillStyle>(style), size, color));
    }
  }
}

void FramePropertyWidget::Private::showPreview() {
  ui.preview->setParts(q->GetShadow(), q->GetBackground(), q->GetBorder());
}

void FramePropertyWidget::Private::changed() {
  showPreview();
  emit q->ValueChanged();
}

}  // namespace SysAdapterUI
