// SPDX-License-Identifier: MIT
// Scripts that delete objects which the form, the host or they themselves still use, with real widgets. Each
// ends with a numbered error or does what it asks for, and the form can be used and closed afterwards.

#include "forms/EitherLanguage.h"

namespace cardwright {
namespace {

class HostileScripts : public EitherLanguage {};

INSTANTIATE_TEST_SUITE_P(Languages, HostileScripts, kBothLanguages,
                         [](const auto& one) { return one.param; });

TEST_P(HostileScripts, CloseTheirOwnFormInAnEvent) {
  ASSERT_TRUE(
      ReadEither("Sub cmdToday_OnClick()\nUserCloseForm\nORVExecute \"AFTER \" & txtDepth.UserName\n"
                 "txtDepth.Text = \"late\"\nEnd Sub\n",
                 "function cmdToday_OnClick(){\nUserCloseForm();\nORVExecute('AFTER ' + txtDepth.UserName);\n"
                 "txtDepth.Text = 'late';\n}\n"));
  const Ref<IControl> field(&Control(u"txtDepth"));
  QObject::connect(form, &qt::FormInput::CancelClick, form, [this] { delete form.data(); });
  ClickToday();
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(host->Take(), Lines{"X AFTER txtDepth"});
  EXPECT_EQ(Numbers(), Numbered{"91"});
}

TEST_P(HostileScripts, HoldAWidgetThatHasGone) {
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\nSet w = txtDepth.Object\nw.Text = \"first\"\nORVExecute \"NOW\"\n"
      "ORVExecute w.Text\nEnd Sub\n",
      "function cmdToday_OnClick(){\nvar w = txtDepth.Object;\nw.Text = 'first';\nORVExecute('NOW');\n"
      "ORVExecute(w.Text);\n}\n"));
  OnNow([this] { delete form.data(); });
  ClickToday();
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(host->Take(), Lines{"X NOW"});
  EXPECT_EQ(Numbers(), Numbered{"91"});
}

TEST_P(HostileScripts, UseTheNamesOfAFormThatHasGone) {
  ASSERT_TRUE(
      ReadEither("Sub cmdToday_OnClick()\nORVExecute \"NOW\"\nORVExecute Controls.Count & "
                 "Controls(\"txtDepth\").UserName\n"
                 "Ok\nCancel\nResponse = False\nx = CreateColor(1, 2, 3)\nUserCloseForm\n"
                 "Controls(1).PropertyValue(\"Text\") = \"title\"\nORVExecute \"END\"\nEnd Sub\n",
                 "function cmdToday_OnClick(){\nORVExecute('NOW');\nORVExecute(Controls.Count + "
                 "Controls('txtDepth').UserName);\n"
                 "Ok();\nCancel();\nResponse = false;\nvar x = CreateColor(1, 2, 3);\nUserCloseForm();\n"
                 "Controls(1).Width = 20;\nORVExecute('END');\n}\n"));
  OnNow([this] { delete form.data(); });
  const Ref<FormInput> object = form->Object();
  TakeEvents();
  ClickToday();
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(host->Take(), (Lines{"X NOW", "X 3txtDepth", kOff, kSelectNone, kOn, kRedrawNow, kOff, kOn,
                                 kRedrawNow, "X END"}));
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(HostileScripts, RemoveTheControlThatWasClicked) {
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\nControls.Remove \"cmdToday\"\nORVExecute cmdToday.UserName & Controls.Count\n"
      "Set cmdToday = Nothing\nEnd Sub\n",
      "function cmdToday_OnClick(){\nControls.Remove('cmdToday');\n"
      "ORVExecute(cmdToday.UserName + Controls.Count);\ncmdToday = null;\n}\n"));
  QWidget& button = Native(u"cmdToday");
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(host->Take(), Lines{"X cmdToday2"});
  EXPECT_EQ(Numbers(), Numbered{});
  // The widget stays. Its control is deleted with its last reference, which in JScript is the collector's
  // decision.
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(host->Take(), Lines{});
}

