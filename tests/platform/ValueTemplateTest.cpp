// SPDX-License-Identifier: MIT
#include "cardwright/platform/ValueTemplate.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "cardwright/automation/Locale.h"

namespace cardwright {
namespace {

constexpr OleColor kColor = Rgb(1, 128, 255);

FontValues Sample() { return {.name = u"Noto Sans", .size = 8.25, .bold = true, .strikethrough = true}; }

struct Case {
  const char* name;
  std::u16string_view mask;
  std::u16string_view filled;
};

class ColorTemplates : public testing::TestWithParam<Case> {};
INSTANTIATE_TEST_SUITE_P(, ColorTemplates,
                         testing::Values(Case{"TheComponents", u"%r% %g% %b%", u"1 128 255"},
                                         Case{"TheNumber", u"%c%", u"16744449"},
                                         Case{"AnyCase", u"%R%,%G%,%B%,%C%", u"1,128,255,16744449"},
                                         Case{"TheSameTwice", u"%r%%r%", u"11"}, Case{"Nothing", u"", u""},
                                         Case{"NoPlaceholder", u"100% red", u"100% red"},
                                         Case{"UnknownOnes", u"%x% %rr% %% %n%", u"%x% %rr% %% %n%"},
                                         Case{"OneInsideAnother", u"%sp%r%x%", u"%sp1x%"},
                                         Case{"DoubledMarks", u"%%r%%", u"%1%"},
                                         Case{"AnOpenEnd", u"%r%%r", u"1%r"}, Case{"OneMark", u"%", u"%"},
                                         Case{"Blanks", u"% r %", u"% r %"},
                                         Case{"Accents", u"ü%b%é", u"ü255é"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(ColorTemplates, AreFilled) {
  EXPECT_EQ(FillColorTemplate(GetParam().mask, kColor), GetParam().filled);
}

class FontTemplates : public testing::TestWithParam<Case> {};
INSTANTIATE_TEST_SUITE_P(
    , FontTemplates,
    testing::Values(
        Case{"TheName", u"|%n%|", u"|Noto Sans|"},
        Case{"TheSizeInThreeUnits", u"%s% %spx% %stw%", u"8.25 11 165"},
        Case{"TheStyles", u"%bold% %italic% %underline% %strikethrough%", u"True False False True"},
        Case{"TheColor", u"%r% %g% %b%", u"1 128 255"},
        Case{"AnyCase", u"%N% %SpX% %Bold%", u"Noto Sans 11 True"},
        Case{"NoNumberOfTheColor", u"%c%", u"%c%"},
        Case{"TheWholeOfANewSelector", u"|%n%| %spx% %r% %g% %b% %bold% %italic% %underline% %strikethrough%",
             u"|Noto Sans| 11 1 128 255 True False False True"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(FontTemplates, AreFilled) {
  EXPECT_EQ(FillFontTemplate(GetParam().mask, Sample(), kColor), GetParam().filled);
}

TEST(FontTemplate, RoundsSizesToTheNearestAndHalvesToTheEvenNumber) {
  const auto filled = [](double size) {
    FontValues font;
    font.size = size;
    return FillFontTemplate(u"%spx% %stw%", font, 0);
  };
  EXPECT_EQ(filled(8), u"11 160");       // 10.67 pixels
  EXPECT_EQ(filled(10), u"13 200");      // 13.33
  EXPECT_EQ(filled(9.375), u"12 188");   // 12.5 pixels, 187.5 twips
  EXPECT_EQ(filled(10.125), u"14 202");  // 13.5, 202.5
}

TEST(FontTemplate, WritesSizesWithAPointInEveryLocale) {
  const InLocale italian(u"it-it");
  EXPECT_EQ(FillFontTemplate(u"%s%", Sample(), 0), u"8.25");
}

TEST(FontTemplate, DoesNotExpandInsertedValues) {
  FontValues font = Sample();
  font.name = u"%s% %r%";
  EXPECT_EQ(FillFontTemplate(u"%n%", font, kColor), u"%s% %r%");
}

TEST(FontTemplate, IsFilledQuicklyWithAMillionPercentSigns) {
  const std::u16string marks(1'000'000, u'%');
  EXPECT_EQ(FillFontTemplate(marks, Sample(), 0), marks);
}

}  // namespace
}  // namespace cardwright
