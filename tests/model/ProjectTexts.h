// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace cardwright {

/// The text with every line ended by CR LF.
std::string Crlf(std::string_view text);
/// Every occurrence of `from` replaced.
std::string Replaced(std::string text, std::string_view from, std::string_view to);

/// A whole project: a form with a label and a text box, the text box sent to the back last.
std::string Example();
/// A project with a control of every class in a scale, an option button inside the frame.
std::string EveryClass(int scaleMode);

}  // namespace cardwright
