// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/BuiltinArguments.h"

namespace cardwright::vbscript {

bool MakeText(Variant& argument) {
  if (argument.IsMissing()) Raise(ErrorNumber::TypeMismatch);
  if (argument.IsObject()) argument = DefaultValue(argument);
  if (argument.IsNull()) return false;
  if (!argument.IsString()) argument = Variant(ToText(argument));
  return true;
}

}  // namespace cardwright::vbscript
