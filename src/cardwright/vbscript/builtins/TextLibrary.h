#pragma once

#include "cardwright/automation/Object.h"

namespace cardwright::vbscript {
class Context;
}

/// The functions on texts, each as the table in TextFunctions.cpp calls it. Where nothing else is said, Null
/// for the text gives Null, a number out of its range error 5, Null for a number error 94, and positions
/// count from 1.
namespace cardwright::vbscript::builtin {

/// @name Parts of a text
/// @{
Variant Len(Context& context, Args args);
Variant Left(Context& context, Args args);
Variant Right(Context& context, Args args);
Variant Mid(Context& context, Args args);
Variant LTrim(Context& context, Args args);
Variant RTrim(Context& context, Args args);
Variant Trim(Context& context, Args args);
/// @}

/// @name The same on the bytes of the UTF-16 units, low byte first. A text here always has whole units: a
/// result of an odd number of bytes gets a zero byte at its end.
/// @{
Variant LenB(Context& context, Args args);
Variant LeftB(Context& context, Args args);
Variant RightB(Context& context, Args args);
Variant MidB(Context& context, Args args);
Variant InStrB(Context& context, Args args);
/// @}

/// @name Search and order
/// @{
Variant InStr(Context& context, Args args);
Variant InStrRev(Context& context, Args args);
Variant StrComp(Context& context, Args args);
/// Error 94 for any Null. The result begins at the start position.
Variant Replace(Context& context, Args args);
/// @}

/// @name Other forms of a text, and new ones
/// @{
Variant LCase(Context& context, Args args);
Variant UCase(Context& context, Args args);
Variant StrReverse(Context& context, Args args);  ///< error 94 for Null
Variant Space(Context& context, Args args);
Variant String(Context& context, Args args);
Variant Escape(Context& context, Args args);    ///< error 94 for Null
Variant Unescape(Context& context, Args args);  ///< error 94 for Null
/// @}

}  // namespace cardwright::vbscript::builtin
