// SPDX-License-Identifier: MIT
#include "cardwright/model/CColor.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "shared/FakeDesktop.h"

namespace cardwright {
namespace {

std::string Components(const CColor& color) {
  return std::to_string(color.m_Red) + " " + std::to_string(color.m_Green) + " " +
         std::to_string(color.m_Blue);
}

std::string Components(OleColor number) {
  const auto color = MakeRef<CColor>();
  color->SetColor(number);
  return Components(*color);
}

TEST(CColor, SplitsANumberIntoComponents) {
  EXPECT_EQ(Components(0), "0 0 0");
  EXPECT_EQ(Components(0xFF), "255 0 0");
  EXPECT_EQ(Components(0x10203), "3 2 1");
  EXPECT_EQ(Components(0xFFFFFF), "255 255 255");
}

TEST(CColor, ResolvesASystemColor) {
  FakeDesktop desktop;
  desktop.systemColors[ToOleColor(SystemColor::ButtonFace)] = Rgb(10, 20, 30);
  EXPECT_EQ(Components(ToOleColor(SystemColor::ButtonFace)), "10 20 30");
}

TEST(CColor, TakesTheIndexOfASystemColorFromItsLastDigits) {
  FakeDesktop desktop;
  desktop.systemColors[ToOleColor(SystemColor::ButtonFace)] = Rgb(10, 20, 30);
  EXPECT_EQ(Components(0x0100000F), "10 20 30") << "seven digits";
  EXPECT_EQ(Components(0x1200000F), "10 20 30") << "eight digits";
}

TEST(CColor, IsBlackForASystemColorWithoutADesktop) {
  EXPECT_EQ(Components(ToOleColor(SystemColor::ButtonFace)), "0 0 0");
}

TEST(CColor, ComposesTheNumberWithoutAlpha) {
  const auto color = MakeRef<CColor>();
  LetProperty(*color, u"Red", 1);
  LetProperty(*color, u"green", 2);
  LetProperty(*color, u"BLUE", 3);
  LetProperty(*color, u"Alpha", 200);
  EXPECT_EQ(ToText(GetProperty(*color, u"Color")), u"197121");
  EXPECT_EQ(ToText(GetProperty(*color, u"Alpha")), u"200");
  LetProperty(*color, u"Color", 255);
  EXPECT_EQ(Components(*color), "255 0 0");
  EXPECT_EQ(color->m_Alpha, 200);
}

TEST(CColor, RejectsValuesOutsideAByte) {
  const auto color = MakeRef<CColor>();
  EXPECT_EQ(ErrorOf([&] { LetProperty(*color, u"Red", 256); }), 6);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*color, u"Red", -1); }), 6);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*color, u"Red", u"red"); }), 13);
  EXPECT_EQ(Components(*color), "0 0 0");
}

}  // namespace
}  // namespace cardwright
