// SPDX-License-Identifier: MIT
#include "cardwright/hosting/DefaultButton.h"

#include <gtest/gtest.h>

namespace cardwright::testing {
namespace {

TEST(DefaultButton, IsTheFirstUnlessTheStyleNamesAnother) {
  constexpr int kQuestion = 32, kSecond = 256, kThird = 512;
  EXPECT_EQ(DefaultButton(0), 1);
  EXPECT_EQ(DefaultButton(1), 1);
  EXPECT_EQ(DefaultButton(1 + kSecond), 2);
  EXPECT_EQ(DefaultButton(2), 3);
  EXPECT_EQ(DefaultButton(2 + kThird), 5);
  EXPECT_EQ(DefaultButton(3 + kQuestion + kThird), 2);
  EXPECT_EQ(DefaultButton(4 + kQuestion), 6);
  EXPECT_EQ(DefaultButton(4 + kSecond), 7);
  EXPECT_EQ(DefaultButton(4 + kThird), 6);
  EXPECT_EQ(DefaultButton(5), 4);
  EXPECT_EQ(DefaultButton(-1), 1);
}

}  // namespace
}  // namespace cardwright::testing
