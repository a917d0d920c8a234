// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CtrlC.h"
#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;

class JScriptTest : public ::testing::Test {
 protected:
  /// Runs a script of this text, in the folder where it lies, as a.js.
  Outcome Run(const std::string& script, std::vector<std::string> options = {}, const std::string& input = {},
              const std::vector<std::string>& arguments = {}) {
    m_Folder.Write("a.js", script);
    options.insert(options.begin(), "script");
    options.emplace_back("a.js");
    options.insert(options.end(), arguments.begin(), arguments.end());
    return RunProgram(CARDWRIGHT_PROGRAM, options, input, m_Folder.File(""));
  }

  TempFolder m_Folder;
};

TEST_F(JScriptTest, EchoesValuesAsTheLanguageConvertsThem) {
  const Outcome outcome =
      Run("WScript.Echo(1, 'è', true, 1.5, 0.1 + 0.2);\nwscript.echo();\nWScript.Echo(undefined, null);\n"
          "WScript.Echo({}, [1, [2, 3]], { toString: function() { return 'own'; } });\n"
          "WScript.Echo(new Error('lost'), NaN, 1e21, -0);",
          {"--locale=it-IT"});
  EXPECT_EQ(outcome.out,
            "1 è true 1.5 0.30000000000000004\n\nundefined null\n[object Object] 1,2,3 own\n"
            "Error: lost NaN 1e+21 0\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(JScriptTest, CatchesWhatAConversionOfAnEchoedValueThrows) {
  const Outcome outcome =
      Run("var bad = { toString: function() { throw new Error(7, 'no text'); } };\n"
          "try { WScript.Echo(bad); } catch (e) { WScript.Echo(e.number & 0xFFFF, e.message); }");
  EXPECT_EQ(outcome.out, "7 no text\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(JScriptTest, UsesTheStandardStreams) {
  const Outcome outcome = Run(
      "while (!WScript.StdIn.AtEndOfStream) WScript.StdOut.WriteLine('[' + WScript.StdIn.ReadLine() + ']');\n"
      "WScript.StdErr.Write('c');",
      {}, "one\nzwölf\nlast");
  EXPECT_EQ(outcome.out, "[one]\n[zwölf]\n[last]\n");
  EXPECT_EQ(outcome.err, "c");
}

TEST_F(JScriptTest, PassesItsArgumentsUnchanged) {
  const Outcome outcome = Run(
      "var words = WScript.Arguments;\nWScript.Echo(words.length, words.Count, words(1), words.Item(0));\n"
      "for (var e = new Enumerator(words); !e.atEnd(); e.moveNext()) WScript.Echo(e.item());\n"
      "WScript.Echo(words(3));",
      {}, {}, {"--trace", "two words", "-h"});
  EXPECT_EQ(outcome.out, "3 3 two words --trace\n--trace\ntwo words\n-h\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "a.js(4, 14) JScript runtime error: Subscript out of range\n");
}

TEST_F(JScriptTest, EndsWithStatus1AndALineForAnUncaughtError) {
  const Outcome outcome = Run("WScript.Echo(1);\n  x = nothing + 1;\nWScript.Echo(2);");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "1\n");
  EXPECT_EQ(outcome.err, "a.js(2, 3) JScript runtime error: 'nothing' is undefined\n");
  EXPECT_EQ(Run("throw new Error(7, 'too deep');").err, "a.js(1, 7) JScript runtime error: too deep\n");
  EXPECT_EQ(Run("throw 'deep';").err, "a.js(1, 1) JScript runtime error: Exception thrown and not caught\n");
  EXPECT_EQ(Run("function f() { f(); }\nf();").err,
            "a.js(1, 16) JScript runtime error: Out of stack space\n");
}

TEST_F(JScriptTest, ReportsACompilationError) {
  for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--check"}}) {
    const Outcome outcome = Run("WScript.Echo(1);\nx = (1", options);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "a.js(2, 7) JScript compilation error: Expected ')'\n");
  }
}

