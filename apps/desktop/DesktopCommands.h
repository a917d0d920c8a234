// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

namespace cardwright::desktop {

/// @name The commands; each takes the words that follow its name and returns the exit status.
/// @{
int RunFill(std::span<const std::string> words);
int RunInfo(std::span<const std::string> words);
int RunRender(std::span<const std::string> words);
int RunOrv(std::span<const std::string> words);
int RunCheck(std::span<const std::string> words);
int RunDesign(std::span<const std::string> words);
/// @}

}  // namespace cardwright::desktop
