// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// The answer that Enter gives in a message box of a style: the first button, or the default that the style
/// names.
int DefaultButton(int style) noexcept;

}  // namespace cardwright
