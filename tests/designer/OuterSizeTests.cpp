// SPDX-License-Identifier: MIT
#include "cardwright/model/CForm.h"
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using OuterSizeTest = DesignerTest;

TEST_F(OuterSizeTest, RaisesItsEventsInOrderWithTheSizeInTwips) {
  surface->frame = {10, 30};
  surface->Resize(500, 350);
  EXPECT_EQ(Take(),
            (Lines{"PropertyChanged 3 510", "PropertyChanged 4 380", "Resize", "NeedResize 7650 5700"}));
}

TEST_F(OuterSizeTest, RaisesNoPropertyChangedWhileAControlIsSelected) {
  Draw(ControlTypeEnum::ctLabel, 10, 10, 60, 40);
  Take();
  surface->Resize(500, 350);
  EXPECT_EQ(Take(), (Lines{"Resize", "NeedResize 7500 5250"}));
}

TEST_F(OuterSizeTest, RaisesNothingWhileEventsAreSuspended) {
  designer->SuspendEvents(true);
  surface->Resize(500, 350);
  EXPECT_EQ(Take(), Lines{});
  EXPECT_TRUE(designer->IsBusy());
}

TEST_F(OuterSizeTest, IsNotReentered) {
  onEvent = [&](std::string_view event) {
    if (event == "Resize" && events.size() < 20) surface->Resize(surface->Width() + 1, 350);
  };
  surface->Resize(500, 350);
  EXPECT_EQ(Take(),
            (Lines{"PropertyChanged 3 500", "PropertyChanged 4 350", "Resize", "NeedResize 7500 5250"}));
  EXPECT_FALSE(designer->IsBusy());
}

TEST_F(OuterSizeTest, RaisesTheRemainingEventsAfterAFailedHandler) {
  for (const char* failing : {"PropertyChanged", "Resize"}) {
    onEvent = [&](std::string_view event) {
      if (event == failing) Raise(ErrorNumber::InvalidCall);
    };
    surface->Resize(surface->Width() + 100, 350);
    const Lines heard = Take();
    EXPECT_EQ(heard[heard.size() - 2], "Resize") << failing;
    EXPECT_EQ(heard.back(), failing[0] == 'P' ? "NeedResize 7500 5250" : "NeedResize 9000 5250");
    EXPECT_FALSE(designer->IsBusy()) << failing;
  }
}

TEST_F(OuterSizeTest, RaisesNeedResizeAfterReading) {
  surface->frame = {10, 30};
  ASSERT_TRUE(designer->ProjectRead(
      folder.Put("a.cwf", "[FORM]\r\nScaleMode=1\r\nWidth=9060\r\nHeight=6000\r\nControlsNumber=0\r\n")));
  EXPECT_EQ(surface->Width(), 9060 - 150);
  EXPECT_EQ(Take().front(), "NeedResize 9060 6000");
  ASSERT_TRUE(designer->ProjectRead(
      folder.Put("b.cwf", "[FORM]\r\nScaleMode=3\r\nWidth=700\r\nHeight=500\r\nControlsNumber=0\r\n")));
  EXPECT_EQ(surface->Height(), 470);
  EXPECT_EQ(Take().front(), "NeedResize 10500 7500");
}

TEST_F(OuterSizeTest, CanBeCalledByAHost) {
  CallMethod(*designer, u"UserControl_Resize");
  EXPECT_EQ(Take(),
            (Lines{"PropertyChanged 3 400", "PropertyChanged 4 300", "Resize", "NeedResize 6000 4500"}));
}

TEST_F(OuterSizeTest, IncludesTheWindowFrameInTheOuterSize) {
  surface->frame = {10, 30};
  EXPECT_EQ(designer->OuterWidth(), 410);
  EXPECT_EQ(designer->OuterHeight(), 330);
  designer->SetOuterSize(610, 430);
  EXPECT_EQ(surface->Width(), 600);
  EXPECT_EQ(surface->Height(), 400);
}

TEST_F(OuterSizeTest, MeasuresInTheFormsScale) {
  surface->frame = {10, 30};
  Module().formScaleMode = ScaleMode::Twips;
  designer->ApplyScaleAndGrid();
  EXPECT_EQ(designer->OuterWidth(), 6150);
  designer->SetOuterSize(9000, 6000);
  EXPECT_EQ(surface->Width(), 9000 - 150);
  EXPECT_EQ(surface->Height(), 6000 - 450);
}

TEST_F(OuterSizeTest, IgnoresASizeThatIsAlreadySet) {
  designer->SetOuterSize(600, 400);
  designer->SuspendEvents(true);
  surface->Resize(100, 100);
  designer->SuspendEvents(false);
  Take();
  designer->SetOuterSize(600, 400);
  EXPECT_EQ(surface->Width(), 100);
  EXPECT_EQ(Take(), Lines{});
}

TEST_F(OuterSizeTest, FollowsThePropertiesOfTheForm) {
  CForm& form = dynamic_cast<CForm&>(Find(u"form"));
  form.SetWidth(640);
  EXPECT_EQ(surface->Width(), 640);
  form.SetPropertyValue(u"Height", 480);
  EXPECT_EQ(surface->Height(), 480);
  EXPECT_EQ(surface->Width(), 640);
}

TEST_F(OuterSizeTest, AcceptsZero) {
  surface->Resize(0, 0);
  EXPECT_EQ(Take().back(), "NeedResize 0 0");
  Draw(ControlTypeEnum::ctLabel, 0, 0, 0, 0);
  EXPECT_EQ(Names(), "Form, object_1");
}

}  // namespace
}  // namespace cardwright
