#pragma once

#include <cstddef>
#include <memory>
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
  void takeOver(VertexPool& other);

  void clear() { *this = VertexPool(); }

private:
  void addBlock(std::size_t doubles);

  std::vector<std::unique_ptr<double[]>> blocks_;
  double* next_ = nullptr;
  double* end_ = nullptr;
};

}  // namespace SysCarto
