// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "desktop/ProjectFaults.h"

namespace cardwright::desktop {

/// An element of a form as its script sees it: its name and the events of its class.
struct ScriptedElement {
  QString userName;
  std::span<const std::u16string_view> events;
};

/// The faults of a form project's script: compilation errors, and event procedures that no event runs.
std::vector<Fault> FindScriptFaults(const QString& file, std::span<const ScriptedElement> elements);

}  // namespace cardwright::desktop
