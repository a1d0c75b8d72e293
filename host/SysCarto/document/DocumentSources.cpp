#include "DocumentSources.h"

#include "DocumentFields.h"

#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysUtility/FileReach.h"
#include "host/SysUtility/JsonFile.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/MapDocument.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DocumentSources)
};

bool drawsFrom(Layer const& layer, QStringList const& files) {
  auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
  QStringList const own = filesOf(layer) + QStringList(vector ? vector->source().origin() : QString());
  return std::any_of(own.begin(), own.end(), [&](QString const& file) { return files.contains(file); });
}

template <class OnPicture>
void visitPictures(QList<_ptr_t<Element>> const& elements, OnPicture const& onPicture) {
  for (auto const& element : elements) {
    if (auto const group = ptr_cast<GroupElement>(element)) visitPictures(group->GetElements(), onPicture);
    if (auto const picture = ptr_cast<PictureElement>(element)) onPicture(*picture);
  }
}

template <class OnLayer, class OnPicture>
void visitSources(PageLayout const& layout, OnLayer const& onLayer, OnPicture const& onPicture) {
  visitPictures(layout.GetGraphicsContainer()->GetElements(), onPicture);
  for (auto const& map : mapsOf(layout)) {
    visitPictures(map->GetGraphicsContainer()->GetElements(), onPicture);
    for (auto const& layer : map->GetLayers()) onLayer(*map, *layer);
  }
}

template <class OnLayer>
void visitVectors(PageLayout const& layout, OnLayer const& onLayer) {
  visitSources(
      layout,
      [&](Map const&, Layer const& layer) {
        if (auto const* const vector = dynamic_cast<VectorLayer const*>(&layer)) onLayer(*vector);
      },
      [](PictureElement const&) {});
}

QString sentenceOf(Layer const& layer, QString const& said) {
  return Texts::tr("Layer “%1”: %2").arg(layer.GetName(), said);
}

}  // namespace

QString DocumentSource::outside(SysUtility::FileReach const& reach) const {
  using With = SysUtility::FileReach::With;
  return file.isEmpty() ? QString() : reach.outside(file, use == Use::Picture ? With::Nothing : With::Companions);
}

QVector<DocumentSource> sourcesOf(PageLayout const& layout) {
  using Use = DocumentSource::Use;
  QVector<DocumentSource> sources;
  auto const addTables = [&](SourceSettings const& source, QString const& user) {
    for (TableJoin const& join : source.joins) sources.append({join.file, Use::Table, user, QString()});
  };
  SourceSettings const& ofSeries = PageLayoutHost::series(layout).source;
  if (ofSeries.isGiven())
    sources.append({ofSeries.connection.isEmpty() ? ofSeries.file : QString(), Use::Series, QString(), QString(),
                    ofSeries.connection, ofSeries.layer});
  addTables(ofSeries, QString());
  visitSources(
      layout,
      [&](Map const&, Layer const& layer) {
        QString problem = failureOf(layer);
        if (!problem.isEmpty()) problem = sentenceOf(layer, problem);
        Use use = Use::Layer;
        auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
        if (vector && !vector->source().connection.isEmpty())
          sources.append({QString(), std::exchange(use, Use::Table), layer.GetName(), std::exchange(problem, QString()),
                          vector->source().connection, vector->source().layer});
        for (QString const& file : filesOf(layer))
          sources.append({file, std::exchange(use, Use::Table), layer.GetName(), std::exchange(problem, QString())});
      },
      [&](PictureElement const& picture) {
        if (picture.data().isEmpty() && !picture.path().isEmpty())
          sources.append({picture.path(), Use::Picture, picture.GetName(), picture.problem()});
      });
  return sources;
}

QStringList laterWarnings(MapDocument const& document) {
  QStringList warnings;
  auto const layout = document.GetPageLayout();
  if (!layout) return warnings;
  QStringList const told = document.GetWarnings();
  visitSources(
      *layout,
      [&](Map const&, Layer const& layer) {
        for (QString const& warning : warningsOf(layer))
          if (told.filter(warning).isEmpty()) warnings << sentenceOf(layer, warning);
      },
      [](PictureElement const&) {});
  return warnings;
}

QStringList readingWarnings(MapDocument const& document) {
  QStringList warnings;
  auto const layout = document.GetPageLayout();
  if (!layout) return warnings;
  QString const path = document.GetPath();
  visitVectors(*layout, [&](VectorLayer const& layer) {
    for (QString const& said : QStringList(layer.problem()) + layer.warnings()) {
      QString const sentence = sentenceOf(layer, said);
      if (!said.isEmpty()) warnings << (path.isEmpty() ? sentence : SysUtility::aboutFile(path, sentence));
    }
  });
  return warnings;
}

bool isBeingRead(PageLayout const& layout) {
  bool isAny = false;
  visitVectors(layout, [&](VectorLayer const& layer) { isAny = isAny || layer.isBeingRead(); });
  return isAny;
}

bool waitForData(PageLayout const& layout, ReadProgress const& progress) {
  bool goesOn = true;
  visitVectors(layout, [&](VectorLayer const& layer) { goesOn = goesOn && layer.wait(progress); });
  return goesOn;
}

void readAgain(PageLayout const& layout, QStringList const& files) {
  visitSources(
      layout,
      [&](Map const& map, Layer& layer) {
        QStringList warnings;
        if (drawsFrom(layer, files)) readAgain(layer, map.GetCoordinateSystem(), warnings);
      },
      [&](PictureElement& picture) {
        if (files.contains(picture.path())) picture.readAgain();
      });
}

}  // namespace SysCarto
