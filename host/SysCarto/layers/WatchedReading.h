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

/// As `DataSource::open`. To open a file can mean to read all of it, so it is done on another thread where somebody
/// waits who may have enough of it. What is given up is finished there for nobody; the pointer is then empty, and
/// `error` too.
SYSCARTO_EXPORT std::unique_ptr<DataSource> openWatched(SourceSettings const& source, ReadProgress const& progress,
                                                        QString& error);

/// Asks whoever waits while features are read, but not so often that it would cost time.
class SYSCARTO_EXPORT ReadWatch {
public:
  /// The progress may be empty; it is borrowed.
  ReadWatch(OGRLayer& layer, ReadProgress const& progress);

  /// To be called for each feature.
  bool goesOn() {
    constexpr int betweenLooks = 256;
    return !progress_ || ++read_ % betweenLooks != 0 || ask();
  }

private:
  bool ask();

  ReadProgress const& progress_;
  qint64 const count_;
  qint64 read_ = 0;
  QElapsedTimer clock_;
};

}  // namespace SysCarto
