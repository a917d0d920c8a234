// SPDX-License-Identifier: MIT
// The word lists and defaults letter by letter: stored settings, learned names and authors' habits count on
// each blank.

#include "editor/EditorTest.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kExpectedVbscriptKeywords =
    u" And Call Case Const Date Dim Do Each Else ElseIf Empty End Eqv Erase Error Exit Explicit False"
    u" For Function If Imp Is LBound Loop Mod Next Not Nothing Null Object On Option Or Preserve "
    u"Private Public Randomize ReDim Rem Resume Select Set Sub Then Time To True UBound Until While "
    u"Wend Xor ";

constexpr std::u16string_view kExpectedJscriptKeywords =
    u" break case catch class const continue debugger default delete do else enum export extends "
    u"false finally for function if import in new null return super switch this throw true try typeof "
    u"undefined var void while with ";

constexpr std::u16string_view kExpectedVbscriptConstants =
    u"Abs Array Asc AscB AscW Atn CBool CByte CCur CDate CDbl Chr ChrB ChrW CInt Clear CLng Cos "
    u"CreateObject CSng CStr DateAdd DateDiff DatePart DateSerial DateValue Day Debugger Description "
    u"Err Exp Filter Fix FormatCurrency FormatDateTime FormatNumber FormatPercent GetObject "
    u"HelpContext HelpFile Hex Hour InputBox InStr InStrB InStrRev Int IsArray IsDate IsEmpty IsNull "
    u"IsNumeric IsObject Join LCase Left LeftB Len LenB LoadPicture Log LTrim Mid MidB Minute Month "
    u"MonthName MsgBox Now Number Oct Raise Randomize Replace RGB Right RightB Rnd Round RTrim "
    u"ScriptEngine ScriptEngineBuildVersion ScriptEngineMajorVersion ScriptEngineMinorVersion Second "
    u"Sgn Show Sin Source Space Split Sqr StrComp String StrReverse Tan TimeSerial TimeValue "
    u"ORVExecute ORVRequest Trim TypeName UCase VarType Weekday WeekdayName WriteOut Year vbBlack "
    u"vbRed vbGreen vbYellow vbBlue vbMagenta vbCyan vbWhite vbBinaryCompare vbTextCompare vbCr vbCrLf"
    u" vbFormFeed vbLf vbNewLine vbNullChar vbNullString vbTab vbVerticalTab vbOKOnly vbOKCancel "
    u"vbAbortRetryIgnore vbYesNoCancel vbYesNo vbRetryCancel vbCritical vbQuestion vbExclamation "
    u"vbInformation vbDefaultButton1 vbDefaultButton2 vbDefaultButton3 vbDefaultButton4 "
    u"vbApplicationModal vbSystemModal vbOK vbCancel vbAbort vbRetry vbIgnore vbYes vbNo vbSunday "
    u"vbMonday vbTuesday vbWednesday vbThursday vbFriday vbSaturday vbFirstJan1 vbFirstFourDays "
    u"vbFirstFullWeek vbUseSystem vbUseSystemDayOfWeek vbGeneralDate vbLongDate vbShortDate vbLongTime"
    u" vbShortTime vbObjectError vbEmpty vbNull vbInteger vbLong vbSingle vbDouble vbCurrency vbDate "
    u"vbString vbObject vbError vbBoolean vbVariant vbDataObject vbDecimal vbByte vbArray ";

constexpr std::u16string_view kExpectedJscriptConstants =
    u" Array Boolean Date Global Math NaN Number Object RegExp Regular Expression String ORVExecute "
    u"ORVRequest debugger show writeout Controls Response CreateColor UserCloseForm Ok Cancel "
    u"ControlMenu";

Text Setting(Lexipad& pad, std::u16string_view name) { return ToText(GetProperty(pad, name)); }

class LanguageListTest : public EditorTest {
 protected:
  void ExpectSettings(const std::vector<std::pair<std::u16string_view, std::u16string_view>>& expected) {
    for (const auto& [name, value] : expected) EXPECT_EQ(Setting(*pad, name), value) << Text(name).ToUtf8();
  }
};

