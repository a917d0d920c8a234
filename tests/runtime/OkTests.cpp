// SPDX-License-Identifier: MIT
// The order in which OK and Cancel run scripts, write attributes and tell the host.

#include "cardwright/qt/surface/QtSurface.h"
#include "runtime/FormTest.h"

namespace cardwright {
namespace {

const std::string kScript =
    "VBScript\r\nSub Form_BeforeOkClick()\r\nEnd Sub\r\nSub Form_AfterSetAttributes()\r\nEnd Sub\r\n"
    "Sub Form_AfterOkClick()\r\nEnd Sub\r\nSub Form_BeforeCancelClick()\r\nEnd Sub\r\n";

class Ok : public FormTest {
 protected:
  Ok() { host->SetTheme({{"name", 0, 20, 0, ""}, {"depth", 1, 8, 2, ""}}); }
  void ReadForm(const std::string& script = kScript) {
    ASSERT_TRUE(Read({{"TextBox", "name", "Attribute=name\r\nText=Old\r\n"},
                      {"TextBox", "depth", "Attribute=depth\r\nText=3.5\r\n"}},
                     {}, script));
    form->SetNewFeature(true);
    form->SetFeatureID("7");
    host->Take();
    engine->Take();
    TakeEvents();
    TakeMerged();
    MergeLogs();
  }
};

TEST_F(Ok, WritesBetweenItsScriptsAndThenTellsTheHost) {
  ReadForm();
  ClickOk();
  EXPECT_EQ(TakeMerged(),
            (Lines{kOff, "Run Form_BeforeOkClick", kSelect7, kSelected, kMoveFirst, kCount, Describe(1),
                   Describe(2), Set("name", "|Old|"), Set("depth", "3.5"), "Run Form_AfterSetAttributes",
                   kSelectNone, "Run Form_AfterOkClick", kOn, kRedrawNow, "OkClick"}));
}

TEST_F(Ok, RunsTheSameWayWithoutAScript) {
  ReadForm({});
  ClickOk();
  EXPECT_EQ(TakeMerged(),
            (Lines{kOff, kSelect7, kSelected, kMoveFirst, kCount, Describe(1), Describe(2),
                   Set("name", "|Old|"), Set("depth", "3.5"), kSelectNone, kOn, kRedrawNow, "OkClick"}));
}

TEST_F(Ok, WritesNothingAfterARefusal) {
  ReadForm();
  engine->procedures["Form_BeforeOkClick"] = [this] { engine->SetResponse(false); };
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{kOff, "Run Form_BeforeOkClick", kOn, kRedrawNow}));

  engine->procedures.clear();
  ClickOk();
  EXPECT_EQ(TakeMerged().back(), "OkClick") << "a refusal holds for one step only";
}

TEST_F(Ok, IsHeldBackByARefusalAfterwards) {
  ReadForm();
  engine->procedures["Form_AfterOkClick"] = [this] { engine->SetResponse(false); };
  ClickOk();
  const Lines log = TakeMerged();
  EXPECT_EQ(log.back(), kRedrawNow);
  EXPECT_EQ(std::count(log.begin(), log.end(), Set("name", "|Old|")), 1);
}

TEST_F(Ok, DoesNotCareForTheAnswerOfAfterSetAttributes) {
  ReadForm();
  engine->procedures["Form_AfterSetAttributes"] = [this] { engine->SetResponse(false); };
  ClickOk();
  EXPECT_EQ(TakeEvents(), (Lines{"OkClick"}));
}

TEST_F(Ok, SkipsWritingWhereNoFeatureIsFound) {
  ReadForm();
  host->replies["THEME_SELECTED_NUMBER" + kPlace] = "0";
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{kOff, "Run Form_BeforeOkClick", kSelect7, kSelected, kSelectNone,
                                 "Run Form_AfterOkClick", kOn, kRedrawNow, "OkClick"}));
}

TEST_F(Ok, DoesNotAskWhetherTheFeatureIsValid) {
  ReadForm();
  host->replies["THEME_CURRENT_ISVALID" + kPlace] = "0";
  ClickOk();
  const Lines log = TakeMerged();
  EXPECT_EQ(std::count(log.begin(), log.end(), kIsValid), 0);
  EXPECT_EQ(std::count(log.begin(), log.end(), Set("name", "|Old|")), 1);
}

TEST_F(Ok, WritesNothingForABlankIdentifier) {
  ReadForm();
  form->SetFeatureID(" ");
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{kOff, "Run Form_BeforeOkClick", kSelectNone, "Run Form_AfterOkClick", kOn,
                                 kRedrawNow, "OkClick"}));
}

TEST_F(Ok, OnlyRunsScriptsWhereAttributesAreNotToBeSet) {
  ReadForm();
  form->SetStoresAttributes(false);
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{"Run Form_BeforeOkClick", "Run Form_AfterOkClick", "OkClick"}));
  ClickCancel();
  EXPECT_EQ(TakeMerged(), (Lines{"Run Form_BeforeCancelClick", "CancelClick"}));
}

TEST_F(Ok, NeitherButtonActsWithoutAConnection) {
  ReadForm();
  library->Vellum().SetTarvoHandle(0);
  ClickOk();
  ClickCancel();
  EXPECT_EQ(TakeMerged(), Lines{});
}

