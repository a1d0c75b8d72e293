#include "ConnectionsDialog.h"

#include "ConnectionAccess.h"

#include "host/desktop/SettingsDialog.h"
#include "host/desktop/SettingsSource.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

using SysCarto::Connection;

namespace {

constexpr QSize firstSize(520, 320);

}  // namespace

ConnectionsDialog::ConnectionsDialog(QWidget* parent)
    : QDialog(parent), kept_(KeptConnections::kept()), list_(new QListWidget(this)) {
  setWindowTitle(tr("Connections"));
  resize(firstSize);
  list_->setObjectName(QStringLiteral("listWidget_Connections"));
  list_->setAccessibleName(tr("Connections to databases"));
  auto* const side = new QVBoxLayout;
  auto const button = [&](QString const& text, char const* name) {
    auto* const made = new QPushButton(text, this);
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    side->addWidget(made);
    return made;
  };
  auto* const add = button(tr("&Add…"), "pushButton_Add");
  edit_ = button(tr("&Change…"), "pushButton_Change");
  test_ = button(tr("&Test"), "pushButton_Test");
  remove_ = button(tr("&Remove"), "pushButton_Remove");
  side->addStretch(1);
  auto* const row = new QHBoxLayout;
  row->addWidget(list_, 1);
  row->addLayout(side);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(row, 1);
  if (!kept_.problems.isEmpty()) {
    auto* const problems = new QLabel(kept_.problems.join(QLatin1Char('\n')), this);
    problems->setTextFormat(Qt::PlainText);
    problems->setWordWrap(true);
    column->addWidget(problems);
  }
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(add, &QPushButton::clicked, this, [this] { edit(true); });
  connect(edit_, &QPushButton::clicked, this, [this] { edit(false); });
  connect(remove_, &QPushButton::clicked, this, &ConnectionsDialog::remove);
  connect(test_, &QPushButton::clicked, this, &ConnectionsDialog::test);
  connect(list_, &QListWidget::itemDoubleClicked, this, [this] { edit(false); });
  connect(list_, &QListWidget::currentRowChanged, this, &ConnectionsDialog::showState);
  fill(QString());
}

ConnectionsDialog::~ConnectionsDialog() = default;

QString ConnectionsDialog::current() const {
  int const row = list_->currentRow();
  return row < 0 ? QString() : kept_.connections[static_cast<size_t>(row)].name;
}

void ConnectionsDialog::fill(QString const& chosen) {
  list_->clear();
  for (Connection const& one : kept_.connections) {
    QString const host = one.host.isEmpty() ? tr("this computer") : one.host;
    QString const database = one.database.isEmpty() ? one.user : one.database;
    QString text = database.isEmpty() ? QStringLiteral("%1: %2").arg(one.name, host)
                                      : tr("%1: %2 at %3").arg(one.name, database, host);
    if (one.forDocuments) text += tr(" (open to documents)");
    list_->addItem(text);
    if (one.name == chosen || list_->currentRow() < 0) list_->setCurrentRow(list_->count() - 1);
  }
  showState();
}

void ConnectionsDialog::showState() {
  for (QPushButton* const button : {edit_, remove_, test_}) button->setEnabled(list_->currentRow() >= 0);
}

void ConnectionsDialog::edit(bool isNew) {
  Connection* const now = isNew ? nullptr : kept_.find(current());
  if (!isNew && !now) return;
  QString const before = current();
  Connection fresh;
  fresh.name = freeName();
  SettingsSource source(now ? *now : fresh);
  auto const isTaken = [&](QString const& name) { return kept_.has(name) && !(now && now->name == name); };
  do {  // with all that was entered
    if (isTaken(source.settings().name))
      tell(true, tr("There is a connection “%1” already; take another name.").arg(source.settings().name));
    SettingsDialog dialog(now ? tr("Connection “%1”").arg(before) : tr("New Connection"), source, {}, this);
    if (dialog.exec() != QDialog::Accepted) return;
  } while (isTaken(source.settings().name));
  Connection const made = source.settings();
  if (now)
    *now = made;
  else
    kept_.connections.push_back(made);
  keep(made.name);
}

QString ConnectionsDialog::freeName() {
  QString const first = tr("database");
  QString name = first;
  for (int i = 2; kept_.has(name); ++i) name = QStringLiteral("%1-%2").arg(first).arg(i);
  return name;
}

// There is no undo.
void ConnectionsDialog::remove() {
  QString const name = current();
  QMessageBox box(QMessageBox::Question, tr("Connections"),
                  tr("Remove the connection “%1”? Layers that are read from it can't be read then.").arg(name),
                  QMessageBox::Cancel, this);
  box.setTextFormat(Qt::PlainText);
  auto const* const removal = box.addButton(tr("Remove"), QMessageBox::AcceptRole);
  box.exec();
  if (box.clickedButton() != removal) return;
  kept_.remove(name);
  keep(QString());
}

void ConnectionsDialog::keep(QString const& chosen) {
  QString const problem = kept_.keep();
  KeptConnections::confine();
  if (!problem.isEmpty()) tell(true, problem);
  fill(chosen);
}

void ConnectionsDialog::test() {
  QString const name = current();
  auto const file = ConnectionAccess::describe(name, *this);
  if (!file) return;
  if (!file->error.isEmpty()) return tell(true, file->error);
  constexpr size_t maxNames = 20;
  QStringList names;
  for (size_t i = 0; i < file->layers.size() && i < maxNames; ++i) names << file->layers[i].name;
  if (file->layers.size() > maxNames) names << tr("%1 more").arg(file->layers.size() - maxNames);
  tell(false, tr("The connection “%1” leads to these tables: %2.").arg(name, names.join(QStringLiteral(", "))));
}

void ConnectionsDialog::tell(bool isProblem, QString const& sentence) {
  QMessageBox box(isProblem ? QMessageBox::Warning : QMessageBox::Information, tr("Connections"), sentence,
                  QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
