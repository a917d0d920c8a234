#pragma once

#include <cstddef>

#include "automation/MemoryBudget.h"

namespace cardwright::vbscript {

/// The part of the thread's memory budget that an object takes for what is neither a text nor an array.
class MemoryShare {
 public:
  MemoryShare() = default;
  MemoryShare(const MemoryShare&) = delete;
  MemoryShare& operator=(const MemoryShare&) = delete;
  ~MemoryShare() { MemoryBudget::Refund(m_Bytes); }

  /// Error 7 where the budget has no more.
  void Grow(std::size_t bytes) {
    MemoryBudget::Charge(bytes);
    m_Bytes += bytes;
  }

 private:
  std::size_t m_Bytes = 0;
};

}  // namespace cardwright::vbscript
