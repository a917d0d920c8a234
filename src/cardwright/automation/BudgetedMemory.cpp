// SPDX-License-Identifier: MIT
#include "cardwright/automation/BudgetedMemory.h"

#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {

BudgetedMemory& BudgetedMemory::Instance() noexcept {
  static BudgetedMemory instance;
  return instance;
}

void* BudgetedMemory::do_allocate(std::size_t bytes, std::size_t alignment) {
  MemoryBudget::Charge(bytes);
  return std::pmr::new_delete_resource()->allocate(bytes, alignment);
}

void BudgetedMemory::do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) {
  std::pmr::new_delete_resource()->deallocate(memory, bytes, alignment);
  MemoryBudget::Refund(bytes);
}

}  // namespace cardwright
