#include "SymbolChooser.h"

#include "OwnLibrary.h"
#include "PropertySheet.h"
#include "StyleBrowser.h"
#include "SymbolPreview.h"

#include "host/SysDisplay/SymbolFields.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QJsonDocument>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace SysAdapterUI {

using SysDisplay::Symbol;
using SysDisplay::SymbolType;
using SysUtility::_ptr_t;
using SysUtility::Fields;

namespace {

constexpr int previewHeightPx = 90;
constexpr double pointsPerInch = 72;

orvSymbologyStyleClass classOf(Symbol const& symbol) {
  switch (symbol.GetType()) {
    case SymbolType::Marker: return MarkerStyle;
    case SymbolType::Line: return LineStyle;
    case SymbolType::Fill: return FillStyle;
    default: return TextStyle;
  }
}

QJsonObject jsonOf(Symbol const& symbol) {
  return QJsonDocument::fromJson(SysDisplay::exportSymbol(symbol).toUtf8()).object();
}

}  // namespace

class SymbolChooser::Preview final : public QWidget {
public:
  Preview(QColor const& background, QWidget* parent) : QWidget(parent), grounds_{Qt::white, QColor(0x90, 0x90, 0x90)} {
    if (!grounds_.contains(background)) grounds_ << background;
    setFixedHeight(previewHeightPx);
    setAccessibleName(SymbolChooser::tr("The symbol at its size on paper"));
  }

  void show(_ptr_t<Symbol> const& symbol) {
    symbol_ = symbol;
    update();
  }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    double const part = double(width()) / grounds_.size();
    for (int i = 0; i < grounds_.size(); ++i) {
      QRectF const area(i * part, 0, part, height());
      painter.fillRect(area, grounds_[i]);
      painter.save();
      painter.translate(area.topLeft());
      if (symbol_)
        drawSymbolPreview(painter, QRectF(QPointF(), area.size()).adjusted(10, 10, -10, -10), *symbol_,
                          logicalDpiX() / pointsPerInch, false);
      painter.restore();
    }
  }

private:
  QVector<QColor> grounds_;
  _ptr_t<Symbol> symbol_;
};

SymbolChooser::SymbolChooser(_ptr_t<Symbol> const& symbol, QStringList kinds, SymbolUse use, QColor const& background,
                             QWidget* parent)
    : QDialog(parent),
      symbol_(symbol->Clone()),
      kinds_(std::move(kinds)),
      use_(use),
      background_(background),
      browser_(new StyleBrowser(this)),
      sheet_(new PropertySheet(this)),
      preview_(new Preview(background, this)) {
  build();
  browse();
  sheet_->show(this);
  preview_->show(symbol_);
  connect(browser_, &StyleBrowser::chosen, this, &SymbolChooser::takeFromLibrary);
  connect(browser_, &StyleBrowser::accepted, this, &QDialog::accept);
  connect(sheet_, &PropertySheet::symbolWanted, this, &SymbolChooser::chooseInner);
}

SymbolChooser::~SymbolChooser() { sheet_->show(nullptr); }

void SymbolChooser::browse() {
  bool const isArrow = use_ == SymbolUse::NorthArrow;
  browser_->show(isArrow ? NorthArrowStyle : classOf(*symbol_), symbol_, isArrow);
}

void SymbolChooser::build() {
  setWindowTitle(tr("Symbol"));
  sheet_->setTitle(tr("Symbol"));
  auto* const right = new QWidget(this);
  auto* const column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(preview_);
  column->addWidget(sheet_, 1);
  auto* const halves = new QSplitter(this);
  halves->addWidget(browser_);
  halves->addWidget(right);
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);

  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  auto* const save = buttons->addButton(tr("Save to Library…"), QDialogButtonBox::ActionRole);
  save->setObjectName(QStringLiteral("pushButton_SaveToLibrary"));
  for (auto* const button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(false);
  connect(save, &QPushButton::clicked, this, &SymbolChooser::saveToLibrary);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(halves, 1);
  layout->addWidget(buttons);
  resize(QSize(980, 640).boundedTo(0.9 * screen()->availableSize()));
}

QVector<SysUtility::SheetField> SymbolChooser::fields() {
  SysUtility::FieldSheet sheet;
  SysDisplay::listOwnSymbol(sheet, symbol_, kinds_);
  return sheet.fields();
}

QString SymbolChooser::set(QStringList const& path, SysUtility::NewValue const& value, QString const&) {
  QJsonObject const json = jsonOf(*symbol_);
  if (path == QStringList(QStringLiteral("type"))) {
    auto const other =
        SysDisplay::symbolOf(SysDisplay::layeredOrNot(json, value(json.value(QLatin1String("type"))).toString()));
    if (other) {
      showSymbol(other);
      return QString();
    }
  }
  _ptr_t<Symbol> read;
  auto const change =
      SysUtility::changeField([&](Fields& fields) { SysDisplay::listOwnSymbol(fields, symbol_, kinds_); },
                              [&](Fields& fields) {
                                read = nullptr;
                                SysDisplay::listOwnSymbol(fields, read, kinds_);
                              },
                              path, value, nullptr);
  if (!change.isChange) return change.problem;
  showSymbol(read);
  return QString();
}

void SymbolChooser::showSymbol(_ptr_t<Symbol> const& symbol) {
  symbol_ = symbol;
  preview_->show(symbol_);
}

// A symbol of a kind that can't stand here is shown in the library all the same.
void SymbolChooser::takeFromLibrary() {
  auto const chosen = browser_->current();
  if (!chosen || !kinds_.contains(jsonOf(*chosen).value(QLatin1String("type")).toString())) return;
  showSymbol(chosen->Clone());
  sheet_->refresh();
}

void SymbolChooser::saveToLibrary() {
  QString const name =
      QInputDialog::getText(this, tr("Save to Library"), tr("The name under which the symbol is found:")).trimmed();
  if (name.isEmpty()) return;
  QString const problem = saveToOwnLibrary(name, symbol_);
  if (!problem.isEmpty()) {
    QMessageBox box(QMessageBox::Critical, tr("Save to Library"), problem, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return;
  }
  QSignalBlocker const quiet(browser_);
  browse();
}

void SymbolChooser::chooseInner(QModelIndex const& index) { chooseSymbol(sheet_->model(), index, background_, this); }

namespace {

// The symbol of a surround that is a north arrow.
SymbolUse useOf(PropertyModel const& model, QStringList const& path) {
  QModelIndex const kind = model.indexOf(path.mid(0, path.size() - 1) + QStringList(QStringLiteral("kind")));
  bool const isArrow = kind.isValid() && SysUtility::wholeValue(*model.row(kind).field) == QLatin1String("northArrow");
  return isArrow ? SymbolUse::NorthArrow : SymbolUse::Any;
}

}  // namespace

void chooseSymbol(PropertyModel& model, QModelIndex const& index, QColor const& background, QWidget* parent) {
  auto const row = model.row(index);
  auto const symbol = SysDisplay::symbolOf(SysUtility::wholeValue(*row.field).toObject());
  if (!symbol) return;
  QStringList kinds;
  for (SysUtility::Choice const& kind : row.field->fields.first().info.choices) kinds << QString::fromUtf8(kind.name);
  SymbolChooser dialog(symbol, kinds, useOf(model, row.path), background, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  QModelIndex const now = model.indexOf(row.path);
  if (now.isValid()) model.take(now, jsonOf(*dialog.symbol()), QString());
}

}  // namespace SysAdapterUI
