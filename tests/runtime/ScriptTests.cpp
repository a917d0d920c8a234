// SPDX-License-Identifier: MIT
// How a form's program is composed and started, how event procedures are found, and what the user is told.

#include "cardwright/qt/surface/QtSurface.h"
#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Scripts : public FormTest {
 protected:
  void ReadScript(const std::string& script) { ReadWhole({{"TextBox", "Depth", ""}}, {}, script); }
};

const Lines kStart{"Language VBScript",
                   "SitehWnd",
                   "Reset",
                   "Timeout -1",
                   "AddObject OrvExecutor global",
                   "AddObject OrvDebugger global",
                   "AddObject FrmCtrls global",
                   "AddCode",
                   "Add init",
                   "AddCode in init",
                   "AllowUI",
                   "in init",
                   "Run Main"};

TEST_F(Scripts, StartInTheEngineStepByStep) {
  ReadScript("VBScript\r\nx = 1\r\n");
  EXPECT_EQ(engine->Take(), kStart);
  EXPECT_EQ(engine->site, SharedHost().Handle());
  EXPECT_EQ(engine->code, u"Dim Form\r\nDim Depth\r\nx = 1\r\n");
  EXPECT_EQ(engine->initCode,
            u"\r\nSub Main()\r\n    \r\n    Set Form = Controls(\"Form\")\r\n    Set Depth = "
            u"Controls(\"Depth\")\r\n"
            u"    \r\nEnd Sub\r\n");
  EXPECT_EQ(Module().scriptLineOffset, 2);
}

TEST_F(Scripts, KeepOptionExplicitFirst) {
  ReadScript("VBSCRIPT\r\nOption Explicit\r\nx = 1\r\n");
  EXPECT_EQ(engine->code, u"Option Explicit\r\nDim Form\r\nDim Depth\r\nx = 1\r\n");
  EXPECT_EQ(engine->Language(), u"VBSCRIPT") << "the language goes to the engine as the project has it";
  EXPECT_EQ(Module().scriptLineOffset, 2);
}

TEST_F(Scripts, AreComposedInJScriptToo) {
  ReadScript("JScript\r\nvar x;\r\n");
  EXPECT_EQ(engine->code, u"var Form;\r\nvar Depth;\r\nvar x;\r\n");
  EXPECT_EQ(
      engine->initCode,
      u"\r\nfunction Main(){\r\n    Form = Controls(\"Form\");\r\n    Depth = Controls(\"Depth\");\r\n}\r\n");
}

TEST_F(Scripts, RunInitializeAfterMain) {
  MergeLogs();
  ReadScript("VBScript\r\nSub Form_Initialize()\r\nEnd Sub\r\n");
  const Lines log = TakeMerged();
  ASSERT_GE(log.size(), 2U);
  EXPECT_EQ(log.front(), "R THEME_NUMBER |wells|");
  EXPECT_EQ(log.at(1), "NeedResize 400 249");
  EXPECT_EQ(log.at(log.size() - 2), "Run Main");
  EXPECT_EQ(log.back(), "Run Form_Initialize");
}

