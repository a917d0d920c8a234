// SPDX-License-Identifier: MIT
#include "cardwright/automation/Errors.h"

#include <stdexcept>

#include "automation/Printing.h"

namespace cardwright {
namespace {

TEST(StandardErrorText, KnowsThePlatformsTexts) {
  EXPECT_EQ(StandardErrorText(5), u"Invalid procedure call or argument");
  EXPECT_EQ(StandardErrorText(13), u"Type mismatch");
  EXPECT_EQ(StandardErrorText(380), u"Invalid property value");
  EXPECT_EQ(StandardErrorText(457), u"This key is already associated with an element of this collection");
  EXPECT_EQ(StandardErrorText(727), u"There is already a control with the name used");
  EXPECT_EQ(StandardErrorText(32811), u"Element not found");
  for (const int unknown : {-1, 0, 4, 8, 1000, 40000}) {
    EXPECT_EQ(StandardErrorText(unknown), u"Unknown runtime error") << unknown;
  }
}

TEST(Error, HasTheStandardTextUnlessGivenAnother) {
  EXPECT_EQ(Error(ErrorNumber::Overflow).Description(), u"Overflow");
  const Error own(6, u"Too much", u"Here");
  EXPECT_EQ(own.Description(), u"Too much");
  EXPECT_EQ(own.Source(), u"Here");
  EXPECT_STREQ(own.what(), "Error 6: Too much");
}

TEST(BestEffort, SwallowsNumberedErrorsOnly) {
  EXPECT_TRUE(BestEffort([] {}));
  EXPECT_FALSE(BestEffort([] { Raise(ErrorNumber::InvalidCall); }));
  EXPECT_THROW(BestEffort([] { throw std::logic_error("a fault of our own"); }), std::logic_error);
}

TEST(BestEffortOr, GivesTheFallbackForAnError) {
  EXPECT_EQ(BestEffortOr(7, [] { return 1; }), 1);
  EXPECT_EQ(BestEffortOr(7, []() -> int { Raise(5); }), 7);
}

}  // namespace
}  // namespace cardwright
