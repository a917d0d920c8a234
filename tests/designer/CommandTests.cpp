// SPDX-License-Identifier: MIT
#include "cardwright/model/CItems.h"
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

class CommandTest : public DesignerTest {
 protected:
  Ref<IControl> DrawLabel() {
    const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
    Take();
    return label;
  }
};

using SelectTest = CommandTest;

TEST_F(SelectTest, RaisesCurrObjectChangedBeforeTheSelectionChanges) {
  const Ref<IControl> label = DrawLabel();
  const Ref<IControl> form = ControlsOf(designer->Controls())[0];
  Text stored;
  onEvent = [&](std::string_view) { stored = designer->CurrentControl()->UserName(); };
  designer->SetCtrl(form);
  EXPECT_EQ(Take(), (Lines{"CurrObjectChanged <Form>"}));
  EXPECT_EQ(stored, u"object_1");
  EXPECT_EQ(designer->CurrentControl().get(), form.get());
}

TEST_F(SelectTest, MovesTheHandlesWithoutAnEventForTheSameControl) {
  const Ref<IControl> label = DrawLabel();
  WidgetOf(*label).Move(200, 200, 50, 20);
  designer->SetCtrl(label);
  EXPECT_EQ(Take(), Lines{});
  EXPECT_EQ(surface->handles[1]->Left(), 250);
}

TEST_F(SelectTest, ShowsAHiddenControlAndParksTheFocus) {
  const Ref<IControl> label = DrawLabel();
  WidgetOf(*label).SetVisible(false);
  surface->focusHolder->SetVisible(false);
  surface->focusHolder->calls = Text();
  designer->SetCtrl(label);
  EXPECT_TRUE(WidgetOf(*label).IsVisible());
  EXPECT_TRUE(surface->focusHolder->IsVisible());
  EXPECT_EQ(surface->focusHolder->calls, u"focus ");
  EXPECT_EQ(surface->focusHolder->Left(), -10);
  EXPECT_EQ(surface->focusHolder->Top(), -10);
}

TEST_F(SelectTest, SelectsTheWidgetThatIsClickedOrGetsTheFocus) {
  const Ref<IControl> label = DrawLabel();
  const Ref<IControl> text = Draw(ctTextBox, 20, 90, 120, 120);
  FakeDesignSurface::At(WidgetOf(*label)).listener->OnClick();
  EXPECT_EQ(designer->CurrentControl().get(), label.get());
  FakeDesignSurface::At(WidgetOf(*text)).listener->OnGotFocus();
  EXPECT_EQ(designer->CurrentControl().get(), text.get());
  FakeDesignSurface::At(WidgetOf(*text)).listener->OnMouseMove(0, 0, 1, 1);
  EXPECT_EQ(surface->pointer, PointerShape::Arrow);
}

TEST_F(SelectTest, SelectsTheFormByAClickUnlessEventsAreSuspended) {
  const Ref<IControl> label = DrawLabel();
  designer->SuspendEvents(true);
  surface->listener->OnClick();
  EXPECT_EQ(designer->CurrentControl().get(), label.get());
  EXPECT_FALSE(designer->IsBusy());
  surface->listener->OnClick();
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"Form");
}

TEST_F(SelectTest, MovesTheHandlesWhenAPropertyMovesTheControl) {
  const Ref<IControl> label = DrawLabel();
  label->SetPropertyValue(u"Left", 40);
  EXPECT_EQ(surface->handles[1]->Left(), 140);
  EXPECT_EQ(Take(), Lines{});
}

TEST_F(SelectTest, RaisesError91ForNull) {
  EXPECT_EQ(ErrorOf([&] { designer->SetCtrl(nullptr); }), 91);
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"Form");
}

using DeleteTest = CommandTest;

TEST_F(DeleteTest, RaisesObjectRemovedThenSelectsTheForm) {
  const Ref<IControl> label = DrawLabel();
  designer->ChangeControlName(label, u"lblDepth");
  Take();
  designer->Delete();
  EXPECT_EQ(Take(), (Lines{"ObjectRemoved object_1", "CurrObjectChanged <Form>", "RefreshPropertyList"}));
  EXPECT_EQ(Names(), "Form");
  EXPECT_EQ(NamesOf(designer->ZList()), "Form");
  EXPECT_EQ(surface->WidgetCount(), 0);
  EXPECT_FALSE(surface->handles[0]->IsVisible());
}

