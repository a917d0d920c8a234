// SPDX-License-Identifier: MIT
// The pop-up: what opens it, each of its transitions, picking and accepting.

#include "cardwright/editor/Completion.h"
#include "editor/CatalogueFixture.h"
#include "editor/EditorTest.h"

namespace cardwright {
namespace {

class CompletionTest : public EditorTest {
 protected:
  enum class Popup { Hidden, List, Tip };

  Popup State() const {
    if (!surface->Popup()->IsVisible()) return Popup::Hidden;
    return surface->PopupList()->IsVisible() ? Popup::List : Popup::Tip;
  }
  void OpenCatalogue() { object->SetOrvInfoSearchPath(MakeCatalogue(folder, SomeCommands())); }
  void Start() {
    SetScript(u"Sub Foo(a,b)\r\nEnd Sub\r\n\r\n");
    pad->SetSelStart(pad->TextLength());
  }
  void ToList() {
    Start();
    OpenCatalogue();
    Type("ORVExecute(");
    ASSERT_EQ(State(), Popup::List);
  }
  void ToTip() {
    Start();
    Type("Foo(");
    ASSERT_EQ(State(), Popup::Tip);
  }
  /// The timer that follows the caret gives the keyboard back to the text while the caret moves.
  void GoIntoList() const {
    QTest::qWait(20);
    QTest::keyPress(&Keyboard(), Qt::Key_Down);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Down);
  }
  std::string Selected() const {
    const int row = surface->PopupList()->SelectedRow();
    return row == 0 ? "" : surface->PopupList()->RowText(row).ToUtf8();
  }
  Text LastLine() const { return pad->LineText(pad->LineCount()); }
};

TEST_F(CompletionTest, HiddenOpensOnCatalogueWordsAndSignatures) {
  EXPECT_EQ(State(), Popup::Hidden);
  ToList();
  Press(Qt::Key_Escape);
  ToTip();
}

TEST_F(CompletionTest, ListOfCommandsAndOfRequests) {
  ToList();
  std::string rows;
  CompletionListWidget& list = *surface->PopupList();
  for (int i = 1; i <= list.RowCount(); ++i)
    rows += list.RowText(i).ToUtf8() + "/" + list.RowIcon(i).ToUtf8() + ";";
  EXPECT_EQ(rows, "APPLICATION_REDRAW/method;THEME_SELECT |theme| id/method;");
  Press(Qt::Key_Escape);
  Start();
  Type("x=orvREQUEST(");
  ASSERT_EQ(State(), Popup::List);
  EXPECT_EQ(list.RowCount(), 2);
  EXPECT_EQ(list.RowIcon(1), u"function");
}

TEST_F(CompletionTest, ListBecomesATip) {
  ToList();
  Type("Foo(");
  EXPECT_EQ(State(), Popup::Tip);
  EXPECT_EQ(surface->PopupTip()->DisplayText(), u"Foo(a, b)");
}

TEST_F(CompletionTest, TipBecomesAList) {
  OpenCatalogue();
  ToTip();
  Type("ORVExecute(");
  EXPECT_EQ(State(), Popup::List);
}

TEST_F(CompletionTest, OtherWordsHideIt) {
  ToList();
  Type("other ");
  EXPECT_EQ(State(), Popup::Hidden);
  ToTip();
  Type("other(");
  EXPECT_EQ(State(), Popup::Hidden);
  Type("again ");
  EXPECT_EQ(State(), Popup::Hidden);
}

TEST_F(CompletionTest, CatalogueWordWithoutRowsChangesNothing) {
  ToTip();
  Type("ORVExecute(");
  EXPECT_EQ(State(), Popup::Tip);
  Press(Qt::Key_Escape);
  Start();
  Type("ORVExecute(");
  EXPECT_EQ(State(), Popup::Hidden);
}

TEST_F(CompletionTest, EscapeBracketAndLineChangeHideIt) {
  for (const auto& to :
       {std::function<void()>([this] { ToList(); }), std::function<void()>([this] { ToTip(); })}) {
    to();
    Press(Qt::Key_Escape);
    EXPECT_EQ(State(), Popup::Hidden);
    to();
    Type(")");
    EXPECT_EQ(State(), Popup::Hidden);
    to();
    Type("\n");
    EXPECT_EQ(State(), Popup::Hidden);
    to();
    Press(Qt::Key_Up);
    EXPECT_EQ(State(), Popup::Hidden);
    to();
    object->DoUndo();
    EXPECT_EQ(State(), Popup::Hidden);
  }
}

TEST_F(CompletionTest, LostKeyboardHidesIt) {
  for (const auto& to :
       {std::function<void()>([this] { ToList(); }), std::function<void()>([this] { ToTip(); })}) {
    to();
    Controls().SetFocus();
    QApplication::processEvents();
    EXPECT_EQ(State(), Popup::Hidden);
    pad->SetFocus();
  }
}

TEST_F(CompletionTest, LinesThatDefineAFunctionAndStringsOpenNothing) {
  Start();
  Type("Function Foo(");
  EXPECT_EQ(State(), Popup::Hidden);
  Start();
  Type("x = \"Foo(");
  EXPECT_EQ(State(), Popup::Hidden);
  Start();
  Type("' Foo(");
  EXPECT_EQ(State(), Popup::Hidden);
  Start();
  Type("x=y+Foo ");
  EXPECT_EQ(State(), Popup::Tip) << "a blank opens it too";
}

TEST_F(CompletionTest, TypingSelectsAndKeepsAllEntries) {
  ToList();
  EXPECT_EQ(Selected(), "");
  Type("\"theme");
  EXPECT_EQ(Selected(), "THEME_SELECT |theme| id");
  EXPECT_EQ(surface->PopupList()->RowCount(), 2);
  Type("X");
  EXPECT_EQ(Selected(), "");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Selected(), "THEME_SELECT |theme| id");
}

