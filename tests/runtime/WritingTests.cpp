// SPDX-License-Identifier: MIT
// The values that OK writes, control by control.

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Writing : public FormTest {
 protected:
  explicit Writing(std::u16string_view locale = u"en-us") : FormTest(locale) {
    host->SetTheme({{"a", 0, 20, 0, ""}, {"b", 0, 20, 0, ""}, {"c", 0, 20, 0, ""}, {"n", 1, 8, 2, ""}});
    form->SetNewFeature(true);
  }
  /// The commands that OK sets attributes with.
  Lines Written() {
    form->SetFeatureID("7");
    host->Take();
    ClickOk();
    Lines lines = host->Take();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("X THEME_SET_ATTRIBUTE"); });
    return lines;
  }
};

TEST_F(Writing, PutsTextsBetweenBarsAndNumbersBare) {
  Read({{"TextBox", "a", "Attribute=a\r\nText=Some text\r\n"},
        {"textboxmultiline", "b", "Attribute=b\r\nText=more\r\n"},
        {"TextBox", "n", "Attribute=n\r\nText=12.5\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|Some text|"), Set("b", "|more|"), Set("n", "12.5")}));
}

TEST_F(Writing, ClearsATextWithABlankAndANumberWithNothing) {
  Read({{"TextBox", "a", "Attribute=a\r\n"}, {"TextBox", "n", "Attribute=n\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "| |"), Set("n", "")}));
}

TEST_F(Writing, WritesOnlyTheSelectedOptionOfAGroup) {
  Read({{"Frame", "frame", ""},
        {"OptionButton", "x", "Attribute=a\r\nValue=X\r\nContainer=object_2\r\n"},
        {"OptionButton", "y", "Attribute=a\r\nValue=Y\r\nSelected=True\r\nContainer=object_2\r\n"},
        {"OptionButton", "z", "Attribute=a\r\nValue=Z\r\nContainer=object_2\r\n"},
        {"OptionButton", "other", "Attribute=b\r\nValue=W\r\nSelected=True\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|Y|"), Set("b", "|W|")})) << "each container has a group of its own";
}

TEST_F(Writing, WritesNothingForAGroupWithoutASelection) {
  Read({{"OptionButton", "x", "Attribute=a\r\nValue=X\r\n"}});
  EXPECT_EQ(Written(), Lines{});
}

TEST_F(Writing, WritesTheStateOfACheckBox) {
  Read({{"CheckBox", "x", "Attribute=a\r\nSelected=True\r\n"}, {"CheckBox", "y", "Attribute=n\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|1|"), Set("n", "0")}));
}

TEST_F(Writing, WritesTheValueOfTheChosenEntryAndElseTheTypedText) {
  Read({{"ComboBox", "chosen", "Attribute=a\r\nText=Two\r\n" + kTwoItems},
        {"ComboBox", "typed", "Attribute=b\r\nEditable=True\r\nText=None of them\r\n" + kTwoItems},
        {"ComboBox", "empty", "Attribute=c\r\n" + kTwoItems}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|2|"), Set("b", "|None of them|"), Set("c", "| |")}));
}

TEST_F(Writing, RepeatsTheValueBeforeForAListBoxWithoutASelection) {
  Read({{"ListBox", "first", "Attribute=a\r\n" + kTwoItems},
        {"TextBox", "text", "Attribute=b\r\nText=kept\r\n"},
        {"ListBox", "second", "Attribute=c\r\n" + kTwoItems},
        {"ListBox", "selected", "Attribute=a\r\nText=Two\r\n" + kTwoItems}});
  EXPECT_EQ(Written(), (Lines{Set("a", "| |"), Set("b", "|kept|"), Set("c", "|kept|"), Set("a", "|2|")}));
}

TEST_F(Writing, WritesControlsOfOneAttributeInTurn) {
  Read({{"TextBox", "one", "Attribute=a\r\nText=1\r\n"}, {"TextBox", "two", "Attribute=A\r\nText=2\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|1|"), Set("a", "|2|")})) << "the attribute's own spelling is sent";
}

TEST_F(Writing, SendsBarsAndPlaceholdersInAValueAsTheyStand) {
  Read({{"TextBox", "a", "Attribute=a\r\nText=x|y %%na%% %%t%%\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("a", "|x|y %%na%% %%t%%|")}));
}

class WritingInItalian : public Writing {
 protected:
  WritingInItalian() : Writing(u"it-it") {}
};

TEST_F(WritingInItalian, SendsADecimalCommaOfANumberAsAPoint) {
  Read({{"TextBox", "n", "Attribute=n\r\n"}, {"TextBox", "a", "Attribute=a\r\n"}});
  SetRow(u"n", u"Text", u"3,14");
  SetRow(u"a", u"Text", u"3,14");
  EXPECT_EQ(Written(), (Lines{Set("n", "3.14"), Set("a", "|3,14|")}));
}

TEST_F(WritingInItalian, ShowsANumberAsTheHostGaveIt) {
  host->SetTheme({{"n", 1, 8, 2, "2.5"}});
  form->SetNewFeature(false);
  Read({{"TextBox", "n", "Attribute=n\r\n"}});
  EXPECT_EQ(Written(), (Lines{Set("n", "2.5")}));
}

}  // namespace
}  // namespace cardwright
