#include "HistoryQuestion.h"

#include "DocumentSession.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QMessageBox>
#include <QPushButton>
#include <QUndoStack>

#include <algorithm>
#include <iterator>

namespace {

constexpr int maxNames = 6;

struct CostlyCommand {
  char const* identifier;
  char const* what;
  char const* when;
};
constexpr CostlyCommand costlyCommands[] = {
    {"Plotvane_PageSetting", QT_TRANSLATE_NOOP("HistoryQuestion", "Page settings can't be undone."),
     QT_TRANSLATE_NOOP("HistoryQuestion",
                       "Where they scale the elements to another page size, what was done before can be neither undone "
                       "nor redone any more:")},
    {"Plotvane_ChangePageLayout", QT_TRANSLATE_NOOP("HistoryQuestion", "Another layout can't be undone."),
     QT_TRANSLATE_NOOP("HistoryQuestion",
                       "With a template's layout, what was done before can be neither undone nor redone any more:")},
};

}  // namespace

HistoryQuestion::HistoryQuestion(DocumentSession& session, QWidget& parent) : session_(session), parent_(parent) {}

bool HistoryQuestion::mayRun(QString const& identifier) const {
  QUndoStack const& history = *SysCarto::MapDocumentHost::history(session_.document());
  auto const* const command =
      std::find_if(std::begin(costlyCommands), std::end(costlyCommands),
                   [&](CostlyCommand const& one) { return identifier == QLatin1String(one.identifier); });
  if (command == std::end(costlyCommands) || history.count() == 0) return true;

  QStringList steps;
  for (int i = history.count() - 1; i >= 0 && steps.size() < maxNames; --i)
    steps << QStringLiteral("• ") + history.text(i);
  if (history.count() > maxNames) steps << tr("… and %1 more.").arg(history.count() - maxNames);
  QMessageBox box(QMessageBox::Question, tr("Plotvane"), tr(command->what), QMessageBox::Cancel, &parent_);
  box.setInformativeText(tr(command->when) + QStringLiteral("\n\n") + steps.join(QLatin1Char('\n')));
  QPushButton* const go = box.addButton(tr("Continue"), QMessageBox::AcceptRole);
  box.setDefaultButton(go);
  box.exec();
  return box.clickedButton() == go;
}
