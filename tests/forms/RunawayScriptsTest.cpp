// SPDX-License-Identifier: MIT
// Scripts that recurse or allocate without end, and events at unexpected moments, with real widgets. Each
// ends with a numbered error or does what it asks for.

#include "forms/EitherLanguage.h"

namespace cardwright {
namespace {

class RunawayScripts : public EitherLanguage {};

INSTANTIATE_TEST_SUITE_P(Languages, RunawayScripts, kBothLanguages,
                         [](const auto& one) { return one.param; });

TEST_P(RunawayScripts, PressOkAndCancelInEachOthersEvents) {
  ASSERT_TRUE(
      ReadEither("Sub Form_BeforeOkClick()\nORVExecute \"ok\"\nOk\nCancel\nEnd Sub\n"
                 "Sub Form_BeforeCancelClick()\nORVExecute \"cancel\"\nCancel\nOk\nEnd Sub\n",
                 "function Form_BeforeOkClick(){\nORVExecute('ok');\nOk();\nCancel();\n}\n"
                 "function Form_BeforeCancelClick(){\nORVExecute('cancel');\nCancel();\nOk();\n}\n"));
  form->SetStoresAttributes(false);
  ClickOk();
  EXPECT_EQ(host->Take(), (Lines{"X ok", "X cancel"}));
  EXPECT_EQ(TakeEvents(), (Lines{"CancelClick", "OkClick"}));
  ClickCancel();
  EXPECT_EQ(host->Take(), (Lines{"X cancel", "X ok"}));
  EXPECT_EQ(TakeEvents(), (Lines{"OkClick", "CancelClick"}));
}

TEST_P(RunawayScripts, ChangeAFieldInItsOwnChangeEvent) {
  ASSERT_TRUE(
      ReadEither("Sub txtDepth_OnChange()\ntxtDepth.Object.Text = txtDepth.Object.Text & \"x\"\nEnd Sub\n",
                 "function txtDepth_OnChange(){\ntxtDepth.Object.Text = txtDepth.Object.Text + 'x';\n}\n"));
  QTest::keyClick(&Native(u"txtDepth"), '5');
  EXPECT_EQ(Numbers(), Numbered{"28"}) << "what the innermost calls goes on";
  EXPECT_GT(Depth().Size(), 50U);
}

TEST_P(RunawayScripts, RaiseTheirOwnEventsThroughTheHost) {
  ASSERT_TRUE(ReadEither("Sub cmdToday_OnClick()\nORVExecute \"NOW\"\nEnd Sub\n",
                         "function cmdToday_OnClick(){\nORVExecute('NOW');\n}\n"));
  OnNow([this] { form->Object()->RunEvent(u"cmdToday_OnClick"); });
  ClickToday();
  EXPECT_EQ(Numbers(), Numbered{"28"}) << "what the innermost calls goes on";
}

TEST_P(RunawayScripts, LoadTheFeatureInItsOwnLoadEvent) {
  host->SetTheme({{"DEPTH", 0, 0, 0, "12"}});
  ASSERT_TRUE(ReadEither(
      "Sub txtDepth_OnChange()\ntxtDepth.ParentForm.FeatureID = txtDepth.ParentForm.FeatureID + 1\nEnd Sub\n",
      "function txtDepth_OnChange(){\ntxtDepth.ParentForm.FeatureID = 1 + "
      "+txtDepth.ParentForm.FeatureID;\n}\n"));
  SetRow(u"txtDepth", u"Attribute", u"DEPTH");
  form->SetFeatureID("7");
  EXPECT_EQ(form->FeatureID().toStdString(), "8");
  EXPECT_EQ(Depth(), u"12") << "the second time the text is what it was";
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(RunawayScripts, ReceiveNoEventsWhileTheProjectIsRead) {
  ASSERT_TRUE(ReadEither("Sub txtDepth_OnChange()\nORVExecute \"CHANGED\"\nEnd Sub\n",
                         "function txtDepth_OnChange(){\nORVExecute('CHANGED');\n}\n"));
  const Ref<Widget> widget(&WidgetOf(u"txtDepth"));
  host->onLine = [&](const std::string& line) {
    if (line.starts_with("R THEME_NUMBER")) LetProperty(*widget, u"Text", u"meanwhile");
  };
  EXPECT_TRUE(form->ProjectRead(qt::ToQString(folder.Name("form.cwf"))));
  host->onLine = nullptr;
  EXPECT_EQ(host->Take(), Lines{"R THEME_NUMBER |wells|"});
  LetProperty(*widget, u"Text", u"later");
  EXPECT_EQ(host->Take(), Lines{"X CHANGED"});
  EXPECT_EQ(Numbers(), Numbered{});
}

TEST_P(RunawayScripts, ReceiveEventsBeforeControlsHaveNames) {
  OnNow([this] { SetRow(u"txtDepth", u"Text", u"early"); });
  ASSERT_TRUE(
      ReadEither("ORVExecute \"NOW\"\nSub txtDepth_OnChange()\nORVExecute txtDepth.UserName\nEnd Sub\n",
                 "ORVExecute('NOW');\nfunction txtDepth_OnChange(){\nORVExecute(txtDepth.UserName);\n}\n"));
  EXPECT_EQ(Numbers(), Numbered{InJScript() ? "5007" : "424"});
  SetRow(u"txtDepth", u"Text", u"late");
  EXPECT_EQ(host->Take(), Lines{"X txtDepth"});
}

TEST_P(RunawayScripts, ExceedTheirMemory) {
  ASSERT_TRUE(
      ReadEither("Sub cmdToday_OnClick()\nReDim a(2000000000)\nEnd Sub\n"
                 "Sub txtDepth_OnChange()\ns = String(300000000, \"x\")\nEnd Sub\n",
                 "function cmdToday_OnClick(){\n'x'.repeat(1 << 30);\n}\n"
                 "function txtDepth_OnChange(){\nvar s = 'x'; for (;;) s += s;\n}\n"));
  ClickToday();
  QTest::keyClick(&Native(u"txtDepth"), '5');
  const Numbered numbers = Numbers();
  ASSERT_EQ(numbers.size(), 2U);
  for (const std::string& number : numbers)
    EXPECT_TRUE(number == "7" || number == "14" || number == "5029") << number;
  EXPECT_EQ(Depth(), u"5");
}

TEST_P(RunawayScripts, CanBeAnyBytes) {
  std::string bytes;
  for (int k = 255; k >= 0; --k) bytes += static_cast<char>(k);
  const Lines sources = {bytes,
                         std::string("\0\0\0", 3),
                         std::string(5000, '('),
                         std::string(5000, '"'),
                         "\xff\xfe" + std::string("S\0u\0b\0", 6),
                         "x = \"" + std::string(100000, 'x'),
                         "'\x81\x8d\x8f\n\x1a\x1a",
                         "/*" + bytes,
                         "Sub Form_Initialize()\nfunction Form_Initialize(\n" + bytes};
  for (const std::string& source : sources) {
    EXPECT_TRUE(ReadScript(source));
    for (const std::string& box : boxes.Take()) EXPECT_NE(box.find("Error N. "), box.npos) << box;
    ClickToday();
    ClickOk();
    delete form.data();
    form = new qt::FormInput(&window);
  }
}

TEST_P(RunawayScripts, ReturnInvalidResponses) {
  ASSERT_TRUE(
      ReadEither("Sub Form_BeforeOkClick()\nResponse = \"perhaps\"\nEnd Sub\nSub "
                 "Form_BeforeCancelClick()\nResponse = 0\nEnd Sub\n",
                 "function Form_BeforeOkClick(){\nResponse = 'perhaps';\n}\nfunction "
                 "Form_BeforeCancelClick(){\nResponse = 0;\n}\n"));
  ClickOk();
  EXPECT_EQ(Numbers(), Numbered{"13"});
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"}) << "a procedure that fails refuses nothing";
  ClickCancel();
  EXPECT_EQ(TakeEvents(), Lines{});
}

TEST_P(RunawayScripts, CannotCancelAfterANestedEvent) {
  ASSERT_TRUE(
      ReadEither("Sub Form_BeforeOkClick()\nResponse = False\ntxtDepth.Object.Text = \"x\"\nEnd Sub\nSub "
                 "txtDepth_OnChange()\nEnd Sub\n",
                 "function Form_BeforeOkClick(){\nResponse = false;\ntxtDepth.Object.Text = "
                 "'x';\n}\nfunction txtDepth_OnChange(){}\n"));
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"}) << "the answer is true again after every event procedure";
}

}  // namespace
}  // namespace cardwright
