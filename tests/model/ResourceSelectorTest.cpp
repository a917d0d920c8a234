// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cardwright/platform/Files.h"
#include "model/SelectorForms.h"
#include "shared/FakeDesktop.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kClass = u"CResourceSelector";

const std::string kSection =
    "Type=resourceselector\nName=object_1\nUserName=path\nPath=/data/a.csv\nRegKey=Cardwright/Tests/Folder\n"
    "BackColor= 255\nBackColorBkg=-2147483633\nFontName=Arial\nFontSize= 10\nFontBold= 1\nFontItalic= 0\n"
    "FontUnderline= 0\nFontStrikethrough= 0\nLeft= 8\nTop= 16\nWidth= 200\nHeight= 24\nForeColor= 65280\n"
    "Attribute=PHOTO\nIsNeeded=True\nBrowseForFolder=False\nFilter=Texts (*.csv)|*.csv\n"
    "InputTextEnabled=False\nShowSave=True\nTitle=Choose\nMultiSelect=True\nContainer=\n";

/// The setting that kSection names.
Text Kept(const FakeDesktop& desktop) { return desktop.Get(u"Cardwright", u"Tests", u"Folder", u"nothing"); }

}  // namespace

TEST(CResourceSelector, ReadsEveryKeyAndSavesTheSameLines) {
  const FakeDesktop desktop;
  DesignForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  ASSERT_TRUE(ReadLines(*control, kSection));
  EXPECT_EQ(widget->Path(), u"/data/a.csv");
  EXPECT_EQ(widget->Filter(), u"Texts (*.csv)|*.csv");
  EXPECT_TRUE(widget->MultiSelect());
  EXPECT_FALSE(widget->IsInputTextEnabled());
  EXPECT_TRUE(widget->IsVisible());
  EXPECT_EQ(control->UserName(), u"path");
  const std::size_t begin = kSection.find("Path=");
  EXPECT_EQ(SavedLines(*control), kSection.substr(begin, kSection.find("Container=") - begin));
}

TEST(CResourceSelector, KeepsTheWidgetsValuesForMissingKeys) {
  InputForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  widget->SetPath(u"/before");
  widget->SetShowSave(true);
  EXPECT_TRUE(ReadLines(*control, "MultiSelect=perhaps\n"));
  EXPECT_EQ(TextOf(*control, u"Path"), u"/before");
  EXPECT_EQ(TextOf(*control, u"ShowSave"), u"True");
  EXPECT_EQ(TextOf(*control, u"MultiSelect"), u"False");
  EXPECT_EQ(TextOf(*control, u"IsNeeded"), u"False");
}

TEST(CResourceSelector, HasThePathAsValueAndTheTitleAsText) {
  InputForm on;
  const auto control = Bind(on, kClass, MakeRef<FakeResource>());
  control->SetPropertyValue(u"path", u"/data/b.csv");
  control->SetPropertyValue(u"TITLE", u"Choose");
  control->SetPropertyValue(u"Attribute", u"PHOTO");
  EXPECT_EQ(control->Value(), u"/data/b.csv");
  EXPECT_EQ(control->DisplayText(), u"Choose");
  EXPECT_EQ(control->AttributeName(), u"PHOTO");
}

TEST(CResourceSelector, StartsInTheFolderStoredUnderItsKey) {
  FakeDesktop desktop;
  desktop.Save(u"Cardwright", u"Tests", u"Folder", u"/data/maps");
  InputForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  widget->SetStartFolder(u"/old");
  ReadLines(*control, "RegKey=Cardwright/Tests\n");
  EXPECT_EQ(widget->StartFolder(), u"/old") << "a key without three parts names nothing";
  ReadLines(*control, "RegKey=Cardwright/Tests/Folder\n");
  EXPECT_EQ(widget->StartFolder(), u"/data/maps");
  ReadLines(*control, "RegKey=Cardwright/Tests/Other\n");
  EXPECT_EQ(widget->StartFolder(), u"");
}

namespace {

struct KeptCase {
  const char* name;
  std::u16string_view path;  // "@" is replaced by an existing folder
  bool folders;
  std::u16string_view kept;  // "nothing" for unchanged settings
};

Text At(const TempFolder& folder, std::u16string_view path) {
  return Replace(path, u"@", FromPath(folder.Path()));
}

}  // namespace

