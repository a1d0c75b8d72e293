#include "MapDocumentHost.h"
#include "DocumentFields.h"
#include "OperationStack.h"
#include "PageTexts.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/layout/PageLimits.h"
#include "host/SysCarto/layout/PageOrder.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysUtility/ChangeMark.h"
#include "host/SysUtility/FileReach.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFields.h"
#include "host/SysUtility/JsonFile.h"

#include <SysDisplay/Units.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QUndoStack>

#include <algorithm>
#include <cmath>
#include <utility>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::aboutFile;
using SysUtility::make;

namespace {

constexpr int thumbnailPx = 256;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapDocument)
};

SysUtility::JsonFileKind documentKind() { return {Texts::tr("map document"), QStringLiteral(".kdx"), 256}; }

// Where its relative paths begin: a document that is a link is the file that it leads to.
QString folderOf(QString const& path) { return QFileInfo(SysUtility::FileSaver::realPath(path)).absolutePath(); }

// Written like every file of ours, so that a full disk does not leave half a backup in the place of a whole one. Where
// the folder takes no new files, the document is saved all the same, without one.
QString keepOldFile(QString const& path) {
  QFile file(path);
  QString const backup = SysUtility::FileSaver::realPath(path) + QLatin1Char('~');
  bool const hasRoom = QFile::exists(backup) || SysUtility::FileSaver::checkPlace(backup).isEmpty();
  if (!file.exists() || !hasRoom) return QString();
  bool const isOpen = file.open(QIODevice::ReadOnly);
  QByteArray const old = isOpen ? file.readAll() : QByteArray();
  if (isOpen && file.error() == QFileDevice::NoError) return SysUtility::FileSaver::save(backup, old);
  return aboutFile(path, Texts::tr("the old file can't be read to keep it as a backup (%1); save without a backup")
                             .arg(file.errorString()));
}

// Told as the page lies, which is how its sides are typed; the file has them as they are when it stands upright.
QString problemOfSides(Page const& page) {
  double widthCm, heightCm;
  page.QuerySize(widthCm, heightCm);
  for (auto const& [sideCm, sentence] :
       {std::make_pair(
            widthCm, Texts::tr("the page's width is %1 cm; set one of %2 to %3 cm in the page setup, then save again")),
        std::make_pair(heightCm, Texts::tr("the page's height is %1 cm; set one of %2 to %3 cm in the page setup, then "
                                           "save again"))})
    if (sideCm < minPageSideCm || sideCm > maxPageSideCm)
      return sentence.arg(sideCm).arg(minPageSideCm).arg(maxPageSideCm);
  return QString();
}

QString unknownField(QString const& field) {
  return field + Texts::tr(": this field is unknown; it has no effect and will be missing after the next save");
}

// Of any document of the program; a command's own document is gone when the command is asked what it did.
QString lastFailure, lastRemark;

}  // namespace

struct MapDocument::Private {
  explicit Private(MapDocument const* document) : operations(make<OperationStack>(&history, document)) {}
  ~Private() {
    if (texts) texts->end();
    operations->detach();
  }

  DocumentContent content;
  QString path;
  QStringList errors, warnings;
  int unreadableSources = 0;
  QUndoStack history;
  _ptr_t<OperationStack> operations;
  std::shared_ptr<Placeholders> texts;  // of the layout
  SysUtility::ChangeMark change;        // of the layout for another

  // As it is in the file.
  quint64 cleanTime = 0;
  _ptr_t<Map> cleanFocus;

