#include "MainWindow.h"

#include "BoxTitles.h"
#include "ElementList.h"
#include "Icons.h"
#include "IndexCache.h"
#include "NoticeBar.h"
#include "OutsideFiles.h"
#include "PropertyPanel.h"
#include "drawing/Ruler.h"
#include "layers/LayerClasses.h"
#include "layers/LayerPanels.h"
#include "output/FontNotes.h"
#include "recovery/RecoveryDialog.h"
#include "series/PageChooser.h"

#include "host/SysAdapterUI/ContentsTree.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/maps/MapSteps.h"
#include "host/SysUtility/ScaleText.h"

#include <SysCarto/Map.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QUndoView>
#include <QVBoxLayout>

using SysUtility::scaleDenominatorOf;

namespace {

constexpr QSize firstSize(1280, 860);
constexpr int contentsWidthPx = 230;
constexpr int propertiesWidthPx = 300;
constexpr int labelMarginPx = 8;
constexpr int refusalMs = 8000;
QString const geometryKey = QStringLiteral("window/geometry");
QString const stateKey = QStringLiteral("window/state");
QString const rulersKey = QStringLiteral("view/rulers"), guidesKey = QStringLiteral("view/guides"),
              snappingKey = QStringLiteral("view/snapping"), earlierKey = QStringLiteral("files/keepsEarlier");
constexpr int stateVersion = 1;  // of the toolbars and docks

// The one local document that is dragged; empty where something else is.
QString documentIn(QMimeData const& data) {
  QList<QUrl> const urls = data.urls();
  QString const path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
  return path.endsWith(QLatin1String(".kdx"), Qt::CaseInsensitive) ? path : QString();
}

QRect within(QRect const& room, QRect place) {
  place.setSize(place.size().boundedTo(room.size()));
  QPoint const farthest = room.bottomRight() - place.bottomRight() + place.topLeft();
  place.moveTo(qBound(room.left(), place.left(), farthest.x()), qBound(room.top(), place.top(), farthest.y()));
  return place;
}

QLabel* addLabel(QStatusBar& bar, QString const& widest, QString const& toolTip) {
  auto* const label = new QLabel(&bar);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest) + 2 * labelMarginPx);
  label->setToolTip(toolTip);
  label->setContentsMargins(labelMarginPx, 0, labelMarginPx, 0);
  bar.addPermanentWidget(label);
  return label;
}

}  // namespace

class MainWindow::Companion final : public SysAdapterUI::ICompanion {
public:
  explicit Companion(SysAdapterUI::TOCControl& control) : control_(control) {}
  void SetBuddy(SysCarto::IKdxContents* contents) override { control_.SetBuddy(contents); }

private:
  SysAdapterUI::TOCControl& control_;
};

