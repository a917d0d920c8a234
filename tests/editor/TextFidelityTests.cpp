// SPDX-License-Identifier: MIT
// What goes into the text widget comes out the same, and positions count what the text has.

#include "cardwright/editor/LanguageTables.h"
#include "cardwright/editor/LineTokens.h"
#include "editor/EditorTest.h"

namespace cardwright {
namespace {

using TextFidelityTest = EditorTest;

const std::vector<Text>& OddTexts() {
  using namespace std::string_view_literals;
  static const std::vector<Text> texts = {
      u"",
      u"\r\n",
      u"\r",
      u"\n",
      u"a\nb\r\nc\rd\r\n",
      u"a\nb\nc\r\n",
      u"a\rb\rc\n",
      u"\r\r\n\n\r",
      u"a\u2029b\r\nc\u2028d",
      u"sign \u2424 alone",
      u"sign \u2424 and \r a\r\nb\nc",
      Text(u"nul \0 inside\r\n\0"sv),
      Text(u"lone \xD800 and \xDC00\xD801"sv),
      u"nbsp \u00A0\u00A0x\r\n\u00A0",
      u"\uFDD0 and \uFDD1 and \uFFFC and \uFFFE \uFEFF",
      u"tab\tvertical\u000Bform\u000Cbell\u0007\u0085",
      u"combining e\u0301 \U0001F600\r\nrtl \u05D0\u202E",
  };
  return texts;
}

TEST_F(TextFidelityTest, DocumentsComeOutTheSame) {
  for (const std::u16string_view language : {u"VBScript", u"JScript"})
    for (const Text& text : OddTexts()) {
      object->SetFileContent(Text(language) + u"\r\n" + text);
      // What follows the language's line end loses no more than that.
      if (text.IsEmpty() || text[0] != u'\n') {
        EXPECT_EQ(pad->Contents(), text);
      }
      pad->SetContents(text);
      EXPECT_EQ(object->FileContent(), Text(language) + u"\r\n" + text);
      EXPECT_EQ(pad->TextLength(), static_cast<std::int32_t>(text.Size()));
    }
}

TEST_F(TextFidelityTest, ReplacedSelectionsComeOutTheSame) {
  for (const Text& text : OddTexts()) {
    pad->SetContents(u"head\r\ntail\r\n");
    pad->SetSelStart(6);
    pad->SetSelLength(4);
    pad->SetSelText(text);
    EXPECT_EQ(pad->Contents(), Text(u"head\r\n") + text + u"\r\n");
  }
}

TEST_F(TextFidelityTest, UndoGivesBackWhatWasThere) {
  for (const Text& text : OddTexts()) {
    pad->SetContents(text);
    pad->SetSelStart(0);
    pad->SetSelLength(pad->TextLength());
    pad->SetSelText(u"x");
    pad->Undo();
    EXPECT_EQ(pad->Contents(), text);
  }
}

TEST_F(TextFidelityTest, EditedLinesKeepTheirOddCharacters) {
  pad->SetContents(u"x=1\n\r\nif a=2 \r then b=3\r\n");
  pad->SetSelStart(pad->LineIndex(1));
  Type("y");
  Press(Qt::Key_Down);
  EXPECT_EQ(pad->Contents(), u"x=1\n\r\nyif a=2 \r then b=3\r\n");
}

TEST_F(TextFidelityTest, PositionsCountBothCharactersOfALineEnd) {
  pad->SetContents(u"ab\r\ncde\r\n\r\nf");
  EXPECT_EQ(pad->TextLength(), 12);
  EXPECT_EQ(pad->LineCount(), 4);
  const std::int32_t starts[] = {0, 4, 9, 11};
  for (int line = 0; line < 4; ++line) EXPECT_EQ(pad->LineIndex(line), starts[line]);
  EXPECT_EQ(pad->LineText(2), u"cde");
  EXPECT_EQ(pad->LineText(0), u"");
  EXPECT_EQ(pad->LineText(5), u"");
  EXPECT_EQ(pad->LineFromChar(4), 1);
  EXPECT_EQ(pad->LineFromChar(11), 3);
  EXPECT_EQ(pad->LineLength(5), 3);
  pad->SetSelStart(5);
  pad->SetSelLength(5);
  EXPECT_EQ(pad->SelText(), u"de\r\n");
  pad->SetSelStart(99);
  EXPECT_EQ(pad->SelStart(), 12);
  EXPECT_EQ(pad->LineIndex(-1), 11);
  EXPECT_EQ(pad->CurrentLine(), 4);
  EXPECT_EQ(pad->CurrentCol(), 2);
  pad->SetSelStart(-5);
  EXPECT_EQ(pad->SelStart(), 0);
}

TEST_F(TextFidelityTest, TokensByClass) {
  SetScript(u"a = \"text\" ' remark\r\nif 12 then Len(x)");
  const auto at = [&](std::u16string_view text) {
    return static_cast<int>(
        pad->TokenClass(static_cast<std::int32_t>(pad->Contents().View().find(text)) + 1));
  };
  EXPECT_EQ(at(u"a ="), 0);
  EXPECT_EQ(at(u"text"), 1);
  EXPECT_GT(at(u"remark"), 1);
  EXPECT_GT(at(u"if"), 1);
  EXPECT_GT(at(u"12"), 1);
}

TEST_F(TextFidelityTest, SearchOfTheWidget) {
  pad->SetContents(u"one One\r\nphone one");
  EXPECT_EQ(pad->Find(u"one", 1, {}, 0), 4);
  EXPECT_EQ(pad->SelText(), u"One");
  EXPECT_EQ(pad->Find(u"one", 1, {}, FindOption::MatchCase), 11);
  EXPECT_EQ(pad->Find(u"one", 5, {}, FindOption::WholeWord), 15);
  EXPECT_EQ(pad->Find(u"one", 5, 12, 0), -1);
  EXPECT_EQ(pad->SelText(), u"one");
  EXPECT_EQ(pad->Find(u"\r\n", 0, {}, FindOption::KeepSelection), 7);
  EXPECT_EQ(pad->SelText(), u"one");
  EXPECT_EQ(pad->Find(u"", 0, {}, 0), -1);
}

TEST_F(TextFidelityTest, LinesThatAreLeftAreTidied) {
  SetScript(u"");
  Type("IF a=1 then msgbox \"IF a=1\",2 ' IF a=1\n");
  EXPECT_EQ(pad->Contents(), u"If a = 1 Then MsgBox \"IF a=1\", 2 ' IF a=1\r\n");
  SetScript(u"", u"JScript");
  Type("IF (a==1) Var b=1\n");
  EXPECT_EQ(pad->Contents(), u"IF (a==1) Var b=1\r\n");
}

TEST(LineTidyTest, DoingItTwiceChangesNothing) {
  const LanguageWords words[] = {LanguageWords(*LanguageTable(u"VBScript")),
                                 LanguageWords(*LanguageTable(u"JScript"))};
  const std::u16string_view lines[] = {
      u"",
      u"   ",
      u"a=b+c*-d^2",
      u"x=-1:y=+2",
      u"if a<>b and c>=d or e<=f then g=h&i",
      u"call foo(a,b,,c , d)",
      u"obj.Name=\"a,b\"&vbcrlf ' x=1",
      u"rem a=b",
      u"d=#1/2/2003#",
      u"n=&HFF&+&O17",
      u"[my name]=3",
      u"a=>b=<c><d",
      u"x=\"open, a=b",
      u"with .a.b=.5e-3",
      u"\t tab=\t1\t",
      u"a - -b --c",
      u"for i=0 to ubound(x):next",
      u"\u00E9t\u00E9=\u6F22+\U0001F600",
      u"=,=,==-=",
  };
  for (const LanguageWords& language : words)
    for (const std::u16string_view line : lines) {
      const Text once = language.Tidy(line, false);
      EXPECT_EQ(language.Tidy(once, false), once);
    }
}

}  // namespace
}  // namespace cardwright
