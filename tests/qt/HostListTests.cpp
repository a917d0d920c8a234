// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <map>

#include "cardwright/platform/HostConnection.h"
#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"
#include "qt/Dialogs.h"
#include "qt/Form.h"

namespace cardwright::qt {

namespace {

/// Answers as it is told to and keeps what it was asked.
class Host final : public HostConnection {
 public:
  std::map<std::u16string, Text> replies;
  std::vector<std::string> asked;
  std::function<void(std::u16string_view)> onExecute, onRequest;

  Text Execute(std::u16string_view command) override {
    asked.push_back("X " + Text(command).ToUtf8());
    if (onExecute) onExecute(command);
    return {};
  }
  Text Request(std::u16string_view command) override {
    asked.push_back("R " + Text(command).ToUtf8());
    if (onRequest) onRequest(command);
    const auto found = replies.find(std::u16string(command));
    return found == replies.end() ? Text() : found->second;
  }
  std::string Take() {
    std::string all;
    for (const std::string& line : asked) all += (all.empty() ? "" : "; ") + line;
    asked.clear();
    return all;
  }
};

QString DetailOf(QComboBox& list, int row) {
  list.model()->index(row, 0).data(Qt::UserRole);  // seen for the first time
  QTest::qWait(5);
  return list.model()->index(row, 0).data(Qt::UserRole).toString();
}

}  // namespace

class HostList : public testing::Test {
 protected:
  HostList() {
    host->replies = {{u"THEME_NAMES", u"wells,areas,pipes, Mùre ,,wells,notes"},
                     {u"THEME_FEATURE_TYPES", u"POINT,POLYGON,ARC,ANY,POINT,POINT,"},
                     {u"THEME_ATTRIBUTE_NAMES |wells| |POINT|", u"NAME,DEPTH"},
                     {u"THEME_ATTRIBUTE_NAMES |areas| |POINT|", u"CLASS"},
                     {u"THEME_ATTRIBUTE_NAMES |areas| |POLYGON|", u"name,AREA,CLASS"},
                     {u"THEME_ATTRIBUTE |wells| |POINT| 1", u"NAME,0,40,0"},
                     {u"THEME_ATTRIBUTE |wells| |POINT| 2", u"DEPTH,1,0,15"}};
    handle = Module().connections.Register(host);
    themes->SetListener(&listener);
    attributes->SetListener(&attributeListener);
    themes->SetConnectionHandle(handle);
    attributes->SetConnectionHandle(handle);
  }
  ~HostList() override {
    themes->SetListener(nullptr);
    attributes->SetListener(nullptr);
    Module().connections.Close(handle);
  }

  QComboBox& Themes() { return NativeAs<QComboBox>(*themes); }
  std::string Names(const HostListWidget& list) {
    std::string names;
    for (int i = 0; i < list.ListCount(); ++i) names += (i ? "," : "") + list.ListText(i).ToUtf8();
    return names;
  }
  void Link() {
    themes->RefreshThemes();
    attributes->LinkThemeSelector(themes);
    attributes->RefreshAttributes();
    host->Take();
    listener.Take();
  }
  /// Opens the list and takes a row by the keyboard.
  void Pick(int row) {
    Themes().showPopup();
    QAbstractItemView& view = *Themes().view();
    view.setCurrentIndex(view.model()->index(row, 0));
    QTest::keyClick(&view, Qt::Key_Return);
  }

