#pragma once

#include <vector>

class OGRFeature;
class swq_expr_node;

namespace SysCarto {

/// OGR tries the patterns of LIKE by going back at each %, so that the time is a power of the text's length. This adds
/// up what an expression could cost at worst.
class PatternBounds {
public:
  PatternBounds() = default;
  explicit PatternBounds(swq_expr_node const& expression) { look(expression); }

  /// False once that is too much; the error handler of GDAL is then told why. To be asked for each feature, on one
  /// thread.
  bool admit(OGRFeature const& feature);

private:
  void look(swq_expr_node const& node);

  int patterns_ = 0, columns_ = 0;
  std::vector<int> fields_;  // that are held against a pattern; empty for any of them
  bool areKnown_ = true;     // unless something is put together of them first
  int power_ = 0;            // the most % in one of them that something follows
  double charged_ = 0;       // in letters that are compared
};

}  // namespace SysCarto