MainWindow::MainWindow()
    : bench_([this](HostCommands& host) { addWindowCommands(host); }),
      files_(bench_.session(), *this),
      adding_(bench_.session(), bench_.views(), *this),
      question_(bench_.session(), *this),
      recovery_(bench_.session(), [this] { return bench_.views().currentWidget()->grab().toImage(); }) {
  new BoxTitles(this);
  setAcceptDrops(true);
  setWindowIcon(loadIcon(QStringLiteral("layout-view")));
  resize(firstSize);
  buildViews();
  buildContents();
  buildProperties();
  buildHistory();
  buildStatusBar();
  actions_ = std::make_unique<ActionTable>(bench_.commands(), *this);
  auto* const recent = new QMenu(tr("Open Recent"), this);
  files_.fillWithRecent(*recent);
  QMenu* const fileMenu = actions_->menu(QStringLiteral("File"));
  int const afterOpen = fileMenu->actions().indexOf(actions_->find(QStringLiteral("Host_Open"))) + 1;
  fileMenu->insertMenu(fileMenu->actions().value(afterOpen), recent);

  connect(&bench_.views(), &DocumentViews::changed, actions_.get(), &ActionTable::refreshSoon);
  for (QDockWidget const* dock : {contentsDock_, historyDock_})
    connect(dock, &QDockWidget::visibilityChanged, actions_.get(), &ActionTable::refreshSoon);
  for (auto const changed : {&DocumentSession::historyChanged, &DocumentSession::replaced}) {
    connect(&bench_.session(), changed, this, [this] { contents_->Refresh(); });
    connect(&bench_.session(), changed, actions_.get(), &ActionTable::refreshSoon);
  }
  connect(actions_.get(), &ActionTable::refreshed, this, &MainWindow::showState);
  connect(actions_.get(), &ActionTable::refreshed, properties_, &PropertyPanel::follow);
  connect(actions_.get(), &ActionTable::refreshed, elements_, &ElementList::follow);
  connect(properties_, &PropertyPanel::editing, actions_.get(), &ActionTable::refreshSoon);
  connect(properties_, &QDockWidget::visibilityChanged, actions_.get(), &ActionTable::refreshSoon);
  connectFiles();
  auto& tree = SysAdapterUI::ContentsTree::of(*contents_);
  layers_.setTree(tree, *actions_);
  connect(&tree, &SysAdapterUI::ContentsTree::filesDropped, this, [this](auto const& files, auto const& place) {
    bench_.views().focusOn(place.map);
    adding_.setChosen(LayerActions::layerBelow(place));
    adding_.addFiles(files);
  });
  restoreState();
  contents_->SetBuddy(&bench_.views());
  bench_.session().create();
  bench_.views().layoutView().setFocus();  // keys work on the page from the start
  if (bench_.plugin().state() != PluginLibrary::State::Loaded)
    QMessageBox::warning(this, tr("Plotvane"), bench_.plugin().reason());
}

// The desktop forgets the table of contents, and the views their follower, before they are destroyed.
MainWindow::~MainWindow() {
  hide();  // what has the focus is left while there is what it works on
  bench_.views().disconnect();
  bench_.session().disconnect(this);
  bench_.desktop().setTableOfContents(nullptr);
  bench_.views().setCompanion(nullptr);
}

void MainWindow::addWindowCommands(HostCommands& host) {
  auto const modified = [this] {
    return bench_.session().isModified() || bench_.session().path().isEmpty() || properties_->isEditing() ||
           layers_.isEditing();
  };
  layers_.addTo(host);
  output_.addTo(host);
  print_.addTo(host);
  OutsideFiles::addTo(host, *this);
  IndexCache::addTo(host);
  auto const always = std::function<bool()>(), never = always;
  host.add(QStringLiteral("Host_New"), {[this] { files_.create(); }, always, always});
  host.add(QStringLiteral("Host_NewFromData"), {[this] { makeFromData(); }, always, always});
  host.add(QStringLiteral("Host_Open"), {[this] { files_.open(); }, always, always});
  auto const redrawnAs = [this](bool (DocumentFiles::*save)()) {  // a text of the page may hold the file's name
    return [this, save] {
      QString const before = bench_.session().path();
      if ((files_.*save)() && bench_.session().path() != before) bench_.views().redraw();
    };
  };
  host.add(QStringLiteral("Host_Save"), {redrawnAs(&DocumentFiles::save), modified, always});
  host.add(QStringLiteral("Host_SaveAs"), {redrawnAs(&DocumentFiles::saveAs), always, always});
  LayerAdding::addTo(host, adding_);
  host.add(QStringLiteral("Host_Contents"), {[this] { contentsDock_->setVisible(!contentsDock_->isVisible()); }, always,
                                             [this] { return contentsDock_->isVisible(); }});
  host.add(QStringLiteral("Host_Properties"), {[this] {
                                                 properties_->setVisible(!properties_->isVisible());
                                                 if (properties_->isVisible()) properties_->widget()->setFocus();
                                               },
                                               always, [this] { return properties_->isVisible(); }});
  host.add(QStringLiteral("Host_Classify"), {[this] {
                                               QString const told = LayerClasses::ask(bench_.session().document(),
                                                                                      properties_->layer(), this);
                                               if (!told.isEmpty()) notice_->tell(told, false);
                                             },
                                             [this] { return properties_->layer() != nullptr; }, always});
  host.add(QStringLiteral("Host_History"), {[this] { historyDock_->setVisible(!historyDock_->isVisible()); }, always,
                                            [this] { return historyDock_->isVisible(); }});
  host.add(QStringLiteral("Host_AttributeTable"),
           {[this] { panels_->showTable(); }, [this] { return panels_->hasTable(); }, never});
  host.add(QStringLiteral("Host_Rulers"), {[this] {
                                             hasRulers_ = !hasRulers_;
                                             showRulers();
                                           },
                                           always, [this] { return hasRulers_; }});
  host.add(QStringLiteral("Host_Quit"), {[this] { QTimer::singleShot(0, this, &QWidget::close); }, always, always});
  host.add(QStringLiteral("Host_About"), {[this] { showAbout(); }, always, always});
}

