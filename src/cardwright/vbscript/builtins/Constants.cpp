// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/Builtin.h"

namespace cardwright::vbscript {

namespace {

template <std::int16_t value>
Variant Short() {
  return value;
}

template <std::int32_t value>
Variant Long() {
  return value;
}

Variant Cr() { return u"\r"; }
Variant Lf() { return u"\n"; }
Variant CrLf() { return u"\r\n"; }
Variant FormFeed() { return u"\f"; }
Variant Tab() { return u"\t"; }
Variant VerticalTab() { return u"\v"; }
Variant NullChar() { return std::u16string_view(u"\0", 1); }
Variant NullString() { return Text(); }

constexpr std::int32_t kObjectError = static_cast<std::int32_t>(0x80040000U);

// Values have the smallest whole type that holds them, Integer or Long; colours are Long throughout.
constexpr BuiltinConstant kConstants[] = {
    // Colours, red in the lowest byte
    {u"vbBlack", Long<0x000000>},
    {u"vbRed", Long<0x0000FF>},
    {u"vbGreen", Long<0x00FF00>},
    {u"vbYellow", Long<0x00FFFF>},
    {u"vbBlue", Long<0xFF0000>},
    {u"vbMagenta", Long<0xFF00FF>},
    {u"vbCyan", Long<0xFFFF00>},
    {u"vbWhite", Long<0xFFFFFF>},

    // Ways to compare texts
    {u"vbBinaryCompare", Short<0>},
    {u"vbTextCompare", Short<1>},
    {u"vbDatabaseCompare", Short<2>},

    // Characters and texts
    {u"vbCr", Cr},
    {u"vbCrLf", CrLf},
    {u"vbFormFeed", FormFeed},
    {u"vbLf", Lf},
    {u"vbNewLine", CrLf},
    {u"vbNullChar", NullChar},
    {u"vbNullString", NullString},
    {u"vbTab", Tab},
    {u"vbVerticalTab", VerticalTab},

    // Buttons, pictures and behaviour of message boxes
    {u"vbOKOnly", Short<0>},
    {u"vbOKCancel", Short<1>},
    {u"vbAbortRetryIgnore", Short<2>},
    {u"vbYesNoCancel", Short<3>},
    {u"vbYesNo", Short<4>},
    {u"vbRetryCancel", Short<5>},
    {u"vbCritical", Short<16>},
    {u"vbQuestion", Short<32>},
    {u"vbExclamation", Short<48>},
    {u"vbInformation", Short<64>},
    {u"vbDefaultButton1", Short<0>},
    {u"vbDefaultButton2", Short<256>},
    {u"vbDefaultButton3", Short<512>},
    {u"vbDefaultButton4", Short<768>},
    {u"vbApplicationModal", Short<0>},
    {u"vbSystemModal", Short<4096>},
    {u"vbMsgBoxHelpButton", Short<16384>},
    {u"vbMsgBoxSetForeground", Long<65536>},
    {u"vbMsgBoxRight", Long<524288>},
    {u"vbMsgBoxRtlReading", Long<1048576>},

    // Answers of message boxes
    {u"vbOK", Short<1>},
    {u"vbCancel", Short<2>},
    {u"vbAbort", Short<3>},
    {u"vbRetry", Short<4>},
    {u"vbIgnore", Short<5>},
    {u"vbYes", Short<6>},
    {u"vbNo", Short<7>},

    // Days and weeks
    {u"vbSunday", Short<1>},
    {u"vbMonday", Short<2>},
    {u"vbTuesday", Short<3>},
    {u"vbWednesday", Short<4>},
    {u"vbThursday", Short<5>},
    {u"vbFriday", Short<6>},
    {u"vbSaturday", Short<7>},
    {u"vbFirstJan1", Short<1>},
    {u"vbFirstFourDays", Short<2>},
    {u"vbFirstFullWeek", Short<3>},
    {u"vbUseSystem", Short<0>},
    {u"vbUseSystemDayOfWeek", Short<0>},

    // Forms of dates
    {u"vbGeneralDate", Short<0>},
    {u"vbLongDate", Short<1>},
    {u"vbShortDate", Short<2>},
    {u"vbLongTime", Short<3>},
    {u"vbShortTime", Short<4>},

    // Yes, no, or as the country has it
    {u"vbTrue", Short<-1>},
    {u"vbFalse", Short<0>},
    {u"vbUseDefault", Short<-2>},

    // Numbers of a script's own errors start here
    {u"vbObjectError", Long<kObjectError>},

    // What VarType answers
    {u"vbEmpty", Short<0>},
    {u"vbNull", Short<1>},
    {u"vbInteger", Short<2>},
    {u"vbLong", Short<3>},
    {u"vbSingle", Short<4>},
    {u"vbDouble", Short<5>},
    {u"vbCurrency", Short<6>},
    {u"vbDate", Short<7>},
    {u"vbString", Short<8>},
    {u"vbObject", Short<9>},
    {u"vbError", Short<10>},
    {u"vbBoolean", Short<11>},
    {u"vbVariant", Short<12>},
    {u"vbDataObject", Short<13>},
    {u"vbDecimal", Short<14>},
    {u"vbByte", Short<17>},
    {u"vbArray", Short<8192>},
};

}  // namespace

std::span<const BuiltinConstant> Constants() { return kConstants; }

}  // namespace cardwright::vbscript
