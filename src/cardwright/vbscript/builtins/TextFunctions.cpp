#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript {

std::span<const Builtin> TextFunctions() {
  static constexpr Builtin kFunctions[] = {
      {u"Escape", &builtin::Escape, 1, 1},     {u"InStr", &builtin::InStr, 2, 4},
      {u"InStrB", &builtin::InStrB, 2, 4},     {u"InStrRev", &builtin::InStrRev, 2, 4},
      {u"LCase", &builtin::LCase, 1, 1},       {u"Left", &builtin::Left, 2, 2},
      {u"LeftB", &builtin::LeftB, 2, 2},       {u"Len", &builtin::Len, 1, 1},
      {u"LenB", &builtin::LenB, 1, 1},         {u"LTrim", &builtin::LTrim, 1, 1},
      {u"Mid", &builtin::Mid, 2, 3},           {u"MidB", &builtin::MidB, 2, 3},
      {u"Replace", &builtin::Replace, 3, 6},   {u"Right", &builtin::Right, 2, 2},
      {u"RightB", &builtin::RightB, 2, 2},     {u"RTrim", &builtin::RTrim, 1, 1},
      {u"Space", &builtin::Space, 1, 1},       {u"StrComp", &builtin::StrComp, 2, 3},
      {u"String", &builtin::String, 2, 2},     {u"StrReverse", &builtin::StrReverse, 1, 1},
      {u"Trim", &builtin::Trim, 1, 1},         {u"UCase", &builtin::UCase, 1, 1},
      {u"Unescape", &builtin::Unescape, 1, 1},
  };
  return kFunctions;
}

}  // namespace cardwright::vbscript
