// SPDX-License-Identifier: MIT
#include "TestStore.h"

namespace cardwright::orv_tests {

class EmbeddedHostSelection : public TestStore {
 protected:
  /// Selects by a condition and returns the count.
  std::string Count(const std::string& condition) {
    Execute(*m_Host, "THEME_SELECTION_BYVALUE |wells| |POINT| " + condition);
    return Request(*m_Host, "THEME_SELECTED_NUMBER |wells| |POINT|");
  }

  std::string m_Path = MakeGeoPackage();
  Ref<EmbeddedHost> m_Host = Open(m_Path);
};

TEST_F(EmbeddedHostSelection, FindsAFeatureByItsId) {
  struct Row {
    const char *condition, *count;
  };
  const Row rows[] = {
      {"OVTARVOUNIQUEID = 3 NEW", "1"},
      {"ovtarvouniqueid=3 new", "1"},
      {"OVTARVOUNIQUEID =  3  NEW ", "1"},
      {"OVTARVOUNIQUEID = +3 NEW", "1"},
      {"OVTARVOUNIQUEID = 03 NEW", "1"},
      {"OVTARVOUNIQUEID = |3| NEW", "1"},
      {"OVTARVOUNIQUEID = 4 NEW", "0"},
      {"OVTARVOUNIQUEID = 0 NEW", "0"},
      {"OVTARVOUNIQUEID = -1 NEW", "0"},
      {"OVTARVOUNIQUEID = 3x NEW", "0"},
      {"OVTARVOUNIQUEID = three NEW", "0"},
      {"OVTARVOUNIQUEID = 3.0 NEW", "0"},
      {"OVTARVOUNIQUEID = NEW", "0"},
      {"OVTARVOUNIQUEID =  NEW", "0"},
      {"OVTARVOUNIQUEID = 99999999999999999999 NEW", "0"},
      {"OVTARVOUNIQUEID = 9223372036854775807 NEW", "0"},
      {"OVTARVOUNIQUEID = 3 OR 1 = 1 NEW", "0"},
  };
  for (const Row& row : rows) EXPECT_EQ(Count(row.condition), row.count) << row.condition;
  EXPECT_TRUE(m_Errors.empty());
}

TEST_F(EmbeddedHostSelection, FindsFeaturesByAnyAttribute) {
  struct Row {
    const char *condition, *count;
  };
  const Row rows[] = {
      {"NAME = Chiesa NEW", "1"},
      {"name = |Chiesa| NEW", "1"},
      {"|NAME| = Però NEW", "1"},
      {"NAME = chiesa NEW", "0"},
      {"DEPTH = 61.25 NEW", "1"},
      {"DEPTH = 61.250 NEW", "1"},
      {"DEPTH = 61,25 NEW", "0"},
      {"DEPTH = NEW", "1"},
      {"DEPTH = deep NEW", "0"},
      {"SERIAL = 9007199254740993 NEW", "1"},
      {"OPEN = 1 NEW", "1"},
      {"INSPECTED = 2026-05-04 NEW", "1"},
      {"SEEN = 2026-05-04T10:20:30Z NEW", "1"},
      {"SEEN = 2026-05-04T12:20:30+02:00 NEW", "1"},
      {"NAME = ' OR 1=1 -- NEW", "0"},
      {"say \"so\" = so NEW", "1"},
      {"CODE = NEW", "0"},
      {"LEVEL = | | NEW", "2"},
  };
  for (const Row& row : rows) EXPECT_EQ(Count(row.condition), row.count) << row.condition;
  EXPECT_TRUE(m_Errors.empty());
}

TEST_F(EmbeddedHostSelection, MoveFirstMakesTheFirstFeatureCurrent) {
  EXPECT_EQ(Count("OPEN = NEW"), "2");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "") << "nothing is current before THEME_MOVEFIRST";
  EXPECT_EQ(Request(*m_Host, "THEME_CURRENT_ISVALID |wells| |POINT|"), "0");
  Execute(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Request(*m_Host, "THEME_CURRENT_ISVALID |wells| |POINT|"), "1");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Bruna");
}

TEST_F(EmbeddedHostSelection, IsClearedBySelectionNone) {
  Select(*m_Host, "wells", "3");
  Finish(*m_Host, "wells");
  EXPECT_EQ(Request(*m_Host, "THEME_SELECTED_NUMBER |wells| |POINT|"), "0");
  EXPECT_EQ(Request(*m_Host, "THEME_CURRENT_ISVALID |wells| |POINT|"), "0");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "");
  Execute(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "");
}

TEST_F(EmbeddedHostSelection, IsEmptyAfterASearchThatFindsNothing) {
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Count("OVTARVOUNIQUEID = 4 NEW"), "0");
  Execute(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Request(*m_Host, "THEME_CURRENT_ISVALID |wells| |POINT|"), "0");
}

TEST_F(EmbeddedHostSelection, IsSeparateForEachTheme) {
  Select(*m_Host, "wells", "3");
  Select(*m_Host, "areas", "1");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Chiesa");
  EXPECT_EQ(Get(*m_Host, "areas", "NAME"), "Nord");
}

TEST_F(EmbeddedHostSelection, SelectsNothingOfAnotherFeatureType) {
  Execute(*m_Host, "THEME_SELECTION_BYVALUE |wells| |ARC| OVTARVOUNIQUEID = 3 NEW");
  EXPECT_EQ(Request(*m_Host, "THEME_SELECTED_NUMBER |wells| |ARC|"), "0");
  EXPECT_EQ(Request(*m_Host, "THEME_SELECTED_NUMBER |wells| |POINT|"), "0");
}

TEST_F(EmbeddedHostSelection, ReadsTheFeatureAgainEachTime) {
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Chiesa");
  RunSql(m_Path, "UPDATE wells SET NAME = 'Altra' WHERE fid = 3");
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Altra");
  RunSql(m_Path, "UPDATE wells SET NAME = 'Terza' WHERE fid = 3");
  Execute(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Terza");
  RunSql(m_Path, "DELETE FROM wells WHERE fid = 3");
  Execute(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Request(*m_Host, "THEME_CURRENT_ISVALID |wells| |POINT|"), "0");
}

TEST_F(EmbeddedHostSelection, KeepsNoLock) {
  Count("OPEN = NEW");
  Select(*m_Host, "wells", "3");
  Get(*m_Host, "wells", "NAME");
  const auto other = OpenRaw(m_Path, true);
  if (OGRLayer* const result = other->ExecuteSQL("PRAGMA busy_timeout=0", nullptr, nullptr))
    other->ReleaseResultSet(result);
  CPLErrorReset();
  other->ExecuteSQL("UPDATE wells SET NAME = 'Altra' WHERE fid = 3", nullptr, nullptr);
  EXPECT_EQ(CPLGetLastErrorType(), CE_None) << CPLGetLastErrorMsg();
}

}  // namespace cardwright::orv_tests
