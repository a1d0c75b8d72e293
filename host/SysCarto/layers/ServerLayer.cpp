#include "ServerLayer.h"

#include "ServerSession.h"
#include "SourceBounds.h"

#include <cpl_string.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace SysCarto {

namespace {

constexpr std::size_t featuresOfBatch = 1000;
constexpr std::size_t bytesOfBatch = 8 * 1024 * 1024;
constexpr int allDigits = 17;

QByteArray identifier(QByteArray name) { return '"' + name.replace('"', "\"\"") + '"'; }

QByteArray constant(QByteArray text) { return "E'" + text.replace('\\', "\\\\").replace('\'', "''") + '\''; }

// By the numbers that types have on every server. A date is written in too many ways.
struct ComparedType {
  int number;
  SqlColumn::Kind kind;
  char const* before;
  char const* behind;
};
// clang-format off
constexpr ComparedType comparedTypes[] = {
    {  16, SqlColumn::Kind::Integer, "",       "::int4"},           // bool
    {  20, SqlColumn::Kind::Integer, "",       ""},                 // int8
    {  21, SqlColumn::Kind::Integer, "",       ""},                 // int2
    {  23, SqlColumn::Kind::Integer, "",       ""},                 // int4
    { 700, SqlColumn::Kind::Real,    "",       ""},                 // float4
    { 701, SqlColumn::Kind::Real,    "",       ""},                 // float8
    {1700, SqlColumn::Kind::Real,    "",       ""},                 // numeric
    {  25, SqlColumn::Kind::Text,    "lower(", " COLLATE \"C\")"},  // text
    {1043, SqlColumn::Kind::Text,    "lower(", " COLLATE \"C\")"},  // varchar
};
// clang-format on

// A partial index finds less; one for more dimensions answers other questions. Its own extent is a little larger than
// that of what is there.
constexpr char factsOf[] =
    "SELECT a.attname, a.atttypid::int8, CASE t.typname WHEN 'geometry' THEN postgis_typmod_srid(a.atttypmod) END AS "
    "system, "
    "(NOT c.relhassubclass AND (SELECT bool_and(i.indisvalid AND i.indpred IS NULL AND o.opcdefault) FROM pg_index i "
    "JOIN pg_class x ON x.oid = i.indexrelid JOIN pg_am m ON m.oid = x.relam JOIN pg_opclass o ON o.oid = "
    "i.indclass[0] WHERE i.indrelid = c.oid AND m.amname = 'gist' AND i.indkey[0] = a.attnum))::int4 AS indexed, "
    "c.reltuples::int8, pg_table_size(c.oid), (pg_encoding_to_char(d.encoding) = 'UTF8')::int4 AS unicode, "
    "(to_regproc('_postgis_index_extent') IS NOT NULL)::int4 AS told FROM pg_class c JOIN pg_attribute a ON a.attrelid "
    "= c.oid JOIN pg_type t ON t.oid = a.atttypid JOIN pg_database d "
    "ON d.datname = current_database() WHERE a.attnum > 0 AND NOT a.attisdropped AND c.oid = ";

}  // namespace

struct ServerLayer::Facts {
  QHash<QByteArray, int> types;  // of columns
  qint64 count = -1, bytes = -1;
  int system = -1;  // that the table has for its geometries, as a number of the database's; −1 for a geography
  bool hasIndex = false, tellsExtent = false, hasAllLetters = false;
  QString problem;
};

// A statement, and what its answer has: fields by their places here, and the number or, where the table has none, 0.
struct ServerLayer::Reading {
  QByteArray statement;
  std::vector<int> fields;
  bool hasNumbers;
  std::shared_ptr<OGRFeatureDefn> definition;
  OGRLayer* cursor = nullptr;
  GIntBig count = 0;

  OGRFeatureUniquePtr next();
};

