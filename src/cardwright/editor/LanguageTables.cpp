// SPDX-License-Identifier: MIT
#include "cardwright/editor/LanguageTables.h"

namespace cardwright {

namespace {

// The lists keep their exact form: authors' settings and the learning of names depend on it. If a list begins
// or ends with a space, a name that is appended to it becomes a word of its own or joins the last one.
constexpr std::u16string_view kVbscriptKeywords =
    u" And Call Case Const Date Dim Do Each Else ElseIf Empty End Eqv Erase Error Exit Explicit False "
    u"For Function If Imp Is LBound Loop Mod Next Not Nothing Null Object On Option Or Preserve "
    u"Private Public Randomize ReDim Rem Resume Select Set Sub Then Time To True UBound Until While "
    u"Wend Xor ";

constexpr std::u16string_view kJscriptKeywords =
    u" break case catch class const continue debugger default delete do else enum export extends "
    u"false finally for function if import in new null return super switch this throw true try typeof "
    u"undefined var void while with ";

constexpr std::u16string_view kVbscriptConstants =
    u"Abs Array Asc AscB AscW Atn CBool CByte CCur CDate CDbl Chr ChrB ChrW CInt Clear CLng Cos "
    u"CreateObject CSng CStr DateAdd DateDiff DatePart DateSerial DateValue Day Debugger Description "
    u"Err Exp Filter Fix FormatCurrency FormatDateTime FormatNumber FormatPercent GetObject "
    u"HelpContext HelpFile Hex Hour InputBox InStr InStrB InStrRev Int IsArray IsDate IsEmpty IsNull "
    u"IsNumeric IsObject Join LCase Left LeftB Len LenB LoadPicture Log LTrim Mid MidB Minute Month "
    u"MonthName MsgBox Now Number Oct Raise Randomize Replace RGB Right RightB Rnd Round RTrim "
    u"ScriptEngine ScriptEngineBuildVersion ScriptEngineMajorVersion ScriptEngineMinorVersion Second "
    u"Sgn Show Sin Source Space Split Sqr StrComp String StrReverse Tan TimeSerial TimeValue "
    u"ORVExecute ORVRequest Trim TypeName UCase VarType Weekday WeekdayName WriteOut Year vbBlack "
    u"vbRed vbGreen vbYellow vbBlue vbMagenta vbCyan vbWhite vbBinaryCompare vbTextCompare vbCr "
    u"vbCrLf vbFormFeed vbLf vbNewLine vbNullChar vbNullString vbTab vbVerticalTab vbOKOnly "
    u"vbOKCancel vbAbortRetryIgnore vbYesNoCancel vbYesNo vbRetryCancel vbCritical vbQuestion "
    u"vbExclamation vbInformation vbDefaultButton1 vbDefaultButton2 vbDefaultButton3 vbDefaultButton4 "
    u"vbApplicationModal vbSystemModal vbOK vbCancel vbAbort vbRetry vbIgnore vbYes vbNo vbSunday "
    u"vbMonday vbTuesday vbWednesday vbThursday vbFriday vbSaturday vbFirstJan1 vbFirstFourDays "
    u"vbFirstFullWeek vbUseSystem vbUseSystemDayOfWeek vbGeneralDate vbLongDate vbShortDate "
    u"vbLongTime vbShortTime vbObjectError vbEmpty vbNull vbInteger vbLong vbSingle vbDouble "
    u"vbCurrency vbDate vbString vbObject vbError vbBoolean vbVariant vbDataObject vbDecimal vbByte "
    u"vbArray ";

constexpr std::u16string_view kJscriptConstants =
    u" Array Boolean Date Global Math NaN Number Object RegExp Regular Expression String ORVExecute "
    u"ORVRequest debugger show writeout Controls Response CreateColor UserCloseForm Ok Cancel "
    u"ControlMenu";

constexpr std::u16string_view kVbscriptOperators = u" / \\ * + - ^ & = <> > < >= <= . ";
constexpr std::u16string_view kJscriptOperators =
    u" / * + - % ++ -- ~ << >> >>> ^ & | ! = == === !== != && || > < >= <= ? : .";

LexipadLanguage Vbscript() {
  return {.changeCase = true,
          .caseSensitive = false,
          .translateMode = 0,
          .keywords = kVbscriptKeywords,
          .constants = kVbscriptConstants,
          .remarks = u"'",
          .remarkKeyword = u"Rem",
          .remarkBlocksStart = {},
          .remarkBlocksEnd = {},
          .stringQuotes = u"\"",
          .operators = kVbscriptOperators,
          .operatorsFormat = BlankFormat::BothSides,
          .separators = u" , ",
          .separatorsFormat = BlankFormat::After};
}

// Remarks over several lines are left unknown on purpose: authors' scripts were written under an editor that
// coloured them as code.
LexipadLanguage Jscript() {
  return {.changeCase = false,
          .caseSensitive = true,
          .translateMode = 1,
          .keywords = kJscriptKeywords,
          .constants = kJscriptConstants,
          .remarks = u"//",
          .remarkKeyword = {},
          .remarkBlocksStart = {},
          .remarkBlocksEnd = {},
          .stringQuotes = u" \" ' ",
          .operators = kJscriptOperators,
          .operatorsFormat = BlankFormat::None,
          .separators = u" ; , ",
          .separatorsFormat = BlankFormat::None};
}

}  // namespace

bool IsVbscript(std::u16string_view language) noexcept { return EqualsNoCase(language, kVbscriptName); }

bool IsKnownLanguage(std::u16string_view language) noexcept {
  return IsVbscript(language) || EqualsNoCase(language, kJscriptName);
}

std::optional<LexipadLanguage> LanguageTable(std::u16string_view language) {
  if (!IsKnownLanguage(language)) return std::nullopt;
  return IsVbscript(language) ? Vbscript() : Jscript();
}

}  // namespace cardwright
