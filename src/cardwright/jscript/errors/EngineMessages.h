#pragma once

#include <optional>
#include <string_view>

namespace cardwright::jscript {

/// Number of the language's error for a message of the JavaScript library, by the message's name; none where
/// the language has no such error.
std::optional<int> NumberOfMessage(std::string_view name) noexcept;

}  // namespace cardwright::jscript
