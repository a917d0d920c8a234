// SPDX-License-Identifier: MIT
// Scripts of form projects in JScript, with real widgets.

#include "forms/FormScriptsFixture.h"

namespace cardwright {
namespace {

class JScriptForms : public FormScripts {
 protected:
  JScriptForms() : FormScripts("JScript") {}
};

TEST_F(JScriptForms, ReachTheControlsByTheirNames) {
  ASSERT_TRUE(
      ReadScript("function Form_Initialize(){\n"
                 "txtDepth.text = '12 ' + txtDepth.USERNAME + ' ' + Controls.Count + ' ' +\n"
                 "  (txtDepth === Controls('TXTDEPTH')) + ' ' + typeof cmdToday;\n}\n"));
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"12 txtDepth 3 true object");
}

TEST_F(JScriptForms, ReachTheControlsByTheCollection) {
  ASSERT_TRUE(
      ReadScript("function cmdToday_OnClick(){\nControls(\"txtDepth\").Text = 'deep';\n"
                 "for (var e = new Enumerator(Controls); !e.atEnd(); e.moveNext())\n"
                 "  txtDepth.Text += ' ' + e.item().UserName;\n}\n"));
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"deep Form txtDepth cmdToday");
}

TEST_F(JScriptForms, RunAtWidgetEvents) {
  ASSERT_TRUE(ReadScript("var clicks = 0;\nfunction cmdToday_OnClick(){\ntxtDepth.Text = ++clicks;\n}\n"));
  ClickToday();
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"2");
}

TEST_F(JScriptForms, MatchProceduresByCase) {
  ASSERT_TRUE(ReadScript("function cmdtoday_onclick(){\ntxtDepth.Text = 'no';\n}\n"));
  ClickToday();
  EXPECT_EQ(Depth(), u"");
  EXPECT_EQ(OnlyBox(), "Run-time tests|Error N. 5 - Invalid procedure call or argument|exclamation")
      << "the form finds the procedure whatever its case, the language does not";
}

TEST_F(JScriptForms, CanCancelOk) {
  ASSERT_TRUE(ReadScript(
      "var clicks = 0;\nfunction Form_BeforeOkClick(){\nclicks++;\nif (clicks < 2) Response = false;\n}\n"));
  TakeEvents();
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{});
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"});
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_F(JScriptForms, SendCommandsToTheHost) {
  ASSERT_TRUE(ReadScript(
      "function cmdToday_OnClick(){\nORVExecute('PAN 1');\ntxtDepth.Text = ORVRequest('SCALE');\n}\n"));
  host->Take();
  ClickToday();
  EXPECT_EQ(host->Take(), (Lines{"X PAN 1", "R SCALE"}));
}

class JScriptFormFailures : public JScriptForms, public testing::WithParamInterface<ScriptFailure> {};

TEST_P(JScriptFormFailures, ReportTheAuthorsLines) {
  EXPECT_TRUE(ReadScript(GetParam().script));
  EXPECT_EQ(OnlyBox(), std::string("Run-time tests|") + GetParam().box + "|exclamation");
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, JScriptFormFailures,
    testing::Values(
        ScriptFailure{"Syntax", "\n\nif (x) { y = ;\n}\n",
                      "Error N. 1002 - Syntax error \r\n(Line: 3    Column:13)"},
        ScriptFailure{"Undefined", "function Form_Initialize(){\n  var x = 1;\n  x = nothing + 1;\n}\n",
                      "Error N. 5009 - 'nothing' is undefined \r\n(Line: 3    Column:2)"},
        ScriptFailure{
            "NoSuchMember", "function Form_Initialize(){\n  txtDepth.Depth = 1;\n}\n",
            "Error N. 438 - Object doesn't support this property or method \r\n(Line: 2    Column:2)"},
        ScriptFailure{"Thrown", "throw new Error(7, 'too deep');\n",
                      "Error N. 7 - too deep \r\n(Line: 1    Column:6)"},
        ScriptFailure{"Recursion", "function Form_Initialize(){\nForm_Initialize();\n}\n",
                      "Error N. 28 - Out of stack space \r\n(Line: 2    Column:0)"},
        ScriptFailure{"FileSystem", "var x = new ActiveXObject('Scripting.FileSystemObject');\n",
                      "Error N. 429 - Automation server can't create object \r\n(Line: 1    Column:8)"},
        ScriptFailure{"File", "var x = GetObject('/etc/passwd');\n",
                      "Error N. 429 - ActiveX component can't create object \r\n(Line: 1    Column:17)"}),
    [](const auto& one) { return one.param.title; });

TEST_F(JScriptForms, CanUseSafeClasses) {
  ASSERT_TRUE(
      ReadScript("function Form_Initialize(){\nvar d = new ActiveXObject('Scripting.Dictionary');\n"
                 "d.Add('a', 1);\nvar r = new ActiveXObject('VBScript.RegExp');\nr.Pattern = '^\\\\d+$';\n"
                 "txtDepth.Text = d.Count + ' ' + r.Test('12');\n}\n"));
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"1 true");
}

}  // namespace
}  // namespace cardwright