OGRFeatureUniquePtr ServerLayer::Reading::next() {
  OGRFeatureUniquePtr const row(cursor ? cursor->GetNextFeature() : nullptr);
  if (!row) return nullptr;
  OGRFeatureUniquePtr feature(new OGRFeature(definition.get()));
  std::vector<int> places(static_cast<std::size_t>(row->GetFieldCount()), -1);
  std::copy(fields.begin(), fields.end(), places.begin());
  feature->SetFieldsFrom(row.get(), places.data(), TRUE);
  if (row->GetGeomFieldCount() > 0) feature->SetGeomFieldDirectly(0, row->StealGeometry(0));
  feature->SetFID(hasNumbers ? row->GetFieldAsInteger64(row->GetFieldCount() - 1) : count);
  ++count;
  return feature;
}

ServerLayer::ServerLayer(std::shared_ptr<ServerSession> session, ServerTable table, OGRLayer& inner,
                         OGRFeatureDefn* definition, QByteArray key)
    : session_(std::move(session)),
      table_(std::move(table)),
      inner_(inner),
      definition_(definition, [](OGRFeatureDefn* own) { own->Release(); }),
      key_(std::move(key)) {
  definition_->Reference();
  SetDescription(definition_->GetName());
}

ServerLayer::~ServerLayer() {
  batch_.clear();
  leave(session_);
}

void ServerLayer::ResetReading() {
  batch_.clear();
  reading_.reset();
  isAtEnd_ = false;
}

OGRErr ServerLayer::SetIgnoredFields(char const** names) {
  ResetReading();
  return OGRLayer::SetIgnoredFields(names);
}

ServerLayer::Facts const& ServerLayer::facts() const {
  if (facts_) return *facts_;
  facts_ = std::make_unique<Facts>();
  auto const rows = asked(session_, [statement = factsOf + table_.number](ServerSession& session) {
    FirstFailure const quiet;
    return session.rows(statement);
  });
  QByteArray const place = hasGeometry() ? definition_->GetGeomFieldDefn(0)->GetNameRef() : "";
  for (QStringList const& row : rows.value_or(QVector<QStringList>())) {
    QByteArray const name = row[0].toUtf8();
    facts_->types[name] = row[1].toInt();
    if (name == place && !row[2].isNull()) facts_->system = row[2].toInt();
    if (name == place) facts_->hasIndex = facts_->system >= 0 && row[3].toInt() != 0;
    facts_->count = row[4].toLongLong();
    facts_->bytes = row[5].toLongLong();
    facts_->hasAllLetters = row[6].toInt() != 0;
    facts_->tellsExtent = row[7].toInt() != 0;
  }
  return *facts_;
}

qint64 ServerLayer::toldCount() const { return facts().count > 0 ? facts().count : -1; }
qint64 ServerLayer::toldBytes() const { return facts().bytes; }

bool ServerLayer::hasGeometry() const { return definition_->GetGeomFieldCount() > 0; }

QByteArray ServerLayer::geometryColumn() const { return identifier(definition_->GetGeomFieldDefn(0)->GetNameRef()); }

// What lies in the filter's box. Of a geography it is looked at here, since its boxes are of the globe.
QByteArray ServerLayer::box() const {
  if (!m_poFilterGeom || !hasGeometry() || facts().system < 0) return QByteArray();
  OGREnvelope const& own = m_sFilterEnvelope;
  auto const number = [](double value) { return QByteArray::number(value, 'g', allDigits); };
  if (!std::isfinite(own.MaxX - own.MinX) || !std::isfinite(own.MaxY - own.MinY)) return QByteArray();
  QByteArray const corners =
      number(own.MinX) + ' ' + number(own.MinY) + ',' + number(own.MaxX) + ' ' + number(own.MaxY);
  QByteArray const place = geometryColumn();
  QByteArray const system = facts().system > 0 ? QByteArray::number(facts().system)
                                               : "(SELECT ST_SRID(" + place + ") FROM " + table_.name + " WHERE " +
                                                     place + " IS NOT NULL LIMIT 1)";
  return place + " && ST_SetSRID('BOX3D(" + corners + ")'::box3d, " + system + ')';
}

