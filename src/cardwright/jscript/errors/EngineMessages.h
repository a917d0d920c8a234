// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace cardwright::jscript {

/// The number of the JScript error for a message of the JavaScript library, by the message's name; none where
/// JScript has no such error.
std::optional<int> NumberOfMessage(std::string_view name) noexcept;

}  // namespace cardwright::jscript
