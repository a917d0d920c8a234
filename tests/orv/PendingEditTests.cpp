// SPDX-License-Identifier: MIT
#include <chrono>

#include "TestStore.h"

namespace cardwright::orv_tests {

class EmbeddedHostEdits : public TestStore {
 protected:
  /// Gives feature 3 of wells a value and flushes it. Returns the reply of the command that flushes.
  std::string Store(const std::string& name, const std::string& value) {
    Select(*m_Host, "wells", "3");
    Set(*m_Host, "wells", name, value);
    return Finish(*m_Host, "wells");
  }

  std::string m_Path = MakeGeoPackage();
  Ref<EmbeddedHost> m_Host = Open(m_Path);
};

struct Taken {
  const char *name, *value, *stored;
};

TEST_F(EmbeddedHostEdits, AcceptsValuesThatTheColumnHolds) {
  const Taken rows[] = {
      {"NAME", "|Nuovo pozzo|", "Nuovo pozzo"},
      {"NAME", "|12345678901234567890|", "12345678901234567890"},
      {"NAME", "|èèèèèèèèèèèèèèèèèèèè|", "èèèèèèèèèèèèèèèèèèèè"},
      {"NAME", "|😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀|", "😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀"},
      {"NAME", "|O'Brien \"x\" \\|", "O'Brien \"x\" \\"},
      {"NAME", "|'); DROP TABLE a|", "'); DROP TABLE a"},
      {"NAME", "|a|b||c|", "a|b||c"},
      {"NAME", "|||", "|"},
      {"NAME", "|one\r\ntwo\n|", "one\r\ntwo\n"},
      {"NAME", "|  x  |", "  x  "},
      {"NAME", "plain", "plain"},
      {"NAME", "||", ""},
      {"NAME", "| |", "(null)"},
      {"DEPTH", "12", "12"},
      {"DEPTH", " 12.5 ", "12.5"},
      {"DEPTH", "-.5", "-0.5"},
      {"DEPTH", "+3.", "3"},
      {"DEPTH", "1e3", "1000"},
      {"DEPTH", "|7.25|", "7.25"},
      {"DEPTH", "0.30000000000000004", "0.3"},
      {"DEPTH", "", "(null)"},
      {"DEPTH", "1", "1"},
      {"DEPTH", "| |", "(null)"},
      {"DIAMETER", "2147483647", "2147483647"},
      {"DIAMETER", "-2147483648", "-2147483648"},
      {"DIAMETER", "+7.000", "7"},
      {"DIAMETER", "", "(null)"},
      {"FLOORS", "32767", "32767"},
      {"SERIAL", "9223372036854775807", "9223372036854775807"},
      {"SERIAL", "-9223372036854775808", "-9223372036854775808"},
      {"OPEN", "0", "0"},
      {"OPEN", "1", "1"},
      {"INSPECTED", "|2024-02-29|", "2024/02/29"},
      {"INSPECTED", "| 2024-02-28 |", "2024/02/28"},
      {"INSPECTED", "| |", "(null)"},
      {"SEEN", "|2026-02-28T23:59:58Z|", "2026/02/28 23:59:58+00"},
      {"SEEN", "|2026-03-01 00:30+02:00|", "2026/02/28 22:30:00+00"},
      {"SEEN", "|2026-12-31T23:00:00.125-0130|", "2027/01/01 00:30:00.125+00"},
      {"SEEN", "|2026-02-28|", "2026/02/28 00:00:00+00"},
      {"say \"so\"", "|quoted|", "quoted"},
      {"CODE", "|ABCDE|", "ABCDE"},
      {"CODE", "||", ""},
      {"CODE", "| |", ""},  // Null is not allowed, but the present value reads as "" already
  };
  for (const Taken& row : rows) {
    EXPECT_EQ(Store(row.name, row.value), "") << row.name << ' ' << row.value;
    EXPECT_EQ(Stored(m_Path, "wells", 3, row.name), row.stored) << row.name << ' ' << row.value;
  }
  EXPECT_EQ(Geometry(m_Path, "wells", 3), "POINT (5 6)");
  EXPECT_TRUE(m_Errors.empty());
}

TEST_F(EmbeddedHostEdits, RejectsValuesThatTheColumnCannotHoldExactly) {
  const char* const rows[][3] = {
      {"NAME", "|1234567890123456789012345678901234567890|", "longer than the 20 characters"},
      {"NAME", "|😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀x|", "longer than"},
      {"CODE", "| |", "must have a value"},
      {"DEPTH", "1,5", "is not a number"},
      {"DEPTH", "12abc", "is not a number"},
      {"DEPTH", "abc", "is not a number"},
      {"DEPTH", "1 2", "is not a number"},
      {"DEPTH", ".", "is not a number"},
      {"DEPTH", "1e", "is not a number"},
      {"DEPTH", "0x10", "is not a number"},
      {"DEPTH", "inf", "is not a number"},
      {"DEPTH", "NaN", "is not a number"},
      {"DEPTH", "1e400", "out of the column's range"},
      {"DEPTH", "9007199254740993", "more digits"},
      {"DIAMETER", "1,5", "not a whole number"},
      {"DIAMETER", "1.5", "not a whole number"},
      {"DIAMETER", "12abc", "not a whole number"},
      {"DIAMETER", "1e2", "not a whole number"},
      {"DIAMETER", "-", "not a whole number"},
      {"DIAMETER", "1-2", "not a whole number"},
      {"DIAMETER", "2147483648", "out of the column's range"},
      {"DIAMETER", "-2147483649", "out of the column's range"},
      {"FLOORS", "32768", "out of the column's range"},
      {"SERIAL", "9223372036854775808", "out of the column's range"},
      {"OPEN", "2", "out of the column's range"},
      {"OPEN", "-1", "out of the column's range"},
      {"OPEN", "True", "not a whole number"},
      {"INSPECTED", "|2026-02-31|", "is not a date"},
      {"INSPECTED", "|2026-13-01|", "is not a date"},
      {"INSPECTED", "|2023-02-29|", "is not a date"},
      {"INSPECTED", "|21.11.2026|", "is not a date"},
      {"INSPECTED", "|11/21/2026|", "is not a date"},
      {"INSPECTED", "|2026-1-1|", "is not a date"},
      {"INSPECTED", "|2026-01-01x|", "is not a date"},
      {"SEEN", "|2026-02-28T25:00:00Z|", "is not a date and time"},
      {"SEEN", "|2026-02-28T24:00:00Z|", "is not a date and time"},
      {"SEEN", "|2026-02-28T10:60:00Z|", "is not a date and time"},
      {"SEEN", "|2026-02-28T10:00:60Z|", "is not a date and time"},
      {"SEEN", "|2026-02-28T10:00:00.0001Z|", "is not a date and time"},
      {"SEEN", "|2026-02-28T10:00:00+25:00|", "is not a date and time"},
      {"SEEN", "|2026-02-31T10:00:00Z|", "is not a date and time"},
  };
  for (const auto& [name, value, reason] : rows) {
    const std::string before = Stored(m_Path, "wells", 3, name);
    Select(*m_Host, "wells", "3");
    const std::string reply = Set(*m_Host, "wells", name, value);
    EXPECT_EQ(reply.rfind(std::string("ERROR: ") + name + ": ", 0), 0u) << reply;
    EXPECT_NE(reply.find(reason), std::string::npos) << name << ' ' << value << " -> " << reply;
    m_Errors.clear();
    EXPECT_NE(Finish(*m_Host, "wells"), "") << value;
    EXPECT_EQ(m_Errors.size(), 1u) << value;
    EXPECT_EQ(Stored(m_Path, "wells", 3, name), before) << name << ' ' << value;
  }
}

TEST_F(EmbeddedHostEdits, RejectsInvalidText) {
  Select(*m_Host, "wells", "3");
  const auto set = [&](std::u16string_view value) {
    return m_Host->Execute(Text(u"THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |") + value + u"|").ToUtf8();
  };
  EXPECT_NE(set(u"a\xD800z").find("half a character"), std::string::npos);
  EXPECT_NE(set(u"a\xDC00").find("half a character"), std::string::npos);
  EXPECT_NE(set(std::u16string_view(u"a\0b", 3)).find("NUL"), std::string::npos);
  Finish(*m_Host, "wells");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Chiesa");
}

TEST_F(EmbeddedHostEdits, AcceptsATextOfAMillionCharacters) {
  std::string text(1'000'000, '\'');
  text.replace(500'000, 3, "\nè");
  EXPECT_EQ(Store("NOTES", "|" + text + "|"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NOTES"), text);
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "NOTES"), text);
}

TEST_F(EmbeddedHostEdits, FlushesValuesInOneTransaction) {
  Execute(*m_Host, "APPLICATION_FLAGREDRAW OFF");
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Set(*m_Host, "wells", "NAME", "|Nuova|"), "");
  EXPECT_EQ(Set(*m_Host, "wells", "DEPTH", "70.5"), "");
  EXPECT_EQ(Set(*m_Host, "wells", "INSPECTED", "|2026-11-21|"), "");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Nuova") << "a collected value is answered";
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Chiesa") << "and not stored yet";
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Nuova");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DEPTH"), "70.5");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "INSPECTED"), "2026/11/21");
  EXPECT_EQ(Execute(*m_Host, "APPLICATION_FLAGREDRAW ON"), "");
  EXPECT_EQ(Execute(*m_Host, "APPLICATION_REDRAW"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NOTES"), "già\r\n|provata|");
  EXPECT_EQ(Stored(m_Path, "wells", 2, "NAME"), "Però");
  EXPECT_EQ(Geometry(m_Path, "wells", 3), "POINT (5 6)");
}

TEST_F(EmbeddedHostEdits, FlushesNothingAfterOneInvalidValueAndReportsOnce) {
  for (const bool badFirst : {true, false}) {
    m_Errors.clear();
    Select(*m_Host, "wells", "3");
    if (badFirst) Set(*m_Host, "wells", "DIAMETER", "12abc");
    EXPECT_EQ(Set(*m_Host, "wells", "NAME", "|Nuova|"), "");
    if (!badFirst) Set(*m_Host, "wells", "DIAMETER", "12abc");
    EXPECT_TRUE(m_Errors.empty()) << "reported with the others";
    const std::string reason =
        "Nothing was stored in feature 3 of \"wells\".\r\nDIAMETER: \"12abc\" is not a whole number.";
    EXPECT_EQ(Finish(*m_Host, "wells"), "ERROR: " + reason);
    EXPECT_EQ(m_Errors, std::vector<std::string>{reason});
    EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Chiesa");
    Select(*m_Host, "wells", "3");
    EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Chiesa");
    EXPECT_EQ(Finish(*m_Host, "wells"), "") << "it is over with";
  }
}

TEST_F(EmbeddedHostEdits, FlushesOnEveryCommandThatEndsEditing) {
  const char* const ends[] = {
      "THEME_SELECTION_NONE |wells| |POINT|",
      "THEME_MOVEFIRST |wells| |POINT|",
      "APPLICATION_FLAGREDRAW ON",
      "APPLICATION_FLAGREDRAW OFF",
      "APPLICATION_REDRAW",
      "THEME_SELECTION_BYVALUE |areas| || OVTARVOUNIQUEID = 1 NEW",
  };
  int value = 400;
  for (const char* end : ends) {
    const std::string text = std::to_string(++value);
    Select(*m_Host, "wells", "3");
    Set(*m_Host, "wells", "DIAMETER", text);
    EXPECT_EQ(Execute(*m_Host, end), "");
    EXPECT_EQ(Stored(m_Path, "wells", 3, "DIAMETER"), text) << end;
  }
}

TEST_F(EmbeddedHostEdits, FlushesWhenTheFeatureChanges) {
  Select(*m_Host, "areas", "1");
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "DIAMETER", "12abc");
  Set(*m_Host, "areas", "NAME", "|Sud|");
  ASSERT_EQ(m_Errors.size(), 1u);
  EXPECT_NE(m_Errors[0].find("feature 3 of \"wells\""), std::string::npos);
  EXPECT_EQ(Finish(*m_Host, "areas"), "");
  EXPECT_EQ(Stored(m_Path, "areas", 1, "NAME"), "Sud");
}

