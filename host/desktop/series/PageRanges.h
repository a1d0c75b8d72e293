#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <vector>

/// Pages of a series by their numbers, as people write them: “first”, “last”, “odd”, “even”, “7”, “1-3” and “10-”, with
/// commas between.
class PageRanges {
public:
  /// Nothing for a text that is no such list.
  static std::optional<PageRanges> of(QString const& text);

  /// Of `count` pages, from 1.
  bool contains(int page, int count) const;

private:
  bool isFirst_ = false, isLast_ = false, isOdd_ = false, isEven_ = false;
  std::vector<std::pair<int, int>> ranges_;
};
