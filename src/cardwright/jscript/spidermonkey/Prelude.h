// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright::jscript {

/// The built-ins of JScript that are best written in JavaScript: the source of a function that takes the
/// global object and native helpers.
extern const char16_t kPrelude[];

}  // namespace cardwright::jscript
