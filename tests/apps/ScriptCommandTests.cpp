// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CtrlC.h"
#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;

class ScriptTest : public ::testing::Test {
 protected:
  /// Runs a script of this text, in the folder where it lies, as a.vbs.
  Outcome Run(const std::string& script, std::vector<std::string> options = {}, const std::string& input = {},
              const std::vector<std::string>& arguments = {}) {
    m_Folder.Write("a.vbs", script);
    options.insert(options.begin(), "script");
    options.emplace_back("a.vbs");
    options.insert(options.end(), arguments.begin(), arguments.end());
    return RunProgram(CARDWRIGHT_PROGRAM, options, input, m_Folder.File(""));
  }

  TempFolder m_Folder;
};

TEST_F(ScriptTest, EchoesValuesWithBlanksBetween) {
  const Outcome outcome = Run("WScript.Echo 1, \"è\", True\nWScript.Echo");
  EXPECT_EQ(outcome.out, "1 è True\n\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(ScriptTest, WritesToBothStreams) {
  const Outcome outcome =
      Run("WScript.StdOut.Write \"a\"\nWScript.StdOut.WriteLine \"b\"\nWScript.StdErr.WriteLine \"c\"");
  EXPECT_EQ(outcome.out, "ab\n");
  EXPECT_EQ(outcome.err, "c\n");
}

TEST_F(ScriptTest, ReadsStandardInput) {
  const Outcome outcome =
      Run("While Not WScript.StdIn.AtEndOfStream\nWScript.Echo \"[\" & WScript.StdIn.ReadLine & \"]\"\nWend",
          {}, "one\nzwölf\nlast");
  EXPECT_EQ(outcome.out, "[one]\n[zwölf]\n[last]\n");
}

TEST_F(ScriptTest, PassesItsArgumentsUnchanged) {
  const Outcome outcome =
      Run("WScript.Echo WScript.Arguments.Count, WScript.Arguments(1), WScript.Arguments.Item(0)\n"
          "For Each word In WScript.Arguments\nWScript.Echo word\nNext\nWScript.Echo WScript.Arguments(3)",
          {}, {}, {"--trace", "two words", "-h"});
  EXPECT_EQ(outcome.out, "3 two words --trace\n--trace\ntwo words\n-h\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("Subscript out of range"));
}

TEST_F(ScriptTest, KnowsItsPath) {
  const Outcome outcome = Run("WScript.Echo WScript.ScriptName\nWScript.Echo WScript.ScriptFullName");
  EXPECT_EQ(outcome.out, "a.vbs\n" + std::filesystem::canonical(m_Folder.File("a.vbs")).string() + "\n");
}

TEST_F(ScriptTest, EndsWithStatus1AndALineForAnUncaughtError) {
  const Outcome outcome = Run("WScript.Echo 1\n  x = 1 / 0\nWScript.Echo 2");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "1\n");
  EXPECT_EQ(outcome.err, "a.vbs(2, 3) VBScript runtime error: Division by zero\n");
}

TEST_F(ScriptTest, ReportsTheSourceOfAnErrorThatItRaised) {
  const Outcome outcome = Run("Err.Raise vbObjectError + 7, \"Wells\", \"too deep\"");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "a.vbs(1, 1) Wells: too deep\n");
}

TEST_F(ScriptTest, ReportsACompilationError) {
  for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--check"}}) {
    const Outcome outcome = Run("WScript.Echo 1\nx = (1", options);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "a.vbs(2, 7) VBScript compilation error: Expected ')'\n");
  }
}

