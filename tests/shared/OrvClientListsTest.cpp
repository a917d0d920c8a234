// SPDX-License-Identifier: MIT
// The lists of themes and attributes that people choose from.

#include <gtest/gtest.h>

#include <chrono>

#include "automation/Printing.h"
#include "cardwright/shared/OrvClient.h"
#include "runtime/ScriptedHost.h"

namespace cardwright {
namespace {

using enum FeatureTypeEnum;

class OrvClientLists : public testing::Test {
 protected:
  /// "name:type" of the themes, joined by blanks; the number of the type, -1 for none.
  std::string Themes() {
    std::string all;
    for (const ListedTheme& theme : client.ListThemes())
      all += (all.empty() ? "" : " ") + theme.name.ToUtf8() + ":" +
             std::to_string(static_cast<int>(theme.featureType));
    return all;
  }
  /// "number name" of the attributes, joined by commas.
  std::string Attributes(const char16_t* theme = u"wells", FeatureTypeEnum type = ftPoint) {
    std::string all;
    for (const ListedAttribute& attribute : client.ListAttributes({theme, type}))
      all += (all.empty() ? "" : ",") + std::to_string(attribute.number) + " " + attribute.name.ToUtf8();
    return all;
  }

  Ref<ScriptedHost> host = MakeRef<ScriptedHost>();
  OrvClient client{host};
};

using Lines = std::vector<std::string>;

TEST_F(OrvClientLists, ListThemesWithTheirTypesByTwoRequests) {
  host->replies = {{"THEME_NAMES", "wells,rivers,parcels,notes,mixed"},
                   {"THEME_FEATURE_TYPES", "POINT,ARC,polygon,,ANY"}};
  EXPECT_EQ(Themes(), "wells:0 rivers:1 parcels:2 notes:-1 mixed:-1");
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NAMES", "R THEME_FEATURE_TYPES"}));
}

TEST_F(OrvClientLists, ListThemesOfAHostWithoutTypes) {
  host->replies = {{"THEME_NAMES", "wells,rivers"}};
  EXPECT_EQ(Themes(), "wells:-1 rivers:-1");
}

TEST_F(OrvClientLists, ListThemesOfAHostThatRefusesTypes) {
  host->replies = {{"THEME_NAMES", "wells,rivers"}};
  host->failsAt = "THEME_FEATURE_TYPES";
  EXPECT_EQ(Themes(), "wells:-1 rivers:-1");
}

TEST_F(OrvClientLists, TrimNamesAndLeaveOutEmptyAndDuplicateOnes) {
  host->replies = {{"THEME_NAMES", " wells ,,wells,  ,Città di Àrsita,Wells,wells"},
                   {"THEME_FEATURE_TYPES", "POINT,ARC,ARC,ARC,POLYGON,ARC,POINT"}};
  EXPECT_EQ(Themes(), "wells:0 Città di Àrsita:2 Wells:1") << "types stay with their names";
  host->replies["THEME_ATTRIBUTE_NAMES |wells| |POINT|"] = "NAME,,DEPTH,NAME, KIND";
  EXPECT_EQ(Attributes(), "1 NAME,3 DEPTH,5 KIND") << "numbers are the host's";
}

TEST_F(OrvClientLists, AreEmptyWithoutNamesOrConnection) {
  EXPECT_EQ(Themes(), "");
  EXPECT_EQ(host->Take(), Lines{"R THEME_NAMES"});
  host->replies["THEME_NAMES"] = ",,, ,";
  EXPECT_EQ(Themes(), "");
  EXPECT_TRUE(OrvClient::At(0).ListThemes().empty());
  EXPECT_TRUE(OrvClient::At(1).ListThemes().empty());
  EXPECT_TRUE(OrvClient::At(0).ListAttributes({u"wells", ftPoint}).empty());
}

TEST_F(OrvClientLists, AskForNoAttributesWithoutATheme) {
  host->Take();
  EXPECT_EQ(Attributes(u""), "");
  EXPECT_EQ(host->Take(), Lines{});
}

TEST_F(OrvClientLists, AskForAttributesByFeatureType) {
  Attributes(u"wells", ftArc);
  Attributes(u"wells", ftNone);
  EXPECT_EQ(host->Take(),
            (Lines{"R THEME_ATTRIBUTE_NAMES |wells| |ARC|", "R THEME_ATTRIBUTE_NAMES |wells| ||"}));
}

TEST_F(OrvClientLists, DescribeOneAttributeByItsNumber) {
  host->replies["THEME_ATTRIBUTE |wells| |POINT| 3"] = "Depth,1,10,2";
  const auto described = client.Describe({u"wells", ftPoint}, {u"DEPTH", 3});
  ASSERT_TRUE(described);
  EXPECT_EQ(described->type, AttributeTypeEnum::atNumeric);
  EXPECT_EQ(described->length, 10);
  EXPECT_FALSE(client.Describe({u"wells", ftPoint}, {u"NAME", 3})) << "it is another's record";
  EXPECT_FALSE(client.Describe({u"wells", ftPoint}, {u"NAME", 4})) << "no record";
}

TEST_F(OrvClientLists, CheckThatACreatedThemeExists) {
  EXPECT_FALSE(client.CreateTheme({u" lakes ", ftPolygon}));
  EXPECT_EQ(host->Take(), (Lines{"X THEME_CREATE |lakes| |POLYGON|", "R THEME_NUMBER |lakes|"}));
  host->replies["THEME_NUMBER |lakes|"] = "1";
  EXPECT_TRUE(client.CreateTheme({u"lakes", ftPolygon}));
}

TEST_F(OrvClientLists, RejectThemeNamesThatNoCommandCanHold) {
  for (const char16_t* name : {u"", u"   ", u"a|b", u"a,b", u"a\r\nb", u"a\x01"})
    EXPECT_FALSE(client.CreateTheme({name, ftPoint})) << Text(name).ToUtf8();
  EXPECT_EQ(host->Take(), Lines{});
}

TEST_F(OrvClientLists, StayFastForRepliesOfTenMegabytes) {
  const auto seconds = [&](const std::string& reply) {
    host->replies["THEME_NAMES"] = reply;
    host->replies["THEME_FEATURE_TYPES"] = reply;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_LE(client.ListThemes().size(), 65535U);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  };
  constexpr std::size_t kTenMegabytes = 10'000'000;
  EXPECT_LT(seconds(std::string(kTenMegabytes, ',')), 5);
  EXPECT_LT(seconds(std::string(kTenMegabytes, 'x')), 5);
  std::string numbered;
  for (int i = 0; numbered.size() < kTenMegabytes; ++i) numbered += std::to_string(i) + ",";
  EXPECT_LT(seconds(numbered), 5);
  EXPECT_EQ(client.ListThemes().size(), 65535U);
}

}  // namespace
}  // namespace cardwright
