#include "OutsideFiles.h"

#include "DocumentFiles.h"
#include "DocumentSession.h"
#include "HostCommands.h"
#include "NoticeBar.h"
#include "connections/ConnectionAccess.h"
#include "connections/ConnectionsDialog.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/layers/Connections.h"
#include "host/SysUtility/FileReach.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int maxShown = 4;
QString const foldersKey = QStringLiteral("files/allowedFolders");

// Of what the document names: where it leads to outside of its folder and of those that are allowed, in an order that
// stays.
QStringList foldersOutside(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  auto const reach = SysUtility::FileReach::ofDocument(document.GetPath(), AllowedFolders::kept());
  QStringList folders;
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>()) {
    QString const outside = source.outside(reach);
    if (!outside.isEmpty()) folders << QFileInfo(outside).path();
  }
  folders.removeDuplicates();
  folders.sort();
  return folders;
}

QStringList closedConnections(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  QStringList names;
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>())
    if (SysCarto::Connections::find(source.connection) && !SysCarto::Connections::isAllowed(source.connection))
      names << source.connection;
  names.removeDuplicates();
  names.sort();
  return names;
}

QString shown(QStringList const& names) {
  QStringList shown;
  for (QString const& name : names.mid(0, maxShown)) shown << QDir::toNativeSeparators(name);
  if (names.size() > maxShown) shown << OutsideFiles::tr("%1 more").arg(names.size() - maxShown);
  return shown.join(QStringLiteral(", "));
}

class AllowedFoldersDialog final : public QDialog {
  Q_DECLARE_TR_FUNCTIONS(AllowedFoldersDialog)

public:
  explicit AllowedFoldersDialog(QWidget* parent);

  void accept() override;

private:
  void choose();
  void add(QStringList const& folders);

  QListWidget* const rows_;
};

AllowedFoldersDialog::AllowedFoldersDialog(QWidget* parent) : QDialog(parent), rows_(new QListWidget(this)) {
  constexpr QSize firstSize(560, 360);
  setWindowTitle(tr("Allowed Folders"));
  resize(firstSize);
  auto* const text =
      new QLabel(tr("Documents may use files of these folders, and of folders in them, without that being "
                    "told. Of all others it is told when a document is opened."),
                 this);
  text->setWordWrap(true);
  rows_->setObjectName(QStringLiteral("listWidget_AllowedFolders"));
  rows_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  auto* const addition = new QPushButton(tr("Add…"), this);
  auto* const removal = new QPushButton(tr("Remove"), this);
  for (QPushButton* const button : {addition, removal}) button->setAutoDefault(false);
  removal->setEnabled(false);
  auto* const changes = new QHBoxLayout;
  changes->addWidget(addition);
  changes->addWidget(removal);
  changes->addStretch();
  auto* const box = new QVBoxLayout(this);
  box->addWidget(text);
  box->addWidget(rows_, 1);
  box->addLayout(changes);
  box->addWidget(buttons);
  add(AllowedFolders::kept());
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(addition, &QPushButton::clicked, this, [this] { choose(); });
  connect(removal, &QPushButton::clicked, this, [this] { qDeleteAll(rows_->selectedItems()); });
  connect(rows_, &QListWidget::itemSelectionChanged, removal,
          [this, removal] { removal->setEnabled(!rows_->selectedItems().isEmpty()); });
}

void AllowedFoldersDialog::add(QStringList const& folders) {
  for (QString const& folder : folders) {
    auto* const row = new QListWidgetItem(QDir::toNativeSeparators(folder), rows_);
    row->setData(Qt::UserRole, folder);
  }
}

void AllowedFoldersDialog::choose() {
  QFileDialog dialog(this, tr("Allow a Folder"));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (dialog.exec() == QDialog::Accepted) add(dialog.selectedFiles());
}

void AllowedFoldersDialog::accept() {
  QStringList folders;
  for (int row = 0; row < rows_->count(); ++row) folders << rows_->item(row)->data(Qt::UserRole).toString();
  AllowedFolders::keep(folders);
  QDialog::accept();
}

}  // namespace

QStringList AllowedFolders::kept() {
  return QSettings().value(foldersKey).toString().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void AllowedFolders::keep(QStringList folders) {
  folders.removeDuplicates();
  QSettings().setValue(foldersKey, folders.join(QLatin1Char('\n')));
}

OutsideFiles::OutsideFiles(DocumentFiles& files, DocumentSession& session, NoticeBar& notice)
    : QObject(&notice), files_(files), session_(session), notice_(notice) {
  KeptConnections::confine();
  connect(&files, &DocumentFiles::opened, this, &OutsideFiles::look);
  connect(&files, &DocumentFiles::dataRead, this, [this] {
    if (!notice_.isOffering()) offerPassword();
  });
}

OutsideFiles::~OutsideFiles() = default;

void OutsideFiles::look() {
  auto const untold = [this](QStringList names) {
    names.erase(std::remove_if(names.begin(), names.end(), [this](auto const& one) { return told_.contains(one); }),
                names.end());
    for (QString const& name : qAsConst(names)) told_ << name;
    return names;
  };
  QStringList const folders = untold(foldersOutside(session_.document()));
  QStringList const connections = closedConnections(session_.document());
  if (folders.isEmpty() && connections.isEmpty()) return;
  QStringList sentences;
  if (!folders.isEmpty())
    sentences << tr("The document uses files of other folders than its own: %1. “Allow” lets every document use files "
                    "there from now on without this message; File › Allowed Folders… takes that back.")
                     .arg(shown(folders));
  if (!connections.isEmpty())
    sentences << tr("The document wants to read from your databases: %1. “Allow” lets every document do so from now on "
                    "and reads it anew; Edit › Connections… takes that back.")
                     .arg(shown(connections));
  notice_.offer(sentences.join(QLatin1Char(' ')), tr("Allow"), [=] { allow(folders, connections); });
}

void OutsideFiles::allow(QStringList const& folders, QStringList const& connections) {
  if (!folders.isEmpty()) AllowedFolders::keep(AllowedFolders::kept() + folders);
  QStringList origins, problems;
  for (QString const& name : connections) {
    QString const problem = KeptConnections::openToDocuments(name);
    if (problem.isEmpty())
      origins << SysCarto::originOf(name);
    else
      problems << problem;
  }
  problems.removeDuplicates();
  if (!problems.isEmpty()) notice_.tell(problems.join(QLatin1Char(' ')), false);
  if (!origins.isEmpty()) files_.readAgain(origins);
  offerPassword();
}

// One at a time: what is read anew then tells whether another one wants one, too.
void OutsideFiles::offerPassword() {
  auto const layout = session_.document().GetPageLayout();
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>()) {
    QString const name = source.connection;
    if (name.isEmpty() || source.problem.isEmpty() || !SysCarto::Connections::wantsPassword(name)) continue;
    return notice_.offer(tr("The connection “%1” wants a password.").arg(name), tr("Password…"), [this, name] {
      if (ConnectionAccess::askForPassword(name, *notice_.window())) files_.readAgain({SysCarto::originOf(name)});
      offerPassword();
    });
  }
}

void OutsideFiles::addTo(HostCommands& host, QWidget& window) {
  host.add(QStringLiteral("Host_AllowedFolders"), {[&window] { AllowedFoldersDialog(&window).exec(); }, {}, {}});
  host.add(QStringLiteral("Host_Connections"), {[&window] { ConnectionsDialog(&window).exec(); }, {}, {}});
}
