// SPDX-License-Identifier: MIT
// What a form asks of the host when a project is read and when a feature is set.

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Loading : public FormTest {
 protected:
  Loading() {
    host->SetTheme({{"name", 0, 20, 0, "Deep well"}, {"depth", 1, 8, 0, "120"}, {"flow", 1, 8, 2, "1.5"}});
  }
  void ReadBoxes() {
    ASSERT_TRUE(Read({{"TextBox", "name", "Attribute=name\r\n"},
                      {"textboxmultiline", "notes", "Attribute=depth\r\n"},
                      {"ComboBox", "flow", "Attribute=flow\r\nEditable=True\r\n"},
                      {"TextBox", "other", "Attribute=unknown\r\n"},
                      {"TextBox", "free", "Attribute=\r\n"}}));
  }
};

TEST_F(Loading, AsksOnlyForTheThemeWhenAProjectIsRead) {
  ASSERT_TRUE(ReadWhole({{"TextBox", "name", "Attribute=name\r\n"}}));
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NUMBER |wells|"}));
}

TEST_F(Loading, TakesTheActiveThemeForOneThatTheHostDoesNotHave) {
  host->replies["THEME_NUMBER |wells|"] = "";
  host->replies["THEME_ACTIVE"] = "springs";
  ASSERT_TRUE(ReadWhole({}));
  EXPECT_EQ(host->Take(), (Lines{"R THEME_NUMBER |wells|", "R THEME_ACTIVE"}));
  EXPECT_EQ(form->Object()->GetThemeName(), u"springs");
}

TEST_F(Loading, SelectsReadsAndDeselectsInOrder) {
  ReadBoxes();
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(),
            (Lines{kOff, kSelect7, kSelected, kMoveFirst, kIsValid, kCount, Describe(1), Describe(2),
                   Describe(3), Get("name"), Get("depth"), Get("flow"), kSelectNone, kOn}));
  EXPECT_EQ(Row(u"name", u"Text"), u"Deep well");
  EXPECT_EQ(Row(u"notes", u"Text"), u"120");
  EXPECT_EQ(Row(u"flow", u"Text"), u"1.5");
  EXPECT_EQ(form->FeatureID(), "7");
}

TEST_F(Loading, LimitsWhatCanBeTyped) {
  ReadBoxes();
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<TextWidget>(u"name").MaxLength(), 20);
  EXPECT_EQ(WidgetOf<TextWidget>(u"notes").MaxLength(), 8);
  EXPECT_EQ(WidgetOf<TextWidget>(u"flow").MaxLength(), 0) << "a combo box has no such limit";
  EXPECT_EQ(WidgetOf(u"name").Tag(), u"0");
  EXPECT_EQ(WidgetOf(u"notes").Tag(), u"1");
  EXPECT_EQ(WidgetOf(u"flow").Tag(), u"2");
  EXPECT_EQ(WidgetOf(u"other").Tag(), u"");
}

TEST_F(Loading, LimitsTheKindEvenWhereTheLengthIsNonsense) {
  host->SetTheme({{"name", 1, -5, 0, "1"}});
  ReadBoxes();
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf(u"name").Tag(), u"1");
  EXPECT_EQ(Row(u"name", u"Text"), u"1");
}

TEST_F(Loading, AsksForNoValuesOfANewFeature) {
  ReadBoxes();
  form->SetNewFeature(true);
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(), (Lines{kOff, kSelect7, kSelected, kMoveFirst, kIsValid, kCount, Describe(1),
                                 Describe(2), Describe(3), kSelectNone, kOn}));
  EXPECT_EQ(Row(u"name", u"Text"), u"");
  EXPECT_EQ(WidgetOf<TextWidget>(u"name").MaxLength(), 20);
  EXPECT_EQ(WidgetOf(u"notes").Tag(), u"1");
}

TEST_F(Loading, DoesNothingWithABlankIdentifierOrWithoutAConnection) {
  ReadBoxes();
  form->SetFeatureID("");
  form->SetFeatureID("   ");
  EXPECT_EQ(host->Take(), Lines{});
  library->Vellum().SetTarvoHandle(0);
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(), Lines{});
  EXPECT_EQ(form->FeatureID(), "7");
}

