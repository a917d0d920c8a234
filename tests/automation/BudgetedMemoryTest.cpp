// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory_resource>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/BudgetedMemory.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {
namespace {

template <class Step>
int ErrorOf(Step step) {
  try {
    step();
  } catch (const Error& error) {
    EXPECT_FALSE(error.Description().IsEmpty());
    return error.Number();
  }
  return 0;
}

TEST(BudgetedMemory, CountsSharedObjects) {
  const std::size_t used = MemoryBudget::Used();
  {
    const auto array = MakeRef<Array>();
    EXPECT_GE(MemoryBudget::Used(), used + sizeof(Array));
    const MemoryBudget::Limit limit(sizeof(Array) - 1);
    EXPECT_EQ(ErrorOf([] { MakeRef<Array>(); }), 7);
  }
  EXPECT_EQ(MemoryBudget::Used(), used);
}

TEST(BudgetedMemory, CountsContainers) {
  const std::size_t used = MemoryBudget::Used();
  {
    std::pmr::vector<int> numbers(1000, &BudgetedMemory::Instance());
    EXPECT_EQ(MemoryBudget::Used(), used + 1000 * sizeof(int));
    const MemoryBudget::Limit limit(1000 * sizeof(int));
    EXPECT_EQ(ErrorOf([&] { numbers.resize(10000); }), 7);
    EXPECT_EQ(numbers.size(), 1000u);
  }
  EXPECT_EQ(MemoryBudget::Used(), used);
}

}  // namespace
}  // namespace cardwright
