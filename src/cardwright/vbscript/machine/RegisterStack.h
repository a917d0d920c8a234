#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Memory of the frames' registers. It grows by blocks that never move, as references into it are passed
/// around. Whatever is above the topmost frame holds no counted value.
class RegisterStack {
 public:
  /// A frame's place: `registers` from `start` on, in the block of that number.
  struct Window {
    Variant* start;
    std::uint32_t block;
  };

  /// It grows by at least that many registers.
  explicit RegisterStack(std::size_t block) : m_Block(block) {}

  Variant* Bottom();
  /// Room for `count` registers at `wanted` in the block, or at the start of a further one where they do not
  /// fit.
  Window Allocate(Variant* wanted, std::uint32_t block, std::size_t count) {
    if (count <= static_cast<std::size_t>(m_Blocks[block].end - wanted)) return {wanted, block};
    return NextBlock(block, count);
  }

 private:
  struct Block {
    MemoryShare memory;
    std::unique_ptr<Variant[]> values;
    Variant* end;
  };
  Window NextBlock(std::uint32_t block, std::size_t count);
  std::size_t m_Block;
  std::vector<Block> m_Blocks;
};

}  // namespace cardwright::vbscript
