#include "ServerLayer.h"

#include "Connections.h"
#include "SourceBounds.h"
#include "WatchedReading.h"

#include "host/SysCarto/projection/Offline.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSet>

#include <cpl_string.h>
#include <gdal_priv.h>

#include <chrono>
#include <future>
#include <optional>
#include <utility>

namespace SysCarto {

namespace {

constexpr std::chrono::milliseconds betweenQuestions(20);
constexpr std::chrono::milliseconds patienceToClose(500);
constexpr int graceMs = 1000;  // for the server to say by itself that it takes too long
constexpr int featuresOfBatch = 1000;
constexpr std::size_t bytesOfBatch = 8 * 1024 * 1024;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Connections)
};

}  // namespace

struct ServerDatabase::Session {
  Connection connection;
  DatasetPointer dataset;
  bool isLost = false;  // for whoever asks; a thread may still be at it

  std::chrono::milliseconds patience() const { return std::chrono::milliseconds(connection.seconds * 1000 + graceMs); }
  QString silence() const { return Texts::tr("the server has not answered for %1 s").arg(connection.seconds); }
};

namespace {

using Session = ServerDatabase::Session;

// Of several failures the first says what happened: the driver goes on, and then misses what it could not make.
class FirstFailure {
public:
  FirstFailure() { CPLPushErrorHandlerEx(&FirstFailure::note, this); }
  ~FirstFailure() { CPLPopErrorHandler(); }
  FirstFailure(FirstFailure const&) = delete;
  FirstFailure& operator=(FirstFailure const&) = delete;

  QString const& text() const { return text_; }

private:
  static void CPL_STDCALL note(CPLErr kind, CPLErrorNum, char const* text) {
    auto* const self = static_cast<FirstFailure*>(CPLGetErrorHandlerUserData());
    bool const isFirst = kind >= CE_Failure && self->text_.isEmpty();
    if (isFirst) self->text_ = QString::fromUtf8(text).simplified();
    if (isFirst && self->text_.endsWith(QLatin1Char('.'))) self->text_.chop(1);
  }

