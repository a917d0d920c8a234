// SPDX-License-Identifier: MIT
#include "designer/DesignerTest.h"
#include "platform/FakeSelectors.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;
using PlacingTest = DesignerTest;

TEST_F(PlacingTest, RaisesItsEventsInOrder) {
  Draw(ctLabel, 20, 30, 120, 60);
  EXPECT_EQ(Take(),
            (Lines{"PropertyChanged 8 -2147483630", "CurrObjectChanged <object_1>", "StateChanged Default"}));
  EXPECT_EQ(designer->ControlTypeToAdd(), ctDefault);
  EXPECT_EQ(surface->pointer, PointerShape::Arrow);
}

TEST_F(PlacingTest, CreatesEveryClassWithItsWidgetAndText) {
  struct Kind {
    ControlTypeEnum type;
    std::u16string_view widgetType, className;
    const char* text;
  };
  const Kind kinds[] = {{ctCheckBox, u"CheckBox", u"CCheckBox", "CheckBox1"},
                        {ctComboBox, u"ComboBox", u"CComboBox", "ComboBox2"},
                        {ctCommandButton, u"CommandButton", u"CCommandButton", "CommandButton3"},
                        {ctFrame, u"Frame", u"CFrame", "Frame4"},
                        {ctLabel, u"Label", u"CLabel", "Label5"},
                        {ctListBox, u"ListView", u"CListBox", ""},
                        {ctOptionButton, u"OptionButton", u"COptionButton", "OptionButton7"},
                        {ctTextBox, u"TextBox", u"CTextBox", "Text8"},
                        {ctTextBoxMultiline, u"MultilineTextBox", u"CTextBoxMultiline", "Text9"},
                        {ctResourceSelector, u"ResourceSelector", u"CResourceSelector", ""},
                        {ctThemeSelector, u"ThemeSelector", u"CThemeSelector", ""},
                        {ctFontSelector, u"FontSelector", u"CFontSelector", ""},
                        {ctColorSelector, u"ColorSelector", u"CColorSelector", ""},
                        {ctAttributeSelector, u"AttributeSelector", u"CAttributeSelector", ""}};
  int number = 0;
  for (const Kind& kind : kinds) {
    ++number;
    const Ref<IControl> control = Draw(kind.type, 10, 10, 110, 60);
    const Text name = Text(u"object_") + ToText(Variant(std::int32_t{number}));
    const Widget& widget = WidgetOf(*control);
    EXPECT_EQ(widget.TypeName(), kind.widgetType);
    EXPECT_EQ(control->TypeName(), kind.className);
    EXPECT_EQ(widget.DisplayText().ToUtf8(), kind.text);
    EXPECT_EQ(control->Name(), name);
    EXPECT_EQ(control->UserName(), name);
    EXPECT_TRUE(widget.IsVisible());
    EXPECT_EQ(&Find(name), control.get());
    EXPECT_EQ(designer->ZList().back().get(), control.get());
    const auto filtered = designer->FilterControls(kind.type);
    ASSERT_EQ(filtered.size(), 1U);
    EXPECT_EQ(filtered[0].get(), control.get());
  }
}

TEST_F(PlacingTest, SizesTheColumnOfAListAndShowsItsName) {
  const Ref<IControl> list = Draw(ctListBox, 10, 10, 110, 60);
  const auto& view = dynamic_cast<FakeList&>(WidgetOf(*list));
  EXPECT_EQ(view.ColumnWidth(), 96);
  EXPECT_EQ(view.RowText(1), u"object_1");
}

TEST_F(PlacingTest, UsesTheSurfacesColorsPerClass) {
  surface->backColor = 0x112233;
  surface->foreColor = 0x445566;
  struct Colors {
    ControlTypeEnum type;
    bool back, fore;
  };
  for (const Colors& each : {Colors{ctLabel, true, true},
                             {ctFrame, true, true},
                             {ctCheckBox, true, true},
                             {ctOptionButton, true, true},
                             {ctColorSelector, true, false},
                             {ctResourceSelector, true, false},
                             {ctFontSelector, true, false},
                             {ctTextBox, false, false},
                             {ctComboBox, false, false}}) {
    const Ref<IControl> control = Draw(each.type, 10, 10, 110, 60);
    EXPECT_EQ(WidgetOf(*control).BackColor() == 0x112233, each.back) << static_cast<int>(each.type);
    EXPECT_EQ(WidgetOf(*control).ForeColor() == 0x445566, each.fore) << static_cast<int>(each.type);
  }
}

TEST_F(PlacingTest, LocksTextInputAndBringsTheControlToTheFront) {
  const auto& text = dynamic_cast<FakeTextBox&>(WidgetOf(*Draw(ctTextBox, 10, 10, 110, 60)));
  EXPECT_TRUE(text.IsLocked());
  EXPECT_EQ(text.calls, u"refresh front ");
  EXPECT_TRUE(dynamic_cast<FakeCombo&>(WidgetOf(*Draw(ctComboBox, 10, 10, 110, 60))).IsLocked());
  const auto& themes = dynamic_cast<FakeThemes&>(WidgetOf(*Draw(ctThemeSelector, 10, 10, 110, 60)));
  EXPECT_TRUE(themes.IsLocked());
  EXPECT_EQ(themes.calls, u"front ");  // a refresh would send a request to the host
}