  void setLayout(_ptr_t<PageLayout> const& layout);
  void becomeClean();
  quint64 lastChange() const;
  void take(QString const& newPath, DocumentContent const& newContent);
  bool failed(QString const& sentence);
  DocumentContext contextFor(QString const& file, bool relativePaths) const;
  std::optional<QJsonObject> jsonFor(QString const& file, bool relativePaths, QString& problem,
                                     std::function<bool()> const& goesOn = {}) const;
  std::optional<QByteArray> textFor(QString const& file, bool relativePaths, QString& problem) const;
  QString write(QString const& file, bool relativePaths, bool keepBackup) const;
  bool read(QJsonObject const& json, QString const& newPath, QString const& folder, ReadProgress const& progress,
            ReadDepth depth = ReadDepth::Features);
  bool open(QString const& newPath, ReadDepth depth = ReadDepth::Features);
};

// The steps of another layout name elements that this one does not hold.
void MapDocument::Private::setLayout(_ptr_t<PageLayout> const& layout) {
  auto const elementsOf = [](PageLayout const& one) {
    return static_cast<ElementContainer*>(one.GetGraphicsContainer());
  };
  // The former one may have become another document's meanwhile.
  if (content.layout && elementsOf(*content.layout)->history() == &history)
    elementsOf(*content.layout)->setHistory(nullptr);
  if (layout) elementsOf(*layout)->setHistory(&history);
  if (texts) texts->end();
  texts = layout ? pageTexts(*layout, [this] { return path; }) : nullptr;
  if (layout) elementsOf(*layout)->setPlaceholders(texts);
  content.layout = layout;
  history.clear();
  change.raise();
}

void MapDocument::Private::becomeClean() {
  history.setClean();
  cleanTime = SysUtility::ChangeMark::now();
  cleanFocus = content.layout ? content.layout->GetFocusMap() : nullptr;
}

quint64 MapDocument::Private::lastChange() const {
  quint64 last = std::max(change.time(), PageLayoutHost::lastChange(*content.layout));
  for (auto const& map : mapsOf(*content.layout)) last = std::max(last, MapHost::lastChange(*map));
  return last;
}

void MapDocument::Private::take(QString const& newPath, DocumentContent const& newContent) {
  path = newPath;
  setLayout(newContent.layout);
  content = newContent;
  becomeClean();
  errors.clear();
  warnings.clear();
  unreadableSources = 0;
}

bool MapDocument::Private::failed(QString const& sentence) {
  errors = QStringList{sentence};
  lastFailure = sentence;
  return false;
}

DocumentContext MapDocument::Private::contextFor(QString const& file, bool relativePaths) const {
  DocumentContext context;
  context.folder = folderOf(file);
  context.relativePaths = relativePaths;
  if (content.layout) context.maps = mapsOf(*content.layout);
  return context;
}

std::optional<QJsonObject> MapDocument::Private::jsonFor(QString const& file, bool relativePaths, QString& problem,
                                                         std::function<bool()> const& goesOn) const {
  auto context = contextFor(file, relativePaths);
  DocumentContent written{content.layout, relativePaths};
  SysUtility::JsonWriter writer;
  writer.askWhether(goesOn);
  written.list(writer, context);
  if (writer.ok()) return writer.json();
  problem = aboutFile(file, writer.error() + Texts::tr("; change this value, then save again"));
  return std::nullopt;
}

std::optional<QByteArray> MapDocument::Private::textFor(QString const& file, bool relativePaths,
                                                        QString& problem) const {
  auto const json = jsonFor(file, relativePaths, problem);
  return json ? std::optional(SysUtility::jsonText(*json)) : std::nullopt;
}

// Everything that can go wrong does so before the old file gives way.
QString MapDocument::Private::write(QString const& file, bool relativePaths, bool keepBackup) const {
  if (!content.layout) return Texts::tr("There is no document to save; open one or make a new one.");
  if (file.isEmpty()) return Texts::tr("The document has no file yet; save it under a name.");
  Page const* const page = content.layout->GetPage();
  QString problem = page ? problemOfSides(*page) : QString();
  if (!problem.isEmpty()) return aboutFile(file, problem);
  auto const text = textFor(file, relativePaths, problem);
  if (text && keepBackup) problem = keepOldFile(file);
  lastRemark.clear();
  return problem.isEmpty() ? SysUtility::FileSaver::save(file, *text, &lastRemark) : problem;
}

