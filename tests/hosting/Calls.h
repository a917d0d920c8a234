// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright::testing {

/// What a call by name gave, as an object or a text.
inline Ref<Object> ObjectOf(const Variant& value) { return Ref<Object>(&RequireObject(value)); }
inline std::string Utf8Of(const Variant& value) { return ToText(value).ToUtf8(); }

/// Number of the error that a step raises; 0 where it goes through.
template <class Step>
int ErrorOf(Step&& step) {
  try {
    step();
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

}  // namespace cardwright::testing