TEST_F(PlacingTest, AcceptsARectangleDrawnInAnyDirection) {
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 20, 30, 120, 60)), "20,30,100,30");
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 120, 60, 20, 30)), "20,30,100,30");
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 20, 60, 120, 30)), "20,30,100,30");
}

TEST_F(PlacingTest, ShowsAnEmptyRectangleInPenSize) {
  Draw(ctLabel, 20, 30, 120, 60);
  EXPECT_EQ(TakeOutlines(), (Lines{"20,30,22,32", "20,30,120,60"}));
}

TEST_F(PlacingTest, GivesAClickTheMinimumSize) {
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 50, 60, 50, 60)), "50,60,7,19");
  EXPECT_EQ(BoxOf(*Draw(ctFrame, 50, 60, 50, 60)), "50,60,7,0");
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 50, 60, 90, 70)), "50,60,40,19");
}

TEST_F(PlacingTest, GivesAClickTheMinimumSizeInTwips) {
  Module().formScaleMode = ScaleMode::Twips;
  designer->ApplyScaleAndGrid();
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 50, 60, 50, 60)), "750,900,105,285");
}

TEST_F(PlacingTest, KeepsTheSizeInsideTheSurface) {
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 398, 295, 398, 295)), "398,295,2,5");
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 350, 200, 450, 250)), "350,200,7,50");  // refused in that axis
}

TEST_F(PlacingTest, DrawsIntoAFrame) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  Take();
  const Ref<IControl> label = DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  EXPECT_EQ(BoxOf(*label), "10,10,50,30");
  EXPECT_EQ(WidgetOf(*label).Container().get(), &WidgetOf(*frame));
  EXPECT_EQ(designer->CurrentControl().get(), label.get());
  EXPECT_EQ(BoxOf(*DrawInside(*frame, ctLabel, 195, 190, 195, 190)), "195,190,5,10");
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 60, 60, 90, 90)), "60,60,30,30");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container(), nullptr);
}

TEST_F(PlacingTest, IgnoresAPressOnAFrameWithTheSelectionTool) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  Take();
  WidgetListener* listener = FakeDesignSurface::At(WidgetOf(*frame)).listener;
  listener->OnMouseDown(MouseButton::Left, 0, 10, 10);
  listener->OnMouseUp(MouseButton::Left, 0, 10, 10);
  EXPECT_EQ(Names(), "Form, object_1");
  EXPECT_EQ(Take(), Lines{});
  EXPECT_EQ(WidgetOf(*Draw(ctLabel, 60, 60, 90, 90)).Container(), nullptr);
}

TEST_F(PlacingTest, CreatesAWidgetWithoutAControlForTheTableViewer) {
  Draw(ctDbTableViewer, 10, 10, 110, 60);
  const Ref<Widget> viewer = surface->Find(u"object_1");
  ASSERT_TRUE(viewer);
  EXPECT_EQ(viewer->TypeName(), u"DbTableViewer");
  EXPECT_EQ(viewer->Width(), 100);
  EXPECT_TRUE(viewer->IsVisible());
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(NamesOf(designer->ZList()), "Form");
  EXPECT_EQ(Take(), (Lines{"StateChanged Default"}));
  EXPECT_TRUE(designer->FilterControls(ctDbTableViewer).empty());
  EXPECT_TRUE(designer->FilterControls(ctDefault).empty());
}

TEST_F(PlacingTest, DrawsOnTheSurfaceAgainAfterDrawingInAFrame) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  DrawInside(*frame, ctDbTableViewer, 10, 10, 60, 40);
  EXPECT_EQ(surface->Find(u"object_2")->Container().get(), &WidgetOf(*frame));
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 300, 100, 350, 130)), "300,100,50,30");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container(), nullptr);

  designer->SetCtrl(frame);
  designer->SetControlTypeToAdd(ctLabel);
  Press(60, 60);
  surface->Then([&] { surface->Remove(frame->Name()); });
  FakeDesignSurface::At(WidgetOf(*frame)).listener->OnMouseDown(MouseButton::Left, 0, 10, 10);
  EXPECT_EQ(designer->ControlTypeToAdd(), ctLabel);
  EXPECT_EQ(BoxOf(*Draw(ctLabel, 300, 100, 350, 130)), "300,100,50,30");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container(), nullptr);
}