TEST_F(DeleteTest, IgnoresTheForm) {
  designer->Delete();
  int key = 46, shift = 0;
  surface->listener->OnKeyDown(key, shift);
  EXPECT_EQ(Take(), Lines{});
  EXPECT_EQ(Names(), "Form");
}

TEST_F(DeleteTest, RunsOnTheDeleteKeyIfEnabled) {
  DrawLabel();
  int shift = 0;
  for (int key : {8, 13, 37, 39}) surface->listener->OnKeyDown(key, shift);
  designer->SetEnableKeyDelete(false);
  int key = 46;
  surface->listener->OnKeyDown(key, shift);
  EXPECT_EQ(Names(), "Form, object_1");
  designer->SetEnableKeyDelete(true);
  surface->listener->OnKeyDown(key, shift);
  EXPECT_EQ(Names(), "Form");
}

TEST_F(DeleteTest, RemovesTheControlsOfAFrameOneLevelDeep) {
  const Ref<IControl> outer = Draw(ctFrame, 50, 50, 350, 280);
  DrawInside(*outer, ctLabel, 10, 10, 60, 40);
  const Ref<IControl> inner = DrawInside(*outer, ctFrame, 10, 60, 200, 200);
  const Ref<IControl> lost = DrawInside(*inner, ctTextBox, 10, 10, 60, 40);
  EXPECT_EQ(Names(), "Form, object_1, object_2, object_3, object_4");
  designer->SetCtrl(outer);
  designer->Delete();
  EXPECT_EQ(Names(), "Form, object_4");
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_4");
  EXPECT_EQ(surface->WidgetCount(), 0);
  EXPECT_EQ(surface->handles[0]->Container(), nullptr);
  // A control without a widget is ignored everywhere.
  designer->SetCtrl(lost);
  EXPECT_FALSE(surface->handles[0]->IsVisible());
  designer->LockUnlock();
  designer->Delete();
  EXPECT_TRUE(designer->ProjectSave(folder.Name("a.cwf")));
}

using ClipboardTest = CommandTest;

TEST_F(ClipboardTest, PastesACopyAtTheTopLeftCornerAndRaisesItsEventsInOrder) {
  const Ref<IControl> label = DrawLabel();
  label->SetPropertyValue(u"Text", u"Depth");
  WidgetOf(*label).SetBackColor(0x123456);
  designer->Copy();
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuPaste True"}));
  designer->Paste();
  EXPECT_EQ(Take(),
            (Lines{"PropertyChanged 8 -2147483630", "CurrObjectChanged <object_2>", "StateChanged Default"}));
  const Ref<IControl> pasted = designer->CurrentControl();
  EXPECT_NE(pasted.get(), label.get());
  EXPECT_EQ(BoxOf(*pasted), "0,0,100,30");
  EXPECT_EQ(WidgetOf(*pasted).DisplayText(), u"Depth");
  EXPECT_EQ(pasted->BackColor(), 0x123456);
  EXPECT_EQ(surface->screenPointers, (std::vector<int>{11, 0}));
  designer->Paste();
  EXPECT_EQ(Names(), "Form, object_1, object_2, object_3");
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,100,30");
}

TEST_F(ClipboardTest, IgnoresTheFormAndAnEmptyClipboard) {
  designer->Copy();
  designer->Paste();
  designer->Cut();
  EXPECT_EQ(Take(), Lines{});
  EXPECT_EQ(Names(), "Form");
}

TEST_F(ClipboardTest, CutsAndPastesEveryClass) {
  for (int type = 1; type <= 14; ++type) {
    const Ref<IControl> control = Draw(static_cast<ControlTypeEnum>(type), 10, 10, 110, 60);
    designer->Cut();
    designer->Paste();
    const Ref<IControl> pasted = designer->CurrentControl();
    EXPECT_EQ(pasted->TypeName(), control->TypeName());
    EXPECT_EQ(BoxOf(*pasted), "0,0,100," + ToText(Variant(pasted->Height())).ToUtf8());
    EXPECT_EQ(designer->ControlTypeToAdd(), ctDefault);
    designer->Delete();
  }
}