TEST_F(EmbeddedHostEdits, FlushesOnDestruction) {
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "DIAMETER", "555");
  m_Host = nullptr;
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DIAMETER"), "555");
  m_Host = Open(m_Path);
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "DIAMETER", "x");
  m_Host = nullptr;
  EXPECT_EQ(m_Errors.size(), 1u);
}

TEST_F(EmbeddedHostEdits, NeedsACurrentFeature) {
  EXPECT_EQ(Set(*m_Host, "wells", "NAME", "|x|"), "ERROR: There is no current feature.");
  EXPECT_EQ(m_Errors.size(), 1u);
}

TEST_F(EmbeddedHostEdits, KeepsTheLastValueOfAnAttribute) {
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "NAME", "|first|");
  Set(*m_Host, "wells", "name", "|second|");
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "second");
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "NAME", "|third|");
  Set(*m_Host, "wells", "NAME", "|second|");
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "second");
}

TEST_F(EmbeddedHostEdits, SkipsUnchangedValuesThatTheColumnWouldReject) {
  RunSql(m_Path, "UPDATE wells SET NAME = 'longer than twenty characters', CODE = '' WHERE fid = 3");
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Set(*m_Host, "wells", "NAME", "|longer than twenty characters|"), "");
  EXPECT_EQ(Set(*m_Host, "wells", "CODE", "| |"), "");
  EXPECT_EQ(Set(*m_Host, "wells", "DEPTH", "62"), "");
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "longer than twenty characters");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "CODE"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DEPTH"), "62");
}

