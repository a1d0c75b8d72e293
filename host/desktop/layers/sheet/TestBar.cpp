#include "TestBar.h"

#include "host/SysAdapterUI/FieldText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int sliceMs = 20;
constexpr int progressPx = 140;

}  // namespace

TestBar::TestBar(QString const& caption, QString const& help, Begin begin, Tell tell, QWidget* parent)
    : QWidget(parent),
      begin_(std::move(begin)),
      tell_(std::move(tell)),
      start_(new QPushButton(caption, this)),
      cancel_(new QPushButton(tr("Stop"), this)),
      progress_(new QProgressBar(this)),
      told_(new QLabel(this)) {
  start_->setObjectName(QStringLiteral("pushButton_Test"));
  start_->setToolTip(help);
  cancel_->setObjectName(QStringLiteral("pushButton_StopTest"));
  for (QPushButton* const button : {start_, cancel_}) button->setAutoDefault(false);
  progress_->setFixedWidth(progressPx);
  told_->setObjectName(QStringLiteral("label_Test"));
  told_->setWordWrap(true);
  told_->setTextFormat(Qt::PlainText);
  told_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(start_);
  row->addWidget(told_, 1);
  row->addWidget(progress_);
  row->addWidget(cancel_);
  connect(start_, &QPushButton::clicked, this, &TestBar::start);
  connect(cancel_, &QPushButton::clicked, this, &TestBar::stop);
  connect(&slices_, &QTimer::timeout, this, &TestBar::goOn);
  showWork();
}

TestBar::~TestBar() = default;

void TestBar::start() {
  clear();
  QString problem;
  counts_ = begin_(problem);
  if (!counts_) return say(problem, true);
  slices_.start(0);
  goOn();
}

// What is done at once shows no bar.
void TestBar::goOn() {
  if (!counts_) return;
  if (counts_->advance(sliceMs)) return showWork();
  slices_.stop();
  auto const done = std::move(counts_);
  showWork();
  bool const isWhole = done->problem().isEmpty();
  say(isWhole ? tell_(*done) : done->problem(), !isWhole);
  emit finished();
}

void TestBar::showWork() {
  bool const isBusy = static_cast<bool>(counts_);
  for (QWidget* const widget : {static_cast<QWidget*>(progress_), static_cast<QWidget*>(cancel_)})
    widget->setVisible(isBusy);
  if (!isBusy) return;
  double const progress = counts_->progress();
  progress_->setRange(0, progress < 0 ? 0 : 1000);
  progress_->setValue(static_cast<int>(1000 * progress));
}

void TestBar::stop() {
  clear();
  say(tr("Stopped before all features were read."), false);
}

void TestBar::clear() {
  slices_.stop();
  counts_.reset();
  told_->clear();
  showWork();
}

void TestBar::say(QString const& sentence, bool isProblem) {
  QPalette colors = palette();
  if (isProblem) colors.setColor(QPalette::WindowText, SysAdapterUI::problemColor(colors));
  told_->setPalette(colors);
  told_->setText(sentence);
}