  const Ref<Host> host = MakeRef<Host>();
  std::int32_t handle = 0;
  Form form;
  Ref<ThemeSelectorWidget> themes = form.AddAt<ThemeSelectorWidget>(0, u"CardwrightCtrl.ThemeSelector", u"t");
  Ref<AttributeSelectorWidget> attributes =
      form.AddAt<AttributeSelectorWidget>(1, u"CardwrightCtrl.AttributeSelector", u"a");
  Ref<ComboWidget> types = form.AddAt<ComboWidget>(2, u"vb.combobox", u"c");
  Listener listener, attributeListener;
};

using ThemeSelector = HostList;
using AttributeSelector = HostList;

TEST_F(ThemeSelector, AsksTheHostOnlyOnRefresh) {
  form.Show();
  EXPECT_EQ(themes->ListCount(), 0);
  EXPECT_EQ(themes->ListIndex(), -1);
  EXPECT_EQ(themes->DisplayText(), u"");
  EXPECT_EQ(host->Take(), "");
}

TEST_F(ThemeSelector, ListsTheThemesWithTheirFeatureTypes) {
  themes->RefreshThemes();
  EXPECT_EQ(Names(*themes), "wells,areas,pipes,Mùre,notes");
  const std::int32_t kinds[] = {0, 2, 1, -1, -1};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(themes->ItemData(i), kinds[i]) << i;
  EXPECT_EQ(themes->ListIndex(), -1);
  EXPECT_EQ(DetailOf(Themes(), 0), "Points");
  EXPECT_EQ(DetailOf(Themes(), 1), "Polygons");
  EXPECT_EQ(DetailOf(Themes(), 3), "");
  EXPECT_EQ(Themes().model()->index(1, 0).data(Qt::AccessibleTextRole), "areas, Polygons");
  EXPECT_EQ(listener.Take(), "");
  EXPECT_EQ(ErrorOf([&] { themes->ListText(5); }), 5);
  EXPECT_EQ(ErrorOf([&] { themes->ItemData(-1); }), 5);
  EXPECT_EQ(ErrorOf([&] { themes->SetListIndex(5); }), 380);
}

TEST_F(ThemeSelector, ClicksWhereTheChoiceChanges) {
  themes->RefreshThemes();
  themes->SetListIndex(1);
  EXPECT_EQ(themes->DisplayText(), u"areas");
  EXPECT_EQ(Themes().currentText(), "areas");
  EXPECT_EQ(listener.Take(), "click");
  themes->SetDisplayText(u"AREAS");
  EXPECT_EQ(listener.Take(), "");
  themes->SetDisplayText(u"nowhere");
  EXPECT_EQ(themes->ListIndex(), -1);
  EXPECT_EQ(Themes().currentText(), "");
  EXPECT_EQ(listener.Take(), "click");
}

TEST_F(ThemeSelector, KeepsItsChoiceOverANewListIfItIsStillThere) {
  themes->RefreshThemes();
  themes->SetDisplayText(u"pipes");
  listener.Take();
  host->replies[u"THEME_NAMES"] = u"new,PIPES";
  themes->RefreshThemes();
  EXPECT_EQ(themes->ListIndex(), 1);
  EXPECT_EQ(themes->DisplayText(), u"PIPES");
  host->replies[u"THEME_NAMES"] = u"new";
  themes->RefreshThemes();
  EXPECT_EQ(themes->ListIndex(), -1);
  EXPECT_EQ(Themes().currentText(), "");
  themes->SetConnectionHandle(0);
  themes->RefreshThemes();
  EXPECT_EQ(themes->ListCount(), 0);
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(ThemeSelector, KeepsItsChoiceWhereANameOfAnotherCaseComesBeforeIt) {
  host->replies[u"THEME_NAMES"] = u"Wells,wells";
  host->replies[u"THEME_FEATURE_TYPES"] = u"POINT,POINT";
  themes->RefreshThemes();
  themes->SetListIndex(1);
  themes->RefreshThemes();
  EXPECT_EQ(themes->ListIndex(), 1);
}

TEST_F(ThemeSelector, FiresClickWhenTheUserChooses) {
  themes->RefreshThemes();
  form.Show();
  themes->SetFocus();
  listener.Take();
  Pick(2);
  EXPECT_EQ(themes->DisplayText(), u"pipes");
  EXPECT_EQ(listener.Take(), "click");
  QTest::keyClick(&Themes(), Qt::Key_A);
  EXPECT_EQ(themes->DisplayText(), u"areas");
  QTest::keyClick(&Themes(), Qt::Key_Up);
  EXPECT_EQ(themes->DisplayText(), u"wells");
}

TEST_F(ThemeSelector, ShowsItsListWithAScrollBarAndWideEnough) {
  Text names = u"a theme with quite a long name that a person should be able to read";
  for (int i = 0; i < 100; ++i) names += u",theme " + Text::FromUtf8(std::to_string(i));
  host->replies[u"THEME_NAMES"] = names;
  themes->RefreshThemes();
  form.Show();
  Themes().showPopup();
  EXPECT_GT(Themes().view()->width(), Themes().width());
  EXPECT_LT(Themes().view()->height(), 600);
  Themes().hidePopup();
}

TEST_F(ThemeSelector, TheEntryForANewThemeIsLastAndNotCounted) {
  themes->RefreshThemes();
  themes->SetListIndex(4);
  themes->SetCreateThemeText(u"New theme\u2026");
  EXPECT_EQ(themes->CreateThemeText(), u"New theme\u2026");
  EXPECT_EQ(themes->ListCount(), 5);
  EXPECT_EQ(themes->ListIndex(), 4);
  EXPECT_EQ(Themes().count(), 6);
  EXPECT_EQ(Themes().itemText(5), QString::fromUtf16(u"New theme\u2026"));
  form.Show();
  themes->SetFocus();
  listener.Take();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_N}) {
    QTest::keyClick(&Themes(), key);
    EXPECT_EQ(themes->ListIndex(), 4) << "the keys of the closed list do not reach it";
  }
  themes->SetDisplayText(u"New theme\u2026");
  EXPECT_EQ(themes->ListIndex(), -1);
  themes->SetCreateThemeText({});
  EXPECT_EQ(Themes().count(), 5);
}