TEST_F(ClipboardTest, PastesACutControlUnderItsNameIfFree) {
  const Ref<IControl> label = DrawLabel();
  designer->ChangeControlName(label, u"lblDepth");
  designer->Cut();
  Take();
  designer->Paste();
  EXPECT_EQ(Names(), "Form, lblDepth");
  EXPECT_EQ(&Find(u"lbldepth"), designer->CurrentControl().get());
  EXPECT_EQ(designer->CurrentControl()->Name(), u"object_2");
  const Lines heard = Take();
  EXPECT_EQ(heard[1], "ControlNameChanged object_2 <lblDepth>");
  designer->Paste();
  EXPECT_EQ(Names(), "Form, lblDepth, object_3");
}

TEST_F(ClipboardTest, CopiesAFrameWithoutItsControls) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  designer->SetCtrl(frame);
  designer->Cut();
  EXPECT_EQ(Names(), "Form");
  designer->Paste();
  EXPECT_EQ(ControlsOf(designer->Controls()).size(), 2U);
  EXPECT_EQ(surface->WidgetCount(), 1);
}

TEST_F(ClipboardTest, PastesIntoTheSelectedFrameAndKeepsTheSizeInside) {
  Draw(ctTextBox, 10, 10, 210, 160);
  designer->Copy();
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 150, 100);
  designer->Paste();
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container().get(), &WidgetOf(*frame));
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,93,43");
  designer->SetCtrl(ControlsOf(designer->Controls())[0]);
  surface->Resize(50, 20);
  designer->Paste();
  EXPECT_EQ(WidgetOf(*designer->CurrentControl()).Container(), nullptr);
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,43,13");
}

TEST_F(ClipboardTest, LimitsTheHeightEvenIfTheWidthCannotBeLimited) {
  Draw(ctListBox, 0, 0, 400, 300);
  designer->Copy();
  surface->Resize(5, 96);  // narrower than a handle
  designer->SetCtrl(ControlsOf(designer->Controls())[0]);
  designer->Paste();
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,400,89");
}

TEST_F(ClipboardTest, PastesTheFontAsItIsWhenPasted) {
  const Ref<IControl> label = DrawLabel();
  designer->Copy();
  FontValues values;
  values.size = 20;
  values.bold = true;
  label->GetFont()->Assign(values);
  designer->Paste();
  EXPECT_EQ(designer->CurrentControl()->GetFont()->Values(), values);
  EXPECT_NE(designer->CurrentControl()->GetFont().get(), label->GetFont().get());
}

TEST_F(ClipboardTest, PastesCopiesOfTheItems) {
  const Ref<IControl> list = Draw(ctListBox, 10, 10, 110, 90);
  Variant held = list->PropertyValue(u"Items");
  const Ref<CItems> items = FromVariant<Ref<CItems>>(held);
  for (std::u16string_view text : {u"one", u"two"}) {
    const auto item = MakeRef<CItem>();
    item->m_Text = text;
    item->m_Value = text.substr(0, 1);
    items->Add(item);
  }
  designer->Copy();
  designer->Paste();
  Variant pastedValue = designer->CurrentControl()->PropertyValue(u"Items");
  const Ref<CItems> pasted = FromVariant<Ref<CItems>>(pastedValue);
  ASSERT_EQ(pasted->Count(), 2);
  EXPECT_EQ(pasted->Item(Variant(2))->m_Text, u"two");
  EXPECT_EQ(pasted->Item(Variant(2))->m_Value, u"t");
  EXPECT_NE(pasted->Item(Variant(1)).get(), items->Item(Variant(1)).get());
  EXPECT_EQ(dynamic_cast<FakeList&>(WidgetOf(*designer->CurrentControl())).ColumnWidth(), 96);
}

