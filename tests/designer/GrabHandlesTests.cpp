// SPDX-License-Identifier: MIT
#include "cardwright/designer/GrabHandles.h"

#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using GrabHandlesTest = DesignerTest;
using enum ControlTypeEnum;

TEST(GrabHandlesPlaces, AreOutsideTheEdgesExceptTheFirst) {
  const auto places = HandlePositions(100, 50, 60, 40, 7, 5);
  const HandlePosition expected[] = {{126.5F, 67.5F}, {160, 90},    {93, 45}, {126.5F, 45}, {160, 45},
                                     {93, 67.5F},     {160, 67.5F}, {93, 90}, {126.5F, 90}};
  for (std::size_t i = 0; i < kHandleCount; ++i) EXPECT_EQ(places[i], expected[i]) << i;
}

TEST_F(GrabHandlesTest, AreSevenPixelsWideAndHiddenInitially) {
  for (const auto& handle : surface->handles) {
    EXPECT_FALSE(handle->IsVisible());
    EXPECT_EQ(handle->Width(), 7);
    EXPECT_EQ(handle->Height(), 7);
  }
}

TEST_F(GrabHandlesTest, ShowAroundTheSelectedControlInHighlightColors) {
  const Ref<IControl> label = Draw(ctLabel, 20, 30, 120, 60);
  EXPECT_TRUE(AreHandlesShown());
  EXPECT_EQ(surface->handles[1]->Left(), 120);
  EXPECT_EQ(surface->handles[1]->Top(), 60);
  EXPECT_EQ(surface->handles[2]->Left(), 13);
  EXPECT_EQ(surface->handles[0]->BackColor(), ToOleColor(SystemColor::Highlight));
  EXPECT_EQ(surface->handles[0]->box,
            "6.000000,6.000000:" + std::to_string(ToOleColor(SystemColor::HighlightText)));
}

TEST_F(GrabHandlesTest, SwapTheirColorsWhileLocked) {
  Draw(ctLabel, 20, 30, 120, 60);
  designer->LockUnlock();
  EXPECT_EQ(surface->handles[4]->BackColor(), ToOleColor(SystemColor::HighlightText));
  designer->LockUnlock();
  EXPECT_EQ(surface->handles[4]->BackColor(), ToOleColor(SystemColor::Highlight));
}

TEST_F(GrabHandlesTest, ShowSizingPointersUnlessLocked) {
  Draw(ctLabel, 20, 30, 120, 60);
  const int expected[] = {5, 8, 8, 7, 6, 9, 9, 6, 7};
  for (std::size_t i = 0; i < kHandleCount; ++i) {
    surface->handles[i]->listener->OnMouseMove(0, 0, 1, 1);
    EXPECT_EQ(static_cast<int>(surface->pointer), expected[i]) << i;
  }
  designer->LockUnlock();
  surface->handles[1]->listener->OnMouseMove(0, 0, 1, 1);
  EXPECT_EQ(surface->pointer, PointerShape::Arrow);
}

TEST_F(GrabHandlesTest, MoveIntoTheFrameOfTheirControl) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  EXPECT_EQ(surface->handles[0]->Container(), nullptr);
  DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  for (const auto& handle : surface->handles) EXPECT_EQ(handle->Container().get(), &WidgetOf(*frame));
  EXPECT_EQ(surface->handles[1]->Left(), 60);
  designer->SetCtrl(frame);
  EXPECT_EQ(surface->handles[0]->Container(), nullptr);
}

TEST_F(GrabHandlesTest, HideWhenTheFormIsSelected) {
  Draw(ctLabel, 20, 30, 120, 60);
  surface->listener->OnClick();
  EXPECT_FALSE(surface->handles[0]->IsVisible());
  EXPECT_FALSE(surface->handles[8]->IsVisible());
}

}  // namespace
}  // namespace cardwright