TEST_F(Loading, StopsWhereNoFeatureIsFound) {
  ReadBoxes();
  for (const char* count : {"0", "", "False", "-1", "none"}) {
    host->replies["THEME_SELECTED_NUMBER" + kPlace] = count;
    form->SetFeatureID("7");
    EXPECT_EQ(host->Take(), (Lines{kOff, kSelect7, kSelected, kOn})) << count;
  }
}

TEST_F(Loading, StopsWhereTheCurrentFeatureIsNotValid) {
  ReadBoxes();
  host->replies["THEME_CURRENT_ISVALID" + kPlace] = "False";
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(), (Lines{kOff, kSelect7, kSelected, kMoveFirst, kIsValid, kOn}));
  host->replies["THEME_CURRENT_ISVALID" + kPlace] = "-1";
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take().size(), 14U);
}

TEST_F(Loading, RunsAgainstTheEmptyFormBeforeAProjectIsRead) {
  host->replies["THEME_SELECTED_NUMBER || ||"] = "1";
  host->replies["THEME_CURRENT_ISVALID || ||"] = "1";
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(), (Lines{kOff, "X THEME_SELECTION_BYVALUE || || OVTARVOUNIQUEID = 7 NEW",
                                 "R THEME_SELECTED_NUMBER || ||", "X THEME_MOVEFIRST || ||",
                                 "R THEME_CURRENT_ISVALID || ||", "R THEME_ATTRIBUTE_NUMBER || ||",
                                 "X THEME_SELECTION_NONE || ||", kOn}));
}

TEST_F(Loading, SendsTheTypeOfTheFormsFeatures) {
  const std::pair<int, std::string> kTypes[] = {{0, "POINT"}, {1, "ARC"}, {2, "POLYGON"}, {-1, ""}, {3, ""}};
  for (const auto& [number, name] : kTypes) {
    Read({}, "ThemeName=wells\r\nFeatureType=" + std::to_string(number) + "\r\n");
    form->SetFeatureID("7");
    EXPECT_EQ(host->Take().at(2), "R THEME_SELECTED_NUMBER |wells| |" + name + "|");
    EXPECT_EQ(form->Object()->GetFeatureTypeString(), Text::FromUtf8(name));
    EXPECT_EQ(static_cast<int>(form->Object()->GetFeatureType()), number);
  }
}

// Placeholders are filled one after the other, whatever their case, so those in a name are filled in their
// turn.
TEST_F(Loading, FillsThePlaceholdersThatAThemeBringsIn) {
  host->replies["THEME_NUMBER |%%FT%%-%%id%%|"] = "1";
  Read({}, "ThemeName=%%FT%%-%%id%%\r\nFeatureType=2\r\n");
  form->SetFeatureID("7");
  const Lines lines = host->Take();
  EXPECT_EQ(lines.at(1), "X THEME_SELECTION_BYVALUE |POLYGON-7| |POLYGON| OVTARVOUNIQUEID = 7 NEW");
  EXPECT_EQ(lines.at(2), "R THEME_SELECTED_NUMBER |POLYGON-%%id%%| |POLYGON|");
}

TEST_F(Loading, KeepsAnAttributeWhoseRecordHasNotFourFieldsFromBeingBound) {
  ReadBoxes();
  for (const char* record : {"name", "name,0,20", "name,0,20,0,", "name,0,20,0,5"}) {
    host->replies["THEME_ATTRIBUTE" + kPlace + " 1"] = record;
    form->SetFeatureID("7");
    const Lines lines = host->Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), Get("name")), 0) << record;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), Get("depth")), 1) << record;
  }
}

TEST_F(Loading, SkipsAnEmptyRecordAndTakesTheFirstOfTwoOfOneName) {
  host->replies["THEME_ATTRIBUTE" + kPlace + " 1"] = "";
  host->replies["THEME_ATTRIBUTE" + kPlace + " 3"] = "DEPTH,0,3,0";
  ReadBoxes();
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<TextWidget>(u"notes").MaxLength(), 8);
  EXPECT_EQ(WidgetOf<TextWidget>(u"name").MaxLength(), 0);
}

TEST_F(Loading, FindsAnAttributeWhateverTheCaseOfItsName) {
  Read({{"TextBox", "name", "Attribute=NAME\r\n"}});
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"name", u"Text"), u"Deep well");
}

