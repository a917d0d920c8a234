#pragma once

namespace cardwright::jscript {

/// What the language has beyond the library's JavaScript, as far as that says it best. A function of the
/// global object and of native helpers.
extern const char16_t kPrelude[];

}  // namespace cardwright::jscript