// What was chosen is told, so that it can be chosen otherwise.
void MainWindow::makeFromData() {
  QStringList const reasons = files_.createFromData();
  if (!reasons.isEmpty()) notice_->tell(reasons.join(QLatin1Char('\n')), false);
}

void MainWindow::buildViews() {
  auto* const centre = new QWidget(this);
  auto* const box = new QVBoxLayout(centre);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(0);
  tabs_ = new QTabBar(centre);
  tabs_->setShape(QTabBar::RoundedSouth);
  tabs_->setDrawBase(false);
  tabs_->setExpanding(false);
  tabs_->addTab(loadIcon(QStringLiteral("layout-view")), tr("Page Layout"));
  tabs_->addTab(loadIcon(QStringLiteral("map-view")), tr("Map"));
  notice_ = new NoticeBar(centre);
  box->addWidget(notice_);
  auto* const grid = new QGridLayout;
  grid->setSpacing(0);
  rulers_ = {new Ruler(Qt::Horizontal, bench_.views(), centre), new Ruler(Qt::Vertical, bench_.views(), centre)};
  grid->addWidget(rulers_[0], 0, 1);
  grid->addWidget(rulers_[1], 1, 0);
  grid->addWidget(&bench_.views(), 1, 1);
  box->addLayout(grid, 1);
  box->addWidget(new PageChooser(bench_.series(), centre));
  box->addWidget(tabs_);
  setCentralWidget(centre);
  connect(tabs_, &QTabBar::currentChanged, this,
          [this](int index) { bench_.views().show(static_cast<DocumentViews::Kind>(index)); });
  connect(&bench_.views(), &QStackedWidget::currentChanged, tabs_, &QTabBar::setCurrentIndex);
  connect(&bench_.views(), &QStackedWidget::currentChanged, this, &MainWindow::showRulers);
  connect(&bench_.views().layoutView(), &ViewWidget::pointed, this, &MainWindow::showPointer);
  connect(&bench_.views().layoutView(), &ViewWidget::left, this, [this] { position_->clear(); });
}

// A map has no place on the page to measure from.
void MainWindow::showRulers() {
  for (QWidget* const ruler : rulers_)
    ruler->setVisible(hasRulers_ && bench_.views().kind() == DocumentViews::Kind::Layout);
}

