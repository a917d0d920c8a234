// SPDX-License-Identifier: MIT
#include "cardwright/shared/KeyFilter.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "platform/FakeWidgets.h"
#include "shared/FakeDesktop.h"
#include "shared/NamedObject.h"

namespace cardwright {
namespace {

Ref<NamedObject> Entry(const char16_t* type, const char16_t* text, int selStart = 0, int selLength = 0) {
  return Named(type, {{u"Text", text}, {u"SelStart", selStart}, {u"SelLength", selLength}});
}

TEST(FilterKey, LetsThroughWhatFormsANumber) {
  const struct {
    char16_t key;
    const char16_t* type;
    const char16_t* text;
    const char16_t* separator;
    char16_t used;
    int beeps;
  } rows[] = {
      {u'0', u"TextBox", u"", u",", u'0', 0},
      {u'9', u"TextBox", u"", u"", u'9', 0},
      {8, u"TextBox", u"", u"", 8, 0},
      {9, u"TextBox", u"", u"", 9, 0},
      {13, u"TextBox", u"", u"", 13, 0},
      {u'.', u"TextBox", u"12", u",", u',', 0},
      {u',', u"TextBox", u"12", u",", u',', 0},
      {u'.', u"TextBox", u"1,2", u",", 0, 0},
      {u',', u"TextBox", u"1,2", u",", 0, 0},
      {u'.', u"TextBox", u"1.2", u",", u',', 0},
      {u'.', u"ComboBox", u"1,2", u",", u',', 0},
      {u'.', u"MultilineTextBox", u"1,2", u",", u',', 0},
      {u'.', u"TextBox", u"12", u"", 0, 1},
      {u',', u"TextBox", u"12", u".", 0, 1},
      {u'a', u"TextBox", u"", u",", 0, 1},
      {u' ', u"TextBox", u"", u",", 0, 1},
      {u'+', u"TextBox", u"", u",", 0, 1},
      {u'٣', u"TextBox", u"", u",", 0, 1},
      {27, u"TextBox", u"", u",", 0, 1},
      {u'-', u"TextBox", u"12", u",", 0, 1},  // not allowed
  };
  for (const auto& row : rows) {
    FakeDesktop desktop;
    EXPECT_EQ(FilterKey(row.key, Entry(row.type, row.text), row.separator, false), row.used)
        << static_cast<int>(row.key) << " " << Text(row.text).ToUtf8();
    EXPECT_EQ(desktop.beeps, row.beeps) << static_cast<int>(row.key);
  }
}

TEST(FilterKey, SwitchesTheSignWhereverTheCaretStands) {
  const struct {
    const char16_t* text;
    int selStart, selLength;
    char16_t used;
    const char16_t* textAfter;
    int selStartAfter;
  } rows[] = {
      {u"12", 0, 0, 0, u"-12", 1}, {u"12", 1, 0, 0, u"-12", 2},   {u"12", 2, 0, 0, u"-12", 3},
      {u"-12", 2, 0, 0, u"12", 1}, {u"-12", 0, 0, 0, u"12", 0},   {u"-12", 3, 0, 0, u"12", 2},
      {u"12", 0, 1, 0, u"-12", 1}, {u"12", 0, 2, u'-', u"12", 0}, {u"-12", 0, 3, u'-', u"-12", 0},
      {u"", 0, 0, u'-', u"", 0},   {u"-", 1, 0, 0, u"", 0},       {u"1-2", 1, 0, 0, u"-1-2", 2},
  };
  for (const auto& row : rows) {
    FakeDesktop desktop;
    const auto entry = Entry(u"TextBox", row.text, row.selStart, row.selLength);
    EXPECT_EQ(FilterKey(u'-', entry, u",", true), row.used) << Text(row.text).ToUtf8();
    EXPECT_EQ(entry->Shown(u"Text"), row.textAfter);
    EXPECT_EQ(entry->Shown(u"SelStart"), ToText(std::int32_t{row.selStartAfter}));
    EXPECT_EQ(desktop.beeps, 0);
  }
}

TEST(FilterKey, KnowsTheNamesThatGridsUse) {
  for (const char16_t* type : {u"EdGridADO", u"EditGrid"}) {
    const auto grid = Named(type, {{u"GridText", u"12"}, {u"TextSelStart", 1}, {u"TextSelLength", 0}});
    EXPECT_EQ(FilterKey(u'-', grid, u",", true), 0);
    EXPECT_EQ(grid->Shown(u"GridText"), u"-12");
    EXPECT_EQ(grid->Shown(u"TextSelStart"), u"2");
  }
}

TEST(FilterKey, TakesTheActiveControlWhereNoneIsGiven) {
  FakeDesktop desktop;
  const auto box = MakeRef<FakeTextBox>();
  box->SetDisplayText(u"5");
  desktop.active = box;
  EXPECT_EQ(FilterKey(u'-', nullptr, u",", true), 0);
  EXPECT_EQ(box->DisplayText(), u"-5");
}

TEST(FilterKey, WorksWithoutADesktopOrAControl) {
  EXPECT_EQ(FilterKey(u'5', nullptr, u",", true), u'5');
  EXPECT_EQ(FilterKey(u'.', nullptr, u",", true), u',');
  EXPECT_EQ(FilterKey(u'-', nullptr, u",", true), 0);
  EXPECT_EQ(FilterKey(u'x', nullptr, u",", true), 0);
}

}  // namespace
}  // namespace cardwright
