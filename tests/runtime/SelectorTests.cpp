// SPDX-License-Identifier: MIT
// Selectors in a form that is filled in, with a host behind them.

#include <chrono>

#include "cardwright/platform/SelectorWidgets.h"
#include "runtime/FormTest.h"

namespace cardwright {
namespace {

const std::string kTypes =
    "ItemsNumber=3\r\nValue_Item_1=p\r\nText_Item_1=Points\r\nValue_Item_2=a\r\nText_Item_2=Arcs\r\n"
    "Value_Item_3=g\r\nText_Item_3=Polygons\r\n";

class Selectors : public FormTest {
 protected:
  Selectors() {
    host->SetTheme({{"theme", 0, 20, 0, "RIVERS"},
                    {"field", 0, 20, 0, "length"},
                    {"photo", 0, 80, 0, "/data/a.png"},
                    {"font", 0, 80, 0, "|Arial| 12"},
                    {"color", 0, 20, 0, "1 2 3"}});
    host->replies["THEME_NAMES"] = "wells,rivers";
    host->replies["THEME_FEATURE_TYPES"] = "POINT,ARC";
    host->replies["THEME_ATTRIBUTE_NAMES |wells| |POINT|"] = "name,depth";
    host->replies["THEME_ATTRIBUTE_NAMES |rivers| |POINT|"] = "spring";
    host->replies["THEME_ATTRIBUTE_NAMES |rivers| |ARC|"] = "name,Length";
  }

  void ReadLinked(const std::string& more = {}) {
    ASSERT_TRUE(Read({{"themeselector", "thm", "Attribute=theme\r\n"},
                      {"ComboBox", "cbo", kTypes},
                      {"attributeselector", "att",
                       "ThemeSelectorName=THM\r\nFeatureSelectorName=cbo\r\nFeatureType= 1\r\n"
                       "Attribute=field\r\n" +
                           more}}));
  }
  /// What the attribute selector lists.
  std::string Listed() {
    std::string all;
    auto& list = WidgetOf<AttributeSelectorWidget>(u"att");
    for (int i = 0; i < list.ListCount(); ++i) all += (i ? "," : "") + list.ListText(i).ToUtf8();
    return all;
  }
  std::string Written(const std::string& name) {
    std::string value;
    for (const std::string& line : host->lines)
      if (const std::string start = Set(name, ""); line.starts_with(start)) value = line.substr(start.size());
    return value;
  }
};

TEST_F(Selectors, ListTheThemesWhenAProjectIsRead) {
  ASSERT_TRUE(ReadWhole({{"themeselector", "thm", "Text=Rivers\r\n"}}));
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NUMBER |wells|", "R THEME_NAMES", "R THEME_FEATURE_TYPES"}));
  EXPECT_EQ(Row(u"thm", u"Text"), u"rivers");
  EXPECT_EQ(WidgetOf<ThemeSelectorWidget>(u"thm").ListCount(), 2);
}

TEST_F(Selectors, AskForNothingWithoutAConnection) {
  SharedHost().SetHandle(0);
  ReadLinked();
  EXPECT_EQ(host->Take(), Lines{});
  EXPECT_EQ(WidgetOf<ThemeSelectorWidget>(u"thm").ListCount(), 0);
}

TEST_F(Selectors, FollowTheThemeAndTheFeatureType) {
  ReadLinked();
  EXPECT_EQ(Listed(), "");
  SetRow(u"thm", u"Text", u"rivers");
  EXPECT_EQ(Listed(), "name,Length") << "the selector's own feature type, as none is chosen";
  SetRow(u"att", u"Text", u"NAME");
  EXPECT_EQ(Row(u"att", u"Text"), u"name");
  SetRow(u"cbo", u"Text", u"Points");
  EXPECT_EQ(Listed(), "spring");
  EXPECT_EQ(Row(u"att", u"Text"), u"");
  SetRow(u"thm", u"Text", u"wells");
  EXPECT_EQ(Listed(), "name,depth");
}

TEST_F(Selectors, AreLinkedToControlsThatComeLaterInTheProject) {
  ASSERT_TRUE(Read({{"attributeselector", "att", "ThemeSelectorName=thm\r\nFeatureType= 1\r\n"},
                    {"themeselector", "thm", "Text=rivers\r\n"}}));
  EXPECT_EQ(Listed(), "name,Length");
}

TEST_F(Selectors, StayLinkedWhenTheirControlsAreRenamed) {
  ReadLinked();
  SetRow(u"thm", u"Name", u"theme");
  SetRow(u"cbo", u"Name", u"kinds");
  EXPECT_EQ(Row(u"att", u"ThemeSelectorName"), u"theme");
  EXPECT_EQ(Row(u"att", u"FeatureSelectorName"), u"kinds");
  SetRow(u"theme", u"Text", u"rivers");
  EXPECT_EQ(Listed(), "name,Length");
}

TEST_F(Selectors, GetTheValuesOfAFeature) {
  ReadLinked();
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"thm", u"Text"), u"rivers");
  EXPECT_EQ(Row(u"att", u"Text"), u"Length");
}

TEST_F(Selectors, GetTheAttributeThoughItsThemeComesLater) {
  ReadLinked();
  SetRow(u"thm", u"Name", u"theme");  // and now comes after the others
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"theme", u"Text"), u"rivers");
  EXPECT_EQ(Row(u"att", u"Text"), u"Length");
  host->Take();
  ClickOk();
  EXPECT_EQ(Written("field"), "|Length|");
}

