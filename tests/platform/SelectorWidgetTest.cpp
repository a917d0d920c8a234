// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "platform/FakeSelectors.h"

namespace cardwright {
namespace {

Text Read(Object& widget, std::u16string_view name) { return ToText(GetProperty(widget, name)); }

TEST(ResourceSelectorWidget, AnswersByName) {
  const auto widget = MakeRef<FakeResource>();
  const std::pair<const char16_t*, Variant> values[] = {
      {u"Path", u"/tmp/a.csv"},   {u"Filter", u"All|*.*"}, {u"Title", u"Choose"},
      {u"StartFolder", u"/tmp"},  {u"MultiSelect", true},  {u"InputTextEnabled", false},
      {u"BrowseForFolder", true}, {u"ShowSave", true},     {u"BackColorBkg", 255},
      {u"BackColor", 65280},      {u"Locked", true},
  };
  for (const auto& [name, value] : values) {
    LetProperty(*widget, name, value);
    EXPECT_EQ(Read(*widget, name), ToText(value)) << Text(name).ToUtf8();
  }
  EXPECT_EQ(widget->TypeName(), u"ResourceSelector");
  EXPECT_EQ(ToText(DefaultValue(Variant(Ref<Object>(widget)))), u"/tmp/a.csv");
}

TEST(ThemeSelectorWidget, AnswersByName) {
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells", u"rivers"};
  LetProperty(*widget, u"CreateThemeText", u"New theme...");
  LetProperty(*widget, u"TarvoHandle", 7);
  CallMethod(*widget, u"RefreshThemes");
  LetProperty(*widget, u"ListIndex", 1);
  EXPECT_EQ(widget->calls, u"refill@7 ");
  EXPECT_EQ(Read(*widget, u"Text"), u"rivers");
  EXPECT_EQ(Read(*widget, u"ListCount"), u"2");
  EXPECT_EQ(ToText(GetProperty(*widget, u"List", {0})), u"wells");
  EXPECT_EQ(ToText(GetProperty(*widget, u"ItemData", {1})), u"10");
  EXPECT_EQ(Read(*widget, u"CreateThemeText"), u"New theme...");
  EXPECT_EQ(widget->TypeName(), u"ThemeSelector");
}

TEST(HostListWidget, SelectsByTextInAnyCaseAndNothingForAnUnknownText) {
  const auto widget = MakeRef<FakeThemes>();
  widget->shown = {u"wells", u"Flüsse"};
  LetProperty(*widget, u"Text", u"FLÜSSE");
  EXPECT_EQ(widget->ListIndex(), 1);
  EXPECT_EQ(widget->DisplayText(), u"Flüsse");
  LetProperty(*widget, u"Text", u"Fl");
  EXPECT_EQ(widget->ListIndex(), -1);
  EXPECT_EQ(widget->DisplayText(), u"");
}

TEST(AttributeSelectorWidget, AnswersByName) {
  const auto widget = MakeRef<FakeAttributes>();
  const auto themes = MakeRef<FakeThemes>();
  const auto types = MakeRef<FakeCombo>();
  CallMethod(*widget, u"LinkThemeSelector", {Variant(Ref<Object>(themes))});
  CallMethod(*widget, u"LinkFeatureSelector", {Variant(Ref<Object>(types))});
  CallMethod(*widget, u"RefreshAttributes");
  LetProperty(*widget, u"FeatureType", 2);
  EXPECT_EQ(widget->calls, u"themes types refill@0 ");
  EXPECT_EQ(widget->themes.get(), themes.get());
  EXPECT_EQ(Read(*widget, u"FeatureType"), u"2");
  EXPECT_EQ(ToText(CallMethod(*widget, u"FeatureTypeToText", {1})), u"Arcs");
  EXPECT_EQ(ToText(CallMethod(*widget, u"FeatureTypeFromText", {u"polygons"})), u"2");
  EXPECT_EQ(ErrorOf([&] { CallMethod(*widget, u"LinkThemeSelector", {Variant(Ref<Object>(types))}); }), 13);
  CallMethod(*widget, u"LinkThemeSelector", {Variant(Ref<Object>())});
  EXPECT_FALSE(widget->themes);
}

TEST(FeatureTypeTexts, AreReadInAnyCaseAndAsHostWords) {
  const Text texts[] = {u"Points", u"Arcs", u"Polygons"};
  const Text words[] = {u"POINT", u"arc", u" Polygon "};
  for (int type = 0; type < 3; ++type) {
    EXPECT_EQ(FeatureTypeToText(type), texts[type]);
    EXPECT_EQ(FeatureTypeFromText(ToUpper(texts[type])), type);
    EXPECT_EQ(FeatureTypeFromText(words[type]), type);
  }
  for (const int type : {-1, 3, 70000}) EXPECT_EQ(FeatureTypeToText(type), u"");
  for (const char16_t* text : {u"", u"Lines", u"Point s", u"0"}) EXPECT_EQ(FeatureTypeFromText(text), -1);
}

TEST(FontSelectorWidget, AnswersByName) {
  const auto widget = MakeRef<FakeFontSelector>();
  LetProperty(*widget, u"Title", u"Choose");
  LetProperty(*widget, u"BorderStyle", 1);
  LetProperty(*widget, u"AutoSize", true);
  LetProperty(*widget, u"BackColorBkg", 3);
  EXPECT_EQ(Read(*widget, u"Title"), u"Choose");
  EXPECT_EQ(Read(*widget, u"BorderStyle"), u"1");
  EXPECT_EQ(Read(*widget, u"AutoSize"), u"True");
  EXPECT_EQ(Read(*widget, u"BackColorBkg"), u"3");
  EXPECT_EQ(ToText(CallMethod(*widget, u"Value", {u"%n%"})), u"MS Sans Serif");
  EXPECT_EQ(widget->DisplayText(), u"");
}

TEST(ColorSelectorWidget, AnswersByName) {
  const auto widget = MakeRef<FakeColorSelector>();
  LetProperty(*widget, u"Color", 255);
  LetProperty(*widget, u"BorderStyle", 1);
  EXPECT_EQ(Read(*widget, u"Color"), u"255");
  EXPECT_EQ(Read(*widget, u"BorderStyle"), u"1");
  EXPECT_EQ(ToText(CallMethod(*widget, u"Value", {u"%r%"})), u"255");
  EXPECT_EQ(ErrorOf([&] { GetProperty(*widget, u"Caption"); }), 438);
}

}  // namespace
}  // namespace cardwright
