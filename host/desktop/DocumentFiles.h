#pragma once

#include "DocumentLock.h"
#include "FileWatch.h"

#include "host/SysCarto/layers/WithoutWaiting.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include <memory>

class DocumentSession;
class QMenu;
class QWidget;

/// Documents as a person opens and saves them: with file dialogs, questions before anything is lost, here or of others
/// who work on the same files, and the list of recent files.
class DocumentFiles final : public QObject {
  Q_OBJECT

public:
  /// Both are borrowed; `parent` is that of the dialogs.
  DocumentFiles(DocumentSession& session, QWidget& parent);
  ~DocumentFiles() override;

  // Each asks first where changes would be lost, and answers false, with everything as it was, where it was not done.
  bool create();
  /// The session has recovered a document: from now on its file is this window's, where nobody else has it open.
  void takeOver();
  /// Asks what the map is to be made of. Answers what was chosen, and why; nothing where no map was made.
  QStringList createFromData();
  bool open();
  bool open(QString const& path);
  bool save();
  bool saveAs();

  /// Whether the document may be given up: it holds no changes, or a person has saved or dropped them.
  bool mayLeave();

  /// Whether the page may be drawn: its data have been read, and it is whole, or a person does not mind.
  bool mayExport();

  /// Whether the document can only be saved under another name: somebody else had it open first, or its file can't be
  /// written.
  bool isReadOnly() const;

  /// Looks for changes that were not told of.
  void look() { watch_.look(); }

  /// Reads anew the changed files that `told` was last about; false where that is still to be done.
  bool reload();

  /// Reads these files and connections anew, and tells what is then not whole.
  void readAgain(QStringList const& origins);

  /// Lets them be. A document that another program has changed counts as modified from
  /// now on.
  void keep();

  /// Makes the menu list the recent files whenever it is about to be shown.
  void fillWithRecent(QMenu& menu);

signals:
  /// A person has opened a document, read it anew, or had it recovered.
  void opened();

  /// All data of the document that was opened have been read, as far as they can be.
  void dataRead();

  /// Somebody else has changed or removed the document or files that it draws from, or a save has left something to
  /// say.
  void told(QString const& sentence, bool canReload);

  /// Data have been read anew: everything that shows them is to be drawn again.
  void dataReplaced();

private:
  QMessageBox::StandardButton ask(QMessageBox::Icon icon, QString const& text, QMessageBox::StandardButtons buttons,
                                  QMessageBox::StandardButton proposed);
  bool confirm(QString const& what, QString const& question);
  void tell(QMessageBox::Icon icon, QString const& what, QStringList const& why);
  QString choose(QString const& caption, QFileDialog::AcceptMode mode, QString const& proposed);
  std::shared_ptr<DocumentLock> lockFor(QString const& path) const;
  bool mayOverwrite(QString const& path, DocumentLock const& lock);
  bool read(QString const& path);
  bool write(QString const& path);
  void remember(QString const& path);
  void hold(std::shared_ptr<DocumentLock> const& lock, bool isOpened);
  void tellOfData();
  bool waitForData();
  void followFiles();
  void noteChanges(QStringList const& paths);
  QString folder() const;

  DocumentSession& session_;
  QWidget& parent_;
  std::shared_ptr<DocumentLock> lock_;  // null for a document without a file
  FileWatch watch_;
  QStringList changed_;       // since it was last read
  bool owesTelling_ = false;  // what could not be read of the document
  QTimer telling_;
  SysCarto::ReadingListener const listener_;
};
