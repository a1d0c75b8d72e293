#include "LayerAdding.h"

#include "AddLayersDialog.h"
#include "ReadingProgress.h"

#include "host/SysCarto/layers/Connections.h"
#include "host/SysCarto/layers/raster/RasterSource.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/connections/ConnectionAccess.h"

#include <SysCarto/Map.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>

namespace {

QString const folderKey = QStringLiteral("data/folder");

QString filters() {
  QStringList all, each;
  QVector<SysCarto::DataFormat> const formats = SysCarto::dataFormats() + SysCarto::rasterFormats();
  for (SysCarto::DataFormat const& format : formats) {
    QStringList patterns;
    for (QString const& suffix : QString::fromLatin1(format.suffixes).split(QLatin1Char(' ')))
      patterns << QStringLiteral("*.") + suffix;
    QString const text = patterns.join(QLatin1Char(' '));
    for (QString const& pattern : qAsConst(patterns))
      if (!all.contains(pattern)) all << pattern;
    each << QStringLiteral("%1 (%2)").arg(QString::fromUtf8(format.name), text);
  }
  return QStringList({LayerAdding::tr("All data (%1)").arg(all.join(QLatin1Char(' '))), each.join(QStringLiteral(";;")),
                      LayerAdding::tr("All files (*)")})
      .join(QStringLiteral(";;"));
}

QString startFolder(DocumentSession const& session) {
  QString const document = session.path().isEmpty() ? QString() : QFileInfo(session.path()).absolutePath();
  return QSettings().value(folderKey, document).toString();
}

void keepFolder(QString const& file) { QSettings().setValue(folderKey, QFileInfo(file).absolutePath()); }

}  // namespace

LayerAdding::LayerAdding(DocumentSession& session, DocumentViews& views, QWidget& parent)
    : session_(session), views_(views), parent_(parent) {
  connect(&session, &DocumentSession::replaced, this, [this] { chosen_ = nullptr; });
}

LayerAdding::~LayerAdding() = default;

QStringList LayerAdding::filesIn(QMimeData const& data) {
  QStringList paths;
  for (QUrl const& url : data.urls()) {
    QString const path = url.toLocalFile();
    if (path.isEmpty() || !(QFileInfo(path).isDir() || SysCarto::isDataFileName(path))) return {};
    paths << path;
  }
  return paths;
}

QString LayerAdding::askForFile(DocumentSession const& session, QString const& title, QWidget* parent) {
  QString const file = QFileDialog::getOpenFileName(parent, title, startFolder(session), filters());
  if (!file.isEmpty()) keepFolder(file);
  return file;
}

void LayerAdding::chooseFiles() {
  QStringList const files = QFileDialog::getOpenFileNames(&parent_, tr("Add Layers"), startFolder(session_), filters());
  if (files.isEmpty()) return;
  keepFolder(files.first());
  addFiles(files);
}

void LayerAdding::addTo(HostCommands& host, LayerAdding& self) {
  auto const hasPage = [&self] {
    auto const layout = self.views_.GetPageLayout();
    return layout && layout->GetPage();
  };
  host.add(QStringLiteral("Host_AddLayer"), {[&self] { self.chooseFiles(); }, hasPage, {}});
  host.add(QStringLiteral("Host_AddTables"), {[&self] { self.chooseTables(); }, hasPage, {}});
}

void LayerAdding::chooseTables() {
  QStringList const names = SysCarto::Connections::names();
  if (names.isEmpty()) return complain(tr("No connection to a database is known; Edit › Connections… adds one."));
  bool isChosen = true;
  QString const name = names.size() == 1 ? names.first()
                                         : QInputDialog::getItem(&parent_, tr("Add Layers from Database"),
                                                                 tr("Connection:"), names, 0, false, &isChosen);
  auto const file = isChosen ? ConnectionAccess::describe(name, parent_) : std::nullopt;
  if (!file) return;
  if (!file->error.isEmpty()) return complain(file->error);
  AddLayersDialog dialog({file->path}, &parent_);
  if (dialog.exec() != QDialog::Accepted) return;
  SysCarto::Connections::choose(name);
  add(dialog.chosen());
}

void LayerAdding::addFiles(QStringList const& paths) {
  QStringList files;
  for (QString const& path : paths)
    if (QFileInfo(path).isDir())
      files += SysCarto::dataFilesIn(path).toList();
    else
      files << QFileInfo(path).absoluteFilePath();
  if (files.isEmpty()) return complain(tr("There is no file of data in “%1”.").arg(paths.join(QStringLiteral("”, “"))));
  AddLayersDialog dialog(files, &parent_);
  if (dialog.exec() == QDialog::Accepted) add(dialog.chosen());
}

void LayerAdding::drop(QStringList const& paths, QPoint const& at) {
  auto& view = views_.layoutView();
  auto const layout = views_.GetPageLayout();
  if (layout && view.isVisible() && view.rect().contains(view.mapFromGlobal(at))) {
    auto const point = layout->GetDisplayTransformation()->ToMapPoint(view.mapFromGlobal(at));
    for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
      auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
      auto const envelope = frame ? frame->GetEnvelope() : nullptr;
      if (!envelope || point->GetX() < envelope->GetXMin() || point->GetX() > envelope->GetXMax() ||
          point->GetY() < envelope->GetYMin() || point->GetY() > envelope->GetYMax())
        continue;
      views_.focusOn(frame->GetMap());
    }
  }
  addFiles(paths);
}

void LayerAdding::add(std::vector<NewLayer> const& wanted) {
  auto const layout = views_.GetPageLayout();
  auto const map = layout ? layout->GetFocusMap() : nullptr;
  bool const isThere = map && map->GetLayers().contains(chosen_);
  QStringList warnings;
  QString problem;
  {
    ReadingProgress progress(parent_);
    problem = NewLayers::add(session_.document(), wanted, isThere ? chosen_ : nullptr, progress.watch(), warnings);
  }
  views_.redraw();
  if (!problem.isEmpty()) complain(problem);
  if (!warnings.isEmpty()) emit told(warnings.join(QLatin1Char(' ')));
}

// Plain text: a file may be called <b>.
void LayerAdding::complain(QString const& sentence) {
  QMessageBox box(QMessageBox::Warning, tr("Add Layers"), sentence, QMessageBox::Ok, &parent_);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
