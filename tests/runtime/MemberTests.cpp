// SPDX-License-Identifier: MIT
// The form as scripts and hosts reach it by name, and the renaming of its controls.

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Members : public FormTest {
 protected:
  Object& Input() { return *form->Object(); }
  void Rename(std::u16string_view name, const Text& newName) {
    CallMethod(Input(), u"ChangeControlName", {Ref<Object>(&Control(name)), newName});
  }
  Lines Names() {
    Lines names;
    for (const Ref<IControl>& each : ControlsOf(form->Object()->Controls()))
      names.push_back(each->UserName().ToUtf8());
    return names;
  }
};

TEST_F(Members, StandInTheirOrder) {
  const std::vector<Text> expected = {
      u"Controls",     u"DebugMode",      u"NewFeature",           u"FeatureID",
      u"ProjectRead",  u"ProjectSave",    u"SetAttributesEnabled", u"ChangeControlName",
      u"GetThemeName", u"GetFeatureType", u"GetFeatureTypeString", u"hWnd",
      u"Parent"};
  EXPECT_EQ(Input().MemberNames(), expected);
  EXPECT_EQ(Input().TypeName(), u"FormInput");
}

TEST_F(Members, HaveTheirValuesBeforeAProjectIsRead) {
  EXPECT_FALSE(ToBoolean(GetProperty(Input(), u"DebugMode")));
  EXPECT_FALSE(ToBoolean(GetProperty(Input(), u"NewFeature")));
  EXPECT_EQ(ToText(GetProperty(Input(), u"FeatureID")), u"");
  EXPECT_TRUE(ToBoolean(GetProperty(Input(), u"SetAttributesEnabled")));
  EXPECT_EQ(ToText(CallMethod(Input(), u"GetThemeName")), u"");
  EXPECT_EQ(ToLong(CallMethod(Input(), u"GetFeatureType")), -1);
  EXPECT_EQ(ToText(CallMethod(Input(), u"GetFeatureTypeString")), u"");
  EXPECT_NE(ToLong(GetProperty(Input(), u"hWnd")), 0);
  EXPECT_EQ(Module().formScaleMode, ScaleMode::Pixels);
  EXPECT_EQ(Names(), Lines{"Form"});
  EXPECT_EQ(GetProperty(Input(), u"Controls", {u"form"}).ObjectPtr(),
            GetProperty(Input(), u"Controls", {1}).ObjectPtr());
}

TEST_F(Members, AreReachedByNameAndInCpp) {
  LetProperty(Input(), u"NewFeature", true);
  LetProperty(Input(), u"DebugMode", true);
  LetProperty(Input(), u"FeatureID", 7);
  EXPECT_TRUE(form->NewFeature());
  EXPECT_TRUE(form->DebugMode());
  EXPECT_EQ(form->FeatureID(), "7");
}

TEST_F(Members, KeepOneSettingInTheContainer) {
  int changes = 0;
  QObject::connect(form, &qt::FormInput::SetAttributesEnabledChanged, [&] { ++changes; });
  EXPECT_EQ(form->property("SetAttributesEnabled"), QVariant(true));
  form->setProperty("SetAttributesEnabled", false);
  EXPECT_FALSE(form->Object()->StoresAttributes());
  EXPECT_EQ(changes, 1);
}

TEST_F(Members, ReadNothingWithoutAForm) {
  form->Object()->Controls().Clear();
  EXPECT_FALSE(ReadWhole({}));
  EXPECT_EQ(form->Object()->GetThemeName(), u"");
  EXPECT_EQ(static_cast<int>(form->Object()->GetFeatureType()), -1);
  EXPECT_FALSE(form->ProjectSave(qt::ToQString(folder.Name("saved.cwf"))));
}

TEST_F(Members, SaveTemporarilyLikeAnyOtherSave) {
  Read({{"TextBox", "a", ""}});
  EXPECT_TRUE(ToBoolean(CallMethod(Input(), u"ProjectSave", {folder.Name("saved.cwf"), true})));
  EXPECT_NE(folder.Get("saved.cwf").find("ThemeName=wells"), std::string::npos);
  EXPECT_FALSE(ToBoolean(CallMethod(Input(), u"ProjectSave", {folder.Name("none/saved.cwf")})));
}

// Renaming.

TEST_F(Members, RenameAControlAndTellEveryone) {
  Read({{"TextBox", "a", ""}, {"TextBox", "b", ""}});
  TakeEvents();
  Rename(u"a", u"Depth");
  EXPECT_EQ(Names(), (Lines{"Form", "b", "Depth"}));
  EXPECT_EQ(FindControl(form->Object()->Controls(), u"DEPTH"), &Control(u"depth"));
  EXPECT_FALSE(FindControl(form->Object()->Controls(), u"a"));
  EXPECT_EQ(TakeEvents(), (Lines{"ControlNameChanged a object"}));
}

TEST_F(Members, RenameByCaseAlone) {
  Read({{"TextBox", "depth", ""}, {"TextBox", "b", ""}});
  TakeEvents();
  Rename(u"depth", u"DEPTH");
  EXPECT_EQ(Names(), (Lines{"Form", "b", "DEPTH"}));
  EXPECT_EQ(TakeEvents(), (Lines{"ControlNameChanged depth object"}));
  EXPECT_EQ(form->Object()->Controls().Count(), 3);
}

TEST_F(Members, RenameNothingToABlankOrATakenName) {
  Read({{"TextBox", "a", ""}, {"TextBox", "b", ""}});
  TakeEvents();
  Rename(u"a", u"");
  Rename(u"a", u"   ");
  Rename(u"a", u"B");
  Rename(u"a", u"form");
  CallMethod(Input(), u"ChangeControlName", {Variant::Nothing(), u"x"});
  CallMethod(Input(), u"ChangeControlName", {form->Object(), u"x"});
  EXPECT_EQ(Names(), (Lines{"Form", "a", "b"}));
  EXPECT_EQ(TakeEvents(), Lines{});
}

TEST_F(Members, RenameThroughTheNameRowOfAControl) {
  Read({{"TextBox", "a", ""}});
  SetRow(u"a", u"Name", u"Depth");
  EXPECT_EQ(Names(), (Lines{"Form", "Depth"}));
}

TEST_F(Members, RenameAControlThatIsNotInTheFormYetWithoutTakingItIn) {
  Read({{"TextBox", "a", ""}});
  const Ref<IControl> loose(&Control(u"a"));
  form->Object()->Controls().Remove(Variant(u"a"));
  CallMethod(Input(), u"ChangeControlName", {loose, u"free"});
  EXPECT_EQ(loose->UserName(), u"free");
  EXPECT_EQ(Names(), Lines{"Form"});
}

TEST_F(Members, GoOnWithARenameWhoseHostFails) {
  Read({{"TextBox", "a", ""}});
  form->Object()->Connect([](std::u16string_view event, Args) {
    if (event == u"ControlNameChanged") Raise(17);
  });
  Rename(u"a", u"b");
  EXPECT_EQ(Names(), (Lines{"Form", "b"}));
}

TEST_F(Members, OfTheWidgetTellOfANewName) {
  Read({{"TextBox", "a", ""}});
  QString told;
  QObject::connect(form, &qt::FormInput::ControlNameChanged,
                   [&](const QString& before, const QString& now) { told = before + ">" + now; });
  Rename(u"a", u"b");
  EXPECT_EQ(told, "a>b");
}

}  // namespace
}  // namespace cardwright
