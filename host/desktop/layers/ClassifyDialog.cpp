#include "ClassifyDialog.h"

#include "BreakHistogram.h"

#include "host/SysAdapterUI/SymbolPreview.h"
#include "host/SysCarto/layers/ColorRamp.h"
#include "host/SysDisplay/SymbolVariation.h"
#include "host/SysUtility/NumberText.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

using SysCarto::ClassifySettings;
using SysCarto::ColorRamp;
using SysUtility::grouped;

namespace {

using Method = ClassifySettings::Method;

constexpr QSize stripPx(120, 14), swatchPx(32, 18);
constexpr int stripColors = 7, usualClasses = 5;
enum Column { SymbolColumn, FromColumn, ToColumn, LabelColumn, CountColumn, columns };
enum Look { Colors, Sizes };

QIcon stripOf(ColorRamp const& ramp, bool reversed, qreal ratio) {
  QPixmap picture(stripPx * ratio);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  auto const colors = ramp.colors(stripColors, reversed);
  double const width = double(stripPx.width()) / stripColors;
  for (int i = 0; i < stripColors; ++i) painter.fillRect(QRectF(i * width, 0, width + 1, stripPx.height()), colors[i]);
  painter.end();
  return picture;
}

QIcon swatchOf(SysDisplay::Symbol const& symbol, qreal ratio) {
  QPixmap picture(swatchPx * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  SysAdapterUI::drawSymbolPreview(painter, QRectF(QPointF(), swatchPx).adjusted(1, 1, -1, -1), symbol, 1, false);
  painter.end();
  return picture;
}

QTableWidgetItem* cell(QString const& text, bool isEditable) {
  auto* const item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | (isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags));
  return item;
}

template <class Widget>
Widget* named(Widget* widget, char const* name) {
  widget->setObjectName(QLatin1String(name));
  return widget;
}

}  // namespace

ClassifyDialog::ClassifyDialog(SysUtility::_ptr_t<SysCarto::VectorLayer> layer, QWidget* parent)
    : QDialog(parent), layer_(std::move(layer)) {
  setWindowTitle(tr("Classes of %1").arg(layer_->GetName()));
  build();
  auto const& now = layer_->renderer().settings();
  QStringList const fields = attributesOf(layer_->source()), numeric = numericAttributesOf(layer_->source());
  field_->addItems(fields);
  field_->setCurrentText(!now.field.isEmpty() ? now.field : numeric.isEmpty() ? fields.value(0) : numeric.first());
  bool const isNumber = numeric.contains(field_->currentText());
  bool const wasUnique = now.kind == SysCarto::RendererSettings::Kind::UniqueValues;
  method_->setCurrentIndex(static_cast<int>(wasUnique || !isNumber ? Method::UniqueValues : Method::NaturalBreaks));
  fillRamps();
  readField();
  beginWith(now);
  connect(field_, &QComboBox::currentTextChanged, this, &ClassifyDialog::readField);
  connect(method_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
    fillRamps();
    remake();
  });
  connect(ramp_, QOverload<int>::of(&QComboBox::activated), this, [this] { ramp_->setProperty("chosen", true); });
  connect(reversed_, &QCheckBox::toggled, this, [this] { fillRamps(); });
  for (auto* const box : {look_, ramp_})
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ClassifyDialog::remake);
  for (auto* const box : {reversed_, sorted_}) connect(box, &QCheckBox::toggled, this, &ClassifyDialog::remake);
  for (auto* const box : {from_, to_})
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ClassifyDialog::remake);
  connect(count_, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
    if (wanted().method == Method::OwnBreaks) method_->setCurrentIndex(static_cast<int>(Method::NaturalBreaks));
    remake();
  });
  connect(histogram_, &BreakHistogram::moved, this, &ClassifyDialog::moveBound);
  connect(table_, &QTableWidget::itemChanged, this, &ClassifyDialog::takeCell);
}

// The one that makes the bounds that there are.
ClassifySettings::Method ClassifyDialog::methodOf(SysCarto::RendererSettings const& now) const {
  ClassifySettings wanted;
  wanted.classes = static_cast<int>(now.classes.size());
  for (Method const method :
       {Method::NaturalBreaks, Method::Quantiles, Method::EqualIntervals, Method::Pretty, Method::StandardDeviation}) {
    wanted.method = method;
    auto const& made = classify(values_, now, wanted).renderer.classes;
    bool const isSame = std::equal(made.begin(), made.end(), now.classes.begin(), now.classes.end(),
                                   [](auto const& a, auto const& b) { return a.minimum == b.minimum; });
    if (isSame) return method;
  }
  return Method::OwnBreaks;
}

