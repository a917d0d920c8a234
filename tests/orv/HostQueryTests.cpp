// SPDX-License-Identifier: MIT
#include "TestStore.h"

namespace cardwright::orv_tests {

class EmbeddedHostQueries : public TestStore {
 protected:
  std::string m_Path = MakeGeoPackage();
  Ref<EmbeddedHost> m_Host = Open(m_Path);
};

TEST_F(EmbeddedHostQueries, ListAllThemes) {
  EXPECT_EQ(Request(*m_Host, "THEME_NAMES"), "wells,areas,pipes,mixed,notes");
  EXPECT_EQ(Request(*m_Host, "THEME_ACTIVE"), "wells");
}

TEST_F(EmbeddedHostQueries, FindThemesInAnyCase) {
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |wells|"), "1");
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |WELLS|"), "1");
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |well|"), "0");
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER ||"), "0");
}

TEST_F(EmbeddedHostQueries, AcceptKeywordsInAnyCaseAndBlanksBetweenParts) {
  EXPECT_EQ(Request(*m_Host, "  theme_number|wells|  "), "1");
  EXPECT_EQ(Request(*m_Host, "Theme_Attribute   |wells|\t|point|   1 "), "NAME,0,20,0");
  EXPECT_EQ(Request(*m_Host, "THEME_ATTRIBUTE_NUMBER |wells||POINT|\r\n"), "12");
}

TEST_F(EmbeddedHostQueries, MatchTheFeatureTypeOfTheTheme) {
  struct Row {
    const char *theme, *type, *count;
  };
  const Row rows[] = {
      {"wells", "POINT", "12"},  {"wells", "", "12"},       {"wells", " ", "12"},      {"wells", "ARC", "0"},
      {"wells", "POLYGON", "0"}, {"areas", "POLYGON", "1"}, {"areas", "POINT", "0"},   {"pipes", "ARC", "1"},
      {"pipes", "POLYGON", "0"}, {"mixed", "POINT", "1"},   {"mixed", "POLYGON", "1"}, {"mixed", "ARC", "1"},
      {"notes", "", "1"},        {"notes", "POINT", "0"},   {"wells", "CIRCLE", ""},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Request(*m_Host, std::string("THEME_ATTRIBUTE_NUMBER |") + row.theme + "| |" + row.type + "|"),
              row.count)
        << row.theme << ' ' << row.type;
}

TEST_F(EmbeddedHostQueries, DescribeEachAttributeInFourFields) {
  const char* const records[] = {
      "NAME,0,20,0",  "DEPTH,1,0,15",  "LEVEL,1,0,15", "DIAMETER,1,11,0",
      "FLOORS,1,6,0", "SERIAL,1,20,0", "OPEN,1,1,0",   "INSPECTED,0,10,0",
      "SEEN,0,29,0",  "NOTES,0,0,0",   "CODE,0,5,0",   "say \"so\",0,0,0",
  };
  int number = 0;
  for (const char* record : records)
    EXPECT_EQ(Request(*m_Host, "THEME_ATTRIBUTE |wells| |POINT| " + std::to_string(++number)), record);
  for (const char* beyond : {"0", "13", "-1", "99999999999999999999", "x", ""})
    EXPECT_EQ(Request(*m_Host, std::string("THEME_ATTRIBUTE |wells| |POINT| ") + beyond), "") << beyond;
}

TEST_F(EmbeddedHostQueries, LeaveOutNamesThatTheCommandLanguageCannotExpress) {
  EXPECT_EQ(Request(*m_Host, "THEME_ATTRIBUTE_NAMES |wells| |POINT|"),
            "NAME,DEPTH,LEVEL,DIAMETER,FLOORS,SERIAL,OPEN,INSPECTED,SEEN,NOTES,CODE,say \"so\"");
  EXPECT_EQ(Request(*m_Host, "THEME_ATTRIBUTE_NAMES |wells| |ARC|"), "");
}

TEST_F(EmbeddedHostQueries, ReturnTheHandleOfTheHost) {
  EXPECT_EQ(Execute(*m_Host, "HWND_CONTROL"), "0");
  m_Host->SetHandle(-70000);
  EXPECT_EQ(Execute(*m_Host, "hwnd_control"), "-70000");
}

TEST_F(EmbeddedHostQueries, ReturnEveryTypeOfValueAsText) {
  struct Row {
    const char *name, *value;
  };
  const Row rows[] = {
      {"NAME", "Chiesa"},
      {"DEPTH", "61.25"},
      {"LEVEL", "0.5"},
      {"DIAMETER", "300"},
      {"FLOORS", "-2"},
      {"SERIAL", "9007199254740993"},
      {"OPEN", "1"},
      {"INSPECTED", "2026-05-04"},
      {"SEEN", "2026-05-04T10:20:30Z"},
      {"NOTES", "già\r\n|provata|"},
      {"say \"so\"", "so"},
      {"name", "Chiesa"},
      {"OVTARVOUNIQUEID", "3"},
      {"NOPE", ""},
      {"A,B", ""},
  };
  Select(*m_Host, "wells", "3");
  for (const Row& row : rows) EXPECT_EQ(Get(*m_Host, "wells", row.name), row.value) << row.name;
}

TEST_F(EmbeddedHostQueries, ReturnAnEmptyTextForNull) {
  Select(*m_Host, "wells", "2");
  for (const char* name : {"DEPTH", "DIAMETER", "INSPECTED", "SEEN", "NOTES"})
    EXPECT_EQ(Get(*m_Host, "wells", name), "") << name;
}

TEST_F(EmbeddedHostQueries, FormatSinglePrecisionWithoutNoise) {
  RunSql(m_Path,
         "UPDATE wells SET LEVEL = 0.100000001490116119384765625, DEPTH = 0.30000000000000004 WHERE fid = 3");
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "LEVEL"), "0.1");
  EXPECT_EQ(Get(*m_Host, "wells", "DEPTH"), "0.30000000000000004");
}