TEST_F(ThemeSelector, CreatesAThemeAndChoosesIt) {
  themes->SetCreateThemeText(u"&New theme...");
  themes->RefreshThemes();
  themes->SetListIndex(0);
  form.Show();
  themes->SetFocus();
  listener.Take();
  host->Take();
  host->onExecute = [&](std::u16string_view) {
    host->replies[u"THEME_NAMES"] = u"wells,springs";
    host->replies[u"THEME_FEATURE_TYPES"] = u"POINT,ARC";
    host->replies[u"THEME_NUMBER |springs|"] = u"1";
  };
  Meet<QDialog>([&](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmNewTheme");
    EXPECT_EQ(dialog.windowTitle(), "New theme");
    auto* const name = dialog.findChild<QLineEdit*>("txtName");
    auto* const ok = dialog.findChild<QPushButton*>("cmdOK");
    EXPECT_FALSE(ok->isEnabled());
    for (const char* refused : {" ", "WELLS", "a,b", "a|b"}) {
      name->setText(refused);
      EXPECT_FALSE(ok->isEnabled()) << refused;
    }
    name->setText("  springs ");
    EXPECT_TRUE(ok->isEnabled());
    dialog.findChild<QComboBox*>("cboKind")->setCurrentIndex(1);
    QTest::mouseClick(ok, Qt::LeftButton);
  });
  Pick(5);
  EXPECT_EQ(host->Take(),
            "X THEME_CREATE |springs| |ARC|; R THEME_NUMBER |springs|; R THEME_NAMES; R THEME_FEATURE_TYPES");
  EXPECT_EQ(Names(*themes), "wells,springs");
  EXPECT_EQ(themes->DisplayText(), u"springs");
  EXPECT_EQ(themes->ItemData(1), 1);
  EXPECT_EQ(listener.Take(), "click");
}

TEST_F(ThemeSelector, StaysUnchangedWhenNoThemeIsCreated) {
  themes->SetCreateThemeText(u"New");
  themes->RefreshThemes();
  themes->SetListIndex(1);
  form.Show();
  themes->SetFocus();
  listener.Take();
  Meet<QDialog>([](QDialog& dialog) { dialog.reject(); });
  Pick(5);
  EXPECT_EQ(themes->DisplayText(), u"areas");
  EXPECT_EQ(Themes().currentText(), "areas");
  // A host that refuses: the theme is not there afterwards.
  Meet<QDialog>([](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("txtName")->setText("springs");
    dialog.accept();
  });
  Pick(5);
  EXPECT_EQ(themes->DisplayText(), u"areas");
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(ThemeSelector, OpensNothingWhileItIsLocked) {
  themes->SetCreateThemeText(u"New");
  themes->RefreshThemes();
  themes->SetListIndex(1);
  themes->SetLocked(true);
  EXPECT_TRUE(themes->IsLocked());
  form.Show();
  themes->SetFocus();
  listener.Take();
  Click(NativeOf(*themes), {20, 5});
  EXPECT_FALSE(QApplication::activePopupWidget());
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_W, Qt::Key_F4}) QTest::keyClick(&Themes(), key);
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_EQ(themes->DisplayText(), u"areas");
}

TEST_F(ThemeSelector, IsAsHighAsItsFont) {
  const float before = themes->Height();
  themes->Move(5, 6, 200, 77);
  EXPECT_EQ(themes->Height(), before);
  FontValues large = themes->GetFont()->Values();
  large.size = 24;
  themes->GetFont()->Assign(large);
  EXPECT_GT(themes->Height(), before + 10);
  EXPECT_EQ(themes->Width(), 200);
}

