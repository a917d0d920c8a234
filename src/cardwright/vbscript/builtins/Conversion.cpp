#include "cardwright/vbscript/builtins/Conversion.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/Operand.h"

namespace cardwright::vbscript {

namespace {

template <auto Convert>
Variant To(Context&, Args args) {
  const Operand value(args[0]);
  return Convert(value);
}

Variant CStr(Context&, Args args) {
  const Operand value(args[0]);
  if (value.Kind() == Side::Unfit) Raise(ErrorNumber::TypeMismatch);
  return ToText(value);
}

constexpr Builtin kConversionFunctions[] = {
    {u"Asc", conversion::Asc, 1, 1},
    {u"AscB", conversion::AscB, 1, 1},
    {u"AscW", conversion::AscW, 1, 1},
    {u"CBool", To<ToBoolean>, 1, 1},
    {u"CByte", To<ToByte>, 1, 1},
    {u"CCur", To<ToCurrency>, 1, 1},
    {u"CDate", To<ToDate>, 1, 1},
    {u"CDbl", To<ToDouble>, 1, 1},
    {u"Chr", conversion::Chr, 1, 1},
    {u"ChrB", conversion::ChrB, 1, 1},
    {u"ChrW", conversion::ChrW, 1, 1},
    {u"CInt", To<ToInteger>, 1, 1},
    {u"CLng", To<ToLong>, 1, 1},
    {u"CSng", To<ToSingle>, 1, 1},
    {u"CStr", CStr, 1, 1},
    {u"Fix", conversion::Fix, 1, 1},
    {u"Hex", conversion::Hex, 1, 1},
    {u"Int", conversion::Int, 1, 1},
    {u"IsArray", conversion::IsArray, 1, 1},
    {u"IsDate", conversion::IsDate, 1, 1},
    {u"IsEmpty", conversion::IsEmpty, 1, 1},
    {u"IsNull", conversion::IsNull, 1, 1},
    {u"IsNumeric", conversion::IsNumeric, 1, 1},
    {u"IsObject", conversion::IsObject, 1, 1},
    {u"Oct", conversion::Oct, 1, 1},
    {u"Round", conversion::Round, 1, 2},
    {u"TypeName", conversion::TypeName, 1, 1},
    {u"VarType", conversion::VarType, 1, 1},
};

}  // namespace

std::span<const Builtin> ConversionFunctions() { return kConversionFunctions; }

}  // namespace cardwright::vbscript