void MainWindow::connectFiles() {
  connect(&files_, &DocumentFiles::told, notice_, &NoticeBar::tell);
  connect(&files_, &DocumentFiles::dataReplaced, this, [this] {
    contents_->Refresh();
    bench_.views().redraw();
  });
  connect(&bench_.session(), &DocumentSession::replaced, notice_, &QWidget::hide);
  new OutsideFiles(files_, bench_.session(), *notice_);
  new FontWatch(bench_.views(), bench_.session(), *notice_);
  connect(&bench_.session(), &DocumentSession::modifiedChanged, actions_.get(), &ActionTable::refreshSoon);
  connect(notice_, &NoticeBar::reloadWanted, this, [this] {
    finishTyping();
    if (files_.reload()) notice_->tell({}, false);
  });
  connect(notice_, &NoticeBar::keepWanted, &files_, &DocumentFiles::keep);
  bench_.commands().setGuard([this](CommandEntry const& entry) {
    properties_->finish();
    layers_.finishTyping();
    if (!OutputCommands::draws(entry.identifier)) return question_.mayRun(entry.identifier);
    recovery_.keep();
    return files_.mayExport();
  });
  connect(&bench_.commands(), &CommandSet::failed, this, [this](QString const& sentence) {
    QMessageBox box(QMessageBox::Critical, tr("Plotvane"), sentence, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
  });
}

void MainWindow::buildContents() {
  contents_ = new SysAdapterUI::TOCControl(this);
  contents_->setMinimumWidth(contentsWidthPx / 2);
  contentsDock_ = new QDockWidget(tr("Contents"), this);
  contentsDock_->setObjectName(QStringLiteral("dockWidget_Contents"));
  elements_ = new ElementList(bench_.session(), this);
  auto* const parts = new QSplitter(Qt::Vertical, this);
  parts->addWidget(contents_);
  parts->addWidget(elements_);
  parts->setChildrenCollapsible(false);
  parts->setSizes({1, 1});
  contentsDock_->setWidget(parts);
  addDockWidget(Qt::LeftDockWidgetArea, contentsDock_);
  resizeDocks({contentsDock_}, {contentsWidthPx}, Qt::Horizontal);
  companion_ = std::make_unique<Companion>(*contents_);
  bench_.views().setCompanion(companion_.get());
  bench_.desktop().setTableOfContents(contents_);
  connect(contents_, &SysAdapterUI::TOCControl::MapChosen, &bench_.views(), &DocumentViews::focusOn);
}

void MainWindow::buildProperties() {
  properties_ = new PropertyPanel(bench_.session(), this);
  addDockWidget(Qt::RightDockWidgetArea, properties_);
  resizeDocks({properties_}, {propertiesWidthPx}, Qt::Horizontal);
  connect(&bench_.views().layoutView(), &ViewWidget::pressed, properties_, &PropertyPanel::showSelection);
  connect(&bench_.views().layoutView(), &LayoutView::propertiesWanted, properties_, [this] {
    properties_->show();
    properties_->raise();
    properties_->widget()->setFocus();
  });
  connect(&SysAdapterUI::ContentsTree::of(*contents_), &SysAdapterUI::ContentsTree::rowsChosen, properties_,
          &PropertyPanel::showRows);
  panels_ = new LayerPanels(bench_, *this);
  panels_->setParent(this);
  connect(contents_, &SysAdapterUI::TOCControl::RowChosen, panels_, &LayerPanels::choose);
  connect(elements_, &ElementList::chosen, properties_, &PropertyPanel::showSelection);
  auto const tell = [this](QString const& sentence) { notice_->tell(sentence, false); };
  connect(properties_, &PropertyPanel::told, notice_, tell);
  connect(&recovery_, &RecoveryCopy::told, notice_, tell);
  connect(&adding_, &LayerAdding::told, notice_, tell);
  connect(contents_, &SysAdapterUI::TOCControl::RowChosen, &adding_,
          [this](auto const&, auto const& layer) { adding_.setChosen(layer); });
  connect(panels_, &LayerPanels::told, notice_, tell);
  connect(elements_, &ElementList::told, notice_, tell);
  connect(&layers_, &LayerCommands::told, notice_, tell);
}

void MainWindow::buildHistory() {
  auto* const steps = new QUndoView(SysCarto::MapDocumentHost::history(bench_.session().document()), this);
  steps->setEmptyLabel(tr("Beginning"));
  steps->setFrameShape(QFrame::NoFrame);
  historyDock_ = new QDockWidget(tr("History"), this);
  historyDock_->setObjectName(QStringLiteral("dockWidget_History"));
  historyDock_->setWidget(steps);
  addDockWidget(Qt::RightDockWidgetArea, historyDock_);
  historyDock_->hide();
}

void MainWindow::buildStatusBar() {
  position_ =
      addLabel(*statusBar(), tr("x 000.00 cm  y 000.00 cm"), tr("Place on the page, from its lower left corner"));
  scale_ = new QLineEdit(this);
  scale_->setObjectName(QStringLiteral("lineEdit_MapScale"));
  scale_->setToolTip(tr("Scale of the map in the focus data frame; type another one"));
  scale_->setFixedWidth(scale_->fontMetrics().horizontalAdvance(QStringLiteral("1:000,000,000")) + 3 * labelMarginPx);
  connect(scale_, &QLineEdit::editingFinished, this, &MainWindow::takeScale);
  connect(scale_, &QLineEdit::returnPressed, this, [this] { bench_.views().currentWidget()->setFocus(); });
  statusBar()->addPermanentWidget(new QLabel(tr("Map"), this));
  statusBar()->addPermanentWidget(scale_);
  zoom_ = addLabel(*statusBar(), tr("Zoom 0000 %"), tr("Size of the page on the screen; 100 % is its size on paper"));
}

void MainWindow::restoreState() {
  QSettings const settings;
  restoreGeometry(settings.value(geometryKey).toByteArray());
  // A place of another scale factor is refused or taken as it is, and the first size is too large for some screens.
  QScreen const* const under = QGuiApplication::screenAt(geometry().center());
  QRect const place = within((under ? under : screen())->availableGeometry(), geometry());
  if (place != geometry() && !isMaximized() && !isFullScreen()) setGeometry(place);
  QMainWindow::restoreState(settings.value(stateKey).toByteArray(), stateVersion);
  auto& view = bench_.views().layoutView();
  hasRulers_ = settings.value(rulersKey, true).toBool();
  view.setShowsAids(settings.value(guidesKey, true).toBool());
  view.setSnaps(settings.value(snappingKey, true).toBool());
  bench_.session().setKeepsEarlier(settings.value(earlierKey, true).toBool());
  showRulers();
}

void MainWindow::keepState() {
  QSettings settings;
  settings.setValue(geometryKey, saveGeometry());
  settings.setValue(stateKey, saveState(stateVersion));
  settings.setValue(rulersKey, hasRulers_);
  settings.setValue(guidesKey, bench_.views().layoutView().showsAids());
  settings.setValue(snappingKey, bench_.views().layoutView().snaps());
  settings.setValue(earlierKey, bench_.session().keepsEarlier());
}

void MainWindow::showState() {
  auto& session = bench_.session();
  setWindowTitle(
      (files_.isReadOnly() ? tr("%1[*] (read-only) – Plotvane") : tr("%1[*] – Plotvane")).arg(session.title()));
  setWindowModified(session.isModified());
  auto const stack = session.document().GetOperationStack();
  for (auto const& [identifier, name] :
       {std::make_pair("Host_Undo", stack->GetUndoName()), std::make_pair("Host_Redo", stack->GetRedoName())}) {
    auto const* const command = bench_.commands().find(QLatin1String(identifier));
    QAction* const action = actions_->find(command->entry.identifier);
    action->setText(name.isEmpty() ? command->entry.caption : tr("%1: %2").arg(command->entry.caption, name));
  }
  auto const layout = bench_.views().GetPageLayout();
  auto const map = layout ? layout->GetFocusMap() : nullptr;
  contents_->ShowFocus(map);
  double const denominator = map ? map->scale() : 0;
  auto const frame = layout ? layout->GetFocusMapFrameElement() : nullptr;
  scale_->setEnabled(denominator > 0 && frame && !frame->IsLocked());
  if (!scale_->isModified())
    scale_->setText(denominator > 0 ? QStringLiteral("1:") + locale().toString(denominator, 'f', 0) : QString());
  double const zoom = layout ? layout->GetDisplayTransformation()->GetPageScale() : 0;
  zoom_->setText(zoom > 0 ? tr("Zoom %1 %").arg(100 * zoom, 0, 'f', zoom < 0.1 ? 1 : 0) : QString());
}

void MainWindow::showPointer(QPoint const& positionPx) {
  auto const layout = bench_.views().GetPageLayout();
  if (!layout) return position_->clear();
  auto const point = layout->GetDisplayTransformation()->ToMapPoint(positionPx);
  position_->setText(tr("x %1 cm  y %2 cm").arg(point->GetX(), 0, 'f', 2).arg(point->GetY(), 0, 'f', 2));
}

// About the map's centre, where the scale is true. What is no scale is told, and gives way to the one there is.
void MainWindow::takeScale() {
  if (!scale_->isModified()) return;
  scale_->setModified(false);
  auto const wanted = scaleDenominatorOf(scale_->text());
  if (!wanted)
    statusBar()->showMessage(
        tr("“%1” is no scale; type one like 1:25,000, 10M or 12.5 million").arg(scale_->text().left(40)), refusalMs);
  auto const layout = bench_.views().GetPageLayout();
  auto const map = layout ? layout->GetFocusMap() : nullptr;
  if (map && wanted) SysCarto::MapSteps::setScale(*map, *wanted);
  showState();
}

void MainWindow::showAbout() {
  QMessageBox::about(this, tr("About Plotvane"),
                     tr("<b>Plotvane %1</b><p>Lays out printed maps.</p><p>MIT licence.</p>")
                         .arg(QCoreApplication::applicationVersion()));
}

// What is being typed belongs to the document that is about to be left.
void MainWindow::finishTyping() {
  properties_->finish();
  layers_.finishTyping();
  bench_.views().layoutView().finishEditing();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  finishTyping();
  if (!files_.mayLeave()) return event->ignore();
  keepState();
  event->accept();
}

// The icons are drawn anew by themselves, the pictures of the views and the list's symbols are not.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) files_.look();
  if (event->type() == QEvent::PaletteChange && contents_)
    bench_.views().layoutView().refresh(SysCarto::RefreshPhase::Everything);
}

