// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cardwright/hosting/FileSystemObject.h"
#include "cardwright/storage/CodePage.h"
#include "hosting/Calls.h"
#include "hosting/TestFolder.h"

namespace cardwright::testing {
namespace {

constexpr std::int32_t kReading = 1, kWriting = 2, kAppending = 8, kUnicode = -1;

class TextStreamTest : public ::testing::Test {
 protected:
  Ref<Object> Open(const std::string& name, std::int32_t mode, std::int32_t format = 0) {
    return ObjectOf(CallMethod(*m_Files, u"OpenTextFile", {m_Folder / name, mode, true, format}));
  }
  /// A stream that reads these bytes.
  Ref<Object> Reader(const std::string& bytes, std::int32_t format = 0) {
    m_Folder.Write("in.txt", bytes);
    return Open("in.txt", kReading, format);
  }

  TestFolder m_Folder;
  const Ref<FileSystemObject> m_Files = MakeRef<FileSystemObject>();
};

TEST_F(TextStreamTest, ReadsLinesThatEndInLfOrCrLf) {
  const Ref<Object> stream = Reader("one\r\ntwo\n\nlast");
  for (const char* line : {"one", "two", "", "last"})
    EXPECT_EQ(Utf8Of(CallMethod(*stream, u"ReadLine")), line);
  EXPECT_TRUE(ToBoolean(GetProperty(*stream, u"AtEndOfStream")));
}

TEST_F(TextStreamTest, KeepsALoneCrInItsLine) {
  EXPECT_EQ(Utf8Of(CallMethod(*Reader("a\rb\r\nc"), u"ReadLine")), "a\rb");
}

TEST_F(TextStreamTest, CountsLineAndColumnFromOne) {
  const Ref<Object> stream = Reader("ab\r\ncd");
  const auto place = [&] {
    return Utf8Of(GetProperty(*stream, u"Line")) + ":" + Utf8Of(GetProperty(*stream, u"Column"));
  };
  EXPECT_EQ(place(), "1:1");
  CallMethod(*stream, u"Read", {2});
  EXPECT_EQ(place(), "1:3");
  EXPECT_TRUE(ToBoolean(GetProperty(*stream, u"AtEndOfLine")));
  CallMethod(*stream, u"SkipLine");
  EXPECT_EQ(place(), "2:1");
  EXPECT_FALSE(ToBoolean(GetProperty(*stream, u"AtEndOfLine")));
  CallMethod(*stream, u"Skip", {1});
  EXPECT_EQ(place(), "2:2");
}

TEST_F(TextStreamTest, ReadAllReturnsTheRest) {
  const Ref<Object> stream = Reader("one\r\ntwo\r\n");
  CallMethod(*stream, u"SkipLine");
  EXPECT_EQ(Utf8Of(CallMethod(*stream, u"ReadAll")), "two\r\n");
}

TEST_F(TextStreamTest, ReadsAFileOfSeveralBlocks) {
  std::string bytes;
  for (int i = 0; i < 40'000; ++i) bytes += "line " + std::to_string(i) + "\n";
  const Ref<Object> stream = Reader(bytes);
  for (int i = 0; i < 40'000; ++i)
    ASSERT_EQ(Utf8Of(CallMethod(*stream, u"ReadLine")), "line " + std::to_string(i));
  EXPECT_EQ(ToText(CallMethod(*Reader(bytes), u"ReadAll")).Size(), bytes.size());
}

TEST_F(TextStreamTest, SkipsMoreThanOneBlock) {
  const Ref<Object> stream = Reader(std::string(200'000, 'a') + std::string(100'000, 'b') + "\nlast");
  CallMethod(*stream, u"Skip", {199'999});
  EXPECT_EQ(Utf8Of(GetProperty(*stream, u"Column")), "200000");
  EXPECT_EQ(Utf8Of(CallMethod(*stream, u"Read", {2})), "ab");
  CallMethod(*stream, u"SkipLine");
  EXPECT_EQ(Utf8Of(GetProperty(*stream, u"Line")), "2");
  EXPECT_EQ(Utf8Of(CallMethod(*stream, u"ReadAll")), "last");
}

TEST_F(TextStreamTest, RaisesInputPastEndAtTheEnd) {
  for (const char16_t* member : {u"ReadLine", u"ReadAll", u"SkipLine"})
    EXPECT_EQ(ErrorOf([&] { CallMethod(*Reader(""), member); }), 62);
  for (const char16_t* member : {u"Read", u"Skip"})
    EXPECT_EQ(ErrorOf([&] { CallMethod(*Reader(""), member, {1}); }), 62);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*Reader("ab"), u"Skip", {3}); }), 62);
  EXPECT_EQ(Utf8Of(CallMethod(*Reader("ab"), u"Read", {3})), "ab");
}

TEST_F(TextStreamTest, RefusesNegativeCounts) {
  for (const char16_t* member : {u"Read", u"Skip"})
    EXPECT_EQ(ErrorOf([&] { CallMethod(*Reader("ab"), member, {-1}); }), 5);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*Open("out", kWriting), u"WriteBlankLines", {-1}); }), 5);
}

