#pragma once

#include <SysCarto/Export.h>

#include <QElapsedTimer>
#include <QString>

#include <functional>
#include <memory>

class OGRLayer;

namespace SysCarto {

class DataSource;
struct SourceSettings;

/// Told now and then how many features were read, of how many; −1 where the file does not say. Answers whether the
/// reading goes on.
using ReadProgress = std::function<bool(qint64 read, qint64 count)>;

/// Does work that may be given up, on a thread that no other such work waits for, however long it takes.
SYSCARTO_EXPORT void startReading(std::function<void()> work);

/// As above, but no more such work at a time than the machine has cores; what comes later waits.
SYSCARTO_EXPORT void queueReading(std::function<void()> work);

/// Whether such work is under way. The end of the application waits for it only for a moment; where it lasts longer,
/// the process has to end without taking down what the work uses.
SYSCARTO_EXPORT bool isReading();

/// As `DataSource::open`, watched, since to open a file can mean to read all of it. What is given up is no error: the
/// pointer is then empty, and `error` too.
SYSCARTO_EXPORT std::unique_ptr<DataSource> openWatched(SourceSettings const& source, ReadProgress const& progress,
                                                        QString& error);

/// Whether whoever waits for features that are read on this thread still does; true where nobody could be asked.
bool isStillWanted();

/// Asks whoever waits while features are read, but not so often that it would cost time.
class SYSCARTO_EXPORT ReadWatch {
public:
  /// The progress may be empty; it is borrowed.
  ReadWatch(OGRLayer& layer, ReadProgress const& progress);
  ~ReadWatch();
  ReadWatch(ReadWatch const&) = delete;
  ReadWatch& operator=(ReadWatch const&) = delete;

  /// Of all that there are, only some are read, and nobody knows how many.
  void countNone() { count_ = -1; }

  /// To be called for each feature.
  bool goesOn() {
    constexpr int betweenLooks = 256;
    return !progress_ || (!wasStopped_ && (++read_ % betweenLooks != 0 || ask()));
  }

  /// Also by a layer that had to wait for its features, and ended them then.
  bool wasStopped() const { return wasStopped_; }

private:
  friend bool isStillWanted();
  bool ask();

  ReadProgress const& progress_;
  qint64 count_;
  qint64 read_ = 0;
  bool wasStopped_ = false;
  ReadWatch* const around_;  // of this thread
  QElapsedTimer clock_;
};

}  // namespace SysCarto
