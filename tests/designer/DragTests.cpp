// SPDX-License-Identifier: MIT
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

class DragTest : public DesignerTest {
 protected:
  Ref<IControl> DrawLabel() {
    const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
    Take();
    TakeOutlines();
    surface->tooltips.clear();
    return label;
  }
  void ExpectIdle() {
    EXPECT_FALSE(designer->IsBusy());
    EXPECT_FALSE(Module().designDragging);
    EXPECT_FALSE(surface->outline.has_value());
    EXPECT_FALSE(surface->tooltip.has_value());
    EXPECT_EQ(surface->lockDepth, 0);
  }
};

TEST_F(DragTest, MovesAControlByItsCentreHandle) {
  const Ref<IControl> label = DrawLabel();
  DragHandle(0, {{70, 45}, {80, 50}});
  EXPECT_EQ(BoxOf(*label), "30,35,100,30");
  EXPECT_EQ(Take(), (Lines{"PropertyChanged 4 30", "PropertyChanged 5 35", "PropertyChanged 6 100",
                           "PropertyChanged 7 30"}));
  EXPECT_EQ(TakeOutlines(), (Lines{"20,30,120,60", "30,35,130,65"}));
  EXPECT_EQ(surface->tooltips, (Lines{" 30, 35 @80,71"}));  // 2/3 of the pointer's height below
  EXPECT_TRUE(AreHandlesShown());
  ExpectIdle();
}

TEST_F(DragTest, ResizesAControlAndShowsItsSize) {
  const Ref<IControl> label = DrawLabel();
  DragHandle(1, {{120, 60}, {130, 70}, {140, 80}});
  EXPECT_EQ(BoxOf(*label), "20,30,120,50");
  EXPECT_EQ(surface->tooltips, (Lines{" 110 x 40 @130,91", " 120 x 50 @140,101"}));
  DragHandle(2, {{20, 30}, {10, 20}});
  EXPECT_EQ(BoxOf(*label), "10,20,130,60");
}

TEST_F(DragTest, LeavesAClickedControlInPlace) {
  const Ref<IControl> label = DrawLabel();
  designer->ShowHandles(false);
  DragHandle(0, {{70, 45}});
  EXPECT_EQ(BoxOf(*label), "20,30,100,30");
  EXPECT_EQ(Take(), (Lines{"PropertyChanged 4 20", "PropertyChanged 5 30", "PropertyChanged 6 100",
                           "PropertyChanged 7 30"}));
  EXPECT_TRUE(AreHandlesShown());
  EXPECT_TRUE(surface->tooltips.empty());
}

TEST_F(DragTest, KeepsAControlInsideTheSurfacePerAxis) {
  const Ref<IControl> label = DrawLabel();
  DragHandle(0, {{70, 45}, {60, 50}, {10, 60}, {0, 90}});
  EXPECT_EQ(BoxOf(*label), "10,75,100,30");
}

TEST_F(DragTest, KeepsAControlInsideItsFrame) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  const Ref<IControl> label = DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  DragHandle(0, {{85, 75}, {55, 80}, {95, 300}});
  EXPECT_EQ(BoxOf(*label), "20,15,50,30");
  EXPECT_EQ(WidgetOf(*label).Container().get(), &WidgetOf(*frame));
}

TEST_F(DragTest, SnapsToTheGridWithGridAlignment) {
  const Ref<IControl> label = DrawLabel();
  designer->SetGridAlignment(true);
  DragHandle(0, {{70, 45}, {72, 45}, {74, 45}, {75, 47}});
  EXPECT_EQ(TakeOutlines(), (Lines{"20,30,120,60", "24,30,124,60", "24,32,124,62"}));
  EXPECT_EQ(BoxOf(*label), "24,32,100,30");
}

TEST_F(DragTest, SnapsToTheGridUnderAQuickMouseWithTracing) {
  const Ref<IControl> label = DrawLabel();
  designer->SetGridAlignment(true);
  DragHandle(0, {{70, 45}, {127, 98}});
  EXPECT_EQ(BoxOf(*label), "20,30,100,30");
  TakeOutlines();
  designer->SetTracesMouse(true);
  DragHandle(0, {{70, 45}, {127, 98}});
  EXPECT_EQ(TakeOutlines(), (Lines{"20,30,120,60", "72,80,172,110"}));
  EXPECT_EQ(BoxOf(*label), "72,80,100,30");
  DragHandle(1, {{172, 110}, {101, 190}});
  EXPECT_EQ(BoxOf(*label), "72,80,32,104");
}