TEST_F(CompletionTest, AcceptsInQuotesWithTheCaretBehindTheName) {
  ToList();
  Type("theme");
  GoIntoList();
  ASSERT_EQ(QApplication::focusWidget(), &NativeOf(*surface->PopupList()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(State(), Popup::Hidden);
  EXPECT_EQ(LastLine(), u"ORVExecute(\"THEME_SELECT |theme| id\"");
  EXPECT_EQ(pad->CurrentCol(), 26);
  EXPECT_EQ(QApplication::focusWidget(), &Keyboard());
}

TEST_F(CompletionTest, EscapeInTheListGoesBackToTheText) {
  ToList();
  GoIntoList();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(State(), Popup::Hidden);
  EXPECT_EQ(QApplication::focusWidget(), &Keyboard());
  EXPECT_EQ(LastLine(), u"ORVExecute(");
}

TEST_F(CompletionTest, ToolbarWritesACallAndOpensItsList) {
  Start();
  OpenCatalogue();
  object->SetFileModified(false);
  object->DoAddOrvCommand();
  EXPECT_EQ(LastLine(), u"ORVExecute(\"\")");
  EXPECT_EQ(pad->CurrentCol(), 13);
  EXPECT_EQ(State(), Popup::List);
  EXPECT_TRUE(object->FileModified());
  surface->PopupList()->SetSelectedRow(1);
  GoIntoList();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(LastLine(), u"ORVExecute(\"APPLICATION_REDRAW\")");
  Start();
  object->DoAddOrvRequest();
  EXPECT_EQ(LastLine(), u"ORVRequest(\"\")");
  EXPECT_EQ(pad->CurrentCol(), 13);
}

TEST_F(CompletionTest, PopupKeepsTheSizeAPersonGaveIt) {
  ToList();
  PictureWidget& popup = *surface->Popup();
  EXPECT_EQ(popup.Width(), 4000);
  EXPECT_EQ(popup.Height(), 1700);
  popup.Move(popup.Left(), popup.Top(), 3000, 1500);
  QApplication::processEvents();
  Press(Qt::Key_Escape);
  ToTip();
  Press(Qt::Key_Escape);
  ToList();
  EXPECT_EQ(popup.Width(), 3000);
  EXPECT_EQ(popup.Height(), 1500);
}

TEST_F(CompletionTest, DescriptionFollowsTheCaret) {
  OpenCatalogue();
  SetScript(u"ORVExecute(\"THEME_SELECT |x| 1\")\r\ny = 2");
  PutCaret(u"THEME_S");
  DescriptionWindow& description = surface->Description();
  EXPECT_EQ(description.Caption(), u"Descrizione ORV");
  EXPECT_EQ(description.Syntax(), u"THEME_SELECT |theme| id  ");
  EXPECT_EQ(description.Category(), u"Command/Themes");
  EXPECT_EQ(description.Tip(), u"Selects a feature");
  PutCaret(u"y = 2");
  EXPECT_EQ(description.Syntax(), u"");
  EXPECT_EQ(description.Category(), u"");
  object->DoShowHelp(1);
  EXPECT_TRUE(description.IsVisible());
  EXPECT_EQ(object->HelpButtonValue(), 1);
  object->DoShowHelp(0);
  EXPECT_FALSE(description.IsVisible());
}

TEST_F(CompletionTest, SignaturesByTheSeparatorsFormat) {
  pad->SetContents(u"Function  Foo ( a,b , c )\r\nSub Bar(x)");
  EXPECT_EQ(FindUserProcSignature(*pad, u"foo"), u"Foo(a, b, c)");
  EXPECT_EQ(FindUserProcSignature(*pad, u"bar"), u"Bar(x)");
  EXPECT_EQ(FindUserProcSignature(*pad, u"baz"), u"");
  LetProperty(*pad, u"separatorsformat", Variant(std::int32_t{0}));
  EXPECT_EQ(FindUserProcSignature(*pad, u"FOO"), u"Foo(a , b , c)");
  LetProperty(*pad, u"separatorsformat", Variant(std::int32_t{1}));
  EXPECT_EQ(FindUserProcSignature(*pad, u"FOO"), u"Foo(a ,b ,c)");
  LetProperty(*pad, u"separatorsformat", Variant(std::int32_t{3}));
  EXPECT_EQ(FindUserProcSignature(*pad, u"FOO"), u"Foo(a,b,c)");
}

}  // namespace
}  // namespace cardwright
