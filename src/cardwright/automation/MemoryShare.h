#pragma once

#include <cstddef>
#include <utility>

#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {

/// The part of the thread's memory budget that an object takes for what is neither a text nor an array.
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

  /// Error 7 where the budget has no more.
  void Grow(std::size_t bytes) {
    MemoryBudget::Charge(bytes);
    m_Bytes += bytes;
  }

 private:
  std::size_t m_Bytes = 0;
};

}  // namespace cardwright