// Warnings and problems begin with the path, where there is one.
bool MapDocument::Private::read(QJsonObject const& json, QString const& newPath, QString const& folder,
                                ReadProgress const& progress, ReadDepth depth) {
  auto const about = [&newPath](QString const& sentence) {
    return newPath.isEmpty() ? sentence : aboutFile(newPath, sentence);
  };
  DocumentContent read;
  DocumentContext context;
  context.folder = folder;
  context.progress = progress;
  context.depth = depth;
  SysUtility::JsonReader reader(json);
  read.list(reader, context);
  if (context.wasStopped) return false;
  if (!reader.ok()) return failed(about(reader.error() + Texts::tr("; correct the file or open another one")));

  read.layout->ZoomToWholePage();
  take(newPath, read);
  for (QString const& field : reader.warnings()) warnings << about(unknownField(field));
  for (QString const& warning : context.warnings) warnings << about(warning);
  unreadableSources = context.unreadableSources;
  return true;
}

bool MapDocument::Private::open(QString const& newPath, ReadDepth depth) {
  QString problem = SysUtility::FileReach::refusal(newPath);
  if (!problem.isEmpty()) return failed(aboutFile(newPath, problem));
  auto const json = SysUtility::readJsonFile(newPath, documentKind(), problem);
  return json ? read(*json, newPath, folderOf(newPath), {}, depth) : failed(problem);
}

MapDocument::MapDocument() : d(std::make_unique<Private>(this)) {}
MapDocument::~MapDocument() = default;

bool MapDocument::New(QString const& path) {
  DocumentContent content;
  content.layout = make<PageLayout>();
  content.layout->SetPage(make<Page>());
  content.layout->ZoomToWholePage();
  d->take(path, content);
  return true;
}

bool MapDocument::Open(QString const& path) { return d->open(path); }

bool MapDocument::Save(bool relativePaths, bool keepBackup) { return SaveAs(d->path, relativePaths, keepBackup); }

bool MapDocument::SaveAs(QString const& path, bool relativePaths, bool keepBackup) {
  QString const problem = d->write(path, relativePaths, keepBackup);
  if (!problem.isEmpty()) return d->failed(problem);
  d->path = path;
  d->content.relativePaths = relativePaths;
  d->errors.clear();
  d->becomeClean();
  return true;
}

void MapDocument::Close() { d->take(QString(), DocumentContent()); }

_ptr_t<ActiveView> MapDocument::GetActiveView() const { return d->content.layout; }

void MapDocument::GetMaps(QList<_ptr_t<Map>>& maps) const {
  maps.clear();
  if (d->content.layout) d->content.layout->GetMaps(maps);
}

_ptr_t<Map> MapDocument::GetMap(int index) const {
  QList<_ptr_t<Map>> maps;
  GetMaps(maps);
  return maps.value(index);
}

int MapDocument::GetMapCount() const {
  QList<_ptr_t<Map>> maps;
  GetMaps(maps);
  return maps.size();
}

_ptr_t<PageLayout> MapDocument::GetPageLayout() const { return d->content.layout; }
_ptr_t<SysUI::IOperationStack> MapDocument::GetOperationStack() const { return d->operations; }

QImage MapDocument::Thumbnail() const {
  Page* const page = d->content.layout ? d->content.layout->GetPage() : nullptr;
  if (!page) return QImage();
  double widthCm = 0, heightCm = 0;
  page->QuerySize(widthCm, heightCm);
  double const pixelsPerCm = thumbnailPx / std::max(widthCm, heightCm);
  if (!std::isfinite(pixelsPerCm)) return QImage();
  QSize const size(std::max(1, qRound(widthCm * pixelsPerCm)), std::max(1, qRound(heightCm * pixelsPerCm)));

  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::white);
  auto const transformation = make<SysDisplay::DisplayTransformation>();
  transformation->SetDeviceFrame(picture.rect());
  SysDisplay::DisplayTransformationHost::setFillsWidth(*transformation, true);
  transformation->SetVisibleBounds(page->GetPageEnvelope());
  transformation->SetPageScale(pixelsPerCm * SysDisplay::cmPerInch / SysDisplay::pixelsPerInch);
  transformation->SetPaintDevice(&picture);
  QPainter painter(&picture);
  drawInPageOrder(*d->content.layout, painter, transformation,
                  [&](auto const& element) { element->Draw(painter, transformation, nullptr); });
  return picture;
}

