// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <utility>

#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {

/// An object's charge to the thread's MemoryBudget for memory other than texts and arrays.
class MemoryShare {
 public:
  MemoryShare() = default;
  explicit MemoryShare(std::size_t bytes) { Grow(bytes); }
  MemoryShare(MemoryShare&& other) noexcept : m_Bytes(std::exchange(other.m_Bytes, 0)) {}
  MemoryShare& operator=(MemoryShare&& other) noexcept {
    std::swap(m_Bytes, other.m_Bytes);
    return *this;
  }
  ~MemoryShare() { MemoryBudget::Refund(m_Bytes); }

  /// Error 7 where the limit would be exceeded.
  void Grow(std::size_t bytes) {
    MemoryBudget::Charge(bytes);
    m_Bytes += bytes;
  }

 private:
  std::size_t m_Bytes = 0;
};

}  // namespace cardwright