TEST_F(EmbeddedHostEdits, KeepsConcurrentChangesOfOtherColumns) {
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Chiesa");
  RunSql(m_Path,
         "UPDATE wells SET NAME = 'Altra', geom = (SELECT geom FROM wells WHERE fid = 1) WHERE fid = 3");
  Set(*m_Host, "wells", "DEPTH", "62");
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Altra");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DEPTH"), "62");
  EXPECT_EQ(Geometry(m_Path, "wells", 3), "POINT (1 2)");
}

TEST_F(EmbeddedHostEdits, ReportsADeletedFeature) {
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "DEPTH", "62");
  RunSql(m_Path, "DELETE FROM wells WHERE fid = 3");
  EXPECT_NE(Finish(*m_Host, "wells").find("no such feature any more"), std::string::npos);
}

TEST_F(EmbeddedHostEdits, ReportsConstraintsOfTheDatabase) {
  RunSql(m_Path, "CREATE UNIQUE INDEX code ON wells(CODE)");
  Select(*m_Host, "wells", "3");
  Set(*m_Host, "wells", "DEPTH", "62");
  Set(*m_Host, "wells", "CODE", "|A|");
  EXPECT_NE(Finish(*m_Host, "wells").find("UNIQUE constraint failed: wells.CODE."), std::string::npos);
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DEPTH"), "61.25");
  EXPECT_EQ(Store("DEPTH", "63"), "") << "no transaction is left open";
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DEPTH"), "63");
}

