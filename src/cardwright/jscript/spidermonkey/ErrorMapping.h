// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include <cstdint>

#include "cardwright/automation/Text.h"

namespace cardwright::jscript {

class ScriptSession;

/// The JScript number and text of an error that the library raised.
struct MappedError {
  int number = 0;
  Text text;
};
/// False for an error that the script made itself, which has no mapping.
bool MapError(ScriptSession& session, JS::HandleObject error, MappedError& mapped);

/// @name Error numbers as scripts see them in `error.number`: errors of the language carry a facility in
/// their upper 16 bits, which makes them negative.
/// @{
std::int32_t ToScriptNumber(int number) noexcept;
int FromScriptNumber(std::int32_t number) noexcept;
/// @}

}  // namespace cardwright::jscript
