// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;

Outcome Example(const std::string& name, std::vector<std::string> words) {
  words.insert(words.begin(), {"script", SourceFile("examples/scripts/" + name)});
  return Cardwright(words);
}

/// The example form with one text in place of another.
std::string Changed(const TempFolder& folder, const std::string& from, const std::string& to) {
  std::string form = ReadAll(ExampleForm());
  const std::size_t at = form.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  if (at != std::string::npos) form.replace(at, from.size(), to);
  return folder.Write("changed.cwf", form);
}

TEST(ProjectReport, DescribesTheExampleFormAndWritesASummary) {
  const TempFolder folder;
  const Outcome outcome = Example("project-report.vbs", {"--summary=" + folder.File("summary.txt")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, ContainsRegex("^well-inspection.cwf\n"
                                         "  Title     Well inspection\n"
                                         "  Theme     wells \\(points\\)\n"
                                         "  Opens     always\n"
                                         "  Size      552 by 480 pixels\n"));
  EXPECT_THAT(outcome.out, HasSubstr("  Controls  26, bound to 10 attributes\n"
                                     "  Script    VBScript, 10 procedures, 41 lines of code\n"
                                     "  Findings  nothing to report\n"));
  EXPECT_THAT(outcome.out, HasSubstr("1 project examined, 0 not readable\n"));

  const std::string summary = ReadAll(folder.File("summary.txt"));
  EXPECT_THAT(summary,
              ContainsRegex("^Form projects, looked at on [0-9]{4}-[0-9]{2}-[0-9]{2} at [0-9:]{5}\r\n"));
  EXPECT_THAT(summary, HasSubstr(ExampleForm() + "\r\n"));
  EXPECT_THAT(summary, ContainsRegex("  Label +10\r\n +ListBox +1\r\n"));
  EXPECT_THAT(summary, ContainsRegex("  all +26\r\n"));
  EXPECT_THAT(summary, ContainsRegex("    1  lblTitle +Label +0\r\n"));
  EXPECT_THAT(summary, ContainsRegex("    4  txtName +TextBox +fraIdentification +NAME +yes +1\r\n"));
  EXPECT_THAT(summary, ContainsRegex("  USE_CODE +optDomestic, optAgricultural, optIndustrial\r\n"));
  EXPECT_THAT(summary, ContainsRegex("    21 +3  Sub cmdToday_OnClick\\(\\) +OnClick of cmdToday\r\n"));
  EXPECT_THAT(summary, ContainsRegex("    25 +3  Function IsoDate\\(moment\\) +calls: 3\r\n"));
  EXPECT_THAT(summary, HasSubstr("Findings\r\n--------\r\n  none\r\n"));
}

struct Fault {
  std::string from, to, finding;
};
class ProjectReportTest : public ::testing::TestWithParam<Fault> {};

TEST_P(ProjectReportTest, ReportsFaults) {
  const TempFolder folder;
  const std::string form = Changed(folder, GetParam().from, GetParam().to);
  const Outcome outcome = Example("project-report.vbs", {"--summary=" + folder.File("summary.txt"), form});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, HasSubstr("  " + GetParam().finding + "\n"));
  EXPECT_THAT(ReadAll(folder.File("summary.txt")), HasSubstr("  " + GetParam().finding + "\r\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Faults, ProjectReportTest,
    ::testing::Values(
        Fault{"ControlsNumber= 26", "ControlsNumber= 27",
              "error: FORM: ControlsNumber counts 27 controls, but there are sections for 26"},
        Fault{"Type=ListBox", "Type=Chart",
              "error: lstAquifer: unknown type Chart; the control will be left out"},
        Fault{"UserName=txtOwner", "UserName=txtName", "error: txtName: the name is used more than once"},
        Fault{"UserName=txtOwner", "UserName=txt Owner",
              "error: txt Owner: the script cannot have a variable of this name and will not start"},
        Fault{"Attribute=DEPTH", "Attribute=NAME",
              "warning: NAME: is bound to more than one control: txtName, txtDepth"},
        Fault{"Option Explicit\r\n", "' Wells\r\nOption Explicit\r\n",
              "error: SCRIPT line 2: Option Explicit must be line 1; the script will not start"},
        Fault{
            "Sub cmdToday_OnClick(", "Sub cmdToday_OnPress(",
            "warning: SCRIPT line 21: cmdToday_OnPress is never run: a CommandButton has the events OnClick"},
        Fault{"Sub cmdToday_OnClick(", "Sub cmdToday_OnClick (",
              "error: SCRIPT line 21: cmdToday_OnClick is never run: its line must begin with Sub "
              "cmdToday_OnClick("},
        Fault{"[SCRIPT]\r\n", "[SCRIPT]\n",
              "error: SCRIPT: the line [SCRIPT] ends in a line feed alone; the form has no script"}));

TEST(ProjectReport, ReadsScriptsInJScript) {
  const TempFolder folder;
  std::string form = ReadAll(ExampleForm());
  form.resize(form.find("[SCRIPT]"));
  form +=
      "[SCRIPT]\r\nJScript\r\nfunction cmdToday_OnClick(){\r\n  txtInspected.Text = 'it' + today(); // "
      "lost()\r\n}\r\n"
      "function today(){\r\n  return \"\";\r\n}\r\nfunction lost(){\r\n}\r\n";
  const Outcome outcome = Example(
      "project-report.vbs", {"--summary=" + folder.File("summary.txt"), folder.Write("java.cwf", form)});
  EXPECT_THAT(outcome.out, HasSubstr("  Script    JScript, 3 procedures, 8 lines of code\n"));
  EXPECT_THAT(outcome.out, HasSubstr("  warning: SCRIPT line 7: lost is never called\n"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("cmdToday:")));
}

TEST(ProjectReport, ContinuesAfterAProjectThatItCannotRead) {
  const TempFolder folder;
  const Outcome outcome =
      Example("project-report.vbs", {"--summary=" + folder.File("summary.txt"), folder.File("none.cwf"),
                                     folder.Write("text.cwf", "hello"), ExampleForm()});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("none.cwf: There is no such file\n"));
  EXPECT_THAT(outcome.err, HasSubstr("text.cwf: This is no form project: there is no ControlsNumber\n"));
  EXPECT_THAT(outcome.out, HasSubstr("1 project examined, 2 not readable\n"));
  EXPECT_FALSE(std::filesystem::exists(folder.File("none.cwf")));
}

TEST(ProjectReport, WritesItsSummaryInUnicodeIfTheCodePageLacksACharacter) {
  const TempFolder folder;
  const std::string form = folder.Write("форма.cwf", ReadAll(ExampleForm()));
  EXPECT_EQ(Example("project-report.vbs", {"--summary=" + folder.File("summary.txt"), form}).status, 0);
  EXPECT_THAT(ReadAll(folder.File("summary.txt")), ::testing::StartsWith("\xFF\xFE"));
}

TEST(BatchCheck, DistinguishesValidFromInvalidForms) {
  const TempFolder folder;
  const std::string bad = Changed(folder, "ThemeName=wells", "ThemeName=");
  const Outcome outcome = Example("batch-check.vbs", {ExampleForm(), bad, "no.cwf"});
  EXPECT_EQ(outcome.out, "good  " + ExampleForm() + "\nBAD   " + bad +
                             ": the form has no theme\nBAD   no.cwf: there is no such file\n"
                             "3 looked at, 2 bad\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(Example("batch-check.vbs", {ExampleForm()}).status, 0);
  EXPECT_EQ(Example("batch-check.vbs", {}).status, 2);
}

TEST(TextStatistics, CountsLinesCharactersAndWords) {
  const TempFolder folder;
  const std::string file = folder.Write("a.txt", "deep well\r\nDeep water, deep\r\n\r\n");
  const Outcome outcome = Example("text-statistics.vbs", {file, "none.txt"});
  EXPECT_EQ(outcome.out,
            "a.txt\n"
            "  lines      3\n"
            "  characters 25\n"
            "  words      5 (3 different)\n"
            "  average    8.3 characters a line\n"
            "  longest    Deep water, deep\n"
            "  frequent   deep 3, well 1, water 1\n");
  EXPECT_EQ(outcome.err, "none.txt: File not found\n");
}

TEST(Deadlines, KnowsMonthEndsAndWeekends) {
  const TempFolder folder;
  const std::string list =
      folder.Write("wells.txt", "North field;2024-01-31;1\n\nOld mill;2023-11-15;6\nPond;2024-05-04;0\n");
  const Outcome outcome = Example("deadlines.vbs", {list, "2024-05-06"});
  EXPECT_EQ(outcome.out,
            "2024-02-29 Thu North field: 67 days late\n"
            "2024-05-15 Wed Old mill: in 9 days\n"
            "2024-05-06 Mon Pond: today\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(Example("deadlines.vbs", {list, "May"}).err,
              HasSubstr(" deadlines: \"May\" is no day like 2024-03-31\n"));
}

}  // namespace
}  // namespace cardwright::testing