  QString text_;
};

// What the work answers on another thread; nothing where it takes too long, or nobody waits for it any more. What it
// needs must belong to it.
template <class Work>
auto asked(std::shared_ptr<Session> const& session, std::chrono::milliseconds limit, Work work)
    -> std::optional<decltype(work(*session))> {
  using Answer = decltype(work(*session));
  if (session->isLost) return std::nullopt;
  auto const promise = std::make_shared<std::promise<Answer>>();
  auto answer = promise->get_future();
  startReading([session, promise, work = std::move(work)] { promise->set_value(work(*session)); });
  QElapsedTimer clock;
  clock.start();
  while (answer.wait_for(betweenQuestions) != std::future_status::ready) {
    session->isLost = clock.elapsed() > limit.count() || !isStillWanted();
    if (session->isLost) return std::nullopt;
  }
  return answer.get();
}

// A dataset is closed where it can't keep anybody waiting.
void close(std::shared_ptr<Session>& session) {
  if (session.use_count() == 1)
    asked(session, patienceToClose, [](Session& own) {
      own.dataset.reset();
      return true;
    });
  session.reset();
}

QString cannotOpen(Connection const& connection, QString const& reason) {
  return Texts::tr("The connection “%1” can't be opened: %2. Try it with plotvane connections test %1.")
      .arg(connection.name, reason);
}

bool isAboutPassword(QString const& reason) {
  return reason.contains(QLatin1String("passwor"), Qt::CaseInsensitive) || reason.contains(QStringLiteral("密码")) ||
         reason.contains(QStringLiteral("口令"));
}

struct Tables {
  QStringList all, readable;  // the driver knows them by their numbers among all
  QString problem;
};

// The driver leaves out the schema of tables that need none.
QString currentSchema(GDALDataset& dataset) {
  OGRLayer* const answer = dataset.ExecuteSQL("SELECT current_schema()", nullptr, nullptr);
  OGRFeatureUniquePtr const row(answer ? answer->GetNextFeature() : nullptr);
  QString const schema = row ? QString::fromUtf8(row->GetFieldAsString(0)) : QString();
  if (answer) dataset.ReleaseResultSet(answer);
  return schema;
}

// The driver lists tables that the user may not read, too.
QSet<QString> closedTables(GDALDataset& dataset) {
  OGRLayer* const answer = dataset.ExecuteSQL(
      "SELECT n.nspname || '.' || c.relname FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
      "WHERE c.relkind IN ('r', 'v', 'm', 'f', 'p') AND NOT (has_schema_privilege(n.oid, 'USAGE') AND "
      "has_table_privilege(c.oid, 'SELECT'))",
      nullptr, nullptr);
  QSet<QString> tables;
  while (answer) {
    OGRFeatureUniquePtr const row(answer->GetNextFeature());
    if (!row) break;
    tables << QString::fromUtf8(row->GetFieldAsString(0));
  }
  if (answer) dataset.ReleaseResultSet(answer);
  return tables;
}

Tables openedTables(Session& session) {
  FirstFailure const failure;
  Tables tables;
  stayOffline();
  GDALAllRegister();
  if (!GetGDALDriverManager()->GetDriverByName("PostgreSQL")) {
    tables.problem = Texts::tr("this GDAL reads no PostgreSQL");
    return tables;
  }
  char const* const drivers[] = {"PostgreSQL", nullptr};
  char const* const options[] = {"LIST_ALL_TABLES=NO", nullptr};
  QByteArray const name = session.connection.forDriver(Connections::password(session.connection.name));
  session.dataset.reset(
      GDALDataset::Open(name.constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, options, nullptr));
  if (session.dataset) {
    QString const schema = currentSchema(*session.dataset);
    QSet<QString> const closed = closedTables(*session.dataset);
    for (int i = 0; i < session.dataset->GetLayerCount(); ++i) {
      QString const table = QString::fromUtf8(session.dataset->GetLayer(i)->GetName());
      tables.all << (table.contains(QLatin1Char('.')) ? table : schema + QLatin1Char('.') + table);
      if (!closed.contains(tables.all.last())) tables.readable << tables.all.last();
    }
  }
  tables.problem = failure.text();
  if (!session.dataset && tables.problem.isEmpty()) tables.problem = Texts::tr("this GDAL reads no PostgreSQL");
  return tables;
}

}  // namespace

ServerDatabase::ServerDatabase(std::shared_ptr<Session> session) : session_(std::move(session)) {}

ServerDatabase::~ServerDatabase() { close(session_); }

std::unique_ptr<ServerDatabase> ServerDatabase::open(QString const& connection, Use use, QString& error) {
  auto const known = Connections::find(connection);
  error = known && use == Use::Tables ? QString() : Connections::refusal(connection);
  if (!error.isEmpty() || !known) return nullptr;
  std::unique_ptr<ServerDatabase> database(new ServerDatabase(std::make_shared<Session>()));
  auto& session = database->session_;
  session->connection = *known;
  auto const tables = asked(session, session->patience(), openedTables);
  if (!tables && !isStillWanted()) return nullptr;
  QString problem = tables ? tables->problem : session->silence();
  bool const wantsPassword = isAboutPassword(problem);
  Connections::setWantsPassword(connection, wantsPassword);
  if (wantsPassword) problem = Texts::tr("%1; write it into ~/.pgpass, or pass it in PGPASSWORD").arg(problem);
  if (!problem.isEmpty()) {
    error = cannotOpen(*known, problem);
    return nullptr;
  }
  database->all_ = tables->all;
  database->tables_ = tables->readable;
  return database;
}

