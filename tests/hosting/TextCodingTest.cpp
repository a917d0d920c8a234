#include "cardwright/hosting/TextCoding.h"

#include <gtest/gtest.h>

namespace cardwright::testing {
namespace {

TEST(DecodeSource, GoesByTheMarkThenByWhatTheBytesCanBe) {
  EXPECT_EQ(DecodeSource("\xEF\xBB\xBF\xC3\xA8"), u"è");
  EXPECT_EQ(DecodeSource("\xC3\xA8"), u"è");
  EXPECT_EQ(DecodeSource(std::string("\xFF\xFE\xE8\0a\0", 6)), u"èa");
  EXPECT_EQ(DecodeSource(std::string("\xFE\xFF\0\xE8\0a", 6)), u"èa");
  EXPECT_EQ(DecodeSource("\xE8"), u"è");
  EXPECT_EQ(DecodeSource("\x80 \xC3\xA8"), u"€ Ã¨");
  EXPECT_EQ(DecodeSource(""), u"");
}

TEST(TakeCharacters, LeavesACharacterThatIsCutOff) {
  std::string bytes = "a\xE2\x82";
  EXPECT_EQ(TakeCharacters(TextCoding::Utf8, bytes, false), u"a");
  EXPECT_EQ(bytes, "\xE2\x82");
  bytes += "\xAC";
  EXPECT_EQ(TakeCharacters(TextCoding::Utf8, bytes, false), u"€");
  bytes = "\xC3";
  EXPECT_EQ(TakeCharacters(TextCoding::Utf8, bytes, true), u"\uFFFD");
  bytes = std::string("a\0b", 3);
  EXPECT_EQ(TakeCharacters(TextCoding::Utf16, bytes, false), u"a");
  EXPECT_EQ(bytes, "b");
}

}  // namespace
}  // namespace cardwright::testing
