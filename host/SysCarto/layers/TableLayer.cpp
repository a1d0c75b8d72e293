#include "TableLayer.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <utility>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

constexpr int rowsToLookAt = 500;
constexpr int longestShown = 30;
constexpr double most = 0.9;       // of the values of a column are what it is taken for,
constexpr double majority = 0.51;  // or so many, where its name says so

// How people call the columns of coordinates, x before y, and of geometries; without case, blanks and marks.
char const* const coordinateNames[][2] = {
    {"x", "y"},
    {"lon", "lat"},
    {"long", "lat"},
    {"lng", "lat"},
    {"longitude", "latitude"},
    {"easting", "northing"},
    {"eastings", "northings"},
    {"east", "north"},
    {"rechtswert", "hochwert"},
    {"ostwert", "nordwert"},
    {"ost", "nord"},
    {"länge", "breite"},
    {"laenge", "breite"},
    {"längengrad", "breitengrad"},
    {"laengengrad", "breitengrad"},
    {"xcoord", "ycoord"},
    {"coordx", "coordy"},
    {"xkoordinate", "ykoordinate"},
    {"pointx", "pointy"},
    {"经度", "纬度"},
};
char const* const geometryNames[] = {"wkt", "geometry", "geom", "thegeom", "shape", "wktgeom", "geometrie"};

QString readable(char const* bytes) {
  static QTextCodec* const windows = QTextCodec::codecForName("Windows-1252");
  bool const isUtf8 = CPLIsUTF8(bytes, -1) || !windows;
  return isUtf8 ? QString::fromUtf8(bytes) : windows->toUnicode(bytes);
}

QString nameOf(OGRLayer& table, int field) { return readable(table.GetLayerDefn()->GetFieldDefn(field)->GetNameRef()); }

QString plainName(QString const& name) {
  QString plain;
  for (QChar const letter : name.toLower())
    if (letter.isLetterOrNumber()) plain += letter;
  return plain;
}

