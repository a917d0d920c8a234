// SPDX-License-Identifier: MIT
// The two combos, the procedures they go to and write, and how they follow the caret.

#include <QComboBox>

#include "cardwright/editor/CaretProcedure.h"
#include "editor/EditorTest.h"

namespace cardwright {
namespace {

class NavigationTest : public EditorTest {
 protected:
  void TakeForm(std::u16string_view script, std::u16string_view language = u"VBScript") {
    Module().scriptContent = script;
    Module().scriptLanguage = language;
    object->ReadControls(controls);
    QApplication::processEvents();
  }
  static Ref<Collection> SomeControls() {
    auto some = MakeRef<Collection>();
    some->Add(Variant(Ref<Object>(MakeRef<NamedControl>(u"save", std::vector<Text>{u"OnClick"}))));
    some->Add(Variant(Ref<Object>(
        MakeRef<NamedControl>(u"Button1", std::vector<Text>{u"Click", u"GotFocus", u"LostFocus"}))));
    some->Add(Variant(Ref<Object>(MakeRef<NamedControl>(u"my_box", std::vector<Text>{u"OnClick"}))));
    return some;
  }
  void Choose(ComboWidget& combo, std::u16string_view text) const {
    for (int i = 0; i < combo.ListCount(); ++i)
      if (combo.ListText(i) == text) {
        auto& native = dynamic_cast<QComboBox&>(NativeOf(combo));
        native.setCurrentIndex(i);
        Q_EMIT native.activated(i);
        QApplication::processEvents();
        return;
      }
    FAIL() << Text(text).ToUtf8();
  }
  std::string Shown() const {
    return Controls().ListText(Controls().ListIndex()).ToUtf8() + " / " +
           Events().ListText(Events().ListIndex()).ToUtf8();
  }