TEST_F(Ok, LetsTheHostRedrawAgainWhereACommandFails) {
  ReadForm();
  host->failsAt = "THEME_MOVEFIRST |wells| |POINT|";
  ClickOk();
  EXPECT_EQ(TakeMerged(),
            (Lines{kOff, "Run Form_BeforeOkClick", kSelect7, kSelected, kMoveFirst, kOn, kRedrawNow}));
}

TEST_F(Ok, CancelRunsItsScriptBetweenTheRedrawCommands) {
  ReadForm();
  ClickCancel();
  EXPECT_EQ(TakeMerged(), (Lines{kOff, "Run Form_BeforeCancelClick", kOn, kRedrawNow, "CancelClick"}));
  engine->procedures["Form_BeforeCancelClick"] = [this] { engine->SetResponse(false); };
  ClickCancel();
  EXPECT_EQ(TakeMerged(), (Lines{kOff, "Run Form_BeforeCancelClick", kOn, kRedrawNow}));
}

TEST_F(Ok, AFailingScriptDoesNotStopIt) {
  ReadForm();
  engine->failures["Run Form_BeforeOkClick"] = 11;
  ClickOk();
  EXPECT_EQ(TakeEvents(), (Lines{"OkClick"}));
  EXPECT_EQ(boxes.Take().size(), 1U);
}

// A debugging run.

class Debugging : public Ok {
 protected:
  Debugging() : m_Surface(m_Canvas) {
    output = Ref<TextWidget>(dynamic_cast<TextWidget*>(
        m_Surface.Add(u"CardwrightCtrl.MultilineTextBox", u"output", nullptr).get()));
    library->Vellum();
    Module().debugOutput = output;
  }

 private:
  QWidget m_Canvas;
  qt::QtSurface m_Surface;

 protected:
  Ref<TextWidget> output;
};

TEST_F(Debugging, PrintsWhatItWouldWrite) {
  ReadForm();
  form->SetDebugMode(true);
  output->SetDisplayText({});
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{"Run Form_BeforeOkClick", kCount, Describe(1), Describe(2),
                                 "Run Form_AfterSetAttributes", "Run Form_AfterOkClick", "OkClick"}));
  const std::string rule(100, '-');
  EXPECT_EQ(output->DisplayText().ToUtf8(),
            "\r\n\r\n" + rule + "\r\nINTERNAL PROCEDURE: DATA STORAGE START\r\n" + rule +
                "\r\n     THEME_SET_ATTRIBUTE |wells| |POINT| |name| |Old|\r\n"
                "     THEME_SET_ATTRIBUTE |wells| |POINT| |depth| 3.5\r\n" +
                rule + "\r\nINTERNAL PROCEDURE: DATA STORAGE END\r\n" + rule + "\r\n\r\n\r\n");
}

TEST_F(Debugging, CancelSendsNoRedrawCommands) {
  ReadForm();
  form->SetDebugMode(true);
  ClickCancel();
  EXPECT_EQ(TakeMerged(), (Lines{"Run Form_BeforeCancelClick", "CancelClick"}));
}

TEST_F(Debugging, PrintsNothingWhereAttributesAreNotToBeSet) {
  ReadForm();
  form->SetDebugMode(true);
  form->SetStoresAttributes(false);
  output->SetDisplayText({});
  ClickOk();
  EXPECT_EQ(TakeMerged(), (Lines{"Run Form_BeforeOkClick", "Run Form_AfterOkClick", "OkClick"}));
  EXPECT_EQ(output->DisplayText(), u"");
}

TEST_F(Debugging, LoadsAtReadingWithoutSelectingWhileThereIsNoFeature) {
  form->SetDebugMode(true);
  MergeLogs();
  ReadWhole({{"TextBox", "name", "Attribute=name\r\n"}}, {}, kScript);
  Lines log = TakeMerged();
  std::erase_if(log, [](const std::string& line) { return line.starts_with("NeedResize"); });
  log.resize(5);
  EXPECT_EQ(log, (Lines{"R THEME_NUMBER |wells|", kCount, Describe(1), Describe(2), "Language VBScript"}));
  EXPECT_EQ(WidgetOf<TextWidget>(u"name").MaxLength(), 20);
  EXPECT_EQ(WidgetOf(u"name").Tag(), u"0");
}

TEST_F(Debugging, LoadsTheFeatureAtReadingWhereOneIsSet) {
  form->SetDebugMode(true);
  form->SetFeatureID("7");
  host->Take();
  ReadWhole({{"TextBox", "name", "Attribute=name\r\n"}});
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NUMBER |wells|", kOff, kSelect7, kSelected, kMoveFirst, kIsValid,
                                 kCount, Describe(1), Describe(2), Get("name"), kSelectNone, kOn}));
}

TEST_F(Debugging, WithoutOutputOkOnlyTellsTheHost) {
  ReadForm();
  SetRow(u"name", u"IsNeeded", u"True");
  SetRow(u"name", u"Text", u"");
  form->SetDebugMode(true);
  Module().debugOutput = nullptr;
  ClickOk();
  ClickCancel();
  EXPECT_EQ(TakeMerged(), (Lines{"OkClick", "CancelClick"}));
}

TEST_F(Debugging, WithoutOutputNothingStartsAtReading) {
  Module().debugOutput = nullptr;
  form->SetDebugMode(true);
  EXPECT_TRUE(ReadWhole({}, {}, kScript));
  EXPECT_EQ(engine->Take(), Lines{});
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NUMBER |wells|"}));
}

}  // namespace
}  // namespace cardwright
