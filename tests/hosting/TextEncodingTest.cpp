// SPDX-License-Identifier: MIT
#include "cardwright/hosting/TextEncoding.h"

#include <gtest/gtest.h>

namespace cardwright::testing {
namespace {

TEST(DecodeScript, UsesTheByteOrderMarkThenWhatTheBytesAreValidAs) {
  EXPECT_EQ(DecodeScript("\xEF\xBB\xBF\xC3\xA8"), u"è");
  EXPECT_EQ(DecodeScript("\xC3\xA8"), u"è");
  EXPECT_EQ(DecodeScript(std::string("\xFF\xFE\xE8\0a\0", 6)), u"èa");
  EXPECT_EQ(DecodeScript(std::string("\xFE\xFF\0\xE8\0a", 6)), u"èa");
  EXPECT_EQ(DecodeScript("\xE8"), u"è");
  EXPECT_EQ(DecodeScript("\x80 \xC3\xA8"), u"€ Ã¨");
  EXPECT_EQ(DecodeScript(""), u"");
}

TEST(DecodeAvailable, KeepsTheBytesOfAnIncompleteCharacter) {
  std::string bytes = "a\xE2\x82";
  EXPECT_EQ(DecodeAvailable(TextEncoding::Utf8, bytes, false), u"a");
  EXPECT_EQ(bytes, "\xE2\x82");
  bytes += "\xAC";
  EXPECT_EQ(DecodeAvailable(TextEncoding::Utf8, bytes, false), u"€");
  bytes = "\xC3";
  EXPECT_EQ(DecodeAvailable(TextEncoding::Utf8, bytes, true), u"\uFFFD");
  bytes = std::string("a\0b", 3);
  EXPECT_EQ(DecodeAvailable(TextEncoding::Utf16, bytes, false), u"a");
  EXPECT_EQ(bytes, "b");
}

}  // namespace
}  // namespace cardwright::testing