TEST_F(TextStreamTest, RefusesToWriteWhenOpenForReadingAndViceVersa) {
  for (const char16_t* member : {u"ReadLine", u"ReadAll", u"SkipLine"})
    EXPECT_EQ(ErrorOf([&] { CallMethod(*Open("out", kWriting), member); }), 54);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*Open("out", kAppending), u"AtEndOfStream"); }), 54);
  for (const char16_t* member : {u"Write", u"WriteLine"})
    EXPECT_EQ(ErrorOf([&] { CallMethod(*Reader("ab"), member, {u"x"}); }), 54);
}

TEST_F(TextStreamTest, RaisesObjectNotSetOnceClosed) {
  const Ref<Object> stream = Reader("ab");
  CallMethod(*stream, u"Close");
  CallMethod(*stream, u"Close");
  EXPECT_EQ(ErrorOf([&] { CallMethod(*stream, u"ReadAll"); }), 91);
}

TEST_F(TextStreamTest, WritesLinesThatEndInCrLf) {
  const Ref<Object> stream = Open("out", kWriting);
  CallMethod(*stream, u"Write", {u"a"});
  CallMethod(*stream, u"WriteLine", {u"b"});
  CallMethod(*stream, u"WriteBlankLines", {2});
  CallMethod(*stream, u"WriteLine");
  EXPECT_EQ(ToLong(GetProperty(*stream, u"Line")), 5);
  CallMethod(*stream, u"Close");
  EXPECT_EQ(m_Folder.Read("out"), "ab\r\n\r\n\r\n\r\n");
}

TEST_F(TextStreamTest, FlushesOnDestruction) {
  CallMethod(*Open("out", kWriting), u"Write", {u"kept"});
  EXPECT_EQ(m_Folder.Read("out"), "kept");
}

TEST_F(TextStreamTest, AppendsOrTruncates) {
  m_Folder.Write("out", "old");
  CallMethod(*Open("out", kAppending), u"Write", {u"+new"});
  EXPECT_EQ(m_Folder.Read("out"), "old+new");
  CallMethod(*Open("out", kWriting), u"Write", {u"x"});
  EXPECT_EQ(m_Folder.Read("out"), "x");
}

TEST_F(TextStreamTest, WritesOneByteForEachCharacterOfTheCodePage) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const Text text = ToText(CallMethod(*Reader(all), u"ReadAll"));
  EXPECT_EQ(text.Size(), 256U);
  EXPECT_EQ(text[0x80], u'€');
  CallMethod(*Open("out", kWriting), u"Write", {text});
  EXPECT_EQ(m_Folder.Read("out"), all);
}

TEST_F(TextStreamTest, RefusesACharacterThatTheCodePageLacks) {
  EXPECT_EQ(ErrorOf([&] { CallMethod(*Open("out", kWriting), u"Write", {u"Ж"}); }), 5);
  ASSERT_TRUE(CodePage::Select("windows-1251"));
  CallMethod(*Open("out", kWriting), u"Write", {u"Ж"});
  CodePage::Select("windows-1252");
  EXPECT_EQ(m_Folder.Read("out"), "\xC6");
}

TEST_F(TextStreamTest, WritesUtf16WithAByteOrderMarkAndReadsItBack) {
  CallMethod(*Open("out", kWriting, kUnicode), u"Write", {u"Ж"});
  EXPECT_EQ(m_Folder.Read("out"), std::string("\xFF\xFE\x16\x04"));
  CallMethod(*Open("out", kAppending, kUnicode), u"Write", {u"!"});
  EXPECT_EQ(m_Folder.Read("out"), std::string("\xFF\xFE\x16\x04!\0", 6));
  EXPECT_EQ(Utf8Of(CallMethod(*Open("out", kReading, kUnicode), u"ReadAll")), "Ж!");
}

TEST_F(TextStreamTest, ReadsTheByteOrderMarkAsCharactersInTheCodePage) {
  EXPECT_EQ(ToText(CallMethod(*Reader("\xFF\xFE"), u"ReadAll")), u"ÿþ");
}

TEST_F(TextStreamTest, ReadsUtf16WithoutAByteOrderMark) {
  EXPECT_EQ(Utf8Of(CallMethod(*Reader(std::string("a\0b\0", 4), kUnicode), u"ReadAll")), "ab");
}

}  // namespace
}  // namespace cardwright::testing
