#include "PageChooser.h"

#include "PageList.h"

#include "host/desktop/Icons.h"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QToolButton>

namespace {

constexpr int widestName = 32;  // in letters of usual width
constexpr int marginPx = 4;

}  // namespace

PageChooser::PageChooser(SeriesView& series, QWidget* parent)
    : QWidget(parent), series_(series), pages_(new QComboBox(this)), count_(new QLabel(this)), note_(new QLabel(this)) {
  setObjectName(QStringLiteral("pageChooser"));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(marginPx, 0, marginPx, 0);
  auto const addButton = [&](char const* icon, QString const& toolTip, char const* page) {
    auto* const button = new QToolButton(this);
    button->setIcon(loadIcon(QLatin1String(icon)));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    row->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, page] { go(QLatin1String(page)); });
  };
  row->addStretch();
  addButton("first-page", tr("First page"), "first");
  addButton("previous-page", tr("Previous page"), "previous");
  row->addWidget(pages_);
  row->addWidget(count_);
  addButton("next-page", tr("Next page"), "next");
  addButton("last-page", tr("Last page"), "last");
  row->addWidget(note_, 1);
  row->addStretch();
  note_->setObjectName(QStringLiteral("label_PageNote"));
  note_->setTextFormat(Qt::PlainText);
  note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long sentence widens no window

  pages_->setEditable(true);
  pages_->setInsertPolicy(QComboBox::NoInsert);
  pages_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  pages_->setMinimumContentsLength(widestName);
  pages_->setToolTip(tr("The page that is shown; type a number, or a part of a name"));
  pages_->setAccessibleName(tr("Page"));
  auto* const list = new QListView(pages_);
  list->setUniformItemSizes(true);
  pages_->setView(list);
  pages_->setModel(new PageList(series, this));
  pages_->completer()->setCompletionMode(QCompleter::PopupCompletion);
  pages_->completer()->setFilterMode(Qt::MatchContains);
  pages_->completer()->setCaseSensitivity(Qt::CaseInsensitive);
  connect(pages_, QOverload<int>::of(&QComboBox::activated), this, [this](int page) { go(QString::number(page)); });
  connect(pages_->lineEdit(), &QLineEdit::returnPressed, this, &PageChooser::goToTyped);
  connect(&series, &SeriesView::replaced, this, &PageChooser::follow);
  connect(&series, &SeriesView::shownChanged, this, &PageChooser::follow);
  follow();
}

void PageChooser::follow() {
  SeriesPages const* const pages = series_.pages();
  setVisible(pages || !series_.problem().isEmpty());
  pages_->setVisible(pages);
  count_->setText(pages ? tr("of %1").arg(pages->count()) : QString());
  if (pages) pages_->setCurrentIndex(pages->shown());
  say(pages ? QString() : series_.problem());
}

void PageChooser::say(QString const& sentence) {
  note_->setToolTip(sentence);
  note_->setAccessibleName(sentence);
  note_->setVisible(!sentence.isEmpty());
  layout()->activate();
  note_->setText(note_->fontMetrics().elidedText(sentence, Qt::ElideRight, note_->width()));
}

void PageChooser::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  say(note_->toolTip());
}

void PageChooser::go(QString const& page) {
  QString const problem = page == QLatin1String("0") ? series_.show(0) : series_.show(page);
  follow();
  if (!problem.isEmpty()) say(problem);
}

// A number or a whole name; else the first name that holds the text.
void PageChooser::goToTyped() {
  QString const typed = pages_->currentText().trimmed();
  SeriesPages const* const pages = series_.pages();
  if (!pages || pages_->findText(typed) >= 0) return;  // it is activated
  int const found = pages->find(typed) > 0 ? pages->find(typed) : pages_->findText(typed, Qt::MatchContains);
  go(found > 0 ? QString::number(found) : typed);
}