std::unique_ptr<OGRLayer> ServerDatabase::layer(QString const& table, QString& error) const {
  QString const& name = session_->connection.name;
  int const number = all_.indexOf(table);
  if (number >= 0 && !tables_.contains(table)) {
    error = Texts::tr(
                "The user of the connection “%1” has no permission to read the table “%2”; have its owner grant "
                "that user SELECT.")
                .arg(name, table);
    return nullptr;
  }
  if (number < 0) {
    constexpr int maxNames = 30;
    error = tables_.isEmpty()
                ? Texts::tr("The connection “%1” has no table with geometries that its user may read.").arg(name)
                : Texts::tr("The connection “%1” has no table “%2” with geometries; it has: %3.")
                      .arg(name, table, QStringList(tables_.mid(0, maxNames)).join(QLatin1String(", ")));
    return nullptr;
  }
  struct Described {
    OGRLayer* layer = nullptr;
    OGRFeatureDefn* definition = nullptr;
    QString problem;
  };
  auto const described = asked(session_, session_->patience(), [number](Session& session) {
    FirstFailure const failure;
    Described own;
    own.layer = session.dataset->GetLayer(number);
    own.definition = own.layer->GetLayerDefn()->Clone();
    own.problem = failure.text();
    return own;
  });
  if (!described && !isStillWanted()) return nullptr;
  QString const problem = described ? described->problem : session_->silence();
  if (!problem.isEmpty()) {
    error = Texts::tr("The table “%1” of the connection “%2” can't be read: %3.").arg(table, name, problem);
    if (described) delete described->definition;
    return nullptr;
  }
  return std::make_unique<ServerLayer>(session_, *described->layer, described->definition);
}

ServerLayer::ServerLayer(std::shared_ptr<Session> session, OGRLayer& inner, OGRFeatureDefn* definition)
    : session_(std::move(session)), inner_(inner), definition_(definition) {
  definition_->Reference();
  SetDescription(definition_->GetName());
}

ServerLayer::~ServerLayer() {
  batch_.clear();
  close(session_);
  definition_->Release();
}

void ServerLayer::ResetReading() {
  batch_.clear();
  begins_ = true;
  isAtEnd_ = false;
}

OGRErr ServerLayer::SetIgnoredFields(char const** names) {
  ignored_.clear();
  for (char const** name = names; name && *name; ++name) ignored_.emplace_back(*name);
  ResetReading();
  return OGRLayer::SetIgnoredFields(names);
}

OGRFeature* ServerLayer::GetNextFeature() {
  while (true) {
    if (batch_.empty() && !fetch()) return nullptr;
    OGRFeatureUniquePtr feature = std::move(batch_.front());
    batch_.pop_front();
    if (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get())) return feature.release();
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
  std::shared_ptr<OGRGeometry> const window(m_poFilterGeom ? m_poFilterGeom->clone() : nullptr);
  auto work = [layer = &inner_, begins = std::exchange(begins_, false), window, ignored = ignored_](Session&) {
    FirstFailure const failure;
    auto batch = std::make_shared<Batch>();
    if (begins) {
      CPLStringList names;
      for (QByteArray const& name : ignored) names.AddString(name.constData());
      layer->SetIgnoredFields(const_cast<char const**>(names.List()));
      layer->SetSpatialFilter(window.get());
      layer->ResetReading();
    }
    std::size_t bytes = 0;
    while (batch->features.size() < featuresOfBatch && bytes < bytesOfBatch && !batch->isLast) {
      OGRFeatureUniquePtr feature(layer->GetNextFeature());
      batch->isLast = !feature;
      if (!feature) break;
      bytes += bytesOf(*feature);
      batch->features.push_back(std::move(feature));
    }
    batch->problem = failure.text();
    return batch;
  };
  auto const batch = asked(session_, session_->patience(), std::move(work));
  QString const problem = batch ? (*batch)->problem : isStillWanted() ? session_->silence() : QString();
  isAtEnd_ = !batch || (*batch)->isLast || !problem.isEmpty();
  if (!problem.isEmpty()) CPLError(CE_Failure, CPLE_AppDefined, "%s", problem.toUtf8().constData());
  if (batch) batch_ = std::move((*batch)->features);
  return !batch_.empty();
}

OGRFeature* ServerLayer::GetFeature(GIntBig number) {
  auto const found = asked(session_, session_->patience(), [layer = &inner_, number](Session&) {
    FirstFailure const quiet;
    return std::shared_ptr<OGRFeature>(layer->GetFeature(number));
  });
  return found && *found ? (*found)->Clone() : nullptr;
}

int ServerLayer::TestCapability(char const* capability) {
  return EQUAL(capability, OLCStringsAsUTF8) || EQUAL(capability, OLCRandomRead) ||
         EQUAL(capability, OLCFastSpatialFilter) || EQUAL(capability, OLCIgnoreFields);
}

}  // namespace SysCarto
