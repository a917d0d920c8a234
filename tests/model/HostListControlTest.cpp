// SPDX-License-Identifier: MIT
// Theme and attribute selectors.

#include "model/AnsweringHost.h"
#include "model/SelectorForms.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kThemes = u"CThemeSelector";
constexpr std::u16string_view kAttributes = u"CAttributeSelector";

/// A form with a theme selector `thm`, a combo box `cbo` of feature types, and an attribute selector `att`.
template <class Form>
struct Linked {
  Form on;
  Ref<FakeThemes> themes = MakeRef<FakeThemes>();
  Ref<FakeAttributes> attributes = MakeRef<FakeAttributes>();
  Ref<Control> theme = Bind(on, kThemes, themes, u"thm");
  Ref<Control> types = on.Add(u"CComboBox", u"cbo", u"object_8");
  Ref<Control> attribute = Bind(on, kAttributes, attributes, u"att");

  void Link(const char16_t* themeName, const char16_t* typeName) {
    attribute->SetPropertyValue(u"ThemeSelectorName", Variant(themeName));
    attribute->SetPropertyValue(u"FeatureSelectorName", Variant(typeName));
    attribute->AttachControls(on.owner->Controls());
  }
  std::string Links() const {
    return TextOf(*attribute, u"ThemeSelectorName").ToUtf8() + "|" +
           TextOf(*attribute, u"FeatureSelectorName").ToUtf8();
  }
};

}  // namespace

TEST(CThemeSelector, RequestsItsListBeforeItSelectsTheStoredTheme) {
  const Connected connected;
  InputForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells", u"rivers"};
  const auto control = Bind(on, kThemes, widget);
  ASSERT_TRUE(
      ReadLines(*control, "UserName=thm\nText=RIVERS\nCreateThemeText=New...\nAttribute=T\nIsNeeded=True\n"));
  EXPECT_EQ(widget->calls, u"refill@" + ToText(Variant(connected.handle)) + u" ");
  EXPECT_EQ(control->Value(), u"rivers");
  EXPECT_EQ(control->DisplayText(), u"rivers");
  EXPECT_EQ(widget->CreateThemeText(), u"New...");
  EXPECT_EQ(control->AttributeName(), u"T");
  EXPECT_TRUE(widget->IsVisible());
}

TEST(CThemeSelector, SelectsNothingForAnUnknownTheme) {
  InputForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells"};
  const auto control = Bind(on, kThemes, widget);
  ReadLines(*control, "Text=wells\n");
  EXPECT_EQ(control->Value(), u"wells");
  control->SetPropertyValue(u"Text", u"well");
  EXPECT_EQ(widget->ListIndex(), -1);
  EXPECT_EQ(control->Value(), u"");
  ReadLines(*control, "Text=seas\n");
  EXPECT_EQ(control->Value(), u"");
}

TEST(CThemeSelector, SavesTheStoredThemeWithoutAConnection) {
  DesignForm on;
  const auto widget = MakeRef<FakeThemes>();
  const auto control = Bind(on, kThemes, widget);
  ReadLines(*control, "Text=Wells\n");
  EXPECT_EQ(TextOf(*control, u"Text"), u"") << "what the widget shows";
  EXPECT_EQ(SavedLines(*control).substr(0, 11), "Text=Wells\n");
  control->SetPropertyValue(u"Text", u"");
  EXPECT_EQ(SavedLines(*control).substr(0, 6), "Text=\n");
}

TEST(CThemeSelector, SavesNoUnknownTheme) {
  DesignForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"rivers"};
  const auto control = Bind(on, kThemes, widget);
  ReadLines(*control, "Text=wells\n");
  EXPECT_EQ(SavedLines(*control).substr(0, 6), "Text=\n");
}

TEST(CThemeSelector, RequestsItsListWhenTheAuthorChoosesFirst) {
  DesignForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells"};
  const auto control = Bind(on, kThemes, widget);
  control->SetPropertyValue(u"Text", u"WELLS");
  EXPECT_EQ(control->Value(), u"wells");
  InputForm input;
  const auto filledIn = MakeRef<FakeThemes>();
  filledIn->answered = {u"wells"};
  Bind(input, kThemes, filledIn)->SetPropertyValue(u"Text", u"wells");
  EXPECT_EQ(filledIn->calls, u"") << "a form asks when it is read";
}

TEST(CThemeSelector, KeepsTheSelectionWithoutAKey) {
  InputForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells", u"rivers"};
  const auto control = Bind(on, kThemes, widget);
  ReadLines(*control, "Text=rivers\n");
  ReadLines(*control, "");
  EXPECT_EQ(control->Value(), u"rivers");
}

