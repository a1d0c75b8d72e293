#include "NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), reload_(new QPushButton(this)), keep_(new QPushButton(this)) {
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  text_->setObjectName(QStringLiteral("label_Notice"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setForegroundRole(QPalette::ToolTipText);
  reload_->setObjectName(QStringLiteral("pushButton_Reload"));
  reload_->setText(tr("Reload"));
  keep_->setObjectName(QStringLiteral("pushButton_Keep"));
  auto* const row = new QHBoxLayout(this);
  row->addWidget(text_, 1);
  row->addWidget(reload_);
  row->addWidget(keep_);
  connect(reload_, &QPushButton::clicked, this, &NoticeBar::reloadWanted);
  connect(keep_, &QPushButton::clicked, this, &NoticeBar::keepWanted);
  hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::tell(QString const& text, bool canReload) {
  text_->setText(text);
  reload_->setVisible(canReload);
  keep_->setText(canReload ? tr("Keep") : tr("Close"));  // where nothing was changed outside there is nothing to keep
  show();
}
