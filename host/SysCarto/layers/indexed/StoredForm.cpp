#include "StoredForm.h"

#include <QJsonArray>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <ogr_geometry.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <cstring>
#include <functional>
#include <string_view>
#include <vector>

namespace SysCarto {

namespace {

enum OwnColumn { NumberColumn, ShapeColumn, StyleColumn, ownColumns };
constexpr char const* ownNames[] = {"number", "shape", "style"};
constexpr OGRFieldType ownTypes[] = {OFTInteger64, OFTInteger, OFTString};

constexpr int noGeometry = -1;
constexpr int emptyGeometry = 100000;  // and the kind that it is of

bool isMoment(OGRFieldType type) { return type == OFTDate || type == OFTTime || type == OFTDateTime; }

// Moments are texts of all their parts: the format knows but one kind of them.
std::optional<OGRFieldType> storedType(OGRFieldType type) {
  if (isMoment(type)) return OFTString;
  bool const isKept =
      type == OFTInteger || type == OFTInteger64 || type == OFTReal || type == OFTString || type == OFTBinary;
  return isKept ? std::make_optional(type) : std::nullopt;
}

struct Moment {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, zone = 0;
  float second = 0;

  static Moment of(OGRFeature const& feature, int field) {
    Moment own;
    feature.GetFieldAsDateTime(field, &own.year, &own.month, &own.day, &own.hour, &own.minute, &own.second, &own.zone);
    return own;
  }

  QByteArray text() const {
    QByteArray text;
    for (int const part : {year, month, day, hour, minute, zone}) text += QByteArray::number(part) + ' ';
    return text + QByteArray::number(static_cast<double>(second), 'g', 9);
  }