int indexOf(OGRLayer& table, QString const& name) {
  for (int i = 0; i < table.GetLayerDefn()->GetFieldCount(); ++i)
    if (nameOf(table, i).compare(name, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

int indexOfPlain(OGRLayer& table, char const* name) {
  for (int i = 0; i < table.GetLayerDefn()->GetFieldCount(); ++i)
    if (plainName(nameOf(table, i)) == QString::fromUtf8(name)) return i;
  return -1;
}

// As people write numbers: 3566123.5, 3566123,5, 3.566.123,5 or 3,566,123.5. Of two marks the last is that of decimals;
// one that recurs groups thousands.
double numberIn(QString text) {
  text.remove(QChar::Nbsp).remove(QLatin1Char(' '));
  QLatin1Char last('.'), other(',');
  if (text.lastIndexOf(other) > text.lastIndexOf(last)) std::swap(last, other);
  bool const onlyGroups = text.count(last) > 1 && !text.contains(other) && text.size() - text.lastIndexOf(last) == 4;
  if (onlyGroups) text.remove(last);
  text.remove(other).replace(last, QLatin1Char('.'));
  bool ok = false;
  double const number = text.toDouble(&ok);
  return ok && std::isfinite(number) ? number : std::numeric_limits<double>::quiet_NaN();
}

double numberOf(OGRFeature& row, int field) {
  if (!row.IsFieldSetAndNotNull(field)) return std::numeric_limits<double>::quiet_NaN();
  bool const isText = row.GetFieldDefnRef(field)->GetType() == OFTString;
  return isText ? numberIn(QString::fromUtf8(row.GetFieldAsString(field))) : row.GetFieldAsDouble(field);
}

OGRGeometry* geometryOf(OGRFeature& row, int field) {
  GdalErrors const quiet;  // what is no geometry is a row without one
  OGRGeometry* geometry = nullptr;
  OGRGeometryFactory::createFromWkt(row.GetFieldAsString(field), nullptr, &geometry);
  return geometry;
}

void lookAtRows(OGRLayer& table, std::function<void(OGRFeature&)> const& look) {
  table.ResetReading();
  for (int i = 0; i < rowsToLookAt; ++i) {
    OGRFeatureUniquePtr const row(table.GetNextFeature());
    if (!row) break;
    look(*row);
  }
  table.ResetReading();
}

bool hasText(OGRFeature& row, int field) { return row.IsFieldSetAndNotNull(field) && *row.GetFieldAsString(field); }

// Whether so many of the values that a column has are of a kind.
bool holds(OGRLayer& table, int field, double enough, std::function<bool(OGRFeature&)> const& isOfKind) {
  int values = 0, right = 0;
  lookAtRows(table, [&](OGRFeature& row) {
    if (!hasText(row, field)) return;
    ++values;
    if (isOfKind(row)) ++right;
  });
  return right > 0 && right >= enough * values;
}

bool holdsNumbers(OGRLayer& table, int field) {
  return holds(table, field, majority, [field](OGRFeature& row) { return !std::isnan(numberOf(row, field)); });
}

bool holdsGeometries(OGRLayer& table, int field) {
  return field >= 0 && table.GetLayerDefn()->GetFieldDefn(field)->GetType() == OFTString &&
         holds(table, field, most, [field](OGRFeature& row) {
           std::unique_ptr<OGRGeometry> const geometry(geometryOf(row, field));
           return geometry != nullptr;
         });
}

PlaceColumns guess(OGRLayer& table) {
  for (char const* const name : geometryNames) {
    int const field = indexOfPlain(table, name);
    if (holdsGeometries(table, field)) return {{}, {}, nameOf(table, field)};
  }
  int rows = 0;
  lookAtRows(table, [&](OGRFeature&) { ++rows; });
  for (auto const& names : coordinateNames) {
    int const x = indexOfPlain(table, names[0]), y = indexOfPlain(table, names[1]);
    if (x < 0 || y < 0) continue;
    if (rows == 0 || (holdsNumbers(table, x) && holdsNumbers(table, y)))
      return {nameOf(table, x), nameOf(table, y), {}};
  }
  for (int field = 0; field < table.GetLayerDefn()->GetFieldCount(); ++field)
    if (holdsGeometries(table, field)) return {{}, {}, nameOf(table, field)};
  return {};
}

std::optional<PlaceColumns> named(OGRLayer& table, SourceSettings const& source, QString& error) {
  if (source.xField.isEmpty() != source.yField.isEmpty()) {
    error =
        Texts::tr("Of the columns of coordinates in “%1” only one is named; give both xField and yField, or neither.")
            .arg(source.file);
    return std::nullopt;
  }
  PlaceColumns columns{source.xField, source.yField, source.geometryField};
  for (QString const& name : {columns.x, columns.y, columns.geometry})
    if (!name.isEmpty() && indexOf(table, name) < 0) {
      QStringList names;
      for (int i = 0; i < table.GetLayerDefn()->GetFieldCount() && i < 30; ++i) names << nameOf(table, i);
      error = Texts::tr("The table “%1” has no column “%2”; it has: %3.")
                  .arg(source.file, name, names.join(QLatin1String(", ")));
      return std::nullopt;
    }
  return columns;
}

}  // namespace

std::unique_ptr<TableLayer> TableLayer::create(OGRLayer& table, SourceSettings const& source, QString& error) {
  auto const columns = named(table, source, error);
  if (!columns) return nullptr;
  return std::unique_ptr<TableLayer>(new TableLayer(table, source.file, columns->isEmpty() ? guess(table) : *columns));
}

TableLayer::TableLayer(OGRLayer& table, QString const& file, PlaceColumns columns)
    : DerivedLayer(table), file_(file), columns_(std::move(columns)) {
  if (!columns_.x.isEmpty()) {
    x_ = indexOf(table, columns_.x);
    y_ = indexOf(table, columns_.y);
  } else if (!columns_.geometry.isEmpty()) {
    geometry_ = indexOf(table, columns_.geometry);
  }
  for (int i = 0; i < table.GetLayerDefn()->GetFieldCount(); ++i) {
    OGRFieldDefn field(table.GetLayerDefn()->GetFieldDefn(i));
    field.SetName(nameOf(table, i).toUtf8().constData());
    definition().AddFieldDefn(&field);
  }
  if (columns_.isEmpty()) return;
  definition().SetGeomType(x_ >= 0 ? wkbPoint : wkbUnknown);
  findSystem();
}

// Numbers that can nearly all be degrees are taken for degrees, where the file has no system of its own.
void TableLayer::findSystem() {
  OGRSpatialReference* const own = base().GetSpatialRef();
  if (own) return definition().GetGeomFieldDefn(0)->SetSpatialRef(own);
  int places = 0, inDegrees = 0;
  lookAtRows(base(), [&](OGRFeature& row) {
    std::unique_ptr<OGRGeometry> const geometry(placeOf(row));
    OGREnvelope one;
    if (!geometry || geometry->IsEmpty()) return;
    geometry->getEnvelope(&one);
    ++places;
    inDegrees += one.MinX >= -180 && one.MaxX <= 180 && one.MinY >= -90 && one.MaxY <= 90;
  });
  if (places == 0 || inDegrees < most * places) return;
  OGRSpatialReference* const degrees = makeCoordinateSystem(QStringLiteral("EPSG:4326")).release();
  if (!degrees) return;  // PROJ finds no database
  definition().GetGeomFieldDefn(0)->SetSpatialRef(degrees);
  degrees->Release();
}

OGRGeometry* TableLayer::placeOf(OGRFeature& from) const {
  if (geometry_ >= 0) return from.IsFieldSetAndNotNull(geometry_) ? geometryOf(from, geometry_) : nullptr;
  if (x_ < 0) return nullptr;
  double const x = numberOf(from, x_), y = numberOf(from, y_);
  return std::isnan(x) || std::isnan(y) ? nullptr : new OGRPoint(x, y);
}

void TableLayer::derive(OGRFeature& from, OGRFeature& to) {
  for (int i = 0; i < from.GetFieldCount(); ++i) {
    if (!from.IsFieldSetAndNotNull(i)) continue;
    if (from.GetFieldDefnRef(i)->GetType() == OFTString)
      to.SetField(i, readable(from.GetFieldAsString(i)).toUtf8().constData());
    else
      to.SetField(i, from.GetRawFieldRef(i));
  }
  if (columns_.isEmpty()) return;
  OGRGeometry* const place = placeOf(from);
  if (!place) noteUnplaced(from);
  to.SetGeometryDirectly(place);
}

// A row without any coordinates is meant to have no place.
void TableLayer::noteUnplaced(OGRFeature& row) {
  QStringList values;
  for (int const field : {x_, y_, geometry_})
    if (field >= 0 && hasText(row, field)) values << readable(row.GetFieldAsString(field)).left(longestShown);
  if (values.isEmpty() || row.GetFID() <= lastUnplaced_) return;
  if (unplaced_++ == 0) example_ = values.join(QLatin1String(", "));
  lastUnplaced_ = row.GetFID();
}

QStringList TableLayer::notes() const {
  if (unplaced_ == 0) return {};
  return {Texts::tr("Rows of the file “%1” whose coordinates can't be read, such as “%2”, have no place on the map: %3 "
                    "in all. Mend them in the file.")
              .arg(file_, example_, QString::number(unplaced_))};
}

}  // namespace SysCarto