bool MapDocument::IsUsesRelativePaths() const { return d->content.relativePaths; }

void MapDocument::ReplaceContents(_ptr_t<IKdxContents> const& contents) {
  if (contents) MapDocumentHost::setPageLayout(*this, contents->GetPageLayout());
}

QString MapDocument::GetPath() const { return d->path; }

QStringList MapDocument::GetErrors() const { return d->errors; }
QStringList MapDocument::GetWarnings() const { return d->warnings; }

// The focus comes and goes with data frames, and so with the steps of the history: it is compared, not counted.
bool MapDocument::isModified() const {
  auto const& layout = d->content.layout;
  return layout && (!d->history.isClean() || d->lastChange() > d->cleanTime || layout->GetFocusMap() != d->cleanFocus);
}

QUndoStack* MapDocumentHost::history(MapDocument const& document) { return &document.d->history; }

void MapDocumentHost::setPageLayout(MapDocument& document, _ptr_t<PageLayout> const& layout) {
  _ptr_t<PageLayout> const former = document.d->content.layout;
  if (layout == former) return;
  if (layout && former) PageLayoutHost::succeed(*layout, *former);
  document.d->setLayout(layout);
}

bool MapDocumentHost::read(MapDocument& document, QJsonObject const& json, QString const& folder,
                           ReadProgress const& progress) {
  if (!document.d->read(json, QString(), folder, progress)) return false;
  document.d->change.raise();
  return true;
}

void MapDocumentHost::takeOver(MapDocument& document, MapDocument& made) {
  DocumentContent const content = made.d->content;
  QStringList const warnings = made.d->warnings;
  int const unreadable = made.d->unreadableSources;
  made.Close();
  document.d->take(QString(), content);
  document.d->warnings = warnings;
  document.d->unreadableSources = unreadable;
  document.d->change.raise();
}

bool MapDocumentHost::open(MapDocument& document, QString const& path, ReadDepth depth) {
  return document.d->open(path, depth);
}

QByteArray MapDocumentHost::text(MapDocument const& document) {
  MapDocument::Private const& d = *document.d;
  QString problem;
  return d.content.layout ? d.textFor(d.path, d.content.relativePaths, problem).value_or(QByteArray()) : QByteArray();
}

std::optional<QJsonObject> MapDocumentHost::jsonForAnywhere(MapDocument const& document,
                                                            std::function<bool()> const& goesOn) {
  QString problem;
  return document.d->content.layout ? document.d->jsonFor(document.d->path, false, problem, goesOn) : std::nullopt;
}

quint64 MapDocumentHost::lastChange(MapDocument const& document) {
  return document.d->content.layout ? document.d->lastChange() : document.d->change.time();
}

bool MapDocumentHost::recover(MapDocument& document, QString const& copy, QString const& file, bool relativePaths) {
  if (!document.d->open(copy, ReadDepth::Later)) return false;
  document.d->path = file;
  document.d->content.relativePaths = relativePaths;
  document.d->change.raise();
  return true;
}

QString MapDocumentHost::takeLastFailure() { return std::exchange(lastFailure, QString()); }

QString MapDocumentHost::takeLastRemark() { return std::exchange(lastRemark, QString()); }

int MapDocumentHost::unreadableSources(MapDocument const& document) { return document.d->unreadableSources; }

}  // namespace SysCarto