TEST_F(ClipboardTest, PastesAControlThatWasDeletedMeanwhile) {
  Draw(ctTextBox, 10, 10, 110, 60);
  designer->Copy();
  designer->Delete();
  designer->Paste();
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,100,50");
}

TEST_F(ClipboardTest, AllowsAHandlerToCopyAnotherControlWhilePasting) {
  const Ref<IControl> label = DrawLabel();
  Draw(ctListBox, 10, 100, 110, 190);
  designer->Copy();
  designer->SetCtrl(label);
  bool hasCopied = false;
  onEvent = [&](std::string_view) {
    if (std::exchange(hasCopied, true)) return;
    designer->Copy();
  };
  designer->Paste();
  EXPECT_TRUE(hasCopied);
  EXPECT_EQ(designer->CurrentControl()->TypeName(), u"CListBox");
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "0,0,100,90");
  designer->Paste();
  EXPECT_EQ(designer->CurrentControl()->TypeName(), u"CLabel");
}

using StackingTest = CommandTest;

TEST_F(StackingTest, MovesTheControlToTheEndOfTheZListForFrontAndBack) {
  const Ref<IControl> first = Draw(ctLabel, 10, 10, 60, 40);
  const Ref<IControl> second = Draw(ctLabel, 10, 60, 60, 90);
  Draw(ctLabel, 10, 110, 60, 140);
  designer->SetCtrl(first);
  surface->handles[0]->calls = Text();
  designer->SetForeground();
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_2, object_3, object_1");
  EXPECT_EQ(first->ZOrder(), 0);
  EXPECT_EQ(surface->handles[0]->calls, u"front ");
  designer->SetCtrl(second);
  designer->SetBackground();
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_3, object_1, object_2");
  EXPECT_EQ(second->ZOrder(), 1);
  EXPECT_TRUE(dynamic_cast<FakeLabel&>(WidgetOf(*second)).calls.View().ends_with(u"back "));
  EXPECT_EQ(Names(), "Form, object_1, object_2, object_3");
}

TEST_F(StackingTest, DoesNothingWhileLocked) {
  const Ref<IControl> first = DrawLabel();
  Draw(ctLabel, 10, 60, 60, 90);
  designer->LockUnlock();
  designer->SetCtrl(first);
  designer->SetForeground();
  designer->SetBackground();
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_1, object_2");
}

using LockTest = CommandTest;

TEST_F(LockTest, UpdatesTheMenusAndRaisesControlsLocked) {
  DrawLabel();
  designer->LockUnlock();
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuForeground False", "MenuStateChanged mnuBackground False",
                           "ControlsLocked True"}));
  designer->LockUnlock();
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuForeground True", "MenuStateChanged mnuBackground True",
                           "ControlsLocked False"}));
}

TEST_F(LockTest, DoesNotLockAFormWithoutControls) {
  designer->LockUnlock();
  EXPECT_EQ(Take(), Lines{});
  DrawLabel();
  DragHandle(0, {{70, 45}, {80, 45}});
  EXPECT_EQ(BoxOf(*designer->CurrentControl()), "30,30,100,30");
}

using CenterTest = CommandTest;

TEST_F(CenterTest, CentersOnTheSurfaceAndInAFrame) {
  const Ref<IControl> label = DrawLabel();
  designer->CenterLeft();
  designer->CenterTop();
  EXPECT_EQ(BoxOf(*label), "150,135,100,30");
  EXPECT_EQ(Take(), (Lines{"PropertyChanged 4 150", "PropertyChanged 5 135"}));
  EXPECT_EQ(surface->handles[1]->Left(), 250);
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  const Ref<IControl> inside = DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  designer->CenterLeft();
  designer->CenterTop();
  EXPECT_EQ(BoxOf(*inside), "75,85,50,30");
}

TEST_F(CenterTest, IgnoresTheFormAndKeepsHiddenHandlesHidden) {
  designer->CenterLeft();
  designer->CenterTop();
  EXPECT_EQ(Take(), Lines{});
  DrawLabel();
  designer->ShowHandles(false);
  designer->CenterLeft();
  EXPECT_FALSE(surface->handles[0]->IsVisible());
}

}  // namespace
}  // namespace cardwright
