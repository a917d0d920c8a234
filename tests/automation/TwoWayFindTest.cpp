// SPDX-License-Identifier: MIT
#include "cardwright/automation/TwoWayFind.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace cardwright {
namespace {

char Same(char c) { return c; }

std::string Letters(std::mt19937& random, std::size_t least, std::size_t most, unsigned alphabet) {
  std::string letters;
  for (std::size_t left = least + random() % (most - least + 1); left > 0; --left)
    letters += static_cast<char>('a' + random() % alphabet);
  return letters;
}

TEST(TwoWayFind, FindsWhatTheStandardLibraryFinds) {
  std::mt19937 random(1);
  for (int k = 0; k < 200000; ++k) {
    const unsigned alphabet = 1 + static_cast<unsigned>(random() % 3);
    const std::string text = Letters(random, 0, 24, alphabet);
    std::string part = Letters(random, 1, 8, alphabet);
    if (k % 3 == 0) part = (part + part + part).substr(0, 1 + random() % (3 * part.size()));
    const std::string_view in = text, what = part;
    ASSERT_EQ(FindLinear(in, what, Same), text.find(part)) << text << ' ' << part;
    ASSERT_EQ(FindLastLinear(in, what, Same), text.rfind(part)) << text << ' ' << part;
  }
}

TEST(TwoWayFind, ComparesWhatTheUnitsAreFoldedTo) {
  const std::string_view text = "xxABCabcxx", part = "AbC";
  const auto lower = [](char c) { return c < 'a' ? static_cast<char>(c + 32) : c; };
  EXPECT_EQ(FindLinear(text, part, lower), 2u);
  EXPECT_EQ(FindLastLinear(text, part, lower), 5u);
}

TEST(TwoWayFind, TakesLinearTimeForPartsThatRepeatThemselves) {
  const std::string repeated(1 << 20, 'a');
  const std::string_view text = repeated;
  const std::string head = std::string(1 << 19, 'a') + "b", tail = "b" + std::string(1 << 19, 'a');
  for (const std::string& part : {head, tail, head + tail}) {
    const std::string_view what = part;
    EXPECT_EQ(FindLinear(text, what, Same), std::string::npos);
    EXPECT_EQ(FindLastLinear(text, what, Same), std::string::npos);
  }
}

}  // namespace
}  // namespace cardwright
