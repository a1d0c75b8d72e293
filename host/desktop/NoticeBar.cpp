#include "NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent),
      text_(new QLabel(this)),
      reload_(new QPushButton(this)),
      offer_(new QPushButton(this)),
      keep_(new QPushButton(this)) {
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  text_->setObjectName(QStringLiteral("label_Notice"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setForegroundRole(QPalette::ToolTipText);
  reload_->setObjectName(QStringLiteral("pushButton_Reload"));
  reload_->setText(tr("Reload"));
  offer_->setObjectName(QStringLiteral("pushButton_Offer"));
  keep_->setObjectName(QStringLiteral("pushButton_Keep"));
  auto* const row = new QHBoxLayout(this);
  row->addWidget(text_, 1);
  row->addWidget(reload_);
  row->addWidget(offer_);
  row->addWidget(keep_);
  connect(reload_, &QPushButton::clicked, this, &NoticeBar::reloadWanted);
  connect(offer_, &QPushButton::clicked, this, &NoticeBar::takeOffer);
  connect(keep_, &QPushButton::clicked, this, &NoticeBar::hide);
  connect(keep_, &QPushButton::clicked, this, &NoticeBar::keepWanted);
  hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::tell(QString const& text, bool canReload) {
  if (isHidden()) offered_ = {};
  told_ = text;
  canReload_ = canReload;
  showAll();
}

void NoticeBar::add(QString const& text) {
  bool const isMore = !isHidden() && !told_.isEmpty();
  tell(isMore ? told_ + QLatin1Char('\n') + text : text, isMore && canReload_);
}

void NoticeBar::offer(QString const& text, QString const& button, std::function<void()> const& accept) {
  if (isHidden()) told_.clear();
  offered_ = {text, button, accept};
  showAll();
}

void NoticeBar::showAll() {
  bool const isTold = !told_.isEmpty(), isOffered = static_cast<bool>(offered_.accept);
  text_->setText(told_ + (isTold && isOffered ? QStringLiteral("\n") : QString()) + offered_.text);
  reload_->setVisible(isTold && canReload_);
  offer_->setText(offered_.button);
  offer_->setVisible(isOffered);
  keep_->setText(reload_->isHidden() ? tr("Close") : tr("Keep"));  // where nothing was changed there is nothing to keep
  setVisible(isTold || isOffered);
}

void NoticeBar::takeOffer() {
  Offer const offer = std::exchange(offered_, {});
  showAll();
  offer.accept();
}