TEST_F(Selectors, BeginWithTheAttributeOfTheProject) {
  ASSERT_TRUE(
      Read({{"attributeselector", "att", "ThemeSelectorName=thm\r\nFeatureType= 1\r\nText=length\r\n"},
            {"themeselector", "thm", "Text=rivers\r\n"}}));
  EXPECT_EQ(Row(u"att", u"Text"), u"Length");
}

TEST_F(Selectors, GetPathsAndKeepFontsAndColorsAsTheyAre) {
  ASSERT_TRUE(Read({{"resourceselector", "res", "Attribute=photo\r\n"},
                    {"fontselector", "fnt", "Attribute=font\r\nFontName=Courier\r\n"},
                    {"colorselector", "col", "Attribute=color\r\nColor= 255\r\n"}}));
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"res", u"Path"), u"/data/a.png");
  EXPECT_EQ(Control(u"fnt").GetFont()->Values().name, u"Courier");
  EXPECT_EQ(Row(u"col", u"Color"), u"255");
}

TEST_F(Selectors, WriteWhatTheirTemplatesMakeOfThem) {
  ASSERT_TRUE(Read({{"themeselector", "thm", "Attribute=theme\r\n"},
                    {"resourceselector", "res", "Attribute=photo\r\n"},
                    {"fontselector", "fnt",
                     "Attribute=font\r\nFontName=Courier\r\nFontSize= 12\r\nMaskValue=|%N%| %spx%\r\n"},
                    {"colorselector", "col", "Attribute=color\r\nColor= 255\r\n"}}));
  form->SetFeatureID("7");
  SetRow(u"res", u"Path", u"/data/b.png");
  host->Take();
  ClickOk();
  EXPECT_EQ(Written("photo"), "|/data/b.png|");
  EXPECT_EQ(Written("font"), "||Courier| 16|");
  EXPECT_EQ(Written("color"), "|255 0 0|");
  EXPECT_EQ(Written("theme"), "|rivers|");
}

TEST_F(Selectors, AreNeededByTheirPathOrText) {
  const std::string needed = "IsNeeded=True\r\nAttribute=";
  ASSERT_TRUE(
      Read({{"resourceselector", "res", needed + "photo\r\n"},
            {"themeselector", "thm", needed + "theme\r\n"},
            {"attributeselector", "att", needed + "field\r\nThemeSelectorName=thm\r\nFeatureType= 1\r\n"}}));
  const auto missing = [&] {
    ClickOk();
    const Lines shown = boxes.Take();
    return shown.empty() ? std::string() : shown.front();
  };
  const auto message = [](const std::string& name) {
    return "WARNING!|The attribute " + name + " must be compiled!|exclamation";
  };
  EXPECT_EQ(missing(), message("photo"));
  SetRow(u"res", u"Path", u"/data");
  EXPECT_EQ(missing(), message("theme"));
  SetRow(u"thm", u"Text", u"rivers");
  EXPECT_EQ(missing(), message("field"));
  SetRow(u"att", u"Text", u"name");
  EXPECT_EQ(missing(), "");
}

TEST_F(Selectors, OfFontsAndColorsAreJudgedByTheFieldBefore) {
  const std::string needed = "IsNeeded=True\r\n";
  ASSERT_TRUE(Read({{"colorselector", "col", needed + "Attribute=color\r\n"},
                    {"TextBox", "txt", needed + "Text=x\r\n"},
                    {"fontselector", "fnt", needed}}));
  ClickOk();
  EXPECT_EQ(boxes.Take(), Lines{"WARNING!|The attribute color must be compiled!|exclamation"})
      << "the first has no field before it";
  SetRow(u"col", u"IsNeeded", u"False");
  ClickOk();
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_F(Selectors, SurviveAHostThatFailsTheirRequests) {
  host->failsAt = "THEME_NAMES";
  ReadLinked();
  EXPECT_EQ(WidgetOf<ThemeSelectorWidget>(u"thm").ListCount(), 0);
  host->failsAt = "THEME_ATTRIBUTE_NAMES |rivers| |ARC|";
  WidgetOf<ThemeSelectorWidget>(u"thm").RefreshThemes();
  SetRow(u"thm", u"Text", u"rivers");
  EXPECT_EQ(Row(u"thm", u"Text"), u"rivers");
  EXPECT_EQ(Listed(), "");
}

TEST_F(Selectors, AreFilledSoonWithTenThousandThemesAndAThousandAttributes) {
  std::string themes, types, attributes;
  for (int i = 0; i < 10'000; ++i) {
    themes += "theme" + std::to_string(i) + ",";
    types += "ARC,";
    if (i < 1'000) attributes += "attribute" + std::to_string(i) + ",";
  }
  host->replies["THEME_NAMES"] = themes + "rivers";
  host->replies["THEME_FEATURE_TYPES"] = types + "ARC";
  host->replies["THEME_ATTRIBUTE_NAMES |rivers| |ARC|"] = attributes;
  ReadLinked();
  const auto begin = std::chrono::steady_clock::now();
  WidgetOf<ThemeSelectorWidget>(u"thm").RefreshThemes();
  SetRow(u"thm", u"Text", u"rivers");
  SetRow(u"att", u"Text", u"attribute999");
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  EXPECT_EQ(WidgetOf<ThemeSelectorWidget>(u"thm").ListCount(), 10'001);
  EXPECT_EQ(Row(u"att", u"Text"), u"attribute999");
  RecordProperty("milliseconds", std::to_string(seconds * 1000));
  EXPECT_LT(seconds, 1) << "with a sanitizer on a slow machine";
}

}  // namespace
}  // namespace cardwright