TEST_F(ThemeSelector, TakesTenThousandNamesAtOnce) {
  Text names, kinds;
  for (int i = 0; i < 10000; ++i) {
    names += (i ? u",theme of the survey " : u"theme of the survey ") + Text::FromUtf8(std::to_string(i));
    kinds += i ? u",POLYGON" : u"POLYGON";
  }
  host->replies[u"THEME_NAMES"] = names;
  host->replies[u"THEME_FEATURE_TYPES"] = kinds;
  form.Show();
  QElapsedTimer time;
  time.start();
  themes->RefreshThemes();
  themes->SetDisplayText(u"THEME OF THE SURVEY 9999");
  QCoreApplication::processEvents();
  RecordProperty("fill_us", static_cast<int>(time.nsecsElapsed() / 1000));
  EXPECT_EQ(themes->ListIndex(), 9999);
  time.restart();
  Themes().showPopup();
  QCoreApplication::processEvents();
  RecordProperty("open_us", static_cast<int>(time.nsecsElapsed() / 1000));
  time.restart();
  for (const char key : std::string("theme of the survey 77")) QTest::keyClick(Themes().view(), key);
  RecordProperty("search_us", static_cast<int>(time.nsecsElapsed() / 1000));
  EXPECT_EQ(Themes().view()->currentIndex().row(), 77);
  Themes().hidePopup();
}

TEST_F(ThemeSelector, ListsNamesOfAnyLengthAndCharacters) {
  const std::u16string giant(5'000'000, u'x');
  host->replies[u"THEME_NAMES"] = Text(u"a\nb," + giant + u",\u0001,\"q\",&amp;,<b>x</b>");
  themes->RefreshThemes();
  ASSERT_EQ(themes->ListCount(), 6);
  EXPECT_EQ(themes->ListText(1), Text(giant));
  themes->SetListIndex(1);
  form.Show();
  Themes().showPopup();
  QCoreApplication::processEvents();
  Themes().grab();
  Themes().hidePopup();
  EXPECT_EQ(themes->DisplayText(), Text(giant));
}

TEST_F(AttributeSelector, ListsNothingWithoutALink) {
  attributes->RefreshAttributes();
  EXPECT_EQ(attributes->ListCount(), 0);
  EXPECT_EQ(host->Take(), "");
}

TEST_F(AttributeSelector, FollowsTheThemeBeforeItsClickEvent) {
  Link();
  EXPECT_EQ(attributes->ListCount(), 0);
  std::string seen;
  listener.onClick = [&] { seen = Names(*attributes); };
  themes->SetDisplayText(u"wells");
  EXPECT_EQ(seen, "NAME,DEPTH");
  EXPECT_EQ(host->Take(), "R THEME_ATTRIBUTE_NAMES |wells| |POINT|");
  attributes->SetDisplayText(u"depth");
  EXPECT_EQ(attributes->ItemData(1), 2);
  EXPECT_EQ(attributeListener.Take(), "click");
  form.Show();
  attributeListener.Take();
  Pick(1);
  EXPECT_EQ(seen, "CLASS");
  EXPECT_EQ(attributes->ListIndex(), -1);
  EXPECT_EQ(attributeListener.Take(), "");
}

TEST_F(AttributeSelector, FollowsTheComboOfFeatureTypesAndItsOwnTypeWithoutIt) {
  for (const auto* text : {u"Points", u"Arcs", u"Polygons", u"Others"}) types->AddItem(text);
  Link();
  themes->SetDisplayText(u"areas");
  attributes->SetDisplayText(u"CLASS");
  attributeListener.Take();
  Listener typeListener;
  std::string seen;
  typeListener.onClick = [&] { seen = Names(*attributes); };
  types->SetListener(&typeListener);
  attributes->LinkFeatureSelector(types);
  types->SetListIndex(2);
  EXPECT_EQ(seen, "name,AREA,CLASS");
  EXPECT_EQ(attributes->DisplayText(), u"CLASS");
  types->SetListIndex(1);
  EXPECT_EQ(seen, "");
  EXPECT_EQ(attributes->DisplayText(), u"");
  types->SetListIndex(3);
  EXPECT_EQ(seen, "CLASS") << "an entry that is no type leaves it to the selector's own";
  attributes->SetFeatureType(2);
  EXPECT_EQ(Names(*attributes), "name,AREA,CLASS");
  types->SetListIndex(-1);
  EXPECT_EQ(Names(*attributes), "name,AREA,CLASS");
  types->SetListIndex(0);
  attributes->LinkFeatureSelector(nullptr);
  host->Take();
  types->SetListIndex(1);
  EXPECT_EQ(host->Take(), "");
  EXPECT_EQ(attributeListener.Take(), "");
  types->SetListener(nullptr);
}

