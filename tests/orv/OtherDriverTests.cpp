// SPDX-License-Identifier: MIT
#include "TestStore.h"

namespace cardwright::orv_tests {

using EmbeddedHostOverOtherFormats = TestStore;

const std::vector<ColumnPlan> kColumns = {
    {"NAME", OFTString, 20},
    {"DEPTH", OFTReal, 8, 2},
    {"DIAMETER", OFTInteger, 5},
    {"INSPECTED", OFTDate},
};

TEST_F(EmbeddedHostOverOtherFormats, ReadsAndWritesAShapefile) {
  const std::string path = MakeSimple("ESRI Shapefile", "pozzi è", kColumns);
  auto host = Open(path);
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE |wells| |POINT| 1"), "NAME,0,20,0");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE |wells| |POINT| 2"), "DEPTH,1,8,2");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE |wells| |POINT| 3"), "DIAMETER,1,5,0");
  Select(*host, "wells", "1");
  EXPECT_EQ(Get(*host, "wells", "NAME"), "Chiesa");
  EXPECT_EQ(Get(*host, "wells", "DEPTH"), "61.25");
  EXPECT_EQ(Set(*host, "wells", "DEPTH", "62.5"), "");
  EXPECT_EQ(Set(*host, "wells", "INSPECTED", "|2026-02-28|"), "");
  EXPECT_EQ(Finish(*host, "wells"), "");
  EXPECT_EQ(Stored(path, "wells", 1, "DEPTH"), "62.50");
  EXPECT_EQ(Stored(path, "wells", 1, "INSPECTED"), "2026/02/28");
  EXPECT_EQ(Stored(path, "wells", 1, "NAME"), "Chiesa");
  EXPECT_EQ(Stored(path, "wells", 0, "NAME"), "Bruna");
  EXPECT_EQ(Geometry(path, "wells", 1), "POINT (3 4)");
}

TEST_F(EmbeddedHostOverOtherFormats, RejectsValuesThatAShapefileWouldRoundOrCut) {
  const std::string path = MakeSimple("ESRI Shapefile", "pozzi", kColumns);
  auto host = Open(path);
  const char* const rows[][2] = {
      {"DEPTH", "3.14159"},   {"DEPTH", "123456.5"},
      {"DIAMETER", "123456"}, {"NAME", "|123456789012345678901|"},
      {"NAME", "|ελληνικά|"},  // the file is in Latin 1
  };
  for (const auto& [name, value] : rows) {
    Select(*host, "wells", "1");
    Set(*host, "wells", "INSPECTED", "|2026-02-28|");
    Set(*host, "wells", name, value);
    EXPECT_NE(Finish(*host, "wells"), "") << value;
    EXPECT_EQ(Stored(path, "wells", 1, "INSPECTED"), "(null)") << value;
    EXPECT_EQ(Stored(path, "wells", 1, "NAME"), "Chiesa") << value;
    EXPECT_EQ(Stored(path, "wells", 1, "DEPTH"), "61.25") << value;
    EXPECT_EQ(Geometry(path, "wells", 1), "POINT (3 4)") << value;
  }
  Select(*host, "wells", "99");
  EXPECT_EQ(Request(*host, "THEME_SELECTED_NUMBER |wells| |POINT|"), "0");
}

TEST_F(EmbeddedHostOverOtherFormats, ReadsAndWritesGeoJson) {
  const std::string path = MakeSimple("GeoJSON", "pozzi.geojson",
                                      {{"NAME", OFTString}, {"DEPTH", OFTReal}, {"DIAMETER", OFTInteger}});
  auto host = Open(path);
  Execute(*host, "THEME_SELECTION_BYVALUE |wells| |POINT| NAME = Chiesa NEW");
  Execute(*host, "THEME_MOVEFIRST |wells| |POINT|");
  const std::string id = Get(*host, "wells", "OVTARVOUNIQUEID");
  ASSERT_NE(id, "");
  EXPECT_EQ(Set(*host, "wells", "NAME", "|già\r\n|fatta||"), "");
  EXPECT_EQ(Set(*host, "wells", "DIAMETER", ""), "");
  EXPECT_EQ(Finish(*host, "wells"), "");
  EXPECT_EQ(Stored(path, "wells", std::stoll(id), "NAME"), "già\r\n|fatta|");
  EXPECT_EQ(Stored(path, "wells", std::stoll(id), "DIAMETER"), "(null)");
  EXPECT_EQ(Stored(path, "wells", std::stoll(id), "DEPTH"), "61.25");
  EXPECT_EQ(Geometry(path, "wells", std::stoll(id)), "POINT (3 4)");
}

TEST_F(EmbeddedHostOverOtherFormats, MatchesWholeTextsByCase) {
  const std::string path = MakeSimple("ESRI Shapefile", "pozzi", kColumns);
  auto host = Open(path);
  const char* const rows[][2] = {{"NAME = Bruna NEW", "1"},
                                 {"NAME = BRUNA NEW", "0"},
                                 {"NAME = x\\' NEW", "0"},
                                 {"DEPTH = 61.250 NEW", "1"},
                                 {"INSPECTED = NEW", "2"}};
  for (const auto& [condition, count] : rows) {
    Execute(*host, std::string("THEME_SELECTION_BYVALUE |wells| |POINT| ") + condition);
    EXPECT_EQ(Request(*host, "THEME_SELECTED_NUMBER |wells| |POINT|"), count) << condition;
  }
}

TEST_F(EmbeddedHostOverOtherFormats, KeepsTheTimeZoneInPlainSqlite) {
  const std::string path = MakeSimple("SQLite", "pozzi.sqlite",
                                      {{"NAME", OFTString, 20},
                                       {"DEPTH", OFTReal},
                                       {"DIAMETER", OFTInteger},
                                       {"SEEN", OFTDateTime},
                                       {"HOUR", OFTTime}});
  auto host = Open(path);
  Select(*host, "wells", "2");
  EXPECT_EQ(Set(*host, "wells", "SEEN", "|2026-02-28T10:20:30|"), "");
  EXPECT_EQ(Set(*host, "wells", "HOUR", "|23:59|"), "");
  EXPECT_EQ(Set(*host, "wells", "NAME", "|Nuova|"), "");
  EXPECT_EQ(Finish(*host, "wells"), "");
  Select(*host, "wells", "2");
  EXPECT_EQ(Get(*host, "wells", "SEEN"), "2026-02-28T10:20:30");
  EXPECT_EQ(Get(*host, "wells", "HOUR"), "23:59:00");
  // The driver writes names in lower case.
  EXPECT_EQ(Set(*host, "wells", "HOUR", "|25:00|").rfind("ERROR: hour: ", 0), 0u);
  Finish(*host, "wells");
  EXPECT_EQ(Stored(path, "wells", 2, "NAME"), "Nuova");
  EXPECT_EQ(Geometry(path, "wells", 2), "POINT (3 4)");
}

}  // namespace cardwright::orv_tests
