// SPDX-License-Identifier: MIT
// Scripts of form projects in the engine that a program provides, with real widgets.

#include <QApplication>
#include <QMenu>

#include "forms/FormScriptsFixture.h"

namespace cardwright {
namespace {

TEST_F(FormScripts, ReachTheControlsByTheirNames) {
  ASSERT_TRUE(
      ReadScript("Option Explicit\nSub Form_Initialize()\n"
                 "txtDepth.Text = \"12 \" & TypeName(txtDepth) & \" \" & Controls.Count\nEnd Sub\n"));
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"12 CTextBox 3");
}

TEST_F(FormScripts, RunAtWidgetEvents) {
  ASSERT_TRUE(ReadScript("Sub cmdToday_OnClick()\ntxtDepth.Text = txtDepth.Text & \"+\"\nEnd Sub\n"));
  ClickToday();
  ClickToday();
  EXPECT_EQ(Depth(), u"++");
}

TEST_F(FormScripts, CanCancelOk) {
  ASSERT_TRUE(ReadScript(
      "Dim clicks\nSub Form_BeforeOkClick()\nclicks = clicks + 1\nResponse = clicks > 1\nEnd Sub\n"));
  TakeEvents();
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{});
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"});
}

TEST_F(FormScripts, SendCommandsToTheHost) {
  host->Take();
  QWidget elsewhere;
  qt::FormInput second(&elsewhere);
  ASSERT_TRUE(ReadScript(
      "Sub cmdToday_OnClick()\nORVExecute \"PAN 1\"\ntxtDepth.Text = ORVRequest(\"SCALE\")\nEnd Sub\n"));
  host->Take();
  ClickToday();
  EXPECT_EQ(host->Take(), (Lines{"X PAN 1", "R SCALE"}));
}

TEST_F(FormScripts, OpenTheMenuThatAControlHas) {
  ASSERT_TRUE(ReadScript(
      "Sub cmdToday_OnClick()\ntxtDepth.Text = ControlMenu(cmdToday) & \" \" & ControlMenu(Form) & \" \" & "
      "ControlMenu(Nothing) & \" \" & ControlMenu(txtDepth)\nEnd Sub\n"));
  ClickToday();
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"False False False True");
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

class FormScriptFailures : public FormScripts, public testing::WithParamInterface<ScriptFailure> {};

TEST_P(FormScriptFailures, ReportTheAuthorsLines) {
  EXPECT_TRUE(ReadScript(GetParam().script));
  EXPECT_EQ(OnlyBox(), std::string("Run-time tests|") + GetParam().box + "|exclamation");
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, FormScriptFailures,
    testing::Values(ScriptFailure{"Syntax", "\n\nIf x Then y =\n",
                                  "Error N. 1002 - Syntax error \r\n(Line: 3    Column:13)"},
                    ScriptFailure{"Division", "Sub Form_Initialize()\nx = 1\nx = x / 0\nEnd Sub\n",
                                  "Error N. 11 - Division by zero \r\n(Line: 3    Column:0)"},
                    ScriptFailure{"Undeclared", "Option Explicit\nSub Form_Initialize()\nx = 1\nEnd Sub\n",
                                  "Error N. 500 - Variable is undefined: 'x' \r\n(Line: 3    Column:0)"},
                    ScriptFailure{"Recursion", "Sub Form_Initialize()\nForm_Initialize\nEnd Sub\n",
                                  "Error N. 28 - Out of stack space \r\n(Line: 2    Column:0)"},
                    ScriptFailure{
                        "FileSystem", "Set x = CreateObject(\"Scripting.FileSystemObject\")\n",
                        "Error N. 429 - ActiveX component can't create object: 'Scripting.FileSystemObject' "
                        "\r\n(Line: 1    Column:0)"},
                    ScriptFailure{"OptionBelow", "x = 1\nOption Explicit\n",
                                  "Error N. 1024 - Expected statement \r\n(Line: 2    Column:0)"}),
    [](const auto& one) { return one.param.title; });

TEST_F(FormScripts, CanUseSafeClasses) {
  ASSERT_TRUE(
      ReadScript("Sub Form_Initialize()\nSet d = CreateObject(\"Scripting.Dictionary\")\nd(\"a\") = 1\n"
                 "Set r = CreateObject(\"VBScript.RegExp\")\nr.Pattern = \"^\\d+$\"\ntxtDepth.Text = d.Count "
                 "& r.Test(\"12\")\nEnd Sub\n"));
  EXPECT_EQ(boxes.Take(), Lines{});
  EXPECT_EQ(Depth(), u"1True");
}

TEST(ScriptControlLanguages, AreFoundInAnyCase) {
  ProvideFormScripts(BothLanguages());
  const Ref<ScriptControl> control = Module().makeScriptControl();
  control->SetLanguage(u"vBsCrIpT");
  EXPECT_EQ(control->Language(), u"vBsCrIpT");
  control->AddCode(u"Function Twice(x)\nTwice = 2 * x\nEnd Function\nSub Note(a, b)\nEnd Sub");
  Variant two(2);
  EXPECT_EQ(ToLong(control->Run(u"twice", {&two, 1})), 4);
  const Ref<ScriptModule> init = control->AddModule(u"init");
  init->AddCode(u"Sub Main()\nEnd Sub");
  Lines listed;
  for (const Ref<ScriptModule>& module : control->Modules())
    for (const ScriptProcedure& procedure : module->Procedures())
      listed.push_back(module->Name().ToUtf8() + "." + procedure.name.ToUtf8() + " " +
                       std::to_string(procedure.argumentCount));
  EXPECT_EQ(listed, (Lines{"Global.Twice 1", "Global.Note 2", "init.Main 0"}));

  EXPECT_THROW(control->SetSiteWindow(12345), Error);
  EXPECT_THROW(control->AddCode(u"x ="), Error);
  EXPECT_EQ(control->LastError().number, 1002);
  control->Reset();
  EXPECT_EQ(control->LastError().number, 0);
  EXPECT_EQ(control->Modules().size(), 1U);
  EXPECT_THROW(init->Run(u"Main"), Error) << "its code is gone";
  control->SetLanguage(u"jSCRIPT");
  control->AddCode(u"function Twice(x) { return 2 * x; }");
  EXPECT_EQ(ToLong(control->Run(u"Twice", {&two, 1})), 4);
  EXPECT_THROW(control->Run(u"twice", {&two, 1}), Error) << "this language tells cases apart";
  EXPECT_THROW(control->SetLanguage(u"Fortran"), Error);
  EXPECT_THROW(control->AddCode(u"x = 1"), Error);
  Module().makeScriptControl = nullptr;
}

}  // namespace
}  // namespace cardwright
