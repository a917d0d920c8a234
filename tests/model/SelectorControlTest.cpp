// SPDX-License-Identifier: MIT
// What the five selectors have in common.

#include "cardwright/automation/Array.h"
#include "model/SelectorForms.h"
#include "shared/FakeDesktop.h"

namespace cardwright {
namespace {

struct Kind {
  const char16_t* className;
  const char16_t* type;
  ControlTypeEnum number;
  Ref<Widget> (*make)();
};

template <class W>
Ref<Widget> Make() {
  return MakeRef<W>();
}

constexpr Kind kKinds[] = {
    {u"CResourceSelector", u"resourceselector", ControlTypeEnum::ctResourceSelector, Make<FakeResource>},
    {u"CThemeSelector", u"themeselector", ControlTypeEnum::ctThemeSelector, Make<FakeThemes>},
    {u"CFontSelector", u"fontselector", ControlTypeEnum::ctFontSelector, Make<FakeFontSelector>},
    {u"CColorSelector", u"colorselector", ControlTypeEnum::ctColorSelector, Make<FakeColorSelector>},
    {u"CAttributeSelector", u"attributeselector", ControlTypeEnum::ctAttributeSelector, Make<FakeAttributes>},
};

WidgetListener& ListenerOf(Widget& widget) {
  if (auto* resource = dynamic_cast<FakeResource*>(&widget)) return *resource->listener;
  if (auto* themes = dynamic_cast<FakeThemes*>(&widget)) return *themes->listener;
  if (auto* attributes = dynamic_cast<FakeAttributes*>(&widget)) return *attributes->listener;
  if (auto* font = dynamic_cast<FakeFontSelector*>(&widget)) return *font->listener;
  return *dynamic_cast<FakeColorSelector&>(widget).listener;
}

}  // namespace

class EverySelector : public testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(, EverySelector, testing::ValuesIn(kKinds),
                         [](const auto& test) { return Text(test.param.className).ToUtf8(); });

TEST_P(EverySelector, IsFoundByTypeAndNumber) {
  const ClassTable* byNumber = FindControlClass(GetParam().number);
  ASSERT_TRUE(byNumber);
  EXPECT_EQ(byNumber->className, GetParam().className);
  EXPECT_EQ(byNumber->typeText, GetParam().type);
  EXPECT_EQ(FindControlClass(GetParam().type), byNumber);
}

TEST_P(EverySelector, RejectsOtherWidgets) {
  const Ref<Control> control = FindControlClass(GetParam().number)->create();
  for (const Kind& other : kKinds) {
    const int error = ErrorOf([&] { control->BindObject(other.make()); });
    EXPECT_EQ(error, other.number == GetParam().number ? 0 : 13);
  }
}

TEST_P(EverySelector, WorksWithoutAWidgetWhereItNeedsNone) {
  const Ref<Control> control = FindControlClass(GetParam().number)->create();
  control->SetName(u"later");
  EXPECT_EQ(control->Name(), u"later");
  EXPECT_EQ(TextOf(*control, u"IsNeeded"), u"False");
  control->SetPropertyValue(u"Attribute", u"KIND");
  EXPECT_EQ(control->AttributeName(), u"KIND");
  EXPECT_FALSE(control->Read(u"none.frm", u"CONTROLS_1"));
  EXPECT_EQ(ErrorOf([&] { control->PropertyValue(Variant(u"BackColor")); }), 91);
  EXPECT_EQ(ErrorOf([&] { control->Value(); }), 91);
}

TEST_P(EverySelector, IsLockedOnlyOnADesignSurface) {
  const Ref<Widget> drawn = GetParam().make();
  DesignForm design;
  ReadLines(*Bind(design, GetParam().className, drawn), "");
  EXPECT_TRUE(dynamic_cast<SelectorWidget&>(*drawn).IsLocked());
  const Ref<Widget> filledIn = GetParam().make();
  InputForm input;
  ReadLines(*Bind(input, GetParam().className, filledIn), "");
  EXPECT_FALSE(dynamic_cast<SelectorWidget&>(*filledIn).IsLocked());
}

TEST_P(EverySelector, IsDisabledWhileTheDesignersMenuIsOpen) {
  const Ref<Widget> widget = GetParam().make();
  DesignForm on;
  const auto control = Bind(on, GetParam().className, widget);
  ListenerOf(*widget).OnMouseDown(MouseButton::Right, ShiftKey::Shift, 1, 1);
  ListenerOf(*widget).OnMouseDown(MouseButton::Left, 0, 1, 1);
  EXPECT_EQ(on.owner->Take(), "");
  ListenerOf(*widget).OnMouseDown(MouseButton::Right, 0, 1, 1);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a; menu a switched off");
  EXPECT_TRUE(widget->IsEnabled());
  ListenerOf(*widget).OnMouseMove(0, 0, 1, 1);
  EXPECT_EQ(on.owner->Take(), "arrow");
}

TEST_P(EverySelector, IsSelectedByTheFocus) {
  const Ref<Widget> widget = GetParam().make();
  DesignForm on;
  const auto control = Bind(on, GetParam().className, widget);
  ListenerOf(*widget).OnGotFocus();
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
  Module().designDragging = true;
  ListenerOf(*widget).OnGotFocus();
  Module().designDragging = false;
  EXPECT_EQ(on.owner->Take(), "");
}

TEST_P(EverySelector, RunsOnClickWhileAFormIsFilledIn) {
  const Ref<Widget> widget = GetParam().make();
  InputForm on;
  const auto control = Bind(on, GetParam().className, widget);
  ListenerOf(*widget).OnClick();
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
}

TEST_P(EverySelector, SurvivesAScriptThatRemovesIt) {
  const Ref<Widget> widget = GetParam().make();
  InputForm on;
  Bind(on, GetParam().className, widget);
  on.owner->onRun = [&] { on.owner->Controls().Remove(Variant(u"a")); };
  ListenerOf(*widget).OnClick();
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
  EXPECT_EQ(on.Names(), "Form");
}

TEST_P(EverySelector, IsRenamedThroughItsOwner) {
  DesignForm on;
  const auto control = Bind(on, GetParam().className, GetParam().make());
  control->SetPropertyValue(u"Name", u"better");
  EXPECT_EQ(on.Names(), "Form, better");
}

TEST(CFontSelector, ReportsItsHeightWhenTheFontChangesIt) {
  DesignForm on;
  const auto widget = MakeRef<FakeFontSelector>();
  const auto control = Bind(on, u"CFontSelector", widget);
  widget->Move(0, 0, 100, 33);
  widget->listener->OnResize();
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 7 33; handles");
  InputForm input;
  const auto other = MakeRef<FakeFontSelector>();
  Bind(input, u"CFontSelector", other);
  other->listener->OnResize();
  EXPECT_EQ(input.owner->Take(), "");
}

TEST(CFontSelector, RunsFourEventsAndIsSelectedOnlyByAClick) {
  const auto allEvents = [](WidgetListener& listener) {
    listener.OnBeforeButtonClick();
    listener.OnChange();
    listener.OnAfterButtonClick();
    listener.OnClick();
  };
  InputForm on;
  const auto widget = MakeRef<FakeFontSelector>();
  const auto control = Bind(on, u"CFontSelector", widget);
  allEvents(*widget->listener);
  EXPECT_EQ(on.owner->Take(),
            "run a_BeforeButtonClick; run a_OnChange; run a_AfterButtonClick; run a_OnClick");
  const std::vector<Text> names = {u"AfterButtonClick", u"BeforeButtonClick", u"OnChange", u"OnClick"};
  EXPECT_EQ(control->Events(), names);
  DesignForm design;
  const auto drawn = MakeRef<FakeFontSelector>();
  const auto selected = Bind(design, u"CFontSelector", drawn);
  allEvents(*drawn->listener);
  EXPECT_EQ(design.owner->Take(), "SetCtrl a");
}

TEST(CFontSelector, HasAHiddenRowIsNeeded) {
  InputForm on;
  const auto control = Bind(on, u"CFontSelector", MakeRef<FakeFontSelector>());
  EXPECT_EQ(control->PropertyCount(), 14);
  EXPECT_EQ(control->PropertyName(u"IsNeeded"), u"");
  EXPECT_EQ(ToText(control->PropertyValue(14)), u"False");
  control->SetPropertyValue(u"isneeded", u"True");
  EXPECT_EQ(TextOf(*control, u"IsNeeded"), u"True");
}

TEST(MaskValue, IsTheDefaultTemplate) {
  InputForm on;
  const auto widget = MakeRef<FakeColorSelector>();
  widget->SetColor(Rgb(1, 2, 3));
  const auto control = Bind(on, u"CColorSelector", widget);
  const auto with = [&](std::vector<Variant> values) {
    return control->Value(Variant(Array::FromValues(std::move(values))));
  };
  EXPECT_EQ(TextOf(*control, u"MaskValue"), u"%r% %g% %b%");
  EXPECT_EQ(control->Value(), u"1 2 3");
  EXPECT_EQ(with({}), u"1 2 3");
  EXPECT_EQ(with({Variant(u"%b%"), Variant(u"%r%")}), u"3");
  EXPECT_EQ(with({Variant(u"")}), u"");
  EXPECT_EQ(with({Variant()}), u"");
  EXPECT_EQ(control->Value(Variant(Ref<Array>(MakeRef<Array>()))), u"1 2 3") << "an array without dimensions";
  EXPECT_EQ(control->Value(Variant(u"%g%")), u"2") << "a template that is no array";
  EXPECT_EQ(ToText(GetProperty(*control, u"Value", {Variant(u"%g%")})), u"2");
  control->SetPropertyValue(u"MaskValue", u"%C%");
  EXPECT_EQ(control->Value(), u"197121");
}

TEST(MaskValue, OfANewFontSelectorHasTheHostsFontParameters) {
  InputForm on;
  const auto control = Bind(on, u"CFontSelector", MakeRef<FakeFontSelector>());
  EXPECT_EQ(TextOf(*control, u"MaskValue"),
            u"|%n%| %spx% %r% %g% %b% %bold% %italic% %underline% %strikethrough%");
  EXPECT_EQ(control->Value(), u"|MS Sans Serif| 11 0 0 0 False False False False");
}

TEST(MaskValue, IsDescribedWithTheParametersOfItsClass) {
  InputForm on;
  const auto color = Bind(on, u"CColorSelector", MakeRef<FakeColorSelector>(), u"c");
  const auto font = Bind(on, u"CFontSelector", MakeRef<FakeFontSelector>(), u"f");
  EXPECT_EQ(
      color->PropertyDescription(u"MaskValue"),
      u"Set the template to be used in the Value property.\r\nThe available parameters are: %c% (Color as "
      u"OLE_COLOR), %r% (Red component), %g% (Green component), %b% (Blue component).");
  EXPECT_NE(font->PropertyDescription(u"MaskValue").View().find(u"%strikethrough% (Strikethrough)"),
            std::u16string_view::npos);
}

TEST(Border, IsTrueOnlyForBorderStyleOne) {
  InputForm on;
  const auto widget = MakeRef<FakeColorSelector>();
  const auto control = Bind(on, u"CColorSelector", widget);
  for (const int style : {0, 1, 2, -1}) {
    widget->SetBorderStyle(style);
    EXPECT_EQ(TextOf(*control, u"Border"), style == 1 ? u"True" : u"False") << style;
  }
  control->SetPropertyValue(u"Border", true);
  EXPECT_EQ(widget->BorderStyle(), 1);
  control->SetPropertyValue(u"Border", u"False");
  EXPECT_EQ(widget->BorderStyle(), 0);
}

TEST(CColorSelector, ReadsEveryKeyAndSavesTheSameLines) {
  const std::string lines =
      "Color=-2147483633\nLeft= 1\nTop= 2\nWidth= 30\nHeight= "
      "40\nAttribute=COLOR\nIsNeeded=True\nBorder=True\n"
      "Title=Choose\nMaskValue=%c%\n";
  DesignForm on;
  const auto control = Bind(on, u"CColorSelector", MakeRef<FakeColorSelector>());
  ASSERT_TRUE(ReadLines(*control, "UserName=col\n" + lines));
  EXPECT_EQ(SavedLines(*control), lines);
  EXPECT_EQ(control->DisplayText(), u"Choose");
}

TEST(CFontSelector, ReadsEveryKeyAndSavesTheSameLines) {
  const std::string lines =
      "BackColor= 16777215\nBackColorBkg=-2147483633\nFontName=Arial\nFontSize= 12.25\nFontBold= 1\n"
      "FontItalic= 0\nFontUnderline= 1\nFontStrikethrough= 0\nLeft= 1\nTop= 2\nWidth= 30\nHeight= 40\n"
      "ForeColor= "
      "255\nAttribute=FONT\nIsNeeded=True\nBorder=False\nAutoSize=True\nTitle=Choose\nMaskValue=%n%\n";
  DesignForm on;
  const auto control = Bind(on, u"CFontSelector", MakeRef<FakeFontSelector>());
  ASSERT_TRUE(ReadLines(*control, "UserName=fnt\n" + lines));
  EXPECT_EQ(SavedLines(*control), lines);
  EXPECT_EQ(control->Value(), u"Arial");
}

}  // namespace cardwright