TEST(CThemeSelector, SavesItsKeysInOrderWithoutAHeight) {
  DesignForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->answered = {u"wells"};
  const auto control = Bind(on, kThemes, widget);
  const std::string lines =
      "Text=wells\nBackColor= 1\nFontName=Arial\nFontSize= 8\nFontBold= 0\nFontItalic= 0\nFontUnderline= 0\n"
      "FontStrikethrough= 0\nLeft= 1\nTop= 2\nWidth= 30\nForeColor= 2\nCreateThemeText=New\nAttribute=T\n"
      "IsNeeded=False\n";
  ReadLines(*control, lines);
  EXPECT_EQ(SavedLines(*control), lines);
}

TEST(CThemeSelector, FindsItsTextInALongListQuickly) {
  InputForm on;
  const auto widget = MakeRef<FakeThemes>();
  for (int i = 0; i < 10'000; ++i) widget->answered.push_back(u"theme" + ToText(Variant(i)));
  const auto control = Bind(on, kThemes, widget);
  ReadLines(*control, "Text=theme9999\n");
  EXPECT_EQ(widget->ListIndex(), 9999);
  EXPECT_LE(widget->textsRead, 10'001) << "one look at each name";
}

TEST(HostListControl, SetsTheConnectionOfItsWidget) {
  const Connected connected;
  InputForm on;
  const auto themes = MakeRef<FakeThemes>();
  Bind(on, kThemes, themes);
  EXPECT_EQ(themes->ConnectionHandle(), connected.handle);
  EXPECT_EQ(themes->calls, u"") << "nothing is asked for yet";
}

TEST(HostListControl, RunsOnClickForAChoice) {
  InputForm on;
  const auto widget = MakeRef<FakeThemes>();
  widget->shown = {u"wells"};
  const auto control = Bind(on, kThemes, widget);
  control->SetPropertyValue(u"Text", u"wells");
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
  DesignForm design;
  const auto drawn = MakeRef<FakeThemes>();
  Bind(design, kThemes, drawn);
  drawn->listener->OnClick();
  EXPECT_EQ(design.owner->Take(), "");
}

TEST(CAttributeSelector, LinksToTheControlsThatItNames) {
  const Connected connected;
  Linked<InputForm> form;
  form.attributes->answered = {u"NAME", u"DEPTH"};
  form.Link(u"THM", u"Cbo");
  const Text refill = u"refill@" + ToText(Variant(connected.handle)) + u" ";
  EXPECT_EQ(form.attributes->calls, u"themes " + refill + u"types " + refill);
  EXPECT_EQ(form.attributes->themes.get(), form.themes.get());
  EXPECT_EQ(form.attributes->types.get(), form.types->BoundObject().get());
}

TEST(CAttributeSelector, SelectsTheStoredAttributeAfterItIsLinked) {
  Linked<InputForm> form;
  form.attributes->answered = {u"NAME", u"DEPTH"};
  ReadLines(*form.attribute, "ThemeSelectorName=thm\nText=depth\n");
  EXPECT_EQ(form.attribute->Value(), u"") << "no list yet";
  form.attribute->AttachControls(form.on.owner->Controls());
  EXPECT_EQ(form.attribute->Value(), u"DEPTH");
  form.attribute->SetPropertyValue(u"Text", u"NAME");
  form.attribute->AttachControls(form.on.owner->Controls());
  EXPECT_EQ(form.attribute->Value(), u"NAME") << "it was waiting for the first list only";
}

TEST(CAttributeSelector, DiscardsTheStoredAttributeForAnotherChoice) {
  Linked<DesignForm> form;
  ReadLines(*form.attribute, "ThemeSelectorName=thm\nText=DEPTH\n");
  EXPECT_EQ(SavedLines(*form.attribute).substr(0, 11), "Text=DEPTH\n");
  form.attributes->shown = form.attributes->answered = {u"NAME"};
  form.attributes->SetListIndex(0);
  form.attributes->answered = {};
  form.attribute->AttachControls(form.on.owner->Controls());
  EXPECT_EQ(SavedLines(*form.attribute).substr(0, 6), "Text=\n");
}

TEST(CAttributeSelector, IsLinkedWhenTheAuthorNamesAControl) {
  Linked<DesignForm> form;
  form.attribute->SetPropertyValue(u"ThemeSelectorName", u"thm");
  EXPECT_EQ(form.attributes->themes.get(), form.themes.get());
  form.attribute->SetPropertyValue(u"FeatureSelectorName", u"cbo");
  EXPECT_EQ(form.attributes->types.get(), form.types->BoundObject().get());
  Linked<InputForm> input;
  input.attribute->SetPropertyValue(u"ThemeSelectorName", u"thm");
  EXPECT_FALSE(input.attributes->themes) << "a form links when it is read";
}

TEST(CAttributeSelector, IsNotLinkedToAFeatureSelectorAlone) {
  Linked<InputForm> form;
  form.Link(u"", u"cbo");
  EXPECT_EQ(form.attributes->calls, u"");
}

TEST(CAttributeSelector, LinksTheFeatureSelectorIfTheThemeSelectorIsGone) {
  Linked<InputForm> form;
  form.Link(u"gone", u"cbo");
  EXPECT_EQ(form.attributes->calls, u"types refill@0 ");
  form.attributes->calls = u"";
  form.Link(u"gone", u"gone");
  EXPECT_EQ(form.attributes->calls, u"");
}

TEST(CAttributeSelector, IgnoresLinksToOtherClasses) {
  Linked<InputForm> form;
  form.Link(u"cbo", u"thm");
  EXPECT_EQ(form.attributes->calls, u"");
  form.Link(u"Form", u"att");
  EXPECT_EQ(form.attributes->calls, u"");
}

TEST(CAttributeSelector, UpdatesItsLinksOnRenamesInAnyCase) {
  Linked<DesignForm> form;
  form.Link(u"thm", u"cbo");
  form.attribute->LinkControlNameChanged(u"THM", u"themes");
  EXPECT_EQ(form.Links(), "themes|cbo");
  form.attribute->LinkControlNameChanged(u"cbo", u"types");
  EXPECT_EQ(form.Links(), "themes|types");
  form.attribute->LinkControlNameChanged(u"else", u"x");
  EXPECT_EQ(form.Links(), "themes|types");
}

TEST(CAttributeSelector, IgnoresTheRenameOfAControlWithoutAName) {
  Linked<DesignForm> form;
  form.attribute->LinkControlNameChanged(u"", u"x");
  EXPECT_EQ(form.Links(), "|");
}

TEST(CAttributeSelector, ClearsOnlyTheLinkToADeletedControl) {
  Linked<DesignForm> form;
  form.Link(u"thm", u"cbo");
  form.on.owner->Controls().Remove(Variant(u"cbo"));
  form.attribute->LinkControlDelete(form.on.owner->Controls());
  EXPECT_EQ(form.Links(), "thm|");
}

TEST(CAttributeSelector, ShowsItsFeatureTypeAsTextAndSavesItAsNumber) {
  DesignForm on;
  const auto widget = MakeRef<FakeAttributes>();
  const auto control = Bind(on, kAttributes, widget);
  EXPECT_EQ(TextOf(*control, u"FeatureType"), u"Points");
  control->SetPropertyValue(u"FeatureType", u"polygons");
  EXPECT_EQ(widget->FeatureType(), 2);
  EXPECT_NE(SavedLines(*control).find("FeatureType= 2\n"), std::string::npos);
  ReadLines(*control, "FeatureType= 1\n");
  EXPECT_EQ(TextOf(*control, u"FeatureType"), u"Arcs");
  ReadLines(*control, "FeatureType=Polygons\n");
  EXPECT_EQ(TextOf(*control, u"FeatureType"), u"Polygons");
  control->SetPropertyValue(u"FeatureType", u"Lines");
  EXPECT_EQ(widget->FeatureType(), -1);
  EXPECT_EQ(TextOf(*control, u"FeatureType"), u"");
  const std::vector<Text> types = {u"Points", u"Arcs", u"Polygons"};
  EXPECT_EQ(control->PropertyList(u"FeatureType"), types);
}

TEST(CAttributeSelector, ListsTheControlsThatItCanBeLinkedTo) {
  Linked<DesignForm> form;
  const std::vector<Text> themes = {u"thm"}, types = {u"cbo"};
  EXPECT_EQ(form.attribute->PropertyList(u"ThemeSelectorName"), themes);
  EXPECT_EQ(form.attribute->PropertyList(10), types);
  EXPECT_TRUE(form.attribute->PropertyList(u"Attribute").empty());
  Linked<InputForm> input;
  EXPECT_TRUE(input.attribute->PropertyList(u"ThemeSelectorName").empty());
}

TEST(CAttributeSelector, SavesItsKeysInOrder) {
  DesignForm on;
  const auto control = Bind(on, kAttributes, MakeRef<FakeAttributes>());
  const std::string lines =
      "Text=\nBackColor= 1\nFontName=Arial\nFontSize= 8\nFontBold= 0\nFontItalic= 0\nFontUnderline= 0\n"
      "FontStrikethrough= 0\nLeft= 1\nTop= 2\nWidth= 30\nForeColor= 2\nThemeSelectorName=thm\nFeatureType= "
      "1\n"
      "FeatureSelectorName=cbo\nAttribute=A\nIsNeeded=True\n";
  ReadLines(*control, lines);
  EXPECT_EQ(SavedLines(*control), lines);
}

}  // namespace cardwright
