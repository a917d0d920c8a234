// SPDX-License-Identifier: MIT
#include <set>
#include <string>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

struct ConstantCase {
  const char16_t* name;
  const char* outcome;
};

const BuiltinConstant* RowOf(std::u16string_view name) {
  for (const BuiltinConstant& constant : Constants()) {
    if (constant.name == name) return &constant;
  }
  return nullptr;
}

TEST(Constants, HaveTheirDocumentedValues) {
  const ConstantCase cases[] = {{u"vbBlack", "l 0"},
                                {u"vbRed", "l 255"},
                                {u"vbGreen", "l 65280"},
                                {u"vbYellow", "l 65535"},
                                {u"vbBlue", "l 16711680"},
                                {u"vbMagenta", "l 16711935"},
                                {u"vbCyan", "l 16776960"},
                                {u"vbWhite", "l 16777215"},
                                {u"vbBinaryCompare", "i 0"},
                                {u"vbTextCompare", "i 1"},
                                {u"vbDatabaseCompare", "i 2"},
                                {u"vbCr", "& \r"},
                                {u"vbCrLf", "& \r\n"},
                                {u"vbFormFeed", "& \f"},
                                {u"vbLf", "& \n"},
                                {u"vbNewLine", "& \r\n"},
                                {u"vbNullString", "& "},
                                {u"vbTab", "& \t"},
                                {u"vbVerticalTab", "& \v"},
                                {u"vbOKOnly", "i 0"},
                                {u"vbOKCancel", "i 1"},
                                {u"vbAbortRetryIgnore", "i 2"},
                                {u"vbYesNoCancel", "i 3"},
                                {u"vbYesNo", "i 4"},
                                {u"vbRetryCancel", "i 5"},
                                {u"vbCritical", "i 16"},
                                {u"vbQuestion", "i 32"},
                                {u"vbExclamation", "i 48"},
                                {u"vbInformation", "i 64"},
                                {u"vbDefaultButton1", "i 0"},
                                {u"vbDefaultButton2", "i 256"},
                                {u"vbDefaultButton3", "i 512"},
                                {u"vbDefaultButton4", "i 768"},
                                {u"vbApplicationModal", "i 0"},
                                {u"vbSystemModal", "i 4096"},
                                {u"vbMsgBoxHelpButton", "i 16384"},
                                {u"vbMsgBoxSetForeground", "l 65536"},
                                {u"vbMsgBoxRight", "l 524288"},
                                {u"vbMsgBoxRtlReading", "l 1048576"},
                                {u"vbOK", "i 1"},
                                {u"vbCancel", "i 2"},
                                {u"vbAbort", "i 3"},
                                {u"vbRetry", "i 4"},
                                {u"vbIgnore", "i 5"},
                                {u"vbYes", "i 6"},
                                {u"vbNo", "i 7"},
                                {u"vbSunday", "i 1"},
                                {u"vbMonday", "i 2"},
                                {u"vbTuesday", "i 3"},
                                {u"vbWednesday", "i 4"},
                                {u"vbThursday", "i 5"},
                                {u"vbFriday", "i 6"},
                                {u"vbSaturday", "i 7"},
                                {u"vbFirstJan1", "i 1"},
                                {u"vbFirstFourDays", "i 2"},
                                {u"vbFirstFullWeek", "i 3"},
                                {u"vbUseSystem", "i 0"},
                                {u"vbUseSystemDayOfWeek", "i 0"},
                                {u"vbGeneralDate", "i 0"},
                                {u"vbLongDate", "i 1"},
                                {u"vbShortDate", "i 2"},
                                {u"vbLongTime", "i 3"},
                                {u"vbShortTime", "i 4"},
                                {u"vbTrue", "i -1"},
                                {u"vbFalse", "i 0"},
                                {u"vbUseDefault", "i -2"},
                                {u"vbObjectError", "l -2147221504"},
                                {u"vbEmpty", "i 0"},
                                {u"vbNull", "i 1"},
                                {u"vbInteger", "i 2"},
                                {u"vbLong", "i 3"},
                                {u"vbSingle", "i 4"},
                                {u"vbDouble", "i 5"},
                                {u"vbCurrency", "i 6"},
                                {u"vbDate", "i 7"},
                                {u"vbString", "i 8"},
                                {u"vbObject", "i 9"},
                                {u"vbError", "i 10"},
                                {u"vbBoolean", "i 11"},
                                {u"vbVariant", "i 12"},
                                {u"vbDataObject", "i 13"},
                                {u"vbDecimal", "i 14"},
                                {u"vbByte", "i 17"},
                                {u"vbArray", "i 8192"}};
  for (const ConstantCase& c : cases) {
    const BuiltinConstant* row = RowOf(c.name);
    ASSERT_TRUE(row) << Text(c.name).ToUtf8();
    EXPECT_EQ(Outcome(row->value), c.outcome) << Text(c.name).ToUtf8();
  }
  EXPECT_EQ(Constants().size(), std::size(cases) + 1) << "all of them but vbNullChar";
}

TEST(Constants, KnowTheCharacterOfCodeZero) {
  const Variant value = RowOf(u"vbNullChar")->value();
  ASSERT_EQ(value.StringView().size(), 1U);
  EXPECT_EQ(value.StringView()[0], u'\0');
}

TEST(Constants, HaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const BuiltinConstant& constant : Constants()) {
    EXPECT_TRUE(names.insert(ToLower(constant.name).ToUtf8()).second) << Text(constant.name).ToUtf8();
  }
}

TEST(Context, SharesTheFirstCharacters) {
  ScriptHost host;
  Context context(host);
  EXPECT_EQ(context.Character(u'a'), u"a");
  EXPECT_EQ(context.Character(u'a').View().data(), context.Character(u'a').View().data());
  EXPECT_EQ(context.Character(u'\0').Size(), 1U);
  EXPECT_EQ(context.Character(u'\u20AC'), u"\u20AC");
}

TEST(Context, LimitsTheSizeOfTexts) {
  ScriptHost host;
  Context context(host);
  context.maxTextUnits = 10;
  context.CheckTextSize(10);
  EXPECT_EQ(ErrorOf([&] { context.CheckTextSize(11); }), 14);
}

}  // namespace
}  // namespace cardwright::vbscript
