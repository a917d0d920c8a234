// SPDX-License-Identifier: MIT
#include <random>

#include "TestStore.h"

namespace cardwright::orv_tests {

class EmbeddedHostCommands : public TestStore {
 protected:
  std::string m_Path = MakeGeoPackage();
  Ref<EmbeddedHost> m_Host = Open(m_Path);
};

TEST_F(EmbeddedHostCommands, FailWithAReasonWhereMalformed) {
  const char* const commands[] = {
      "",
      " ",
      "|",
      "||||||||",
      "NO_SUCH_COMMAND",
      "THEME_",
      "THEME_NUMBERS |wells|",
      "THEME_NUMBER",
      "THEME_NUMBER wells",
      "THEME_NUMBER |wells",
      "THEME_NUMBER |wells| x",
      "THEME_NAMES x",
      "THEME_ACTIVE |wells|",
      "THEME_FEATURE_TYPES x",
      "THEME_CREATE",
      "THEME_CREATE |springs|",
      "THEME_CREATE |springs| |POINT| x",
      "THEME_SELECTED_NUMBER |wells|",
      "THEME_SELECTED_NUMBER |wells| |CIRCLE|",
      "THEME_SELECTED_NUMBER |nowhere| |POINT|",
      "THEME_SELECTED_NUMBER |wells| |POINT| x",
      "THEME_MOVEFIRST |wells| POINT",
      "THEME_CURRENT_ISVALID",
      "THEME_SELECTION_NONE |wells| |POINT",
      "THEME_SELECTION_BYVALUE |wells| |POINT|",
      "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID 3 NEW",
      "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3",
      "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3NEW",
      "THEME_SELECTION_BYVALUE |wells| |POINT| NOPE = 3 NEW",
      "THEME_SELECTION_BYVALUE |wells| |POINT| |NAME| 3 NEW",
      "THEME_SELECTION_BYVALUE |wells| |POINT| NAME = |x NEW",
      "THEME_ATTRIBUTE |wells| |POINT|",
      "THEME_ATTRIBUTE |wells| |POINT| 1 2",
      "THEME_ATTRIBUTE_NUMBER |wells|",
      "THEME_ATTRIBUTE_NAMES |wells| |POINT|x",
      "THEME_GET_ATTRIBUTE |wells| |POINT| NAME",
      "THEME_GET_ATTRIBUTE |wells| |POINT| |NAME| |x|",
      "APPLICATION_FLAGREDRAW",
      "APPLICATION_FLAGREDRAW MAYBE",
      "APPLICATION_FLAGREDRAW ON OFF",
      "APPLICATION_REDRAW now",
      "HWND_CONTROL 1",
  };
  Select(*m_Host, "wells", "3");
  for (const char* command : commands) {
    const std::size_t before = m_Errors.size();
    const std::string reply = Execute(*m_Host, command);
    EXPECT_EQ(reply.rfind("ERROR: ", 0), 0u) << command << " -> " << reply;
    EXPECT_EQ(m_Errors.size(), before + 1) << command;
    EXPECT_EQ("ERROR: " + m_Host->LastError().ToUtf8(), reply);
    EXPECT_EQ(Request(*m_Host, command), "") << command;
  }
}

TEST_F(EmbeddedHostCommands, DiscardAllPendingValuesWithAMalformedOne) {
  const char* const tails[] = {"",         "NAME |x|",     "|NAME",      "|NAME| |x",
                               "|NAME| |", "|NAME| |x| y", "|NOPE| |x|", "|OVTARVOUNIQUEID| 4",
                               "|A,B| |x|"};
  for (const char* tail : tails) {
    Select(*m_Host, "wells", "3");
    EXPECT_EQ(Set(*m_Host, "wells", "DIAMETER", "301"), "");
    const std::string reply = Execute(*m_Host, std::string("THEME_SET_ATTRIBUTE |wells| |POINT| ") + tail);
    EXPECT_EQ(reply.rfind("ERROR: ", 0), 0u) << tail << " -> " << reply;
    const std::size_t before = m_Errors.size();
    EXPECT_NE(Finish(*m_Host, "wells"), "") << tail;
    EXPECT_EQ(m_Errors.size(), before + 1) << tail;
    EXPECT_EQ(Stored(m_Path, "wells", 3, "DIAMETER"), "300") << tail;
  }
}

TEST_F(EmbeddedHostCommands, RunFromExecuteAndRequest) {
  Request(*m_Host, "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3 NEW");
  Request(*m_Host, "THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(Execute(*m_Host, "THEME_GET_ATTRIBUTE |wells| |POINT| |NAME|"), "Chiesa");
  EXPECT_EQ(Request(*m_Host, "THEME_MOVEFIRST |nowhere| |POINT|"), "");
  EXPECT_EQ(m_Errors.size(), 1u) << "a failed change is reported, however it was sent";
}

TEST_F(EmbeddedHostCommands, CanBeSentFromTheErrorHandler) {
  std::string nested;
  m_Host->onError = [&](const Text&) { nested = Request(*m_Host, "THEME_ACTIVE"); };
  EXPECT_NE(Execute(*m_Host, "NONSENSE"), "");
  EXPECT_EQ(nested, "wells");
}

TEST_F(EmbeddedHostCommands, SurviveReleaseOfTheHostInTheErrorHandler) {
  m_Host->onError = [&](const Text&) { m_Host = nullptr; };
  EmbeddedHost* const host = m_Host.get();
  EXPECT_EQ(host->Execute(u"NONSENSE"), u"ERROR: This host has no command \"NONSENSE\".");
  EXPECT_FALSE(m_Host);
}

TEST_F(EmbeddedHostCommands, NeverCrashOnAnyBytes) {
  const char16_t* const pieces[] = {
      u"THEME_SELECTION_BYVALUE",
      u"THEME_SET_ATTRIBUTE",
      u"THEME_GET_ATTRIBUTE",
      u"THEME_MOVEFIRST",
      u"THEME_ATTRIBUTE",
      u"THEME_SELECTION_NONE",
      u"APPLICATION_FLAGREDRAW ON",
      u"|wells|",
      u"|areas|",
      u"|POINT|",
      u"||",
      u"|NAME|",
      u"|DEPTH|",
      u"|INSPECTED|",
      u"OVTARVOUNIQUEID",
      u"=",
      u"3",
      u"NEW",
      u" ",
      u"|",
      u"-9223372036854775808",
      u"1e308",
      u"'",
      u"\"",
      u"\r\n",
      u"2026-02-28",
  };
  std::mt19937 random(20261121);
  const auto below = [&](std::size_t count) { return random() % count; };
  for (int round = 0; round < 20000; ++round) {
    std::u16string command;
    for (std::size_t i = below(9); i > 0; --i) {
      if (below(8) == 0)
        command += static_cast<char16_t>(below(0x10000));
      else
        command += pieces[below(std::size(pieces))];
      if (below(3) != 0) command += u' ';
    }
    const Text reply = below(2) ? m_Host->Execute(command) : m_Host->Request(command);
    ASSERT_LT(reply.Size(), 2000u);
  }
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |wells|"), "1");
  EXPECT_EQ(Geometry(m_Path, "wells", 3), "POINT (5 6)");
}

}  // namespace cardwright::orv_tests
