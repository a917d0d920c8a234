// SPDX-License-Identifier: MIT
// Scripts of forms that cause other scripts to run.

#include "forms/EitherLanguage.h"

namespace cardwright {
namespace {

using NestedScripts = EitherLanguage;

TEST_P(NestedScripts, AreReplacedWhenAFormIsReadInAnEvent) {
  const std::string script =
      InJScript() ? "jScRiPt\r\nfunction Form_Initialize(){\r\ntxtOther.Text = 'new';\r\n}\r\n"
                  : "VBScript\r\nSub Form_Initialize()\r\ntxtOther.Text = \"new\"\r\nEnd Sub\r\n";
  const QString other =
      qt::ToQString(folder.Put("other.cwf", ProjectText({{"TextBox", "txtOther", ""}}, {}, script)));
  QWidget elsewhere;
  qt::FormInput second(&elsewhere);
  ASSERT_TRUE(ReadEither(
      "Sub cmdToday_OnClick()\nORVExecute \"NOW\"\ntxtDepth.Text = txtDepth.Text & \"!\"\nEnd Sub\n",
      "function cmdToday_OnClick(){\nORVExecute('NOW');\ntxtDepth.Text = txtDepth.Text + '!';\n}\n"));
  OnNow([&] { second.ProjectRead(other); });
  ClickToday();
  host->onLine = nullptr;
  EXPECT_EQ(boxes.Take(), Lines{});
  const IControl* written = FindControl(second.Object()->Controls(), u"txtOther");
  ASSERT_TRUE(written);
  EXPECT_EQ(ToText(written->PropertyValue(Variant(u"Text"))), u"new");
  EXPECT_EQ(Depth(), u"!") << "the procedure that was running ends in the engine that it began in";
  ClickToday();
  EXPECT_EQ(Depth(), u"!") << "the first form's procedures are gone";
}

TEST_P(NestedScripts, CanPressOkInsideOk) {
  ASSERT_TRUE(
      ReadEither("Sub Form_BeforeOkClick()\nOk\nEnd Sub\n", "function Form_BeforeOkClick(){\nOk();\n}\n"));
  ClickOk();
  EXPECT_EQ(TakeEvents(), Lines{"OkClick"});
  EXPECT_EQ(boxes.Take(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(, NestedScripts, kBothLanguages, [](const auto& one) { return one.param; });

}  // namespace
}  // namespace cardwright