TEST_F(EmbeddedHostQueries, DoNotCallTheErrorHandler) {
  EXPECT_EQ(Request(*m_Host, "THEME_SELECTED_NUMBER |nowhere| |POINT|"), "");
  EXPECT_EQ(m_Host->LastError(), u"There is no theme \"nowhere\".");
  EXPECT_TRUE(m_Errors.empty());
  EXPECT_EQ(Request(*m_Host, "THEME_ACTIVE"), "wells");
  EXPECT_EQ(m_Host->LastError(), u"");
}

// Reading all features at once gives the same values as queries for each.
TEST_F(EmbeddedHostQueries, ReturnTheSameForAllFeaturesAtOnce) {
  const std::vector<Text> attributes = {u"NAME", u"DEPTH", u"none", u"SEEN", u"OPEN"};
  std::vector<std::int64_t> ids;
  m_Host->ReadFeatures(u"wells", attributes, [&](std::int64_t id, const std::vector<Text>& values) {
    ids.push_back(id);
    Select(*m_Host, "wells", std::to_string(id));
    ASSERT_EQ(values.size(), attributes.size());
    for (std::size_t at = 0; at < values.size(); ++at)
      EXPECT_EQ(values[at].ToUtf8(), Get(*m_Host, "wells", attributes[at].ToUtf8())) << id << ' ' << at;
  });
  EXPECT_EQ(ids, m_Host->FeatureIds(u"wells"));
  m_Host->ReadFeatures(u"nowhere", attributes, [](std::int64_t, const std::vector<Text>&) { FAIL(); });
}

TEST_F(EmbeddedHostQueries, ReadUnregisteredViewsAndTables) {
  RunSql(m_Path, "CREATE VIEW deep AS SELECT fid AS OGC_FID, NAME FROM wells WHERE DEPTH > 50");
  RunSql(m_Path, "CREATE TABLE loose(word TEXT(4), amount REAL)");
  RunSql(m_Path, "INSERT INTO loose VALUES ('one', 1.5)");
  const auto host = Open(m_Path);
  Select(*host, "deep", "3");
  EXPECT_EQ(Get(*host, "deep", "NAME"), "Chiesa");
  EXPECT_EQ(Set(*host, "deep", "NAME", "|x|"), "");
  EXPECT_NE(Finish(*host, "deep").find("view"), std::string::npos);
  Select(*host, "loose", "1");
  EXPECT_EQ(Set(*host, "loose", "word", "|two|"), "");
  EXPECT_EQ(Finish(*host, "loose"), "");
  EXPECT_EQ(Stored(m_Path, "loose", 1, "word"), "two");
}

}  // namespace cardwright::orv_tests