TEST_F(Scripts, DoNotStartWithoutTextLanguageConnectionOrEngine) {
  ReadScript("");
  ReadScript("VBScript\r\n");
  ReadScript("\r\nx = 1\r\n");
  library->Vellum().SetTarvoHandle(0);
  ReadScript("VBScript\r\nx = 1\r\n");
  EXPECT_EQ(engine->Take(), Lines{});
  EXPECT_FALSE(form->Object()->RunEvent(u"Form_Initialize")) << "no procedure runs without a connection";

  library->Connect(host);
  Module().scriptControl = nullptr;
  ReadScript("VBScript\r\nSub Form_Initialize()\r\nEnd Sub\r\n");
  EXPECT_TRUE(form->Object()->RunEvent(u"Form_Initialize"));
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_F(Scripts, RunNoProcedureInALanguageThatIsUnknown) {
  ReadScript("Perl\r\nsub Form_Initialize(){}\r\n");
  EXPECT_EQ(engine->code, u"sub Form_Initialize(){}\r\n");
  EXPECT_FALSE(engine->HasRun("Form_Initialize"));
  EXPECT_TRUE(form->Object()->RunEvent(u"Form_Initialize"));
}

TEST_F(Scripts, AreNotStartedForAFileThatIsNotThere) {
  EXPECT_FALSE(form->ProjectRead(qt::ToQString(folder.Name("missing.cwf"))));
  EXPECT_EQ(engine->Take(), Lines{});
  EXPECT_EQ(events, Lines{});
  EXPECT_EQ(host->Take(), Lines{});
}

TEST_F(Scripts, MeetTheConnectionOfTheForm) {
  ReadScript("VBScript\r\nx = 1\r\n");
  host->Take();
  host->replies["THEME_ACTIVE"] = "springs";
  Object& executor = *engine->objects.at("OrvExecutor");
  EXPECT_NE(&executor, &SharedHost()) << "one of this run's own";
  EXPECT_EQ(ToText(CallMethod(executor, u"ORVRequest", {u"THEME_ACTIVE"})), u"springs");
  CallMethod(executor, u"ORVExecute", {u"MAP_ZOOM"});
  EXPECT_EQ(host->Take(), (Lines{"R THEME_ACTIVE", "X MAP_ZOOM"}));
}

TEST_F(Scripts, ReachTheControlsByName) {
  ReadScript("VBScript\r\nx = 1\r\n");
  Object& controls = *engine->objects.at("FrmCtrls");
  EXPECT_EQ(GetProperty(controls, u"Controls", {u"DEPTH"}).ObjectPtr(), &Control(u"depth"));
  EXPECT_EQ(GetProperty(controls, u"Controls").ObjectPtr(), form->Object()->ControlCollection().get());
  EXPECT_EQ(ErrorOf([&] { GetProperty(controls, u"Controls", {u"none"}); }), 5);
  EXPECT_EQ(ToLong(CallMethod(controls, u"CreateColor", {1, 300, -5})), 0x0000FF01);
  CallMethod(controls, u"Ok");
  CallMethod(controls, u"Cancel");
  CallMethod(controls, u"UserCloseForm");
  TakeMerged();
  EXPECT_EQ(TakeEvents().back(), "CancelClick");
}

TEST_F(Scripts, HaveConstantsThatAreListedByName) {
  ReadScript("VBScript\r\nx = 1\r\n");
  Object& controls = *engine->objects.at("FrmCtrls");
  EXPECT_EQ(ToText(GetProperty(controls, u"ConstantNames")),
            u" ftNone ftPoint ftArc ftPolygon atCharacter atNumeric itString itInteger itFloat");
  const std::pair<const char16_t*, int> kNumbers[] = {
      {u"ftNone", -1},   {u"ftPoint", 0},  {u"ftArc", 1},     {u"ftPolygon", 2}, {u"atCharacter", 0},
      {u"atNumeric", 1}, {u"itString", 0}, {u"itInteger", 1}, {u"itFloat", 2}};
  for (const auto& [name, number] : kNumbers) EXPECT_EQ(ToLong(GetProperty(controls, name)), number);
}

TEST_F(Scripts, AnswerTrueUntilTheySayOtherwise) {
  ReadScript("VBScript\r\nSub Depth_OnClick()\r\nEnd Sub\r\n");
  EXPECT_TRUE(form->Object()->RunEvent(u"Depth_OnClick"));
  engine->procedures["Depth_OnClick"] = [this] { engine->SetResponse(false); };
  EXPECT_FALSE(form->Object()->RunEvent(u"Depth_OnClick"));
  EXPECT_TRUE(form->Object()->RunEvent(u"Depth_Other"));
  engine->procedures.clear();
  EXPECT_TRUE(form->Object()->RunEvent(u"Depth_OnClick"));
}

TEST_F(Scripts, AnswerTrueAfterAFailedProcedureThatHadRefused) {
  ReadScript("VBScript\r\nSub A_B()\r\nEnd Sub\r\n");
  engine->procedures["A_B"] = [this] {
    engine->SetResponse(false);
    Raise(11);
  };
  EXPECT_TRUE(form->Object()->RunEvent(u"A_B"));
  engine->procedures.clear();
  EXPECT_TRUE(form->Object()->RunEvent(u"A_B"));
}

TEST_F(Scripts, OfTheFormReadLastAreTheOnesThatRun) {
  ReadScript("VBScript\r\nSub Depth_OnClick()\r\nEnd Sub\r\n");
  qt::FormInput second;
  second.ProjectRead(qt::ToQString(folder.Put("second.cwf", ProjectText({}, {}, "VBScript\r\n'none\r\n"))));
  engine->Take();
  EXPECT_TRUE(form->Object()->RunEvent(u"Depth_OnClick"));
  EXPECT_EQ(engine->Take(), Lines{});
  EXPECT_EQ(ErrorOf([&] { GetProperty(*engine->objects.at("FrmCtrls"), u"Controls", {u"Depth"}); }), 5);
}

TEST_F(Scripts, HearOfWidgetEvents) {
  ReadScript("VBScript\r\nSub depth_onchange()\r\nEnd Sub\r\nSub Depth_OnClick()\r\nEnd Sub\r\n");
  engine->Take();
  WidgetOf(u"Depth").SetDisplayText(u"3");
  QTest::mouseClick(&Native(u"Depth"), Qt::LeftButton);
  EXPECT_EQ(engine->Take(), (Lines{"Run Depth_OnChange", "Run Depth_OnClick"}));
}

TEST_F(Scripts, OfADebuggingRunWriteToTheHostsOutput) {
  QWidget canvas;
  qt::QtSurface surface(canvas);
  const Ref<Widget> output = surface.Add(u"CardwrightCtrl.MultilineTextBox", u"output", nullptr);
  Module().debugOutput = output;
  form->SetDebugMode(true);
  ReadScript("VBScript\r\nx = 1\r\n");
  EXPECT_EQ(engine->site, form->Object()->WindowHandle());
  EXPECT_NE(engine->site, 0);
  output->SetDisplayText({});
  host->Take();
  Object& debugger = *engine->objects.at("OrvDebugger");
  CallMethod(debugger, u"Show", {u"one"});
  CallMethod(debugger, u"WriteOut", {2});
  CallMethod(*engine->objects.at("OrvExecutor"), u"ORVExecute", {u"MAP_ZOOM"});
  EXPECT_EQ(output->DisplayText(), u"one\r\n2MAP_ZOOM\r\n");
  EXPECT_EQ(host->Take(), Lines{}) << "a debugging run executes nothing";
}

TEST_F(Scripts, OutsideDebuggingWriteNowhere) {
  QWidget canvas;
  qt::QtSurface surface(canvas);
  const Ref<Widget> output = surface.Add(u"CardwrightCtrl.MultilineTextBox", u"output", nullptr);
  Module().debugOutput = output;
  ReadScript("VBScript\r\nx = 1\r\n");
  CallMethod(*engine->objects.at("OrvDebugger"), u"Show", {u"one"});
  CallMethod(*engine->objects.at("OrvExecutor"), u"ORVExecute", {u"MAP_ZOOM"});
  EXPECT_EQ(output->DisplayText(), u"");
  EXPECT_EQ(host->Take().back(), "X MAP_ZOOM");
}

TEST_F(Scripts, AreLookedThroughAnewWhenTheyChange) {
  ReadScript("VBScript\r\nSub One_OnClick()\r\nEnd Sub\r\n");
  const auto runs = [this](const Text& procedure) {
    engine->Take();
    form->Object()->RunEvent(procedure);
    return engine->Take() == Lines{"Run " + procedure.ToUtf8()};
  };
  EXPECT_TRUE(runs(u"One_OnClick"));
  EXPECT_TRUE(runs(u"One_OnClick"));
  EXPECT_FALSE(runs(u"Two_OnClick"));
  library->Vellum().SetScriptContent(u"VBScript\r\nSub Two_OnClick()\r\nEnd Sub\r\n");
  EXPECT_FALSE(runs(u"One_OnClick"));
  EXPECT_TRUE(runs(u"Two_OnClick"));
  library->Vellum().SetScriptContent(u"JScript\r\nSub Two_OnClick()\r\nEnd Sub\r\n");
  EXPECT_FALSE(runs(u"Two_OnClick"));
}

// What the user is told of a failure.

struct Failure {
  std::string step;
  int number;
  ScriptError inScript;
  std::string text;
};

class Failing : public Scripts, public testing::WithParamInterface<Failure> {};

TEST_P(Failing, IsToldOnceAndChangesNoResult) {
  const Failure& failure = GetParam();
  engine->failures[failure.step] = failure.number;
  engine->error = failure.inScript;
  EXPECT_TRUE(ReadWhole({{"TextBox", "a", ""},
                         {"TextBox", "b", ""},
                         {"TextBox", "c", ""},
                         {"TextBox", "d", ""},
                         {"TextBox", "e", ""},
                         {"TextBox", "f", ""}},
                        {}, "VBScript\r\nSub Form_Initialize()\r\nEnd Sub\r\n"));
  EXPECT_EQ(boxes.Take(), (Lines{"Run-time tests|" + failure.text + "|exclamation"}));
}

INSTANTIATE_TEST_SUITE_P(
    Steps, Failing,
    testing::Values(
        Failure{"SitehWnd", 380, {}, "Invalid OV Tarvo connection !\r\nUnable to execute the Script"},
        Failure{"Run Main", 5, {}, "Unable to execute program:\r\nSub or function Main missing !!!"},
        Failure{
            "Language VBScript", 438, {}, "Unable to execute program:\r\nSub or function Main missing !!!"},
        Failure{"AddCode",
                1002,
                {1002, u"Syntax error", 12, 4, {}, false},
                "Error N. 1002 - Syntax error \r\n(Line: 5    Column:4)"},
        Failure{"Run Main",
                380,
                {500, u"Variable is undefined", 8, 0, {}, false},
                "Error N. 500 - Variable is undefined \r\n(Line: 1    Column:0)"},
        Failure{"Run Form_Initialize",
                11,
                {11, u"Division by zero", 9, 3, {}, false},
                "Error N. 11 - Division by zero \r\n(Line: 2    Column:3)"},
        Failure{"Run Form_Initialize", 13, {}, "Error N. 13 - Type mismatch"},
        Failure{"Run Form_Initialize",
                380,
                {},
                "Invalid OV Tarvo connection !\r\nUnable to execute the Script"}));

TEST_F(Scripts, GiveNoInitializeToAnEngineThatWentAwayInMain) {
  engine->procedures["Main"] = [] {
    Module().scriptControl = nullptr;
    Raise(17);
  };
  ReadScript("VBScript\r\nSub Form_Initialize()\r\nEnd Sub\r\n");
  EXPECT_EQ(boxes.Take(), Lines{}) << "without an engine nothing is shown";
  EXPECT_EQ(engine->Take().back(), "Run Main");
}

}  // namespace
}  // namespace cardwright