// The bounds that there are, and the ramp or the sizes that made their symbols.
void ClassifyDialog::beginWith(SysCarto::RendererSettings const& now) {
  using Kind = SysCarto::RendererSettings::Kind;
  auto const& classes = now.classes;
  if (classes.size() < 2 || (now.kind != Kind::Graduated && now.kind != Kind::UniqueValues)) return;
  for (size_t i = 1; i < classes.size() && now.kind == Kind::Graduated; ++i) breaks_.push_back(classes[i].minimum);
  if (!breaks_.empty() && values_.isNumeric) method_->setCurrentIndex(static_cast<int>(methodOf(now)));
  QVector<QColor> colors;
  for (auto const& one : classes) colors << SysDisplay::colorOf(*one.symbol);
  for (bool const reversed : {true, false})
    for (ColorRamp const& ramp : ColorRamp::all())
      if (ramp.colors(colors.size(), reversed) == colors) {
        reversed_->setChecked(reversed);
        ramp_->setProperty("chosen", true);
        fillRamps();
        ramp_->setCurrentText(QLatin1String(ramp.name));
      }
  double const from = SysDisplay::sizeOf(*classes.front().symbol), to = SysDisplay::sizeOf(*classes.back().symbol);
  if (from != to) {
    look_->setCurrentIndex(Sizes);
    from_->setValue(from);
    to_->setValue(to);
  }
  count_->setValue(static_cast<int>(classes.size()));
  remake();
}

void ClassifyDialog::build() {
  field_ = named(new QComboBox(this), "comboBox_Field");
  method_ = named(new QComboBox(this), "comboBox_Method");
  method_->addItems({tr("Equal intervals"), tr("Quantiles"), tr("Natural breaks"), tr("Standard deviation"),
                     tr("Round numbers"), tr("Breaks of your own"), tr("A class for each value"),
                     tr("Markers in proportion")});
  count_ = named(new QSpinBox(this), "spinBox_Classes");
  count_->setRange(1, ClassifySettings::maxClasses);
  count_->setValue(usualClasses);
  look_ = named(new QComboBox(this), "comboBox_Look");
  look_->addItems({tr("Colours"), tr("Sizes")});
  ramp_ = named(new QComboBox(this), "comboBox_Ramp");
  ramp_->setIconSize(stripPx);
  reversed_ = named(new QCheckBox(tr("Reversed"), this), "checkBox_Reversed");
  sorted_ = named(new QCheckBox(tr("Sorted"), this), "checkBox_Sorted");
  sorted_->setToolTip(tr("Values in their own order, and not the most frequent first"));
  auto const now = ClassifySettings();
  from_ = named(new QDoubleSpinBox(this), "doubleSpinBox_From");
  to_ = named(new QDoubleSpinBox(this), "doubleSpinBox_To");
  for (auto const& [box, value] : {std::pair(from_, now.from), std::pair(to_, now.to)}) {
    box->setRange(0.1, 1000);
    box->setValue(value);
    box->setSuffix(tr(" pt"));
  }
  histogram_ = new BreakHistogram(this);
  table_ = named(new QTableWidget(0, columns, this), "tableWidget_Classes");
  table_->setHorizontalHeaderLabels({tr("Symbol"), tr("From"), tr("To"), tr("Label"), tr("Count")});
  table_->horizontalHeader()->setSectionResizeMode(LabelColumn, QHeaderView::Stretch);
  table_->verticalHeader()->hide();
  table_->setIconSize(swatchPx);
  told_ = named(new QLabel(this), "label_Told");
  told_->setWordWrap(true);
  told_->setTextFormat(Qt::PlainText);
  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const form = new QFormLayout;
  auto const together = [](std::initializer_list<QWidget*> widgets) {
    auto* const row = new QHBoxLayout;
    for (QWidget* const widget : widgets) row->addWidget(widget);
    row->addStretch();
    return row;
  };
  form->addRow(tr("Field"), field_);
  form->addRow(tr("Method"), method_);
  form->addRow(tr("Classes"), together({count_, sorted_}));
  form->addRow(tr("Symbols by"), look_);
  form->addRow(tr("Colours"), together({ramp_, reversed_}));
  form->addRow(tr("Sizes"), together({from_, to_}));
  auto* const box = new QVBoxLayout(this);
  box->addLayout(form);
  box->addWidget(histogram_);
  box->addWidget(table_, 1);
  box->addWidget(told_);
  box->addWidget(buttons_);
  resize(520, 640);
}

bool ClassifyDialog::isUnique() const { return method_->currentIndex() == static_cast<int>(Method::UniqueValues); }

// Those for numbers first, or those for kinds.
void ClassifyDialog::fillRamps() {
  using SysCarto::RampKind;
  bool const wasChosen = ramp_->property("chosen").toBool();
  auto const usual = ColorRamp::usual(isUnique() ? RampKind::Qualitative : RampKind::Sequential);
  QString const chosen = wasChosen ? ramp_->currentText() : QLatin1String(usual.name);
  QSignalBlocker const quiet(ramp_);
  ramp_->clear();
  for (bool const isFirst : {true, false})
    for (ColorRamp const& ramp : ColorRamp::all())
      if ((ramp.kind == RampKind::Qualitative) == (isUnique() == isFirst))
        ramp_->addItem(stripOf(ramp, reversed_->isChecked(), devicePixelRatioF()), QLatin1String(ramp.name));
  ramp_->setCurrentText(chosen);
}

