#include "DocumentSources.h"

#include "DocumentFields.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysUtility/FileReach.h"

#include <SysCarto/GroupElement.h>

#include <QCoreApplication>

#include <algorithm>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DocumentSources)
};

bool drawsFrom(SourceSettings const& source, QStringList const& files) {
  return files.contains(source.file) || std::any_of(source.joins.begin(), source.joins.end(),
                                                    [&](TableJoin const& join) { return files.contains(join.file); });
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
    for (auto const& layer : map->GetLayers())
      if (auto const vector = ptr_cast<VectorLayer>(layer)) onLayer(*map, *vector);
  }
}

}  // namespace

QString DocumentSource::outside(SysUtility::FileReach const& reach) const {
  using With = SysUtility::FileReach::With;
  return reach.outside(file, use == Use::Picture ? With::Nothing : With::Companions);
}

QVector<DocumentSource> sourcesOf(PageLayout const& layout) {
  using Use = DocumentSource::Use;
  QVector<DocumentSource> sources;
  auto const addTables = [&](SourceSettings const& source, QString const& user) {
    for (TableJoin const& join : source.joins) sources.append({join.file, Use::Table, user, QString()});
  };
  SourceSettings const& ofSeries = PageLayoutHost::series(layout).source;
  if (!ofSeries.file.isEmpty()) sources.append({ofSeries.file, Use::Series, QString(), QString()});
  addTables(ofSeries, QString());
  visitSources(
      layout,
      [&](Map const&, VectorLayer const& layer) {
        if (layer.source().data != SourceSettings::Data::File) return;
        QString const& problem = layer.problem();
        sources.append({layer.source().file, Use::Layer, layer.GetName(),
                        problem.isEmpty() ? problem : Texts::tr("Layer “%1”: %2").arg(layer.GetName(), problem)});
        addTables(layer.source(), layer.GetName());
      },
      [&](PictureElement const& picture) {
        if (picture.data().isEmpty() && !picture.path().isEmpty())
          sources.append({picture.path(), Use::Picture, picture.GetName(), picture.problem()});
      });
  return sources;
}

void readAgain(PageLayout const& layout, QStringList const& files) {
  visitSources(
      layout,
      [&](Map const& map, VectorLayer& layer) {
        QStringList warnings;
        if (drawsFrom(layer.source(), files)) layer.open(layer.source(), map.GetCoordinateSystem(), warnings);
      },
      [&](PictureElement& picture) {
        if (files.contains(picture.path())) picture.readAgain();
      });
}

}  // namespace SysCarto
