#include "OutsideFiles.h"

#include "DocumentFiles.h"
#include "DocumentSession.h"
#include "HostCommands.h"
#include "NoticeBar.h"
#include "SettingsDialog.h"
#include "SettingsSource.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysUtility/FileReach.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace {

constexpr int maxShown = 4;
QString const foldersKey = QStringLiteral("files/allowedFolders");

// Of what the document names: where it leads to outside of its folder and of those that are allowed, in an order that
// stays.
QStringList foldersOutside(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  auto const reach = SysUtility::FileReach::ofDocument(document.GetPath(), AllowedFolders::kept().list());
  QStringList folders;
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>()) {
    QString const outside = source.outside(reach);
    if (!outside.isEmpty()) folders << QFileInfo(outside).path();
  }
  folders.removeDuplicates();
  folders.sort();
  return folders;
}

}  // namespace

AllowedFolders AllowedFolders::kept() { return {QSettings().value(foldersKey).toString()}; }
void AllowedFolders::keep() const { QSettings().setValue(foldersKey, list().join(QLatin1Char('\n'))); }

QStringList AllowedFolders::list() const {
  QStringList paths;
  for (QString const& line : folders.split(QLatin1Char('\n')))
    if (!line.trimmed().isEmpty()) paths << line.trimmed();
  paths.removeDuplicates();
  return paths;
}

void AllowedFolders::list(SysUtility::Fields& fields) {
  fields.text(
      {"folders", QT_TRANSLATE_NOOP("Fields", "Allowed folders"),
       QT_TRANSLATE_NOOP("Fields",
                         "Folders of which documents may use files, also of folders in them, without being told "
                         "of; one a line.")},
      folders, SysUtility::TextKind::Lines, QString());
  if (!fields.isReading() || !fields.ok()) return;
  for (QString const& path : list())
    if (!QDir::isAbsolutePath(path))
      fields.fail("folders", OutsideFiles::tr("“%1” is no whole path; write one that begins with “/”").arg(path));
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
  notice_.offer(tr("The document uses files of other folders: %1.").arg(shown.join(QStringLiteral(", "))), tr("Allow"),
                [folders] {
                  AllowedFolders allowed = AllowedFolders::kept();
                  allowed.folders += QLatin1Char('\n') + folders.join(QLatin1Char('\n'));
                  allowed.keep();
                });
}

void OutsideFiles::addTo(HostCommands& host, QWidget& window) {
  host.add(QStringLiteral("Host_AllowedFolders"), {[&window] {
                                                     SettingsSource source(AllowedFolders::kept());
                                                     SettingsDialog dialog(tr("Allowed Folders"), source, {}, &window);
                                                     if (dialog.exec() == QDialog::Accepted) source.settings().keep();
                                                   },
                                                   {},
                                                   {}});
}
