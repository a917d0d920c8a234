// SPDX-License-Identifier: MIT
#include "cardwright/automation/MemoryBudget.h"

#include <gtest/gtest.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Text.h"

namespace cardwright {
namespace {

int ErrorOfCharging(std::size_t bytes) {
  try {
    MemoryBudget::Charge(bytes);
  } catch (const Error& error) {
    EXPECT_FALSE(error.Description().IsEmpty());
    return error.Number();
  }
  MemoryBudget::Refund(bytes);
  return 0;
}

TEST(MemoryBudget, RaisesOutOfMemoryBeyondItsLimit) {
  const MemoryBudget::Limit limit(100);
  EXPECT_EQ(ErrorOfCharging(100), 0);
  EXPECT_EQ(ErrorOfCharging(101), 7);
}

TEST(MemoryBudget, ReportsAShortageWithNothingLeft) {
  const MemoryBudget::Limit limit(0);
  EXPECT_EQ(ErrorOfCharging(1), 7);
}

TEST(MemoryBudget, KeepsTheStricterOfTwoLimits) {
  const MemoryBudget::Limit outer(100);
  {
    const MemoryBudget::Limit inner(1000);
    EXPECT_EQ(ErrorOfCharging(101), 7);
    const MemoryBudget::Limit innermost(10);
    EXPECT_EQ(ErrorOfCharging(11), 7);
  }
  EXPECT_EQ(ErrorOfCharging(100), 0);
}

TEST(MemoryBudget, IsLiftedByAnExemptionWhileItLives) {
  const MemoryBudget::Limit limit(10);
  {
    const MemoryBudget::Exemption exemption;
    EXPECT_EQ(ErrorOfCharging(1000), 0);
  }
  EXPECT_EQ(ErrorOfCharging(11), 7);
}

TEST(MemoryBudget, CountsLivingTexts) {
  const std::size_t before = MemoryBudget::Used();
  {
    const Text text(u"a text that needs memory of its own");
    EXPECT_GT(MemoryBudget::Used(), before);
  }
  EXPECT_EQ(MemoryBudget::Used(), before);
}

}  // namespace
}  // namespace cardwright
