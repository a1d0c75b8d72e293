#include "ActionTable.h"

#include "CommandSet.h"
#include "Icons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr char const* menuOrder[] = {"File", "Edit", "View", "Insert", "Arrange", "Layer", "Help"};

struct Toolbar {
  char const* name;
  bool startsRow;
};
constexpr Toolbar toolbarOrder[] = {{"File", false},   {"Edit", false}, {"Layout", false}, {"Navigation", false},
                                    {"Insert", false}, {"Draw", false}, {"Arrange", true}};
constexpr int toolbarIconPx = 20;

// The commands that `isWanted` chooses, by section; within one, in the order of the catalogue.
template <class Predicate>
QVector<HostedCommand const*> chosen(QVector<HostedCommand> const& commands, Predicate isWanted) {
  QVector<HostedCommand const*> found;
  for (HostedCommand const& command : commands)
    if (isWanted(command.entry)) found << &command;
  std::stable_sort(found.begin(), found.end(),
                   [](HostedCommand const* a, HostedCommand const* b) { return a->entry.section < b->entry.section; });
  return found;
}

QString toolTipOf(CommandEntry const& entry, QAction const& action) {
  QString const keys = action.shortcut().toString(QKeySequence::NativeText);
  QString const tip = keys.isEmpty() ? entry.toolTip : QStringLiteral("%1 (%2)").arg(entry.toolTip, keys);
  return action.isEnabled() ? tip : tip + QLatin1Char('\n') + ActionTable::tr("Needs %1").arg(entry.needs);
}

}  // namespace

ActionTable::ActionTable(CommandSet& commands, QMainWindow& window) : commands_(commands), window_(window) {
  soon_.setSingleShot(true);
  soon_.setInterval(0);
  connect(&soon_, &QTimer::timeout, this, &ActionTable::refresh);
  connect(&commands, &CommandSet::clicked, this, &ActionTable::refresh);
  for (HostedCommand const& command : commands.commands()) addAction(command);
  fillMenus();
  fillToolbars();
}

ActionTable::~ActionTable() = default;

// The vector of commands does not change any more, so that its rows may be held.
void ActionTable::addAction(HostedCommand const& command) {
  CommandEntry const& entry = command.entry;
  auto* const action = new QAction(loadIcon(entry.icon), entry.caption, &window_);
  action->setObjectName(entry.identifier);
  action->setShortcut(QKeySequence::fromString(entry.shortcut, QKeySequence::PortableText));
  action->setStatusTip(entry.toolTip);
  if (entry.isForContents) action->setShortcutContext(Qt::WidgetShortcut);
  connect(action, &QAction::triggered, this, [this, &command] {
    if (!commands_.click(command)) refresh();  // it was found disabled just now
  });
  actions_[entry.identifier] = action;
}

QList<QAction*> ActionTable::ofContents() const {
  QList<QAction*> actions;
  for (HostedCommand const& command : commands_.commands())
    if (command.entry.isForContents) actions << actions_.value(command.entry.identifier);
  return actions;
}

QMenu* ActionTable::menu(QString const& path) {
  if (menus_.contains(path)) return menus_[path];
  int const slash = path.lastIndexOf(QLatin1Char('/'));
  QString const name = path.mid(slash + 1);
  QMenu* const made = slash < 0 ? window_.menuBar()->addMenu(translatedPlace(QLatin1Char('&') + name))
                                : menu(path.left(slash))->addMenu(translatedPlace(name));
  return menus_[path] = made;
}

void ActionTable::fillMenus() {
  auto const& all = commands_.commands();
  for (char const* name : menuOrder) {
    QString const root = QLatin1String(name);
    auto const rows =
        chosen(all, [&](CommandEntry const& entry) { return entry.menu.section(QLatin1Char('/'), 0, 0) == root; });
    for (HostedCommand const* command : rows) {
      QMenu* const target = menu(command->entry.menu);
      QAction* const last = target->actions().isEmpty() ? nullptr : target->actions().last();
      if (last && last->data().toInt() != command->entry.section) target->addSeparator();
      QAction* const action = actions_[command->entry.identifier];
      action->setData(command->entry.section);
      target->addAction(action);
    }
  }
}

void ActionTable::fillToolbars() {
  for (Toolbar const& row : toolbarOrder) {
    QString const name = QLatin1String(row.name);
    auto const commands =
        chosen(commands_.commands(), [&](CommandEntry const& entry) { return entry.toolbar == name; });
    if (commands.isEmpty()) continue;
    if (row.startsRow) window_.addToolBarBreak();
    QToolBar* const bar = window_.addToolBar(translatedPlace(name));
    bar->setObjectName(QStringLiteral("toolBar_") + name);
    bar->setIconSize({toolbarIconPx, toolbarIconPx});
    HostedCommand const* last = nullptr;
    for (HostedCommand const* command : commands) {
      if (last && (last->entry.section != command->entry.section || last->entry.menu != command->entry.menu))
        bar->addSeparator();
      bar->addAction(actions_[command->entry.identifier]);
      last = command;
    }
  }
}

void ActionTable::refresh() {
  soon_.stop();
  for (HostedCommand const& command : commands_.commands()) {
    QAction& action = *actions_[command.entry.identifier];
    action.setEnabled(command.command->IsEnable());
    action.setToolTip(toolTipOf(command.entry, action));
    bool const isChecked = command.command->IsChecked();
    // An action shows its state only where it has one; it has one from its first check on.
    if (isChecked || command.tool) action.setCheckable(true);
    action.setChecked(isChecked);
  }
  emit refreshed();
}
