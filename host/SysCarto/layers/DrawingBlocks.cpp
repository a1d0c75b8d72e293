#include "DrawingBlocks.h"

#include <QByteArray>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace SysCarto {

namespace {

constexpr int longestLine = 4096;
constexpr int deepest = 64;

struct Block {
  double entities = 0;
  std::vector<std::pair<QByteArray, double>> inserts;  // of which block, how often
};

// Reads the pairs of lines that a drawing is made of: what follows, and its value.
class Reader {
public:
  explicit Reader(QString const& path) : file_(path) { file_.open(QIODevice::ReadOnly); }

  double entities() {
    while (next()) take();
    finish();
    return expanded(QByteArray(), 0);
  }

private:
  bool next() {
    if (!file_.isOpen() || file_.atEnd()) return false;
    code_ = line().toInt();
    value_ = line();
    return true;
  }

  // What goes on beyond the longest is passed over, and does not count as a line of its own.
  QByteArray line() {
    QByteArray const beginning = file_.readLine(longestLine);
    for (QByteArray rest = beginning; !rest.isEmpty() && !rest.endsWith('\n');) rest = file_.readLine(longestLine);
    return beginning.trimmed();
  }

  void take() {
    constexpr int kind = 0, name = 2, columns = 70, rows = 71;
    if (code_ == kind) {
      finish();
      entity_ = value_;
      if (entity_ == "ENDBLK") current_.clear();
    } else if (code_ == name && entity_ == "BLOCK") {
      current_ = value_;
    } else if (code_ == name) {
      inserted_ = value_;
    } else if (code_ == columns || code_ == rows) {
      times_ *= std::max(1.0, value_.toDouble());
    }
  }

  void finish() {
    bool const inserts = entity_ == "INSERT" || entity_ == "DIMENSION";
    Block& block = blocks_[current_];
    ++block.entities;
    if (inserts && !inserted_.isEmpty()) block.inserts.emplace_back(inserted_, entity_ == "INSERT" ? times_ : 1);
    entity_.clear();
    inserted_.clear();
    times_ = 1;
  }

  double expanded(QByteArray const& name, int depth) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    if (depth > deepest) return endless;
    auto const known = expanded_.constFind(name);
    if (known != expanded_.constEnd()) return *known;
    expanded_[name] = endless;  // while its own content is counted: a circle
    Block const block = blocks_.value(name);
    double sum = block.entities;
    for (auto const& [inserted, times] : block.inserts) sum += times * expanded(inserted, depth + 1);
    return expanded_[name] = sum;
  }

  QFile file_;
  int code_ = 0;
  QByteArray value_, entity_, current_, inserted_;  // the current block has no name outside all blocks
  double times_ = 1;
  QHash<QByteArray, Block> blocks_;
  QHash<QByteArray, double> expanded_;
};

}  // namespace

double entitiesOf(QString const& drawing) { return Reader(drawing).entities(); }

}  // namespace SysCarto
