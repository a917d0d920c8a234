// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Memory for the registers of all frames. It grows by blocks that never move, since registers refer to each
/// other. Above the topmost frame's window no register holds a counted value.
class RegisterStack {
 public:
  /// The registers of a frame: those from `start` on, in the block of that number.
  struct Window {
    Variant* start;
    std::uint32_t block;
  };

  /// `block` is the least number of registers by which it grows.
  explicit RegisterStack(std::size_t block) : m_Block(block) {}

  Variant* Bottom();
  /// A window of `count` registers at `wanted` in the block, or at the start of the next block where they do
  /// not fit.
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