TEST_P(HostileScripts, RemoveEveryObjectOfTheForm) {
  ASSERT_TRUE(
      ReadEither("Sub txtDepth_OnChange()\nDo While Controls.Count > 0\nControls.Remove 1\nLoop\nEnd Sub\n"
                 "Sub Form_BeforeOkClick()\nORVExecute \"ok\"\nEnd Sub\n",
                 "function txtDepth_OnChange(){\nwhile (Controls.Count > 0) Controls.Remove(1);\n}\n"
                 "function Form_BeforeOkClick(){\nORVExecute('ok');\n}\n"));
  QTest::keyClick(&Native(u"txtDepth"), '5');
  EXPECT_EQ(form->Object()->Controls().Count(), 0);
  form->SetFeatureID("7");
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"});
  EXPECT_FALSE(form->ProjectRead(qt::ToQString(folder.Name("form.cwf"))));
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(HostileScripts, AddForeignObjectsToTheControls) {
  ASSERT_TRUE(
      ReadEither("Sub cmdToday_OnClick()\nControls.Add 5, \"five\"\nControls.Add Nothing, \"none\"\n"
                 "Controls.Add OrvExecutor, \"host\", 1\nControls.Add Controls, \"all\"\nControls.Add "
                 "txtDepth, \"twice\"\n"
                 "txtDepth.ParentForm.ChangeControlName OrvExecutor, \"x\"\nEnd Sub\n",
                 "function cmdToday_OnClick(){\nControls.Add(5, 'five');\nControls.Add(null, 'none');\n"
                 "Controls.Add(OrvExecutor, 'host', 1);\nControls.Add(Controls, "
                 "'all');\nControls.Add(txtDepth, 'twice');\n"
                 "txtDepth.ParentForm.ChangeControlName(OrvExecutor, 'x');\n}\n"));
  ClickToday();
  EXPECT_EQ(Numbers(), Numbered{});
  EXPECT_EQ(form->Object()->Controls().Count(), 8);
  form->SetFeatureID("7");
  ClickOk();
  ClickCancel();
  EXPECT_EQ(TakeEvents(), (Lines{"OkClick", "CancelClick"}));
  form->Object()->Controls().Remove(Variant(u"all"));  // a collection that holds itself would leak
}

TEST_P(HostileScripts, RenameTheControlThatWasClicked) {
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\ntxtDepth.Object.Text = \"today\"\ncmdToday.ParentForm.ChangeControlName "
      "cmdToday, \"cmdLater\"\n"
      "ORVExecute cmdToday.UserName\nEnd Sub\nSub cmdLater_OnClick()\ntxtDepth.Object.Text = \"later\"\nEnd "
      "Sub\n",
      "function cmdToday_OnClick(){\ntxtDepth.Object.Text = 'today';\n"
      "cmdToday.ParentForm.ChangeControlName(cmdToday, 'cmdLater');\nORVExecute(cmdToday.UserName);\n}\n"
      "function cmdLater_OnClick(){\ntxtDepth.Object.Text = 'later';\n}\n"));
  ClickToday();
  EXPECT_EQ(Depth(), u"today");
  EXPECT_EQ(host->Take(), Lines{"X cmdLater"});
  EXPECT_EQ(TakeEvents(), Lines{"ControlNameChanged cmdToday object"});
  QTest::mouseClick(&Native(u"cmdLater"), Qt::LeftButton);
  EXPECT_EQ(Depth(), u"later");
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(HostileScripts, ReadTheirOwnProjectAgainInAnEvent) {
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\nx = cmdToday.ParentForm.ProjectRead(ORVRequest(\"FILE\"))\nORVExecute "
      "Controls.Count\n"
      "ORVExecute txtDepth.UserName\nEnd Sub\n",
      "function cmdToday_OnClick(){\nvar x = cmdToday.ParentForm.ProjectRead(ORVRequest('FILE'));\n"
      "ORVExecute(Controls.Count);\nORVExecute(txtDepth.UserName);\n}\n"));
  host->replies["FILE"] = folder.Name("form.cwf").ToUtf8();
  ClickToday();
  EXPECT_EQ(host->Take().back(), "X txtDepth") << "what runs ends in the engine that it began in";
  ClickToday();
  EXPECT_EQ(host->Take().back(), "X txtDepth");
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(HostileScripts, RunWhileTheirConnectionIsClosed) {
  ASSERT_TRUE(
      ReadEither("Sub cmdToday_OnClick()\nORVExecute \"NOW\"\ntxtDepth.Object.Text = \"<\" & "
                 "ORVRequest(\"X\") & \">\"\nEnd Sub\n"
                 "Sub Form_BeforeOkClick()\nEnd Sub\n",
                 "function cmdToday_OnClick(){\nORVExecute('NOW');\ntxtDepth.Object.Text = '<' + "
                 "ORVRequest('X') + '>';\n}\n"
                 "function Form_BeforeOkClick(){}\n"));
  const std::int32_t handle = SharedHost().Handle();
  OnNow([&] {
    Module().connections.Close(handle);
    SharedHost().SetHandle(0);
  });
  ClickToday();
  EXPECT_EQ(Depth(), u"<>");
  EXPECT_EQ(host->Take(), Lines{"X NOW"});
  ClickOk();
  ClickCancel();
  EXPECT_EQ(TakeEvents(), Lines{}) << "without a host the buttons tell nobody";
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(HostileScripts, RunWhileTheLibraryIsShutDown) {
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\nORVExecute \"NOW\"\nORVExecute \"AFTER\"\nMsgBox \"still here\"\nEnd Sub\n",
      "function cmdToday_OnClick(){\nORVExecute('NOW');\nORVExecute('AFTER');\n}\n"));
  OnNow([this] {
    delete form.data();
    library.reset();
  });
  ClickToday();
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(host->Take().front(), "X NOW");
  library.emplace();
}

TEST_P(HostileScripts, KeepAFormAliveOnlyAsLongAsItsScript) {
  ASSERT_TRUE(
      ReadEither("Set all = Nothing\nSub Form_Initialize()\nSet all = Controls\nSet all2 = "
                 "txtDepth.Object.Font\nEnd Sub\n",
                 "var all, all2;\nfunction Form_Initialize(){\nall = Controls;\nall2 = { f: "
                 "txtDepth.Object.Font, me: null };\n"
                 "all2.me = all2;\n}\n"));
  delete form.data();
  library.reset();
  library.emplace();
  EXPECT_EQ(Numbers(), Numbered{});
}

}  // namespace
}  // namespace cardwright
