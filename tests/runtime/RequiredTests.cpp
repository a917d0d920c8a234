// SPDX-License-Identifier: MIT
// The check of required fields that OK begins with.

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Required : public FormTest {
 protected:
  /// What OK says; with nothing said the host has heard of OK, and of nothing otherwise.
  Lines ClickAndTake() {
    TakeEvents();
    ClickOk();
    Lines shown = boxes.Take();
    EXPECT_EQ(TakeEvents(), shown.empty() ? Lines{"OkClick"} : Lines{});
    return shown;
  }
};

const std::string kNeeded = "IsNeeded=True\r\n";
const Lines kNothing;
Lines ForAttribute(const std::string& name) {
  return {"WARNING!|The attribute " + name + " must be compiled!|exclamation"};
}
Lines ForName(const std::string& name) { return {"WARNING!|The " + name + " must be compiled!|exclamation"}; }

TEST_F(Required, NamesTheAttributeOfTheEmptyFieldAndGivesItTheFocus) {
  Read({{"TextBox", "first", "Attribute=NAME\r\nText=x\r\n" + kNeeded},
        {"TextBox", "second", "Attribute=DEPTH\r\n" + kNeeded}});
  Show();
  EXPECT_EQ(ClickAndTake(), ForAttribute("DEPTH"));
  EXPECT_EQ(form->focusWidget(), &Native(u"second"));
  EXPECT_EQ(host->Take(), Lines{}) << "nothing has been sent";
  SetRow(u"second", u"Text", u"3");
  EXPECT_EQ(ClickAndTake(), kNothing);
}

TEST_F(Required, NamesTheWidgetOfAFieldWithoutAnAttribute) {
  Read({{"TextBox", "depth", kNeeded}});
  EXPECT_EQ(ClickAndTake(), ForName("object_2"));
}

TEST_F(Required, StopsAtTheFirstEmptyFieldInTheOrderOfTheCollection) {
  Read({{"textboxmultiline", "a", "Attribute=A\r\n" + kNeeded},
        {"TextBox", "b", "Attribute=B\r\n" + kNeeded}});
  EXPECT_EQ(ClickAndTake(), ForAttribute("A"));
}

TEST_F(Required, LooksAtNoOtherWordThanTrue) {
  Read({{"TextBox", "a", "IsNeeded=true\r\n"}, {"TextBox", "b", "IsNeeded=1\r\n"}, {"TextBox", "c", ""}});
  EXPECT_EQ(ClickAndTake(), kNothing);
}

TEST_F(Required, AsksForAChoiceWhereAComboBoxHasEntries) {
  Read({{"ComboBox", "combo", "Attribute=C\r\nEditable=True\r\n" + kTwoItems + kNeeded}});
  EXPECT_EQ(ClickAndTake(), ForAttribute("C"));
  WidgetOf(u"combo").SetDisplayText(u"typed");
  EXPECT_EQ(ClickAndTake(), ForAttribute("C")) << "typed, but not chosen";
  WidgetOf<ComboWidget>(u"combo").SetListIndex(1);
  EXPECT_EQ(ClickAndTake(), kNothing);
}

TEST_F(Required, TakesTheTypedTextWhereAComboBoxHasNoEntries) {
  Read({{"ComboBox", "combo", "Attribute=C\r\nEditable=True\r\n" + kNeeded}});
  EXPECT_EQ(ClickAndTake(), ForAttribute("C"));
  WidgetOf(u"combo").SetDisplayText(u"typed");
  EXPECT_EQ(ClickAndTake(), kNothing);
}

// Kinds without a value of their own are judged by the needed field before them; forms live with that.
TEST_F(Required, JudgesAListBoxByTheNeededFieldBeforeIt) {
  Read({{"TextBox", "text", "Text=x\r\n" + kNeeded},
        {"ListBox", "list", "Attribute=L\r\n" + kTwoItems + kNeeded}});
  EXPECT_EQ(ClickAndTake(), kNothing) << "nothing is selected in the list";
}

TEST_F(Required, CountsAListBoxThatComesFirstAsEmpty) {
  Read({{"ListBox", "list", "Attribute=L\r\nText=One\r\n" + kTwoItems + kNeeded},
        {"TextBox", "text", "Text=x\r\n" + kNeeded}});
  EXPECT_EQ(WidgetOf<ListViewWidget>(u"list").SelectedRow(), 1);
  EXPECT_EQ(ClickAndTake(), ForAttribute("L"));
}

TEST_F(Required, PassesAValueOverFieldsThatAreNotNeeded) {
  Read({{"TextBox", "text", "Text=x\r\n" + kNeeded},
        {"TextBox", "between", ""},
        {"CheckBox", "check", "Attribute=K\r\n" + kNeeded},
        {"TextBox", "last", "Attribute=T\r\n" + kNeeded}});
  EXPECT_EQ(ClickAndTake(), ForAttribute("T"));
}

TEST_F(Required, SurvivesAWindowThatIsClosedUnderItsMessage) {
  Read({{"TextBox", "text", "Attribute=T\r\n" + kNeeded}});
  const Ref<FormInput> object = form->Object();
  boxes.beforeAnswer = [this] { delete form.data(); };
  object->Ok();
  EXPECT_EQ(boxes.Take(), ForAttribute("T"));
  EXPECT_TRUE(form.isNull());
}

}  // namespace
}  // namespace cardwright
