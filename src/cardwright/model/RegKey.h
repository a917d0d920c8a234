// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// Names one of the per-user settings.
struct SettingName {
  Text app;
  Text section;
  Text name;
};

/// Splits a key "ApplicationName/SectionName/KeyName"; further "/" belong to the name. None where one of the
/// three parts is missing or blank.
std::optional<SettingName> SplitRegKey(std::u16string_view key);

}  // namespace cardwright