TEST_F(Loading, LetsTheHostRedrawAgainWhereACommandFails) {
  ReadBoxes();
  host->failsAt = "THEME_MOVEFIRST |wells| |POINT|";
  EXPECT_EQ(ErrorOf([&] { form->SetFeatureID("7"); }), 17);
  EXPECT_EQ(host->Take(), (Lines{kOff, kSelect7, kSelected, kMoveFirst, kOn}));
}

TEST_F(Loading, LeavesTheFormAloneInADebuggingRunWithoutOutput) {
  ReadBoxes();
  form->SetDebugMode(true);
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take(), Lines{});
  EXPECT_EQ(form->FeatureID(), "7");
}

// How a reply is shown, class by class.

TEST_F(Loading, ShowsTheReplyInACheckBox) {
  host->SetTheme({{"name", 0, 5, 0, "True"}});
  Read({{"CheckBox", "check", "Attribute=name\r\n"}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<StateWidget>(u"check").State(), 1);
  host->SetTheme({{"name", 0, 5, 0, "0"}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<StateWidget>(u"check").State(), 0);
}

TEST_F(Loading, ShowsTheReplyInTheOptionOfTheSameContainer) {
  host->SetTheme({{"name", 0, 5, 0, "B"}});
  Read({{"Frame", "frame", ""},
        {"OptionButton", "a", "Attribute=name\r\nValue=A\r\nContainer=object_2\r\n"},
        {"OptionButton", "b", "Attribute=name\r\nValue=B\r\nContainer=object_2\r\n"},
        {"OptionButton", "bToo", "Attribute=name\r\nValue=B\r\nContainer=object_2\r\n"},
        {"OptionButton", "outside", "Attribute=unknown\r\nValue=B\r\n"},
        {"OptionButton", "otherCase", "Attribute=Name\r\nValue=B\r\n"}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<StateWidget>(u"a").State(), 0);
  EXPECT_EQ(WidgetOf<StateWidget>(u"b").State(), 1);
  EXPECT_EQ(WidgetOf<StateWidget>(u"bToo").State(), 0) << "the first that stands for the reply";
  EXPECT_EQ(WidgetOf<StateWidget>(u"outside").State(), 0);
  EXPECT_EQ(WidgetOf<StateWidget>(u"otherCase").State(), 0) << "the attribute's name is compared exactly";

  host->SetTheme({{"name", 0, 5, 0, "C"}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<StateWidget>(u"b").State(), 1) << "nothing changes where none stands for the reply";
}

const std::string kThreeItems =
    "ItemsNumber=3\r\nValue_Item_1=A\r\nText_Item_1=Alpha\r\nValue_Item_2=B\r\nText_Item_2=Beta\r\n"
    "Value_Item_3=B\r\nText_Item_3=Other\r\n";

TEST_F(Loading, ChoosesTheFirstEntryOfAComboBoxByItsValue) {
  host->SetTheme({{"name", 0, 5, 0, "B"}});
  Read({{"ComboBox", "combo", "Attribute=name\r\nEditable=False\r\n" + kThreeItems}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<ComboWidget>(u"combo").ListIndex(), 1);
  host->SetTheme({{"name", 0, 5, 0, "b"}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<ComboWidget>(u"combo").ListIndex(), 1)
      << "values are compared exactly; the choice stays";
}

TEST_F(Loading, ShowsAReplyThatIsNoEntryInAnEditableComboBox) {
  host->SetTheme({{"name", 0, 5, 0, "typed"}});
  Read({{"ComboBox", "combo", "Attribute=name\r\nEditable=True\r\n" + kThreeItems},
        {"ComboBox", "fixed", "Attribute=name\r\nEditable=False\r\n" + kThreeItems}});
  form->SetFeatureID("7");
  EXPECT_EQ(Row(u"combo", u"Text"), u"typed");
  EXPECT_EQ(WidgetOf<ComboWidget>(u"combo").ListIndex(), -1);
  EXPECT_EQ(Row(u"fixed", u"Text"), u"");
}

TEST_F(Loading, SelectsTheRowOfAListBoxByItsValue) {
  host->SetTheme({{"name", 0, 5, 0, "B"}});
  Read({{"ListBox", "list", "Attribute=name\r\n" + kThreeItems}});
  form->SetFeatureID("7");
  EXPECT_EQ(WidgetOf<ListViewWidget>(u"list").SelectedRow(), 2);
}

}  // namespace
}  // namespace cardwright
