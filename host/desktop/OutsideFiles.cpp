#include "OutsideFiles.h"

#include "DocumentFiles.h"
#include "DocumentSession.h"
#include "HostCommands.h"
#include "NoticeBar.h"

#include "host/SysCarto/document/DocumentSources.h"
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
    : QObject(&notice), session_(session), notice_(notice) {
  connect(&files, &DocumentFiles::opened, this, &OutsideFiles::look);
}

OutsideFiles::~OutsideFiles() = default;

void OutsideFiles::look() {
  QStringList folders = foldersOutside(session_.document());
  folders.erase(std::remove_if(folders.begin(), folders.end(), [this](auto const& one) { return told_.contains(one); }),
                folders.end());
  if (folders.isEmpty()) return;
  for (QString const& folder : qAsConst(folders)) told_ << folder;
  QStringList shown;
  for (QString const& folder : folders.mid(0, maxShown)) shown << QDir::toNativeSeparators(folder);
  if (folders.size() > maxShown) shown << tr("%1 more").arg(folders.size() - maxShown);
  notice_.offer(tr("The document uses files of other folders than its own: %1. “Allow” lets every document use files "
                   "there from now on without this message; File › Allowed Folders… takes that back.")
                    .arg(shown.join(QStringLiteral(", "))),
                tr("Allow"), [folders] { AllowedFolders::keep(AllowedFolders::kept() + folders); });
}

void OutsideFiles::addTo(HostCommands& host, QWidget& window) {
  host.add(QStringLiteral("Host_AllowedFolders"), {[&window] { AllowedFoldersDialog(&window).exec(); }, {}, {}});
}
