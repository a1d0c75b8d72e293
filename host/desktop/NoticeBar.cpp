#include "NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

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
  connect(offer_, &QPushButton::clicked, this, [this] {
    hide();
    offered_();
  });
  connect(keep_, &QPushButton::clicked, this, &NoticeBar::hide);
  connect(keep_, &QPushButton::clicked, this, &NoticeBar::keepWanted);
  hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::tell(QString const& text, bool canReload) {
  text_->setText(text);
  reload_->setVisible(canReload);
  offer_->hide();
  keep_->setText(canReload ? tr("Keep") : tr("Close"));  // where nothing was changed outside there is nothing to keep
  show();
}

void NoticeBar::offer(QString const& text, QString const& button, std::function<void()> const& accept) {
  tell(isHidden() ? text : text_->text() + QLatin1Char('\n') + text, false);
  offered_ = accept;
  offer_->setText(button);
  offer_->show();
}