TEST_F(DragTest, KeepsFractionsOfAPixelInTwips) {
  Module().formScaleMode = ScaleMode::Twips;
  designer->ApplyScaleAndGrid();
  const Ref<IControl> label = DrawLabel();
  label->SetPropertyValue(u"Left", 307);
  DragHandle(0, {{70, 45}, {80, 45}});
  EXPECT_EQ(BoxOf(*label), "457,450,1500,450");
  EXPECT_EQ(surface->tooltips, (Lines{" 457, 450 @80,66"}));
}

TEST_F(DragTest, SnapsToAGridStepInTwips) {
  Module().formScaleMode = ScaleMode::Twips;
  designer->ApplyScaleAndGrid();
  const Ref<IControl> label = DrawLabel();
  designer->SetGridAlignment(true);
  DragHandle(0, {{70, 45}, {73, 45}});  // 8 twips are one pixel, rounded
  EXPECT_EQ(BoxOf(*label), "345,450,1500,450");
  designer->SetGridStep(120);
  DragHandle(0, {{73, 45}, {75, 45}});
  EXPECT_EQ(BoxOf(*label), "345,450,1500,450");
  DragHandle(0, {{73, 45}, {74, 45}});
  EXPECT_EQ(BoxOf(*label), "360,450,1500,450");
}

TEST_F(DragTest, KeepsTheHeightOfClassesWithAFixedHeight) {
  for (ControlTypeEnum kind : {ctComboBox, ctThemeSelector}) {
    const Ref<IControl> control = Draw(kind, 10, 10, 110, 40);
    EXPECT_EQ(BoxOf(*control), "10,10,100,21");
    TakeOutlines();
    DragHandle(1, {{110, 31}, {130, 51}});
    EXPECT_EQ(TakeOutlines().back(), "10,10,130,51");
    EXPECT_EQ(BoxOf(*control), "10,10,120,21");
    designer->Delete();
  }
}

TEST_F(DragTest, ResizesAFrameAndAListToAnyHeight) {
  for (ControlTypeEnum kind : {ctFrame, ctListBox}) {
    const Ref<IControl> control = Draw(kind, 50, 50, 250, 250);
    DragHandle(8, {{150, 250}, {150, 55}});
    EXPECT_EQ(BoxOf(*control), "50,50,200,5");
    designer->Delete();
  }
  const Ref<IControl> text = Draw(ctTextBox, 50, 50, 250, 90);
  DragHandle(8, {{150, 90}, {150, 55}});
  EXPECT_EQ(BoxOf(*text), "50,50,200,40");
}

TEST_F(DragTest, DoesNotStartWhileLockedOrAdding) {
  DrawLabel();
  designer->LockUnlock();
  DragHandle(0, {{70, 45}, {90, 45}});
  EXPECT_TRUE(TakeOutlines().empty());
  designer->LockUnlock();
  designer->SetControlTypeToAdd(ctFrame);
  PressHandle(0);
  surface->handles[0]->listener->OnMouseUp(MouseButton::Left, 0, 3, 3);
  EXPECT_TRUE(TakeOutlines().empty());
  designer->SetControlTypeToAdd(ctDefault);
  surface->handles[0]->listener->OnMouseDown(MouseButton::Right, 0, 3, 3);
  EXPECT_TRUE(TakeOutlines().empty());
}

TEST_F(DragTest, HidesTheHandlesAndParksTheFocusWhileDragging) {
  DrawLabel();
  Press(70, 45);
  surface->focusHolder->calls = Text();
  surface->Then([&] {
    EXPECT_TRUE(designer->IsBusy());
    EXPECT_TRUE(Module().designDragging);
    EXPECT_FALSE(surface->handles[0]->IsVisible());
    EXPECT_EQ(surface->focusHolder->calls, u"focus ");
    EXPECT_EQ(surface->focusHolder->Left(), -10);
    EXPECT_EQ(surface->releases, 2);  // one for the drawing
  });
  PressHandle(0);
  ExpectIdle();
}

