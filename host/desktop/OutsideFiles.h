#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

class DocumentFiles;
class DocumentSession;
class HostCommands;
class NoticeBar;

/// The folders, besides its own, of which a document may use files without that being told. Kept with the program's
/// settings.
namespace AllowedFolders {
QStringList kept();
void keep(QStringList folders);
}  // namespace AllowedFolders

/// Tells of the folders that a document which was opened or recovered reaches into besides its own, each once as long
/// as the program runs, and each time of the connections that it names and that are not open to documents, and offers
/// to allow them for good. Where a connection wants a password, it offers to ask for it.
class OutsideFiles final : public QObject {
  Q_OBJECT

public:
  /// All are borrowed; the bar becomes its parent.
  OutsideFiles(DocumentFiles& files, DocumentSession& session, NoticeBar& notice);
  ~OutsideFiles() override;

  /// The dialog in which allowed folders are seen and changed.
  static void addTo(HostCommands& host, QWidget& window);

private:
  void look();
  void allow(QStringList const& folders, QStringList const& connections);
  void offerPassword();

  DocumentFiles& files_;
  DocumentSession& session_;
  NoticeBar& notice_;
  QSet<QString> told_;
};