std::shared_ptr<ServerLayer::Reading> ServerLayer::reading() const {
  auto reading = std::make_shared<Reading>(Reading{"SELECT ", {}, !key_.isEmpty(), definition_});
  QByteArray& statement = reading->statement;
  if (hasGeometry() && !definition_->IsGeometryIgnored()) statement += geometryColumn() + ", ";
  for (int i = 0; i < definition_->GetFieldCount(); ++i) {
    OGRFieldDefn& field = *definition_->GetFieldDefn(i);
    if (field.IsIgnored()) continue;
    statement += identifier(field.GetNameRef()) + " AS c" + QByteArray::number(i) + ", ";
    reading->fields.push_back(i);
  }
  statement += (reading->hasNumbers ? identifier(key_) : QByteArray("0")) + " AS number FROM " + table_.name;
  QByteArray const near = box();
  if (!near.isEmpty() || !narrowing_.isEmpty()) statement += " WHERE ";
  statement += near + (near.isEmpty() || narrowing_.isEmpty() ? "" : " AND ") + narrowing_;
  return reading;
}

OGRFeature* ServerLayer::GetNextFeature() {
  while (true) {
    if (batch_.empty() && !fetch()) return nullptr;
    OGRFeatureUniquePtr feature = std::move(batch_.front());
    batch_.pop_front();
    bool const isNear = !m_poFilterGeom || FilterGeometry(feature->GetGeometryRef());
    if (isNear && (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get()))) return feature.release();
  }
}

// False where there is nothing more.
bool ServerLayer::fetch() {
  struct Batch {
    std::deque<OGRFeatureUniquePtr> features;
    bool isLast = false;
    QString problem;
  };
  if (isAtEnd_) return false;
  bool const begins = !reading_;
  if (begins) reading_ = reading();
  auto const batch = asked(session_, [begins, reading = reading_, reader = this](ServerSession& session) {
    FirstFailure const failure;
    auto read = std::make_shared<Batch>();
    if (begins) reading->cursor = session.begin(reader, reading->statement);
    std::size_t bytes = 0;
    while (read->features.size() < featuresOfBatch && bytes < bytesOfBatch && !read->isLast) {
      OGRFeatureUniquePtr feature = reading->next();
      read->isLast = !feature;
      if (!feature) break;
      bytes += bytesOf(*feature);
      read->features.push_back(std::move(feature));
    }
    read->problem = failure.text();
    return read;
  });
  QString const problem = batch ? (*batch)->problem : QString();
  isAtEnd_ = !batch || (*batch)->isLast || !problem.isEmpty();
  tell(batch.has_value(), problem);
  if (batch) batch_ = std::move((*batch)->features);
  return !batch_.empty();
}

void ServerLayer::tell(bool isAnswered, QString const& problem) const {
  QString const told = isAnswered ? problem : isStillWanted() ? session_->silence() : QString();
  if (!told.isEmpty()) CPLError(CE_Failure, CPLE_AppDefined, "%s", told.toUtf8().constData());
}

// A number that is not there is a failure to the driver, too; whether it is one, another question tells.
OGRFeature* ServerLayer::GetFeature(GIntBig number) {
  struct Found {
    std::shared_ptr<OGRFeature> feature;
    QString problem;
  };
  auto const found = asked(session_, [layer = &inner_, number, table = table_.name](ServerSession& session) {
    FirstFailure const quiet;
    Found own{std::shared_ptr<OGRFeature>(layer->GetFeature(number)), {}};
    FirstFailure const failure;
    if (!own.feature) session.rows("SELECT 1 FROM " + table + " LIMIT 1");
    own.problem = failure.text();
    return own;
  });
  tell(found.has_value(), found ? found->problem : QString());
  return found && found->feature ? found->feature->Clone() : nullptr;
}

