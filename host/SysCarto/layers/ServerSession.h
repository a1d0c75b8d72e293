#pragma once

#include "Connections.h"
#include "LocalDataset.h"
#include "WatchedReading.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <cpl_error.h>

#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <utility>

class OGRLayer;

namespace SysCarto {

/// What is asked of the server of a database, on a thread of its own. Whoever waits gives up after some time; then
/// nothing more is asked, the server is told to end what it is at, and the thread keeps what it uses.
struct ServerSession {
  Connection connection;
  DatasetPointer dataset;
  std::atomic<int> process{0};               ///< of the server, that answers
  std::map<void const*, OGRLayer*> cursors;  ///< by who reads
  bool isLost = false;                       ///< for whoever asks; a thread may still be at it

  ~ServerSession();

  /// What a statement answers, as texts; null ones for NULL. Its columns need names of their own.
  QVector<QStringList> rows(QByteArray const& statement);

  /// Has a reader's cursor begin anew, with a statement; null where that is not understood.
  OGRLayer* begin(void const* reader, QByteArray const& statement);

  std::chrono::milliseconds patience() const;
  QString silence() const;
};

/// Opens the connection; without a look at its tables, or with all that have geometries, each as "schema.table".
DatasetPointer connectOnly(Connection const& connection);
DatasetPointer connectWithTables(Connection const& connection);

/// Of several failures on a thread the first says what happened: the driver goes on, and then misses what it could not
/// make.
class FirstFailure {
public:
  FirstFailure() { CPLPushErrorHandlerEx(&FirstFailure::note, this); }
  ~FirstFailure() { CPLPopErrorHandler(); }
  FirstFailure(FirstFailure const&) = delete;
  FirstFailure& operator=(FirstFailure const&) = delete;

  QString const& text() const { return text_; }

private:
  static void CPL_STDCALL note(CPLErr kind, CPLErrorNum number, char const* text);

  QString text_;
};

/// No answer is waited for any more.
void giveUp(ServerSession& session);

/// Waits a moment until servers that are given up know it, before the process ends.
void finishGivingUp();

/// What the work answers on another thread; nothing where it takes longer than the connection says, or nobody waits for
/// it any more. What it needs must belong to it.
template <class Work>
auto asked(std::shared_ptr<ServerSession> const& session, Work work) -> std::optional<decltype(work(*session))> {
  using Answer = decltype(work(*session));
  constexpr std::chrono::milliseconds betweenQuestions(20);
  if (session->isLost) return std::nullopt;
  auto const promise = std::make_shared<std::promise<Answer>>();
  auto answer = promise->get_future();
  startReading([own = session, promise, work = std::move(work)]() mutable {
    promise->set_value(work(*own));
    own.reset();
  });
  QElapsedTimer clock;
  clock.start();
  while (answer.wait_for(betweenQuestions) != std::future_status::ready) {
    if (clock.elapsed() <= session->patience().count() && isStillWanted()) continue;
    giveUp(*session);
    return std::nullopt;
  }
  return answer.get();
}

/// Whoever leaves a session last has it closed where that can't keep anybody waiting.
void leave(std::shared_ptr<ServerSession>& session);

}  // namespace SysCarto