TEST_F(JScriptTest, IsOnlyCompiledWithCheck) {
  const Outcome outcome = Run("WScript.Echo(1);", {"--check"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(JScriptTest, CannotBeDisassembled) {
  const Outcome outcome = Run("WScript.Echo(1);", {"--disassemble"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "a.js: JScript has no instructions to show\n");
}

TEST_F(JScriptTest, QuitsAtOnceDespiteErrorHandling) {
  const Outcome outcome =
      Run("function leave() { try { WScript.Echo(1); WScript.Quit(7); WScript.Echo(2); }\n"
          "catch (e) { WScript.Echo(3); } finally { WScript.Echo(4); } }\n"
          "try { leave(); } catch (e) { } finally { WScript.Echo(5); }\nWScript.Echo(6);");
  EXPECT_EQ(outcome.status, 7);
  EXPECT_EQ(outcome.out, "1\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(Run("WScript.Quit();").status, 0);
  EXPECT_EQ(Run("WScript.Quit(3);\nWScript.Quit(4);").status, 3);
}

TEST_F(JScriptTest, CreatesObjectsAndRejectsUnknownClasses) {
  const Outcome outcome =
      Run("var d = new ActiveXObject('Scripting.Dictionary');\nd.Add('a', 1);\nd('b') = 2;\n"
          "WScript.Echo(d.Count, d('b'), new VBArray(d.Keys()).toArray());\n"
          "var f = WScript.CreateObject('scripting.filesystemobject');\nWScript.Echo(f.FileExists('a.js'));\n"
          "try { GetObject('a.js'); } catch (e) { WScript.Echo(e.number & 0xFFFF); }\n"
          "var x = new ActiveXObject('No.Such');");
  EXPECT_EQ(outcome.out, "2 2 a,b\ntrue\n432\n");
  EXPECT_EQ(outcome.err, "a.js(8, 9) JScript runtime error: Automation server can't create object\n");
}

TEST_F(JScriptTest, WalksFilesWithAnEnumerator) {
  m_Folder.Write("b.txt", "12");
  const Outcome outcome =
      Run("var f = new ActiveXObject('Scripting.FileSystemObject');\n"
          "for (var e = new Enumerator(f.GetFolder('.').Files); !e.atEnd(); e.moveNext())\n"
          "  if (/\\.txt$/.test(e.item().Name)) WScript.Echo(e.item().name, e.item().Size);");
  EXPECT_EQ(outcome.out, "b.txt 2\n");
}

TEST_F(JScriptTest, CreatesTheClassesOfTheDesktopModule) {
  const Outcome outcome = Run(
      "var items = new ActiveXObject('Cardwright.CItems'), item = new ActiveXObject('Cardwright.CItem');\n"
      "item.Text = 'one';\nitems.Add(item);\nWScript.Echo(items.Count, items(1).Text);\n"
      "try { new ActiveXObject('Cardwright.NoSuch'); } catch (e) { WScript.Echo(e.number & 0xFFFF); }\n"
      "WScript.Sleep(1);");
  EXPECT_EQ(outcome.out, "1 one\n429\n");
  EXPECT_THAT(outcome.err, Not(HasSubstr("a.js")));  // the toolkit may have something to say
  EXPECT_EQ(outcome.status, 0);
}

const std::string kReadsAForm =
    "var form = WScript.CreateObject('Cardwright.FormInput', 'form_');\n"
    "form.ProjectRead(WScript.Arguments(0));\n"
    "form.Controls('Form').PropertyValue('Text') = 'Wells';\n";

TEST_F(JScriptTest, CallsEventProceduresInAnyCaseTheExactOneFirst) {
  const Outcome outcome = Run(kReadsAForm +
                                  "function FORM_setParentCaption(text) { WScript.Echo(text); }\n"
                                  "function form_NeedResize(w, h) { WScript.Echo(w > 0, h > 0); }\n"
                                  "function form_needresize() { WScript.Echo('no'); }\n",
                              {}, {}, {ExampleForm()});
  EXPECT_EQ(outcome.out, "true true\nWells\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(JScriptTest, EndsAtAnErrorInAnEvent) {
  const Outcome outcome =
      Run(kReadsAForm + "function form_NeedResize() { throw new Error(7, 'too large'); }\n", {}, {},
          {ExampleForm()});
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("a.js(4, 36) JScript runtime error: too large\n"));
  EXPECT_EQ(outcome.status, 1);
}

TEST_F(JScriptTest, TracesItsStatements) {
  const Outcome outcome = Run("var x = 1;\n\n  WScript.Echo(x + 1);", {"--trace"});
  EXPECT_EQ(outcome.out, "2\n");
  EXPECT_EQ(outcome.err, "a.js:1: var x = 1;\na.js:3: WScript.Echo(x + 1);\n");
}

TEST_F(JScriptTest, ProfilesItsLinesLongestFirst) {
  const Outcome outcome =
      Run("var x;\nfor (var i = 0; i < 3; i++)\n  x = i;\nWScript.Sleep(30);", {"--profile"});
  EXPECT_THAT(outcome.err, ContainsRegex("count  line  source\n *[0-9.]+ +1 +4  WScript.Sleep\\(30\\);\n"));
  EXPECT_THAT(outcome.err, ContainsRegex(" +3 +3  x = i;\n"));
}

TEST_F(JScriptTest, StopsOnCtrlCWhateverItDoes) {
  for (const char* endless :
       {"for (;;) { }", "for (;;) try { for (;;) nothing(); } catch (e) { } finally { }",
        "for (;;) WScript.Sleep(100000);",
        "new ActiveXObject('Scripting.FileSystemObject').OpenTextFile('/dev/zero').SkipLine();"}) {
    const std::string script =
        m_Folder.Write("a.js", std::string("WScript.StdErr.WriteLine('on');\nWScript.Sleep(0);\n") + endless);
    EXPECT_EQ(StatusAfterCtrlC(m_Folder, script), 130) << endless;
    EXPECT_THAT(ReadAll(m_Folder.File("err")), HasSubstr("interrupted"));
    EXPECT_EQ(ReadAll(m_Folder.File("out")), "");
  }
}

}  // namespace
}  // namespace cardwright::testing
