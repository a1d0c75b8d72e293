#include "VertexPool.h"

#include <algorithm>
#include <utility>

namespace SysCarto {

namespace {

// Blocks grow: there may be thousands of small layers.
constexpr std::size_t firstBlock = 1 << 11, mostDoublings = 5;

}  // namespace

void VertexPool::takeOver(VertexPool& other) {
  for (std::unique_ptr<double[]>& block : other.blocks_) blocks_.push_back(std::move(block));
  other.clear();
}

void VertexPool::addBlock(std::size_t doubles) {
  std::size_t const size = std::max(doubles, firstBlock << std::min(blocks_.size(), mostDoublings));
  blocks_.emplace_back(new double[size]);  // not filled: what is not used costs no memory
  next_ = blocks_.back().get();
  end_ = next_ + size;
}

}  // namespace SysCarto
