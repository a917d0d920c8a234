// SPDX-License-Identifier: MIT
// The texts that hosts get, to the byte, and how their replies are read.

#include "cardwright/shared/OrvClient.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "cardwright/shared/ModuleState.h"
#include "runtime/ScriptedHost.h"
#include "shared/NamedObject.h"

namespace cardwright {
namespace {

using enum AttributeTypeEnum;
using enum FeatureTypeEnum;
using Sent = std::vector<std::string>;

class OrvClientTest : public testing::Test {
 protected:
  ~OrvClientTest() override { Module().decimalSeparator = FindDecimalSeparator(); }

  Ref<ScriptedHost> host = MakeRef<ScriptedHost>();
  OrvClient client{host};
  const FeatureClass wells{u"wells", ftPoint};
};

TEST_F(OrvClientTest, SendsTheTextsThatHostsParse) {
  client.SelectByValue(wells, u"7");
  client.SelectedNumber(wells);
  client.MoveFirst(wells);
  client.CurrentIsValid(wells);
  client.GetAttribute(wells, u"name");
  client.SelectNone(wells);
  client.AttributeNames(wells);
  client.Attribute(wells, 2);
  client.ThemeNumber(u"wells");
  client.ActiveTheme();
  client.SuspendRedraw();
  client.ResumeRedraw();
  client.Redraw();
  client.ConnectionHandle();
  EXPECT_EQ(host->Take(),
            (Sent{"X THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 7 NEW",
                  "R THEME_SELECTED_NUMBER |wells| |POINT|", "X THEME_MOVEFIRST |wells| |POINT|",
                  "R THEME_CURRENT_ISVALID |wells| |POINT|", "R THEME_GET_ATTRIBUTE |wells| |POINT| |name|",
                  "X THEME_SELECTION_NONE |wells| |POINT|", "R THEME_ATTRIBUTE_NAMES |wells| |POINT|",
                  "R THEME_ATTRIBUTE |wells| |POINT| 2", "R THEME_NUMBER |wells|", "R THEME_ACTIVE",
                  "X APPLICATION_FLAGREDRAW OFF", "X APPLICATION_FLAGREDRAW ON", "X APPLICATION_REDRAW",
                  "X HWND_CONTROL"}));
}

TEST_F(OrvClientTest, NamesFeatureTypesByTheHostsWords) {
  for (const FeatureTypeEnum type : {ftNone, ftPoint, ftArc, ftPolygon}) client.MoveFirst({u"t", type});
  EXPECT_EQ(host->Take(), (Sent{"X THEME_MOVEFIRST |t| ||", "X THEME_MOVEFIRST |t| |POINT|",
                                "X THEME_MOVEFIRST |t| |ARC|", "X THEME_MOVEFIRST |t| |POLYGON|"}));
}

TEST_F(OrvClientTest, PutsCharactersBetweenBarsAndABlankForNone) {
  const AttributeRecord name{.name = u"name", .type = atCharacter};
  client.SetAttribute(wells, name, u"Deep well");
  client.SetAttribute(wells, name, u"");
  EXPECT_EQ(host->Take(), (Sent{"X THEME_SET_ATTRIBUTE |wells| |POINT| |name| |Deep well|",
                                "X THEME_SET_ATTRIBUTE |wells| |POINT| |name| | |"}));
}

TEST_F(OrvClientTest, SendsNumbersWithAPoint) {
  const AttributeRecord depth{.name = u"depth", .type = atNumeric};
  Module().decimalSeparator = u",";
  client.SetAttribute(wells, depth, u"3,14");
  client.SetAttribute(wells, depth, u"");
  EXPECT_EQ(host->Take(), (Sent{"X THEME_SET_ATTRIBUTE |wells| |POINT| |depth| 3.14",
                                "X THEME_SET_ATTRIBUTE |wells| |POINT| |depth| "}));
}

TEST_F(OrvClientTest, FillsInPlaceholdersThatAValueHolds) {
  client.GetAttribute({u"%%ft%%", ftArc}, u"%%na%%");
  EXPECT_EQ(host->Take(), Sent{"R THEME_GET_ATTRIBUTE |ARC| |ARC| |%%na%%|"});
}

TEST_F(OrvClientTest, ReadsNumbersFromTheStartOfAReply) {
  const std::pair<const char*, double> replies[] = {
      {"", 0}, {"3", 3}, {"-1", -1}, {"False", 0}, {"2 of 5", 2}};
  for (const auto& [reply, number] : replies) {
    host->replies["THEME_NUMBER |wells|"] = reply;
    EXPECT_EQ(client.ThemeNumber(u"wells"), number) << reply;
    host->replies["THEME_CURRENT_ISVALID |wells| |POINT|"] = reply;
    EXPECT_EQ(client.CurrentIsValid(wells), number != 0) << reply;
  }
}

TEST_F(OrvClientTest, ReadsAttributeRecordsOfFourFields) {
  host->SetTheme({{"name", 0, 20, 0, ""}, {"flow", 1, 8, 2, ""}});
  const std::vector<AttributeRecord> expected = {{u"name", atCharacter, 20, 0}, {u"flow", atNumeric, 8, 2}};
  EXPECT_EQ(client.Attributes(wells), expected);
  host->replies["THEME_ATTRIBUTE |wells| |POINT| 2"] = "flow, 1 bits,-5,99999999999";
  EXPECT_EQ(client.Attributes(wells).back(), (AttributeRecord{u"flow", atNumeric, -5, 0}));
  host->replies["THEME_ATTRIBUTE |wells| |POINT| 2"] = ",,,";
  EXPECT_EQ(client.Attributes(wells).back(), AttributeRecord());
  host->replies["THEME_ATTRIBUTE |wells| |POINT| 2"] = "flow,1,8";
  EXPECT_EQ(client.Attributes(wells).back(), AttributeRecord()) << "no record, but counted";
  host->replies["THEME_ATTRIBUTE |wells| |POINT| 2"] = "";
  EXPECT_EQ(client.Attributes(wells).size(), 1U);
}

TEST_F(OrvClientTest, SplitsAttributeNamesAtCommas) {
  EXPECT_EQ(client.AttributeNames(wells), std::vector<Text>{});
  host->replies["THEME_ATTRIBUTE_NAMES |wells| |POINT|"] = "name, depth,,flow";
  EXPECT_EQ(client.AttributeNames(wells), (std::vector<Text>{u"name", u" depth", u"", u"flow"}));
}

TEST_F(OrvClientTest, OfAHandleFollowsItsConnection) {
  const std::int32_t handle = Module().connections.Register(host);
  OrvClient byHandle = OrvClient::At(handle);
  byHandle.Redraw();
  EXPECT_EQ(host->Take(), Sent{"X APPLICATION_REDRAW"});
  Module().connections.Close(handle);
  byHandle.Redraw();
  EXPECT_EQ(byHandle.ActiveTheme(), u"");
  EXPECT_EQ(host->Take(), Sent{});
}

TEST_F(OrvClientTest, OfTheThreadFollowsItsHandle) {
  const std::int32_t handle = Module().connections.Register(host);
  OrvClient shared = OrvClient::Shared();
  shared.Redraw();
  SharedHost().SetHandle(handle);
  shared.Redraw();
  SharedHost().SetHandle(0);
  Module().connections.Close(handle);
  EXPECT_EQ(host->Take(), Sent{"X APPLICATION_REDRAW"});
}

}  // namespace
}  // namespace cardwright
