// SPDX-License-Identifier: MIT
// What goes on when windows are closed in the middle of things, and what is left for those who still hold it.

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Lifetime : public FormTest {
 protected:
  void ReadForm() {
    host->SetTheme({{"a", 0, 20, 0, "A"}, {"b", 0, 20, 0, "B"}});
    ASSERT_TRUE(Read({{"TextBox", "a", "Attribute=a\r\n"},
                      {"TextBox", "b", "Attribute=b\r\n"},
                      {"CommandButton", "button", ""}},
                     {},
                     "VBScript\r\nSub a_OnChange()\r\nEnd Sub\r\nSub button_OnClick()\r\nEnd Sub\r\n"
                     "Sub Form_BeforeOkClick()\r\nEnd Sub\r\nSub Form_BeforeCancelClick()\r\nEnd Sub\r\n"
                     "Sub Form_AfterSetAttributes()\r\nEnd Sub\r\n"));
    Show();
    TakeEvents();
  }
  void CloseIn(const std::string& procedure) {
    engine->procedures[procedure] = [this] { delete form.data(); };
  }
};

TEST_F(Lifetime, AHostMayCloseItsWindowOnOk) {
  ReadForm();
  QObject::connect(form, &qt::FormInput::OkClick, form, [this] { delete form.data(); });
  ClickOk();
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AHostMayCloseItsWindowOnCancel) {
  ReadForm();
  QObject::connect(form, &qt::FormInput::CancelClick, form, [this] { delete form.data(); });
  ClickCancel();
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AHostMayCloseItsWindowOnAKey) {
  ReadForm();
  QObject::connect(form, &qt::FormInput::OkClick, form, [this] { delete form.data(); });
  QTest::keyClick(&Native(u"a"), Qt::Key_Return);
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AHostMayCloseItsWindowWhenItIsAskedForRoom) {
  QObject::connect(form, &qt::FormInput::NeedResize, form, [this] { delete form.data(); });
  const Ref<FormInput> object = form->Object();
  EXPECT_TRUE(object->ProjectRead(
      folder.Put("f.cwf", ProjectText({{"TextBox", "a", ""}}, {}, "VBScript\r\nSub Form_Initialize()\r\n"))));
  EXPECT_TRUE(form.isNull());
  EXPECT_TRUE(engine->HasRun("Form_Initialize"));
}

TEST_F(Lifetime, AHostMayCloseItsWindowOnHearingTheTitle) {
  form->setParent(nullptr);
  QObject::connect(form, &qt::FormInput::SetParentCaption, form, [this] { delete form.data(); });
  const Ref<FormInput> object = form->Object();
  object->ProjectRead(
      folder.Put("f.cwf", ProjectText({{"TextBox", "a", ""}}) + "[ZORDER]\r\na=0\r\nForm=0\r\n"));
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(object->Controls().Count(), 1);
}

TEST_F(Lifetime, AHostMayCloseItsWindowWhileItIsAsked) {
  ReadForm();
  host->onLine = [this](const std::string& line) {
    if (line == kCount) delete form.data();
  };
  const Ref<FormInput> object = form->Object();
  object->SetFeatureID(u"7");
  EXPECT_TRUE(form.isNull());
  EXPECT_EQ(host->Take().back(), kOn);
}

// A form that has gone in the middle of OK still tells those who hold the object; the widget's own signals
// are silent.
TEST_F(Lifetime, AScriptMayCloseTheWindowInTheMiddleOfOk) {
  for (const char* procedure : {"Form_BeforeOkClick", "Form_AfterSetAttributes"}) {
    if (!form) form = new qt::FormInput(&window);
    ReadForm();
    form->SetNewFeature(true);
    form->SetFeatureID("7");
    int told = 0;
    QObject::connect(form, &qt::FormInput::OkClick, &window, [&] { ++told; });
    engine->procedures.clear();
    CloseIn(procedure);
    ClickOk();
    EXPECT_TRUE(form.isNull()) << procedure;
    EXPECT_EQ(told, 0) << procedure;
    EXPECT_EQ(host->Take().back(), kRedrawNow) << procedure;
  }
}

TEST_F(Lifetime, AScriptMayCloseTheWindowInTheMiddleOfCancel) {
  ReadForm();
  CloseIn("Form_BeforeCancelClick");
  ClickCancel();
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AScriptMayCloseTheWindowItWasClickedIn) {
  ReadForm();
  CloseIn("button_OnClick");
  QTest::mouseClick(&Native(u"button"), Qt::LeftButton);
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AScriptMayCloseTheWindowWhileItIsTypedIn) {
  ReadForm();
  CloseIn("a_OnChange");
  QTest::keyClick(&Native(u"a"), Qt::Key_X);
  EXPECT_TRUE(form.isNull());
}

TEST_F(Lifetime, AScriptMayCloseTheWindowWhileAFeatureIsLoaded) {
  ReadForm();
  CloseIn("a_OnChange");
  // Another form serves the engine, so that nothing but the widget holds this one.
  qt::FormInput other;
  LetProperty(*Module().formControlsObject, u"Response", true);
  other.ProjectRead(qt::ToQString(folder.Put(
      "o.cwf", ProjectText({{"TextBox", "a", "Attribute=a\r\n"}}, {}, "VBScript\r\nSub a_OnChange()\r\n"))));
  host->Take();
  form->SetFeatureID("7");
  EXPECT_TRUE(form.isNull());
  const Lines lines = host->Take();
  EXPECT_EQ(lines.back(), kOn) << "the host redraws again";
}

TEST_F(Lifetime, ControlsThatAScriptHoldsAnswerWithoutTheirWidgets) {
  ReadForm();
  const Ref<IControl> control(&Control(u"a"));
  const Ref<Object> widget = control->BoundObject();
  const Ref<FormInput> object = form->Object();
  delete form.data();
  EXPECT_EQ(control->UserName(), u"a");
  EXPECT_FALSE(control->ParentForm());
  EXPECT_EQ(ErrorOf([&] { GetProperty(*widget, u"Text"); }), 91);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*widget, u"Text", u"x"); }), 91);
  EXPECT_EQ(ErrorOf([&] { control->SetPropertyValue(Variant(u"Text"), Variant(u"x")); }), 91);
  EXPECT_EQ(object->Controls().Count(), 4);
  EXPECT_EQ(object->WindowHandle(), 0);
  EXPECT_EQ(object->OuterWidth(), 0);
  EXPECT_FALSE(object->ProjectRead(folder.Name("form.cwf"))) << "there is no owner to read for";
  EXPECT_FALSE(object->ProjectSave(folder.Name("saved.cwf")));
  object->SetFeatureID(u"7");
  object->Ok();
  object->Cancel();
  object->PlaceButtonsForDesign();
}

TEST_F(Lifetime, TheWidgetsGoWithTheForm) {
  ReadForm();
  const QPointer<QWidget> native = &Native(u"a");
  delete form.data();
  EXPECT_TRUE(native.isNull());
}

TEST_F(Lifetime, TwoFormsOnOneThreadKeepTheirControls) {
  ReadForm();
  auto second = std::make_unique<qt::FormInput>(&window);
  second->ProjectRead(qt::ToQString(folder.Put("s.cwf", ProjectText({{"TextBox", "a", "Text=second\r\n"}}))));
  SetRow(u"a", u"Text", u"first");
  EXPECT_EQ(FindControl(second->Object()->Controls(), u"a")->DisplayText(), u"second");
  second.reset();
  EXPECT_EQ(Row(u"a", u"Text"), u"first");
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"a", u"Text"), u"A");
}

}  // namespace
}  // namespace cardwright
