#include "ServerSession.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace SysCarto {

namespace {

constexpr std::chrono::milliseconds patienceToClose(500);
constexpr int graceMs = 1000;  // for the server to say by itself that it takes too long

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Connections)
};

// Never taken down, since that would wait for its threads.
QThreadPool& cancellations() {
  static auto* const pool = new QThreadPool;
  return *pool;
}

// The driver passes over its list of tables where it is told one, and leaves out the schema of those in the active one,
// so that a dot could be of either.
DatasetPointer connect(Connection const& connection, char const* setting) {
  QByteArray const name = connection.forDriver(Connections::password(connection.name)) + ' ' + setting;
  char const* const drivers[] = {"PostgreSQL", nullptr};
  char const* const options[] = {"LIST_ALL_TABLES=NO", nullptr};
  return DatasetPointer(
      GDALDataset::Open(name.constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, options, nullptr));
}

}  // namespace

ServerSession::~ServerSession() {
  for (auto const& cursor : cursors) dataset->ReleaseResultSet(cursor.second);
}

std::chrono::milliseconds ServerSession::patience() const {
  return std::chrono::seconds(connection.seconds) + std::chrono::milliseconds(graceMs);
}

QString ServerSession::silence() const {
  return Texts::tr("the server has not answered for %1 s").arg(connection.seconds);
}

QVector<QStringList> ServerSession::rows(QByteArray const& statement) {
  QVector<QStringList> rows;
  OGRLayer* const answer = dataset->ExecuteSQL(statement.constData(), nullptr, nullptr);
  while (answer) {
    OGRFeatureUniquePtr const row(answer->GetNextFeature());
    if (!row) break;
    rows.append(QStringList());
    for (int i = 0; i < row->GetFieldCount(); ++i)
      rows.last() << (row->IsFieldSetAndNotNull(i) ? QString::fromUtf8(row->GetFieldAsString(i)) : QString());
  }
  if (answer) dataset->ReleaseResultSet(answer);
  return rows;
}

OGRLayer* ServerSession::begin(void const* reader, QByteArray const& statement) {
  OGRLayer*& cursor = cursors[reader];
  if (cursor) dataset->ReleaseResultSet(std::exchange(cursor, nullptr));
  cursor = dataset->ExecuteSQL(statement.constData(), nullptr, nullptr);
  OGRLayer* const begun = cursor;
  if (!begun) cursors.erase(reader);
  return begun;
}

DatasetPointer connectOnly(Connection const& connection) { return connect(connection, "tables=pg_catalog.pg_class"); }

DatasetPointer connectWithTables(Connection const& connection) {
  return connect(connection, "active_schema=pg_catalog");
}

void CPL_STDCALL FirstFailure::note(CPLErr kind, CPLErrorNum, char const* text) {
  auto* const self = static_cast<FirstFailure*>(CPLGetErrorHandlerUserData());
  bool const isFirst = kind >= CE_Failure && self->text_.isEmpty();
  if (isFirst) self->text_ = QString::fromUtf8(text).simplified();
  if (isFirst && self->text_.endsWith(QLatin1Char('.'))) self->text_.chop(1);
}

// Only another connection reaches a server that is at work.
void giveUp(ServerSession& session) {
  session.isLost = true;
  int const process = session.process;
  if (process == 0) return;
  cancellations().start([process, connection = session.connection] {
    FirstFailure const quiet;
    ServerSession other;
    other.connection = connection;
    other.dataset = connectOnly(connection);
    if (other.dataset)
      other.rows("SELECT pg_cancel_backend(pid) FROM pg_stat_activity WHERE application_name = 'plotvane' AND pid = " +
                 QByteArray::number(process));
  });
}

void finishGivingUp() {
  constexpr int patienceMs = 2000;
  cancellations().waitForDone(patienceMs);
}

void leave(std::shared_ptr<ServerSession>& session) {
  if (session.use_count() > 1) return session.reset();
  bool const isLost = session->isLost;
  auto const closed = std::make_shared<std::promise<void>>();
  startReading([closed, own = std::move(session)]() mutable {
    FirstFailure const quiet;
    own.reset();
    closed->set_value();
  });
  if (!isLost) closed->get_future().wait_for(patienceToClose);
}

}  // namespace SysCarto