// As text, since the driver would round numbers.
OGRErr ServerLayer::GetExtent(OGREnvelope* extent, int isForced) {
  bool const isAsked = facts().system >= 0 && (isForced || facts().hasIndex);
  if (!isAsked) return isForced ? OGRLayer::GetExtent(extent, TRUE) : OGRERR_FAILURE;
  QByteArray const column = constant(definition_->GetGeomFieldDefn(0)->GetNameRef());
  QByteArray const whole =
      facts().hasIndex && facts().tellsExtent
          ? "(SELECT _postgis_index_extent(" + table_.number + "::oid::regclass, " + column + ") AS e) AS whole"
          : "(SELECT ST_Extent(" + geometryColumn() + ") AS e FROM " + table_.name + ") AS whole";
  auto const rows = asked(session_, [whole](ServerSession& session) {
    FirstFailure const quiet;
    return session.rows("SELECT ST_XMin(e)::text, ST_YMin(e)::text, ST_XMax(e)::text, ST_YMax(e)::text FROM " + whole);
  });
  QStringList const told = rows.value_or(QVector<QStringList>()).value(0);
  if (told.size() != 4 || told.contains(QString())) return OGRERR_FAILURE;
  extent->MinX = told[0].toDouble();
  extent->MinY = told[1].toDouble();
  extent->MaxX = told[2].toDouble();
  extent->MaxY = told[3].toDouble();
  return OGRERR_NONE;
}

// Without force, as the server estimates it.
GIntBig ServerLayer::GetFeatureCount(int isForced) {
  if (m_poFilterGeom || m_poAttrQuery) return OGRLayer::GetFeatureCount(isForced);
  if (!isForced) return toldCount();
  auto const rows = asked(session_, [table = table_.name](ServerSession& session) {
    FirstFailure const quiet;
    return session.rows("SELECT count(*)::text FROM " + table);
  });
  QStringList const told = rows.value_or(QVector<QStringList>()).value(0);
  return told.isEmpty() ? -1 : told[0].toLongLong();
}

// Without numbers of their own, features that are read in portions could not be told apart.
int ServerLayer::TestCapability(char const* capability) {
  if (EQUAL(capability, OLCStringsAsUTF8) || EQUAL(capability, OLCIgnoreFields)) return TRUE;
  if (EQUAL(capability, OLCRandomRead)) return !key_.isEmpty();
  if (EQUAL(capability, OLCFastGetExtent)) return facts().hasIndex;
  return EQUAL(capability, OLCFastSpatialFilter) && !key_.isEmpty() && facts().hasIndex;
}

// Where features have no numbers of their own, they are counted, so that none may be left out.
SqlColumn ServerLayer::column(int field) const {
  if (key_.isEmpty() || field >= definition_->GetFieldCount()) return SqlColumn();
  OGRFieldDefn& own = *definition_->GetFieldDefn(field);
  int const type = facts().types.value(own.GetNameRef());
  auto const* const known = std::find_if(std::begin(comparedTypes), std::end(comparedTypes),
                                         [type](ComparedType const& one) { return one.number == type; });
  bool const isText = own.GetType() == OFTString;
  bool const isNumber = own.GetType() == OFTInteger || own.GetType() == OFTInteger64 || own.GetType() == OFTReal;
  if (known == std::end(comparedTypes) || !(known->kind == SqlColumn::Kind::Text ? isText : isNumber))
    return SqlColumn();
  return {known->kind, known->before + identifier(own.GetNameRef()) + known->behind};
}

void ServerLayer::narrow(QByteArray const& sql) {
  narrowing_ += narrowing_.isEmpty() ? sql : " AND " + sql;
  ResetReading();
}

QByteArray ServerLayer::quoted(QByteArray const& text) const {
  bool const isPlain = std::all_of(text.begin(), text.end(), [](char letter) { return letter > 0 && letter < 127; });
  return isPlain || facts().hasAllLetters ? constant(text) : QByteArray();
}

}  // namespace SysCarto