class LastFolder : public testing::TestWithParam<KeptCase> {};
using namespace std::string_view_literals;
INSTANTIATE_TEST_SUITE_P(
    , LastFolder,
    testing::Values(KeptCase{"OfAFile", u"@/a.csv", false, u"@"},
                    KeptCase{"OfAFileThatIsNotThere", u"@/none.csv", false, u"@"},
                    KeptCase{"OfSeveralFiles", u"@\0a.csv\0b.csv"sv, false, u"@"},
                    KeptCase{"OfSeveralFilesInAFolderThatVanished", u"@/gone\0a.csv"sv, false, u"nothing"},
                    KeptCase{"OfAFileInAFolderThatVanished", u"@/gone/a.csv", false, u"nothing"},
                    KeptCase{"OfANameAlone", u"a.csv", false, u"nothing"},
                    KeptCase{"OfAPathThatBeginsWithNul", u"\0@/a.csv"sv, false, u"nothing"},
                    KeptCase{"OfNoPath", u"", false, u"nothing"},
                    KeptCase{"ThatIsAFolderItself", u"@", true, u"@"},
                    KeptCase{"ThatVanished", u"@/gone", true, u"nothing"},
                    KeptCase{"WithANulInItsPath", u"@\0"sv, true, u"nothing"},
                    KeptCase{"OfNoFolder", u"", true, u"nothing"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(LastFolder, IsStoredWhenTheFocusIsLost) {
  const FakeDesktop desktop;
  const TempFolder folder;
  InputForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  control->SetPropertyValue(u"RegKey", u"Cardwright/Tests/Folder");
  widget->SetBrowseForFolder(GetParam().folders);
  widget->SetPath(At(folder, GetParam().path));
  EXPECT_EQ(Kept(desktop), u"nothing");
  widget->listener->OnLostFocus();
  EXPECT_EQ(Kept(desktop), At(folder, GetParam().kept));
}

TEST(CResourceSelector, StoresNoFolderWithoutAKeyOrOnADesignSurface) {
  const FakeDesktop desktop;
  const TempFolder folder;
  const auto widget = MakeRef<FakeResource>();
  widget->SetPath(FromPath(folder.File("a.csv")));
  {
    InputForm on;
    const auto control = Bind(on, kClass, widget);
    widget->listener->OnLostFocus();
    control->SetPropertyValue(u"RegKey", u"Cardwright/Tests");
    widget->listener->OnLostFocus();
  }
  DesignForm on;
  const auto control = Bind(on, kClass, widget);
  control->SetPropertyValue(u"RegKey", u"Cardwright/Tests/Folder");
  widget->listener->OnLostFocus();
  EXPECT_EQ(Kept(desktop), u"nothing");
}

TEST(CResourceSelector, RunsItsProceduresWhereScriptsMayRun) {
  InputForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  const auto allEvents = [&] {
    widget->listener->OnClick();
    widget->listener->OnBeforeButtonClick();
    widget->SetPath(widget->Path() + u"x");
    widget->listener->OnAfterButtonClick();
  };
  allEvents();
  EXPECT_EQ(on.owner->Take(),
            "run a_OnClick; run a_BeforeButtonClick; run a_OnChange; run a_AfterButtonClick");
  on.owner->canRunScripts = false;
  allEvents();
  EXPECT_EQ(on.owner->Take(), "");
  const std::vector<Text> names = {u"AfterButtonClick", u"BeforeButtonClick", u"OnChange", u"OnClick"};
  EXPECT_EQ(control->Events(), names);
}

TEST(CResourceSelector, IsSelectedByItsEventsOnADesignSurface) {
  DesignForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  widget->listener->OnClick();
  widget->listener->OnGotFocus();
  widget->SetPath(u"x");
  widget->listener->OnAfterButtonClick();
  EXPECT_EQ(on.owner->Take(), "SetCtrl a; SetCtrl a; SetCtrl a; SetCtrl a");
  Module().designDragging = true;
  widget->listener->OnGotFocus();
  widget->SetPath(u"y");
  EXPECT_EQ(on.owner->Take(), "");
  Module().designDragging = false;
}

TEST(CResourceSelector, IsNotSelectedWhileItIsBeingRead) {
  DesignForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  on.owner->Controls().Remove(Variant(u"a"));
  ReadLines(*control, kSection);
  EXPECT_EQ(widget->Path(), u"/data/a.csv");
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(CResourceSelector, ReportsTheHeightThatTheWidgetChose) {
  DesignForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  widget->ownHeight = 21;
  control->SetPropertyValue(u"Height", 60);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a; PropertyChanged 9 21; handles");
  control->SetPropertyValue(u"Height", 21);
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(CResourceSelector, OpensTheScreenKeyboardIfThePathCanBeTyped) {
  FakeDesktop desktop;
  Module().enableScreenKeyboard = true;
  InputForm on;
  const auto widget = MakeRef<FakeResource>();
  const auto control = Bind(on, kClass, widget);
  widget->SetInputTextEnabled(false);
  widget->listener->OnGotFocus();
  EXPECT_TRUE(desktop.started.empty());
  widget->SetInputTextEnabled(true);
  on.owner->canRunScripts = false;
  widget->listener->OnGotFocus();
  EXPECT_TRUE(desktop.started.empty());
  on.owner->canRunScripts = true;
  widget->listener->OnGotFocus();
  EXPECT_EQ(desktop.started.size(), 1U);
  Module().enableScreenKeyboard = false;
}

}  // namespace cardwright