  static Moment from(QByteArray const& text) {
    QByteArrayList const parts = text.split(' ');
    auto const part = [&](int i) { return parts.value(i).toInt(); };
    return {part(0), part(1), part(2), part(3), part(4), part(5), parts.value(6).toFloat()};
  }
};

QByteArray columnOf(int field) { return QByteArray::number(field); }

int shapeOf(OGRGeometry const* geometry) {
  if (!geometry) return noGeometry;
  return static_cast<int>(geometry->getIsoGeometryType()) + (geometry->IsEmpty() ? emptyGeometry : 0);
}

QJsonValue systemJson(OGRSpatialReference const* system) {
  if (!system) return QJsonValue();
  char* text = nullptr;
  char const* const options[] = {"FORMAT=WKT2_2019", nullptr};
  system->exportToWkt(&text, options);
  QString const wkt = QString::fromUtf8(text);
  CPLFree(text);
  QJsonArray axes;
  for (int const axis : system->GetDataAxisToSRSAxisMapping()) axes << axis;
  return QJsonObject{{QStringLiteral("text"), wkt},
                     {QStringLiteral("axes"), axes},
                     {QStringLiteral("strategy"), static_cast<int>(system->GetAxisMappingStrategy())}};
}

struct ReleaseSystem {
  void operator()(OGRSpatialReference* system) const { system->Release(); }
};
using System = std::unique_ptr<OGRSpatialReference, ReleaseSystem>;

System systemFrom(QJsonObject const& json) {
  System system(new OGRSpatialReference);
  if (system->importFromWkt(json[QStringLiteral("text")].toString().toUtf8().constData()) != OGRERR_NONE)
    return nullptr;
  std::vector<int> axes;
  for (QJsonValue const& axis : json[QStringLiteral("axes")].toArray()) axes.push_back(axis.toInt());
  auto const strategy = static_cast<OSRAxisMappingStrategy>(json[QStringLiteral("strategy")].toInt());
  system->SetAxisMappingStrategy(strategy);
  if (strategy == OAMS_CUSTOM) system->SetDataAxisToSRSAxisMapping(axes);
  return system;
}

// Hashes in a row.
class Digest {
public:
  template <class Value>
  void add(Value const& value) {
    add(reinterpret_cast<char const*>(&value), sizeof value);
  }
  void add(char const* bytes, std::size_t count) {
    constexpr quint64 factor = 0x9e3779b97f4a7c15;
    value_ = (value_ ^ std::hash<std::string_view>()({bytes, count})) * factor;
  }
  quint64 value() const { return value_; }

private:
  quint64 value_ = 0;
};

void add(Digest& digest, OGRGeometry const* geometry) {
  digest.add(shapeOf(geometry));
  if (!geometry || geometry->IsEmpty()) return;
  std::vector<unsigned char> bytes(geometry->WkbSize());
  geometry->exportToWkb(wkbNDR, bytes.data(), wkbVariantIso);
  digest.add(reinterpret_cast<char const*>(bytes.data()), bytes.size());
}

void add(Digest& digest, OGRFeature const& feature, int field) {
  OGRFieldType const type = feature.GetDefnRef()->GetFieldDefn(field)->GetType();
  digest.add(field);
  if (!feature.IsFieldSetAndNotNull(field)) return;
  OGRField const& value = *feature.GetRawFieldRef(field);
  digest.add(type);
  if (type == OFTInteger) digest.add(value.Integer);
  if (type == OFTInteger64) digest.add(value.Integer64);
  if (type == OFTReal) digest.add(value.Real);
  if (type == OFTString) digest.add(value.String, std::strlen(value.String));
  if (type == OFTBinary)
    digest.add(reinterpret_cast<char const*>(value.Binary.paData), static_cast<std::size_t>(value.Binary.nCount));
  if (!isMoment(type)) return;
  QByteArray const moment = Moment::of(feature, field).text();
  digest.add(moment.constData(), static_cast<std::size_t>(moment.size()));
}

}  // namespace

std::optional<StoredForm> StoredForm::of(OGRLayer& layer) {
  OGRFeatureDefn const& given = *layer.GetLayerDefn();
  if (given.GetGeomFieldCount() != 1) return std::nullopt;
  for (int i = 0; i < given.GetFieldCount(); ++i)
    if (!storedType(given.GetFieldDefn(i)->GetType())) return std::nullopt;
  OGRFeatureDefn* const own = given.Clone();
  own->Reference();
  StoredForm const form(Definition(own, [](OGRFeatureDefn* one) { one->Release(); }));
  OGRSpatialReference* const system = layer.GetSpatialRef();
  own->GetGeomFieldDefn(0)->SetSpatialRef(system);
  auto again = from(form.json());
  OGRSpatialReference const* const known = again ? again->definition().GetGeomFieldDefn(0)->GetSpatialRef() : nullptr;
  bool const isSame = again && (system ? known && known->IsSame(system) : !known);
  return isSame ? again : std::nullopt;
}

std::optional<StoredForm> StoredForm::from(QJsonObject const& json) {
  auto* const own = new OGRFeatureDefn(json[QStringLiteral("name")].toString().toUtf8().constData());
  own->Reference();
  StoredForm form(Definition(own, [](OGRFeatureDefn* one) { one->Release(); }));
  own->SetGeomType(static_cast<OGRwkbGeometryType>(json[QStringLiteral("geometry")].toDouble()));
  if (own->GetGeomFieldCount() != 1) return std::nullopt;
  if (QJsonValue const told = json[QStringLiteral("system")]; told.isObject()) {
    System const system = systemFrom(told.toObject());
    if (!system) return std::nullopt;
    own->GetGeomFieldDefn(0)->SetSpatialRef(system.get());
  }
  for (QJsonValue const& value : json[QStringLiteral("fields")].toArray()) {
    QJsonObject const told = value.toObject();
    auto const number = [&](char const* key) { return told[QLatin1String(key)].toInt(); };
    OGRFieldDefn field(told[QStringLiteral("name")].toString().toUtf8().constData(),
                       static_cast<OGRFieldType>(number("type")));
    field.SetSubType(static_cast<OGRFieldSubType>(number("subtype")));
    field.SetWidth(number("width"));
    field.SetPrecision(number("precision"));
    if (!storedType(field.GetType())) return std::nullopt;
    own->AddFieldDefn(&field);
  }
  return form;
}

QJsonObject StoredForm::json() const {
  QJsonArray fields;
  for (int i = 0; i < definition_->GetFieldCount(); ++i) {
    OGRFieldDefn const& field = *definition_->GetFieldDefn(i);
    fields << QJsonObject{{QStringLiteral("name"), QString::fromUtf8(field.GetNameRef())},
                          {QStringLiteral("type"), static_cast<int>(field.GetType())},
                          {QStringLiteral("subtype"), static_cast<int>(field.GetSubType())},
                          {QStringLiteral("width"), field.GetWidth()},
                          {QStringLiteral("precision"), field.GetPrecision()}};
  }
  return {{QStringLiteral("name"), QString::fromUtf8(definition_->GetName())},
          {QStringLiteral("geometry"), static_cast<double>(definition_->GetGeomType())},
          {QStringLiteral("system"), systemJson(definition_->GetGeomFieldDefn(0)->GetSpatialRef())},
          {QStringLiteral("fields"), fields}};
}

bool StoredForm::addColumns(OGRLayer& file) const {
  bool isDone = true;
  auto const add = [&](char const* name, OGRFieldType type) {
    OGRFieldDefn field(name, type);
    isDone = file.CreateField(&field) == OGRERR_NONE && isDone;
  };
  for (int i = 0; i < ownColumns; ++i) add(ownNames[i], ownTypes[i]);
  for (int i = 0; i < definition_->GetFieldCount(); ++i)
    add(columnOf(i).constData(), *storedType(definition_->GetFieldDefn(i)->GetType()));
  return isDone;
}

void StoredForm::put(OGRFeature const& from, OGRPoint const& standIn, OGRFeature& to) {
  OGRGeometry const* const geometry = from.GetGeometryRef();
  to.SetField(NumberColumn, from.GetFID());
  to.SetField(ShapeColumn, shapeOf(geometry));
  if (char const* const style = const_cast<OGRFeature&>(from).GetStyleString()) to.SetField(StyleColumn, style);
  to.SetGeometry(geometry && !geometry->IsEmpty() ? geometry : &standIn);
  for (int i = 0; i < from.GetFieldCount(); ++i) {
    if (!from.IsFieldSetAndNotNull(i)) continue;
    if (isMoment(from.GetDefnRef()->GetFieldDefn(i)->GetType()))
      to.SetField(ownColumns + i, Moment::of(from, i).text().constData());
    else
      to.SetField(ownColumns + i, from.GetRawFieldRef(i));
  }
}

OGRFeatureUniquePtr StoredForm::take(OGRFeature& from) const {
  OGRFeatureUniquePtr to(new OGRFeature(definition_.get()));
  to->SetFID(from.GetFieldAsInteger64(NumberColumn));
  int const shape = from.GetFieldAsInteger(ShapeColumn);
  std::unique_ptr<OGRGeometry> geometry(from.StealGeometry());
  if (geometry && shape >= emptyGeometry)
    geometry.reset(OGRGeometryFactory::createGeometry(static_cast<OGRwkbGeometryType>(shape - emptyGeometry)));
  if (geometry && shape != noGeometry) {
    auto const kind = static_cast<OGRwkbGeometryType>(shape % emptyGeometry);
    geometry->set3D(OGR_GT_HasZ(kind));
    geometry->setMeasured(OGR_GT_HasM(kind));
    geometry->assignSpatialReference(definition_->GetGeomFieldDefn(0)->GetSpatialRef());
    to->SetGeometryDirectly(geometry.release());
  }
  if (from.IsFieldSetAndNotNull(StyleColumn)) to->SetStyleString(from.GetFieldAsString(StyleColumn));
  for (int i = 0; i < to->GetFieldCount(); ++i) {
    if (!from.IsFieldSetAndNotNull(ownColumns + i)) continue;
    if (isMoment(definition_->GetFieldDefn(i)->GetType())) {
      auto const [year, month, day, hour, minute, zone, second] = Moment::from(from.GetFieldAsString(ownColumns + i));
      to->SetField(i, year, month, day, hour, minute, second, zone);
    } else {
      to->SetField(i, from.GetRawFieldRef(ownColumns + i));
    }
  }
  return to;
}

void StoredForm::ignoreIn(OGRLayer& file) const {
  CPLStringList ignored;
  if (definition_->IsGeometryIgnored()) ignored.AddString("OGR_GEOMETRY");
  if (definition_->IsStyleIgnored()) ignored.AddString(ownNames[StyleColumn]);
  for (int i = 0; i < definition_->GetFieldCount(); ++i)
    if (definition_->GetFieldDefn(i)->IsIgnored()) ignored.AddString(columnOf(i).constData());
  file.SetIgnoredFields(const_cast<char const**>(ignored.List()));
}

quint64 digestOf(OGRFeature const& feature) {
  Digest digest;
  digest.add(feature.GetFID());
  add(digest, feature.GetGeometryRef());
  char const* const style = const_cast<OGRFeature&>(feature).GetStyleString();
  if (style) digest.add(style, std::strlen(style));
  for (int i = 0; i < feature.GetFieldCount(); ++i) add(digest, feature, i);
  return digest.value();
}

}  // namespace SysCarto