  Ref<Collection> controls = SomeControls();
};

TEST_F(NavigationTest, ControlsAreSortedAndTheirNamesLearned) {
  TakeForm(u"  x = 1  ");
  EXPECT_EQ(Entries(Controls()), "<(generale)>|Button1|my_box|save");
  EXPECT_EQ(Controls().ItemData(1), 7);
  EXPECT_EQ(Entries(Events()), "<(dichiarazioni)>");
  EXPECT_EQ(pad->Contents(), u"x = 1");
  EXPECT_TRUE(pad->Language().constants.View().ends_with(u"vbArray  save Button1 my_box "));
  EXPECT_FALSE(object->FileModified());
}

TEST_F(NavigationTest, FormWithoutAScript) {
  TakeForm(u"", u"JScript");
  EXPECT_EQ(object->FileContent(), u"JScript\r\n");
  TakeForm(u"", u"");
  EXPECT_EQ(Module().scriptLanguage, u"VBScript");
  EXPECT_EQ(object->FileContent(), u"VBScript\r\nOption Explicit\r\n");
  TakeForm(u"x", u"Perl");
  EXPECT_EQ(desktop.TakeBoxes(), std::vector<std::string>{"Unknown file format !!!|48"});
  EXPECT_EQ(object->FileContent(), u"VBScript\r\nx");
}

TEST_F(NavigationTest, WrittenProceduresHaveAStar) {
  TakeForm(u"sub button1_gotfocus()\r\nEnd Sub\r\nSub Free()\r\nEnd Sub\r\n");
  EXPECT_EQ(Entries(Events()), "<(dichiarazioni)>|Free");
  Choose(Controls(), u"Button1");
  EXPECT_EQ(Entries(Events()), "Click|<GotFocus*>|LostFocus");
  EXPECT_EQ(pad->CurrentLine(), 2);
  Choose(Controls(), u"save");
  EXPECT_EQ(Entries(Events()), "<OnClick>") << "nothing is written yet, so nothing is made";
  EXPECT_EQ(pad->Contents().View().find(u"OnClick"), std::u16string_view::npos);
}

TEST_F(NavigationTest, ChoosingAnEventWritesItsProcedure) {
  TakeForm(u"x = 1");
  Choose(Controls(), u"Button1");
  Choose(Events(), u"Click");
  const Text blanks(std::u16string(static_cast<std::size_t>(pad->TabSize()), u' '));
  const Text written = Text(u"x = 1\r\n\r\nSub Button1_Click()\r\n") + blanks + u"\r\nEnd Sub";
  EXPECT_EQ(pad->Contents(), written);
  EXPECT_EQ(Entries(Events()), "<Click*>|GotFocus|LostFocus");
  EXPECT_EQ(pad->CurrentLine(), 4);
  EXPECT_EQ(pad->CurrentCol(), 1);
  EXPECT_TRUE(object->FileModified());
  Choose(Events(), u"GotFocus");
  Choose(Events(), u"Click*");
  const std::u16string_view text = pad->Contents();
  EXPECT_EQ(text.find(u"Button1_Click"), text.rfind(u"Button1_Click"));
}

TEST_F(NavigationTest, JscriptProcedureHasNoOpeningBrace) {
  TakeForm(u"x = 1;\r\n", u"JScript");
  Choose(Controls(), u"Button1");
  Choose(Events(), u"LostFocus");
  const Text blanks(std::u16string(static_cast<std::size_t>(pad->TabSize()), u' '));
  EXPECT_EQ(pad->Contents(), Text(u"x = 1;\r\n\r\nfunction Button1_LostFocus()\r\n") + blanks + u"\r\n}");
}

TEST_F(NavigationTest, ProcedureAtTheTopIsFound) {
  TakeForm(u"Sub Button1_Click()\r\n  y\r\nEnd Sub");
  Choose(Controls(), u"Button1");
  EXPECT_EQ(Entries(Events()), "<Click*>|GotFocus|LostFocus");
  EXPECT_EQ(pad->CurrentLine(), 2);
}

TEST_F(NavigationTest, StarGoesWithTheProcedureAndStaysAway) {
  TakeForm(u"Sub Button1_Click()\r\nEnd Sub");
  Choose(Controls(), u"Button1");
  pad->SetSelStart(4);
  pad->SetSelLength(1);
  pad->SetSelText(u"C");
  EXPECT_EQ(Entries(Events()), "<Click>|GotFocus|LostFocus");
  pad->Undo();
  EXPECT_EQ(Entries(Events()), "<Click>|GotFocus|LostFocus") << "marks come back when the list is filled";
}

TEST_F(NavigationTest, CombosFollowTheCaret) {
  TakeForm(
      u"Dim a\r\n\r\nSub Button1_Click()\r\n  a = 1\r\nEnd Sub\r\n\r\n' between\r\nSub Free(x)\r\n  a = 2\r\n"
      u"End Sub\r\n\r\nSub my_box_OnClick()\r\nEnd Sub\r\nSub my_helper()\r\n  z\r\nEnd Sub");
  PutCaret(u"a = 1");
  EXPECT_EQ(Shown(), "Button1 / Click*");
  PutCaret(u"a = 2");
  EXPECT_EQ(Shown(), "(generale) / Free");
  PutCaret(u"Sub Button1_");
  EXPECT_EQ(Shown(), "Button1 / Click*") << "on the line of the header";
  PutCaret(u"1\r\nEnd");
  EXPECT_EQ(Shown(), "Button1 / Click*") << "on the line that ends it";
  PutCaret(u"' betw");
  EXPECT_EQ(Shown(), "(generale) / Free") << "text between belongs to the next one";
  PutCaret(u"Dim a");
  EXPECT_EQ(Shown(), "(generale) / (dichiarazioni)");
  PutCaret(u"\r\n  z");
  EXPECT_EQ(Shown(), "(generale) / my_helper") << "a free procedure with an underscore";
  PutCaret(u"Sub my_b");
  EXPECT_EQ(Shown(), "my_box / OnClick*");
}

TEST_F(NavigationTest, ChoosingAFreeProcedureOrTheDeclarations) {
  TakeForm(u"Dim a\r\nSub Free(x)\r\n  a = 2\r\nEnd Sub\r\n");
  Choose(Events(), u"Free");
  EXPECT_EQ(pad->CurrentLine(), 3);
  Choose(Events(), u"(dichiarazioni)");
  EXPECT_EQ(pad->SelStart(), 0);
}

TEST_F(NavigationTest, BrokenScriptLeavesTheFirstEntries) {
  TakeForm(u"broken\r\nSub Free()\r\nEnd Sub");
  EXPECT_EQ(Entries(Controls()), "<(generale)>|Button1|my_box|save");
  EXPECT_EQ(Entries(Events()), "<(dichiarazioni)>");
}

TEST_F(NavigationTest, RefreshReplacesTheNamesOnce) {
  TakeForm(u"x");
  controls->Remove(Variant(std::int32_t{1}));
  object->RefreshControlsList();
  EXPECT_EQ(Entries(Controls()), "<(generale)>|Button1|my_box");
  EXPECT_TRUE(pad->Language().constants.View().ends_with(u"vbArray  Button1 my_box "));
  controls->Remove(Variant(std::int32_t{1}));
  object->RefreshControlsList();
  EXPECT_EQ(Entries(Controls()), "<(generale)>|my_box");
  EXPECT_TRUE(pad->Language().constants.View().ends_with(u"vbArray  Button1 my_box "));
}

TEST_F(NavigationTest, NoControls) {
  object->ReadControls(nullptr);
  EXPECT_EQ(Entries(Controls()), "<(generale)>");
  object->RefreshControlsList();
  EXPECT_EQ(Entries(Events()), "<(dichiarazioni)>");
}

TEST(SplitHeaderLineTest, NamesOfHeaders) {
  const struct {
    std::u16string_view line, control, event;
  } cases[] = {
      {u"Sub Button1_Click()", u"Button1", u"Click"},
      {u"function my_box_OnClick(a, b) {", u"my_box", u"OnClick"},
      {u"Sub Free", u"", u"Free"},
      {u"Sub   Spaced_Out (x_y)", u"Spaced", u"Out "},
      {u"Free_Event(x)", u"Free", u"Event"},
      {u"Sub _Event()", u"", u"Event"},
      {u"Sub Box_()", u"Box", u""},
      {u"Sub A_B()\r\nSub C_D()", u"A", u"B"},
      {u"", u"", u""},
  };
  for (const auto& each : cases) {
    const ProcedureName name = SplitHeaderLine(each.line);
    EXPECT_EQ(Text(name.control), each.control) << Text(each.line).ToUtf8();
    EXPECT_EQ(Text(name.event), each.event) << Text(each.line).ToUtf8();
  }
}

/// The script's lines are joined by CR LF and the caret is where the bar is.
class ProcedureAtCaretTest : public EditorTest {
 protected:
  std::string At(std::u16string_view marked, std::u16string_view language = u"VBScript") {
    const std::size_t caret = marked.find(u'|');
    std::u16string script(marked);
    script.erase(caret, 1);
    SetScript(script, language);
    pad->SetSelStart(static_cast<std::int32_t>(caret));
    const ProcedureName name = ProcedureAtCaret(*pad, language);
    return Text(name.control).ToUtf8() + "." + Text(name.event).ToUtf8();
  }
};

TEST_F(ProcedureAtCaretTest, Vbscript) {
  EXPECT_EQ(At(u"|"), ".");
  EXPECT_EQ(At(u"Dim x|\r\nSub A_B()\r\nEnd Sub\r\n"), ".");
  EXPECT_EQ(At(u"SUB A_B()|\r\nEnd Sub\r\n"), "A.B");
  EXPECT_EQ(At(u"sub A_B()\r\nx|\r\nEnd Sub\r\n"), "A.B");
  EXPECT_EQ(At(u"sub A_B()\r\nx\r\nEND SUB|\r\n"), "A.B");
  EXPECT_EQ(At(u"sub A_B()\r\nEnd Sub\r\n|\r\nSub C_D()\r\nEnd Sub"), "A.B") << "only blanks since";
  EXPECT_EQ(At(u"sub A_B()\r\nEnd Sub\r\nx|\r\nSub C_D()\r\nEnd Sub"), "C.D");
  EXPECT_EQ(At(u"sub A_B()\r\nEnd Sub\r\nx|\r\n"), ".");
  EXPECT_EQ(At(u"function A_B()\r\nEnd Sub\r\nsub E_F()\r\ny|"), "E.F") << "the nearest";
}

TEST_F(ProcedureAtCaretTest, Jscript) {
  EXPECT_EQ(At(u"function A_B()\r\n{\r\n  x|\r\n}\r\n", u"JScript"), "A.B");
  EXPECT_EQ(At(u"function A_B()\r\n{\r\n  x\r\n}|\r\n", u"JScript"), "A.B");
  EXPECT_EQ(
      At(u"function A_B()\r\n{\r\nif (x) {\r\n}\r\ny|\r\n}\r\nfunction C_D()\r\n{\r\n}\r\n", u"JScript"),
      "C.D")
      << "a brace alone on its line counts as an end";
}

}  // namespace
}  // namespace cardwright
