// SPDX-License-Identifier: MIT
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

class RenamingTest : public DesignerTest {
 protected:
  RenamingTest() {
    first = Draw(ctLabel, 10, 10, 60, 40);
    second = Draw(ctLabel, 10, 60, 60, 90);
    designer->ChangeControlName(first, u"Label1");
    designer->ChangeControlName(second, u"Label2");
    Take();
  }
  Ref<IControl> first, second;
};

TEST_F(RenamingTest, MovesTheControlToTheEndOfControls) {
  designer->ChangeControlName(first, u"lblDepth");
  EXPECT_EQ(Names(), "Form, Label2, lblDepth");
  EXPECT_EQ(&Find(u"LBLDEPTH"), first.get());
  EXPECT_EQ(FindControl(designer->Controls(), u"label1"), nullptr);
  EXPECT_EQ(first->Name(), u"object_1");
  EXPECT_EQ(NamesOf(designer->ZList()), "Form, lblDepth, Label2");
  EXPECT_EQ(Take(), (Lines{"ControlNameChanged Label1 <lblDepth>"}));
}

TEST_F(RenamingTest, ChangesOnlyTheCase) {
  designer->ChangeControlName(first, u"LABEL1");
  EXPECT_EQ(Names(), "Form, Label2, LABEL1");
  EXPECT_EQ(Take(), (Lines{"ControlNameChanged Label1 <LABEL1>"}));
}

TEST_F(RenamingTest, IgnoresATakenNameInAnyCase) {
  designer->ChangeControlName(second, u"LABEL1");
  designer->ChangeControlName(second, u"FORM");
  EXPECT_EQ(Names(), "Form, Label1, Label2");
  EXPECT_EQ(Take(), Lines{});
}

TEST_F(RenamingTest, IgnoresABlankNameAndKeepsSurroundingBlanks) {
  designer->ChangeControlName(first, u"   ");
  designer->ChangeControlName(nullptr, u"x");
  EXPECT_EQ(Take(), Lines{});
  designer->ChangeControlName(first, u" x ");
  EXPECT_EQ(first->UserName(), u" x ");
}

TEST_F(RenamingTest, RunsWhenTheNamePropertyIsSet) {
  first->SetPropertyValue(u"Name", u"other");
  EXPECT_EQ(Take(), (Lines{"ControlNameChanged Label1 <other>"}));
  first->SetPropertyValue(u"Name", u"label2");
  EXPECT_EQ(first->UserName(), u"other");
}

TEST_F(RenamingTest, UpdatesLinksAfterRaisingControlNameChanged) {
  const Ref<IControl> themes = Draw(ctThemeSelector, 100, 10, 200, 40);
  const Ref<IControl> types = Draw(ctComboBox, 100, 40, 200, 60);
  const Ref<IControl> attributes = Draw(ctAttributeSelector, 100, 60, 200, 90);
  attributes->SetPropertyValue(u"ThemeSelectorName", u"OBJECT_3");
  attributes->SetPropertyValue(u"FeatureSelectorName", u"object_4");
  std::string heard;
  onEvent = [&](std::string_view) {
    heard = ToText(attributes->PropertyValue(u"ThemeSelectorName")).ToUtf8();
  };
  designer->ChangeControlName(themes, u"selTheme");
  EXPECT_EQ(heard, "OBJECT_3");
  EXPECT_EQ(ToText(attributes->PropertyValue(u"ThemeSelectorName")), u"selTheme");
  designer->SetCtrl(types);
  designer->Delete();
  EXPECT_EQ(ToText(attributes->PropertyValue(u"ThemeSelectorName")), u"selTheme");
  EXPECT_EQ(ToText(attributes->PropertyValue(u"FeatureSelectorName")), u"");
}

}  // namespace
}  // namespace cardwright
