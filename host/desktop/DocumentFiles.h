#pragma once

#include <QFileDialog>
#include <QMessageBox>

class DocumentSession;
class QMenu;
class QWidget;

/// Documents as a person opens and saves them: with file dialogs, questions before changes are lost, and the list of
/// recent files.
class DocumentFiles final : public QObject {
  Q_OBJECT

public:
  /// Both are borrowed; `parent` is that of the dialogs.
  DocumentFiles(DocumentSession& session, QWidget& parent);
  ~DocumentFiles() override;

  // Each asks first where changes would be lost, and answers false, with everything as it was, where it was not done.
  bool create();
  bool open();
  bool open(QString const& path);
  bool save();
  bool saveAs();

  /// Whether the document may be given up: it holds no changes, or a person has saved or dropped them.
  bool mayLeave();

  /// Makes the menu list the recent files whenever it is about to be shown.
  void fillWithRecent(QMenu& menu);

private:
  void remember(QString const& path);
  QMessageBox::StandardButton ask(QMessageBox::Icon icon, QString const& text, QMessageBox::StandardButtons buttons,
                                  QMessageBox::StandardButton proposed);
  void tell(QMessageBox::Icon icon, QString const& what, QString const& why);
  QString choose(QString const& caption, QFileDialog::AcceptMode mode, QString const& proposed);
  bool mayReplace(QString const& path);
  bool write(QString const& path);
  QString folder() const;

  DocumentSession& session_;
  QWidget& parent_;
};