// An Escape that no panel has a use for leads back to the page.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return bench_.views().currentWidget()->setFocus();
  QMainWindow::keyPressEvent(event);
}

void MainWindow::contextMenuEvent(QContextMenuEvent* event) {
  if (!bench_.views().rect().contains(bench_.views().mapFromGlobal(event->globalPos())))
    return QMainWindow::contextMenuEvent(event);
  QMenu menu;
  for (char const* identifier :
       {"Host_Undo", "Host_Redo", "", "Host_Cut", "Host_Copy", "Host_Paste", "Host_Duplicate", "Host_Delete", "",
        "Host_SelectAll", "Host_Unselect", "", "Host_Group", "Host_Ungroup", "Plotvane_BringToFrontElements",
        "Plotvane_SendToBackElements", "", "Plotvane_ZoomToWhole", "Plotvane_ZoomToOrigin"}) {
    if (QAction* const action = actions_->find(QLatin1String(identifier)))
      menu.addAction(action);
    else
      menu.addSeparator();
  }
  menu.exec(event->globalPos());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  QMimeData const& data = *event->mimeData();
  if (!documentIn(data).isEmpty() || !LayerAdding::filesIn(data).isEmpty()) event->acceptProposedAction();
}

// The program that it comes from waits for this one.
void MainWindow::dropEvent(QDropEvent* event) {
  QString const document = documentIn(*event->mimeData());
  QStringList const data = LayerAdding::filesIn(*event->mimeData());
  if (document.isEmpty() && data.isEmpty()) return;
  event->acceptProposedAction();
  finishTyping();
  QPoint const at = mapToGlobal(event->pos());
  QTimer::singleShot(0, this, [=] {
    if (!document.isEmpty())
      open(document);
    else
      adding_.drop(data, at);
  });
}

bool MainWindow::recover(QString const& path) {
  bool const isRecovered = offerRecovery(bench_.session(), recovery_, path, *notice_);
  if (isRecovered) files_.takeOver();
  return isRecovered;
}

int runWindow(QString const& path) {
  MainWindow window;
  window.show();
  QTimer::singleShot(0, &window, [&window, path] {
    if (!window.recover(path) && !path.isEmpty()) window.open(path);
  });
  return QApplication::exec();
}
