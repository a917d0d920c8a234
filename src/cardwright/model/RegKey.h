#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// A place among the per-user settings.
struct SettingPlace {
  Text app;
  Text section;
  Text name;
};

/// The place that a key "ApplicationName/SectionName/KeyName" names; what follows a third "/" belongs to the
/// name. None where one of the three is missing or blank.
std::optional<SettingPlace> SplitRegKey(std::u16string_view key);

}  // namespace cardwright
