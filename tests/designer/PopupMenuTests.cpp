// SPDX-License-Identifier: MIT
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

const std::string kSurfaceMenu =
    "!mnuCut=Cut;!mnuCopy=Copy;mnuPaste=Paste;-;mnuLock=Lock/Unlock controls;-;mnuProps=Properties";
// The captions of the two restacking commands are swapped.
const std::string kControlMenu =
    "mnuCut=Cut;mnuCopy=Copy;mnuPaste=Paste;-;mnuDelete=Delete;-;mnuForeground=Send to back;"
    "mnuBackground=Bring to front;-;mnuLock=Lock/Unlock controls;-;mnuProps=Properties";

class PopupMenuTest : public DesignerTest {
 protected:
  void RightClick(IControl& control) {
    FakeDesignSurface::At(WidgetOf(control)).listener->OnMouseDown(MouseButton::Right, 0, 3, 3);
  }
  void RightClickSurface(int shift = 0) { surface->listener->OnMouseDown(MouseButton::Right, shift, 3, 3); }
  void Choose(std::u16string_view name) {
    surface->onMenu = [name](std::span<const Ref<MenuItem>>) { return Text(name); };
  }
  Ref<IControl> DrawLabel() {
    const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
    Take();
    return label;
  }
};

TEST_F(PopupMenuTest, ShowsTheEntriesThatNeedNoControlOnTheSurface) {
  DrawLabel();
  RightClickSurface();
  EXPECT_EQ(surface->menus, (Lines{kSurfaceMenu}));
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuCopy False", "MenuStateChanged mnuCut False",
                           "MenuStateChanged mnuCopy True", "MenuStateChanged mnuCut True"}));
  EXPECT_FALSE(surface->handles[0]->IsVisible());
  EXPECT_EQ(designer->CurrentControl()->UserName(), u"object_1");
}

TEST_F(PopupMenuTest, ShowsAllEntriesOnAControlAndSelectsIt) {
  const Ref<IControl> label = DrawLabel();
  Draw(ctTextBox, 20, 90, 120, 120);
  RightClickSurface();
  RightClick(*label);
  EXPECT_EQ(surface->menus[1], kControlMenu);
  EXPECT_EQ(designer->CurrentControl().get(), label.get());
  EXPECT_TRUE(AreHandlesShown());
}

TEST_F(PopupMenuTest, OpensOnlyOnTheRightButtonWithoutShift) {
  RightClickSurface(ShiftKey::Shift);
  surface->listener->OnMouseDown(MouseButton::Left, 0, 3, 3);
  EXPECT_TRUE(surface->menus.empty());
}

TEST_F(PopupMenuTest, DisablesRestackingWhileLocked) {
  const Ref<IControl> label = DrawLabel();
  designer->LockUnlock();
  Take();
  RightClick(*label);
  EXPECT_NE(surface->menus[0].find("!mnuForeground=Send to back;!mnuBackground=Bring to front;-;"
                                   "mnuLock=Lock/Unlock controls*"),
            std::string::npos);
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuForeground False", "MenuStateChanged mnuBackground False",
                           "MenuStateChanged mnuForeground True", "MenuStateChanged mnuBackground True"}));
}

TEST_F(PopupMenuTest, RunsTheChosenCommand) {
  const Ref<IControl> label = DrawLabel();
  const Ref<IControl> other = Draw(ctLabel, 20, 90, 120, 120);
  Take();
  Choose(u"mnuCopy");
  RightClick(*label);
  EXPECT_EQ(Take(), (Lines{"CurrObjectChanged <object_1>", "MenuStateChanged mnuPaste True"}));
  Choose(u"mnuForeground");
  RightClick(*label);
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_2, object_1");
  EXPECT_EQ(label->ZOrder(), 0);
  Choose(u"mnuBackground");
  RightClick(*other);
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, object_1, object_2");
  EXPECT_EQ(other->ZOrder(), 1);
  Take();
  Choose(u"mnuProps");
  RightClick(*other);
  EXPECT_EQ(Take(), (Lines{"PropertyMenuClick"}));
  Choose(u"mnuLock");
  RightClick(*other);
  EXPECT_EQ(Take().back(), "ControlsLocked True");
  Choose(u"mnuCut");
  RightClick(*label);
  EXPECT_EQ(Names(), "Form, object_2");
  Choose(u"mnuDelete");
  RightClick(*other);
  EXPECT_EQ(Names(), "Form");
  Choose(u"mnuPaste");
  RightClickSurface();
  EXPECT_EQ(Names(), "Form, object_1");  // the name that was cut
}

TEST_F(PopupMenuTest, RunsTheCommandBeforeRestoringTheEntries) {
  DrawLabel();
  Choose(u"mnuProps");
  RightClickSurface();
  EXPECT_EQ(Take(),
            (Lines{"MenuStateChanged mnuCopy False", "MenuStateChanged mnuCut False", "PropertyMenuClick",
                   "MenuStateChanged mnuCopy True", "MenuStateChanged mnuCut True"}));
}

TEST_F(PopupMenuTest, IgnoresDisabledAndHiddenEntries) {
  DrawLabel();
  for (std::u16string_view name : {u"mnuCut", u"mnuDelete", u"mnuSep", u"nothing"}) {
    Choose(name);
    RightClickSurface();
  }
  EXPECT_EQ(Names(), "Form, object_1");
}

TEST_F(PopupMenuTest, FollowsSetMenuState) {
  const Ref<IControl> label = DrawLabel();
  designer->SetMenuState(u"MNUPASTE", false);
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuPaste False"}));
  designer->SetMenuState(u"mnuPopup", false);
  EXPECT_EQ(Take(), (Lines{"MenuStateChanged mnuPopUp False"}));
  designer->SetMenuState(u"mnuNothing", false);
  EXPECT_EQ(Take(), Lines{});
  RightClick(*label);
  EXPECT_NE(surface->menus[0].find("!mnuPaste=Paste"), std::string::npos);
}

TEST_F(PopupMenuTest, DisablesAWidgetWithItsOwnMenuMeanwhile) {
  const Ref<IControl> text = Draw(ctTextBox, 20, 90, 120, 120);
  bool enabled = true;
  surface->onMenu = [&](std::span<const Ref<MenuItem>>) {
    enabled = WidgetOf(*text).IsEnabled();
    return Text();
  };
  RightClick(*text);
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(WidgetOf(*text).IsEnabled());
}

TEST_F(PopupMenuTest, AllowsTheSurfaceToEndWhileOpen) {
  const Ref<IControl> label = DrawLabel();
  surface->onMenu = [&](std::span<const Ref<MenuItem>>) {
    designer->DetachSurface();
    return Text(u"mnuDelete");
  };
  RightClick(*label);
  EXPECT_EQ(designer->CurrentControl(), nullptr);
}

}  // namespace
}  // namespace cardwright
