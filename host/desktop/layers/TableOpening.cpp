#include "TableOpening.h"

#include "host/SysCarto/layers/WatchedWork.h"

#include <utility>

using SysCarto::FeatureScan;
using SysCarto::FeatureTable;

namespace {

template <class Opened, class Open>
std::unique_ptr<Opened> opened(Open const& open, SysCarto::ReadProgress const& progress, QString& error) {
  auto done = SysCarto::watched(
      [open] {
        QString problem;
        auto made = open(problem);
        return std::make_pair(std::move(made), problem);
      },
      progress);
  error = done ? done->second : QString();
  return done ? std::move(done->first) : nullptr;
}

}  // namespace

std::unique_ptr<FeatureTable> openTable(SysCarto::SourceSettings const& source, SysCarto::ReadProgress const& progress,
                                        QString& error) {
  auto const open = [source](QString& problem) {
    auto table = FeatureTable::open(source, problem);
    if (table && table->isRandom()) table->row(0);  // whether it is there or not
    return table;
  };
  return opened<FeatureTable>(open, progress, error);
}

std::unique_ptr<FeatureScan> openScan(SysCarto::SourceSettings const& source, FeatureScan::Wanted const& wanted,
                                      SysCarto::ReadProgress const& progress, QString& error) {
  auto const open = [source, wanted](QString& problem) { return FeatureScan::open(source, wanted, problem); };
  return opened<FeatureScan>(open, progress, error);
}
