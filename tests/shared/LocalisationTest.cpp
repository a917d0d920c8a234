// SPDX-License-Identifier: MIT
#include "cardwright/shared/Localisation.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "shared/NamedObject.h"

namespace cardwright {
namespace {

void Translate(const Ref<Object>& widget) { TranslateControls(std::span(&widget, 1)); }

TEST(ParseCaptionTag, SplitsNumberParameterAndRest) {
  const struct {
    const char16_t* tag;
    std::int32_t id;
    const char16_t* param;
    const char16_t* rest;
  } rows[] = {
      {u"1051", 1051, u"", u"1051"},
      {u"1062:abc", 1062, u"abc", u"1062:abc"},
      {u"1062:abc | 3", 1062, u"abc", u"3"},
      {u"1062: | 3", 1062, u"", u"3"},
      {u"1062:a:b", 1062, u"a:b", u"1062:a:b"},
      {u"1062:a | 3 | 4", 1062, u"a", u"3 | 4"},
      {u"1051 | 3", 3, u"", u"3"},  // without a ":" the number is that of the rest
      {u"1051 | 3:x", 3, u"", u"3:x"},
      {u"1051|3", 1051, u"", u"1051|3"},
      {u"abc", 0, u"", u"abc"},
      {u"", 0, u"", u""},
  };
  for (const auto& row : rows) {
    const auto widget = Named(u"Label", {{u"Tag", row.tag}});
    Text param = u"before";
    EXPECT_EQ(ParseCaptionTag(*widget, param), row.id) << Text(row.tag).ToUtf8();
    EXPECT_EQ(param, row.param) << Text(row.tag).ToUtf8();
    EXPECT_EQ(widget->Shown(u"Tag"), row.rest) << Text(row.tag).ToUtf8();
  }
}

TEST(TranslateControls, GivesEachTypeItsText) {
  const struct {
    const char16_t* type;
    const char16_t* text;
    const char16_t* caption;
  } rows[] = {
      {u"TextBox", u"Ok", u"design"},        {u"Label", u"design", u"Ok"},
      {u"OptionButton", u"design", u"Ok"},   {u"CheckBox", u"design", u"Ok"},
      {u"CommandButton", u"design", u"Ok"},  {u"FLATCOMMANDBUTTON", u"design", u"Ok"},
      {u"frame", u"design", u"Ok"},          {u"ComboBox", u"design", u"design"},
      {u"PictureBox", u"design", u"design"},
  };
  for (const auto& row : rows) {
    const auto widget = Named(row.type, {{u"Tag", u"1051"}, {u"Text", u"design"}, {u"Caption", u"design"}});
    Translate(widget);
    EXPECT_EQ(widget->Shown(u"Text"), row.text);
    EXPECT_EQ(widget->Shown(u"Caption"), row.caption);
  }
}

TEST(TranslateControls, PassesTheParameterAndKeepsTheRest) {
  const auto widget = Named(u"Label", {{u"Tag", u"1062:%c% | 3"}, {u"Caption", u""}});
  Translate(widget);
  EXPECT_EQ(widget->Shown(u"Caption"), u"Set the template to be used in the Value property.\r\n%c%");
  EXPECT_EQ(widget->Shown(u"Tag"), u"3");
}

TEST(TranslateControls, ReadsTheNumberOfAMenuFromItsCaption) {
  const auto menu = Named(u"Menu", {{u"Tag", u"1051"}, {u"Caption", u"1025"}});
  Translate(menu);
  EXPECT_EQ(menu->Shown(u"Caption"), u"Cut");
}

TEST(TranslateControls, LeavesTheTextOfAWidgetThatFailsAndGoesOn) {
  const Ref<NamedObject> widgets[] = {
      Named(u"Label", {{u"Tag", u""}, {u"Caption", u"one"}}),
      Named(u"Label", {{u"Tag", u"abc"}, {u"Caption", u"two"}}),
      Named(u"Label", {{u"Caption", u"three"}}),
      Named(u"Menu", {{u"Caption", u"File"}}),
      Named(u"Label", {{u"Tag", u"99999999999"}, {u"Caption", u"five"}}),
      Named(u"Toolbar", {}),
      Named(u"Label", {{u"Tag", u"1052"}, {u"Caption", u"six"}}),
  };
  std::vector<Ref<Object>> all(std::begin(widgets), std::end(widgets));
  all.insert(all.begin(), nullptr);
  TranslateControls(all);
  const char16_t* captions[] = {u"one", u"two", u"three", u"File", u"five", u"", u"Cancel"};
  for (std::size_t i = 0; i < std::size(widgets); ++i) EXPECT_EQ(widgets[i]->Shown(u"Caption"), captions[i]);
}

struct Button {
  const char16_t* tag;
  const char16_t* tooltip;
  const char16_t* caption;
};

class TranslateToolbar : public testing::TestWithParam<Button> {};

TEST_P(TranslateToolbar, WalksTheTagsOfItsButtons) {
  const auto button =
      Named(u"Button", {{u"Tag", GetParam().tag}, {u"TooltipText", u"-"}, {u"Caption", u"-"}});
  const auto buttons = MakeRef<Collection>();
  buttons->Add(Ref<Object>(button));
  Translate(Named(u"Toolbar", {{u"Buttons", buttons}}));
  EXPECT_EQ(button->Shown(u"TooltipText"), GetParam().tooltip);
  EXPECT_EQ(button->Shown(u"Caption"), GetParam().caption);
}

// Positions after a ";" are counted in the shortened text, so a second pair mostly is not read as one.
INSTANTIATE_TEST_SUITE_P(
    Tags, TranslateToolbar,
    testing::Values(Button{u"tooltip:1038", u"Save", u"-"}, Button{u" ToolTip :1039", u"Options...", u"-"},
                    Button{u"caption:1040", u"-", u"ORV info"}, Button{u"other:1041", u"-", u"Undo"},
                    Button{u"1042", u"-", u"Redo"}, Button{u"", u"-", u"-"},
                    Button{u"tooltip:abc", u"-", u"-"}, Button{u"tooltip:1038;caption:1042", u"Save", u"-"},
                    Button{u"t:1038;tooltip:1042", u"-", u"Save"}, Button{u"1042;;", u"-", u"Redo"}));

TEST(TranslateControls, TranslatesEveryButtonOfAToolbar) {
  const auto buttons = MakeRef<Collection>();
  std::vector<Ref<NamedObject>> all;
  const char16_t* const texts[] = {
      u"Save",      u"Options...", u"ORV info",        u"Undo",           u"Redo", u"Find...",
      u"Find next", u"Replace...", u"Add ORV command", u"Add ORV request"};
  buttons->Add(Ref<Object>(Named(u"Button", {})));  // without a tag; the others must not suffer
  for (std::int32_t id = 1038; id <= 1047; ++id) {
    all.push_back(Named(u"Button", {{u"Tag", Text(u"tooltip:") + ToText(id)}, {u"TooltipText", u""}}));
    buttons->Add(Ref<Object>(all.back()));
  }
  Translate(Named(u"Toolbar", {{u"Buttons", buttons}}));
  for (std::size_t i = 0; i < all.size(); ++i) EXPECT_EQ(all[i]->Shown(u"TooltipText"), texts[i]);
}

}  // namespace
}  // namespace cardwright