void ClassifyDialog::readField() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  values_ = readValues(layer_->source(), field_->currentText());
  QApplication::restoreOverrideCursor();
  breaks_.clear();
  histogram_->setValues(values_.isNumeric ? SysCarto::sortedValues(values_.numbers).sorted : std::vector<double>());
  bool const mustBeUnique = !values_.isNumeric && values_.error.isEmpty();
  if (mustBeUnique && !isUnique()) return method_->setCurrentIndex(static_cast<int>(Method::UniqueValues));
  remake();
}

ClassifySettings ClassifyDialog::wanted() const {
  ClassifySettings wanted;
  wanted.field = field_->currentText();
  wanted.method = static_cast<Method>(method_->currentIndex());
  wanted.classes = isUnique() ? ClassifySettings::maxValues : count_->value();
  wanted.breaks = breaks_;
  wanted.ramp = ramp_->currentText();
  wanted.reversed = reversed_->isChecked();
  wanted.inOrder = sorted_->isChecked();
  wanted.sized = look_->currentIndex() == Sizes;
  wanted.from = from_->value();
  wanted.to = to_->value();
  return wanted;
}

void ClassifyDialog::remake() {
  bool const isOwn = wanted().method == Method::OwnBreaks;
  if (!isOwn) breaks_.clear();
  if (isOwn && breaks_.empty() && classes_.bounds.size() > 2)
    breaks_ = {classes_.bounds.begin() + 1, classes_.bounds.end() - 1};
  classes_ = classify(values_, layer_->renderer().settings(), wanted());
  showClasses();
}

void ClassifyDialog::showClasses() {
  isShowing_ = true;
  auto const& classes = classes_.renderer.classes;
  QVector<QColor> colors;
  for (auto const& one : classes) colors << SysDisplay::colorOf(*one.symbol);
  histogram_->setClasses(classes_.bounds, colors);
  histogram_->setVisible(!isUnique());
  bool const isProportional = wanted().method == Method::Proportional;
  bool const isSized = look_->currentIndex() == Sizes || isProportional;
  look_->setEnabled(!isProportional);
  for (QWidget* const widget : {static_cast<QWidget*>(ramp_), static_cast<QWidget*>(reversed_)})
    widget->setEnabled(!isSized);
  for (QWidget* const widget : {from_, to_}) widget->setEnabled(isSized);
  count_->setEnabled(!isUnique() && !isProportional);
  sorted_->setEnabled(isUnique());
  for (int const column : {FromColumn, ToColumn}) table_->setColumnHidden(column, classes_.bounds.empty());
  table_->setRowCount(static_cast<int>(classes.size()));
  for (int row = 0; row < table_->rowCount(); ++row) showRow(row);
  for (int const column : {SymbolColumn, FromColumn, ToColumn, CountColumn}) table_->resizeColumnToContents(column);
  QStringList told;
  if (!classes_.problem.isEmpty()) told << classes_.problem;
  if (classes_.problem.isEmpty() && classes_.missing > 0)
    told << tr("Features without a value, which are in no class: %1.").arg(grouped(classes_.missing));
  if (isUnique() && static_cast<int>(values_.texts.size()) > ClassifySettings::maxValues)
    told << tr("There are more than %1 values; the rarer ones are in no class.").arg(ClassifySettings::maxValues);
  told_->setText(told.join(QLatin1Char(' ')));
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(classes_.problem.isEmpty());
  isShowing_ = false;
}

void ClassifyDialog::showRow(int row) {
  auto const& one = classes_.renderer.classes[row];
  auto* const symbol = cell(QString(), false);
  symbol->setIcon(swatchOf(*one.symbol, devicePixelRatioF()));
  table_->setItem(row, SymbolColumn, symbol);
  if (!classes_.bounds.empty()) {
    table_->setItem(row, FromColumn, cell(SysCarto::boundText(classes_.bounds[row]), false));
    table_->setItem(row, ToColumn, cell(SysCarto::boundText(classes_.bounds[row + 1]), row + 1 < table_->rowCount()));
  }
  table_->setItem(row, LabelColumn, cell(one.label, true));
  auto* const count = cell(grouped(classes_.counts[row]), false);
  count->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  table_->setItem(row, CountColumn, count);
}

void ClassifyDialog::moveBound(int bound, double value) {
  breaks_.assign(classes_.bounds.begin() + 1, classes_.bounds.end() - 1);
  breaks_[bound - 1] = value;
  QSignalBlocker const quiet(method_);
  method_->setCurrentIndex(static_cast<int>(Method::OwnBreaks));
  remake();
}

// The end of a class is typed, or a label; what is no number between those beside it gives way to what was there.
void ClassifyDialog::takeCell(QTableWidgetItem* item) {
  if (isShowing_) return;
  int const row = item->row();
  if (item->column() == LabelColumn) {
    classes_.renderer.classes[row].label = item->text();
    return;
  }
  bool ok = false;
  double const value = locale().toDouble(item->text(), &ok);
  auto const& bounds = classes_.bounds;  // none where each value has a class
  bool const isBound = item->column() == ToColumn && static_cast<size_t>(row) + 2 < bounds.size();
  if (ok && isBound && value > bounds[row] && value < bounds[row + 2]) return moveBound(row + 1, value);
  showClasses();
}
