#pragma once

#include <SysCarto/Layer.h>

#include <QObject>
#include <QStringList>

#include <vector>

class DocumentSession;
class DocumentViews;
class HostCommands;
class QMimeData;
class QPoint;
class QWidget;
struct NewLayer;

/// Layers as a person adds them: files chosen or dropped, a dialog with their layers, progress with a way out.
class LayerAdding final : public QObject {
  Q_OBJECT

public:
  /// All are borrowed; `parent` is that of the dialogs.
  LayerAdding(DocumentSession& session, DocumentViews& views, QWidget& parent);
  ~LayerAdding() override;

  /// The local files and folders that are dragged; empty where one of them has not the name of data.
  static QStringList filesIn(QMimeData const& data);

  /// Asks for one file of data; empty where none is chosen.
  static QString askForFile(DocumentSession const& session, QString const& title, QWidget* parent);

  /// The commands that add layers by `self`, which may be made after them.
  static void addTo(HostCommands& host, LayerAdding& self);

  /// Asks for files, and adds what a person chooses of them.
  void chooseFiles();

  /// Asks for a connection where there are several, and adds what a person chooses of its tables.
  void chooseTables();

  /// Adds what a person chooses of files and of the files in folders.
  void addFiles(QStringList const& paths);

  /// The same for what is dropped at a place of the screen: into the map of the data frame that lies there.
  void drop(QStringList const& paths, QPoint const& at);

  /// New layers come above this one; above which it is decided by their kind where it is empty.
  void setChosen(SysUtility::_ptr_t<SysCarto::Layer> const& layer) { chosen_ = layer; }

signals:
  /// Something is to be said of what was added.
  void told(QString const& sentences);

private:
  void add(std::vector<NewLayer> const& wanted);
  void complain(QString const& sentence);

  DocumentSession& session_;
  DocumentViews& views_;
  QWidget& parent_;
  SysUtility::_ptr_t<SysCarto::Layer> chosen_;
};
