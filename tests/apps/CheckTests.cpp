// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;

std::string Project(const std::string& controls, int count, const std::string& form = {}) {
  return "[FORM]\r\n" + form + "ControlsNumber= " + std::to_string(count) + "\r\n" + controls +
         "[SCRIPT]\r\n\r\n\r\n";
}

TEST(Check, FindsNoFaultsInTheExample) {
  const Outcome outcome =
      Cardwright({"check", ExampleForm(), "--data", SourceFile("examples/wells/wells.gpkg")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
}

TEST(Check, AcceptsAnyLineEnds) {
  const TempFolder folder;
  for (const std::string end : {"\n", "\r", "\r\n"}) {
    const std::string project =
        "[FORM]" + end + "ControlsNumber= 1" + end + "[CONTROLS_1]" + end + "Type=Label" + end;
    const Outcome outcome = Cardwright({"check", folder.Write("a.cwf", project)});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST(Check, FindsNoFaultsInCorrectlyLinkedSelectors) {
  const TempFolder folder;
  const std::string controls =
      "[CONTROLS_1]\r\nType=attributeselector\r\nThemeSelectorName=THM\r\nFeatureSelectorName=cbo\r\n"
      "[CONTROLS_2]\r\nType=themeselector\r\nUserName=thm\r\n[CONTROLS_3]\r\nType=ComboBox\r\nUserName="
      "cbo\r\n"
      "[CONTROLS_4]\r\nType=resourceselector\r\nRegKey=App/Section/Key/more\r\n"
      "[CONTROLS_5]\r\nType=resourceselector\r\nRegKey=\r\n";
  const Outcome outcome = Cardwright({"check", folder.Write("a.cwf", Project(controls, 5))});
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Check, ReportsOnceThatTheThemeHasNoFeaturesOfTheFormsType) {
  const TempFolder folder;
  const std::string control = "[CONTROLS_1]\r\nType=TextBox\r\nAttribute=NAME\r\n";
  const std::string file =
      folder.Write("a.cwf", Project(control, 1, "ThemeName=wells\r\nFeatureType= 1\r\n"));
  const Outcome outcome = Cardwright({"check", file, "--data", SourceFile("examples/wells/wells.gpkg")});
  EXPECT_EQ(outcome.out, file + ":FORM: the theme wells has no features of the form's feature type\n");
  EXPECT_EQ(outcome.status, 1);
}

std::string WithScript(const std::string& script, const std::string& language = "VBScript",
                       const std::string& userName = "txtDepth") {
  return "[FORM]\r\nControlsNumber= 1\r\n[CONTROLS_1]\r\nType=TextBox\r\nUserName=" + userName +
         "\r\n[SCRIPT]\r\n" + language + "\r\n" + script;
}

TEST(Check, AcceptsNamesThatOnlyJScriptAllows) {
  const TempFolder folder;
  for (const std::string name : {"_depth", "$depth",
                                 "Gr\xF6\xDF"
                                 "e"}) {
    const std::string script = "function " + name + "_OnChange() {}\r\n";
    const Outcome outcome = Cardwright({"check", folder.Write("a.cwf", WithScript(script, "JScript", name))});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 0);
  }
}

struct FaultyProject {
  std::string name;
  std::string bytes;
  std::string line;  ///< after the file's name
};

void PrintTo(const FaultyProject& project, std::ostream* out) { *out << project.name; }

std::vector<FaultyProject> FaultyProjects() {
  return {
      {"TooManyControls", Project("", 32768),
       ":FORM: ControlsNumber is more than 32767: the form has no controls\n"},
      {"UnreadableWidth", Project("", 0, "Width= wide\r\n"), ":FORM: the value of Width is no size: wide\n"},
      {"NegativeHeight", Project("[CONTROLS_1]\r\nType=Label\r\nHeight=-5\r\n", 1),
       ":CONTROLS_1: the value of Height is no size: -5\n"},
      {"UnreadableItemsNumber", Project("[CONTROLS_1]\r\nType=ListBox\r\nItemsNumber=few\r\n", 1),
       ":CONTROLS_1: the value of ItemsNumber is no number: few\n"},
      {"UnknownType", Project("[CONTROLS_1]\r\nType=Spinner\r\n", 1),
       ":CONTROLS_1: unknown type Spinner: the control is left out\n"},
      {"MissingSection", Project("", 1),
       ":CONTROLS_1: the section is missing or has no Type: there is no such control\n"},
      {"MissingContainer", Project("[CONTROLS_1]\r\nType=Label\r\nContainer=object_9\r\n", 1),
       ":CONTROLS_1: the container object_9 does not exist or comes later: the control is left out\n"},
      {"DoubledName",
       Project("[CONTROLS_1]\r\nType=Label\r\nName=a\r\nUserName=x\r\n[CONTROLS_2]\r\nType=Label\r\nName="
               "A\r\nUserName=y\r\n",
               2),
       ":CONTROLS_2: the name A is taken: the control is left out\n"},
      {"DoubledUserName",
       Project("[CONTROLS_1]\r\nType=Label\r\nName=a\r\nUserName=x\r\n[CONTROLS_2]\r\nType=Label\r\nName="
               "b\r\nUserName=X\r\n",
               2),
       ":CONTROLS_2: the user name X is taken: the control is not part of the form\n"},
      {"MissingTheme", Project("", 0, "ThemeName=springs\r\n"), ":FORM: the data has no theme springs\n"},
      {"MissingAttribute",
       Project("[CONTROLS_1]\r\nType=TextBox\r\nAttribute=COLOUR\r\n", 1,
               "ThemeName=wells\r\nFeatureType= 0\r\n"),
       ":CONTROLS_1: the theme wells has no attribute COLOUR\n"},
      {"MissingThemeSelector",
       Project("[CONTROLS_1]\r\nType=attributeselector\r\nThemeSelectorName=thm\r\n", 1),
       ":CONTROLS_1: ThemeSelectorName names thm, which is no control of the form\n"},
      {"ThemeSelectorOfAnotherKind",
       Project("[CONTROLS_1]\r\nType=attributeselector\r\nThemeSelectorName=LBL\r\n[CONTROLS_2]\r\nType="
               "Label\r\nUserName=lbl\r\n",
               2),
       ":CONTROLS_1: ThemeSelectorName names LBL, which is no CThemeSelector\n"},
      {"FeatureSelectorOfAnotherKind",
       Project("[CONTROLS_1]\r\nType=themeselector\r\nUserName=thm\r\n[CONTROLS_2]\r\nType="
               "attributeselector\r\nThemeSelectorName=thm\r\nFeatureSelectorName=thm\r\n",
               2),
       ":CONTROLS_2: FeatureSelectorName names thm, which is no CComboBox\n"},
      {"NoThemeSelector",
       Project("[CONTROLS_1]\r\nType=ComboBox\r\nUserName=cbo\r\n[CONTROLS_2]\r\nType="
               "attributeselector\r\nFeatureSelectorName=cbo\r\n",
               2),
       ":CONTROLS_2: there is no ThemeSelectorName: the control lists no attributes\n"},
      {"RegKey", Project("[CONTROLS_1]\r\nType=resourceselector\r\nRegKey=App/Section\r\n", 1),
       ":CONTROLS_1: the RegKey App/Section is not of the form Application/Section/Key: no folder is kept\n"},
      {"LongValue", Project("[CONTROLS_1]\r\nType=Label\r\nText=" + std::string(9000, 'x') + "\r\n", 1),
       ":CONTROLS_1: the value of Text is cut to 8191 characters\n"},
      {"SecondLine", Project("[CONTROLS_1]\r\nType=textboxmultiline\r\nText=one\r\ntwo\r\n", 1),
       ":CONTROLS_1: line 6 is no entry; of a text with several lines only the first is read\n"},
      {"Utf8", Project("[CONTROLS_1]\r\nType=Label\r\nText=Citt\xc3\xa0\r\n", 1),
       ":CONTROLS_1: the value of Text is UTF-8 text"},
      {"ScriptLanguage", WithScript("x = 1\r\n", "Logo"),
       ":SCRIPT: the language Logo is neither VBScript nor JScript: no script runs\n"},
      {"ScriptSyntax", WithScript("Option Explicit\r\n\r\nIf x Then y =\r\n"),
       ":SCRIPT: line 3: Syntax error (error 1002, column 14)\n"},
      {"ScriptOptionBelow", WithScript("Dim x\r\nOption Explicit\r\n"),
       ":SCRIPT: line 2: Option Explicit has to be the first line of the script\n"},
      {"ScriptUserName", WithScript("x = 1\r\n", "VBScript", "my depth"),
       ":SCRIPT: the user name my depth is no identifier: the script does not start\n"},
      {"ScriptKeyword", WithScript("x = 1\r\n", "VBScript", "Next"),
       ":SCRIPT: the names of the form's elements: Expected identifier (error 1010, column 5)\n"},
      {"ScriptEvent", WithScript("Sub txtDepth_OnClose()\r\nEnd Sub\r\n"),
       ":SCRIPT: line 1: txtDepth has no event OnClose: txtDepth_OnClose is never run by the form\n"},
      {"ScriptElement", WithScript("\r\nSub txtWidth_OnChange()\r\nEnd Sub\r\n"),
       ":SCRIPT: line 2: the form has no element txtWidth: txtWidth_OnChange is never run by the form\n"},
      {"ScriptHeader", WithScript("Sub  Form_Initialize ()\r\nEnd Sub\r\n"),
       ":SCRIPT: line 1: Form_Initialize is not found by the form: its line has to begin with \"Sub "
       "Form_Initialize(\"\n"},
      {"JScriptSyntax", WithScript("var x;\r\n\r\nif (x) { y = ;\r\n}\r\n", "JScript"),
       ":SCRIPT: line 3: Syntax error (error 1002, column 14)\n"},
      {"JScriptKeyword", WithScript("x = 1;\r\n", "jscript", "with"),
       ":SCRIPT: the names of the form's elements: Expected identifier (error 1010, column 5)\n"},
      {"JScriptEvent", WithScript("function txtDepth_OnClose() {}\r\n", "JScript"),
       ":SCRIPT: line 1: txtDepth has no event OnClose: txtDepth_OnClose is never run by the form\n"},
      {"JScriptCase", WithScript("\r\nfunction txtdepth_OnChange() {}\r\n", "jScript"),
       ":SCRIPT: line 2: txtdepth_OnChange fails as an event procedure: JScript tells cases apart, and the "
       "form calls txtDepth_OnChange\n"},
      {"LostCharacter", Project("[CONTROLS_1]\r\nType=Label\r\nText=a\x81\r\n", 1),
       ":CONTROLS_1: the value of Text has a character that the code page lacks\n"},
  };
}

class CheckFaultTest : public ::testing::TestWithParam<FaultyProject> {};

TEST_P(CheckFaultTest, IsReportedOnOneLineWithStatus1) {
  const TempFolder folder;
  const std::string form = folder.Write("form è.cwf", GetParam().bytes);
  const Outcome outcome = Cardwright({"check", form, "--data", SourceFile("examples/wells/wells.gpkg")});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, HasSubstr(form + GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(Check, CheckFaultTest, ::testing::ValuesIn(FaultyProjects()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace cardwright::testing