TEST_F(DragTest, IgnoresOtherMouseEventsWhileDragging) {
  const Ref<IControl> other = Draw(ctTextBox, 200, 200, 260, 230);
  const Ref<IControl> label = DrawLabel();
  Press(70, 45);
  surface->Then([&] { FakeDesignSurface::At(WidgetOf(*other)).listener->OnGotFocus(); });
  surface->Then([&] { surface->listener->OnMouseUp(MouseButton::Left, 0, 5, 5); });
  surface->Then([&] {
    surface->listener->OnClick();
    EXPECT_TRUE(designer->IsBusy());
  });
  surface->Then([&] { PressHandle(1); });
  surface->Then([&] { surface->listener->OnMouseDown(MouseButton::Right, 0, 5, 5); });
  PressHandle(0);
  EXPECT_EQ(designer->CurrentControl().get(), label.get());
  EXPECT_TRUE(surface->menus.empty());
  ExpectIdle();
}

TEST_F(DragTest, EndsWhenItsControlIsDeleted) {
  DrawLabel();
  Press(70, 45);
  surface->Then([&] { designer->Delete(); });
  ThenMove(90, 60);
  PressHandle(0);
  EXPECT_EQ(Take(), (Lines{"ObjectRemoved object_1", "CurrObjectChanged <Form>", "RefreshPropertyList"}));
  EXPECT_FALSE(surface->handles[0]->IsVisible());
  ExpectIdle();
}

TEST_F(DragTest, EndsWhenTheFrameOfItsControlIsDeleted) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  Press(85, 75);
  surface->Then([&] {
    designer->SetCtrl(frame);
    designer->Delete();
  });
  ThenMove(90, 90);
  PressHandle(0);
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(surface->WidgetCount(), 0);
  ExpectIdle();
}

TEST_F(DragTest, EndsWhenTheFrameBeingDrawnInIsDeleted) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  const Ref<Widget> widget(&WidgetOf(*frame));
  designer->SetControlTypeToAdd(ctLabel);
  Press(60, 60);
  surface->Then([&] { designer->Delete(); });
  ThenMove(90, 90);
  FakeDesignSurface::At(*widget).listener->OnMouseDown(MouseButton::Left, 0, 10, 10);
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(surface->WidgetCount(), 0);
  ExpectIdle();
}

TEST_F(DragTest, IgnoresTheReleaseOnTheFrameBeingDrawnIn) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  WidgetListener* listener = FakeDesignSurface::At(WidgetOf(*frame)).listener;
  designer->SetControlTypeToAdd(ctLabel);
  Press(60, 60);
  ThenMove(110, 90);
  surface->Then([&] { listener->OnMouseUp(MouseButton::Left, 0, 60, 40); });
  listener->OnMouseDown(MouseButton::Left, 0, 10, 10);
  EXPECT_EQ(Names(), "Form, object_1, object_2");
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "10,10,50,30");
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container().get(), &WidgetOf(*frame));
  ExpectIdle();
}

TEST_F(DragTest, EndsWithTheSurface) {
  DrawLabel();
  Press(70, 45);
  WidgetListener* handle = surface->handles[0]->listener;
  surface->Then([&] {
    designer->DetachSurface();
    surface.reset();
  });
  handle->OnMouseDown(MouseButton::Left, 0, 3, 3);
  EXPECT_FALSE(Module().designDragging);
  EXPECT_FALSE(designer->IsBusy());
}

TEST_F(DragTest, AllowsAHandlerToDeleteTheControl) {
  DrawLabel();
  onEvent = [&](std::string_view event) {
    if (event == "PropertyChanged" && Names() != "Form") designer->Delete();
  };
  DragHandle(0, {{70, 45}, {80, 50}});
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"Form");
  ExpectIdle();
}

TEST_F(DragTest, LeavesNothingOnTheScreenWhenItCannotBegin) {
  const Ref<IControl> label = DrawLabel();
  WidgetOf(*label).Move(0, 0, 1e30F, 10);
  Press(10, 5);
  EXPECT_EQ(ErrorOf([&] { PressHandle(0); }), 6);
  ExpectIdle();
}

}  // namespace
}  // namespace cardwright