TEST_F(PlacingTest, CompletesWhenAHandlerRaisesAnError) {
  for (const char* failing : {"StateChanged", "CurrObjectChanged"}) {
    onEvent = [&](std::string_view event) {
      if (event == failing) Raise(ErrorNumber::InvalidCall);
    };
    surface->pointer = PointerShape::Cross;
    const Ref<IControl> drawn = Draw(ctLabel, 20, 30, 120, 60);
    EXPECT_EQ(surface->pointer, PointerShape::Arrow) << failing;
    EXPECT_EQ(designer->ControlTypeToAdd(), ctDefault) << failing;
    EXPECT_FALSE(Module().designDragging) << failing;
    EXPECT_EQ(surface->lockDepth, 0) << failing;
    onEvent = nullptr;
    const Ref<IControl> frame = Draw(ctFrame, 100, 100, 300, 250);
    designer->Copy();
    onEvent = [&](std::string_view event) {
      if (event == failing) Raise(ErrorNumber::InvalidCall);
    };
    designer->Paste();
    onEvent = nullptr;
    EXPECT_EQ(surface->lockDepth, 0) << failing;
    EXPECT_EQ(surface->screenPointers.back(), 0) << failing;
    designer->SetCtrl(frame);
    const Ref<IControl> next = Draw(ctLabel, 10, 10, 60, 40);  // not in the frame
    EXPECT_EQ(BoxOf(*next), "10,10,50,30") << failing;
    EXPECT_EQ(WidgetOf(*next).Container(), nullptr) << failing;
  }
}

TEST_F(PlacingTest, SkipsNumbersOfExistingWidgets) {
  surface->Add(u"VB.Label", u"Object_1", nullptr);
  EXPECT_EQ(Draw(ctLabel, 10, 10, 60, 40)->Name(), u"object_2");
  designer->Delete();
  EXPECT_EQ(Draw(ctTextBox, 10, 10, 60, 40)->Name(), u"object_3");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).DisplayText(), u"Text3");
}

TEST_F(PlacingTest, SkipsNamesReservedByTheSurface) {
  surface->reserved = {u"object_1", u"object_2"};
  EXPECT_EQ(Draw(ctLabel, 10, 10, 60, 40)->Name(), u"object_3");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).DisplayText(), u"Label3");
}

TEST_F(PlacingTest, DoesNothingWhenNoNameIsLeft) {
  for (std::int32_t i = 1; i <= 32767; ++i)
    surface->reserved.insert(std::u16string((Text(u"object_") + ToText(Variant(i))).View()));
  Draw(ctLabel, 10, 10, 60, 40);
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(Take(), Lines{});
  EXPECT_EQ(designer->ControlTypeToAdd(), ctLabel);
  EXPECT_EQ(surface->lockDepth, 0);
  EXPECT_FALSE(Module().designDragging);
}

// The author has given another control the name of the new widget: the widget is created, but the form does
// not get the control.
TEST_F(PlacingTest, AddsNoControlUnderATakenUserName) {
  const Ref<IControl> label = Draw(ctLabel, 10, 10, 60, 40);
  designer->ChangeControlName(label, u"Object_2");
  const Ref<IControl> second = Draw(ctLabel, 10, 60, 60, 90);
  EXPECT_EQ(Names(), "Form, Object_2");
  EXPECT_EQ(designer->CurrentControl().get(), second.get());
  EXPECT_NE(second.get(), label.get());
  designer->Delete();
  EXPECT_EQ(Names(), "Form, Object_2");
}

TEST_F(PlacingTest, IgnoresAnUnknownControlTypeToAdd) {
  designer->SetControlTypeToAdd(ctFrame);
  LetProperty(*designer, u"ControlTypeToAdd", Variant(16));
  EXPECT_EQ(designer->ControlTypeToAdd(), ctFrame);
  LetProperty(*designer, u"ControlTypeToAdd", Variant(-1));
  EXPECT_EQ(designer->ControlTypeToAdd(), ctFrame);
  LetProperty(*designer, u"ControlTypeToAdd", Variant(15));
  EXPECT_EQ(designer->ControlTypeToAdd(), ctDbTableViewer);
}

TEST_F(PlacingTest, ReturnsToSelectionOnAnotherMouseButton) {
  designer->SetControlTypeToAdd(ctLabel);
  surface->listener->OnMouseUp(MouseButton::Right, 0, 10, 10);
  EXPECT_EQ(Take(), (Lines{"StateChanged Default"}));
  EXPECT_EQ(Names(), "Form");
  surface->listener->OnMouseUp(MouseButton::Right, 0, 10, 10);
  EXPECT_EQ(Take(), Lines{});
}

TEST_F(PlacingTest, ReturnsToSelectionWhenTheFormIsSelected) {
  designer->SetControlTypeToAdd(ctLabel);
  surface->listener->OnClick();
  EXPECT_EQ(designer->ControlTypeToAdd(), ctDefault);
  EXPECT_EQ(Take(), Lines{});
}

TEST_F(PlacingTest, ShowsTheCrossPointerWhileAdding) {
  surface->listener->OnMouseMove(0, 0, 10, 10);
  EXPECT_EQ(surface->pointer, PointerShape::Arrow);
  designer->SetControlTypeToAdd(ctLabel);
  surface->listener->OnMouseMove(0, 0, 10, 10);
  EXPECT_EQ(surface->pointer, PointerShape::Cross);
}

}  // namespace
}  // namespace cardwright
