#include "PageChooser.h"

#include "PageList.h"

#include "host/desktop/Icons.h"
#include "host/desktop/NoticeBar.h"

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

PageChooser::PageChooser(SeriesView& series, NoticeBar& notice, QWidget* parent)
    : QWidget(parent), series_(series), notice_(notice), pages_(new QComboBox(this)), count_(new QLabel(this)) {
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
  row->addStretch();

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
  pages_->setEnabled(pages);
  count_->setText(pages ? tr("of %1").arg(pages->count()) : series_.problem());
  if (pages) pages_->setCurrentIndex(pages->shown());
}

void PageChooser::go(QString const& page) {
  QString const problem = page == QLatin1String("0") ? series_.show(0) : series_.show(page);
  if (!problem.isEmpty()) notice_.tell(problem, false);
  follow();
}

// A number or a whole name; else the first name that holds the text.
void PageChooser::goToTyped() {
  QString const typed = pages_->currentText().trimmed();
  SeriesPages const* const pages = series_.pages();
  if (!pages || pages_->findText(typed) >= 0) return;  // it is activated
  int const found = pages->find(typed) > 0 ? pages->find(typed) : pages_->findText(typed, Qt::MatchContains);
  go(found > 0 ? QString::number(found) : typed);
}