TEST_F(ScriptTest, IsOnlyCompiledWithCheck) {
  const Outcome outcome = Run("WScript.Echo 1", {"--check"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
}

TEST_F(ScriptTest, QuitsAtOnceDespiteErrorHandling) {
  const Outcome outcome =
      Run("Sub Leave\nOn Error Resume Next\nWScript.Echo 1\nWScript.Quit 7\nWScript.Echo 2\nEnd Sub\n"
          "On Error Resume Next\nLeave\nWScript.Echo 3");
  EXPECT_EQ(outcome.status, 7);
  EXPECT_EQ(outcome.out, "1\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(Run("WScript.Quit").status, 0);
}

const std::string kQuitsAtItsEnd =
    "Class Last\nSub Class_Terminate\nWScript.Echo \"end\"\nWScript.Quit 5\nWScript.Echo \"no\"\nEnd Sub\n"
    "End Class\nSet o = New Last\n";

TEST_F(ScriptTest, QuitsFromATerminateProcedure) {
  for (const char* rest :
       {"Set o = Nothing\nWScript.Echo \"no\"", "Set o = Nothing\nx = MsgBox(\"no\")", ""}) {
    const Outcome outcome = Run(kQuitsAtItsEnd + rest);
    EXPECT_EQ(outcome.out, "end\n") << rest;
    EXPECT_EQ(outcome.status, 5) << rest;
  }
}

TEST_F(ScriptTest, KeepsTheFirstExitStatus) {
  EXPECT_EQ(Run(kQuitsAtItsEnd + "WScript.Quit 3").status, 3);
  const Outcome outcome = Run(kQuitsAtItsEnd + "x = 1 / 0");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "end\n");
  EXPECT_EQ(outcome.err, "a.vbs(9, 1) VBScript runtime error: Division by zero\n");
}

TEST_F(ScriptTest, FailsIfItsOutputCannotBeWritten) {
  const std::string script = m_Folder.Write("a.vbs", "WScript.Echo 1");
  const Outcome outcome =
      RunProgram("sh", {"-c", "exec \"$0\" script \"$1\" >/dev/full", CARDWRIGHT_PROGRAM, script});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, script + ": the output cannot be written: Disk full\n");
}

TEST_F(ScriptTest, ReadsItsFileInAnyCommonEncoding) {
  EXPECT_EQ(Run("\xEF\xBB\xBFWScript.Echo \"è\"").out, "è\n");
  EXPECT_EQ(Run("WScript.Echo \"\xE8\"").out, "è\n");
  EXPECT_EQ(Run("WScript.Echo \"\xC6\"", {"--codepage", "windows-1251"}).out, "Ж\n");
}

TEST_F(ScriptTest, UsesTheChosenLocale) {
  EXPECT_EQ(Run("WScript.Echo 1.5", {"--locale=it-IT"}).out, "1,5\n");
}

TEST_F(ScriptTest, CreatesObjectsAndRejectsUnknownClasses) {
  const Outcome outcome = Run(
      "Set d = CreateObject(\"Scripting.Dictionary\")\nd(\"a\") = 1\nWScript.Echo d.Count\n"
      "Set f = WScript.CreateObject(\"scripting.filesystemobject\")\nWScript.Echo f.FileExists(\"a.vbs\")\n"
      "Set x = CreateObject(\"No.Such\")");
  EXPECT_EQ(outcome.out, "1\nTrue\n");
  EXPECT_EQ(outcome.err,
            "a.vbs(6, 1) VBScript runtime error: ActiveX component can't create object: 'No.Such'\n");
}

TEST_F(ScriptTest, CreatesTheClassesOfTheDesktopModule) {
  const Outcome outcome =
      Run("Set items = CreateObject(\"Cardwright.CItems\")\nSet item = CreateObject(\"Cardwright.CItem\")\n"
          "item.Text = \"one\"\nitems.Add item\nWScript.Echo items.Count, items(1).Text\n"
          "WScript.Echo TypeName(CreateObject(\"Cardwright.CLabel\")), "
          "TypeName(CreateObject(\"Cardwright.CForm\"))\n"
          "WScript.Echo TypeName(CreateObject(\"Cardwright.Vellum\"))\n"
          "On Error Resume Next\nSet x = CreateObject(\"Cardwright.NoSuch\")\nWScript.Echo "
          "Err.Number\nWScript.Sleep 1");
  EXPECT_EQ(outcome.out, "1 one\nCLabel CForm\nVellum\n429\n");
  EXPECT_THAT(outcome.err, ::testing::Not(HasSubstr("a.vbs")));  // the toolkit may have something to say
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(ScriptTest, AnswersMessageBoxesByTheirDefaultButtonWithoutADisplay) {
  const Outcome outcome =
      Run("WScript.Echo MsgBox(\"Sure?\", vbYesNo + vbDefaultButton2)\nWScript.Echo InputBox(\"Name?\", , "
          "\"me\")");
  EXPECT_EQ(outcome.out, "Sure?\n7\nName?\nme\n");
}

TEST_F(ScriptTest, DrawsWindowsOffScreenIfTheDisplayCannotBeReached) {
  const std::string script = m_Folder.Write(
      "a.vbs",
      "Set l = CreateObject(\"Cardwright.CLabel\")\nWScript.Echo TypeName(l), MsgBox(\"Sure?\", vbYesNo)");
  const std::vector<std::string> words = {"-u", "QT_QPA_PLATFORM", "DISPLAY=:4711", CARDWRIGHT_PROGRAM,
                                          "script"};
  const auto run = [&](std::vector<std::string> more) {
    more.insert(more.begin(), words.begin(), words.end());
    return RunProgram("env", more);
  };
  const Outcome outcome = run({script});
  EXPECT_EQ(outcome.out, "Sure?\nCLabel 6\n");
  EXPECT_EQ(outcome.status, 0);
  const Outcome insisting = run({"--display", script});
  EXPECT_THAT(insisting.err, HasSubstr("a.vbs(1, 1) VBScript runtime error: there is no display"));
  EXPECT_EQ(insisting.status, 1);
}

TEST_F(ScriptTest, TracesItsStatements) {
  const Outcome outcome = Run("x = 1\n\n  WScript.Echo x + 1", {"--trace"});
  EXPECT_EQ(outcome.out, "2\n");
  EXPECT_EQ(outcome.err, "a.vbs:1: x = 1\na.vbs:3: WScript.Echo x + 1\n");
}

TEST_F(ScriptTest, ProfilesItsLinesLongestFirst) {
  const Outcome outcome = Run("For i = 1 To 3\nx = i\nNext\nWScript.Sleep 30", {"--profile"});
  EXPECT_THAT(outcome.err, ContainsRegex("count  line  source\n *[0-9.]+ +1 +4  WScript.Sleep 30\n"));
  EXPECT_THAT(outcome.err, ContainsRegex(" +3 +2  x = i\n"));
}

TEST_F(ScriptTest, ProfilesExecutedTextWithTheLineThatExecutesIt) {
  const std::string script =
      "x = 1\n' nothing\nExecute \"y = 1\" & vbLf & \"For i = 1 To 5\" & vbLf & \"y = i\" & vbLf & \"Next\"";
  EXPECT_EQ(Run(script, {"--trace"}).err,
            "a.vbs:1: x = 1\na.vbs:3: " + script.substr(script.find("Execute")) + "\n");
  const Outcome outcome = Run(script, {"--profile"});
  EXPECT_THAT(outcome.err, ContainsRegex(" +1 +1  x = 1\n"));
  EXPECT_THAT(outcome.err, ContainsRegex(" +1 +3  Execute "));
  EXPECT_THAT(outcome.err, ::testing::Not(ContainsRegex(" +2  ' nothing")));
}

TEST_F(ScriptTest, ProfilesTheTimeAfterACallWithTheLineOfTheCall) {
  const Outcome outcome =
      Run("Function F\nF = 1\nEnd Function\nx = F() & Len(String(20000000, \"a\"))", {"--profile"});
  EXPECT_THAT(outcome.err, ContainsRegex("source\n *[0-9.]+ +1 +4  x = F"));
}

TEST_F(ScriptTest, RejectsAFileThatItCannotRead) {
  EXPECT_EQ(Cardwright({"script"}).status, 2);
  EXPECT_EQ(Cardwright({"script", "--sideways", "a.vbs"}).status, 2);
  const Outcome missing = Cardwright({"script", "/no/such/file.vbs"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.err, "/no/such/file.vbs: the file cannot be read\n");
  EXPECT_EQ(Cardwright({"script", m_Folder.File("")}).status, 2);
  const std::string text = m_Folder.Write("a.txt", "");
  const Outcome other = Cardwright({"script", text});
  EXPECT_EQ(other.status, 2);
  EXPECT_EQ(other.err, text + ": only files in VBScript (.vbs) and JScript (.js) can be run\n");
}

TEST_F(ScriptTest, StopsOnCtrlCWhateverItDoes) {
  for (const char* endless :
       {"Do\nx = x + 1\nLoop", "On Error Resume Next\nDo\nx = 1 / 0\nLoop", "Do\nWScript.Sleep 100000\nLoop",
        "Class C\nSub Class_Terminate\nDo\nLoop\nEnd Sub\nEnd Class\nSet o = New C",
        "Set f = CreateObject(\"Scripting.FileSystemObject\")\n"
        "f.OpenTextFile(\"/dev/zero\").SkipLine"}) {
    const std::string script =
        m_Folder.Write("a.vbs", std::string("WScript.StdErr.WriteLine \"on\"\nWScript.Sleep 0\n") + endless);
    EXPECT_EQ(StatusAfterCtrlC(m_Folder, script), 130) << endless;
    EXPECT_THAT(ReadAll(m_Folder.File("err")), HasSubstr("interrupted"));
    EXPECT_EQ(ReadAll(m_Folder.File("out")), "");
  }
}

TEST_F(ScriptTest, StopsOnCtrlCTheScriptsOfItsForms) {
  const std::string form = m_Folder.Write(
      "a.cwf", "[FORM]\r\nScaleMode= 3\r\nControlsNumber= 0\r\n[SCRIPT]\r\nVBScript\r\nDo\r\nLoop\r\n");
  const std::string script = m_Folder.Write(
      "a.vbs",
      "Class Host\nFunction ORVExecute(c)\nEnd Function\nFunction ORVRequest(c)\nEnd Function\nEnd Class\n"
      "Set vellum = CreateObject(\"Cardwright.Vellum\")\nSet hosts = CreateObject(\"Cardwright.Hosts\")\n"
      "vellum.TarvoHandle = hosts.Register(New Host)\nSet form = CreateObject(\"Cardwright.FormInput\")\n"
      "WScript.StdErr.WriteLine \"on\"\nform.ProjectRead \"" +
          form + "\"\nWScript.Echo \"went on\"\n");
  EXPECT_EQ(StatusAfterCtrlC(m_Folder, script), 130);
  EXPECT_EQ(ReadAll(m_Folder.File("out")), "");
}

}  // namespace
}  // namespace cardwright::testing
