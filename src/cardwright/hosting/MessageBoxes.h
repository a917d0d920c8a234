#pragma once

namespace cardwright {

/// Number of the button that Enter presses in a message box of a style: the first, or the one that the style
/// names.
int DefaultButton(int style) noexcept;

}  // namespace cardwright
