#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <SysCarto/MapDocument.h>

#include <QObject>

/// The document that is being worked on, its undo history, and whether it holds what its file does not. As long as the
/// session lives, the editor records into that history.
class DocumentSession final : public QObject {
  Q_OBJECT

public:
  DocumentSession();
  ~DocumentSession() override;

  SysCarto::MapDocument& document() { return document_; }
  QString path() const { return document_.GetPath(); }

  /// The file's name, or what a document without a file is called.
  QString title() const;

  // Each answers false, with a sentence in `takeProblem` and the document unchanged, where it can't be done.
  bool create();
  bool open(QString const& path, SysCarto::ReadDepth depth = SysCarto::ReadDepth::Features);
  /// Goes on with what another document has become, as a new one.
  void takeOver(SysCarto::MapDocument& made);
  /// Takes over a copy (`MapDocumentHost::recover`) of a document whose file had that digest when it was last read or
  /// written.
  bool recover(QString const& copy, QString const& file, bool relativePaths, QByteArray const& fileDigest);
  bool save();
  bool saveAs(QString const& path);
  /// Whether a save keeps what the file held before as a file with "~" behind its name; it does not at first.
  void setKeepsEarlier(bool keeps) { keepsEarlier_ = keeps; }
  bool keepsEarlier() const { return keepsEarlier_; }

  /// Said once: whoever asks tells it.
  static QString takeProblem();

  /// The same about a save that was done, and is not all that it should be.
  static QString takeRemark();

  /// Of the file, as it was last read or written here.
  QByteArray const& fileDigest() const { return fileDigest_; }

  /// Whether the file holds something else than what was read from it or written to it here; false where it has gone.
  bool isFileChanged() const;

  /// Whether a save would write what the file does not hold. What is kept out of the history counts, too.
  bool isModified() const { return isFileGivenUp_ || hasChanges(); }

  /// Whether the document is no longer as it was read or saved here.
  bool hasChanges() const { return document_.isModified(); }

  /// Whether the file counts as one that does not hold the document, whatever it holds; until the document is saved or
  /// read the next time.
  void setFileGivenUp(bool isGivenUp);

signals:
  /// Another document, or the same with another file: everything about it is to be asked anew.
  void replaced();

  /// The history has moved.
  void historyChanged();

  /// Whether the document counts as modified has been decided anew.
  void modifiedChanged();

private:
  bool settle(bool done);

  SysCarto::MapDocument document_;
  QByteArray fileDigest_;  // of the file, as it is known here
  bool isFileGivenUp_ = false;
  bool keepsEarlier_ = false;
};
