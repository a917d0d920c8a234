// SPDX-License-Identifier: MIT
#pragma once

#include <memory_resource>

namespace cardwright {

/// Heap memory for containers, charged to the thread's MemoryBudget: error 7 beyond its limit.
class BudgetedMemory final : public std::pmr::memory_resource {
 public:
  static BudgetedMemory& Instance() noexcept;

 private:
  void* do_allocate(std::size_t bytes, std::size_t alignment) override;
  void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override;
  bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

}  // namespace cardwright