TEST_F(EmbeddedHostEdits, FailsSoonWhileTheStoreIsLocked) {
  const auto other = OpenRaw(m_Path, true);
  other->ExecuteSQL("BEGIN IMMEDIATE", nullptr, nullptr);
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Set(*m_Host, "wells", "NAME", "|Nuova|"), "");
  const auto start = std::chrono::steady_clock::now();
  const std::string reply = Finish(*m_Host, "wells");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_NE(reply.find("Another program has locked the store."), std::string::npos) << reply;
  EXPECT_EQ(m_Errors.size(), 1u);
  other->ExecuteSQL("ROLLBACK TRANSACTION", nullptr, nullptr);
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Chiesa");
  EXPECT_EQ(Store("NAME", "|Nuova|"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Nuova");
}

TEST_F(EmbeddedHostEdits, RollsBackWhenAReaderBlocksTheCommit) {
  const auto other = OpenRaw(m_Path, true);
  OGRLayer* const cursor = other->ExecuteSQL("SELECT * FROM wells", nullptr, nullptr);
  ASSERT_NE(OGRFeatureUniquePtr(cursor->GetNextFeature()), nullptr);
  EXPECT_NE(Store("NAME", "|Nuova|").find("Another program has locked the store."), std::string::npos);
  other->ReleaseResultSet(cursor);
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Chiesa");
  EXPECT_EQ(Store("NAME", "|Nuova|"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NAME"), "Nuova");
}

TEST_F(EmbeddedHostEdits, KeepsInvalidBytesOfUnchangedValues) {
  RunSql(m_Path, "UPDATE wells SET NOTES = CAST(x'4dfc6c6c' AS TEXT) WHERE fid = 3");
  Select(*m_Host, "wells", "3");
  const std::string shown = Get(*m_Host, "wells", "NOTES");
  EXPECT_EQ(shown, "M\xEF\xBF\xBDll");
  Set(*m_Host, "wells", "NOTES", "|" + shown + "|");
  Set(*m_Host, "wells", "DEPTH", "62");
  EXPECT_EQ(Finish(*m_Host, "wells"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "NOTES"), "M\xFCll");
}

TEST_F(EmbeddedHostEdits, ReportsALockThatBlocksReading) {
  const auto other = OpenRaw(m_Path, true);
  other->ExecuteSQL("BEGIN EXCLUSIVE", nullptr, nullptr);
  EXPECT_NE(Execute(*m_Host, "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3 NEW")
                .find("Another program has locked the store."),
            std::string::npos);
  EXPECT_EQ(Request(*m_Host, "THEME_SELECTED_NUMBER |wells| |POINT|"), "0");
  other->ExecuteSQL("ROLLBACK TRANSACTION", nullptr, nullptr);
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Get(*m_Host, "wells", "NAME"), "Chiesa");
}

TEST_F(EmbeddedHostEdits, UpdatesLastChangeOfTheGeoPackage) {
  RunSql(m_Path, "UPDATE gpkg_contents SET last_change = '2001-01-01T00:00:00.000Z'");
  EXPECT_EQ(Store("DEPTH", "62"), "");
  const auto data = OpenRaw(m_Path);
  OGRLayer* const rows = data->ExecuteSQL(
      "SELECT count(*) FROM gpkg_contents WHERE last_change > '2002' AND table_name = 'wells'", nullptr,
      nullptr);
  const OGRFeatureUniquePtr row(rows->GetNextFeature());
  EXPECT_EQ(row->GetFieldAsInteger(0), 1);
  data->ReleaseResultSet(rows);
}

}  // namespace cardwright::orv_tests
