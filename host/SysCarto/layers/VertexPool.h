#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace SysCarto {

/// Room for runs of vertices, x, y pairs. A run stays at its place while others are added, so that nothing is copied as
/// the pool grows.
class VertexPool {
public:
  /// Room for that many vertices behind what was kept last.
  double* room(int count) {
    std::size_t const doubles = 2 * static_cast<std::size_t>(count);
    if (static_cast<std::size_t>(end_ - next_) < doubles) addBlock(doubles);
    return next_;
  }

  /// Keeps that many of the vertices for which there was room.
  void keep(int count) { next_ += 2 * static_cast<std::size_t>(count); }

  /// Takes over the runs of another pool, which stay at their places.
  void takeOver(VertexPool& other) {
    for (std::unique_ptr<double[]>& block : other.blocks_) blocks_.push_back(std::move(block));
    other.clear();
  }

  void clear() { *this = VertexPool(); }

private:
  // Blocks grow: there may be thousands of small layers.
  static constexpr std::size_t firstBlock = 1 << 11, mostDoublings = 5;

  void addBlock(std::size_t doubles) {
    std::size_t const size = std::max(doubles, firstBlock << std::min(blocks_.size(), mostDoublings));
    blocks_.emplace_back(new double[size]);  // not filled: what is not used costs no memory
    next_ = blocks_.back().get();
    end_ = next_ + size;
  }

  std::vector<std::unique_ptr<double[]>> blocks_;
  double* next_ = nullptr;
  double* end_ = nullptr;
};

}  // namespace SysCarto
