#include "DerivedLayer.h"

#include <cpl_string.h>

namespace SysCarto {

DerivedLayer::DerivedLayer(OGRLayer& base) : base_(base), definition_(new OGRFeatureDefn(base.GetName())) {
  definition_->Reference();
  definition_->SetGeomType(wkbNone);
  SetDescription(base.GetName());
}

DerivedLayer::~DerivedLayer() { definition_->Release(); }

OGRFeature* DerivedLayer::derived(OGRFeature& from) {
  auto* const to = new OGRFeature(definition_);
  derive(from, *to);
  to->SetFID(from.GetFID());
  return to;
}

OGRFeature* DerivedLayer::GetNextFeature() {
  while (OGRFeatureUniquePtr from{base_.GetNextFeature()}) {
    OGRFeatureUniquePtr to(derived(*from));
    bool const isNear = !m_poFilterGeom || FilterGeometry(to->GetGeometryRef());
    if (isNear && (!m_poAttrQuery || m_poAttrQuery->Evaluate(to.get()))) return to.release();
  }
  return nullptr;
}

OGRFeature* DerivedLayer::GetFeature(GIntBig number) {
  OGRFeatureUniquePtr const from(base_.GetFeature(number));
  return from ? derived(*from) : nullptr;
}

GIntBig DerivedLayer::GetFeatureCount(int isForced) {
  bool const isFiltered = m_poFilterGeom || m_poAttrQuery;
  return isFiltered ? OGRLayer::GetFeatureCount(isForced) : base_.GetFeatureCount(isForced);
}

int DerivedLayer::TestCapability(char const* capability) {
  if (EQUAL(capability, OLCStringsAsUTF8)) return TRUE;
  if (EQUAL(capability, OLCFastFeatureCount) && (m_poFilterGeom || m_poAttrQuery)) return FALSE;
  bool const isKept = EQUAL(capability, OLCRandomRead) || EQUAL(capability, OLCFastFeatureCount);
  return isKept ? base_.TestCapability(capability) : FALSE;
}

qint64 knownCount(OGRLayer& layer) {
  return layer.TestCapability(OLCFastFeatureCount) ? layer.GetFeatureCount(FALSE) : -1;
}

int fieldIndex(OGRLayer& layer, QString const& name) {
  return layer.GetLayerDefn()->GetFieldIndex(name.toUtf8().constData());
}

void readOnly(OGRLayer& layer, QStringList const& names) {
  if (!layer.TestCapability(OLCIgnoreFields)) return;
  CPLStringList ignored;
  if (names.filter(QLatin1String("OGR_"), Qt::CaseInsensitive).isEmpty()) {
    ignored.AddString("OGR_GEOMETRY");
    ignored.AddString("OGR_STYLE");
  }
  OGRFeatureDefn& definition = *layer.GetLayerDefn();
  for (int i = 0; i < definition.GetFieldCount(); ++i) {
    char const* const name = definition.GetFieldDefn(i)->GetNameRef();
    if (!names.contains(QString::fromUtf8(name), Qt::CaseInsensitive)) ignored.AddString(name);
  }
  layer.SetIgnoredFields(const_cast<char const**>(ignored.List()));
}

QString fieldNames(OGRLayer& layer) {
  constexpr int maxNames = 30;
  OGRFeatureDefn& definition = *layer.GetLayerDefn();
  QStringList names;
  for (int i = 0; i < definition.GetFieldCount() && i < maxNames; ++i)
    names << QString::fromUtf8(definition.GetFieldDefn(i)->GetNameRef());
  return names.join(QLatin1String(", "));
}

}  // namespace SysCarto
