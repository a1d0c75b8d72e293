#include "PrintOptions.h"

#include "PagePrinter.h"

#include "host/SysAdapterUI/PropertySheet.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using SysAdapterUI::PropertyModel;

namespace {

constexpr QSize previewSize(640, 240);
constexpr int marginPx = 8, captionPx = 240, sheetHeightPx = 240;

}  // namespace

SheetsPreview::SheetsPreview(QImage page, QWidget* parent) : QWidget(parent), page_(std::move(page)) {
  setMinimumSize(previewSize);
}

void SheetsPreview::show(PosterPlan const& plan) {
  plan_ = plan;
  update();
}

// In centimetres of the page; of one sheet the paper, of several what they show.
void SheetsPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  bool const isOne = plan_.sheets() == 1;
  QRectF const page({0, 0}, plan_.pageCm);
  QRectF const paper(-plan_.contentCm.topLeft() / plan_.scale, plan_.paperCm / plan_.scale);
  QRectF const whole = isOne ? page | paper : page;
  if (whole.isEmpty()) return;
  double const scale = std::min((width() - 2 * marginPx) / whole.width(), (height() - 2 * marginPx) / whole.height());
  painter.translate(rect().center());
  painter.scale(scale, scale);
  painter.translate(-whole.center());
  QPen line(palette().color(QPalette::WindowText));
  line.setCosmetic(true);
  painter.setPen(line);
  if (isOne) painter.fillRect(paper, Qt::white);
  painter.drawImage(page, page_);
  if (isOne) return painter.drawRect(paper);
  QColor const alike(255, 200, 0, 110);
  for (int row = 0; row < plan_.rows; ++row)
    for (int column = 0; column < plan_.columns; ++column) {
      QRectF const part = plan_.part(row, column);
      if (column > 0) painter.fillRect(QRectF(part.left(), part.top(), plan_.overlapCm, part.height()), alike);
      if (row > 0) painter.fillRect(QRectF(part.left(), part.top(), part.width(), plan_.overlapCm), alike);
    }
  for (int row = 0; row < plan_.rows; ++row)
    for (int column = 0; column < plan_.columns; ++column) painter.drawRect(plan_.part(row, column));
  QTransform const toPixels = painter.transform();
  painter.resetTransform();
  for (int row = 0; row < plan_.rows; ++row)
    for (int column = 0; column < plan_.columns; ++column) {
      QString const number = QStringLiteral("%1/%2").arg(row + 1).arg(column + 1);
      QRectF const part = toPixels.mapRect(plan_.part(row, column));
      QRectF place = painter.fontMetrics().boundingRect(number).adjusted(-3, -1, 3, 1);
      place.moveCenter(part.center());
      if (place.width() > part.width() || place.height() > part.height()) continue;
      painter.fillRect(place, QColor(255, 255, 255, 200));
      painter.setPen(Qt::black);
      painter.drawText(place, Qt::AlignCenter, number);
    }
}

PrintOptions::PrintOptions(SysCarto::PrintSettings const& settings, QSizeF const& pageCm, QImage const& page,
                           QWidget* parent)
    : QWidget(parent),
      source_(settings),
      pageCm_(pageCm),
      sheet_(new SysAdapterUI::PropertySheet(this)),
      preview_(new SheetsPreview(page, this)),
      sentence_(new QLabel(this)) {
  setWindowTitle(tr("Page"));  // of the tab
  sheet_->makePlain();
  sheet_->view().header()->resizeSection(PropertyModel::CaptionColumn, captionPx);
  sheet_->show(&source_);
  sheet_->setMinimumHeight(sheetHeightPx);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(sheet_, 1);
  column->addWidget(preview_, 1);
  column->addWidget(sentence_);
  connect(&sheet_->model(), &QAbstractItemModel::dataChanged, this, &PrintOptions::follow);
  connect(&sheet_->model(), &QAbstractItemModel::modelReset, this, &PrintOptions::follow);
  follow();
}

PrintOptions::~PrintOptions() { sheet_->show(nullptr); }

SettingsSource<SysCarto::PrintSettings> const& PrintOptions::taken() {
  sheet_->finish();
  return source_;
}

void PrintOptions::follow() {
  auto const& choices = source_.settings().choices;
  QSizeF const paper = PagePrinter::turned(PagePrinter::paperCm(pageCm_, choices), pageCm_, choices);
  PosterPlan const plan = PosterPlan::of(pageCm_, paper, {}, choices);
  preview_->show(plan);
  QString const size =
      QStringLiteral("%1 × %2 cm").arg(locale().toString(paper.width()), locale().toString(paper.height()));
  sentence_->setText(
      plan.sheets() == 1
          ? tr("One sheet of %1, the page at %2 %").arg(size, locale().toString(qRound(plan.scale * 100)))
          : tr("%1 sheets of %2, in %3 rows and %4 columns")
                .arg(QString::number(plan.sheets()), size, QString::number(plan.rows), QString::number(plan.columns)));
}