TEST_F(LanguageListTest, VbscriptLetterByLetter) {
  SetScript(u"", u"vbSCRIPT");
  ExpectSettings({{u"keywords", kExpectedVbscriptKeywords},
                  {u"constants", kExpectedVbscriptConstants},
                  {u"changecase", u"True"},
                  {u"casesensitive", u"False"},
                  {u"translatemode", u"0"},
                  {u"remarks", u"'"},
                  {u"remarkkeyword", u"Rem"},
                  {u"remarkblocksstart", u""},
                  {u"remarkblocksend", u""},
                  {u"stringquotes", u"\""},
                  {u"operators", u" / \\ * + - ^ & = <> > < >= <= . "},
                  {u"operatorsformat", u"0"},
                  {u"separators", u" , "},
                  {u"separatorsformat", u"2"}});
}

TEST_F(LanguageListTest, JscriptLetterByLetter) {
  SetScript(u"", u"JScript");
  ExpectSettings(
      {{u"keywords", kExpectedJscriptKeywords},
       {u"constants", kExpectedJscriptConstants},
       {u"changecase", u"False"},
       {u"casesensitive", u"True"},
       {u"translatemode", u"1"},
       {u"remarks", u"//"},
       {u"remarkkeyword", u""},
       {u"remarkblocksstart", u""},
       {u"remarkblocksend", u""},
       {u"stringquotes", u" \" ' "},
       {u"operators", u" / * + - % ++ -- ~ << >> >>> ^ & | ! = == === !== != && || > < >= <= ? : ."},
       {u"operatorsformat", u"3"},
       {u"separators", u" ; , "},
       {u"separatorsformat", u"3"}});
}

TEST_F(LanguageListTest, DefaultsOfTheTextWidget) {
  ExpectSettings({{u"forecolor", u"0"},
                  {u"keywordscolor", u"255"},
                  {u"keywordsbold", u"False"},
                  {u"remarkscolor", u"32768"},
                  {u"remarksbold", u"False"},
                  {u"numberscolor", u"16711935"},
                  {u"numbersbold", u"False"},
                  {u"constantscolor", u"0"},
                  {u"constantsbold", u"False"},
                  {u"stringscolor", u"33023"},
                  {u"stringsbold", u"False"},
                  {u"variablescolor", u"255"},
                  {u"variablesbold", u"False"},
                  {u"maxlinelength", u"1024"},
                  {u"imagelockmaxwidth", u"-1"},
                  {u"imagelockmaxheight", u"-1"}});
  EXPECT_EQ(pad->GetFont()->Values().name, u"Courier New");
}

TEST_F(LanguageListTest, NamesOfTheFormJoinTheConstants) {
  class Names final : public TableObject {
   public:
    Text TypeName() const override { return u"FrmCtrls"; }

   protected:
    const MemberTable& Members() const override {
      static constexpr Member kNames[] = {Property<&Names::ConstantNames>(u"ConstantNames")};
      static const MemberTable table(kNames);
      return table;
    }

   private:
    Text ConstantNames() const { return u" Alpha Beta"; }
  };
  Module().formControlsObject = MakeRef<Names>();
  SetScript(u"");
  EXPECT_EQ(Setting(*pad, u"constants"), Text(kExpectedVbscriptConstants) + u" Alpha Beta");
  Module().formControlsObject = nullptr;
}

TEST_F(LanguageListTest, ToolbarInItsOrder) {
  std::string keys, tooltips;
  const Ref<ToolButtons> buttons = surface->Toolbar()->Buttons();
  for (std::int32_t i = 1; i <= buttons->Count(); ++i) {
    const Ref<ToolButton> button = buttons->Item(Variant(i));
    const std::string key = button->Key().ToUtf8();
    if (key.starts_with("sep_") && key != "sep_save") continue;
    keys += key + " ";
    if (!key.starts_with("sep_") && key != "linecol" && key != "lang")
      tooltips += button->TooltipText().ToUtf8() + "|";
  }
  EXPECT_EQ(keys, "save sep_save props help undo redo find findnext subst method function linecol lang ");
  EXPECT_EQ(tooltips,
            "Save|Options...|ORV info|Undo|Redo|Find...|Find next|Replace...|Add ORV command|"
            "Add ORV request|");
}

TEST_F(LanguageListTest, UnknownLanguageOfTheSettingsIsShownWithoutAList) {
  delete std::exchange(editor, nullptr);
  NameSettings(u"app", u"", u"global", u"");
  desktop.settings.values["app/global/Language"] = "Cobol";
  MakeEditor();
  EXPECT_EQ(object->Language(), u"Cobol");
  EXPECT_EQ(surface->LanguageLabel()->DisplayText(), u"Language: Cobol");
  EXPECT_EQ(Setting(*pad, u"keywords"), u"");
}

}  // namespace
}  // namespace cardwright