TEST_F(AttributeSelector, FollowsATypeThatIsChosenByHand) {
  for (const auto* text : {u"Points", u"Arcs", u"Polygons"}) types->AddItem(text);
  Link();
  themes->SetDisplayText(u"areas");
  attributes->LinkFeatureSelector(types);
  form.Show();
  types->SetFocus();
  QTest::keyClick(&NativeOf(*types), Qt::Key_P);
  QTest::keyClick(&NativeOf(*types), Qt::Key_End);
  EXPECT_EQ(types->ListIndex(), 2);
  EXPECT_EQ(Names(*attributes), "name,AREA,CLASS");
}

TEST_F(AttributeSelector, KeepsItsListWhenALinkedWidgetGoesUntilItIsAskedAnew) {
  Link();
  themes->SetDisplayText(u"wells");
  form.surface.Remove(u"t");
  EXPECT_EQ(attributes->ListCount(), 2);
  attributes->RefreshAttributes();
  EXPECT_EQ(attributes->ListCount(), 0);
}

TEST_F(AttributeSelector, CanGoBeforeWhatItFollows) {
  Link();
  form.surface.Remove(u"a");
  attributes = nullptr;
  themes->SetDisplayText(u"wells");
  EXPECT_EQ(host->Take(), "");
  attributes = form.AddAt<AttributeSelectorWidget>(1, u"CardwrightCtrl.AttributeSelector", u"a");
}

TEST_F(AttributeSelector, AsksForTypesOfVisibleRowsOnly) {
  Link();
  themes->SetDisplayText(u"wells");
  host->Take();
  QComboBox& list = NativeAs<QComboBox>(*attributes);
  EXPECT_EQ(DetailOf(list, 0), "Text (40)");
  EXPECT_EQ(host->Take(), "R THEME_ATTRIBUTE |wells| |POINT| 1");
  EXPECT_EQ(DetailOf(list, 1), "Number");
  EXPECT_EQ(DetailOf(list, 1), "Number");
  EXPECT_EQ(host->Take(), "R THEME_ATTRIBUTE |wells| |POINT| 2");
}

TEST_F(AttributeSelector, AsksForNoMoreTypesThanItShows) {
  Text names = u"F0";
  for (int i = 1; i < 1000; ++i) names += u",F" + Text::FromUtf8(std::to_string(i));
  host->replies[u"THEME_ATTRIBUTE_NAMES |wells| |POINT|"] = names;
  Link();
  QElapsedTimer time;
  time.start();
  themes->SetDisplayText(u"wells");
  RecordProperty("fill_us", static_cast<int>(time.nsecsElapsed() / 1000));
  EXPECT_EQ(attributes->ListCount(), 1000);
  form.Show();
  host->Take();
  QComboBox& list = NativeAs<QComboBox>(*attributes);
  list.showPopup();
  QTest::qWait(50);
  EXPECT_GT(host->asked.size(), 5u);
  EXPECT_LT(host->asked.size(), 60u);
  list.hidePopup();
}

TEST_F(AttributeSelector, SurvivesRemovalDuringAHostRequest) {
  Link();
  host->onRequest = [&](std::u16string_view) { form.surface.Remove(u"a"); };
  themes->SetDisplayText(u"wells");
  EXPECT_EQ(themes->DisplayText(), u"wells");
  EXPECT_EQ(ErrorOf([&] { attributes->ListCount(); }), 91);
}

TEST_F(AttributeSelector, SurvivesAHostThatFails) {
  Link();
  host->onRequest = [](std::u16string_view) { Raise(ErrorNumber::InvalidCall); };
  form.Show();
  Pick(0);
  EXPECT_EQ(themes->DisplayText(), u"wells");
  EXPECT_EQ(listener.Take().find("click") == std::string::npos, false);
}

TEST_F(AttributeSelector, FollowsNothingOnceItIsUnlinked) {
  Link();
  attributes->LinkThemeSelector(nullptr);
  attributes->RefreshAttributes();
  EXPECT_EQ(attributes->ListCount(), 0);
  host->Take();
  themes->SetDisplayText(u"wells");
  EXPECT_EQ(host->Take(), "");
}

}  // namespace cardwright::qt
